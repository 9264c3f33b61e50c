#include "controller/TutorialScriptReader.h"

#include "language/Json.h"

#include <array>
#include <set>
#include <stdexcept>
#include <utility>

namespace veyrand::controller {

namespace {

using language::Json;

constexpr std::array kPageFiles { "introductions", "notes", "moves", "messages" };

[[noreturn]] void fail(const std::string& reason)
{
    throw std::invalid_argument(reason);
}

// An object whose every field must be asked for: what is left at the end is a mistake.
class Fields {
public:
    Fields(const Json& object, std::string place)
        : m_object(object)
        , m_place(std::move(place))
    {
        if (!object.is_object()) {
            fail(m_place + " is no object");
        }
    }

    [[nodiscard]] const Json* find(const std::string& name)
    {
        m_asked.insert(name);
        const auto found = m_object.find(name);
        return found == m_object.end() ? nullptr : &*found;
    }

    [[nodiscard]] const Json& get(const std::string& name)
    {
        const Json* const value = find(name);
        if (value == nullptr) {
            fail(m_place + " has no \"" + name + '"');
        }
        return *value;
    }

    template <class T> [[nodiscard]] T get(const std::string& name, T otherwise)
    {
        const Json* const value = find(name);
        return value == nullptr ? std::move(otherwise) : as<T>(*value, name);
    }

    template <class T> [[nodiscard]] T required(const std::string& name)
    {
        return as<T>(get(name), name);
    }

    template <class T> [[nodiscard]] std::optional<T> optional(const std::string& name)
    {
        const Json* const value = find(name);
        return value == nullptr ? std::nullopt : std::optional(as<T>(*value, name));
    }

    template <std::size_t N> [[nodiscard]] std::array<double, N> numbers(const std::string& name)
    {
        const Json& list = get(name);
        if (!list.is_array() || list.size() != N) {
            fail(m_place + ": \"" + name + "\" is no list of " + std::to_string(N) + " numbers");
        }
        std::array<double, N> values {};
        for (std::size_t i = 0; i < N; ++i) {
            values.at(i) = as<double>(list[i], name);
        }
        return values;
    }

    void end() const
    {
        for (const auto& [name, value] : m_object.items()) {
            if (!m_asked.contains(name)) {
                fail(m_place + " has an unknown \"" + name + '"');
            }
        }
    }

    [[nodiscard]] const std::string& place() const { return m_place; }

private:
    template <class T> [[nodiscard]] T as(const Json& value, const std::string& name) const
    {
        bool fits = value.is_number();
        if constexpr (std::is_same_v<T, std::string>) {
            fits = value.is_string();
        } else if constexpr (std::is_same_v<T, bool>) {
            fits = value.is_boolean();
        } else if constexpr (std::is_unsigned_v<T>) {
            fits = value.is_number_unsigned();
        } else if constexpr (std::is_integral_v<T>) {
            fits = value.is_number_integer();
        }
        if (!fits) {
            fail(m_place + ": \"" + name + "\" is of the wrong kind");
        }
        return value.get<T>();
    }

    const Json& m_object;
    std::string m_place;
    std::set<std::string> m_asked;
};

struct LineStyle {
    board::Color color {};
    double size = PageLine {}.size;
};
using Styles = std::map<std::string, LineStyle>;

// The pages of one kind look alike unless they say otherwise.
Page usualPage(Page::Kind kind)
{
    Page page;
    page.kind = kind;
    if (kind == Page::Kind::Window) {
        page.background = {
            .image = "MessageBackground", .x = 0.8, .y = 0.5, .width = 1.066667, .height = 0.66667
        };
        page.verticalOffset = 0.1F;
        page.veil = 0.25F;
    } else {
        page.verticalOffset = 0.135F;
    }
    return page;
}

PagePicture readPicture(const Json& json, const std::string& place)
{
    Fields fields(json, place);
    const auto at = fields.numbers<2>("at");
    const auto size = fields.numbers<2>("size");
    PagePicture picture { .image = fields.required<std::string>("image"),
        .x = at[0],
        .y = at[1],
        .width = size[0],
        .height = size[1] };
    fields.end();
    return picture;
}

PageRoom readRoom(Fields& fields)
{
    const auto room = fields.numbers<4>("room");
    const auto align = fields.get("align", std::string("centre"));
    if (align != "centre" && align != "left") {
        fail(fields.place() + ": there is no align \"" + align + '"');
    }
    return { .left = room[0],
        .bottom = room[1],
        .right = room[2],
        .top = room[3],
        .align = align == "left" ? PageRoom::Align::Left : PageRoom::Align::Centre };
}

// A line is a text, or an object when it stands elsewhere or looks different.
PageLine readLine(const Json& json, const Styles& styles, const std::string& place)
{
    if (json.is_string()) {
        return { .text = json.get<std::string>() };
    }
    Fields fields(json, place);
    PageLine line { .text = fields.required<std::string>("text"),
        .horizontal = fields.get("h", 0.0),
        .vertical = fields.get("v", 0.0) };
    if (const auto name = fields.optional<std::string>("style")) {
        const auto style = styles.find(*name);
        if (style == styles.end()) {
            fail(place + ": there is no style \"" + *name + '"');
        }
        line.size = style->second.size;
        line.color = style->second.color;
    }
    line.size = fields.get("size", line.size);
    if (fields.find("room") != nullptr) {
        line.room = readRoom(fields);
    }
    fields.end();
    return line;
}

// Works through a list, or does nothing when there is none.
template <class Function> void forEach(const Json* list, const std::string& place, Function&& read)
{
    if (list == nullptr) {
        return;
    }
    if (!list->is_array()) {
        fail(place + " is no list");
    }
    for (std::size_t i = 0; i < list->size(); ++i) {
        read((*list)[i], place + ' ' + std::to_string(i + 1));
    }
}

PageBlock readLinesAndPictures(Fields& fields, const Styles& styles)
{
    PageBlock block;
    forEach(&fields.get("lines"), fields.place() + ", line",
        [&](const Json& line, const std::string& place) {
            block.lines.push_back(readLine(line, styles, place));
        });
    forEach(fields.find("pictures"), fields.place() + ", picture",
        [&](const Json& picture, const std::string& place) {
            block.pictures.push_back(readPicture(picture, place));
        });
    return block;
}

std::vector<PageBlock> readBlocks(Fields& page, const Styles& styles)
{
    std::vector<PageBlock> blocks;
    if (const Json* const list = page.find("blocks")) {
        forEach(list, page.place() + ", block", [&](const Json& json, const std::string& place) {
            Fields fields(json, place);
            const int aboveRule = fields.get("aboveRule", 0);
            blocks.push_back(readLinesAndPictures(fields, styles));
            blocks.back().aboveRule = aboveRule;
            fields.end();
        });
    } else {
        blocks.push_back(readLinesAndPictures(page, styles));
    }
    return blocks;
}

Page::Kind readKind(Fields& fields)
{
    const auto kind = fields.get("kind", std::string("window"));
    if (kind != "window" && kind != "note") {
        fail(fields.place() + ": there is no kind \"" + kind + '"');
    }
    return kind == "note" ? Page::Kind::Note : Page::Kind::Window;
}

Page readPage(Fields& fields, const Styles& styles)
{
    Page page = usualPage(readKind(fields));
    if (const Json* const background = fields.find("background")) {
        page.background = readPicture(*background, fields.place() + ", background");
    }
    page.verticalOffset = fields.get("verticalOffset", page.verticalOffset);
    page.fontMultiplier = fields.get("fontMultiplier", page.fontMultiplier);
    page.then = fields.optional<int>("then");
    page.thenAboveRule = fields.get("thenAboveRule", 0);
    page.withoutPuzzle = fields.get("withoutPuzzle", std::string());
    page.startsTutorial = fields.get("startsTutorial", false);
    page.blocks = readBlocks(fields, styles);
    return page;
}

Gate readGate(const Json& json, const std::string& place)
{
    Fields fields(json, place);
    Gate gate { .level = fields.required<int>("level"),
        .stage = fields.required<int>("stage"),
        .lines = fields.optional<unsigned>("lines"),
        .click = {},
        .drag = {},
        .otherwise = fields.required<std::string>("otherwise"),
        .then = fields.get("then", std::string()),
        .after = fields.get("after", 0.0) };
    const auto cell = [](double row, double column) {
        return Gate::Cell { static_cast<int>(row), static_cast<int>(column) };
    };
    if (fields.find("click") != nullptr) {
        const auto at = fields.numbers<2>("click");
        gate.click = cell(at[0], at[1]);
    } else {
        const auto at = fields.numbers<4>("drag");
        gate.drag = Gate::Cells { cell(at[0], at[1]), cell(at[2], at[3]) };
    }
    fields.end();
    return gate;
}

Greeting readGreeting(const Json& json, const std::string& place)
{
    Fields fields(json, place);
    Greeting greeting;
    if (fields.find("levels") != nullptr) {
        const auto levels = fields.numbers<2>("levels");
        greeting.firstLevel = static_cast<int>(levels[0]);
        greeting.lastLevel = static_cast<int>(levels[1]);
    } else {
        greeting.firstLevel = greeting.lastLevel = fields.required<int>("level");
    }
    greeting.stage = fields.required<int>("stage");
    const auto when = fields.get("when", std::string("always"));
    if (when != "always" && when != "arriving") {
        fail(place + R"(: "when" is neither "always" nor "arriving")");
    }
    greeting.when = when == "arriving" ? Greeting::When::Arriving : Greeting::When::Always;
    greeting.page = fields.required<std::string>("page");
    greeting.then = fields.optional<int>("then");
    fields.end();
    return greeting;
}

// Reads one file after another into the script, and writes down what is wrong with each.
class Reader {
public:
    explicit Reader(const platform::Resources& resources)
        : m_resources(resources)
    {
    }

    TutorialScript read()
    {
        readFile("styles", [this](const Json& json) { readStyles(json); });
        for (const char* name : kPageFiles) {
            readFile(name, [this](const Json& json) { readPages(json); });
        }
        readFile("gates", [this](const Json& json) {
            forEach(&json, "gate", [this](const Json& gate, const std::string& place) {
                m_script.gates.push_back(readGate(gate, place));
                checkPage(m_script.gates.back().otherwise, place);
                checkPage(m_script.gates.back().then, place);
            });
        });
        readFile("chains", [this](const Json& json) { readChains(json); });
        readFile("greetings", [this](const Json& json) {
            forEach(&json, "greeting", [this](const Json& greeting, const std::string& place) {
                m_script.greetings.push_back(readGreeting(greeting, place));
                checkPage(m_script.greetings.back().page, place);
                checkCode(m_script.greetings.back().then, place);
            });
        });
        readFile("ranks", [this](const Json& json) {
            forEach(&json, "rank", [this](const Json& rank, const std::string& place) {
                if (!rank.is_string()) {
                    fail(place + " is no text");
                }
                m_script.ranks.push_back(rank.get<std::string>());
            });
        });
        return std::move(m_script);
    }

private:
    template <class Function> void readFile(const std::string& name, Function&& read)
    {
        const std::string file = "tutorial/" + name;
        try {
            const auto bytes = m_resources.dataNamed(file, "json");
            if (!bytes) {
                fail("cannot be read");
            }
            read(language::jsonIn(*bytes));
        } catch (const std::exception& error) {
            m_script.errors += file + ".json: " + error.what() + '\n';
        }
    }

    void readStyles(const Json& json)
    {
        for (const auto& [name, style] : json.items()) {
            Fields fields(style, name);
            const auto color = fields.numbers<4>("color");
            m_styles[name] = { .color = { color[0], color[1], color[2], color[3] },
                .size = fields.get("size", PageLine {}.size) };
            fields.end();
        }
    }

    void readPages(const Json& json)
    {
        for (const auto& [name, page] : json.items()) {
            Fields fields(page, name);
            if (const auto other = fields.optional<std::string>("like")) {
                checkPage(*other, name);
                m_script.pages[name] = m_script.pages.at(*other);
            } else {
                m_script.pages[name] = readPage(fields, m_styles);
            }
            fields.end();
        }
    }

    void readChains(const Json& json)
    {
        for (const auto& [code, page] : json.items()) {
            if (!page.is_string()) {
                fail("code " + code + " is no page's name");
            }
            m_script.chains[std::stoi(code)] = page.get<std::string>();
            checkPage(page.get<std::string>(), "code " + code);
        }
        for (const auto& [name, page] : m_script.pages) {
            checkPage(page.withoutPuzzle, name);
            checkCode(page.then, name);
        }
    }

    void checkPage(const std::string& name, const std::string& place) const
    {
        if (!name.empty() && !m_script.pages.contains(name)) {
            fail(place + ": there is no page \"" + name + '"');
        }
    }

    void checkCode(std::optional<int> code, const std::string& place) const
    {
        if (code.value_or(0) != 0 && !m_script.chains.contains(*code)) {
            fail(place + ": there is no code " + std::to_string(*code));
        }
    }

    const platform::Resources& m_resources;
    TutorialScript m_script;
    Styles m_styles;
};

} // namespace

TutorialScript readTutorialScript(const platform::Resources& resources)
{
    return Reader(resources).read();
}

} // namespace veyrand::controller
