#pragma once

#include "language/Grammar.h"
#include "platform/Resources.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veyrand::language {

// What the game puts in place of a mark. Numbers are written as the language writes them.
struct Argument {
    std::string_view name;
    std::variant<std::int64_t, std::string> value;
};
using Arguments = std::initializer_list<Argument>;

// A text in as many forms as the language has for numbers: "one", "few", "other" and so on. A text
// that counts nothing has only "other".
using Forms = std::map<std::string, std::string, std::less<>>;

// Paragraphs from top to bottom.
using PageWords = std::vector<std::string>;

// Every word that the player reads, out of assets/languages/<code>: texts under ids, which are the
// section and the name in it ("tips.easiest"), and the paragraphs of the pages. One language is
// chosen; English, which is always there, stands in for whatever that one lacks or has got wrong.
class Texts {
public:
    // Reads English.
    explicit Texts(const platform::Resources& resources);
    Texts(const Texts&) = delete;
    Texts& operator=(const Texts&) = delete;
    ~Texts();

    void choose(std::string_view code);
    [[nodiscard]] const std::string& code() const { return m_code; }

    // What was wrong with the chosen language's files, a line each with file and reason.
    [[nodiscard]] const std::string& faults() const { return m_chosen.faults; }
    // The same for English, which nothing stands in for.
    [[nodiscard]] const std::string& englishFaults() const { return m_english->faults; }

    // The text with its marks filled in; the first number chooses between forms. Where nobody knows
    // the id, the id.
    [[nodiscard]] std::string text(std::string_view id, Arguments arguments = {}) const;
    // For texts that have their English words for a name, as those of menus and windows: where
    // nobody knows them, the words.
    [[nodiscard]] std::string localized(std::string_view section, std::string_view english) const;
    [[nodiscard]] bool knows(std::string_view id) const { return formsOf(id) != nullptr; }
    // Whether the chosen language has a text of its own under the id.
    [[nodiscard]] bool isTranslated(std::string_view id) const;

    // Null where the page stands in English, with English's own places.
    [[nodiscard]] const PageWords* page(std::string_view name) const;
    [[nodiscard]] const PageWords* englishPage(std::string_view name) const;
    // The page is shown in English after all, for the reason.
    void rejectPage(const std::string& name, const std::string& reason);

    // Calls the function with each of English's ids, or pages.
    void forEachId(const std::function<void(const std::string& id)>& function) const;
    void forEachPage(const std::function<void(const std::string& name)>& function) const;

private:
    struct Table {
        std::map<std::string, Forms, std::less<>> texts;
        std::map<std::string, PageWords, std::less<>> pages;
        std::string faults;
    };

    [[nodiscard]] Table read(std::string_view code) const;
    void readSections(std::string_view code, std::string_view file, Table& table) const;
    void readPages(std::string_view code, Table& table) const;
    void checkForms(std::string_view code, const std::string& id, const Forms& forms) const;
    void checkPage(std::string_view code, const std::string& name, const PageWords& words) const;
    void makePseudo();
    [[nodiscard]] const Forms* formsOf(std::string_view id) const;
    [[nodiscard]] const std::string& formFor(const Forms& forms, Arguments arguments) const;

    const platform::Resources& m_resources;
    std::string m_code;
    std::shared_ptr<const Table> m_english; // null only while it is read
    Table m_chosen;
    std::unique_ptr<Grammar> m_grammar; // how the chosen language counts
};

} // namespace veyrand::language
