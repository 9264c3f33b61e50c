#include "Command.h"
#include "FileResources.h"
#include "JsonOf.h"
#include "ProgressLine.h"
#include "engine/HintHelper.h"
#include "engine/PackedMoves.h"
#include "platform/MemoryPreferences.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/Catalogue.h"
#include "progress/CurrentGame.h"
#include "progress/Place.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"

namespace veyrand::workshop {

namespace {

void declareData(CLI::App& arguments, std::string& folder)
{
    arguments.add_option("--data", folder, "The folder of the catalogues")
        ->check(CLI::ExistingDirectory);
}

// One line for each Classic puzzle that has a solution: start, goal and moves.
class AnalyseAll final : public Command {
public:
    void declare(CLI::App& arguments) override { declareData(arguments, m_folder); }

    Json run() override
    {
        platform::MemoryPreferences preferences;
        preferences.setRecord(progress::playerRecordKey("Analysis"),
            progress::storedRecord({ .level = 1, .stage = 1 }));
        platform::SeededRandom random(0);
        const FileResources resources(m_folder);
        progress::CurrentGame game(preferences, random, resources);
        if (!game.catalogueErrors().empty()) {
            throw UsageError(game.catalogueErrors());
        }

        JsonLog log;
        constexpr int kPuzzles = progress::kLastLevel * progress::kLastStage;
        ProgressLine progress("puzzles", kPuzzles);
        game.newPlayer("Analysis");
        for (unsigned done = 0; done < kPuzzles; ++done) {
            const engine::Proof& proof = *game.proof();
            if (const auto solution = engine::HintHelper(game.proof()).solution()) {
                log.write(proof.root().theorem() + ',' + proof.goal().theorem() + ','
                    + std::to_string(solution->size() - 1));
            }
            progress.show(done);
            game.nextLevel(); // the last puzzle would follow itself: hence the count
        }
        return log.lines();
    }

private:
    std::string m_folder = dataFolder();
};

// A list in which equal neighbours have become one. Equal lines that are no neighbours stay.
class EliminateDuplicates final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("FILE", m_file, "A UTF-16 text, such as CombedTheorems.txt")
            ->required()
            ->check(CLI::ExistingFile);
    }

    Json run() override
    {
        const auto bytes = bytesOf(m_file);
        const auto text = bytes ? progress::lettersOfUtf16(*bytes) : std::nullopt;
        if (!text) {
            throw UsageError(m_file + ": no UTF-16 text of plain letters with a byte-order mark");
        }
        Json kept = Json::array();
        std::size_t start = 0;
        for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
            end = text->find('\n', start);
            std::string line = text->substr(start, end - start);
            if (kept.empty() || kept.back() != line) {
                kept.push_back(std::move(line));
            }
        }
        return kept;
    }

private:
    std::string m_file;
};

// One number that changes when any search of any puzzle does: which lines it meets, in which order,
// where it finds the goal, or how many lines it keeps.
class BenchSignature final : public Command {
public:
    void declare(CLI::App& arguments) override { declareData(arguments, m_folder); }

    Json run() override
    {
        const FileResources resources(m_folder);
        progress::Catalogue puzzles;
        for (const char* name : { "Theorems", "EndlessTheorems" }) {
            const auto bytes = resources.dataNamed(name, "txt");
            const auto parsed = progress::parseCatalogue(bytes.value_or(""));
            if (!parsed.error.empty()) {
                throw UsageError(m_folder + '/' + name + ".txt: " + parsed.error);
            }
            puzzles.insert(puzzles.end(), parsed.entries.begin(), parsed.entries.end());
        }
        ProgressLine progress("puzzles", puzzles.size());
        for (std::size_t i = 0; i < puzzles.size(); ++i) {
            addSearch(puzzles[i]);
            progress.show(i);
        }
        return m_hash;
    }

private:
    void addSearch(const progress::CatalogueEntry& puzzle)
    {
        engine::Tree tree(engine::Theorem(puzzle.root), sevenMoves(), 0, 0);
        const engine::Theorem goal(puzzle.goal);
        add(tree.makeTreeOfDepth(engine::kSolutionLimits, &goal));
        add(tree.count());
        for (std::size_t i = 0; i < tree.count(); ++i) {
            const engine::Theorem line = tree.lineAt(i); // a loop would not keep it alive
            for (const char chip : line.theorem()) {
                add(static_cast<unsigned char>(chip));
            }
        }
    }

    // 32 bits of FNV-1a: enough to tell, short enough to type.
    void add(std::uint64_t value)
    {
        constexpr std::uint32_t kPrime = 16777619;
        m_hash = static_cast<std::uint32_t>((m_hash ^ value) * kPrime);
    }

    std::string m_folder = dataFolder();
    std::uint32_t m_hash = 2166136261;
};

} // namespace

std::vector<CommandEntry> catalogueCommands()
{
    return { entry<AnalyseAll>("analyse-all", "Start, goal and moves of every Classic puzzle"),
        entry<EliminateDuplicates>("eliminate-duplicates", "A list without equal neighbours"),
        entry<BenchSignature>(
            "bench-signature", "One number over every search of both catalogues") };
}

} // namespace veyrand::workshop
