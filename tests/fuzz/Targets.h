#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>

namespace veyrand::fuzz {

// Something that takes bytes from whoever wrote them. Whatever the bytes, it must come to an end
// and keep its promises; one that is broken is thrown, and nothing else ever is.
struct Target {
    const char* name; // of its corpus, too
    void (*run)(const std::uint8_t* data, std::size_t size);
};

[[nodiscard]] std::span<const Target> targets();
// Throws std::invalid_argument for a name that is none.
[[nodiscard]] const Target& targetNamed(const std::string& name);

class BrokenPromise : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

inline void promise(bool holds, const std::string& what)
{
    if (!holds) {
        throw BrokenPromise(what);
    }
}

void fuzzCatalogue(const std::uint8_t* data, std::size_t size);
void fuzzDaily(const std::uint8_t* data, std::size_t size);
void fuzzResults(const std::uint8_t* data, std::size_t size);
void fuzzPreferences(const std::uint8_t* data, std::size_t size);
void fuzzJournal(const std::uint8_t* data, std::size_t size);
void fuzzActions(const std::uint8_t* data, std::size_t size);
void fuzzTutorial(const std::uint8_t* data, std::size_t size);
void fuzzLanguage(const std::uint8_t* data, std::size_t size);
void fuzzPages(const std::uint8_t* data, std::size_t size);
void fuzzCodes(const std::uint8_t* data, std::size_t size);
void fuzzWorkshop(const std::uint8_t* data, std::size_t size);
void fuzzRules(const std::uint8_t* data, std::size_t size);
void fuzzGame(const std::uint8_t* data, std::size_t size);

} // namespace veyrand::fuzz
