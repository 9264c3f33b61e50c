// What the game's own data files are read with.

#include "fuzz/Bytes.h"
#include "fuzz/Targets.h"
#include "play/DailyPuzzles.h"
#include "play/JournalText.h"
#include "play/PuzzleCode.h"
#include "play/Results.h"
#include "progress/Catalogue.h"

#include <algorithm>

namespace veyrand::fuzz {

namespace {

using progress::ParsedCatalogue;

void checkCatalogue(const ParsedCatalogue& found)
{
    promise(found.error.empty() || found.entries.empty(), "entries of a broken catalogue");
    for (const auto kind : { progress::CatalogueKind::Classic, progress::CatalogueKind::Endless }) {
        const auto lacking = progress::insufficiency(found.entries, kind);
        const auto fault = progress::catalogueFault(found.entries, kind);
        promise(!lacking || fault, "a catalogue is without fault and does not suffice");
        promise(!fault || !fault->empty(), "a fault without words");
    }
}

} // namespace

void fuzzCatalogue(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = textOf(data, size);
    checkCatalogue(progress::parseCatalogue(text));
    const ParsedCatalogue plain = progress::parseCatalogueText(text);
    checkCatalogue(plain);
    const bool isPlain = std::all_of(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (plain.error.empty() && isPlain) {
        const ParsedCatalogue packed = progress::parseCatalogue(progress::catalogueBytes(text));
        promise(packed.entries == plain.entries, "a catalogue changes on its way to the game");
    }
}

void fuzzDaily(const std::uint8_t* data, std::size_t size)
{
    const play::DailyPuzzles daily(textOf(data, size));
    promise(
        daily.fault().empty() == !daily.puzzles().empty(), "a list is neither read nor refused");
    for (const std::int64_t day : { std::int64_t { -1'000'000 }, std::int64_t { 0 },
             std::int64_t { 20'778 }, std::int64_t { 1'000'000 } }) {
        const play::CodedPuzzle* const puzzle = daily.on(progress::dateOfDay(day));
        promise((puzzle != nullptr) == daily.fault().empty(), "a day without a puzzle");
    }
}

void fuzzResults(const std::uint8_t* data, std::size_t size)
{
    // Half of them with right checks, which no bytes would ever hit upon.
    Bytes bytes(data, size);
    std::string given;
    for (const bool isChecked = bytes.byte() % 2 == 1; bytes.areLeft();) {
        const std::string line(bytes.textUpTo('\n'));
        given += (isChecked ? play::JournalWriter().checked(line) : line) + '\n';
    }
    const play::Results::Read found = play::Results::read("veyrand-results 1\n" + given);
    std::string text;
    for (const std::string& line : found.results.lines()) {
        text += line + '\n';
    }
    const play::Results::Read again = play::Results::read(text);
    promise(again.damaged == 0, "results cannot be read that have just been written");
    promise(again.results == found.results, "results change on their way through a file");
    static_cast<void>(
        play::statisticsOf(found.results, { .level = 5, .stage = 5 }, progress::dateOfDay(20'778)));
}

void fuzzCodes(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = play::codeInLink(textOf(data, size));
    const auto found = play::readCode(text);
    if (const auto* const fault = std::get_if<play::CodeFault>(&found)) {
        promise(!play::wordsOf(*fault).empty(), "a fault without words");
    } else {
        const auto& puzzle = std::get<play::CodedPuzzle>(found);
        const auto code = play::codeOf(puzzle.root, puzzle.goal);
        promise(code.has_value(), "a code's puzzle has no code");
        const auto again = play::readCode(*code);
        const auto* const same = std::get_if<play::CodedPuzzle>(&again);
        promise(same != nullptr && *same == puzzle, "a puzzle changes on its way through a code");
    }
    Bytes bytes(data, size);
    const std::string root(bytes.textUpTo(' '));
    const std::string goal(bytes.rest());
    if (const auto code = play::codeOf(root, goal)) {
        const auto read = play::readCode(*code);
        const auto* const puzzle = std::get_if<play::CodedPuzzle>(&read);
        promise(puzzle != nullptr && puzzle->root == root && puzzle->goal == goal,
            "a code does not give back its puzzle");
    }
}

} // namespace veyrand::fuzz
