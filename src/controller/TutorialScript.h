#pragma once

#include "board/TextStyle.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::controller {

// Everything the game says and teaches, as data: plain values read once from assets/tutorial, in
// the order and with the names of those files. Pages are named after the operations that open them.
// Nothing here knows how a page is shown or when a gate is asked.

// Where a text of another language may stand instead of English's lines.
struct PageRoom {
    enum class Align { Centre, Left };

    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;
    Align align = Align::Centre; // about the place of English's first line; or from the left
};

// Offsets and places in game heights; sizes as for TextStyle.
struct PageLine {
    std::string text; // to the letter: the pictures sit in the gaps that its blanks leave
    double horizontal = 0.0;
    double vertical = 0.0;
    double size = 60.0;
    board::Color color {};
    std::optional<PageRoom> room {}; // of this line and those below it, up to the next with a room
};

struct PagePicture {
    std::string image;
    double x = 0.0; // of the centre
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
};

// A page is one block, except for the lists of moves, which grow with the moves in force.
struct PageBlock {
    int aboveRule = 0; // shown only while the highest move in force is above this
    std::vector<PageLine> lines;
    std::vector<PagePicture> pictures;
};

struct Page {
    enum class Kind {
        Window, // takes every press until it is clicked away
        Note, // play goes on beside it; the press that dismisses it also plays
    };
    Kind kind = Kind::Window;
    PagePicture background; // a note may have none
    float verticalOffset = 0.0F;
    float fontMultiplier = 1.0F;
    float veil = 0.0F;
    std::vector<PageBlock> blocks;

    // The code that the page leaves for the click that closes it (a key of the script's chains),
    // and how high the highest move must be for that. Without one the code stays as it is.
    std::optional<int> then;
    int thenAboveRule = 0;
    std::string withoutPuzzle; // the page shown instead while no puzzle is in play
    bool startsTutorial = false;
};

// One lesson that accepts only the gesture it asks for.
struct Gate {
    struct Cell {
        int row = 0;
        int column = 0;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    struct Cells {
        Cell from;
        Cell to;
        friend bool operator==(const Cells&, const Cells&) = default;
    };

    int level = 0;
    int stage = 0;
    std::optional<unsigned> lines; // how many stand, the start line included; any number if empty
    std::optional<Cell> click; // a gate has either a click, which leaves drags alone,
    std::optional<Cells> drag; // or a drag, which leaves no click
    std::string otherwise; // the note that answers every other gesture
    std::string then; // the note that follows the right click,
    double after = 0.0; // this many seconds later
};

struct Greeting {
    enum class When { Always, Arriving }; // arriving: not when a saved game is resumed there
    int firstLevel = 0;
    int lastLevel = 0;
    int stage = 0;
    When when = When::Always;
    std::string page;
    std::optional<int> then; // the code left for the click, as for a page
};

struct TutorialScript {
    std::map<std::string, Page, std::less<>> pages;
    std::vector<Gate> gates;
    std::vector<Greeting> greetings; // the first that fits is shown
    std::map<int, std::string> chains; // code: the page that the closing click opens
    std::vector<std::string> ranks; // from the first level's up

    // What was wrong with the files, a line each with the file's name; empty when all were read.
    std::string errors;
};

} // namespace veyrand::controller
