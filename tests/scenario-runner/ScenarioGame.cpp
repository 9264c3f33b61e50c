#include "ScenarioGame.h"

#include "ScriptValues.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"

#include <QDir>

namespace veyrand::scenario {

using app::VirtualGame;
using progress::CurrentGame;

namespace {

QString chipAt(unsigned row, unsigned column)
{
    return QString::fromStdString(board::generateKeyChipKey(column, row));
}

} // namespace

ScenarioGame::ScenarioGame(QJSEngine& engine, Settings settings)
    : m_engine(engine)
    , m_settings(std::move(settings))
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

VirtualGame& ScenarioGame::game()
{
    if (m_hasEnded) {
        m_engine.throwError(
            QStringLiteral("the game has ended; game.restart() starts it on what it saved"));
    }
    if (!m_game) {
        start();
    }
    return *m_game;
}

void ScenarioGame::start(const QJSValue& options)
{
    VirtualGame::Options made { .screen = m_settings.screen,
        .window = m_settings.window,
        .seed = field(options, "seed", 1).toUInt(),
        .preferences = {},
        .dataFolder = m_settings.dataFolder };
    made.preferences = toContents(field(options, "preferences", m_engine.newObject()));
    const QJSValue record = field(options, "record", QJSValue());
    if (record.isObject()) {
        const auto& values = made.preferences.values;
        const auto defaults = progress::registeredDefaults().values;
        const auto& named = values.contains(progress::kPlayerNameKey) ? values : defaults;
        made.preferences.records.insert_or_assign(
            progress::playerRecordKey(platform::stringForKey(named, progress::kPlayerNameKey)),
            toRecord(record));
    }
    const bool journal = field(options, "journal", false).toBool();
    end();
    m_preferences = std::make_unique<platform::MemoryPreferences>();
    m_journal = journal ? std::make_unique<platform::MemoryJournal>() : nullptr;
    made.store = m_preferences.get();
    made.journal = m_journal.get();
    m_options = made;
    restart();
    m_options.preferences = {}; // they stand in the store, as far as nobody has changed them
}

void ScenarioGame::end()
{
    m_game.reset();
    m_hasEnded = true;
}

void ScenarioGame::quit()
{
    game().controller().context().quit.terminate();
    const std::string trouble = game().controller().kept().lastWords();
    end();
    m_hasQuit = true;
    if (!trouble.empty()) {
        m_engine.throwError(QString::fromStdString(trouble));
    }
}

void ScenarioGame::kill()
{
    static_cast<void>(game());
    end();
}

void ScenarioGame::restart()
{
    if (!m_preferences) {
        return start();
    }
    end();
    m_hasEnded = false;
    m_hasQuit = false;
    m_game = std::make_unique<VirtualGame>(m_options);
    m_game->launch();
}

void ScenarioGame::play(const QJSValue& puzzle)
{
    game().play({ .root = scenario::text(field(puzzle, "root", QStringLiteral("YR"))),
        .goal = scenario::text(field(puzzle, "goal", QStringLiteral("YRG"))),
        .par = field(puzzle, "par", 2).toInt(),
        .level = field(puzzle, "level", 1).toInt(),
        .stage = field(puzzle, "stage", 1).toInt(),
        .mode = field(puzzle, "endless", false).toBool() ? CurrentGame::Mode::Endless
                                                         : CurrentGame::Mode::Classic });
}

void ScenarioGame::show(const QString& page)
{
    if (page == QLatin1String("loadOverlayWindow")) {
        game().controller().loadOverlayWindow();
    } else if (!game().controller().pages().show(page.toStdString())) {
        m_engine.throwError(QStringLiteral("there is no page \"%1\"").arg(page));
    }
}

void ScenarioGame::wait(double seconds)
{
    game().wait(seconds);
}

std::optional<platform::Point> ScenarioGame::place(const QJSValue& target)
{
    if (target.isArray()) {
        return platform::Point { .x = target.property(0).toNumber(),
            .y = target.property(1).toNumber() };
    }
    auto centre = game().centreOf(scenario::text(target));
    if (!centre) {
        m_engine.throwError(
            QStringLiteral("nothing on the board has the key \"%1\"").arg(target.toString()));
    }
    return centre;
}

void ScenarioGame::move(const QJSValue& target)
{
    if (const auto at = place(target)) {
        game().move(*at);
    }
}

void ScenarioGame::press(const QJSValue& target, const QJSValue& modifiers)
{
    if (const auto at = place(target)) {
        game().press(*at, toModifiers(modifiers));
    }
}

void ScenarioGame::release(const QJSValue& target)
{
    if (const auto at = place(target)) {
        game().release(*at);
    }
}

void ScenarioGame::click(const QJSValue& target, const QJSValue& modifiers)
{
    if (const auto at = place(target)) {
        game().press(*at, toModifiers(modifiers));
        game().release(*at);
    }
}

void ScenarioGame::drag(const QJSValue& from, const QJSValue& to)
{
    const auto start = place(from);
    const auto end = place(to);
    if (start && end) {
        game().press(*start);
        game().release(*end);
    }
}

void ScenarioGame::key(const QString& sequence)
{
    game().key(sequence);
}

void ScenarioGame::resize(int width, int height)
{
    game().resize({ width, height });
}

void ScenarioGame::menu(const QString& item)
{
    if (!game().menu().trigger(item)) {
        m_engine.throwError(
            QStringLiteral("the menu has no item \"%1\" that can be chosen now").arg(item));
    }
}

void ScenarioGame::screenshot(const QString& name)
{
    const QDir folder(m_settings.outFolder);
    if (!folder.mkpath(QStringLiteral(".")) || !game().picture().save(folder.filePath(name))) {
        m_engine.throwError(folder.filePath(name) + QStringLiteral(" cannot be written"));
    }
}

QJSValue ScenarioGame::keys()
{
    return toScript(m_engine, game().gameData().gameObjects().keys());
}

QJSValue ScenarioGame::object(const QString& key)
{
    const auto record = game().gameData().gameObjects().objectForKey(key.toStdString());
    if (!record) {
        return QJSValue::NullValue;
    }
    QJSValue value = m_engine.newObject();
    value.setProperty(QStringLiteral("image"), QString::fromStdString(record->imageName()));
    value.setProperty(QStringLiteral("x"), record->x());
    value.setProperty(QStringLiteral("y"), record->y());
    value.setProperty(QStringLiteral("width"), record->width());
    value.setProperty(QStringLiteral("height"), record->height());
    value.setProperty(QStringLiteral("opacity"), record->opacity());
    value.setProperty(QStringLiteral("visible"), record->visible());
    return value;
}

QString ScenarioGame::text(const QString& key)
{
    const auto record = game().gameData().gameObjects().objectForKey(key.toStdString());
    return record && record->text() ? QString::fromStdString(record->text()->text) : QString();
}

QJSValue ScenarioGame::layer(const QString& key)
{
    const auto* const layer = game().game().layers().layerForKey(key.toStdString());
    if (layer == nullptr) {
        return QJSValue::NullValue;
    }
    const double height = game().gameData().gameHeight();
    const auto inGameHeights
        = [height](float points) { return static_cast<double>(points) / height; };
    QJSValue value = m_engine.newObject();
    value.setProperty(QStringLiteral("x"), inGameHeights(layer->shownPosition().x));
    value.setProperty(QStringLiteral("y"), inGameHeights(layer->shownPosition().y));
    value.setProperty(QStringLiteral("width"), inGameHeights(layer->shownBounds().width));
    value.setProperty(QStringLiteral("height"), inGameHeights(layer->shownBounds().height));
    value.setProperty(QStringLiteral("opacity"), static_cast<double>(layer->shownOpacity()));
    value.setProperty(QStringLiteral("z"), static_cast<double>(layer->zPosition()));
    value.setProperty(QStringLiteral("hidden"), layer->isHidden());
    value.setProperty(QStringLiteral("glow"), static_cast<double>(layer->glow()));
    return value;
}

QString ScenarioGame::cursor()
{
    const auto name = input::nameOf(game().controller().answers().cursor());
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QString ScenarioGame::tip()
{
    return QString::fromStdString(game().controller().answers().tip());
}

QString ScenarioGame::whisper()
{
    return QString::fromStdString(game().controller().answers().whisper());
}

QJSValue ScenarioGame::extras()
{
    const auto shown = game().game().layers().extras().shown();
    QJSValue list = m_engine.newArray(static_cast<uint>(shown.size()));
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto& extra = shown[i];
        QJSValue value = m_engine.newObject();
        const std::string kind(present::nameOf(extra.kind));
        value.setProperty(QStringLiteral("kind"), QString::fromStdString(kind));
        value.setProperty(QStringLiteral("key"), QString::fromStdString(extra.key));
        value.setProperty(QStringLiteral("x"), extra.rect.x);
        value.setProperty(QStringLiteral("y"), extra.rect.y);
        value.setProperty(QStringLiteral("width"), extra.rect.width);
        value.setProperty(QStringLiteral("height"), extra.rect.height);
        value.setProperty(QStringLiteral("opacity"), extra.opacity);
        value.setProperty(QStringLiteral("text"), QString::fromStdString(extra.text));
        list.setProperty(static_cast<quint32>(i), value);
    }
    return list;
}

QJSValue ScenarioGame::lines()
{
    std::vector<std::string> lines;
    if (const auto& proof = game().controller().proof()) {
        for (const engine::Theorem& line : proof->lines()) {
            lines.push_back(line.theorem());
        }
    }
    return toScript(m_engine, lines);
}

QString ScenarioGame::goal()
{
    const auto& proof = game().controller().proof();
    return proof ? QString::fromStdString(proof->goal().theorem()) : QString();
}

int ScenarioGame::par()
{
    return game().currentGame().par();
}
int ScenarioGame::level()
{
    return game().currentGame().level();
}
int ScenarioGame::stage()
{
    return game().currentGame().stage();
}
double ScenarioGame::score()
{
    return static_cast<double>(game().currentGame().score());
}
bool ScenarioGame::endless()
{
    return game().currentGame().endlessGame();
}

double ScenarioGame::endlessScore()
{
    return static_cast<double>(game().currentGame().endlessScore());
}

int ScenarioGame::endlessPar()
{
    return game().currentGame().endlessPar();
}
int ScenarioGame::highestRule()
{
    return game().currentGame().highestRule();
}
int ScenarioGame::hintMode()
{
    return game().controller().hints().hintMode();
}
int ScenarioGame::dialogueState()
{
    return game().controller().dialogueState();
}

QString ScenarioGame::page()
{
    return QString::fromStdString(game().controller().messages().page());
}

bool ScenarioGame::blocked()
{
    return game().game().view().block().blockClick();
}

QJSValue ScenarioGame::actions()
{
    const auto& controller = game().controller();
    QJSValue list = m_engine.newArray();
    if (blocked() || game().game().view().messageWindow() || controller.dialogueState() != 0) {
        return list;
    }
    quint32 count = 0;
    for (const play::Gesture& gesture : play::actions(game().controller().moves().position())) {
        QJSValue action = m_engine.newObject();
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            action.setProperty(QStringLiteral("click"), chipAt(click->row, click->column));
        } else if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
            QJSValue ends = m_engine.newArray(2);
            ends.setProperty(0, chipAt(drag->fromRow, drag->from));
            ends.setProperty(1, chipAt(drag->toRow, drag->to));
            action.setProperty(QStringLiteral("drag"), ends);
        }
        list.setProperty(count++, action);
    }
    return list;
}

QString ScenarioGame::hash()
{
    const play::Session* const session = game().controller().flow().session();
    return QStringLiteral("%1").arg(
        session != nullptr ? session->hash() : play::Replay().hash(), 16, 16, QLatin1Char('0'));
}

QJSValue ScenarioGame::alert()
{
    const auto& alerts = game().installation().alerts;
    if (!alerts.isOpen()) {
        return QJSValue::NullValue;
    }
    const platform::Alert& shown = alerts.alert();
    QJSValue value = m_engine.newObject();
    value.setProperty(QStringLiteral("message"), QString::fromStdString(shown.message));
    value.setProperty(QStringLiteral("text"), QString::fromStdString(shown.informativeText));
    value.setProperty(QStringLiteral("buttons"),
        toScript(m_engine,
            shown.alternateButton.empty()
                ? std::vector<std::string> { shown.defaultButton }
                : std::vector<std::string> { shown.defaultButton, shown.alternateButton }));
    return value;
}

void ScenarioGame::answer(const QString& button)
{
    using Button = platform::AlertAnswer::Button;
    auto& alerts = game().installation().alerts;
    const std::string text = button.toStdString();
    if (!alerts.isOpen()
        || (alerts.alert().defaultButton != text && alerts.alert().alternateButton != text)) {
        m_engine.throwError(QStringLiteral("nothing asks for \"%1\"").arg(button));
        return;
    }
    alerts.answer(
        { .button = alerts.alert().defaultButton == text ? Button::Default : Button::Alternate });
}

QJSValue ScenarioGame::sounds()
{
    return toScript(m_engine, game().sounds().takePlayed());
}

QJSValue ScenarioGame::music()
{
    const auto& loop = game().sounds().loop();
    if (!loop) {
        return QJSValue::NullValue;
    }
    QJSValue value = m_engine.newObject();
    value.setProperty(QStringLiteral("name"), QString::fromStdString(loop->name));
    value.setProperty(QStringLiteral("volume"), loop->volume);
    value.setProperty(QStringLiteral("looping"), true);
    return value;
}

QJSValue ScenarioGame::preference(const QString& key)
{
    const auto value = game().preferences().value(key.toStdString());
    if (value) {
        return toScript(*value);
    }
    const auto record = game().preferences().record(key.toStdString());
    return record ? toScript(m_engine, *record) : QJSValue(QJSValue::NullValue);
}

std::string ScenarioGame::recordKey()
{
    return progress::playerRecordKey(game().preferences().stringForKey(progress::kPlayerNameKey));
}

QJSValue ScenarioGame::record()
{
    const auto record = game().preferences().record(recordKey());
    return record ? toScript(m_engine, *record) : QJSValue(QJSValue::NullValue);
}

QJSValue ScenarioGame::overlay()
{
    const auto& opened = game().overlay().opened();
    if (!opened) {
        return QJSValue::NullValue;
    }
    QJSValue value = m_engine.newObject();
    value.setProperty(QStringLiteral("image"), QString::fromStdString(opened->imageName));
    value.setProperty(QStringLiteral("x"), static_cast<double>(opened->frame.x));
    value.setProperty(QStringLiteral("y"), static_cast<double>(opened->frame.y));
    value.setProperty(QStringLiteral("width"), static_cast<double>(opened->frame.width));
    value.setProperty(QStringLiteral("height"), static_cast<double>(opened->frame.height));
    return value;
}

bool ScenarioGame::terminated()
{
    return m_hasQuit || game().quit().terminated();
}

} // namespace veyrand::scenario
