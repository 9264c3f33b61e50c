#include "app/Gallery.h"

#include "app/VirtualGame.h"
#include "headless/SheetPictures.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <QDir>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace veyrand::app {

namespace {

constexpr double kEverythingHasFadedIn = 3.0;
constexpr double kNextPuzzleHasCome = 9.0;
constexpr double kLightIsFull = 0.2;
constexpr double kTipHasCome = 1.0;
// After the solving move.
constexpr double kLightIsOnItsWay = 0.8;
constexpr double kPlateStands = 2.4;
constexpr double kStonesAreDust = 4.75;

// Where in the Classic game a page is at home, and the chip that is clicked there before it opens.
struct Scene {
    std::string_view page;
    int level;
    int stage;
    const char* click = nullptr;
};

constexpr int kTitlePage = 0; // instead of a level
constexpr int kLastLevel = 11;

constexpr std::array kScenes {
    Scene { "howToPlayMessageWindow", 1, 1 },
    Scene { "stage1MessageWindow", 1, 1 },
    Scene { "stage1Help", 1, 1 },
    Scene { "stage2MessageWindow", 1, 2 },
    Scene { "stage2aHelp", 1, 2 },
    Scene { "stage2bHelp", 1, 2, "chip-0-0" },
    Scene { "stage2XHelp", 1, 2, "chip-0-0" },
    Scene { "stage3MessageWindow", 1, 3 },
    Scene { "stage3aHelp", 1, 3 },
    Scene { "stage4MessageWindow", 1, 4 },
    Scene { "stage4aHelp", 1, 4 },
    Scene { "stage4bHelp", 1, 4, "chip-0-0" },
    Scene { "stage5MessageWindow", 1, 5 },
    Scene { "stage5aHelp", 1, 5 },
    Scene { "stage5bHelp", 1, 5, "chip-1-0" },
    Scene { "stage6MessageWindow", 1, 6 },
    Scene { "stage6IntermediateMessageWindow", 1, 6 },
    Scene { "stage6IntermediateMessageWindow2", 1, 6 },
    Scene { "stage8MessageWindow", 1, 8 },
    Scene { "stage8aHelp", 1, 8 },
    Scene { "stage9MessageWindow", 1, 9 },
    Scene { "stage10MessageWindow", 1, 10 },
    Scene { "stage11MessageWindow", 2, 1 },
    Scene { "stage21MessageWindow", 3, 1 },
    Scene { "stage31MessageWindow", 4, 1 },
    Scene { "showSuccessMessage", 4, 1 },
    Scene { "stage41MessageWindow", 5, 1 },
    Scene { "stage45MessageWindow", 5, 5 },
    Scene { "takingBackMessageWindow", 6, 2 },
    Scene { "keysMessageWindow", 6, 2 },
    Scene { "practiceMessageWindow", 6, 2 },
    Scene { "dailyMessageWindow", 6, 2 },
    Scene { "editorMessageWindow", 6, 2 },
    Scene { "statisticsMessageWindow", 6, 2 },
    Scene { "replayMessageWindow", 6, 2 },
    Scene { "guideMessageWindow", 6, 2 },
    Scene { "settingsMessageWindow", 6, 2 },
    Scene { "byEarMessageWindow", 6, 2 },
    Scene { "allMovesMessageWindow", 3, 2 },
    Scene { "hintsInClassicMessageWindow", 3, 2 },
    Scene { "classicGameFinished", kLastLevel, 10, "chip-1-0" },
    Scene { "endlessGameLockedMessage", kTitlePage, 0 },
};
constexpr Scene kUsualScene { {}, 6, 2 };

struct SavedGames {
    const char* picture;
    int level;
    int stage;
    int endlessScore;
    bool unlocked;
};
constexpr std::array kTitlePages {
    SavedGames { "title-nothing-saved", 1, 1, 0, false },
    SavedGames { "title-endless-saved", 1, 1, 120, true },
    SavedGames { "title-classic-saved", 5, 7, 0, true },
    SavedGames { "title-both-saved", 5, 7, 120, true },
};

// Goes from picture to picture in one game, by the operations that a player's clicks would reach.
class Gallery {
public:
    // Nothing is painted without a folder.
    Gallery(const PageToShow& wanted, std::optional<QDir> folder)
        : m_game({ .screen = { .width = static_cast<double>(wanted.size.width()),
                       .height = static_cast<double>(wanted.size.height()) },
            .window = wanted.size,
            .preferences = { .values = {},
                .records = { { std::string(progress::kSettingsKey),
                    { { "Language", wanted.language } } } } },
            .dataFolder = wanted.dataFolder,
            .languagesFolder = wanted.languagesFolder })
        , m_folder(std::move(folder))
    {
    }

    // What is wrong with the pages; empty when nothing is.
    [[nodiscard]] std::string fault()
    {
        return m_game.game().script().errors + m_game.game().texts().englishFaults();
    }

    bool paint()
    {
        for (const SavedGames& games : kTitlePages) {
            paintTitlePage(games);
        }
        controller::GameFlow& flow = m_game.controller().flow();
        paintDialogue("dialogue-classic", [&flow] { flow.newClassicGame(); });
        paintDialogue("dialogue-endless", [&flow] { flow.newEndlessGame(); });
        for (const auto& [name, page] : m_game.game().script().pages) {
            paintPage(name);
        }
        startClassicGame(5, 7);
        m_game.wait(kEverythingHasFadedIn);
        take("board-classic");
        flow.newEndlessGame();
        flow.startEndlessGame();
        m_game.wait(kEverythingHasFadedIn);
        take("board-endless");
        paintHandsOn();
        paintAnswers();
        paintRewards();
        paintEdges();
        paintSheets();
        paintOtherStones();
        return m_complete;
    }

    // Of what has been painted, or would have been.
    [[nodiscard]] const std::vector<std::string>& names() const { return m_names; }

    ShownPage shown(const std::string& name)
    {
        ShownPage shown;
        if (m_game.game().script().pages.contains(name)) {
            openPage(name);
            shown.picture = m_game.picture();
        }
        shown.faults = QString::fromStdString(fault() + m_game.game().texts().faults());
        return shown;
    }

private:
    void take(const std::string& name)
    {
        m_names.push_back(name);
        if (!m_folder) {
            return;
        }
        const QString file
            = m_folder->filePath(QString::fromStdString(name) + QStringLiteral(".png"));
        const bool written = m_game.picture().save(file);
        m_complete = m_complete && written;
        QTextStream(stdout) << (written ? file : file + QStringLiteral(" could not be written"))
                            << Qt::endl;
    }

    void save(const SavedGames& games)
    {
        m_game.preferences().setRecord(progress::playerRecordKey(progress::kDefaultPlayerName),
            progress::storedRecord({ .level = games.level,
                .stage = games.stage,
                .score = 850,
                .endlessScore = games.endlessScore }));
        progress::setEndlessGameUnlocked(m_game.preferences(), games.unlocked);
    }

    void paintTitlePage(const SavedGames& games)
    {
        save(games);
        m_game.launch();
        m_game.controller().flow().returnToMenu();
        m_game.wait(kEverythingHasFadedIn);
        take(games.picture);
    }

    template <class Function> void paintDialogue(const std::string& name, Function&& ask)
    {
        save(kTitlePages.back());
        m_game.controller().flow().returnToMenu();
        ask();
        m_game.wait(kEverythingHasFadedIn);
        take(name);
        m_game.controller().dialogues().dismiss();
    }

    void startClassicGame(int level, int stage)
    {
        save(
            { .picture = "", .level = level, .stage = stage, .endlessScore = 0, .unlocked = true });
        m_game.controller().flow().startClassicGame();
        m_game.controller().messages().dismiss();
    }

    // A lit button, the same pressed, a drag in the air over the chip it may fall on, and a chip
    // that glows.
    void paintHandsOn()
    {
        m_game.play({ .root = "YRRRGB", .goal = "YGRRB", .par = 3, .level = 5, .stage = 2 });
        m_game.wait(kEverythingHasFadedIn);
        pointAt("button-movesbuttonoff");
        m_game.wait(kEverythingHasFadedIn);
        take("board-pointed-at");
        if (const auto button = m_game.centreOf("button-movesbuttonoff")) {
            m_game.press(*button);
            take("board-pressed");
            m_game.release({ .x = 1.2, .y = 0.5 });
        }
        m_game.wait(kEverythingHasFadedIn);
        const auto from = m_game.centreOf("chip-1-0");
        const auto onto = m_game.centreOf("chip-3-0");
        if (from && onto) {
            m_game.press(*from);
            m_game.move({ .x = onto->x - 0.02, .y = onto->y - 0.02 });
            m_game.wait(kEverythingHasFadedIn);
            take("board-dragging");
            m_game.release(*onto);
            m_game.wait(kEverythingHasFadedIn);
        }
    }

    // What the board answers: stones under the pointer, held and lifted, what a delete button would
    // take away, and every refusal with its reason in words.
    void paintAnswers()
    {
        m_game.menu().trigger(QStringLiteral("Say Why"));
        m_game.play({ .root = "YRRRGB", .goal = "YB", .par = 3, .level = 5, .stage = 2 });
        click("chip-0-0");
        m_game.wait(kEverythingHasFadedIn);
        pointAt("chip-0-1");
        m_game.wait(kLightIsFull);
        take("answer-pointed-at");
        pressOn("chip-1-1");
        m_game.wait(kLightIsFull);
        take("answer-held");
        m_game.release(*m_game.centreOf("chip-1-1"));
        m_game.wait(kEverythingHasFadedIn);
        refuse("chip-1-0", "answer-not-the-last-line");
        pointAt("delete-1");
        m_game.wait(kTipHasCome);
        take("answer-delete");
        m_game.play({ .root = "YRGRGRGR", .goal = "YB", .par = 3, .level = 5, .stage = 2 });
        m_game.wait(kEverythingHasFadedIn);
        refuse("chip-0-0", "answer-line-too-long");
        pointAt("counter-par");
        m_game.wait(kTipHasCome);
        take("answer-tip");
        pointAt("chip-1-0");
        m_game.wait(kTipHasCome);
        take("answer-tip-of-a-chip");
        fillBoard();
        refuse("chip-1-11", "answer-board-full");
        m_game.menu().trigger(QStringLiteral("Say Why"));
    }

    // Twelve lines of which none is the goal: the thirteenth would have to be.
    void fillBoard()
    {
        struct Gesture {
            const char* from = nullptr;
            const char* to = nullptr; // none: a click
        };
        constexpr std::array kGestures {
            Gesture { "chip-1-0", "chip-3-0" },
            Gesture { "chip-2-1", "chip-4-1" },
            Gesture { "chip-3-2", "chip-5-2" },
            Gesture { "chip-1-3", "chip-2-3" },
            Gesture { "chip-3-4" },
            Gesture { "chip-0-5" },
            Gesture { "chip-4-6" },
            Gesture { "chip-0-7", "chip-2-7" },
            Gesture { "chip-2-8", "chip-4-8" },
            Gesture { "chip-4-9", "chip-6-9" },
            Gesture { "chip-6-10", "chip-8-10" },
        };
        m_game.play({ .root = "YRRRRRRRRRRR", .goal = "YB", .par = 3, .level = 5, .stage = 2 });
        m_game.wait(kEverythingHasFadedIn);
        for (const Gesture& gesture : kGestures) {
            pressOn(gesture.from);
            if (const auto to
                = m_game.centreOf(gesture.to != nullptr ? gesture.to : gesture.from)) {
                m_game.release(*to);
            }
            m_game.wait(kEverythingHasFadedIn);
        }
    }

    // A puzzle is solved: light runs along the line, a plate says what it brought, the stones
    // become dust. After the last puzzle of all, stones rise, also when the page has gone.
    void paintRewards()
    {
        m_game.play({ .root = "YR", .goal = "YRG", .par = 2, .level = 5, .stage = 2 });
        m_game.wait(kEverythingHasFadedIn);
        click("chip-1-0");
        m_game.wait(kLightIsOnItsWay);
        take("reward-light");
        m_game.wait(kPlateStands - kLightIsOnItsWay);
        take("reward-plate");
        m_game.wait(kStonesAreDust - kPlateStands);
        take("reward-dust");
        m_game.wait(kNextPuzzleHasCome);
        m_game.play({ .root = "YR", .goal = "YRG", .par = 2, .level = kLastLevel, .stage = 10 });
        m_game.wait(kEverythingHasFadedIn);
        click("chip-1-0");
        m_game.wait(2 * kNextPuzzleHasCome);
        take("reward-finale");
        m_game.controller().closePage();
        m_game.wait(kEverythingHasFadedIn);
        take("reward-finale-goes-on");
        m_game.controller().flow().returnToMenu();
    }

    // Windows of other shapes, with wood to their edges.
    void paintEdges()
    {
        const QSize usual = m_game.widget().size();
        m_game.menu().trigger(QStringLiteral("Wood to the Edges"));
        m_game.play({ .root = "YRRRGB", .goal = "YGRRB", .par = 3, .level = 5, .stage = 2 });
        m_game.wait(kEverythingHasFadedIn);
        m_game.resize({ usual.height() * 2, usual.height() });
        take("edges-wide");
        m_game.resize({ usual.width(), usual.width() });
        take("edges-tall");
        m_game.menu().trigger(QStringLiteral("Wood to the Edges"));
        m_game.resize(usual);
    }

    // The pages that lie over the board, at the pictures' size; and once more at four others, by
    // whose names they go.
    void paintSheets()
    {
        m_game.launch();
        const auto takes = [this](const std::string& name) { take(name); };
        headless::showSheets(m_game.headless(), takes);
        headless::showSheetsAtTheirEnds(m_game.headless(), takes);
        const QSize usual = m_game.widget().size();
        for (const QSize size :
            { QSize(1024, 768), QSize(1280, 800), QSize(1920, 1080), QSize(3840, 2160) }) {
            m_game.resize(size);
            const std::string suffix
                = '-' + std::to_string(size.width()) + 'x' + std::to_string(size.height());
            headless::showSheets(
                m_game.headless(), [&](const std::string& name) { take(name + suffix); });
        }
        m_game.resize(usual);
    }

    void click(const std::string& key)
    {
        if (const auto place = m_game.centreOf(key)) {
            m_game.click(*place);
        }
    }

    void pressOn(const std::string& key)
    {
        if (const auto place = m_game.centreOf(key)) {
            m_game.press(*place);
        }
    }

    // At the crest of what the refusal lights up.
    void refuse(const std::string& key, const std::string& picture)
    {
        click(key);
        constexpr double kCrest = 0.1;
        m_game.wait(kCrest);
        take(picture);
        m_game.wait(kEverythingHasFadedIn);
    }

    // A puzzle on the board and a page with stones, drawn in each of the other ways.
    void paintOtherStones()
    {
        using Chips = progress::Settings::Chips;
        for (const auto& [chips, name] :
            { std::pair(Chips::Contrast, "contrast"), std::pair(Chips::Letters, "letters"),
                std::pair(Chips::Patterns, "patterns"), std::pair(Chips::Pictures, "") }) {
            progress::Settings settings = progress::readSettings(m_game.preferences());
            settings.chips = chips;
            progress::writeSettings(m_game.preferences(), settings);
            m_game.controller().settingsChanged();
            if (chips == Chips::Pictures) {
                continue; // as it was
            }
            m_game.play({ .root = "YRRRGB", .goal = "YGRRB", .par = 3, .level = 5, .stage = 2 });
            m_game.wait(kEverythingHasFadedIn);
            take(std::string("chips-") + name);
            m_game.controller().pages().show("movesMessageWindow");
            m_game.wait(kEverythingHasFadedIn);
            take(std::string("chips-page-") + name);
            m_game.controller().messages().dismiss();
        }
    }

    void pointAt(const char* key)
    {
        if (const auto place = m_game.centreOf(key)) {
            m_game.move(*place);
        }
    }

    void setTheScene(const Scene& scene)
    {
        if (scene.level == kTitlePage) {
            save(kTitlePages.front());
            m_game.controller().flow().returnToMenu();
        } else if (scene.level == kLastLevel) {
            // Any puzzle ends the game when it is the last one.
            m_game.play(
                { .root = "YR", .goal = "YRG", .par = 2, .level = kLastLevel, .stage = 10 });
        } else {
            startClassicGame(scene.level, scene.stage);
        }
        m_game.wait(kEverythingHasFadedIn);
    }

    void openPage(const std::string& name)
    {
        const auto* const found = std::find_if(kScenes.begin(), kScenes.end(),
            [&name](const Scene& scene) { return scene.page == name; });
        const Scene& scene = found != kScenes.end() ? *found : kUsualScene;
        setTheScene(scene);
        if (scene.click != nullptr) {
            click(scene.click);
            m_game.wait(kNextPuzzleHasCome);
            m_game.controller().messages().dismiss(); // what the click may have brought
        }
        progress::setEndlessGameUnlocked(m_game.preferences(), false);
        m_game.controller().pages().show(name);
        m_game.wait(kEverythingHasFadedIn);
    }

    void paintPage(const std::string& name)
    {
        openPage(name);
        take(name);
    }

    VirtualGame m_game;
    std::optional<QDir> m_folder;
    std::vector<std::string> m_names;
    bool m_complete = true;
};

} // namespace

int paintGallery(const QString& dataFolder, const QString& pictureFolder, QSize size,
    const std::string& language)
{
    if (!QDir().mkpath(pictureFolder)) {
        QTextStream(stderr) << "The folder " << pictureFolder << " cannot be made" << Qt::endl;
        return 1;
    }
    Gallery gallery({ .dataFolder = dataFolder, .language = language, .page = {}, .size = size },
        QDir(pictureFolder));
    if (const std::string fault = gallery.fault(); !fault.empty()) {
        QTextStream(stderr) << "The pages cannot be painted: " << dataFolder << '/'
                            << QString::fromStdString(fault) << Qt::endl;
        return 1;
    }
    return gallery.paint() ? 0 : 1;
}

std::vector<std::string> namesOfGallery(const QString& dataFolder)
{
    Gallery gallery(
        { .dataFolder = dataFolder, .language = "en", .page = {}, .size = { 1440, 900 } }, {});
    gallery.paint();
    return gallery.names();
}

ShownPage pictureOfPage(const PageToShow& wanted)
{
    return Gallery(wanted, {}).shown(wanted.page);
}

} // namespace veyrand::app
