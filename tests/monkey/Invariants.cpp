#include "monkey/Invariants.h"

#include "board/BoardGeometry.h"
#include "play/JournalText.h"
#include "play/MyPuzzles.h"
#include "play/Results.h"
#include "progress/Misunderstood.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"
#include "support/BoardRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace veyrand::test {

namespace {

// No animation, celebration or walk back takes longer.
constexpr double kLongestBlock = 30.0; // seconds
constexpr double kHair = 1e-9;

const present::GameObjectLayer* layerOf(headless::HeadlessGame& game, const std::string& key)
{
    for (const auto& layer : game.game().layers().backgroundLayer().sublayers()) {
        const auto* const mirror = dynamic_cast<const present::GameObjectLayer*>(layer.get());
        if (mirror != nullptr && mirror->gameObjectKey() == key) {
            return mirror;
        }
    }
    return nullptr;
}

// What the panel counts is what the list of actions comes to.
std::string faultOfPurse(headless::HeadlessGame& game)
{
    const play::Session* const session = game.controller().flow().session();
    if (session == nullptr || session->phase() == play::Phase::HintFlying) {
        return {}; // the line that is settled counts when it has landed
    }
    if (game.controller().practice().isOn()) {
        return {}; // played for no points
    }
    const progress::CurrentGame& current = game.currentGame();
    const std::int64_t score = current.endlessGame() ? current.endlessScore() : current.score();
    return score == session->settled().purse() ? std::string() : "the points do not add up";
}

std::string faultOfChip(
    headless::HeadlessGame& game, unsigned row, unsigned column, const std::string& key)
{
    const auto chip = game.gameData().gameObjects().objectForKey(key);
    const present::GameObjectLayer* const shown = layerOf(game, key);
    const double scale
        = game.gameData().gameHeight(); // of the layers, whatever the size of the view
    if (!chip || shown == nullptr) {
        return key + " is not there";
    }
    if (std::abs(chip->x() - board::xPositionForColumn(column)) > kHair
        || std::abs(chip->y() - board::yPositionForRow(row)) > kHair) {
        return key + " is out of its place";
    }
    if (std::abs(static_cast<double>(shown->shownPosition().x) - chip->x() * scale) > 0.01
        || std::abs(static_cast<double>(shown->shownPosition().y) - chip->y() * scale) > 0.01) {
        return key + " is shown out of its place";
    }
    return {};
}

// A sheet is pressed where it was drawn, and drawn as what it shows stands now.
std::string faultOfSheet(headless::HeadlessGame& game)
{
    const controller::Sheets& sheets = game.controller().sheets();
    std::vector<std::string> shown;
    for (const auto& extra : game.game().layers().extras().shown()) {
        if (extra.kind == present::ExtraKind::Place) {
            shown.push_back(extra.key + ": " + extra.text);
        }
    }
    std::vector<std::string> now;
    for (const auto& place : sheets.places()) {
        now.push_back(place.key + ": " + place.text);
    }
    std::sort(shown.begin(), shown.end());
    std::sort(now.begin(), now.end());
    return !sheets.isOpen() || shown == now ? std::string()
                                            : "the " + sheets.name() + " is not drawn as it stands";
}

} // namespace

std::string faultAtAnyMoment(headless::HeadlessGame& game)
{
    auto& view = game.game().view();
    const bool isOpen = !game.controller().messages().page().empty();
    if (isOpen != (view.messageWindow() || view.tutorialWindow())) {
        return "a page is open and not told of, or told of and not open";
    }
    auto& block = view.block();
    if (block.blockClick() && block.delayUntil() - game.runLoop().now() > kLongestBlock) {
        return "input is blocked for ever";
    }
    if (const auto& proof = game.controller().proof()) {
        if (proof->lines().size() > play::kMostLines) {
            return "there are too many lines";
        }
        for (const engine::Theorem& line : proof->lines()) {
            if (line.theorem().size() > play::kMostChips) {
                return "a line is too long";
            }
        }
    }
    return faultOfPurse(game);
}

std::string faultOfLayers(headless::HeadlessGame& game)
{
    std::map<std::string, int> layers;
    for (const auto& layer : game.game().layers().backgroundLayer().sublayers()) {
        if (const auto* const mirror = dynamic_cast<const present::GameObjectLayer*>(layer.get())) {
            ++layers[mirror->gameObjectKey()];
        }
    }
    const board::ObjectTable& table = game.gameData().gameObjects();
    const auto keys = table.keys();
    if (layers.size() != keys.size()) {
        return "there are more layers than things, or fewer";
    }
    for (const std::string& key : keys) {
        if (layers[key] != 1) {
            return key + " has not one layer";
        }
        if (table.objectForKey(key)->keyInGameData() != key) {
            return key + " takes itself for another";
        }
    }
    return faultOfSheet(game);
}

std::string faultOfJournals(const platform::MemoryJournal& journal, SetAside mayBe)
{
    for (const auto& [name, text] : journal.texts()) {
        // Not all that lies there is a journal.
        if (name.find("previous") != std::string::npos) {
            continue;
        }
        if (name.ends_with("-results.txt") || name.ends_with("-puzzles.txt")) {
            const bool isWhole = name.ends_with("-results.txt")
                ? play::Results::read(text).damaged == 0
                : play::MyPuzzles::read(text).damaged == 0;
            if (!isWhole) {
                return "there are damaged lines in " + name;
            }
            continue;
        }
        if (name.find(".txt.") != std::string::npos && mayBe == SetAside::Never) {
            return "a journal was set aside: " + name;
        }
        const play::JournalText read
            = play::readJournal(text, std::string(progress::kDefaultPlayerName));
        if (read.state != play::JournalText::State::Whole) {
            return "a journal cannot be read: " + name;
        }
    }
    return {};
}

std::string faultOfPreferences(const platform::Preferences& preferences)
{
    const std::string player = progress::playerRecordKey(progress::currentPlayer(preferences));
    for (const std::string& group : { player, std::string(progress::kSettingsKey) }) {
        const auto record = preferences.record(group);
        const auto faults = progress::misunderstood(
            group, { .values = record.value_or(platform::PreferenceRecord {}) });
        if (!faults.empty()) {
            return group + '.' + faults.front() + " would not be understood";
        }
    }
    return {};
}

// The rank's page and the first list of moves lead on only at some places.
std::string pageAfter(const std::string& page, const progress::CurrentGame& game)
{
    static const std::map<std::string, std::string> kChains {
        { "howToPlayMessageWindow", "stage1MessageWindow" },
        { "stage1MessageWindow", "stage1Help" },
        { "stage6MessageWindow", "stage6IntermediateMessageWindow" },
        { "stage6IntermediateMessageWindow", "stage6IntermediateMessageWindow2" },
        { "firstHintClickMessageWindow", "firstHint" },
        { "firstHint", "secondHint" },
        { "secondHint", "thirdHint" },
    };
    static const std::array kIntroductions { "", "", "stage11MessageWindow", "stage21MessageWindow",
        "stage31MessageWindow", "stage41MessageWindow" };
    if (page == "showSuccessMessage") {
        const auto level = static_cast<std::size_t>(game.level());
        return level < kIntroductions.size() ? kIntroductions.at(level) : "";
    }
    if (page == "movesMessageWindow") {
        return game.highestRule() > 4 ? "moves2MessageWindow" : "";
    }
    const auto next = kChains.find(page);
    return next != kChains.end() ? next->second : "";
}

bool isAtRest(headless::HeadlessGame& game)
{
    return game.controller().proof() && !game.game().view().block().blockClick()
        && game.controller().flow().phase() == play::Phase::Playing;
}

std::string faultAtRest(headless::HeadlessGame& game)
{
    const board::ObjectTable& table = game.gameData().gameObjects();
    const auto& lines = game.controller().proof()->lines();
    std::size_t chips = 0;
    for (unsigned row = 0; row < lines.size(); ++row) {
        const std::string& line = lines[row].theorem();
        if (rowText(table, row) != line) {
            return "row " + std::to_string(row) + " shows " + rowText(table, row) + " for " + line;
        }
        for (unsigned column = 0; column < line.size(); ++column) {
            const std::string key = board::generateKeyChipKey(column, row);
            if (const std::string fault = faultOfChip(game, row, column, key); !fault.empty()) {
                return fault;
            }
        }
        if (table.contains(board::deleteButtonKey(row)) != (row > 0)) {
            return "row " + std::to_string(row) + " has a delete button too many or too few";
        }
        chips += line.size();
    }
    if (keysFrom(table, "delete").size() + 1 != std::max<std::size_t>(lines.size(), 1)) {
        return "there are stray delete buttons";
    }
    if (table.contains("temporaryGreen")) {
        return "a green of an animation has stayed";
    }
    return keysFrom(table, "chip").size() == chips ? std::string() : "there are stray chips";
}

} // namespace veyrand::test
