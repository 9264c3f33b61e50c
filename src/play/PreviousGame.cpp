#include "play/PreviousGame.h"

#include "play/ActionText.h"

#include <charconv>

namespace veyrand::play {

namespace {

using progress::Mode;

constexpr std::string_view kRecordMagic = "veyrand-previous ";

std::string_view nameOf(Mode mode)
{
    return mode == Mode::Endless ? "endless" : "classic";
}

// "veyrand-previous 1 New classic 5-3 320 0 1", without its check.
std::string recordLine(const PreviousGame& game, std::string_view player)
{
    const Standing& standing = game.standing;
    return std::string(kRecordMagic) + std::to_string(kActionFormat) + ' ' + percentEncoded(player)
        + ' ' + std::string(nameOf(standing.mode)) + ' ' + std::to_string(standing.place.level)
        + '-' + std::to_string(standing.place.stage) + ' ' + std::to_string(standing.score) + ' '
        + std::to_string(standing.endlessPar) + ' ' + (game.knowsHints ? '1' : '0');
}

template <class Number> bool take(std::string_view& text, char end, Number& number)
{
    const char* const last = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), last, number);
    if (fault != std::errc() || stop == last || *stop != end) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()) + 1);
    return true;
}

// Whatever is not as recordLine writes it is found out by writing it anew.
std::optional<PreviousGame> gameOf(std::string_view line, std::string_view player, Mode mode)
{
    const std::string head = std::string(kRecordMagic) + std::to_string(kActionFormat) + ' '
        + percentEncoded(player) + ' ' + std::string(nameOf(mode)) + ' ';
    if (line.substr(0, head.size()) != head) {
        return std::nullopt;
    }
    std::string_view rest = line.substr(head.size());
    PreviousGame game;
    game.standing.mode = mode;
    if (!take(rest, '-', game.standing.place.level) || !take(rest, ' ', game.standing.place.stage)
        || !take(rest, ' ', game.standing.score) || !take(rest, ' ', game.standing.endlessPar)) {
        return std::nullopt;
    }
    game.knowsHints = rest.substr(0, 1) == "1";
    const std::string again = JournalWriter().checked(recordLine(game, player));
    return again == line ? std::optional(std::move(game)) : std::nullopt;
}

} // namespace

std::string previousName(std::string_view player, Mode mode)
{
    return percentEncoded(player) + '-' + std::string(nameOf(mode)) + "-previous.txt";
}

std::vector<std::string> linesOf(const PreviousGame& game, std::string_view player)
{
    std::vector<std::string> lines { JournalWriter().checked(recordLine(game, player)) };
    if (game.puzzle) {
        JournalWriter writer;
        const std::vector<std::string> journal = journalOf(*game.puzzle, player, writer);
        lines.insert(lines.end(), journal.begin(), journal.end());
    }
    return lines;
}

std::vector<PreviousGame> previousGamesIn(
    std::string_view text, std::string_view player, Mode mode, const progress::Catalogue& catalogue)
{
    std::vector<PreviousGame> games;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        auto game = gameOf(text.substr(0, end), player, mode);
        if (!game) {
            break;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
        // Its journal goes as far as the next record.
        const std::string next = '\n' + std::string(kRecordMagic);
        const std::size_t size = text.substr(0, kRecordMagic.size()) == kRecordMagic
            ? 0
            : std::min(
                text.find(next) == std::string_view::npos ? text.size() : text.find(next) + 1,
                text.size());
        Recovery recovery
            = recover(game->standing, catalogue, readJournal(text.substr(0, size), player).entries);
        if (recovery.found == Recovery::Found::InPlay) {
            game->puzzle = std::move(recovery.replay);
        }
        games.push_back(std::move(*game));
        text.remove_prefix(size);
    }
    return games;
}

std::string nameForPeople(const Standing& standing)
{
    const std::string points
        = std::to_string(standing.score) + (standing.score == 1 ? " point" : " points");
    return standing.mode == Mode::Endless ? points
                                          : std::to_string(standing.place.level) + '-'
            + std::to_string(standing.place.stage) + ", " + points;
}

} // namespace veyrand::play
