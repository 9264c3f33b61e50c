#include "board/ElementKey.h"
#include "board/Times.h"
#include "input/GameView.h"

#include <algorithm>

// The chip in the hand: dragged, or lifted and carried without a button held.

namespace veyrand::input {

namespace times = board::times;
using board::ElementKey;

namespace {

constexpr float kDraggedOpacity = 0.5F;

// Points: how large a chip under a finger is at least, and how far above the finger.
constexpr double kLeastUnderFinger = 48.0;
constexpr double kAboveFinger = 52.0;

// Of the game's height: a chip that a key carries lies so far above the one under it.
constexpr double kAboveTarget = 0.03;

} // namespace

void GameView::tryToStartDrag(platform::Point location)
{
    const std::string key = keyHit(location);
    if (!board::isChipKey(key)) {
        return; // a later move tries again
    }
    const unsigned row = board::rowForKey(key);
    const auto targets = m_target->areasToTrack(row, board::columnForKey(key));
    if (m_target->rowToDrag() != row || !targets) {
        m_blockDrag = true;
        if (m_onlooker != nullptr) {
            m_onlooker->dragRefused(key);
        }
        return;
    }
    startLayerDrag(key, m_position);
    m_hover.createTrackingAreas(row, *targets);
    tellHandsChanged();
}

void GameView::startLayerDrag(const std::string& key, platform::Point position)
{
    const board::GameObjectPtr chip = m_gameData.gameObjects().objectForKey(key);
    present::GameObjectLayer* const layer = m_layers.layerForKey(key);
    if (!chip || layer == nullptr) {
        return;
    }
    m_drag = Drag { key, chip };
    const board::GameObjectPtr measure
        = m_gameData.gameObjects().objectForKey(board::generateKeyChipKey(0, 0));
    const double side = (measure ? measure->width() : board::kChipSize) * m_gameData.gameHeight();
    const platform::PointF place = onBackground(position);
    m_dragImage.createDragImageLayer(chip->imageName(), place,
        m_isTouch && m_lift != Lift::ByKey ? std::max(side, kLeastUnderFinger) : side);
    carry(position);
    layer->setOpacity(kDraggedOpacity);
}

void GameView::endDrag(const MouseEvent& event, const std::string& droppedOn)
{
    present::GameObjectLayer* const origin = originLayer();
    if (origin == nullptr) {
        abandonDrag();
        return;
    }
    const platform::PointF home = origin->position();
    const std::string originKey = m_drag->originKey;
    m_hover.flushTrackingAreas();
    m_dragImage.fadeOut();
    const bool moved = dropOnKey(event, originKey, droppedOn);
    if (!moved) {
        m_dragImage.flyTo(home);
    }
    // The chips of the line that was played on lose their glow: the line before the new one, if
    // any.
    const unsigned newLines = moved ? 1 : 0;
    if (const unsigned count = m_target->lineCount(); count > newLines) {
        const unsigned row = count - 1 - newLines;
        m_hover.turnOffEffectsForRow(row, m_target->lengthOfRow(row));
    }
    if (present::GameObjectLayer* const chip = originLayer()) {
        chip->setOpacity(1.0F);
    }
    m_dragImage.removeAfterFade();
    if (!moved) {
        missedDrop(event, originKey, droppedOn);
    }
}

// What happened on the way is settled by now, so a click may follow.
void GameView::missedDrop(const MouseEvent& event, const std::string& from, const std::string& to)
{
    if (from != to) {
        if (m_onlooker != nullptr) {
            m_onlooker->dropMissed(from, to);
        }
    } else if (m_isTouch || (m_habits && m_habits().forgivingClicks)) {
        mouseClick(event, from);
    } else if (m_onlooker != nullptr) {
        m_onlooker->clickMissed(from);
    }
}

void GameView::takeBackDrag()
{
    present::GameObjectLayer* const origin = originLayer();
    if (origin == nullptr) {
        abandonDrag();
        return;
    }
    m_hover.flushTrackingAreas();
    m_dragImage.fadeOut();
    m_dragImage.flyTo(origin->position());
    m_dragImage.removeAfterFade();
    const unsigned row = board::rowForKey(m_drag->originKey);
    m_hover.turnOffEffectsForRow(row, m_target->lengthOfRow(row));
    origin->setOpacity(1.0F);
}

// The chip that is dragged has gone, or another has taken its key: there is nothing left to drop.
void GameView::abandonDrag()
{
    m_hover.flushTrackingAreas();
    m_dragImage.fadeOut();
    m_dragImage.removeAfterFade();
    m_drag.reset();
    m_click = false;
}

present::GameObjectLayer* GameView::originLayer() const
{
    const board::GameObjectPtr chip = m_gameData.gameObjects().objectForKey(m_drag->originKey);
    return chip && chip == m_drag->originChip.lock() ? m_layers.layerForKey(m_drag->originKey)
                                                     : nullptr;
}

bool GameView::dropOnKey(const MouseEvent& event, const std::string& from, const std::string& to)
{
    const ElementKey origin = board::parsedKey(from);
    const ElementKey place = board::parsedKey(to);
    if (place.kind != ElementKey::Kind::Chip || origin.row != place.row
        || origin.column == place.column) {
        return false;
    }
    m_block.setDelay(paced(times::kChipBlock));
    const bool moved
        = m_target->mouseDrag(event, *origin.row, *origin.column, *place.row, *place.column);
    if (moved) {
        m_block.blockAndPollAfter(paced(times::kChipBlock));
    }
    return moved;
}

bool GameView::lift(const std::string& key, Lift how)
{
    if (m_target == nullptr || !board::isChipKey(key)) {
        return false;
    }
    const present::GameObjectLayer* const layer = m_layers.layerForKey(key);
    const unsigned row = board::rowForKey(key);
    const auto targets = m_target->areasToTrack(row, board::columnForKey(key));
    if (layer == nullptr || m_target->rowToDrag() != row || !targets || targets->empty()) {
        return false;
    }
    const platform::RectF place = layer->rectInRoot();
    m_lift = how;
    startLayerDrag(key,
        { .x = static_cast<double>(place.x + place.width / 2.0F),
            .y = static_cast<double>(place.y + place.height / 2.0F) });
    m_hover.createTrackingAreas(row, *targets);
    tellHandsChanged();
    if (m_onlooker != nullptr && how == Lift::ByPointer) {
        m_onlooker->chipLifted(key);
    }
    return true;
}

void GameView::setOverlay(Overlay overlay)
{
    m_overlay = overlay;
    const bool isBefore = overlay == Overlay::Page || overlay == Overlay::Question;
    if (isBefore && m_lift != Lift::None) {
        cancelGesture();
    }
}

bool GameView::liftByKey(const std::string& key)
{
    cancelGesture();
    if (m_onlooker != nullptr) {
        m_onlooker->pressBegins();
    }
    if (m_block.blockClick() || m_target == nullptr) {
        losePress(key, false);
        return false;
    }
    if (m_overlay == Overlay::Note) {
        m_target->messageWindowClick();
    }
    return (m_overlay == Overlay::None || m_overlay == Overlay::Note) && lift(key, Lift::ByKey);
}

void GameView::carry(platform::Point location)
{
    const double above = m_lift == Lift::ByKey ? kAboveTarget * m_gameData.gameHeight()
        : m_isTouch                            ? kAboveFinger
                                               : 0.0;
    m_dragImage.moveTo(onBackground({ .x = location.x, .y = location.y + above }));
}

void GameView::carryTo(const std::string& key)
{
    const present::GameObjectLayer* const layer = m_layers.layerForKey(key);
    if (m_lift == Lift::None || layer == nullptr) {
        return;
    }
    const platform::RectF place = layer->rectInRoot();
    carry({ .x = static_cast<double>(place.x + place.width / 2.0F),
        .y = static_cast<double>(place.y + place.height / 2.0F) });
}

void GameView::drop(const std::string& key)
{
    if (!m_drag || m_lift == Lift::None) {
        return;
    }
    if (m_onlooker != nullptr) {
        m_onlooker->pressBegins();
    }
    if (m_block.blockClick()) {
        losePress(key, false);
        return;
    }
    m_lift = Lift::None;
    endDrag({}, key);
    finishGesture();
}

bool GameView::liftsByClick(const std::string& key) const
{
    if (!m_habits || !m_habits().liftByClick || !board::isChipKey(key)) {
        return false;
    }
    const unsigned row = board::rowForKey(key);
    const unsigned column = board::columnForKey(key);
    const auto actions = m_target->actions();
    return !m_target->isMove(row, column)
        && std::any_of(actions.begin(), actions.end(), [row, column](const auto& gesture) {
               const auto* const drag = std::get_if<play::Drag>(&gesture);
               return drag != nullptr && drag->fromRow == row && drag->from == column;
           });
}

void GameView::rightMouseDown(const MouseEvent& event)
{
    tellPointerUsed();
    if (m_lift != Lift::None) {
        cancelGesture();
        return;
    }
    if (m_held == Hover::Button::Held || !m_habits || !m_habits().liftByClick
        || m_block.blockClick() || m_overlay == Overlay::Page || m_overlay == Overlay::Question) {
        return;
    }
    if (m_onlooker != nullptr) {
        m_onlooker->pressBegins();
    }
    if (m_overlay == Overlay::Note && m_target != nullptr) {
        m_target->messageWindowClick();
    }
    m_isTouch = false;
    if (lift(keyHit(event.location), Lift::ByPointer)) {
        carry(event.location);
    }
}

// A finger that rests on a chip lifts it, for nothing else would tell that it can be dragged.
void GameView::awaitLongPress(const MouseEvent& event)
{
    if (!event.isTouch && (!m_habits || !m_habits().liftByClick)) {
        return;
    }
    m_runLoop.performAfterDelay(times::kLongPress, [this, press = m_presses] {
        if (press == m_presses && m_held == Hover::Button::Held && m_click && !m_drag
            && !m_blockDrag && !m_block.blockClick()) {
            letGo();
            m_liftIsFresh = lift(m_lastPressed, Lift::ByPointer);
        }
    });
}

bool GameView::isTarget(const std::string& key) const
{
    if (!m_drag || !board::isChipKey(key)
        || board::rowForKey(key) != board::rowForKey(m_drag->originKey)) {
        return false;
    }
    const auto targets
        = m_target->areasToTrack(board::rowForKey(key), board::columnForKey(m_drag->originKey));
    return targets
        && std::find(targets->begin(), targets->end(), board::columnForKey(key)) != targets->end();
}

// The button is let go with a lifted chip in the hand: that of the press that lifted it changes
// nothing unless it moved away, any other drops the chip or puts it back.
void GameView::settleLift(const MouseEvent& event)
{
    if (m_liftIsFresh && !hasMoved(event.location)) {
        stayLifted();
        return;
    }
    if (!m_click) {
        m_lost.reset();
        return; // it was pressed while nothing was taken
    }
    const std::string key = keyHit(event.location);
    if (isTarget(key)) {
        m_lift = Lift::None; // the drop may bring a page, for which nothing is to be put back
        endDrag(event, key);
    } else {
        putBack();
    }
    finishGesture();
}

void GameView::putBack()
{
    takeBackDrag();
    if (m_onlooker != nullptr && m_lift != Lift::None) {
        m_onlooker->chipPutBack();
    }
}

void GameView::stayLifted()
{
    m_click = false;
    m_liftIsFresh = false;
    followPointer();
    tellHandsChanged();
}

} // namespace veyrand::input
