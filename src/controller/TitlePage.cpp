#include "controller/TitlePage.h"

#include "progress/PlayerRecord.h"

#include <array>

namespace veyrand::controller {

namespace {

constexpr double kButtonX = 1.06;
constexpr double kButtonWidth = 0.283;
constexpr double kButtonHeight = 0.122;
constexpr double kBadgeX = 1.4;
constexpr double kBadgeSize = 0.15;
constexpr double kLockSize = 0.119;

struct TitleButton {
    const char* image;
    const char* key;
    double y;
};

constexpr std::array kButtons { TitleButton { "ClassicButton", "button-classicbutton", 0.7 },
    TitleButton { "EndlessButton", "button-endlessbutton", 0.5 },
    TitleButton { "QuitButton", "button-quitbutton", 0.3 } };

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
    for (const TitleButton& button : kButtons) {
        const std::string key = button.key;
        data.fadeInImage(
            button.image, kButtonX, button.y, kButtonWidth, kButtonHeight, 0.0, key + "on");
        data.fadeInImage(std::string(button.image) + "Off", kButtonX, button.y, kButtonWidth,
            kButtonHeight, 1.0, key + "off");
    }
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
