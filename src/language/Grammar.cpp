#include "language/Grammar.h"

#include <unicode/numfmt.h>
#include <unicode/plurrule.h>

#include <utility>

namespace veyrand::language {

struct Grammar::Rules {
    std::unique_ptr<icu::PluralRules> forms {};
    std::unique_ptr<icu::NumberFormat> numbers {};
};

Grammar::Grammar(std::string code)
    : m_code(std::move(code))
    , m_rules(std::make_unique<Rules>())
{
}

Grammar::~Grammar() = default;

std::string Grammar::formName(std::int64_t number)
{
    UErrorCode status = U_ZERO_ERROR;
    if (!m_rules->forms) {
        m_rules->forms.reset(icu::PluralRules::forLocale(icu::Locale(m_code.c_str()), status));
    }
    std::string name("other");
    if (m_rules->forms && U_SUCCESS(status) != 0) {
        name.clear();
        m_rules->forms->select(static_cast<double>(number)).toUTF8String(name);
    }
    return name;
}

std::string Grammar::written(std::int64_t number)
{
    UErrorCode status = U_ZERO_ERROR;
    if (!m_rules->numbers) {
        m_rules->numbers.reset(
            icu::NumberFormat::createInstance(icu::Locale(m_code.c_str()), status));
        if (m_rules->numbers && U_SUCCESS(status) != 0) {
            m_rules->numbers->setGroupingUsed(0);
        }
    }
    if (!m_rules->numbers || U_FAILURE(status) != 0) {
        return std::to_string(number);
    }
    icu::UnicodeString text;
    m_rules->numbers->format(number, text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

} // namespace veyrand::language
