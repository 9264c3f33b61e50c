#include "catalogue/Ideas.h"

#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kMostTraces = 3000;
constexpr unsigned kWorthwhileDetour = 4;

enum class Origin : std::uint8_t { Start, Cap, Triple, Split };

// One chip, and what it has been through.
struct Chip {
    char colour = 'Y';
    Origin origin = Origin::Start;
    std::uint16_t source = 0; // which chip it was, before any doubling
    std::uint16_t took = 0; // doublings that it took part in, a bit each
    std::uint16_t side = 0; // those of them that made it as the copy
    bool hasJumped = false;
    bool heldBlue = false; // a split was made at it
};

// A line of such chips, and what has happened on the way to it.
struct Trace {
    std::vector<Chip> chips;
    IdeaSet ideas = 0;
    std::uint16_t nextSource = 0;
    unsigned caps = 0;
    unsigned triples = 0;
    unsigned splits = 0;
    unsigned drops = 0;
    unsigned doublings = 0;
    unsigned jumps = 0;
    unsigned moves = 0;
    bool lastWasJump = false;
    std::vector<std::uint16_t> closed; // chips on both sides of a gap that has closed
};

std::string textOf(const std::vector<Chip>& chips)
{
    std::string text;
    for (const Chip& chip : chips) {
        text += chip.colour;
    }
    return text;
}

bool areParted(const Chip& a, const Chip& b)
{
    return ((a.side ^ b.side) & a.took & b.took) != 0;
}

bool areOne(const Chip& a, const Chip& b)
{
    return a.source == b.source;
}

void note(Trace& trace, Idea idea, bool holds = true)
{
    trace.ideas |= holds ? only(idea) : 0;
}

// What is to be said of any chips that do something together.
void noteMeeting(Trace& trace, std::size_t first, std::size_t last, Idea atSeam)
{
    const auto& chips = trace.chips;
    note(trace, atSeam, areParted(chips[first], chips[last]));
    for (std::size_t i = first; i <= last; ++i) {
        note(trace, Idea::JumpMeets, chips[i].hasJumped);
    }
    for (std::size_t i = 0; i + 1 < trace.closed.size(); i += 2) {
        const auto has = [&](std::uint16_t source) {
            return std::any_of(chips.begin() + static_cast<std::ptrdiff_t>(first),
                chips.begin() + static_cast<std::ptrdiff_t>(last) + 1,
                [source](const Chip& chip) { return chip.source == source; });
        };
        note(trace, Idea::ClosedGap, has(trace.closed[i]) && has(trace.closed[i + 1]));
    }
}

void closeGap(Trace& trace, std::size_t at)
{
    if (at > 0 && at < trace.chips.size()) {
        trace.closed.push_back(trace.chips[at - 1].source);
        trace.closed.push_back(trace.chips[at].source);
    }
}

Chip made(Trace& trace, char colour, Origin origin)
{
    Chip chip;
    chip.colour = colour;
    chip.origin = origin;
    chip.source = trace.nextSource++;
    return chip;
}

auto at(Trace& trace, std::size_t index)
{
    return trace.chips.begin() + static_cast<std::ptrdiff_t>(index);
}

void cap(Trace& trace)
{
    trace.chips.push_back(made(trace, 'G', Origin::Cap));
    note(trace, Idea::TwoCaps, ++trace.caps == 2);
}

void doubleAfter(Trace& trace, std::size_t yellow)
{
    const auto bit = static_cast<std::uint16_t>(1U << trace.doublings);
    note(trace, Idea::Parked, yellow > 0);
    std::vector<Chip> copies;
    for (std::size_t i = yellow + 1; i < trace.chips.size(); ++i) {
        Chip& chip = trace.chips[i];
        note(trace, Idea::CapDoubled, chip.origin == Origin::Cap);
        note(trace, Idea::TripleDoubled, chip.origin == Origin::Triple);
        note(trace, Idea::BlueDoubled, chip.colour == 'B');
        chip.took |= bit;
        copies.push_back(chip);
        copies.back().side |= bit;
    }
    trace.chips.insert(trace.chips.end(), copies.begin(), copies.end());
    ++trace.doublings;
    note(trace, Idea::TwoDoublings, trace.doublings == 2);
    note(trace, Idea::ThreeDoublings, trace.doublings == 3);
}

void makeGreen(Trace& trace, std::size_t first)
{
    noteMeeting(trace, first, first + 2, Idea::SeamTriple);
    note(trace, Idea::SelfTriple,
        areOne(trace.chips[first], trace.chips[first + 1])
            && areOne(trace.chips[first], trace.chips[first + 2]));
    trace.chips.erase(at(trace, first), at(trace, first + 3));
    trace.chips.insert(at(trace, first), made(trace, 'G', Origin::Triple));
    note(trace, Idea::TwoTriples, ++trace.triples == 2);
}

void spendPair(Trace& trace, std::size_t first)
{
    noteMeeting(trace, first, first + 1, Idea::SeamPair);
    note(trace, Idea::SelfPair, areOne(trace.chips[first], trace.chips[first + 1]));
    for (std::size_t i = first; i < first + 2; ++i) {
        note(trace, Idea::CapSpent, trace.chips[i].origin == Origin::Cap);
        note(trace, Idea::TripleSpent, trace.chips[i].origin == Origin::Triple);
        note(trace, Idea::SplitSpent, trace.chips[i].heldBlue);
    }
    trace.chips.erase(at(trace, first), at(trace, first + 2));
    closeGap(trace, first);
    note(trace, Idea::LineEmptied, trace.chips.size() == 1 && trace.chips[0].colour == 'Y');
}

void jump(Trace& trace, std::size_t yellow)
{
    note(trace, Idea::JumpedFirst, trace.moves == 0);
    trace.chips[yellow + 1].hasJumped = true;
    trace.chips[yellow + 2].hasJumped = true;
    std::swap(trace.chips[yellow], trace.chips[yellow + 2]);
    note(trace, Idea::JumpedTwice, ++trace.jumps == 2);
    trace.lastWasJump = true;
}

void split(Trace& trace, std::size_t first)
{
    noteMeeting(trace, first, first + 1, Idea::SeamSplit);
    for (std::size_t i = first; i < first + 2; ++i) {
        note(trace, Idea::CapSplit, trace.chips[i].origin == Origin::Cap);
        note(trace, Idea::TripleSplit, trace.chips[i].origin == Origin::Triple);
        trace.chips[i].heldBlue = true;
    }
    trace.chips.insert(at(trace, first + 1), made(trace, 'B', Origin::Split));
    note(trace, Idea::TwoSplits, ++trace.splits == 2);
}

void dropBetween(Trace& trace, std::size_t first, std::size_t last)
{
    note(trace, Idea::OwnDouble, areOne(trace.chips[first], trace.chips[last]));
    note(trace, Idea::MadeBluesMeet,
        trace.chips[first].origin == Origin::Split && trace.chips[last].origin == Origin::Split);
    for (std::size_t i = first + 1; i < last; ++i) {
        const Chip& chip = trace.chips[i];
        note(trace, Idea::YellowSwallowed, chip.colour == 'Y');
        note(trace, Idea::CopiesSwallowed, chip.side != 0);
        note(trace, Idea::GivenSwallowed,
            chip.colour != 'Y' && chip.origin == Origin::Start && chip.side == 0);
        note(trace, Idea::MadeSwallowed,
            chip.origin == Origin::Cap || chip.origin == Origin::Triple);
    }
    trace.chips.erase(at(trace, first + 1), at(trace, last));
    note(trace, Idea::TwoDrops, ++trace.drops == 2);
}

// Calls visit(trace) for each way in which one rule changes the line.
template <class Visit> void forEachChange(unsigned rule, const Trace& before, const Visit& visit)
{
    const std::string text = textOf(before.chips);
    const auto change = [&](auto make) {
        Trace after = before;
        after.lastWasJump = false;
        make(after);
        ++after.moves;
        visit(std::move(after));
    };
    if (rule == progress::kGreenToEnd) {
        if (text.back() == 'R') {
            change([](Trace& trace) { cap(trace); });
        }
        return;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (rule == progress::kDoubling && text[i] == 'Y') {
            change([i](Trace& trace) { doubleAfter(trace, i); });
        } else if (rule == progress::kThreeReds && text.compare(i, 3, "RRR") == 0) {
            change([i](Trace& trace) { makeGreen(trace, i); });
        } else if (rule == progress::kTwoGreens && text.compare(i, 2, "GG") == 0) {
            change([i](Trace& trace) { spendPair(trace, i); });
        } else if (rule == progress::kFlip && text[i] == 'Y' && i + 2 < text.size()) {
            change([i](Trace& trace) { jump(trace, i); });
        } else if (rule == progress::kSplitGreens && text.compare(i, 2, "GG") == 0) {
            change([i](Trace& trace) { split(trace, i); });
        } else if (rule == progress::kDropBetweenBlues && text[i] == 'B') {
            const std::size_t last = text.find('B', i + 1);
            if (last != std::string::npos && last > i + 1) {
                change([i, last](Trace& trace) { dropBetween(trace, i, last); });
            }
        }
    }
}

// Goes through all shortest solutions of a puzzle.
class Tracer {
public:
    explicit Tracer(const ShortestWays& ways)
        : m_ways(ways)
        , m_longerEnd(
              std::max(ways.lines().front().line.length(), ways.lines().back().line.length()))
    {
    }

    IdeaSet common()
    {
        Trace trace;
        for (const char colour : m_ways.lines().front().line.text()) {
            trace.chips.push_back(made(trace, colour, Origin::Start));
        }
        follow(0, trace);
        return m_common;
    }

private:
    void follow(std::size_t line, const Trace& trace)
    {
        const ShortestWays::Line& from = m_ways.lines()[line];
        if (from.ways.empty()) {
            end(trace);
            return;
        }
        for (const ShortestWays::Way& way : from.ways) {
            const std::string wanted = m_ways.lines()[way.to].line.text();
            for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
                if ((way.moves & only(rule)) == 0 || m_traces >= kMostTraces) {
                    continue;
                }
                forEachChange(rule, trace, [&](Trace&& after) {
                    if (m_traces < kMostTraces && textOf(after.chips) == wanted) {
                        note(after, Idea::Detour,
                            after.chips.size() >= m_longerEnd + kWorthwhileDetour);
                        follow(way.to, after);
                    }
                });
            }
        }
    }

    void end(Trace trace)
    {
        ++m_traces;
        bool isStartLeft = false;
        for (const Chip& chip : trace.chips) {
            note(trace, Idea::CapKept, chip.origin == Origin::Cap);
            note(trace, Idea::TripleKept, chip.origin == Origin::Triple);
            isStartLeft |= chip.colour != 'Y' && chip.origin == Origin::Start;
        }
        note(trace, Idea::StartSpent, !isStartLeft);
        note(trace, Idea::JumpedLast, trace.lastWasJump);
        m_common &= trace.ideas;
    }

    const ShortestWays& m_ways;
    std::size_t m_longerEnd;
    std::size_t m_traces = 0;
    IdeaSet m_common = ~IdeaSet { 0 };
};

} // namespace

std::string nameOf(Idea idea)
{
    static const std::array<std::string, kIdeas> kNames { "a cap is doubled", "a cap is spent",
        "a cap holds a blue", "a cap stays", "two caps", "a pair vanishes at the seam",
        "three reds at the seam", "a blue at the seam", "a green meets its own copy",
        "one red becomes three", "a made green is spent", "a made green is doubled",
        "a made green holds a blue", "a made green stays", "three reds twice", "a gap closes",
        "parked behind the yellow", "the jump brings them together", "the yellow goes on and on",
        "the jump comes first", "the jump comes last", "a blue is doubled", "two blues are made",
        "a blue's greens are spent", "cut to its own double", "made blues meet",
        "copies are swallowed", "given chips are swallowed", "made greens are swallowed",
        "the yellow is swallowed", "two cuts", "doubled twice", "doubled three times",
        "a long detour", "nothing given is left", "the line is emptied" };
    return kNames.at(static_cast<std::size_t>(idea));
}

std::vector<std::string> namesOf(IdeaSet ideas)
{
    std::vector<std::string> names;
    for (unsigned i = 0; i < kIdeas; ++i) {
        if ((ideas & only(static_cast<Idea>(i))) != 0) {
            names.push_back(nameOf(static_cast<Idea>(i)));
        }
    }
    return names;
}

IdeaSet ideasOf(const ShortestWays& ways)
{
    return Tracer(ways).common();
}

} // namespace veyrand::catalogue
