#include "headless/SheetPictures.h"

#include "headless/GalleryResults.h"
#include "headless/HeadlessGame.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <cstdint>

namespace veyrand::headless {

namespace {

constexpr double kEverythingHasFadedIn = 3.0;

// Opens the pages on a game and has their pictures taken.
class SheetShow {
public:
    SheetShow(HeadlessGame& game, const TakePicture& take)
        : m_game(game)
        , m_controller(game.controller())
        , m_sheets(game.controller().sheets())
        , m_take(take)
    {
    }

    void asPlayer(const Career& career)
    {
        m_sheets.close();
        m_controller.flow().returnToMenu();
        m_game.preferences().setRecord(progress::playerRecordKey(progress::kDefaultPlayerName),
            progress::storedRecord({ .level = career.standing.level,
                .stage = career.standing.stage,
                .score = 850,
                .firstHintClick = true }));
        m_controller.book().replace(resultsToShow(m_controller, career));
        m_controller.shelf().replace({});
    }

    void map(const char* picture)
    {
        m_sheets.openMap();
        show(picture);
    }

    void replay()
    {
        m_sheets.openMap();
        m_sheets.openReplay(play::nameOf(kRoundabout));
        m_sheets.key("Right");
        m_sheets.key("Right");
        show("sheet-replay");
        m_sheets.key("PgDown");
        m_sheets.key("End");
        show("sheet-replay-shortest");
    }

    void longReplay()
    {
        const progress::Place place { 5, 9 };
        const auto* const entry = m_controller.practice().entryAt(place);
        if (entry == nullptr) {
            return;
        }
        play::Results results;
        results.add(play::nameOf(place), longSolution({ entry->root, entry->goal }));
        m_controller.book().replace(results);
        m_sheets.openReplay(play::nameOf(place));
        m_sheets.key("End");
        show("sheet-replay-long");
    }

    void daily(const char* picture)
    {
        m_sheets.openDaily();
        show(picture);
    }

    // The month before, and a day that was missed.
    void dailyOfAnotherMonth()
    {
        m_sheets.openDaily();
        m_sheets.key("PgUp");
        show("sheet-daily-another-month");
    }

    void editor(const char* picture, const play::CodedPuzzle& draft)
    {
        m_controller.shelf().setDraft(draft);
        m_sheets.openEditor();
        show(picture);
    }

    // A press that came to nothing says why.
    void editorRefuses()
    {
        m_sheets.choose("start-0");
        show("sheet-editor-refuses");
    }

    void mine(const char* picture, int count)
    {
        for (std::int64_t number = 0; number < count; ++number) {
            const auto date = progress::daysAfter(m_controller.book().today(), -2 * number);
            if (const auto* const puzzle = m_controller.practice().daily().on(date)) {
                m_controller.shelf().add(play::codeOf(puzzle->root, puzzle->goal).value());
            }
        }
        m_sheets.openMine();
        show(picture);
    }

    void name()
    {
        m_sheets.openMine();
        m_sheets.key("F2");
        show("sheet-my-puzzles-name");
        m_sheets.escape();
    }

    void statistics(const char* picture)
    {
        m_sheets.openStatistics();
        show(picture);
    }

    void timed()
    {
        progress::Settings settings = progress::readSettings(m_game.preferences());
        settings.timePuzzles = true;
        progress::writeSettings(m_game.preferences(), settings);
        statistics("sheet-statistics-timed");
        m_sheets.openMap();
        m_sheets.focusOn("puzzle-" + play::nameOf(kRoundabout));
        show("sheet-map-timed");
        settings.timePuzzles = false;
        progress::writeSettings(m_game.preferences(), settings);
    }

    void guide()
    {
        m_sheets.close();
        static_cast<void>(m_controller.practice().play(kRoundabout));
        m_game.wait(kEverythingHasFadedIn);
        m_controller.guide().ask();
        show("guide-moves-needed");
        m_controller.guide().ask(); // which makes it silent again, for whoever shows it once more
        m_controller.flow().returnToMenu();
        m_sheets.close();
    }

private:
    void show(const std::string& picture)
    {
        m_game.wait(kEverythingHasFadedIn);
        m_take(picture);
    }

    HeadlessGame& m_game;
    controller::GameController& m_controller;
    controller::Sheets& m_sheets;
    const TakePicture& m_take;
};

} // namespace

void showSheets(HeadlessGame& game, const TakePicture& take)
{
    SheetShow show(game, take);
    show.asPlayer({});
    show.map("sheet-map");
    show.replay();
    show.daily("sheet-daily");
    show.editor("sheet-editor", { "YBRGG", "RBBR" });
    show.mine("sheet-my-puzzles", 3);
    show.statistics("sheet-statistics");
    show.guide();
}

void showSheetsAtTheirEnds(HeadlessGame& game, const TakePicture& take)
{
    SheetShow show(game, take);
    show.asPlayer({ .standing = {}, .daysInARow = 0 });
    show.map("sheet-map-at-first");
    show.daily("sheet-daily-at-first");
    show.editor("sheet-editor-at-first", {});
    show.mine("sheet-my-puzzles-none", 0);
    show.statistics("sheet-statistics-at-first");
    show.editor("sheet-editor-unreachable", { "YRRRRRRRRRRR", "BBBBBBBBBBBB" });
    show.editorRefuses();
    show.editor("sheet-editor-full", { "YRGBRGBRGBRG", "YRGBRGBRGBRG" });

    show.asPlayer({ .standing = { progress::kLastLevel, progress::kLastStage },
        .isOver = true,
        .daysInARow = 40 });
    show.map("sheet-map-all-solved");
    show.daily("sheet-daily-forty-days");
    show.dailyOfAnotherMonth();
    show.mine("sheet-my-puzzles-many", 30);
    show.name();
    show.statistics("sheet-statistics-all-solved");
    show.timed();
    show.longReplay();
    show.asPlayer({});
}

} // namespace veyrand::headless
