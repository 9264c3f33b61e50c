#include "board/ElementKey.h"
#include "controller/Answers.h"
#include "controller/GameController.h"
#include "controller/Legality.h"
#include "present/CelebrationPictures.h"
#include "present/ExtraPictures.h"
#include "present/FinalePictures.h"
#include "present/FocusPictures.h"

// What stands on the board for as long as the situation is the same.

namespace veyrand::controller {

using input::Cursor;
using present::Extra;
using present::ExtraRect;

void Answers::addRows(std::vector<Extra>& wanted) const
{
    if (!m_shown.inPlay) {
        return;
    }
    std::vector<unsigned> lengths;
    for (const std::string& line : m_shown.lines) {
        lengths.push_back(static_cast<unsigned>(line.size()));
    }
    auto last = static_cast<unsigned>(lengths.size() - 1);
    double share = 1.0;
    if (const std::string doomer = doomedBy(m_shown.thing); !doomer.empty()) {
        const unsigned first = board::rowForDeleteButton(doomer);
        wanted.push_back(present::doomedRows(lengths, first));
        last = first - 1;
        share = present::extras::kLeftLight;
    }
    wanted.push_back(present::rowInPlay(last, share));
    for (unsigned row = 0; row < last; ++row) {
        wanted.push_back(present::restingRow(row, lengths[row]));
    }
}

void Answers::addHands(std::vector<Extra>& wanted) const
{
    if (!m_shown.dragged.empty()) {
        const unsigned row = board::rowForKey(m_shown.dragged);
        const unsigned column = board::columnForKey(m_shown.dragged);
        for (const unsigned target : dropsThatAreMoves(m_controller, row, column)) {
            wanted.push_back(present::targetRing(target, row));
        }
        return;
    }
    if (board::isChipKey(m_shown.held)) {
        if (const auto place = placeOf(m_shown.held)) {
            wanted.push_back(present::heldDown(m_shown.held, *place));
        }
    }
    const auto place = placeOf(m_shown.thing);
    if (!place || !m_shown.inPlay) {
        return;
    }
    const bool isStone = board::isChipKey(m_shown.thing);
    if (isStone || board::isDeleteKey(m_shown.thing)) {
        const Cursor hand = cursor();
        if (hand == Cursor::Pointing || hand == Cursor::Open) {
            wanted.push_back(present::lightUnder(m_shown.thing, *place));
        }
    }
}

// A page's coloured headings are dark, and lie on light plates; a rank has its medal.
void Answers::addPraise(std::vector<Extra>& wanted) const
{
    m_celebration.addTo(wanted);
    const auto* const window = m_controller.messages().messageWindow();
    if (m_shown.page.empty() || window == nullptr) {
        return;
    }
    constexpr double kDark = 0.3;
    for (const board::GameObjectPtr& line : window->text()) {
        const auto* const layer = m_game.layers.gameLayerForGameObject(*line);
        const auto* const text = layer != nullptr ? present::BoardLayers::textOn(*layer) : nullptr;
        const auto place = placeOf(line->keyInGameData().value_or(std::string()));
        if (text != nullptr && place && text->color().red < kDark && text->color().green < kDark) {
            wanted.push_back(present::headingPlate(*line->keyInGameData(), *place));
        }
    }
    if (m_shown.page == "showSuccessMessage") {
        wanted.push_back(present::rays());
        wanted.push_back(present::medalFor(m_game.currentGame.level() - 1));
    } else if (opensMove(m_shown.page)) {
        wanted.push_back(present::rays());
        wanted.push_back(present::moveSeal());
    }
}

// The board is left with its panel and without a puzzle only when none is left.
Answers::Finale Answers::finale() const
{
    if (m_controller.proof() || !m_controller.isPuzzleOnBoard()) {
        return Finale::None;
    }
    return m_controller.messages().page() == "classicGameFinished" ? Finale::Loud : Finale::Quiet;
}

void Answers::addFinale(std::vector<Extra>& wanted) const
{
    if (m_shown.finale == Finale::None) {
        return;
    }
    constexpr unsigned kOneOf = 3; // stones, when it is quiet
    const bool isLoud = m_shown.finale == Finale::Loud;
    for (unsigned number = 0; number < present::kRisingStones; ++number) {
        if (isLoud || number % kOneOf == 0) {
            wanted.push_back(present::risingStone(number));
        }
    }
    if (isLoud) {
        wanted.push_back(present::rays());
        wanted.push_back(present::medalFor(present::kMedals));
        for (int rank = 1; rank < present::kMedals; ++rank) {
            wanted.push_back(present::achievedMedal(rank));
        }
        const std::string words = m_game.texts.text("celebration.finale",
            { { "puzzles", std::int64_t { present::kRisingStones } },
                { "points", m_shown.points } });
        wanted.push_back(present::finaleWords(words, m_game.layers.textMetrics()));
    }
}

void Answers::addWords(std::vector<Extra>& wanted) const
{
    if (!m_shown.whisper.empty()) {
        wanted.push_back(
            present::whisper(m_shown.whisper, m_game.layers.textMetrics(), m_shown.tipSize));
    }
    const auto place = placeOf(m_shown.thing);
    if (!m_shown.isOn || !m_shown.tipIsDue || !place) {
        return;
    }
    std::string text = m_tips.textFor(m_shown.thing);
    if (m_advised == m_shown.thing) {
        text = m_advice;
    }
    if (!text.empty()) {
        Extra tip = present::tipFor(
            m_shown.thing, *place, text, m_game.layers.textMetrics(), m_shown.tipSize);
        // A lesson's note lies below the line, or above it, and is not to be hidden.
        if (board::isChipKey(m_shown.thing) && m_game.view.overlay() == input::Overlay::Note) {
            const unsigned row = board::rowForKey(m_shown.thing);
            const auto length = static_cast<unsigned>(m_shown.lines.at(row).size());
            tip = present::tipBeside(
                std::move(tip), present::placeOfChip(length - 1, row), m_shown.tipSize);
        }
        wanted.push_back(std::move(tip));
    }
}

void Answers::addFocus(std::vector<Extra>& wanted) const
{
    if (m_shown.focus) {
        const input::Stop& stop = *m_shown.focus;
        wanted.push_back(present::focusRing(
            stop.key, { .x = stop.x, .y = stop.y, .width = stop.width, .height = stop.height }));
    }
}

// The delete button whose click would take rows away, if that is what the thing is.
std::string Answers::doomedBy(const std::string& thing) const
{
    if (!board::isDeleteKey(thing)) {
        return {};
    }
    const unsigned row = board::rowForDeleteButton(thing);
    return row > 0 && row < m_shown.lines.size() ? thing : std::string();
}

std::optional<ExtraRect> Answers::placeOf(const std::string& key) const
{
    if (key == kGuideButton) {
        return m_controller.guide().button().rect;
    }
    const auto record = m_game.board.gameData.gameObjects().objectForKey(key);
    if (!record) {
        return std::nullopt;
    }
    ExtraRect place {
        .x = record->x(), .y = record->y(), .width = record->width(), .height = record->height()
    };
    const auto* const layer = m_game.layers.layerForKey(key);
    const auto* const text = layer != nullptr ? present::BoardLayers::textOn(*layer) : nullptr;
    if (text != nullptr && place.width <= 0.0) {
        place.width
            = static_cast<double>(text->bounds().width) / m_game.board.gameData.gameHeight();
        place.height = text->fontSize() / 900.0;
    }
    return place;
}

} // namespace veyrand::controller
