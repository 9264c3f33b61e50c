#include "controller/SpokenNames.h"

#include "board/BoardGeometry.h"
#include "board/PictureNames.h"

#include <algorithm>

namespace veyrand::controller {

namespace {

std::int64_t counted(std::size_t number)
{
    return static_cast<std::int64_t>(number);
}

} // namespace

std::string SpokenNames::text(std::string_view id, language::Arguments arguments) const
{
    return m_texts.text("spoken." + std::string(id), arguments);
}

std::string SpokenNames::inWords(std::int64_t number) const
{
    const std::string id = "numbers." + std::to_string(number);
    return m_texts.knows(id) ? m_texts.text(id) : std::to_string(number);
}

std::string SpokenNames::listed(const std::vector<std::string>& parts) const
{
    std::string list;
    for (const std::string& part : parts) {
        list = list.empty() ? part : text("list", { { "list", list }, { "next", part } });
    }
    return list;
}

std::string SpokenNames::thing(const std::string& english) const
{
    const std::string id = "things." + english;
    return m_texts.knows(id) ? m_texts.text(id) : english;
}

std::string SpokenNames::chip(char letter) const
{
    return letter == '?' ? thing("any chip")
                         : thing(board::nameOfPicture(board::imageForLetter(letter)));
}

std::string SpokenNames::chips(const std::string& line) const
{
    std::vector<std::string> runs;
    for (std::size_t begin = 0; begin < line.size();) {
        const std::size_t end = std::min(line.find_first_not_of(line[begin], begin), line.size());
        const std::int64_t length = counted(end - begin);
        runs.push_back(length == 1 ? chip(line[begin])
                                   : text(std::string("run") + line[begin],
                                       { { "count", length }, { "number", inWords(length) } }));
        begin = end;
    }
    return listed(runs);
}

std::string SpokenNames::line(unsigned row, const std::string& line) const
{
    return row == 0 ? text("startLine", { { "chips", chips(line) } })
                    : text("line", { { "row", counted(row) }, { "chips", chips(line) } });
}

std::string SpokenNames::goal(const std::string& line) const
{
    return text("goal", { { "chips", chips(line) } });
}

std::string SpokenNames::chipInLine(char letter, unsigned row, unsigned column) const
{
    return text(row == 0 ? "chipInStartLine" : "chipInLine",
        { { "chip", chip(letter) }, { "row", counted(row) }, { "place", counted(column + 1) } });
}

std::string SpokenNames::chipInGoal(char letter, unsigned column) const
{
    return text("chipInGoal", { { "chip", chip(letter) }, { "place", counted(column + 1) } });
}

std::string SpokenNames::removal(unsigned row) const
{
    return text("deleteLine", { { "row", counted(row) } });
}

std::string SpokenNames::hintPieces(const std::vector<std::string>& pieces) const
{
    return text("hintPieces", { { "pieces", listed(pieces) } });
}

std::string SpokenNames::question() const
{
    return text("question");
}

std::string SpokenNames::clickAction(char letter) const
{
    const std::string id = std::string("click") + letter;
    return m_texts.knows("spoken." + id) ? text(id) : text("click");
}

std::string SpokenNames::liftAction() const
{
    return text("lift");
}

std::string SpokenNames::dropAction(char letter) const
{
    return text(std::string("drop") + letter);
}

std::string SpokenNames::putBackAction() const
{
    return text("putBack");
}

std::string SpokenNames::pressAction() const
{
    return text("press");
}

std::string SpokenNames::removeAction(unsigned lines) const
{
    return text("pressTakes", { { "lines", counted(lines) }, { "number", inWords(lines) } });
}

std::string SpokenNames::closeAction() const
{
    return text("close");
}

} // namespace veyrand::controller
