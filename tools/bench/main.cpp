#include "Measurements.h"

#include <CLI/CLI.hpp>
#include <iostream>

// Measures the application, and the search against the plain one it must agree with. Every figure
// is of this run and this machine; compare ratios, not milliseconds.

namespace {

int run(int argc, char** argv)
{
    using namespace veyrand::bench;
    CLI::App app(
        "Measures the application and the search behind hints and puzzles.", "veyrand-bench");
    std::string json;
    bool withoutGrowth = false;
    app.add_option("--json", json, "Write the figures to this file, as one flat object");
    bool withoutApplication = false;
    app.add_flag("--no-application", withoutApplication, "Leave out the application (a minute)");
    app.add_flag("--no-growth", withoutGrowth, "Leave out lines of more than 12 chips (a minute)");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }

    Results results;
    if (!withoutApplication && !measureApplication(results, argv[0])) {
        std::cerr << "The application could not be measured.\n";
        return 1;
    }
    const bool same = measureSearch(results);
    measureHint(results);
    measureSpeech(results);
    measureVerdict(results);
    measureDistances(results);
    if (!withoutGrowth) {
        measureGrowth(results);
    }
    if (!json.empty() && !results.write(json)) {
        std::cerr << json << ": cannot be written\n";
        return 1;
    }
    if (!same) {
        std::cerr << "The search and the reference disagree.\n";
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
