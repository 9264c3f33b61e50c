#pragma once

#include <set>
#include <string>
#include <vector>

namespace veyrand::look {

// The music's score and the measures of its mix, as assets/source/sounds has them. Keys are
// numbered as in MIDI, 69 for A4; bars and beats count from 1.
struct Score {
    struct Section {
        int bar;
        std::string name;
        std::string harp;
    };
    struct Chord {
        int bar;
        int bars;
        std::string name;
        int bass;
        std::vector<int> pad;
        std::set<int> classes; // of all its notes, 0 for C
    };
    struct Note {
        std::string part;
        int bar;
        double beat;
        int key;
        double beats;
    };

    std::vector<Section> sections;
    std::vector<Chord> chords;
    std::vector<Note> melody;

    [[nodiscard]] int bars() const { return chords.back().bar + chords.back().bars - 1; }
    [[nodiscard]] const Chord& chordAt(int bar) const;

    static Score read();
};

struct Balance {
    struct Part {
        std::string name;
        double loudness; // LUFS
    };
    struct Key {
        std::string part;
        int key;
        double level; // dB, at one velocity
    };
    struct Note {
        int bar;
        double beat;
        std::string part;
        int key;
        double tune; // dB, and so the others
        double rest;
        double all;
    };

    std::vector<Part> parts;
    std::vector<Key> keys;
    std::vector<Note> notes;

    [[nodiscard]] double loudness(const std::string& part) const;

    static Balance read();
};

constexpr double kBeat = 60.0 / 72.0; // seconds

// When a beat of a bar begins, in seconds.
double timeOf(int bar, double beat);
double pitchOf(int key);

} // namespace veyrand::look
