#include "controller/TitlePage.h"

#include "board/Buttons.h"
#include "progress/PlayerRecord.h"

namespace veyrand::controller {

namespace {

constexpr double kBadgeX = 1.4;
constexpr double kBadgeSize = 0.15;
constexpr double kLockSize = 0.119;

} // namespace

void TitlePage::createTitleAndStartButtons()
{
    board::GameData& data = m_game.board.gameData;
    data.fadeInImage("Veyrand Title", 0.28, 0.5, 0.25, 0.85, 1.0, "label-veyrand");

    // The codes are tested as they stand, though 5 says "Classic only" and 2 "both": saved games
    // and their badges have been counted this way from the start.
    const int ongoing = flagOngoingGames();
    if (!progress::isEndlessGameUnlocked(m_game.preferences)) {
        data.fadeInImage(
            "Lock", kBadgeX, 0.5, kLockSize, kLockSize, 1.0, "label-endlessgamelocked");
    } else if (ongoing == 3 || ongoing == 5) {
        data.fadeInImage(
            "SaveGameBadge", kBadgeX, 0.5, kBadgeSize, kBadgeSize, 1.0, "label-endlesssavegame");
    }
    if (ongoing == 2 || ongoing == 5) {
        data.fadeInImage(
            "SaveGameBadge", kBadgeX, 0.7, kBadgeSize, kBadgeSize, 1.0, "label-classicsavegame");
    }

    // The lit face first: it lies in front, and is the one that is hit.
    board::forEachButton(board::ButtonScreen::TitlePage, [&data](const board::Button& button) {
        data.fadeInImage(button.picture, button.x, button.y, button.width, button.height, 0.0,
            std::string(button.litKey));
        data.fadeInImage(board::uncolouredPicture(button), button.x, button.y, button.width,
            button.height, 1.0, std::string(button.key));
    });
    m_game.view.hover().establishTitlePagButtonTracking();
}

int TitlePage::flagOngoingGames() const
{
    const progress::PlayerRecord record = progress::readPlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences));
    const bool nothingSaved
        = record.stage == record.level && (record.stage == 0 || record.stage == 1);
    const bool endless = record.endlessScore != 0;
    if (nothingSaved) {
        return endless ? 0 : 3;
    }
    return endless ? 2 : 5;
}

} // namespace veyrand::controller
