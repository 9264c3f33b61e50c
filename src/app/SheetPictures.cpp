#include "app/SheetPictures.h"

#include "app/VirtualGame.h"
#include "play/Trail.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::app {

namespace {

using engine::PackedLine;
using play::MoveSet;
using progress::Place;

constexpr double kEverythingHasFadedIn = 3.0;
constexpr Place kStanding { 6, 7 };
constexpr Place kRoundabout { 5, 8 }; // whose solution leaves the shortest ways

std::vector<play::Move> movesOf(const std::vector<PackedLine>& lines, MoveSet open)
{
    std::vector<play::Move> moves;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const MoveSet now = play::movesWith(static_cast<unsigned>(i)) & open;
        moves.push_back(play::moveBetween(lines[i - 1], lines[i], now).value_or(play::Move {}));
    }
    return moves;
}

// As a player solves it who takes a way round after the second move; or at par.
std::vector<play::Move> solutionOf(
    const progress::CatalogueEntry& entry, MoveSet open, bool goesRound)
{
    play::WaySearch search;
    const PackedLine goal = PackedLine::pack(entry.goal).value();
    const auto ways = search.find(PackedLine::pack(entry.root).value(), goal, 1, open);
    std::vector<PackedLine> way = ways->way(0);
    constexpr std::size_t kKept = 2;
    if (goesRound && way.size() > kKept + 1) {
        for (const play::Step& step : play::stepsFrom(way[kKept - 1], open)) {
            const auto on = search.find(step.line, goal, kKept + 1, open);
            if (on && on->moves() + kKept + 1 > way.size()) {
                way.resize(kKept);
                const auto rest = on->way(0);
                way.insert(way.end(), rest.begin(), rest.end());
                break;
            }
        }
    }
    return movesOf(way, open);
}

play::Results someResults(const controller::Practice& practice)
{
    play::Results results;
    for (Place place {}; progress::catalogueIndex(place) < progress::catalogueIndex(kStanding);
         place = progress::nextPlace(place)) {
        const auto* const entry = practice.entryAt(place);
        const std::int64_t index = progress::catalogueIndex(place);
        if (entry == nullptr || index % 11 == 9) {
            continue; // solved before results were kept
        }
        const MoveSet open = play::openMoves(progress::highestRuleAt(place.level, place.stage));
        const bool goesRound = place == kRoundabout || index % 4 == 3;
        results.add(play::nameOf(place),
            { .puzzle = { entry->root, entry->goal },
                .par = static_cast<unsigned>(entry->par - 1),
                .moves = solutionOf(*entry, open, goesRound) });
    }
    return results;
}

} // namespace

void showSheets(VirtualGame& game, const std::function<void(const std::string&)>& take)
{
    game.preferences().setRecord(progress::playerRecordKey(progress::kDefaultPlayerName),
        progress::storedRecord({ .level = kStanding.level,
            .stage = kStanding.stage,
            .score = 850,
            .firstHintClick = true }));
    controller::GameController& controller = game.controller();
    controller.flow().returnToMenu();
    controller.book().join(someResults(controller.practice()));
    controller::Sheets& sheets = controller.sheets();
    const auto show = [&](const std::string& name) {
        game.wait(kEverythingHasFadedIn);
        take(name);
    };
    sheets.openMap();
    show("sheet-map");
    sheets.openReplay(play::nameOf(kRoundabout));
    sheets.key("Right");
    sheets.key("Right");
    show("sheet-replay");
    sheets.key("PgDown");
    sheets.key("End");
    show("sheet-replay-shortest");
    sheets.close();

    static_cast<void>(controller.practice().play(kRoundabout));
    game.wait(kEverythingHasFadedIn);
    controller.guide().ask();
    show("guide-moves-needed");
    controller.flow().returnToMenu();
    sheets.close();
}

} // namespace veyrand::app
