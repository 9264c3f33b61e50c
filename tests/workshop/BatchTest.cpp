#include "Batch.h"

#include "Command.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <sstream>

namespace veyrand::workshop {
namespace {

Json ask(const std::string& line)
{
    std::istringstream in(line + '\n');
    std::ostringstream out;
    runBatch(in, out);
    return Json::parse(out.str());
}

Json json(const char* text)
{
    return Json::parse(text);
}

struct Question {
    const char* line;
    const char* answer;
};

class Batch : public testing::TestWithParam<Question> { };

TEST_P(Batch, AnswersWithOneDocument)
{
    EXPECT_EQ(ask(GetParam().line), json(GetParam().answer));
}

INSTANTIATE_TEST_SUITE_P(Matches, Batch,
    testing::Values(
        Question { "matches YRR", R"([["YRR", [[2, 1, "YRRG"]], [[0, 3, "YRRRR"]], [], [],
            [[0, 3, "RRY"]], [], []]])" },
        Question { "matches G \"\"",
            R"([["G", [], [], [], [], [], [], []], ["", [], [], [], [], [], [], []]])" },
        Question { "matches YGGG", R"([["YGGG", [], [[0, 4, "YGGGGGG"]], [],
            [[1, 2, "YG"], [2, 2, "YG"]], [[0, 3, "GGYG"]],
            [[1, 2, "YGBGG"], [2, 2, "YGGBG"]], []]])" }));

INSTANTIATE_TEST_SUITE_P(Tree, Batch,
    testing::Values(Question { "tree YR --goal YRRG", R"({"result": 2, "count": 6, "examined": 4,
            "path": ["YR", "YRR", "YRRG"], "lines": ["YR", "YRG", "YRR", "YRGRG", "GRY", "YRRG"]})" },
        Question { "tree YR --children 1", R"({"result": -1, "count": 2, "examined": 1,
            "path": null, "lines": ["YR", "YRG"]})" },
        Question { "tree YR --children 9 --length 2", R"({"result": -1, "count": 1, "examined": 2,
            "path": null, "lines": ["YR"]})" },
        Question { "tree YR --path 0", R"({"result": -1, "count": 3, "examined": 2,
            "path": null, "lines": ["YR", "YRG", "YRR"]})" },
        Question { "tree YR --children 0", R"({"result": 0, "count": 0, "examined": 0,
            "path": null, "lines": []})" }));

INSTANTIATE_TEST_SUITE_P(SolveAndHint, Batch,
    testing::Values(Question { "solve YR YRRG",
                        R"({"path": ["YR", "YRR", "YRRG"], "sequence": "10", "score": 2})" },
        Question {
            "solve YR YRRG --limit 2", R"({"path": null, "sequence": null, "score": null})" },
        Question { "hint YR YRRGRRG YRR", R"({"solution": ["YRR", "YRRG", "YRRGRRG"],
            "next": "YRRG", "matrix": {"Y": 1, "R": 2, "G": 1, "B": 0}, "lastGoodRow": 1})" },
        Question { "hint YR YRRG YRR G",
            R"({"solution": null, "next": null, "matrix": null, "lastGoodRow": 1})" }));

INSTANTIATE_TEST_SUITE_P(Analysis, Batch,
    testing::Values(Question { "analysis YR --children 100 --length 12 --lines 2",
                        R"j({"unique": ["YRG", "YRR"], "ranked": [["YRG", "0", 3], ["YRR", "1", 3]],
            "log": ["Compiling list for: 2", "Thinning list for: 2 (1 to thin)",
            "Deleting list for: 2 (0 to delete)", "Finished Deleting: 2"]})j" },
        Question { "analysis YR --children 1 --length 12 --lines 5",
            R"j({"unique": null, "ranked": [],
            "log": ["Compiling list for: 5", "Thinning list for: 5 (2 to thin)",
            "Deleting list for: 5 (0 to delete)", "Finished Deleting: 5"]})j" },
        Question { "report YR --children 2",
            R"j(["Tree", "----------", "0: YR", "1: YRG", "2: YRR", "----------"])j" },
        Question { "report YR --children 2 --lines 2 --plain",
            R"j(["Compiling list for: 2", "Thinning list for: 2 (1 to thin)",
            "Deleting list for: 2 (0 to delete)", "Finished Deleting: 2", "YRG", "YRR"])j" }));

INSTANTIATE_TEST_SUITE_P(Board, Batch,
    testing::Values(Question { "gestures YR --highest-rule 1 --line-count 1",
                        R"([{"click": 0, "rule": 1, "line": "YRR"}])" },
        Question { "gestures YRGG --highest-rule 7 --line-count 1",
            R"([{"click": 0, "rule": 1, "line": "YRGGRGG"},
            {"drag": [0, 2], "rule": 4, "line": "GRYG"},
            {"click": 2, "rule": 5, "line": "YRGBG"},
            {"drag": [2, 3], "rule": 3, "line": "YR"},
            {"drag": [3, 2], "rule": 3, "line": "YR"}])" },
        // No targets are offered from twelve lines on, and the thirteenth line must be the goal.
        Question { "gestures YRGG --highest-rule 7 --line-count 12 --goal YRGBG",
            R"([{"click": 2, "rule": 5, "line": "YRGBG"}])" },
        Question { "gestures YRGG --highest-rule 7 --line-count 12", "[]" },
        Question { "gestures YRGG --highest-rule 7 --line-count 13 --goal YRGBG", "[]" },
        // Thirteen chips are too many, eleven are not.
        Question { "gestures YRRRRRR --highest-rule 1 --line-count 1", "[]" },
        Question { "gestures YRRRRR --highest-rule 1 --line-count 1",
            R"([{"click": 0, "rule": 1, "line": "YRRRRRRRRRR"}])" },
        Question { "position 1 10",
            R"({"highestRule": 3, "index": 10, "next": {"level": 2, "stage": 1}})" },
        Question { "position 11 10",
            R"({"highestRule": 7, "index": 110, "next": {"level": 11, "stage": 10}})" },
        Question { "position 1 1 --endless",
            R"({"highestRule": 7, "index": 1, "next": {"level": 1, "stage": 2}})" }));

INSTANTIATE_TEST_SUITE_P(Distances, Batch,
    testing::Values(Question { "distances YR --length 3", "[1, 2, 2]" },
        Question { "distances \"\" --length 3", "[1]" }));

INSTANTIATE_TEST_SUITE_P(Practice, Batch,
    testing::Values(Question { "code YR YRRG", R"("3373NECJ")" },
        Question { "code --read 3373NECJ", R"({"start": "YR", "goal": "YRRG"})" },
        Question { "code --read veyrand:3373-necj", R"({"start": "YR", "goal": "YRRG"})" },
        Question { "code --read 3373NECI",
            R"({"error": "\"I\", letter 8, cannot stand in a puzzle code."})" },
        Question { "code YR", R"({"error": "code takes START and GOAL, or --read CODE"})" },
        Question {
            "verdict YRRRRRR YGG", R"({"par": 2, "solutions": 2, "needed": [3], "bits": 3.58})" },
        Question {
            "verdict YR GRY", R"({"par": 2, "solutions": 1, "needed": [2, 5], "bits": 2.0})" },
        Question { "verdict YB YR", R"({"unreachable": true})" },
        Question { "verdict YYR YR", R"({"error": "a start line has one yellow chip: YYR"})" }));

TEST(PracticeCommands, KnowThePuzzleOfADay)
{
    const std::string data = " --data " + test::dataFolder();
    const Json day = ask("daily 2026-11-21" + data);
    EXPECT_EQ(day, ask("daily 2027-11-27" + data)); // 53 weeks later
    const Json verdict
        = ask("verdict " + day["start"].get<std::string>() + ' ' + day["goal"].get<std::string>());
    EXPECT_EQ(day["par"], verdict["par"]);
    EXPECT_EQ(ask("daily 2026-11-31" + data)["error"], "2026-11-31: no date, such as 2026-11-21");
}

TEST(BatchErrors, AreAnsweredAndTheNextLineGoesOn)
{
    std::istringstream in("nonsense\n\nsolve YR\ntree YR --children few\nmatches Y\xC3\xA9\n"
                          "distances YX\nposition 1 1 --extra\nsolve YR YRG\n");
    std::ostringstream out;
    runBatch(in, out);
    std::istringstream answers(out.str());
    std::vector<Json> documents;
    for (std::string line; std::getline(answers, line);) {
        documents.push_back(Json::parse(line));
    }
    ASSERT_EQ(documents.size(), 8U);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_TRUE(documents[i].contains("error")) << documents[i];
    }
    EXPECT_EQ(documents[7]["sequence"], "0");
}

TEST(BatchErrors, AQuotationMarkKeepsBlanksTogetherAndIsClosed)
{
    EXPECT_EQ(ask("code --read \" 37t8 649f-2mej \""),
        json(R"({"start": "YBRGRRR", "goal": "RBYGGGBBG"})"));
    EXPECT_EQ(ask("code \"YR\" YRG"), json(R"("38RTWET")"));
    EXPECT_EQ(ask("code \"YR YRG"), json(R"({"error": "a quotation mark is not closed"})"));
}

TEST(BatchHelp, IsAnAnswerLikeAnyOther)
{
    const Json one = ask("solve --help");
    EXPECT_FALSE(one.contains("error"));
    EXPECT_NE(one["help"].get<std::string>().find("--limit"), std::string::npos);
    const Json all = ask("--help");
    EXPECT_EQ(all["help"].size(), allCommands().size());
    EXPECT_EQ(all["help"]["solve"], "A shortest way from one line to another");
}

TEST(Batch, AnswersAlikeWhereOneDocumentIsAskedFor)
{
    EXPECT_EQ(ask("verdict YR YRG --json"), ask("verdict YR YRG"));
    EXPECT_EQ(ask("--json verdict YR YRG"), ask("verdict YR YRG"));
    EXPECT_FALSE(ask("verdict YR YRG --json").contains("error"));
}

TEST(BatchErrors, ACommandThatIsNoneIsNamed)
{
    EXPECT_EQ(ask("nonsense YR")["error"], "no such command: nonsense");
    EXPECT_EQ(ask("")["error"], "no command");
}

TEST(BatchErrors, AnOptionOfOneLineIsForgottenByTheNext)
{
    std::istringstream in("tree YR --children 1\ntree YR\n");
    std::ostringstream out;
    runBatch(in, out);
    std::istringstream answers(out.str());
    std::string first;
    std::string second;
    std::getline(answers, first);
    std::getline(answers, second);
    EXPECT_EQ(Json::parse(first)["examined"], 1);
    EXPECT_EQ(Json::parse(second)["examined"], 15000);
}

TEST(CatalogueCommands, AnalyseAllListsTheClassicPuzzlesOnce)
{
    const Json log = ask("analyse-all --data " + test::dataFolder());
    ASSERT_EQ(log.size(), 110U);
    EXPECT_EQ(log[0], "YGR,YGRGR,1");
    EXPECT_EQ(log[1], "YG,YGGGG,2");
}

TEST(CatalogueCommands, TheSignatureIsOneNumberAndAlwaysTheSame)
{
    const Json signature = ask("bench-signature --data " + test::dataFolder());
    EXPECT_TRUE(signature.is_number_unsigned());
    EXPECT_EQ(ask("bench-signature --data " + test::dataFolder()), signature);
}

} // namespace
} // namespace veyrand::workshop
