#include "controller/Pages.h"

#include "controller/GameController.h"
#include "controller/PageFlow.h"
#include "present/InfoLayer.h"
#include "progress/PlayerRecord.h"

namespace veyrand::controller {

namespace {

// The page that greets the puzzle at 5-5. What it tells comes true with it.
constexpr std::string_view kEndlessUnlocked = "stage45MessageWindow";

void replace(std::string& text, std::string_view placeholder, const std::string& value)
{
    if (const auto at = text.find(placeholder); at != std::string::npos) {
        text.replace(at, placeholder.size(), value);
    }
}

present::InfoLayer::Style styleOf(const Page& page)
{
    const PagePicture& picture = page.background;
    return { .background = { .imageName = picture.image,
                 .x = picture.x,
                 .y = picture.y,
                 .width = picture.width,
                 .height = picture.height },
        .visible = page.kind == Page::Kind::Window,
        .verticalOffset = page.verticalOffset,
        .veil = page.veil };
}

} // namespace

Pages::Pages(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

bool Pages::show(const std::string& name)
{
    const auto found = m_game.script.pages.find(name);
    if (found == m_game.script.pages.end()) {
        return false;
    }
    const Page& page = found->second;
    if (!page.withoutPuzzle.empty() && !m_controller.proof()) {
        return show(page.withoutPuzzle);
    }
    if (name == kEndlessUnlocked && !unlockEndlessGame()) {
        return true; // told before
    }
    if (page.startsTutorial) {
        m_controller.tutorial().start();
    }
    if (page.then && isInForce(page.thenAboveRule)) {
        m_controller.messages().setDisplayMessageWindowOnClick(*page.then);
    }
    if (page.kind == Page::Kind::Note) {
        m_controller.messages().showMessageInfo(build(name), name);
    } else {
        m_controller.messages().showMessageWindow(build(name), name);
    }
    return true;
}

void Pages::showMessageForNewGame(Arrival arrival)
{
    const int level = m_game.currentGame.level();
    const int stage = m_game.currentGame.stage();
    for (const Greeting& greeting : m_game.script.greetings) {
        if (stage == greeting.stage && level >= greeting.firstLevel && level <= greeting.lastLevel
            && (greeting.when == Greeting::When::Always || arrival == Arrival::Solving)) {
            show(greeting.page);
            if (greeting.then) {
                m_controller.messages().setDisplayMessageWindowOnClick(*greeting.then);
            }
            return;
        }
    }
}

bool Pages::isInForce(int aboveRule) const
{
    return aboveRule == 0 || m_game.currentGame.highestRule() > aboveRule;
}

bool Pages::unlockEndlessGame()
{
    if (progress::isEndlessGameUnlocked(m_game.preferences)) {
        return false;
    }
    progress::setEndlessGameUnlocked(m_game.preferences, true);
    return true;
}

void Pages::showInNewWords()
{
    const std::string name = m_controller.messages().page();
    if (!name.empty()) {
        m_controller.messages().replaceWindow([this, name] { return build(name); });
    }
}

// A page that cannot be put into the chosen language is shown in English.
Page Pages::inWords(const std::string& name) const
{
    const Page& english = m_game.script.pages.find(name)->second;
    const language::PageWords* const words = m_game.texts.page(name);
    const language::PageWords* const englishWords = m_game.texts.englishPage(name);
    if (words == nullptr || englishWords == nullptr) {
        return english;
    }
    try {
        return flowed(
            english, *englishWords, *words,
            [this](const std::string& mark) { return valueOf(mark); }, m_game.layers.textMetrics());
    } catch (const std::exception& error) {
        m_game.texts.rejectPage(name, error.what());
        m_game.log.write(
            "languages/" + m_game.texts.code() + "/pages.json: " + name + ": " + error.what());
        return english;
    }
}

std::unique_ptr<present::InfoLayer> Pages::build(const std::string& name) const
{
    const Page page = inWords(name);
    auto window = std::make_unique<present::InfoLayer>(m_game.board.gameData, styleOf(page));
    window->setFontMultiplier(page.fontMultiplier);
    for (const PageBlock& block : page.blocks) {
        if (!isInForce(block.aboveRule)) {
            continue;
        }
        for (const PageLine& line : block.lines) {
            window->addText(filledIn(line.text),
                { .horizontal = line.horizontal, .vertical = line.vertical }, line.color,
                line.size);
        }
        for (const PagePicture& picture : block.pictures) {
            window->fadeInImage(
                picture.image, picture.x, picture.y, picture.width, picture.height, 0.0);
        }
    }
    return window;
}

std::string Pages::filledIn(std::string text) const
{
    for (const char* const mark : { "completed", "rank" }) {
        replace(text, '{' + std::string(mark) + '}', valueOf(mark));
    }
    return text;
}

std::string Pages::valueOf(const std::string& mark) const
{
    return mark == "rank" ? m_game.texts.localized("ranks", rank())
                          : std::to_string(m_game.currentGame.level() - 1);
}

// The rank of the level that has been completed: the one before the current one.
std::string Pages::rank() const
{
    const auto& ranks = m_game.script.ranks;
    const int index = m_game.currentGame.level() - 2;
    return index >= 0 && static_cast<std::size_t>(index) < ranks.size()
        ? ranks[static_cast<std::size_t>(index)]
        : std::string();
}

} // namespace veyrand::controller
