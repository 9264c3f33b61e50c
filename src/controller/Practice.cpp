#include "controller/Practice.h"

#include "controller/DailySheet.h"
#include "controller/GameController.h"
#include "progress/PlayerRecord.h"
#include "progress/RuleSets.h"
#include "progress/Settings.h"

#include <algorithm>

namespace veyrand::controller {

namespace {

// More than any hints could cost: they are free.
constexpr std::int64_t kEndlessPurse = 1'000'000'000;

bool isPlace(const progress::Place& place)
{
    return place.level >= 1 && place.level <= progress::kLastLevel && place.stage >= 1
        && place.stage <= progress::kLastStage;
}

} // namespace

Practice::Practice(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
    , m_daily(m_game.resources.once([this] {
        return play::DailyPuzzles(
            m_game.resources.dataNamed("DailyPuzzles", "txt").value_or(std::string()));
    }))
{
}

progress::Place Practice::standing() const
{
    const auto record
        = progress::readPlayerRecord(m_game.preferences, m_controller.flow().playerName());
    const progress::Place place { record.level, record.stage };
    return isPlace(place) ? place : progress::Place {};
}

const progress::CatalogueEntry* Practice::entryAt(const progress::Place& place) const
{
    const auto& catalogue = m_game.currentGame.catalogueOf(progress::Mode::Classic);
    const auto index = static_cast<std::size_t>(progress::catalogueIndex(place));
    return isPlace(place) && index < catalogue.size() ? &catalogue[index] : nullptr;
}

bool Practice::isReached(const progress::Place& place) const
{
    return isReached(place, standing()) || isSolved(place); // also after a new game has begun
}

bool Practice::isSolved(const progress::Place& place) const
{
    return isSolved(place, standing());
}

bool Practice::isReached(const progress::Place& place, const progress::Place& standing)
{
    return isPlace(place) && progress::catalogueIndex(place) <= progress::catalogueIndex(standing);
}

bool Practice::isSolved(const progress::Place& place, const progress::Place& standing) const
{
    return isPlace(place)
        && (progress::catalogueIndex(place) < progress::catalogueIndex(standing)
            || m_controller.book().results().of(play::nameOf(place)) != nullptr);
}

bool Practice::play(const progress::Place& place)
{
    const auto* const entry = entryAt(place);
    if (entry == nullptr || !isReached(place)) {
        return false;
    }
    if (!isSolved(place)) {
        m_controller.kept().close();
        m_controller.flow().startClassicGame();
        return true;
    }
    start({ .puzzle = { entry->root, entry->goal },
        .name = play::nameOf(place),
        .caption = play::nameOf(place),
        .place = place,
        .par = static_cast<unsigned>(entry->par - 1),
        .open = progress::highestRuleAt(place.level, place.stage) });
    return true;
}

std::string Practice::wordsOf(const play::CodeFault& fault) const
{
    const language::Texts& texts = m_game.texts;
    switch (fault.kind) {
    case play::CodeFault::Kind::Empty:
        return texts.text("practice.noCode");
    case play::CodeFault::Kind::TooLong:
        return texts.text(
            "practice.codeTooLong", { { "most", std::int64_t { play::kLongestCode } } });
    case play::CodeFault::Kind::ForeignLetter:
        return texts.text("practice.codeLetter",
            { { "letter", fault.letter }, { "place", std::to_string(fault.place) } });
    case play::CodeFault::Kind::Newer:
        return texts.text("practice.codeNewer");
    case play::CodeFault::Kind::Slip:
        break;
    }
    return texts.text("practice.codeSlip");
}

void Practice::openOrTell(std::string_view code)
{
    tell(open(code));
}

void Practice::openToday()
{
    openDayOrTell(m_controller.book().today());
}

void Practice::openDayOrTell(const progress::CalendarDate& date)
{
    tell(openDaily(date));
}

void Practice::tell(const std::string& fault)
{
    if (!fault.empty()) {
        m_game.alerts.show({ .message = fault,
                               .informativeText = {},
                               .defaultButton = m_game.texts.text("practice.ok") },
            [](const platform::AlertAnswer& /*answer*/) {});
    }
}

std::string Practice::open(std::string_view code)
{
    const auto read = play::readCode(play::codeInLink(code));
    if (const auto* const fault = std::get_if<play::CodeFault>(&read)) {
        return wordsOf(*fault);
    }
    const auto& puzzle = std::get<play::CodedPuzzle>(read);
    return openPuzzle(puzzle, play::codeOf(puzzle.root, puzzle.goal).value(),
        m_game.texts.text("practice.codeCaption"));
}

std::string Practice::openDaily(const progress::CalendarDate& date)
{
    const play::CodedPuzzle* const puzzle = m_daily->on(date);
    if (puzzle == nullptr) {
        return "DailyPuzzles.txt: " + m_daily->fault();
    }
    if (date > m_controller.book().today()) {
        return m_game.texts.text("practice.toCome");
    }
    return openPuzzle(*puzzle, progress::textOf(date), shortDate(m_game.texts, date));
}

std::string Practice::whyNot(std::string_view code)
{
    const auto read = play::readCode(play::codeInLink(code));
    if (const auto* const fault = std::get_if<play::CodeFault>(&read)) {
        return wordsOf(*fault);
    }
    const auto ways = waysOf(std::get<play::CodedPuzzle>(read));
    const auto* const fault = std::get_if<std::string>(&ways);
    return fault != nullptr ? *fault : std::string();
}

std::variant<play::Ways, std::string> Practice::waysOf(const play::CodedPuzzle& puzzle)
{
    const auto root = engine::PackedLine::pack(puzzle.root);
    const auto goal = engine::PackedLine::pack(puzzle.goal);
    if (!root || !goal || !play::hasOneYellowAtMost(*root)) {
        return m_game.texts.text("practice.badStart");
    }
    auto ways = m_search.find(*root, *goal);
    if (!ways) {
        return m_game.texts.text("practice.unreachable");
    }
    return *std::move(ways);
}

std::string Practice::openPuzzle(
    const play::CodedPuzzle& puzzle, std::string name, std::string caption)
{
    const auto found = waysOf(puzzle);
    if (const auto* const fault = std::get_if<std::string>(&found)) {
        return *fault;
    }
    askFirst([this,
                 wanted = Wanted { .puzzle = puzzle,
                     .name = std::move(name),
                     .caption = std::move(caption),
                     .par = std::get<play::Ways>(found).moves(),
                     .open = progress::kMoveCount }] { start(wanted); });
    return {};
}

void Practice::askFirst(std::function<void()> start)
{
    if (!m_controller.proof()) {
        return start();
    }
    const bool isFoundAgain = !isOn() && m_game.journal != nullptr
        && progress::readSettings(m_game.preferences).keepUnfinishedPuzzles;
    m_game.alerts.show({ .message = m_game.texts.text("practice.leave"),
                           .informativeText
                           = isFoundAgain ? m_game.texts.text("practice.leaveMore") : std::string(),
                           .defaultButton = m_game.texts.text("practice.play"),
                           .alternateButton = m_game.texts.text("practice.stay") },
        [start = std::move(start)](const platform::AlertAnswer& answer) {
            if (answer.button == platform::AlertAnswer::Button::Default) {
                start();
            }
        });
}

void Practice::choose(const progress::Place& place)
{
    const progress::CurrentGame& game = m_game.currentGame;
    const bool isClassicInPlay = m_controller.proof() && !isOn() && !game.endlessGame();
    if (!isReached(place)) {
        return;
    }
    if (isOn()) {
        play(place);
    } else if (isClassicInPlay && place == standing() && !isSolved(place)) {
        m_controller.sheets().close(); // it lies under the map
    } else {
        askFirst([this, place] { play(place); });
    }
}

void Practice::start(const Wanted& wanted)
{
    GameFlow& flow = m_controller.flow();
    m_controller.kept().close();
    m_game.currentGame.loadPlayer(flow.playerName(), progress::Mode::Classic);
    m_game.currentGame.placePuzzle({ .root = wanted.puzzle.root,
        .goal = wanted.puzzle.goal,
        .par = static_cast<int>(wanted.par) + 1,
        .level = wanted.place.level,
        .stage = wanted.place.stage,
        .practice = progress::CurrentGame::Practice {
            .open = wanted.open, .caption = wanted.caption, .purse = kEndlessPurse } });
    m_name = wanted.name;
    m_place = isPlace(wanted.place) ? std::optional(wanted.place) : std::nullopt;
    m_controller.sheets().makeWay();
    flow.layOutPuzzle();
    flow.startMusic();
    if (!m_place && wanted.open > progress::highestRuleAt(standing().level, standing().stage)) {
        tellOfAllMoves();
    }
}

void Practice::tellOfAllMoves()
{
    if (!m_controller.book().results().knowsAllMoves()) {
        m_controller.book().playerKnowsAllMoves();
        m_controller.pages().show("allMovesMessageWindow");
    }
}

bool Practice::isOn() const
{
    return m_game.currentGame.practice() && m_controller.proof();
}

bool Practice::givesHints() const
{
    const auto& proof = m_controller.proof();
    return !proof || mayTellOf({ proof->root().theorem(), proof->goal().theorem() });
}

bool Practice::mayTellOf(const play::CodedPuzzle& puzzle) const
{
    const auto* const entry = entryAt(standing());
    return entry == nullptr || isSolved(standing()) || puzzle.root != entry->root
        || puzzle.goal != entry->goal;
}

// What has no place on the map is offered to be looked at again at once. The calendar offers it
// beside each day.
void Practice::finished()
{
    const std::string solved = m_place ? std::string() : m_name;
    m_controller.flow().returnToMenu();
    const std::string sheet = m_controller.sheets().name();
    if (!solved.empty() && !sheet.empty() && sheet != "daily") {
        m_controller.sheets().openReplay(solved);
    }
}

} // namespace veyrand::controller
