#include "look/Score.h"

#include "support/Places.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace veyrand::look {

namespace {

// The lines of a source that say something, without those that only speak to the reader.
std::vector<std::string> linesOf(const std::string& name)
{
    std::ifstream file(test::sourceFolder() + "/assets/source/sounds/" + name);
    EXPECT_TRUE(file.is_open()) << name;
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.front() != '#') {
            lines.push_back(line);
        }
    }
    return lines;
}

int keyOf(const std::string& note)
{
    constexpr const char* kNames = "C D EF G A B";
    const auto step = static_cast<int>(std::string(kNames).find(note.front()));
    const int sharp = note[1] == '#' ? 1 : 0;
    return step + sharp + 12 * (note.back() - '0' + 1);
}

std::vector<int> keysUntilBar(std::istringstream& words)
{
    std::vector<int> keys;
    for (std::string word; words >> word && word != "|";) {
        keys.push_back(keyOf(word));
    }
    return keys;
}

Score::Chord chordFrom(std::istringstream& words)
{
    Score::Chord chord {};
    words >> chord.bar >> chord.bars >> chord.name;
    chord.bass = keysUntilBar(words).front();
    chord.pad = keysUntilBar(words);
    chord.classes.insert(chord.bass % 12);
    for (const std::vector<int>& keys : { chord.pad, keysUntilBar(words) }) {
        for (const int key : keys) {
            chord.classes.insert(key % 12);
        }
    }
    return chord;
}

} // namespace

const Score::Chord& Score::chordAt(int bar) const
{
    return *std::find_if(chords.begin(), chords.end(),
        [bar](const Chord& chord) { return bar < chord.bar + chord.bars; });
}

Score Score::read()
{
    Score score;
    for (const std::string& line : linesOf("seabed.score")) {
        std::istringstream words(line);
        std::string kind;
        words >> kind;
        if (kind == "section") {
            Section section {};
            words >> section.bar >> section.name >> section.harp;
            score.sections.push_back(section);
        } else if (kind == "chord") {
            score.chords.push_back(chordFrom(words));
        } else {
            Note note {};
            std::string name;
            words >> note.part >> note.bar >> note.beat >> name >> note.beats;
            note.key = keyOf(name);
            score.melody.push_back(note);
        }
    }
    return score;
}

double Balance::loudness(const std::string& part) const
{
    return std::find_if(parts.begin(), parts.end(), [&](const Part& other) {
        return other.name == part;
    })->loudness;
}

Balance Balance::read()
{
    Balance balance;
    for (const std::string& line : linesOf("seabed.balance")) {
        std::istringstream words(line);
        std::string kind;
        words >> kind;
        if (kind == "part") {
            Part part {};
            words >> part.name >> part.loudness;
            balance.parts.push_back(part);
        } else if (kind == "key") {
            Key key {};
            words >> key.part >> key.key >> key.level;
            balance.keys.push_back(key);
        } else {
            Note note {};
            words >> note.bar >> note.beat >> note.part >> note.key >> note.tune >> note.rest
                >> note.all;
            balance.notes.push_back(note);
        }
    }
    return balance;
}

double timeOf(int bar, double beat)
{
    return ((bar - 1) * 4 + beat - 1.0) * kBeat;
}

double pitchOf(int key)
{
    return 440.0 * std::exp2((key - 69) / 12.0);
}

} // namespace veyrand::look
