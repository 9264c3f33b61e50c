#include "progress/Catalogue.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>

// Turns a puzzle catalogue as it is kept in the sources into the file the game reads. It is the
// gate that nothing broken passes: whatever would throw, or draw for ever, in a player's hands ends
// the build here, with the file and the reason.

namespace {

using namespace veyrand;

std::optional<std::string> read(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool write(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file << bytes << std::flush;
    return file.good();
}

std::optional<std::string> fault(const std::string& text, progress::CatalogueKind kind)
{
    const progress::ParsedCatalogue parsed = progress::parseCatalogueText(text);
    return parsed.error.empty() ? progress::catalogueFault(parsed.entries, kind) : parsed.error;
}

int complain(const std::string& path, const std::string& reason)
{
    std::cerr << path << ": " << reason << '\n';
    return EXIT_FAILURE;
}

int compile(const std::string& in, const std::string& out, progress::CatalogueKind kind)
{
    const auto text = read(in);
    if (!text) {
        return complain(in, "cannot be read");
    }
    if (const auto reason = fault(*text, kind)) {
        return complain(in, *reason);
    }
    if (!write(out, progress::catalogueBytes(*text))) {
        return complain(out, "cannot be written");
    }
    return EXIT_SUCCESS;
}

constexpr int kBadArguments = 2;

int run(int argc, char** argv)
{
    CLI::App app("Checks a puzzle catalogue and writes it as the game reads it (UTF-16).");
    std::string in;
    std::string out;
    app.add_option("IN", in, "the catalogue in the sources: three lines a puzzle, in UTF-8")
        ->required();
    app.add_option("OUT", out, "the file to write")->required();
    bool classic = false;
    bool endless = false;
    CLI::Option_group* game = app.add_option_group("game", "which game the puzzles are for");
    game->add_flag("--classic", classic, "every place of the Classic game has its puzzle");
    game->add_flag("--endless", endless, "every par of the Endless game has a puzzle");
    game->require_option(1);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == EXIT_SUCCESS ? EXIT_SUCCESS : kBadArguments;
    }
    return compile(
        in, out, classic ? progress::CatalogueKind::Classic : progress::CatalogueKind::Endless);
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
