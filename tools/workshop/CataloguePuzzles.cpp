#include "Command.h"
#include "FileResources.h"
#include "JsonOf.h"
#include "ProgressLine.h"
#include "catalogue/Certificate.h"
#include "catalogue/Check.h"
#include "catalogue/ClassicMaker.h"
#include "catalogue/DailyMaker.h"
#include "catalogue/EndlessMaker.h"
#include "catalogue/Figures.h"
#include "catalogue/Finder.h"
#include "catalogue/Plot.h"
#include "catalogue/SolutionText.h"
#include "progress/Catalogue.h"

#include <array>
#include <fstream>

namespace veyrand::workshop {

namespace {

constexpr const char* kClassicFile = "assets/catalogues/Theorems.txt";
constexpr const char* kEndlessFile = "assets/catalogues/EndlessTheorems.txt";
constexpr const char* kCertificateFile = "assets/catalogues/certificate.txt";
constexpr const char* kChoiceFile = "assets/catalogues/choice.txt";
constexpr const char* kPlotFile = "docs/puzzles.svg";

std::string textIn(const std::string& file)
{
    const auto bytes = bytesOf(file);
    if (!bytes) {
        throw UsageError(file + ": cannot be read");
    }
    return *bytes;
}

catalogue::Puzzles read(const std::string& file)
{
    return catalogue::puzzlesIn(textIn(file));
}

void write(const std::string& file, const std::string& text)
{
    std::ofstream out(file, std::ios::binary);
    out << text << std::flush;
    if (!out.good()) {
        throw std::runtime_error(file + ": cannot be written");
    }
}

// The bar of one piece of work; the total is known once it has begun.
catalogue::Progress bar(const std::string& unit)
{
    const auto line = std::make_shared<std::unique_ptr<ProgressLine>>();
    return [line, unit](std::size_t done, std::size_t all) {
        if (!*line) {
            *line = std::make_unique<ProgressLine>(unit, all);
        }
        (*line)->show(done);
        if (done == all) {
            line->reset();
        }
    };
}

// What the subcommands of `catalogue` are asked with. Each uses what it needs.
struct Arguments {
    std::uint32_t seed = 5; // what the catalogues of the game were made with
    std::string choice = kChoiceFile;
    std::string classic = kClassicFile;
    std::string endless = kEndlessFile;
    std::string file;
    std::string out;
    std::string place;
    bool isEndless = false;
    catalogue::Wanted wanted;
};

void declareSources(CLI::App& arguments, Arguments& values)
{
    arguments.add_option("--classic", values.classic, "The Classic puzzles")->capture_default_str();
    arguments.add_option("--endless", values.endless, "The Endless puzzles")->capture_default_str();
}

// The new catalogue: written to a file, or as the answer.
Json deliver(const catalogue::Puzzles& puzzles, const std::string& out)
{
    if (!out.empty()) {
        write(out, catalogue::textOf(puzzles));
        return std::to_string(puzzles.size()) + " puzzles in " + out;
    }
    Json lines = Json::array();
    for (const catalogue::Puzzle& puzzle : puzzles) {
        lines.push_back(puzzle.root);
        lines.push_back(puzzle.goal);
        lines.push_back(std::to_string(puzzle.moves));
    }
    return lines;
}

Json makeClassic(const Arguments& arguments)
{
    try {
        return deliver(catalogue::classicPuzzles(textIn(arguments.choice)), arguments.out);
    } catch (const std::invalid_argument& error) {
        throw UsageError(arguments.choice + ": " + error.what());
    }
}

Json makeEndless(const Arguments& arguments)
{
    return deliver(
        catalogue::endlessPuzzles(arguments.seed, read(arguments.classic), bar("puzzles")),
        arguments.out);
}

// The week it begins with stays the same for ever: a day's puzzle is its place in the list.
Json makeDaily(const Arguments& arguments)
{
    constexpr const char* kFirstMonday = "2026-01-05";
    catalogue::Puzzles taken = read(arguments.classic);
    const catalogue::Puzzles endless = read(arguments.endless);
    taken.insert(taken.end(), endless.begin(), endless.end());
    const catalogue::Puzzles puzzles = catalogue::dailyPuzzles(arguments.seed, taken, bar("roots"));
    const std::string text = catalogue::dailyText(puzzles, kFirstMonday);
    if (arguments.out.empty()) {
        return text;
    }
    write(arguments.out, text);
    return std::to_string(puzzles.size()) + " puzzles in " + arguments.out;
}

template <class Numbers> Json byLevel(const Numbers& numbers)
{
    std::string text;
    for (const auto number : numbers) {
        text += (text.empty() ? "" : " ") + catalogue::textOfBits(static_cast<double>(number));
    }
    return text;
}

Json summaryOf(const std::vector<catalogue::Evidence>& evidence)
{
    const catalogue::Figures figures = catalogue::figuresOf(evidence);
    Json answer = Json::object();
    answer["promises kept, level 2 to 11"] = byLevel(figures.kept);
    answer["median steps, level 2 to 11"] = byLevel(figures.medianSteps);
    answer["median bits, level 2 to 11"] = byLevel(figures.medianBits);
    answer["rank correlation with stage"] = byLevel(figures.ranks);
    answer["levels guessed, of 60"] = figures.guessed;
    answer["neighbours 8 times apart"] = figures.jumps;
    answer["with a solution near par, of 100"] = figures.nearPar;
    answer["wrong steps that are dead, 6-11"] = catalogue::textOfBits(figures.dead);
    answer["most alike"] = catalogue::textOfBits(figures.alike);
    return answer;
}

Json checkOne(catalogue::Game game, const std::string& file)
{
    const catalogue::Verdict verdict = catalogue::check(game, read(file), bar("puzzles"));
    Json answer = Json::object();
    if (game == catalogue::Game::Classic && verdict.evidence.size() == progress::kClassicEntries) {
        answer = summaryOf(verdict.evidence);
    }
    if (!verdict.faults.empty()) {
        std::string all = file + ": " + std::to_string(verdict.faults.size()) + " faults";
        for (const std::string& fault : verdict.faults) {
            all += "\n  " + fault;
        }
        throw std::runtime_error(all + (answer.empty() ? "" : '\n' + answer.dump(2)));
    }
    answer["checked"]
        = std::to_string(verdict.evidence.size()) + " puzzles, every one as it should be";
    return answer;
}

// One file, or both catalogues of the game.
Json checkFiles(const Arguments& arguments)
{
    if (!arguments.file.empty()) {
        return checkOne(arguments.isEndless ? catalogue::Game::Endless : catalogue::Game::Classic,
            arguments.file);
    }
    Json answer = checkOne(catalogue::Game::Classic, arguments.classic);
    answer["checked"] = answer["checked"].get<std::string>() + "; "
        + checkOne(catalogue::Game::Endless, arguments.endless)["checked"].get<std::string>();
    return answer;
}

Json show(const Arguments& arguments)
{
    const catalogue::Puzzles puzzles = read(arguments.classic);
    for (std::size_t entry = 1; entry < puzzles.size(); ++entry) {
        if (catalogue::nameOf(catalogue::placeOfEntry(entry)) != arguments.place) {
            continue;
        }
        Json answer = Json::object();
        for (const auto& [name, value] : catalogue::description(entry, puzzles)) {
            answer[name] = value;
        }
        return answer;
    }
    throw UsageError(arguments.place + ": no place of the Classic game, such as 7-3");
}

// One line for each candidate: what a choice is made by.
Json find(const Arguments& arguments)
{
    Json answer = Json::array();
    for (const catalogue::Portrait& found : catalogue::find(arguments.wanted, bar("roots"))) {
        const catalogue::Kindness& kindness = found.kindness;
        std::string lines;
        for (const std::string& line : found.way.lines) {
            lines += (lines.empty() ? "" : ",") + line;
        }
        answer.push_back(found.puzzle.root + ' ' + found.puzzle.goal + ' '
            + std::to_string(found.puzzle.moves) + ' ' + std::to_string(found.metrics.solutions)
            + ' ' + catalogue::textOfBits(found.metrics.bits) + ' ' + std::to_string(found.steps)
            + ' ' + std::to_string(kindness.oneMore) + ' ' + std::to_string(kindness.twoMore) + ' '
            + std::to_string(kindness.wrongSteps) + ' ' + std::to_string(kindness.deadSteps) + ' '
            + std::to_string(found.metrics.needed) + ' ' + std::to_string(found.ideas) + ' '
            + found.way.moves + ' ' + lines);
    }
    return answer;
}

std::vector<catalogue::Evidence> measure(catalogue::Game game, const std::string& file)
{
    return catalogue::measureAll(game, read(file), bar("puzzles"));
}

Json certify(const Arguments& arguments)
{
    write(arguments.out.empty() ? kCertificateFile : arguments.out,
        catalogue::certificate(measure(catalogue::Game::Classic, arguments.classic),
            measure(catalogue::Game::Endless, arguments.endless)));
    return "certified";
}

Json plot(const Arguments& arguments)
{
    write(arguments.out.empty() ? kPlotFile : arguments.out,
        catalogue::plot(measure(catalogue::Game::Classic, arguments.classic),
            measure(catalogue::Game::Endless, arguments.endless)));
    return "drawn";
}

// Everything about the puzzles themselves: making, proving and showing them. Files are those of the
// sources unless said otherwise, so it is at home in the root of the repository.
class Catalogue final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.require_subcommand(1);
        CLI::App* classic = add(arguments, "classic", "Makes the Classic puzzles", makeClassic);
        classic->add_option("--choice", m_values.choice, "A place, a start and a goal a line")
            ->capture_default_str();
        classic->add_option("--seed", m_values.seed, "Of no effect: nothing is left to chance");
        addOut(*classic);

        CLI::App* endless = add(arguments, "endless", "Makes the Endless puzzles", makeEndless);
        endless->add_option("--seed", m_values.seed, "What they depend on")->capture_default_str();
        endless->add_option("--classic", m_values.classic, "Puzzles whose goals not to use again")
            ->capture_default_str();
        addOut(*endless);

        CLI::App* daily = add(arguments, "daily", "Makes the puzzles of the days", makeDaily);
        daily->add_option("--seed", m_values.seed, "What they depend on")->capture_default_str();
        declareSources(*daily, m_values);
        addOut(*daily);

        CLI::App* checking = add(arguments, "check", "Proves every puzzle of a file", checkFiles);
        checking->add_option("FILE", m_values.file, "Three lines a puzzle; without it, both games");
        checking->add_flag("--endless", m_values.isEndless, "Endless puzzles, not Classic ones");

        CLI::App* showing = add(arguments, "show", "One Classic puzzle, all about it", show);
        showing->add_option("PLACE", m_values.place, "Level and stage, such as 7-3")->required();
        showing->add_option("--classic", m_values.classic, "The puzzles")->capture_default_str();

        CLI::App* finding = add(arguments, "find", "What keeps a level's promise there", find);
        finding->add_option("LEVEL", m_values.wanted.level, "From 2 to 11")
            ->required()
            ->check(CLI::Range(2, progress::kLastLevel));
        finding->add_option("--fewest", m_values.wanted.fewest, "Moves")->capture_default_str();
        finding->add_option("--most", m_values.wanted.most, "Moves")
            ->check(CLI::Range(1U, catalogue::kMostMoves))
            ->capture_default_str();
        finding->add_option("--one-in", m_values.wanted.oneIn, "How many to pass by for each one")
            ->check(CLI::PositiveNumber)
            ->capture_default_str();
        finding->add_option("--seed", m_values.wanted.seed, "Which to pass by")
            ->capture_default_str();

        CLI::App* certifying = add(arguments, "certify", "Writes the certificate", certify);
        declareSources(*certifying, m_values);
        addOut(*certifying);

        CLI::App* plotting = add(arguments, "plot", "Draws bits and steps as SVG", plot);
        declareSources(*plotting, m_values);
        addOut(*plotting);
    }

    Json run() override { return m_chosen(m_values); }

private:
    using Action = Json (*)(const Arguments&);

    CLI::App* add(CLI::App& arguments, const char* name, const char* help, Action action)
    {
        CLI::App* subcommand = arguments.add_subcommand(name, help);
        subcommand->callback([this, action] { m_chosen = action; });
        return subcommand;
    }

    void addOut(CLI::App& subcommand)
    {
        subcommand.add_option("--out", m_values.out, "The file to write");
    }

    Arguments m_values;
    Action m_chosen = nullptr;
};

} // namespace

std::vector<CommandEntry> puzzleCommands()
{
    return { entry<Catalogue>("catalogue", "Makes, proves and shows the puzzles") };
}

} // namespace veyrand::workshop
