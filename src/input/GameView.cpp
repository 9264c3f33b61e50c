#include "input/GameView.h"

#include "board/ElementKey.h"
#include "board/Times.h"
#include "input/Stops.h"

#include <cmath>
#include <utility>

namespace veyrand::input {

namespace times = board::times;
using board::ElementKey;

namespace {

constexpr double kDragThreshold = 3.0; // points, along either axis

bool contains(const board::ObjectTable& table, board::ButtonAction button)
{
    return table.contains(std::string(board::buttonFor(button).key));
}

} // namespace

GameView::GameView(const Parts& parts)
    : m_gameData(parts.gameData)
    , m_layers(parts.layers)
    , m_runLoop(parts.runLoop)
    , m_pointer(parts.pointer)
    , m_block(
          parts.runLoop, [this] { blockEnded(); }, parts.layers.scene().tempo())
    , m_hover(parts.gameData, parts.layers, parts.pointer, parts.effects)
    , m_dragImage(parts.layers, parts.runLoop)
{
    m_hover.setBlockedTest([this] { return m_block.blockClick(); });
    m_gameData.setButtonTracking(*this);
}

void GameView::mouseDown(const MouseEvent& event)
{
    m_foregroundHasPress
        = m_foreground != nullptr && m_foreground->pressed(onBoard(event.location));
    if (m_foregroundHasPress) {
        cancelGesture();
        return;
    }
    tellPointerUsed();
    if (m_lift != Lift::ByPointer) {
        cancelGesture();
    }
    ++m_presses;
    m_liftIsFresh = false;
    m_isTouch = event.isTouch;
    m_held = Hover::Button::Held;
    if (m_onlooker != nullptr) {
        m_onlooker->pressBegins();
    }
    if (m_block.blockClick() || m_target == nullptr) {
        if (losePress(keyHit(event.location), event.hasModifier)) {
            m_lost = event.location;
        }
        return;
    }
    if (m_lift == Lift::ByPointer) {
        m_click = true; // it drops the chip, or puts it back
        m_position = event.location;
        return;
    }
    m_remembered.clear();
    if (m_overlay == Overlay::Page) {
        m_target->messageWindowClick();
        return;
    }
    if (m_overlay == Overlay::Note) {
        m_target->messageWindowClick();
    }
    if (!event.hasModifier) {
        m_click = true;
        m_drag.reset();
        m_blockDrag = false;
        m_position = event.location;
        m_lastPressed = keyHit(event.location);
        m_lastPressTime = m_runLoop.now();
        holdDown(m_lastPressed);
        awaitLongPress(event);
        tellHandsChanged();
    }
}

// True if it is remembered, should it be let go where it was pressed.
bool GameView::losePress(const std::string& key, bool hasModifier)
{
    const bool isSecondOfTwo
        = key == m_lastPressed && m_runLoop.now() - m_lastPressTime < times::kDoubleClick;
    m_lastPressed = key;
    m_lastPressTime = m_runLoop.now();
    if (hasModifier || m_overlay == Overlay::Page) {
        return false;
    }
    if (m_onlooker != nullptr) {
        m_onlooker->pressLost(key);
    }
    return board::isChipKey(key) && !isSecondOfTwo;
}

void GameView::activate(const std::string& key)
{
    cancelGesture();
    if (m_onlooker != nullptr) {
        m_onlooker->pressBegins();
    }
    if (m_block.blockClick() || m_target == nullptr) {
        if (losePress(key, false)) {
            m_remembered = key;
        }
        return;
    }
    m_remembered.clear();
    if (m_overlay == Overlay::Page) {
        m_target->messageWindowClick();
        return;
    }
    if (m_overlay == Overlay::Note) {
        const std::string note = m_gameData.gameObjects().contains(key) ? key : std::string();
        m_target->messageWindowClick();
        if (note == kMessageKey || m_overlay == Overlay::Page) {
            return;
        }
    }
    m_lastPressed = key;
    m_lastPressTime = m_runLoop.now();
    if (m_gameData.gameObjects().contains(key)) {
        mouseClick({}, key);
    }
}

void GameView::mouseDragged(const MouseEvent& event)
{
    if (m_foregroundHasPress) {
        return;
    }
    if (!m_drag && m_click && !m_blockDrag && hasMoved(event.location)) {
        tryToStartDrag(event.location);
    }
    if (m_drag) {
        if (originLayer() == nullptr) {
            abandonDrag();
        } else {
            carry(event.location);
        }
    }
    followPointer();
}

void GameView::followPointer()
{
    if (const auto place = m_pointer.position();
        m_foreground != nullptr && place && m_foreground->hovered(onBoard(*place))) {
        return;
    }
    // To what can be dropped on, a lifted chip is one that is dragged.
    m_hover.pointerMoved(m_lift == Lift::ByPointer ? Hover::Button::Held : m_held);
    if (m_onlooker != nullptr) {
        m_onlooker->pointerMoved();
    }
}

void GameView::mouseUp(const MouseEvent& event)
{
    if (m_foregroundHasPress) {
        m_foregroundHasPress = false;
        m_foreground->released(onBoard(event.location));
        return;
    }
    m_held = Hover::Button::Up; // whatever the game's answer opens has no gesture to cancel
    letGo();
    if (m_lift == Lift::ByPointer) {
        settleLift(event);
        return;
    }
    if (m_drag) {
        endDrag(event, keyHit(event.location));
    } else if (m_click) {
        const std::string pressed = keyHit(m_position);
        if (!pressed.empty() && pressed == keyHit(event.location)) {
            if (liftsByClick(pressed) && lift(pressed, Lift::ByPointer)) {
                stayLifted();
                return;
            }
            mouseClick(event, pressed);
        }
    }
    rememberPress(event);
    finishGesture();
}

// Moves come with the button up only when its release went elsewhere.
void GameView::mouseMoved()
{
    const auto place = m_pointer.position();
    if (place != m_pointerSeen) {
        tellPointerUsed();
    }
    if (m_lift == Lift::ByPointer && place) {
        carry(*place);
    } else {
        cancelGesture();
    }
    followPointer();
}

void GameView::tellPointerUsed()
{
    m_pointerSeen = m_pointer.position();
    if (m_pointerUsed) {
        m_pointerUsed();
    }
}

void GameView::cancelGesture()
{
    if (m_held == Hover::Button::Up && m_lift == Lift::None) {
        return;
    }
    letGo();
    if (m_drag) {
        putBack();
    }
    finishGesture();
}

void GameView::rememberPress(const MouseEvent& release)
{
    if (!m_lost) {
        return;
    }
    const std::string pressed = keyHit(*m_lost);
    if (board::isChipKey(pressed) && pressed == keyHit(release.location)) {
        m_remembered = pressed;
        if (!m_block.blockClick()) {
            playRememberedPress(); // the block has ended under the held button
        }
    }
}

void GameView::finishGesture()
{
    m_click = false;
    m_drag.reset();
    m_lift = Lift::None;
    m_blockDrag = false;
    m_lost.reset();
    m_held = Hover::Button::Up;
    // What the pointer crossed while the button was held is made good now.
    followPointer();
    tellHandsChanged();
}

// Only what is seen changes: the record knows nothing of it, and a layer that goes takes it along.
void GameView::holdDown(const std::string& key)
{
    // A note's pictures share the keys of a dialogue's buttons.
    const bool isButton
        = Hover::isLitFace(key) && (m_overlay == Overlay::Question || key.starts_with("button"));
    if (isButton || board::isDeleteKey(key)) {
        m_heldKey = key;
        m_layers.layerForKey(key)->setPressed(true);
    }
}

void GameView::letGo()
{
    if (present::GameObjectLayer* const layer = m_layers.layerForKey(m_heldKey)) {
        layer->setPressed(false);
    }
    m_heldKey.clear();
}

bool GameView::hasMoved(platform::Point location) const
{
    return std::abs(location.x - m_position.x) >= kDragThreshold
        || std::abs(location.y - m_position.y) >= kDragThreshold;
}

void GameView::mouseClick(const MouseEvent& event, const std::string& key)
{
    // The block starts before the game answers, so that the game may lengthen it.
    switch (board::parsedKey(key).kind) {
    case ElementKey::Kind::Chip:
        m_block.startBlockClick(paced(times::kChipBlock));
        m_target->mouseClick(event, board::rowForKey(key), board::columnForKey(key));
        return;
    case ElementKey::Kind::DeleteButton:
        m_block.startBlockClick(paced(times::kDeleteBlock));
        m_target->deleteClick(board::rowForDeleteButton(key));
        return;
    case ElementKey::Kind::Button:
        m_block.startBlockClick(times::kButtonBlock);
        m_target->buttonClick(key);
        m_hover.turnOffButtons();
        return;
    case ElementKey::Kind::Other:
        return;
    }
}

double GameView::paced(double seconds) const
{
    return m_layers.scene().tempo().delay(seconds);
}

present::GameObjectLayer* GameView::chipLayerHit(platform::Point location) const
{
    present::Layer* const hit = m_layers.contentLayer().hitTest(
        { .x = static_cast<float>(location.x), .y = static_cast<float>(location.y) });
    return dynamic_cast<present::GameObjectLayer*>(hit);
}

std::string GameView::keyHit(platform::Point location) const
{
    const present::GameObjectLayer* const layer = chipLayerHit(location);
    return layer != nullptr ? layer->gameObjectKey() : std::string();
}

bool GameView::isCovered(platform::Point location) const
{
    return m_foreground != nullptr && m_foreground->covers(onBoard(location));
}

platform::Point GameView::onBoard(platform::Point location) const
{
    const platform::RectF board = m_layers.backgroundLayer().rectInRoot();
    const auto height = static_cast<double>(board.height);
    return { .x = (location.x - static_cast<double>(board.x)) / height,
        .y = (location.y - static_cast<double>(board.y)) / height };
}

platform::PointF GameView::onBackground(platform::Point location) const
{
    return m_layers.backgroundLayer().convertFromRoot(
        { .x = static_cast<float>(location.x), .y = static_cast<float>(location.y) });
}

std::string GameView::keyUnderPointer() const
{
    const auto place = m_pointer.position();
    return place ? keyHit(*place) : std::string();
}

std::optional<platform::PointF> GameView::pointerPlace() const
{
    const auto place = m_pointer.position();
    return place ? std::optional(platform::PointF {
               .x = static_cast<float>(place->x), .y = static_cast<float>(place->y) })
                 : std::nullopt;
}

std::string GameView::keyHeld() const
{
    return m_held == Hover::Button::Held && m_click && !m_drag ? m_lastPressed : std::string();
}

std::string GameView::keyDragged() const
{
    return m_drag ? m_drag->originKey : std::string();
}

std::string GameView::keyLifted() const
{
    return m_lift != Lift::None ? keyDragged() : std::string();
}

void GameView::establishButtonTracking()
{
    m_hover.establishButtonTracking(m_target != nullptr && m_target->isEndlessGame());
}

void GameView::reestablishTracking()
{
    m_hover.turnOffButtons();
    m_hover.turnOffTitlePageButtons();
    if (m_overlay == Overlay::Page) {
        return; // a page has no hit areas until it is dismissed
    }
    const board::ObjectTable& table = m_gameData.gameObjects();
    // A page's or note's pictures share the keys of a dialogue's buttons.
    if (m_overlay == Overlay::Question && contains(table, board::ButtonAction::GoOn)) {
        m_hover.turnOffDialogueButtons();
        m_hover.establishDialogueButtonTracking();
    } else if (contains(table, board::ButtonAction::ClassicGame)) {
        m_hover.establishTitlePagButtonTracking();
    } else if (contains(table, board::ButtonAction::Hint)) {
        establishButtonTracking();
    }
}

void GameView::blockEnded()
{
    if (m_overlay == Overlay::None || m_overlay == Overlay::Note) {
        turnOnAllHovers();
    }
    playRememberedPress();
    tellHandsChanged();
}

void GameView::tellHandsChanged() const
{
    if (m_onlooker != nullptr) {
        m_onlooker->handsChanged();
    }
}

void GameView::playRememberedPress()
{
    const std::string key = std::exchange(m_remembered, {});
    if (key.empty() || m_overlay == Overlay::Page || m_overlay == Overlay::Question
        || m_target == nullptr || !m_habits || !m_habits().rememberPress
        || !m_gameData.gameObjects().contains(key)
        || !m_target->isMove(board::rowForKey(key), board::columnForKey(key))) {
        return;
    }
    mouseClick({}, key);
}

void GameView::turnOnAllHovers()
{
    m_hover.turnOnAllHovers(
        m_overlay == Overlay::Question ? Hover::Asking::Yes : Hover::Asking::No);
}

} // namespace veyrand::input
