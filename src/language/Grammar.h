#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace veyrand::language {

// How a language counts. Made at the first number: a launch needs none. The desktop asks ICU; a
// browser has its own rules, so its build has another source for this.
class Grammar {
public:
    explicit Grammar(std::string code);
    Grammar(const Grammar&) = delete;
    Grammar& operator=(const Grammar&) = delete;
    ~Grammar();

    // "one", "few", "other" and so on: the form that the number asks for.
    [[nodiscard]] std::string formName(std::int64_t number);
    // Without a mark between thousands, as the counters beside the board are written.
    [[nodiscard]] std::string written(std::int64_t number);

private:
    struct Rules;

    std::string m_code;
    std::unique_ptr<Rules> m_rules;
};

} // namespace veyrand::language
