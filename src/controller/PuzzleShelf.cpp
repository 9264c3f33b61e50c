#include "controller/PuzzleShelf.h"

#include "controller/GameController.h"

#include <algorithm>

namespace veyrand::controller {

PuzzleShelf::PuzzleShelf(GameController& controller)
    : m_game(controller.context())
    , m_file(controller, "puzzles")
{
}

void PuzzleShelf::load()
{
    auto read = play::MyPuzzles::read(m_file.read());
    m_puzzles = std::move(read.puzzles);
    if (m_file.putAside(read.damaged)) {
        save();
    }
}

play::MyPuzzles::Saving PuzzleShelf::add(const std::string& code)
{
    const auto& all = m_puzzles.all();
    std::string name;
    for (std::size_t number = all.size() + 1; name.empty(); ++number) {
        name = m_game.texts.text("practice.puzzle", { { "name", std::to_string(number) } });
        if (std::any_of(all.begin(), all.end(),
                [&name](const play::MyPuzzle& each) { return each.name == name; })) {
            name.clear();
        }
    }
    const auto saving = m_puzzles.add(code, name);
    if (saving == play::MyPuzzles::Saving::Saved) {
        save();
    }
    return saving;
}

void PuzzleShelf::rename(const std::string& code, const std::string& name)
{
    if (m_puzzles.rename(code, name)) {
        save();
    }
}

void PuzzleShelf::remove(const std::string& code)
{
    if (m_puzzles.remove(code)) {
        save();
    }
}

void PuzzleShelf::replace(const play::MyPuzzles& others)
{
    m_puzzles = others;
    save();
}

void PuzzleShelf::save()
{
    m_file.write(m_puzzles.lines());
}

} // namespace veyrand::controller
