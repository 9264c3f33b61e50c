#include "headless/Tour.h"

#include "controller/AccessibleTree.h"
#include "headless/GalleryResults.h"
#include "play/Trail.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/RuleSets.h"
#include "support/Places.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

namespace veyrand::test {

namespace {

// Two digits of a pixel are coarser than what compilers disagree on.
std::string inShort(double number, int digitsWanted = 2)
{
    std::array<char, 32> text {};
    std::snprintf(text.data(), text.size(), "%.*f", digitsWanted, number + 1e-7);
    std::string digits = text.data();
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') {
        digits.pop_back();
    }
    return digits == "-0" ? "0" : digits;
}

std::string inShort(const board::Color& colour)
{
    return inShort(colour.red) + ',' + inShort(colour.green) + ',' + inShort(colour.blue) + ','
        + inShort(colour.alpha);
}

template <class Rect> std::string placeOf(const Rect& rect, int digits = 2)
{
    std::string words;
    for (const auto number : { rect.x, rect.y, rect.width, rect.height }) {
        words += (words.empty() ? "" : " ") + inShort(static_cast<double>(number), digits);
    }
    return words;
}

std::string nameOf(const present::Content& content)
{
    if (const auto* const image = std::get_if<present::ImageContent>(&content)) {
        return image->name + (image->mirror == present::Mirror::None ? "" : " mirrored");
    }
    if (const auto* const text = std::get_if<present::TextContent>(&content)) {
        return '"' + text->text + "\" " + inShort(text->color);
    }
    return "colour " + inShort(std::get<present::SolidContent>(content).color);
}

std::string inWords(const present::DisplayItem& item)
{
    std::string words = nameOf(item.content) + ' ' + placeOf(item.rect);
    if (item.opacity != 1.0F) { // nor is anything there more than wholly
        words += " opacity " + inShort(static_cast<double>(item.opacity));
    }
    if (item.glow > 0.0F) {
        words += " glow " + inShort(static_cast<double>(item.glow));
    }
    if (item.lift > 0.0F) {
        words += " lift " + inShort(static_cast<double>(item.lift));
    }
    return words + (item.pressed ? " pressed" : "")
        + (item.motion == present::Motion::Moving ? " moving" : "");
}

void addNode(
    const controller::AccessibleNode& node, const std::string& indent, std::vector<std::string>& to)
{
    std::string words = indent + std::string(controller::nameOf(node.role)) + ' ' + node.name
        + " = " + node.value;
    for (const controller::AccessibleAction& action : node.actions) {
        words += " [" + action.text + ']';
    }
    to.push_back(std::move(words));
    for (const controller::AccessibleNode& child : node.children) {
        addNode(child, indent + "  ", to);
    }
}

// What has come since, in the order in which it is met, and how much has gone.
std::string changesBetween(
    const std::vector<std::string>& before, const std::vector<std::string>& now)
{
    std::map<std::string, int> counts;
    for (const std::string& line : before) {
        ++counts[line];
    }
    std::string changes;
    std::size_t kept = 0;
    for (const std::string& line : now) {
        if (counts[line]-- <= 0) {
            changes += line + '\n';
        } else {
            ++kept;
        }
    }
    return changes + "gone: " + std::to_string(before.size() - kept) + '\n';
}

// The first place where the two differ, with the stop that it belongs to.
std::string differenceBetween(const std::string& recorded, const std::string& now)
{
    std::istringstream before(recorded);
    std::istringstream after(now);
    std::string stop;
    for (std::string was, is;;) {
        const bool hasWas = static_cast<bool>(std::getline(before, was));
        const bool hasIs = static_cast<bool>(std::getline(after, is));
        if (!hasWas && !hasIs) {
            return {};
        }
        if (hasWas != hasIs || was != is) {
            return "after " + stop + "\n  recorded: " + (hasWas ? was : "the end")
                + "\n  now:      " + (hasIs ? is : "the end");
        }
        if (is.starts_with("= ")) {
            stop = is.substr(2);
        }
    }
}

// A solution with a move that it could have spared, on a line that leaves room for a word beside
// it.
std::optional<play::Result> wayRound(const play::CodedPuzzle& puzzle, play::MoveSet open)
{
    using engine::PackedLine;
    constexpr std::size_t kShort = 7; // chips
    play::WaySearch search;
    const PackedLine goal = PackedLine::pack(puzzle.goal).value();
    const auto ways = search.find(PackedLine::pack(puzzle.root).value(), goal, 1, open);
    std::vector<PackedLine> lines;
    for (const PackedLine line : ways->way(0)) {
        lines.push_back(line);
        const auto standing = static_cast<unsigned>(lines.size());
        for (const play::Step& step : play::stepsFrom(line, open)) {
            const auto on = search.find(step.line, goal, standing + 1, open);
            if (!on || step.line.text().size() > kShort
                || standing + on->moves() <= ways->moves()) {
                continue;
            }
            const auto rest = on->way(0);
            lines.insert(lines.end(), rest.begin(), rest.end());
            play::Result result { .puzzle = puzzle, .par = ways->moves(), .moves = {} };
            for (std::size_t i = 1; i < lines.size(); ++i) {
                result.moves.push_back(
                    play::moveBetween(lines[i - 1], lines[i], open).value_or(play::Move {}));
            }
            return result;
        }
    }
    return std::nullopt;
}

} // namespace

Tour::Tour(Options options)
    : HeadlessPlay(std::move(options))
{
    game().listen();
}

Tour::Options Tour::ofAPlayer()
{
    Options options;
    options.preferences.values[std::string(progress::kEndlessGameUnlockedKey)] = true;
    options.preferences.records[progress::playerRecordKey(progress::kDefaultPlayerName)]
        = progress::storedRecord({ .level = kStanding.level,
            .stage = kStanding.stage,
            .score = 850,
            .firstHintClick = true,
            .endlessScore = 120,
            .endlessPar = 7 });
    return options;
}

void Tour::change(const std::function<void(progress::Settings&)>& how)
{
    progress::Settings settings = progress::readSettings(game().preferences());
    how(settings);
    progress::writeSettings(game().preferences(), settings);
    game().game().settingsChanged();
}

void Tour::addPainted(Lines& lines)
{
    for (const present::DisplayItem& item : game().game().layers().displayList()) {
        lines.push_back(inWords(item));
    }
}

void Tour::addSheet(Lines& lines)
{
    constexpr int kDigitsOfHeights = 4;
    const auto& sheets = game().controller().sheets();
    for (const auto& places : { sheets.places(), sheets.buttons() }) {
        for (const present::SheetPlace& place : places) {
            lines.push_back("place " + place.key + ' ' + placeOf(place.rect, kDigitsOfHeights));
        }
    }
    if (sheets.isOpen()) {
        lines.push_back("sheet " + sheets.name() + ", keys on " + sheets.focus());
    }
}

Tour::Lines Tour::seen()
{
    Lines lines;
    addPainted(lines);
    addSheet(lines);
    addNode(controller::accessibleTree(game().controller()), "reader: ", lines);
    if (const auto stop = controller().focus().shown()) {
        lines.push_back("keys on " + stop->key);
    }
    lines.push_back(std::string("cursor ").append(input::nameOf(controller().answers().cursor())));
    lines.push_back("tip " + controller().answers().tip());
    if (game().alerts().isOpen()) {
        lines.push_back("asked: " + game().alerts().alert().message);
    }
    return lines;
}

void Tour::lookAway()
{
    m_last = seen();
    static_cast<void>(game().takeAnnouncements());
    sounds();
}

void Tour::stop(const std::string& name)
{
    Lines now = seen();
    m_notes += "= " + name + '\n' + changesBetween(m_last, now);
    for (const std::string& sentence : game().takeAnnouncements()) {
        m_notes += "said " + sentence + '\n';
    }
    for (const std::string& effect : sounds()) {
        m_notes += "heard " + effect + '\n';
    }
    m_last = std::move(now);
}

void Tour::keys(const std::vector<std::string>& all, double seconds)
{
    for (const std::string& key : all) {
        if (!game().menu().triggerKeys(key)) { // a menu leaves alone what it has no use for now
            controller().key(key);
        }
        wait(seconds);
        stop(key);
    }
}

void Tour::pointAt(const std::string& key, double seconds)
{
    if (const auto onBoard = game().centreOf(key)) {
        game().move(*onBoard);
    }
    for (const present::SheetPlace& place : game().controller().sheets().places()) {
        if (place.key == key) {
            game().move({ .x = place.rect.x, .y = place.rect.y });
        }
    }
    wait(seconds);
    stop("pointing at " + key);
}

void Tour::pointAtEverything(const std::string& where)
{
    lookAway();
    for (const std::string& key : table().keys()) {
        pointAt(key, 1.5);
    }
    game().leave();
    wait(1.0);
    stop("nothing pointed at on " + where);
}

void Tour::openWaysRound()
{
    controller().book().replace(headless::resultsToShow(controller(), {}));
    const progress::Place onShortLines { 4, 6 };
    const auto* const entry = controller().practice().entryAt(onShortLines);
    const auto round = wayRound({ entry->root, entry->goal },
        play::openMoves(progress::highestRuleAt(onShortLines.level, onShortLines.stage)));
    ASSERT_TRUE(round);
    play::Results results;
    results.add(play::nameOf(onShortLines), *round);
    for (const progress::Place& place : { headless::kRoundabout, onShortLines }) {
        if (place == onShortLines) {
            controller().book().replace(results);
        }
        controller().sheets().openReplay(play::nameOf(place));
        wait(1.0);
        stop("a way round");
        keys({ "End" });
    }
}

void Tour::openEveryPage()
{
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 6, .stage = 2 });
    lookAway();
    for (const auto& [name, page] : game().game().script().pages) {
        controller().pages().show(name);
        wait(2.0);
        stop(name);
    }
}

void Tour::compareWith(const std::string& name) const
{
    const std::string file = sourceFolder() + "/tests/headless/tours/" + name + ".txt";
    if (std::getenv("VEYRAND_RECORD_TOURS") != nullptr) {
        std::ofstream(file, std::ios::binary) << m_notes;
        return;
    }
    std::ostringstream recorded;
    recorded << std::ifstream(file, std::ios::binary).rdbuf();
    EXPECT_EQ(differenceBetween(recorded.str(), m_notes), "")
        << file << ": if that is meant, record it anew with VEYRAND_RECORD_TOURS=1";
}

} // namespace veyrand::test
