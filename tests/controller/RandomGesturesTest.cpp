#include "support/PlayedGame.h"

#include <algorithm>

namespace veyrand::controller {

namespace {

constexpr int kGestures = 10'000;
constexpr int kGesturesPerGame = 25;
constexpr unsigned kMostLines = 13;
constexpr std::size_t kMostChips = 12;

// Plays without sense or mercy, through real mouse events, and looks after every gesture whether
// what must always hold still does.
class RandomGestures : public test::PlayedGame {
protected:
    unsigned below(std::size_t bound) { return m_random.next() % static_cast<unsigned>(bound); }
    // True once in so many times.
    bool onceIn(unsigned times) { return below(times) == 0; }
    template <class T> const T& any(const std::vector<T>& from) { return from[below(from.size())]; }

    std::string randomLine(std::string_view letters, std::size_t longest)
    {
        std::string line = "Y";
        for (std::size_t length = 1 + below(longest); line.size() < length;) {
            line += letters[below(letters.size())];
        }
        return line;
    }
    void startPuzzle();
    void gesture();
    // One that may well be a move: a click on the yellow or the last chip, or a drag that is
    // offered.
    void sensibleGesture();
    // What holds at any moment.
    void checkAlways();
    // What holds once every animation is over.
    void checkAtRest();
    void checkChip(const std::string& key, unsigned row, unsigned column, char letter);

private:
    std::string anyKey();
    platform::Point anyPlace();

    platform::SeededRandom m_random { 1 };
};

void RandomGestures::startPuzzle()
{
    // Often a goal that one move reaches, so that puzzles get solved as well.
    const std::string root = randomLine(onceIn(2) ? "RGB" : "RRRGGGB", kMostChips);
    const std::string doubled = root + root.substr(1);
    const std::string goal
        = onceIn(2) ? randomLine("RGB", kMostChips) : (onceIn(2) ? doubled : root + "G");
    play(at(1 + static_cast<int>(below(11)), 1 + static_cast<int>(below(10)), root, goal));
}

std::string RandomGestures::anyKey()
{
    // The last line's chips most of the time: what else there is cannot be played.
    if (!lines().empty() && !onceIn(5)) {
        const auto row = lines().size() - 1;
        return "chip-" + std::to_string(below(lines()[row].size())) + '-' + std::to_string(row);
    }
    const auto deletes = test::keysFrom(table(), "delete-");
    if (!deletes.empty() && onceIn(2)) {
        return any(deletes);
    }
    return table().keys().empty() ? std::string() : any(table().keys());
}

platform::Point RandomGestures::anyPlace()
{
    const auto place = game().centreOf(anyKey());
    if (!place || onceIn(50)) {
        return { .x = below(1600) / 1000.0, .y = below(1000) / 1000.0 };
    }
    // Anywhere on a chip, not only in its middle.
    return { .x = place->x + (below(60) / 1000.0 - 0.03),
        .y = place->y + (below(60) / 1000.0 - 0.03) };
}

void RandomGestures::sensibleGesture()
{
    const auto row = static_cast<unsigned>(lines().size() - 1);
    const std::string line = lines().back();
    const auto place = [&](std::size_t column) {
        return game()
            .centreOf(board::generateKeyChipKey(static_cast<unsigned>(column), row))
            .value_or(platform::Point {});
    };
    const unsigned from = below(line.size());
    const auto targets = game().controller().areasToTrack(row, from);
    if (targets && !targets->empty()) {
        game().press(place(from));
        game().release(place(any(*targets)));
    } else if (onceIn(2)) {
        game().click(place(line.size() - 1));
    } else {
        game().click(place(std::min(line.find('Y'), line.size() - 1)));
    }
}

void RandomGestures::gesture()
{
    if (!lines().empty() && onceIn(3)) {
        sensibleGesture();
        return;
    }
    const platform::Point from = anyPlace();
    switch (below(8)) {
    case 0:
        game().move(from);
        break;
    case 1:
    case 2:
    case 3:
        game().press(from);
        wait(onceIn(10) ? 0.3 : 0.0);
        game().release(from);
        break;
    default:
        game().press(from);
        game().move(anyPlace());
        wait(onceIn(10) ? 0.3 : 0.0);
        game().release(anyPlace());
        break;
    }
}

void RandomGestures::checkAlways()
{
    const auto now = lines();
    EXPECT_LE(now.size(), kMostLines);
    for (const std::string& line : now) {
        EXPECT_LE(line.size(), kMostChips) << line;
    }
    std::map<std::string, int> layers;
    for (const auto& layer : game().game().layers().backgroundLayer().sublayers()) {
        if (const auto* const mirror = dynamic_cast<const present::GameObjectLayer*>(layer.get())) {
            ++layers[mirror->gameObjectKey()];
        }
    }
    for (const auto& [key, count] : layers) {
        EXPECT_EQ(count, 1) << "layers of " << key;
    }
    EXPECT_EQ(layers.size(), table().keys().size());
    for (const std::string& key : table().keys()) {
        EXPECT_EQ(layers.count(key), 1U) << "no layer for " << key;
        EXPECT_EQ(object(key)->keyInGameData(), key);
    }
}

void RandomGestures::checkAtRest()
{
    const auto now = lines();
    std::size_t chips = 0;
    for (unsigned row = 0; row < now.size(); ++row) {
        for (unsigned column = 0; column < now[row].size(); ++column) {
            checkChip(board::generateKeyChipKey(column, row), row, column, now[row][column]);
        }
        chips += now[row].size();
        EXPECT_EQ(table().contains(board::deleteButtonKey(row)), row > 0) << row;
    }
    EXPECT_EQ(test::keysFrom(table(), "chip-").size(), chips) << "stray chips";
    EXPECT_EQ(test::keysFrom(table(), "delete-").size(), now.empty() ? 0U : now.size() - 1);
    EXPECT_FALSE(table().contains("temporaryGreen"));
    EXPECT_TRUE(dragImages().empty());
    EXPECT_FALSE(blocked());
}

void RandomGestures::checkChip(const std::string& key, unsigned row, unsigned column, char letter)
{
    const auto chip = object(key);
    ASSERT_NE(chip, nullptr) << key;
    EXPECT_EQ(test::letterOfImage(chip->imageName()), letter) << key;
    EXPECT_EQ(chip->x(), board::xPositionForColumn(column)) << key;
    EXPECT_EQ(chip->y(), board::yPositionForRow(row)) << key;
    const auto* const shown = layer(key);
    EXPECT_FLOAT_EQ(shown->shownPosition().x, static_cast<float>(chip->x() * 900.0)) << key;
    EXPECT_FLOAT_EQ(shown->shownPosition().y, static_cast<float>(chip->y() * 900.0)) << key;
    EXPECT_FLOAT_EQ(shown->shownBounds().width, 67.5F) << key;
    EXPECT_EQ(shown->shownOpacity(), 1.0F) << key;
    EXPECT_EQ(shown->glow(), 0.0F) << key;
}

} // namespace

TEST_F(RandomGestures, NeverBreakTheBoard)
{
    int moves = 0;
    int solved = 0;
    double restAt = 0.0; // when everything that was begun is over
    for (int count = 0; count < kGestures && !HasFailure(); ++count) {
        SCOPED_TRACE("gesture " + std::to_string(count));
        if (count % kGesturesPerGame == 0 || game().controller().proof() == nullptr) {
            wait(10.0); // what the last game still had to do
            startPuzzle();
        }
        const auto before = lines().size();
        gesture();
        checkAlways();
        moves += lines().size() > before ? 1 : 0;
        const auto heard = sounds();
        const bool celebrated = std::count(heard.begin(), heard.end(), "CymbalRoll") > 0;
        solved += celebrated ? 1 : 0;
        restAt = std::max(restAt, game().runLoop().now() + (celebrated ? 8.0 : 3.0));
        if (onceIn(4)) {
            wait(below(20) / 10.0); // the next gesture comes in the middle of things
            checkAlways();
        } else {
            wait(std::max(0.0, restAt - game().runLoop().now()));
            checkAtRest();
        }
    }
    // Enough happened for the checks to mean something.
    EXPECT_GT(moves, kGestures / 20);
    EXPECT_GT(solved, 10);
    RecordProperty("moves", moves);
    RecordProperty("solved", solved);
}

} // namespace veyrand::controller
