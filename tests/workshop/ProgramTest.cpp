#include "HumanText.h"
#include "ProgressLine.h"
#include "progress/Catalogue.h"
#include "support/Places.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>

namespace veyrand::workshop {
namespace {

struct Outcome {
    std::string output;
    int status;
};

// Both outputs of the program, and its exit status.
Outcome run(const std::string& arguments)
{
    FILE* const pipe = popen((test::workshopProgram() + " " + arguments + " 2>&1").c_str(), "r");
    std::string output;
    std::array<char, 4096> buffer {};
    while (std::fgets(buffer.data(), buffer.size(), pipe) != nullptr) {
        output += buffer.data();
    }
    return { output, WEXITSTATUS(pclose(pipe)) };
}

std::string forPeople(const char* json)
{
    std::ostringstream out;
    printForPeople(Json::parse(json), out);
    return out.str();
}

TEST(Workshop, AnswersForPeopleAndForMachines)
{
    EXPECT_EQ(run("solve YR YRG").output, "path: 2\n  YR\n  YRG\nsequence: 0\nscore: 1\n");
    const std::string document = "{\"path\":[\"YR\",\"YRG\"],\"sequence\":\"0\",\"score\":1}\n";
    EXPECT_EQ(run("solve YR YRG --json").output, document);
    EXPECT_EQ(run("--json solve YR YRG").output, document);
}

TEST(Workshop, BadArgumentsEndWithStatusTwoAndAReason)
{
    for (const char* arguments : { "", "nonsense", "solve YR", "tree YR --children few",
             "tree YR --bogus", "gestures YR --highest-rule 8 --line-count 1",
             "distances YR --length 17", "distances YX", "matches Y\xC3\xA9",
             "eliminate-duplicates /no/such/file", "bench-signature --data /no/such/folder" }) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.output.rfind("veyrand-workshop: ", 0), 0U) << outcome.output;
        EXPECT_GT(outcome.output.size(), 20U) << outcome.output;
    }
}

TEST(Workshop, ACommandThatIsNoneIsNamed)
{
    for (const char* arguments : { "nonsense", "nonsense YR --bogus", "--json nonsense" }) {
        EXPECT_EQ(run(arguments).output, "veyrand-workshop: no such command: nonsense\n");
    }
    EXPECT_EQ(run("--bogus").output, "veyrand-workshop: no such command: --bogus\n");
    EXPECT_EQ(run("").output, "veyrand-workshop: no command; --help lists them\n");
    EXPECT_NE(run("solve YR YRG nonsense").output.find("nonsense"), std::string::npos);
    EXPECT_EQ(run("solve YR YRG nonsense").status, 2);
    EXPECT_EQ(run("solve YR YRG --bogus").status, 2);
}

TEST(Workshop, EveryCommandHasHelp)
{
    for (const CommandEntry& command : allCommands()) {
        const Outcome outcome = run(command.name + " --help");
        EXPECT_EQ(outcome.status, 0) << command.name;
        EXPECT_NE(outcome.output.find(command.help), std::string::npos) << command.name;
    }
    EXPECT_EQ(run("batch --help").status, 0);
}

TEST(Workshop, FindsTheGamesDataByItself)
{
    EXPECT_EQ(run("bench-signature").status, 0);
}

TEST(Workshop, EqualNeighboursBecomeOneAndOthersStay)
{
    const std::string file = testing::TempDir() + "CombedTheorems.txt";
    std::ofstream(file, std::ios::binary) << progress::catalogueBytes("YR\nYR\nYG\nYG\nYG\nYR\n");
    EXPECT_EQ(run("eliminate-duplicates " + file).output, "YR\nYG\nYR\n\n");
    std::ofstream(file, std::ios::binary) << "YR\nYR\n";
    EXPECT_EQ(run("eliminate-duplicates " + file).status, 2); // no UTF-16
}

TEST(HumanText, PrintsTablesWithEvenColumns)
{
    EXPECT_EQ(
        forPeople(R"([["YR", 1, null], ["YRRG", 12, "x"]])"), "YR    1   none\nYRRG  12  x\n");
    EXPECT_EQ(forPeople(R"([{"click": 0, "line": "Y"}, {"drag": [0, 2], "line": "G"}])"),
        "click 0     line Y\ndrag [0 2]  line G\n");
}

TEST(HumanText, PrintsListsObjectsAndSingleValues)
{
    EXPECT_EQ(forPeople(R"(["YR", "YG"])"), "YR\nYG\n");
    EXPECT_EQ(forPeople(R"({"a": null, "b": {"c": 1}, "d": []})"), "a: none\nb: c 1\nd: 0\n");
    EXPECT_EQ(forPeople("[1, 20]"), "0  1\n1  20\n"); // counts, by what they count
    EXPECT_EQ(forPeople("7"), "7\n");
}

TEST(ProgressLine, IsSilentWhereThereIsNoTerminal)
{
    testing::internal::CaptureStderr();
    {
        ProgressLine progress("lines", 2);
        progress.show(1);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace veyrand::workshop
