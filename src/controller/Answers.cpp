#include "controller/Answers.h"

#include "board/ElementKey.h"
#include "controller/GameController.h"
#include "controller/Legality.h"
#include "controller/Speech.h"
#include "present/ExtraPictures.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veyrand::controller {

using input::Cursor;
using play::Reason;
using present::Extra;

namespace {

constexpr int kMissesUntilAdvice = 2;
constexpr int kLostUntilAdvice = 3;
constexpr int kDragsClickedUntilAdvice = 3;
constexpr double kBlockThatShows = 1.0; // s; a shorter one changes no cursor

// Texts have no layer of a record under the pointer, only their letters.
constexpr std::array<std::string_view, 3> kCounters { "counter-score", "counter-stage",
    "counter-par" };

bool isTooFar(Reason reason)
{
    return reason == Reason::TooLong;
}

bool isTooMany(Reason reason)
{
    return reason == Reason::BoardFull || reason == Reason::LastMustBeGoal
        || reason == Reason::NoDragNow;
}

} // namespace

Answers::Answers(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
    , m_tips(controller)
    , m_celebration(controller)
{
    settingsChanged();
    m_game.view.setOnlooker(this);
    m_game.view.setHabits([this] {
        return input::GameView::Habits { .rememberPress = m_settings.rememberPress,
            .forgivingClicks = m_settings.forgivingClicks,
            .liftByClick = m_settings.liftByClick };
    });
    m_game.layers.extras().setDirector([this] { direct(); });
}

Answers::~Answers()
{
    m_game.view.setOnlooker(nullptr);
    m_game.view.setHabits({});
    m_game.layers.extras().setDirector({});
}

void Answers::settingsChanged()
{
    m_settings = progress::readSettings(m_game.preferences);
    if (!m_settings.answers) {
        m_game.layers.extras().clear();
        m_shown = {}; // a sheet is drawn again all the same
    }
    m_game.layers.margins().setOn(m_settings.woodToTheEdges);
    m_game.layers.scene().setNeedsDisplay();
}

void Answers::puzzleLaidOut()
{
    m_clicksMissed = 0;
    m_pressesLost = 0;
    m_dragsClicked = 0;
    m_whisper.clear();
    m_celebration.puzzleLaidOut();
    direct();
}

void Answers::solved(long points)
{
    if (m_settings.answers) {
        m_celebration.solved(points);
    }
}

void Answers::boardEmpties()
{
    if (m_settings.answers) {
        m_celebration.boardEmpties();
    }
}

// --- What stands

Answers::Situation Answers::situation() const
{
    Situation now;
    now.language = m_game.texts.code();
    now.isOn = m_settings.answers;
    now.sheet = m_controller.sheets().revision();
    if (m_controller.sheets().isOpen()) {
        return now;
    }
    now.whisper = m_whisper;
    now.guide = m_controller.guide().state();
    now.tipSize = m_settings.tipSize;
    now.focus = m_controller.focus().shown();
    if (!now.isOn) {
        return now;
    }
    if (const auto& proof = m_controller.proof(); proof && !proof->lines().empty()) {
        for (const engine::Theorem& line : proof->lines()) {
            now.lines.push_back(line.theorem());
        }
        now.inPlay = !proof->checkSolved();
    }
    if (!m_game.view.messageWindow()) {
        now.thing = thingUnderPointer();
        now.held = m_game.view.keyHeld();
        now.dragged = m_game.view.keyDragged();
        now.tipIsDue = m_tipIsDue && now.thing == m_restingOn && now.dragged.empty();
    }
    now.celebration = m_celebration.state();
    if (const auto* const window = m_controller.messages().messageWindow()) {
        now.page = m_controller.messages().page();
        now.words = window->text().size();
    }
    now.finale = finale();
    const progress::CurrentGame& game = m_game.currentGame;
    now.points = game.endlessGame() ? game.endlessScore() : game.score();
    now.par = game.par();
    return now;
}

void Answers::direct()
{
    Situation now = situation();
    if (now == m_shown) {
        return;
    }
    // Who has just played looks at the line that comes, not for a word about the old one.
    if (now.lines != m_shown.lines) {
        ++m_rests;
        m_tipIsDue = false;
        now.tipIsDue = false;
    }
    const bool pageIsNew = m_shown.page != now.page;
    m_shown = std::move(now);
    if (pageIsNew && m_shown.isOn) {
        m_celebration.pageOpened(m_shown.page);
    }
    std::vector<Extra> wanted;
    m_controller.sheets().addTo(wanted);
    m_controller.guide().addTo(wanted);
    if (m_shown.isOn) {
        addRows(wanted);
        addHands(wanted);
        addFinale(wanted);
        addPraise(wanted);
    }
    addWords(wanted);
    addFocus(wanted);
    m_game.layers.extras().want(std::move(wanted));
}

// --- What the pointer is over

std::string Answers::thingUnderPointer() const
{
    if (m_controller.sheets().hovered() == kGuideButton) {
        return std::string(kGuideButton);
    }
    std::string key = m_game.view.keyUnderPointer();
    if (!key.empty()) {
        return key;
    }
    const auto pointer = m_game.view.pointerPlace();
    for (const std::string_view counter : kCounters) {
        const auto* const layer = m_game.layers.layerForKey(counter);
        const auto* const text
            = pointer && layer != nullptr ? present::BoardLayers::textOn(*layer) : nullptr;
        if (text != nullptr && text->rectInRoot().contains(*pointer)) {
            return std::string(counter);
        }
    }
    return {};
}

Cursor Answers::cursor() const
{
    if (m_controller.sheets().isOpen() || m_controller.sheets().isPointing()) {
        return m_controller.sheets().isPointing() ? Cursor::Pointing : Cursor::Arrow;
    }
    const input::InputBlock& block = m_game.view.block();
    if (!m_settings.answers || m_game.view.messageWindow()
        || (block.blockClick() && block.length() >= kBlockThatShows)) {
        return Cursor::Arrow;
    }
    if (!m_game.view.keyDragged().empty()) {
        return Cursor::Closed;
    }
    const std::string key = m_game.view.keyUnderPointer();
    if (input::Hover::isLitFace(key)) {
        // A note's pictures share the keys of a dialogue's buttons.
        const bool answers = m_controller.dialogueState() != 0 || key.starts_with("button");
        return answers ? Cursor::Pointing : Cursor::Arrow;
    }
    if (board::isDeleteKey(key)) {
        return Cursor::Pointing;
    }
    if (!board::isChipKey(key)) {
        return Cursor::Arrow;
    }
    const unsigned row = board::rowForKey(key);
    const unsigned column = board::columnForKey(key);
    if (!whyNoClick(m_controller, row, column)) {
        return Cursor::Pointing;
    }
    return dropsThatAreMoves(m_controller, row, column).empty() ? Cursor::Arrow : Cursor::Open;
}

std::string Answers::tip()
{
    for (const auto& shown : m_game.layers.extras().shown()) {
        if (shown.kind == present::ExtraKind::Tip) {
            return shown.text;
        }
    }
    return {};
}

std::string Answers::whisper()
{
    return m_whisper;
}

// --- What happens

void Answers::pointerMoved()
{
    if (!m_settings.answers) {
        return;
    }
    const std::string thing = thingUnderPointer();
    if (thing != m_restingOn) {
        m_restingOn = thing;
        m_advised.clear();
        restHere();
    }
    handsChanged();
}

// Asked before every picture anyway; but what comes shall begin to come now, and not with whatever
// picture happens to be next.
void Answers::handsChanged()
{
    direct();
}

// A tip comes when the pointer has rested on one thing, and goes with the next press.
void Answers::restHere()
{
    m_tipIsDue = false;
    const unsigned rest = ++m_rests;
    if (m_restingOn.empty()) {
        return;
    }
    m_game.runLoop.performAfterDelay(present::extras::kTipAfter, [this, rest] {
        if (rest == m_rests) {
            m_tipIsDue = true;
            handsChanged();
        }
    });
}

void Answers::pressBegins()
{
    m_controller.speaker().gestureBegins();
    ++m_rests;
    m_tipIsDue = false;
    m_advised.clear();
    present::Extras& extras = m_game.layers.extras();
    for (const auto kind :
        { present::ExtraKind::Shake, present::ExtraKind::Limit, present::ExtraKind::Light }) {
        extras.end(kind);
    }
    direct();
}

void Answers::refused(const play::Gesture& gesture, const play::Refusal& why)
{
    if (const auto* const click = std::get_if<play::Click>(&gesture)) {
        refusedAt(click->row, click->column, why);
        adviseLiftByClick(click->row, click->column);
    } else if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
        refusedAt(drag->fromRow, drag->from, why);
    }
}

// Who clicks again and again on what can only be dragged may not be able to drag.
void Answers::adviseLiftByClick(unsigned row, unsigned column)
{
    if (!m_settings.answers || m_settings.liftByClick
        || dropsThatAreMoves(m_controller, row, column).empty()) {
        return;
    }
    if (++m_dragsClicked >= kDragsClickedUntilAdvice) {
        m_dragsClicked = 0;
        showTipAtOnce(
            board::generateKeyChipKey(column, row), m_game.texts.text("advice.liftByClick"));
    }
}

void Answers::refusedAt(unsigned row, unsigned column, const play::Refusal& why)
{
    say(why);
    if (!m_settings.answers) {
        return;
    }
    if (why.reason == Reason::NotLastLine && m_controller.lineCount() > 0) {
        m_game.layers.extras().start(present::lastLineShown(m_controller.lineCount() - 1));
    }
    if (isTooFar(why.reason)) {
        pulse(present::limitOfLine(row));
    } else if (isTooMany(why.reason)) {
        pulse(present::limitOfBoard());
    }
    shake(board::generateKeyChipKey(column, row));
    restHere(); // whoever stays is told why
}

void Answers::pressLost(const std::string& key)
{
    if (!m_settings.answers || !board::isChipKey(key)) {
        return;
    }
    if (const auto place = placeOf(key)) {
        m_game.layers.extras().start(present::blink(key, *place));
    }
    if (++m_pressesLost >= kLostUntilAdvice && !m_settings.rememberPress) {
        m_pressesLost = 0;
        showTipAtOnce(key, m_game.texts.text("advice.rememberPress"));
    }
}

void Answers::dragRefused(const std::string& key)
{
    const unsigned row = board::rowForKey(key);
    const bool isLast = row + 1 == m_controller.lineCount();
    refusedAt(row, board::columnForKey(key),
        { .reason = isLast ? Reason::NoDragNow : Reason::NotLastLine });
}

void Answers::dropMissed(const std::string& from, const std::string& to)
{
    // Dropped on a stone of its line it was refused, and answered, as a gesture.
    const bool onStone = board::isChipKey(to);
    if (!onStone) {
        say({ .reason = Reason::NoChip });
    } else if (board::rowForKey(from) != board::rowForKey(to)) {
        say({ .reason = Reason::OtherRow });
    }
}

void Answers::clickMissed(const std::string& key)
{
    say({ .reason = Reason::SameChip });
    if (!m_settings.answers) {
        return;
    }
    if (++m_clicksMissed >= kMissesUntilAdvice) {
        m_clicksMissed = 0;
        showTipAtOnce(key, m_game.texts.text("advice.forgivingClicks"));
    }
}

void Answers::chipLifted(const std::string& key)
{
    m_controller.speaker().chipLifted(key);
}

void Answers::chipPutBack()
{
    m_controller.speaker().chipPutBack();
}

void Answers::shake(const std::string& key)
{
    if (const auto place = placeOf(key)) {
        m_game.layers.extras().start(present::shakenHead(key, *place));
    }
}

// However often it is met, a limit lights up no more than the eye can bear.
void Answers::pulse(const Extra& limit)
{
    const double now = m_game.runLoop.now();
    if (m_lastPulse < 0.0 || now - m_lastPulse >= present::extras::kLimitAgain) {
        m_lastPulse = now;
        m_game.layers.extras().start(limit);
    }
}

void Answers::say(const play::Refusal& why)
{
    const std::string words = wordsFor(m_game.texts, why);
    if (m_settings.sayWhy && !words.empty()) {
        whisper(words);
    }
}

void Answers::done(const std::string& words)
{
    if (m_settings.answers) {
        whisper(words);
    }
}

void Answers::whisper(std::string words)
{
    m_whisper = std::move(words);
    handsChanged();
    m_game.runLoop.performAfterDelay(present::extras::kWhisper, [this, number = ++m_whispers] {
        if (number == m_whispers) {
            m_whisper.clear();
            handsChanged();
        }
    });
}

void Answers::showTipAtOnce(const std::string& key, std::string advice)
{
    m_restingOn = key;
    m_advised = key;
    m_advice = std::move(advice);
    m_tipIsDue = true;
    handsChanged();
}

} // namespace veyrand::controller
