#include "language/Texts.h"

#include "language/Choice.h"
#include "language/Json.h"
#include "language/Marks.h"
#include "language/Pseudo.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

namespace veyrand::language {

namespace {

constexpr std::string_view kOther = "other";
constexpr std::array<std::string_view, 6> kFormNames { "zero", "one", "two", "few", "many",
    kOther };
// The board's own words, and those of menus and windows.
constexpr std::array<std::string_view, 2> kSectionFiles { "board", "windows" };
constexpr std::string_view kPagesFile = "pages";

std::string fileOf(std::string_view code, std::string_view name)
{
    return "languages/" + std::string(code) + '/' + std::string(name);
}

Forms formsFrom(const Json& json)
{
    if (json.is_string()) {
        return { { std::string(kOther), json.get<std::string>() } };
    }
    if (!json.is_object()) {
        throw std::invalid_argument("is neither a text nor its forms");
    }
    Forms forms;
    for (const auto& [name, text] : json.items()) {
        if (std::find(kFormNames.begin(), kFormNames.end(), name) == kFormNames.end()) {
            throw std::invalid_argument("there is no form \"" + name + '"');
        }
        if (!text.is_string()) {
            throw std::invalid_argument("the form \"" + name + "\" is no text");
        }
        forms[name] = text.get<std::string>();
    }
    if (!forms.contains(kOther)) {
        throw std::invalid_argument("has no form \"other\"");
    }
    return forms;
}

PageWords wordsFrom(const Json& json)
{
    if (!json.is_array()) {
        throw std::invalid_argument("is no list of texts");
    }
    PageWords words;
    for (const Json& text : json) {
        if (!text.is_string()) {
            throw std::invalid_argument("is no list of texts");
        }
        words.push_back(text.get<std::string>());
    }
    return words;
}

// The marks of a text that stand for values, in all its forms.
std::vector<std::string> valuesIn(const Forms& forms)
{
    std::string all;
    for (const auto& [name, text] : forms) {
        all += text;
    }
    return language::valuesIn(all);
}

std::vector<std::string> valuesIn(const PageWords& words)
{
    std::string all;
    for (const std::string& text : words) {
        all += text;
    }
    return language::valuesIn(all);
}

void checkValues(const std::vector<std::string>& names, const std::vector<std::string>& known)
{
    for (const std::string& name : names) {
        if (!std::binary_search(known.begin(), known.end(), name)) {
            throw std::invalid_argument("there is no mark {" + name + '}');
        }
    }
}

} // namespace

Texts::Texts(const platform::Resources& resources)
    : m_resources(resources)
    , m_code(kEnglish)
    , m_grammar(std::make_unique<Grammar>(m_code))
{
    m_english = resources.once([this] { return read(kEnglish); });
}

Texts::~Texts() = default;

void Texts::choose(std::string_view code)
{
    m_code = std::string(code);
    m_grammar = std::make_unique<Grammar>(m_code == kPseudo ? std::string(kEnglish) : m_code);
    m_chosen = {};
    if (code == kPseudo) {
        makePseudo();
    } else if (code != kEnglish) {
        m_chosen = read(code);
    }
}

Texts::Table Texts::read(std::string_view code) const
{
    Table table;
    for (const std::string_view file : kSectionFiles) {
        readSections(code, file, table);
    }
    readPages(code, table);
    return table;
}

namespace {

void noteFault(std::string& faults, const std::string& file, const std::string& name,
    const std::exception& error)
{
    faults += file + ".json: " + name + ": " + error.what() + '\n';
}

// Calls the function with each name and value of the file; whatever it throws is written down.
template <class Function>
void forEachEntry(const platform::Resources& resources, const std::string& file,
    std::string& faults, const Function& function)
{
    try {
        const auto bytes = resources.dataNamed(file, "json");
        if (!bytes) {
            throw std::invalid_argument("cannot be read");
        }
        const Json json = jsonIn(*bytes);
        if (!json.is_object()) {
            throw std::invalid_argument("is no object");
        }
        for (const auto& [name, value] : json.items()) {
            try {
                function(name, value);
            } catch (const std::exception& error) {
                noteFault(faults, file, name, error);
            }
        }
    } catch (const std::exception& error) {
        faults += file + ".json: " + error.what() + '\n';
    }
}

} // namespace

void Texts::readSections(std::string_view code, std::string_view file, Table& table) const
{
    const std::string path = fileOf(code, file);
    forEachEntry(
        m_resources, path, table.faults, [&](const std::string& section, const Json& texts) {
            if (!texts.is_object()) {
                throw std::invalid_argument("is no section of texts");
            }
            const std::string prefix = section + '.';
            for (const auto& [key, value] : texts.items()) {
                const std::string id = prefix + key;
                try {
                    Forms forms = formsFrom(value);
                    checkForms(code, id, forms);
                    table.texts.insert_or_assign(id, std::move(forms));
                } catch (const std::exception& error) {
                    noteFault(table.faults, path, id, error);
                }
            }
        });
}

void Texts::readPages(std::string_view code, Table& table) const
{
    forEachEntry(m_resources, fileOf(code, kPagesFile), table.faults,
        [&](const std::string& name, const Json& value) {
            PageWords words = wordsFrom(value);
            checkPage(code, name, words);
            table.pages.insert_or_assign(name, std::move(words));
        });
}

// What English says is what there is to translate; its own marks only have to be well-formed.
void Texts::checkForms(std::string_view code, const std::string& id, const Forms& forms) const
{
    const auto values = valuesIn(forms);
    if (code == kEnglish) {
        return;
    }
    const auto english = m_english->texts.find(id);
    if (english == m_english->texts.end()) {
        throw std::invalid_argument("English has no such text");
    }
    checkValues(values, valuesIn(english->second));
}

void Texts::checkPage(std::string_view code, const std::string& name, const PageWords& words) const
{
    const auto values = valuesIn(words);
    if (code == kEnglish) {
        return;
    }
    const auto english = m_english->pages.find(name);
    if (english == m_english->pages.end()) {
        throw std::invalid_argument("there is no such page");
    }
    if (words.size() != english->second.size()) {
        throw std::invalid_argument("has " + std::to_string(words.size())
            + " texts where English has " + std::to_string(english->second.size()));
    }
    checkValues(values, valuesIn(english->second));
}

void Texts::makePseudo()
{
    for (const auto& [id, forms] : m_english->texts) {
        for (const auto& [name, text] : forms) {
            m_chosen.texts[id][name] = pseudo(text);
        }
    }
    for (const auto& [name, words] : m_english->pages) {
        for (const std::string& text : words) {
            m_chosen.pages[name].push_back(pseudo(text));
        }
    }
}

const Forms* Texts::formsOf(std::string_view id) const
{
    for (const Table* table : { &m_chosen, m_english.get() }) {
        if (const auto found = table->texts.find(id); found != table->texts.end()) {
            return &found->second;
        }
    }
    return nullptr;
}

const std::string& Texts::formFor(const Forms& forms, Arguments arguments) const
{
    if (forms.size() > 1) {
        for (const Argument& argument : arguments) {
            if (const auto* const number = std::get_if<std::int64_t>(&argument.value)) {
                const auto found = forms.find(m_grammar->formName(*number));
                return found != forms.end() ? found->second : forms.find(kOther)->second;
            }
        }
    }
    return forms.find(kOther)->second;
}

std::string Texts::text(std::string_view id, Arguments arguments) const
{
    const Forms* const forms = formsOf(id);
    if (forms == nullptr) {
        return std::string(id);
    }
    std::string filled;
    for (const Piece& piece : piecesOf(formFor(*forms, arguments))) {
        const auto* const argument
            = std::find_if(arguments.begin(), arguments.end(), [&piece](const Argument& candidate) {
                  return piece.kind == Piece::Kind::Value && candidate.name == piece.text;
              });
        if (argument == arguments.end()) {
            filled += piece.kind == Piece::Kind::Words ? piece.text : '{' + piece.text + '}';
        } else if (const auto* const number = std::get_if<std::int64_t>(&argument->value)) {
            filled += m_grammar->written(*number);
        } else {
            filled += std::get<std::string>(argument->value);
        }
    }
    return filled;
}

std::string Texts::localized(std::string_view section, std::string_view english) const
{
    const Forms* const forms = formsOf(std::string(section) + '.' + std::string(english));
    return forms != nullptr ? forms->find(kOther)->second : std::string(english);
}

bool Texts::isTranslated(std::string_view id) const
{
    return m_chosen.texts.find(id) != m_chosen.texts.end();
}

const PageWords* Texts::page(std::string_view name) const
{
    const auto found = m_chosen.pages.find(name);
    return found != m_chosen.pages.end() ? &found->second : nullptr;
}

const PageWords* Texts::englishPage(std::string_view name) const
{
    const auto found = m_english->pages.find(name);
    return found != m_english->pages.end() ? &found->second : nullptr;
}

void Texts::rejectPage(const std::string& name, const std::string& reason)
{
    m_chosen.pages.erase(name);
    m_chosen.faults += fileOf(m_code, kPagesFile) + ".json: " + name + ": " + reason + '\n';
}

void Texts::forEachId(const std::function<void(const std::string& id)>& function) const
{
    for (const auto& [id, forms] : m_english->texts) {
        function(id);
    }
}

void Texts::forEachPage(const std::function<void(const std::string& name)>& function) const
{
    for (const auto& [name, words] : m_english->pages) {
        function(name);
    }
}

} // namespace veyrand::language
