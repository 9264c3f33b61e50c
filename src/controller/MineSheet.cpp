#include "controller/MineSheet.h"

#include "controller/GameController.h"

#include <algorithm>

namespace veyrand::controller {

using present::SheetDrawing;
using Ink = SheetDrawing::Ink;
using Align = SheetDrawing::Align;

namespace {

constexpr std::string_view kRowKey = "row-";
constexpr std::string_view kLetterKey = "letter-";
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-";
constexpr std::size_t kRows = 8; // on a page
constexpr double kListX = 1092.0;

bool isInsideLetter(char byte) // of UTF-8
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

MineSheet::MineSheet(GameController& controller)
    : m_controller(controller)
{
    const auto& all = controller.shelf().puzzles().all();
    if (!all.empty()) {
        choose(all.back().code);
    }
}

std::string MineSheet::text(const char* id, language::Arguments arguments) const
{
    return m_controller.context().texts.text(std::string("mine.") + id, arguments);
}

const play::MyPuzzle* MineSheet::chosen() const
{
    return m_controller.shelf().puzzles().of(m_chosen);
}

std::size_t MineSheet::indexOfChosen() const
{
    const auto& all = m_controller.shelf().puzzles().all();
    const auto found = std::find_if(all.begin(), all.end(),
        [this](const play::MyPuzzle& puzzle) { return puzzle.code == m_chosen; });
    return static_cast<std::size_t>(found - all.begin());
}

void MineSheet::choose(const std::string& code)
{
    m_chosen = code;
    m_page = indexOfChosen() / kRows;
}

std::string MineSheet::firstFocus() const
{
    return chosen() != nullptr ? std::string(kRowKey) + m_chosen : "editor";
}

bool MineSheet::goBack()
{
    const bool wasWriting = m_newName.has_value();
    if (wasWriting) {
        m_newName.reset();
        m_controller.sheets().focusOn(firstFocus());
        m_controller.sheets().changed();
    }
    return wasWriting;
}

void MineSheet::pressRow(const std::string& code)
{
    if (code == m_chosen) {
        play();
    } else {
        choose(code);
    }
}

void MineSheet::turn(int pages)
{
    const std::size_t count = m_controller.shelf().puzzles().all().size();
    if (pages < 0 && m_page > 0) {
        --m_page;
    } else if (pages > 0 && (m_page + 1) * kRows < count) {
        ++m_page;
    }
}

void MineSheet::play()
{
    if (const auto* const puzzle = chosen()) {
        m_controller.practice().openOrTell(puzzle->code);
    }
}

void MineSheet::edit()
{
    if (const auto* const puzzle = chosen()) {
        const auto read = play::readCode(puzzle->code);
        if (const auto* const lines = std::get_if<play::CodedPuzzle>(&read)) {
            m_controller.shelf().setDraft(*lines);
            m_controller.sheets().openEditor();
        }
    }
}

void MineSheet::remove()
{
    const auto* const puzzle = chosen();
    if (puzzle == nullptr) {
        return;
    }
    GameController& controller = m_controller; // the sheet may have gone when the answer comes
    controller.context().alerts.show({ .message = text("askRemove", { { "name", puzzle->name } }),
                                         .informativeText = text("askRemoveMore"),
                                         .defaultButton = text("remove"),
                                         .alternateButton = text("keep") },
        [&controller, code = puzzle->code](const platform::AlertAnswer& answer) {
            if (answer.button != platform::AlertAnswer::Button::Default) {
                return;
            }
            controller.shelf().remove(code);
            if (controller.sheets().name() == "mine") {
                controller.sheets().openMine();
            }
        });
}

void MineSheet::copy()
{
    auto* const clipboard = m_controller.context().clipboard;
    if (clipboard != nullptr && chosen() != nullptr) {
        clipboard->setText(m_chosen);
    }
}

void MineSheet::paste()
{
    m_controller.sheets().paste([this](const std::string& text) { pasted(text); });
}

// A code is saved, if its goal can be reached: what is played here has a par.
void MineSheet::pasted(const std::string& text)
{
    const std::string fault = m_controller.practice().whyNot(text);
    if (!fault.empty()) {
        return m_controller.practice().tell(fault);
    }
    const auto puzzle = std::get<play::CodedPuzzle>(play::readCode(play::codeInLink(text)));
    const std::string code = play::codeOf(puzzle.root, puzzle.goal).value_or(std::string());
    m_controller.shelf().add(code);
    m_newName.reset(); // begun for another while the text was asked for
    choose(code);
    m_controller.sheets().focusOn(firstFocus());
}

void MineSheet::beginName()
{
    if (const auto* const puzzle = chosen()) {
        m_newName = puzzle->name == puzzle->code ? std::string() : puzzle->name;
        m_controller.sheets().focusOn("done");
    }
}

void MineSheet::endName()
{
    if (m_newName) {
        m_controller.shelf().rename(m_chosen, *m_newName);
        goBack();
    }
}

void MineSheet::write(std::string_view letter)
{
    const std::string longer = *m_newName + std::string(letter);
    const auto letters = static_cast<std::size_t>(std::count_if(
        longer.begin(), longer.end(), [](char byte) { return !isInsideLetter(byte); }));
    if (letters <= play::MyPuzzles::kLongestName) {
        m_newName = longer;
    }
}

void MineSheet::rubOut()
{
    while (!m_newName->empty() && isInsideLetter(m_newName->back())) {
        m_newName->pop_back();
    }
    if (!m_newName->empty()) {
        m_newName->pop_back();
    }
}

void MineSheet::press(const std::string& key)
{
    if (key.starts_with(kRowKey)) {
        pressRow(key.substr(kRowKey.size()));
    } else if (m_newName && key.starts_with(kLetterKey)) {
        write(key.substr(kLetterKey.size()));
    } else if (m_newName && (key == "blank" || key == "rub-out")) {
        key == "blank" ? write(" ") : rubOut();
    } else if (key == "done") {
        endName();
    } else if (key == "cancel") {
        goBack();
    } else if (key == "play") {
        play();
    } else if (key == "edit") {
        edit();
    } else if (key == "rename") {
        beginName();
    } else if (key == "remove") {
        remove();
    } else if (key == "copy-code") {
        copy();
    } else if (key == "paste-code") {
        paste();
    } else if (key == "editor") {
        m_controller.sheets().openEditor();
    } else if (key == "menu") {
        m_controller.sheets().close();
    } else if (key == "before" || key == "after") {
        turn(key == "before" ? -1 : 1);
    }
}

// Letters as the keys are called: capitals, and small ones without Shift.
bool MineSheet::takeKeyForName(std::string_view keys)
{
    constexpr std::string_view kShift = "Shift+";
    const bool isShifted = keys.starts_with(kShift) && keys.size() > kShift.size();
    const std::string_view letter = isShifted ? keys.substr(kShift.size()) : keys;
    const bool isOne = std::count_if(letter.begin(), letter.end(), [](char byte) {
        return !isInsideLetter(byte);
    }) == 1;
    if (keys == "Backspace") {
        rubOut();
    } else if (keys == "Space") {
        write(" ");
    } else if (isOne) {
        std::string written(letter);
        const bool isCapital = written.size() == 1 && written[0] >= 'A' && written[0] <= 'Z';
        if (isCapital && !isShifted) {
            written[0] = static_cast<char>(written[0] - 'A' + 'a');
        }
        write(written);
    } else {
        return false;
    }
    return true;
}

bool MineSheet::takeKey(std::string_view keys)
{
    if (m_newName) {
        return takeKeyForName(keys);
    }
    if (keys == "Ctrl+C") {
        copy();
    } else if (keys == "Ctrl+V") {
        paste();
    } else if (keys == "Del") {
        remove();
    } else if (keys == "F2") {
        beginName();
    } else if (keys == "PgUp" || keys == "PgDown") {
        turn(keys == "PgUp" ? -1 : 1);
    } else {
        return false;
    }
    return true;
}

std::string MineSheet::stateOf(const play::MyPuzzle& puzzle) const
{
    const play::Result* const result = m_controller.book().results().of(puzzle.code);
    return result == nullptr ? text("notSolved")
                             : text(result->over() == 0 ? "solvedAtPar" : "solvedIn",
                                 { { "moves", static_cast<std::int64_t>(result->moves.size()) } });
}

std::string MineSheet::told() const
{
    if (m_newName) {
        return text("newName") + ": " + *m_newName;
    }
    const auto* const puzzle = chosen();
    return puzzle == nullptr
        ? text("empty")
        : text("said", { { "name", puzzle->name }, { "state", stateOf(*puzzle) } });
}

void MineSheet::draw(SheetDrawing& drawing) const
{
    drawing.pane(kListX, 500, 968, 916);
    if (m_newName) {
        drawLetters(drawing);
    } else {
        drawRows(drawing);
    }
    drawPanel(drawing);
}

void MineSheet::drawRows(SheetDrawing& drawing) const
{
    const auto& all = m_controller.shelf().puzzles().all();
    if (all.empty()) {
        drawing.paragraph(text("empty"), kListX, 460, 38, Ink::Ivory, 660);
        return;
    }
    for (std::size_t row = 0; row < kRows && m_page * kRows + row < all.size(); ++row) {
        drawRow(drawing, all[m_page * kRows + row], 136.0 + 92.0 * static_cast<double>(row));
    }
    const auto arrow = [&](const char* key, const char* picture, double x, bool isThere) {
        if (isThere) {
            drawing.picture("PuzzleChosen", x, 894, 62, 62, drawing.isFocused(key) ? 1.0 : 0.0);
            drawing.picture(picture, x, 894, 34, 34);
            drawing.place(key, text(key), x, 894, 90, 70);
        }
    };
    arrow("before", "BackGold", 1012, m_page > 0);
    arrow("after", "OnGold", 1172, (m_page + 1) * kRows < all.size());
    if (all.size() > kRows) {
        drawing.words(std::to_string(m_page + 1), kListX, 894, 34, Ink::Ivory);
    }
}

void MineSheet::drawRow(SheetDrawing& drawing, const play::MyPuzzle& puzzle, double y) const
{
    const std::string key = std::string(kRowKey) + puzzle.code;
    const play::Result* const result = m_controller.book().results().of(puzzle.code);
    if (puzzle.code == m_chosen) {
        drawing.picture("BarOpen", kListX, y, 872, 80);
        drawing.picture("BarGold", 660, y, 6, 80);
    }
    if (drawing.isFocused(key)) {
        for (const double edge : { -41.0, 41.0 }) {
            drawing.picture("BarPlain", kListX, y + edge, 872, 4);
        }
    }
    drawing.words(puzzle.name, 690, y - 15, 34, Ink::Ivory, Align::Left, 560);
    drawing.words(puzzle.code, 690, y + 20, 23, Ink::Pale, Align::Left, 560);
    drawing.words(stateOf(puzzle), result != nullptr && result->over() == 0 ? 1470 : 1510, y, 26,
        Ink::Ivory, Align::Right, 250);
    if (result != nullptr && result->over() == 0) {
        drawing.picture("PuzzleStar", 1496, y, 28, 28);
    }
    drawing.place(key, text("said", { { "name", puzzle.name }, { "state", stateOf(puzzle) } }),
        kListX, y, 872, 84);
}

void MineSheet::drawLetters(SheetDrawing& drawing) const
{
    constexpr std::size_t kInRow = 10;
    drawing.card(kListX, 240, 474, 282);
    drawing.words(text("newName"), kListX, 160, 30, Ink::Dark, Align::Middle, 430);
    drawing.words(*m_newName + "|", kListX, 244, 40, Ink::Dark, Align::Middle, 430);
    for (std::size_t i = 0; i < kLetters.size(); ++i) {
        const std::string letter(1, kLetters[i]);
        const std::size_t row = i / kInRow;
        drawing.button(std::string(kLetterKey) + letter, letter,
            726.0 + 81.0 * static_cast<double>(i % kInRow), 440.0 + 74.0 * static_cast<double>(row),
            66, 58);
    }
    drawing.button("blank", text("blank"), 860, 752, 232, 66);
    drawing.button("rub-out", text("rubOut"), 1324, 752, 232, 66);
    drawing.button("done", text("done"), 860, 850, 232, 74, SheetDrawing::Button::Main);
    drawing.button("cancel", text("cancel"), 1324, 850, 232, 74);
}

void MineSheet::drawPanel(SheetDrawing& drawing) const
{
    const auto count = static_cast<std::int64_t>(m_controller.shelf().puzzles().all().size());
    drawing.title(title());
    drawing.words(text("count", { { "number", count } }), SheetDrawing::kPanelMiddle, 150, 33,
        Ink::Ivory, Align::Middle, 470);
    drawCard(drawing);
    if (m_newName) {
        return;
    }
    if (chosen() != nullptr) {
        drawing.button("play", text("play"), SheetDrawing::kFirstColumn, 606, 232, 74,
            SheetDrawing::Button::Main);
        drawing.button("edit", text("edit"), SheetDrawing::kSecondColumn, 606, 232, 74);
        drawing.button("rename", text("rename"), SheetDrawing::kFirstColumn, 694, 232, 66);
        drawing.button("remove", text("remove"), SheetDrawing::kSecondColumn, 694, 232, 66);
        drawing.button("copy-code", text("copyCode"), SheetDrawing::kFirstColumn, 780, 232, 66);
    }
    drawing.button("paste-code", text("pasteCode"), SheetDrawing::kSecondColumn, 780, 232, 66);
    drawing.button("editor", text("editor"), SheetDrawing::kFirstColumn, 866, 232, 66);
    drawing.button("menu", text("menu"), SheetDrawing::kSecondColumn, 866, 232, 66);
}

void MineSheet::drawCard(SheetDrawing& drawing) const
{
    constexpr double kPitch = 34.0; // twelve fit
    const auto* const puzzle = chosen();
    if (puzzle == nullptr) {
        return;
    }
    drawing.card(SheetDrawing::kPanelMiddle, 384, 474, 282);
    const auto read = play::readCode(puzzle->code);
    const auto& lines = std::get<play::CodedPuzzle>(read);
    const auto& texts = m_controller.context().texts;
    drawing.words(puzzle->name, SheetDrawing::kPanelMiddle, 274, 33, Ink::Dark, Align::Middle, 430);
    drawing.words(texts.text("practice.from"), 98, 316, 25, Ink::Dark, Align::Left);
    drawing.chips(lines.root, 96, 350, kPitch);
    drawing.words(texts.text("practice.to"), 98, 396, 25, Ink::Dark, Align::Left);
    drawing.chips(lines.goal, 96, 430, kPitch);
    drawing.words(
        stateOf(*puzzle), SheetDrawing::kPanelMiddle, 484, 28, Ink::Dark, Align::Middle, 430);
}

} // namespace veyrand::controller
