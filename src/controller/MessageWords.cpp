#include "controller/MessageWords.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace veyrand::controller {

namespace {

// What stands no further apart than this, in game heights, stands in one row.
constexpr double kRow = 0.034;
constexpr double kSizesOfHeight = 900.0;

struct WordsOrPicture {
    double left;
    double y;
    std::string words;
    bool isPicture;
};

std::string trimmed(const std::string& text)
{
    const auto begin = text.find_first_not_of(' ');
    const auto end = text.find_last_not_of(' ');
    return begin == std::string::npos ? std::string() : text.substr(begin, end - begin + 1);
}

// A text is cut where a picture fits between its words: two blanks are a sentence's end, more are a
// gap.
void addText(const board::GameObject& record, const platform::TextMetrics& metrics,
    std::vector<WordsOrPicture>& pieces)
{
    constexpr std::size_t kGap = 3;
    const std::string& text = record.text()->text;
    const double em = record.text()->fontSize / kSizesOfHeight;
    const double left = record.x() - metrics.preferredFrameSize(text).width * em / 2.0;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t gap = std::min(text.find(std::string(kGap, ' '), begin), text.size());
        const std::string words = trimmed(text.substr(begin, gap - begin));
        if (!words.empty()) {
            const double before = metrics.preferredFrameSize(text.substr(0, begin)).width * em;
            pieces.push_back({ left + before, record.y(), words, false });
        }
        const std::size_t next = text.find_first_not_of(' ', gap);
        begin = next == std::string::npos ? text.size() : next;
    }
}

void addPicture(
    const board::GameObject& record, const SpokenNames& names, std::vector<WordsOrPicture>& pieces)
{
    const std::string name = names.thing(record.name());
    if (!name.empty()) { // panes, rules and arrows have none
        pieces.push_back({ record.x() - record.width() / 2.0, record.y(), name, true });
    }
}

// Chips beside one another are a list, anything else a text.
std::string joined(const std::vector<WordsOrPicture>& row, const SpokenNames& names)
{
    std::string text;
    for (auto begin = row.begin(); begin != row.end();) {
        std::vector<std::string> list { begin->words };
        const bool isPicture = begin->isPicture;
        for (++begin; isPicture && begin != row.end() && begin->isPicture; ++begin) {
            list.push_back(begin->words);
        }
        text += (text.empty() ? "" : " ") + names.listed(list);
    }
    return text;
}

} // namespace

MessageWords wordsOf(const present::InfoLayer& message, const platform::TextMetrics& metrics,
    const SpokenNames& names)
{
    std::vector<WordsOrPicture> pieces;
    for (const board::GameObjectPtr& record : message.text()) {
        if (record->text()) {
            addText(*record, metrics, pieces);
        }
    }
    for (const board::GameObjectPtr& record : message.images()) {
        addPicture(*record, names, pieces);
    }
    std::stable_sort(pieces.begin(), pieces.end(),
        [](const WordsOrPicture& a, const WordsOrPicture& b) { return a.y > b.y; });
    // What lies on no pane is a note beside the board, and has no heading.
    const auto& images = message.images();
    const bool hasHeading = std::any_of(images.begin(), images.end(),
        [](const auto& record) { return record->imageName() == "MessageBackground"; });
    MessageWords words;
    for (auto begin = pieces.begin(); begin != pieces.end();) {
        const auto end = std::find_if(begin, pieces.end(),
            [y = begin->y](const WordsOrPicture& piece) { return y - piece.y > kRow; });
        std::vector<WordsOrPicture> row(begin, end);
        std::stable_sort(row.begin(), row.end(),
            [](const WordsOrPicture& a, const WordsOrPicture& b) { return a.left < b.left; });
        const std::string text = joined(row, names);
        if (words.title.empty()) {
            words.title = text;
        } else if (!hasHeading) {
            words.title += ' ' + text;
        } else {
            words.body += (words.body.empty() ? "" : " ") + text;
        }
        begin = end;
    }
    return words;
}

} // namespace veyrand::controller
