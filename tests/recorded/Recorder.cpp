#include "recorded/RecordedGame.h"
#include "support/Places.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

// Plays games at random and leaves a journal of each in a folder, with a list of the hashes in
// which they ended. A corpus for a new format is made with it; those that are there stay.

namespace {

namespace fs = std::filesystem;
using veyrand::progress::Catalogue;

Catalogue catalogueIn(const std::string& name)
{
    std::ifstream file(
        veyrand::test::sourceFolder() + "/assets/catalogues/" + name, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    return veyrand::progress::parseCatalogueText(text).entries;
}

void record(std::uint32_t first, std::uint32_t count, const fs::path& folder)
{
    const Catalogue classic = catalogueIn("Theorems.txt");
    const Catalogue endless = catalogueIn("EndlessTheorems.txt");
    fs::create_directories(folder);
    std::ofstream hashes(folder / "hashes.txt", std::ios::binary);
    for (std::uint32_t number = first; number < first + count; ++number) {
        const auto game = veyrand::test::recordGame(number, classic, endless);
        const std::string name = std::to_string(number) + ".txt";
        std::ofstream(folder / name, std::ios::binary) << game.journal;
        hashes << name << ' ' << std::hex << game.hash << std::dec << '\n';
    }
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Records games that are played at random", "veyrand-recorder");
    std::uint32_t first = 1;
    std::uint32_t count = 1;
    std::string folder;
    app.add_option("--first", first, "The number of the first game, from which its die follows");
    app.add_option("--games", count, "How many");
    app.add_option("--out", folder, "Where to leave them")->required();
    CLI11_PARSE(app, argc, argv);
    try {
        record(first, count, folder);
    } catch (const std::exception& error) {
        std::cerr << "veyrand-recorder: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
