#include "language/Grammar.h"

#include <array>
#include <string_view>
#include <utility>

// The browser's own rules, by grammar.js: in its build this takes the place of
// language/Grammar.cpp.

extern "C" {
int veyrand_form_of(const char* code, double number); // by its place in kForms
void veyrand_write_number(const char* code, double number, char* text, int size);
}

namespace veyrand::language {

namespace {

constexpr std::array<std::string_view, 6> kForms { "zero", "one", "two", "few", "many", "other" };

} // namespace

struct Grammar::Rules { };

Grammar::Grammar(std::string code)
    : m_code(std::move(code))
{
}

Grammar::~Grammar() = default;

std::string Grammar::formName(std::int64_t number)
{
    return std::string(kForms.at(
        static_cast<std::size_t>(veyrand_form_of(m_code.c_str(), static_cast<double>(number)))));
}

std::string Grammar::written(std::int64_t number)
{
    constexpr std::size_t kRoom = 64;
    std::array<char, kRoom> text {};
    veyrand_write_number(
        m_code.c_str(), static_cast<double>(number), text.data(), static_cast<int>(text.size()));
    return text.data();
}

} // namespace veyrand::language
