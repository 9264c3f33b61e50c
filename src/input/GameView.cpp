#include "input/GameView.h"

#include "board/ElementKey.h"
#include "board/Times.h"

#include <cmath>
#include <utility>

namespace veyrand::input {

namespace times = board::times;
using board::ElementKey;

namespace {

constexpr double kDragThreshold = 3.0; // points, along either axis
constexpr float kDraggedOpacity = 0.5F;

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
    cancelGesture();
    m_held = Hover::Button::Held;
    if (m_onlooker != nullptr) {
        m_onlooker->pressBegins();
    }
    if (m_block.blockClick() || m_target == nullptr) {
        losePress(event);
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
        tellHandsChanged();
    }
}

void GameView::losePress(const MouseEvent& event)
{
    const std::string key = keyHit(event.location);
    const bool isSecondOfTwo
        = key == m_lastPressed && m_runLoop.now() - m_lastPressTime < times::kDoubleClick;
    m_lastPressed = key;
    m_lastPressTime = m_runLoop.now();
    if (event.hasModifier || m_overlay == Overlay::Page) {
        return;
    }
    if (board::isChipKey(key) && !isSecondOfTwo) {
        m_lost = event.location;
    }
    if (m_onlooker != nullptr) {
        m_onlooker->pressLost(key);
    }
}

void GameView::mouseDragged(const MouseEvent& event)
{
    if (!m_drag && m_click && !m_blockDrag && hasMoved(event.location)) {
        tryToStartDrag(event.location);
    }
    if (m_drag) {
        if (originLayer() == nullptr) {
            abandonDrag();
        } else {
            m_dragImage.moveTo(onBackground(event.location));
        }
    }
    followPointer();
}

void GameView::followPointer()
{
    m_hover.pointerMoved(m_held);
    if (m_onlooker != nullptr) {
        m_onlooker->pointerMoved();
    }
}

void GameView::mouseUp(const MouseEvent& event)
{
    m_held = Hover::Button::Up; // whatever the game's answer opens has no gesture to cancel
    letGo();
    if (m_drag) {
        endDrag(event);
    } else if (m_click) {
        const std::string pressed = keyHit(m_position);
        if (!pressed.empty() && pressed == keyHit(event.location)) {
            mouseClick(event, pressed);
        }
    }
    rememberPress(event);
    finishGesture();
}

// Moves come with the button up only when its release went elsewhere.
void GameView::mouseMoved()
{
    cancelGesture();
    followPointer();
}

void GameView::cancelGesture()
{
    if (m_held == Hover::Button::Up) {
        return;
    }
    letGo();
    if (m_drag) {
        takeBackDrag();
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
    m_dragImage.createDragImageLayer(chip->imageName(), onBackground(position), side);
    layer->setOpacity(kDraggedOpacity);
}

void GameView::endDrag(const MouseEvent& event)
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
    const std::string droppedOn = keyHit(event.location);
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
    } else if (m_habits && m_habits().forgivingClicks) {
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
