#include "faults/Visit.h"

#include "board/Buttons.h"
#include "engine/HintHelper.h"
#include "play/Decide.h"
#include "progress/Misunderstood.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/CachedResources.h"

#include <array>
#include <filesystem>

namespace veyrand::test {

namespace {

constexpr int kLevel = 2;
constexpr int kStage = 4;
constexpr int kPoints = 310;
constexpr double kRest = 10.0; // seconds
constexpr double kMiddle = 0.25; // of an animation

QString preferencesIn(const std::string& folder)
{
    return QString::fromStdString(folder + "/config/preferences.json");
}

} // namespace

void Visit::prepare(const std::string& folder)
{
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder + "/config");
    desktop::qt::FilePreferences preferences(preferencesIn(folder));
    preferences.registerDefaults(progress::registeredDefaults());
    progress::updatePlayerRecord(preferences, progress::kDefaultPlayerName,
        { .level = kLevel, .stage = kStage, .score = kPoints, .firstHintClick = true });
    preferences.setValue("Name", std::string("Ada")); // so that there is a copy from before
}

Visit::Visit(const std::string& folder)
    : m_preferences(preferencesIn(folder), progress::misunderstood)
    , m_journal(m_disk, folder + "/state", desktop::posix::FileJournal::Syncing::WhenDrained)
{
    m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
        .store = &m_preferences, .resources = &cachedResources(), .journal = &m_journal });
    m_game->launch();
    m_preferences.setReporter(
        [this](const QString& message) { m_told.push_back(message.toStdString()); });
    auto& kept = m_game->controller().kept();
    kept.setRecordTest([this] { return m_preferences.isSaved(); });
    kept.setReporter([this](const std::string& message) { m_told.push_back(message); });
}

const char* Visit::nameOf(int step)
{
    static constexpr std::array kNames { "begin", "move", "undo", "redo", "remove", "hint",
        "second hint", "go to the title", "go on", "solve" };
    return kNames.at(static_cast<std::size_t>(step));
}

void Visit::step(int number, double asleep)
{
    auto& controller = m_game->controller();
    controller.messages().dismiss();
    const unsigned row = controller.lineCount() > 0 ? controller.lineCount() - 1 : 0;
    switch (number) {
    case 0:
    case 8:
        controller.flow().startClassicGame();
        break;
    case 1:
        controller.moves().mouseDrag(row, 1, row, 3);
        break;
    case 2:
        m_game->key("Ctrl+Z");
        break;
    case 3:
        m_game->key("Ctrl+Shift+Z");
        break;
    case 4:
        controller.deleteClick(1);
        break;
    case 5:
    case 6:
        controller.buttonClick(std::string(board::buttonFor(board::ButtonAction::Hint).litKey));
        break;
    case 7:
        controller.flow().returnToMenu();
        break;
    default:
        solve();
    }
    if (asleep > 0.0) {
        m_game->wait(kMiddle);
        m_game->wait(asleep);
    }
    m_game->wait(kRest);
}

void Visit::solve()
{
    auto& controller = m_game->controller();
    for (const auto proof = controller.proof(); controller.proof() == proof; m_game->wait(kRest)) {
        controller.messages().dismiss();
        const auto gesture
            = play::gestureFor({ .lines = proof->lines(), .goal = proof->goal(), .open = 7 },
                engine::HintHelper(proof).nextTheorem().value().theorem());
        if (const auto* const drag = std::get_if<play::Drag>(&gesture.value())) {
            controller.moves().mouseDrag(drag->fromRow, drag->from, drag->toRow, drag->to);
        } else {
            const auto& click = std::get<play::Click>(*gesture);
            controller.moves().mouseClick(click.row, click.column);
        }
    }
}

void Visit::end()
{
    if (const std::string words = m_game->controller().kept().lastWords(); !words.empty()) {
        m_told.push_back(words);
    }
    m_game->controller().applicationWillTerminate([] {});
    if (const QString trouble = m_preferences.saveWhatFailed(); !trouble.isEmpty()) {
        m_told.push_back(trouble.toStdString());
    }
}

std::uint64_t Visit::hash()
{
    if (const play::Session* const session = m_game->controller().flow().session()) {
        return session->settled().hash();
    }
    const play::Replay* const kept = m_game->controller().kept().keptOf(progress::Mode::Classic);
    return kept != nullptr ? kept->hash() : 0;
}

std::string Visit::standing()
{
    const auto record
        = progress::readPlayerRecord(m_preferences, progress::currentPlayer(m_preferences));
    return std::to_string(record.level) + '-' + std::to_string(record.stage) + ' '
        + std::to_string(record.score);
}

} // namespace veyrand::test
