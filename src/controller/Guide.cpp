#include "controller/Guide.h"

#include "controller/GameController.h"
#include "present/ExtraWords.h"

namespace veyrand::controller {

using present::Extra;
using present::SheetDrawing;

namespace {

constexpr double kUntilNextLook = 0.1; // s, while the board moves

// Thousandths of the game's height: beside the par, and at the foot of the panel.
constexpr double kButtonX = 458.0;
constexpr double kButtonY = 600.0;
constexpr int kButtonWidth = 190;
constexpr int kButtonHeight = 60;
constexpr double kPlateX = 288.0;
constexpr double kPlateY = 950.0;
constexpr double kPlateWidth = 560.0;
constexpr double kPlateHeight = 80.0;
constexpr double kShadow = 10.0;

present::ExtraRect rectAt(double x, double y, double width, double height)
{
    return {
        .x = x / 1000.0, .y = 1.0 - y / 1000.0, .width = width / 1000.0, .height = height / 1000.0
    };
}

} // namespace

Guide::Guide(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

bool Guide::isOffered() const
{
    const auto& proof = m_controller.proof();
    return m_controller.practice().isOn() && proof && !proof->lines().empty()
        && !proof->checkSolved();
}

bool Guide::ask()
{
    if (!isOffered()) {
        return false;
    }
    if (!m_controller.practice().givesHints()) {
        if (m_controller.canOpenPage()) {
            m_controller.pages().show("hintsInClassicMessageWindow");
        }
        return true;
    }
    m_isOn = !m_isOn;
    m_advice.reset();
    m_lines.clear();
    if (!m_isOn) {
        m_controller.speaker().tell(text("saysNoMore"));
    }
    look();
    m_controller.answers().handsChanged();
    return true;
}

const std::optional<play::Advice>& Guide::advice()
{
    look();
    return m_advice;
}

// Searching takes a moment, which is not taken from what moves.
void Guide::look()
{
    const auto& proof = m_controller.proof();
    if (!m_isOn || !isOffered() || !m_controller.practice().givesHints()) {
        m_advice.reset();
        m_lines.clear();
        return;
    }
    if (m_advice && m_proof.lock() == proof && m_lines == proof->lines()) {
        return;
    }
    m_advice.reset();
    if (m_game.view.block().blockClick()) {
        return lookLater();
    }
    if (m_proof.lock() != proof) {
        m_proof = proof;
        m_teacher.emplace(proof->goal(), play::openMoves(m_game.currentGame.practice()->open));
    }
    m_lines = proof->lines();
    m_advice = m_teacher->about(m_lines);
    m_controller.speaker().tell(words());
}

void Guide::lookLater()
{
    if (m_looksLater) {
        return;
    }
    m_looksLater = true;
    m_game.runLoop.performAfterDelay(kUntilNextLook, [this] {
        m_looksLater = false;
        m_controller.answers().handsChanged();
    });
}

std::string Guide::text(const char* id, language::Arguments arguments) const
{
    return m_game.texts.text(std::string("guide.") + id, arguments);
}

// From one fixed table.
std::string Guide::words() const
{
    if (!m_advice) {
        return {};
    }
    if (m_advice->moves) {
        return text("needed", { { "moves", std::int64_t { *m_advice->moves } } });
    }
    const auto* const why = [this] {
        switch (m_advice->why) {
        case play::DeadEnd::ColourGone:
            return m_advice->colour == 'Y' ? "goneYellow"
                : m_advice->colour == 'R'  ? "goneRed"
                : m_advice->colour == 'G'  ? "goneGreen"
                                           : "goneBlue";
        case play::DeadEnd::TooFewLines:
            return "tooFewLines";
        case play::DeadEnd::TooLong:
            return "tooLong";
        default:
            return "deadEnd";
        }
    }();
    return text(why) + ' '
        + (m_advice->goodRow == 0
                ? text("backToStart")
                : text("back", { { "line", std::to_string(m_advice->goodRow) } }));
}

bool Guide::showsButton() const
{
    return isOffered() && m_game.view.overlay() == input::Overlay::None
        && progress::readSettings(m_game.preferences).answers;
}

present::SheetPlace Guide::button() const
{
    return { std::string(kGuideButton), text("ask"),
        rectAt(kButtonX, kButtonY, kButtonWidth, kButtonHeight) };
}

std::string Guide::state()
{
    look();
    const bool isLit = m_controller.sheets().hovered() == kGuideButton;
    return (showsButton() ? isLit ? "lit " : "there " : "") + words();
}

// The plate has room for two lines.
double Guide::sizeOf(const std::string& said, double room) const
{
    constexpr double kUsual = 27.0;
    constexpr double kSmaller = 0.96;
    constexpr std::size_t kMostLines = 2;
    double em = kUsual;
    while (present::broken(said, room / em, m_game.layers.textMetrics()).size() > kMostLines) {
        em *= kSmaller;
    }
    return em;
}

void Guide::addTo(std::vector<Extra>& wanted)
{
    if (m_controller.sheets().isOpen()) {
        return;
    }
    constexpr present::ExtraFade kFade { .in = 0.25, .out = 0.12 };
    if (showsButton()) {
        const present::SheetPlace place = button();
        const bool isLit = m_controller.sheets().hovered() == kGuideButton;
        SheetDrawing drawing(m_game.layers.textMetrics(), isLit ? place.key : std::string());
        drawing.button(place.key, place.text, kButtonX, kButtonY, kButtonWidth, kButtonHeight,
            m_isOn ? SheetDrawing::Button::Main : SheetDrawing::Button::Plain);
        wanted.push_back({ .kind = present::ExtraKind::Place,
            .key = place.key,
            .text = place.text,
            .rect = place.rect,
            .pieces = drawing.pieces(),
            .fade = kFade });
    }
    const std::string said = words();
    if (!said.empty() && m_controller.answers().whisper().empty()
        && m_game.view.overlay() == input::Overlay::None) {
        constexpr double kSideRoom = 44.0;
        SheetDrawing drawing(m_game.layers.textMetrics(), {});
        drawing.picture("WhisperPlate-560-80", kPlateX, kPlateY, kPlateWidth + 2.0 * kShadow,
            kPlateHeight + 2.0 * kShadow);
        drawing.paragraph(said, kPlateX, kPlateY, sizeOf(said, kPlateWidth - kSideRoom),
            SheetDrawing::Ink::Ivory, kPlateWidth - kSideRoom);
        wanted.push_back({ .kind = present::ExtraKind::Whisper,
            .key = "guide",
            .text = said,
            .rect = rectAt(kPlateX, kPlateY, kPlateWidth, kPlateHeight),
            .pieces = drawing.pieces(),
            .slot = "guide",
            .fade = kFade });
    }
}

} // namespace veyrand::controller
