#include "app/GalleryResults.h"

#include "engine/PackedLine.h"
#include "play/Ways.h"

namespace veyrand::app {

namespace {

constexpr int kStandingAt = 56; // puzzles before 6-7
constexpr int kEveryFifth = 5;
constexpr int kDays = 33;
constexpr int kMissed = 12; // days ago
constexpr int kMissedBefore = 19;

unsigned overAt(int number)
{
    return number % kEveryFifth == 3 ? 1U + static_cast<unsigned>(number % 3) : 0U;
}

play::Results placesToShow(controller::GameController& game)
{
    play::Results results;
    int number = 0;
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        for (int stage = 1; stage <= progress::kLastStage; ++stage) {
            const progress::Place place { level, stage };
            const auto* const entry = game.practice().entryAt(place);
            if (entry == nullptr || number++ >= kStandingAt) {
                return results;
            }
            const auto par = static_cast<unsigned>(entry->par - 1);
            results.add(play::nameOf(place),
                { .puzzle = { entry->root, entry->goal },
                    .par = par,
                    .moves = std::vector<play::Move>(par + overAt(number)),
                    .hints = number % kEveryFifth == 0 ? 1U : 0U });
        }
    }
    return results;
}

play::Results daysToShow(controller::GameController& game)
{
    play::Results results;
    play::WaySearch search;
    for (int back = 0; back < kDays; ++back) {
        const progress::CalendarDate date = progress::daysAfter(game.book().today(), -back);
        const auto* const puzzle = game.practice().daily().on(date);
        const auto start = engine::PackedLine::pack(puzzle != nullptr ? puzzle->root : "");
        const auto goal = engine::PackedLine::pack(puzzle != nullptr ? puzzle->goal : "");
        const auto ways
            = puzzle != nullptr && start && goal ? search.find(*start, *goal) : std::nullopt;
        if (ways && back != kMissed && back != kMissedBefore) {
            results.add(progress::textOf(date),
                { .puzzle = *puzzle,
                    .par = ways->moves(),
                    .moves = std::vector<play::Move>(ways->moves() + overAt(back)),
                    .solvedOn = date });
        }
    }
    return results;
}

} // namespace

play::Results resultsToShow(controller::GameController& game)
{
    play::Results results = placesToShow(game);
    results.join(daysToShow(game));
    return results;
}

} // namespace veyrand::app
