#include "ClassicPuzzles.h"
#include "EndlessPuzzles.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

// Makes a pair of catalogues that a player can work through until the designers have combed better
// ones. The same seed makes the same puzzles on every machine.

namespace {

using namespace veyrand::quick_catalogue;

Progress bar(const char* what)
{
    return [what](std::size_t done, std::size_t all) {
        constexpr std::size_t kWidth = 40;
        const std::size_t filled = done * kWidth / all;
        std::cerr << '\r' << what << " [" << std::string(filled, '#')
                  << std::string(kWidth - filled, ' ') << "] " << done << '/' << all
                  << (done == all ? "\n" : "") << std::flush;
    };
}

void write(const std::string& path, const Puzzles& puzzles)
{
    std::ofstream file(path, std::ios::binary);
    file << text(puzzles) << std::flush;
    if (!file.good()) {
        throw std::runtime_error(path + ": cannot be written");
    }
}

constexpr int kBadArguments = 2;

int run(int argc, char** argv)
{
    CLI::App app("Makes puzzles for both catalogues, three lines each: start, goal, par.");
    std::uint32_t seed = 20;
    std::string classic;
    std::string endless;
    app.add_option("--seed", seed, "what the choice of puzzles depends on")->capture_default_str();
    app.add_option("--classic", classic, "where to write the Classic puzzles");
    app.add_option("--endless", endless, "where to write the Endless puzzles");
    app.require_option(1, 0);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == EXIT_SUCCESS ? EXIT_SUCCESS : kBadArguments;
    }
    if (!classic.empty()) {
        veyrand::platform::SeededRandom random(seed);
        write(classic, classicPuzzles(random, bar("Classic")));
    }
    if (!endless.empty()) {
        veyrand::platform::SeededRandom random(seed);
        write(endless, endlessPuzzles(random, bar("Endless")));
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
