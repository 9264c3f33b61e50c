#include "architecture/IncludeOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace veyrand::architecture {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(IncludeOrder, IsKeptByEveryFile)
{
    std::size_t read = 0;
    for (const SourceFile& file : thisRepository()) {
        read += isBelow(file.path, "src") ? 1 : 0;
        EXPECT_THAT(includeFindings(file), IsEmpty());
    }
    EXPECT_GT(read, 20U); // the files were really there to be read
}

struct IncludeCase {
    const char* path;
    const char* include;
    bool allowed;
};

class IncludeOrderRule : public ::testing::TestWithParam<IncludeCase> { };

TEST_P(IncludeOrderRule, Holds)
{
    const IncludeCase& c = GetParam();
    const SourceFile file { c.path, std::string("#include ") + c.include + "\n" };
    EXPECT_EQ(includeFindings(file).empty(), c.allowed) << c.path << " includes " << c.include;
}

INSTANTIATE_TEST_SUITE_P(Rooms, IncludeOrderRule,
    ::testing::Values( //
        IncludeCase { "src/board/GameData.cpp", "\"board/GameObject.h\"", true },
        IncludeCase { "src/board/GameData.cpp", "\"progress/CurrentGame.h\"", true },
        IncludeCase { "src/board/GameData.cpp", "\"engine/Theorem.h\"", true },
        IncludeCase { "src/board/GameData.cpp", "\"platform/RunLoop.h\"", true },
        IncludeCase { "src/board/GameData.cpp", "\"present/Layer.h\"", false },
        IncludeCase { "src/board/GameData.cpp", "\"desktop/qt/BoardWidget.h\"", false },
        IncludeCase { "src/board/GameData.cpp", "\"app/Application.h\"", false },
        IncludeCase { "src/engine/Proof.cpp", "\"progress/CurrentGame.h\"", false },
        IncludeCase { "src/install/Volumes.h", "\"platform/Files.h\"", true },
        IncludeCase { "src/install/Volumes.h", "\"engine/Theorem.h\"", false },
        IncludeCase { "src/controller/Game.h", "\"install/Installation.h\"", false },
        IncludeCase { "src/app/Application.cpp", "\"install/Installation.h\"", true },
        IncludeCase { "src/platform/Pointer.h", "\"platform/Geometry.h\"", true },
        IncludeCase { "src/platform/Pointer.h", "\"engine/Theorem.h\"", false },
        IncludeCase { "src/desktop/qt/BoardWidget.cpp", "\"desktop/qt/ImageStore.h\"", true },
        IncludeCase { "src/desktop/qt/BoardWidget.cpp", "\"controller/GameController.h\"", true },
        IncludeCase { "src/desktop/qt/BoardWidget.cpp", "\"app/Application.h\"", false },
        IncludeCase { "src/desktop/qt/BoardWidget.cpp", "\"BoardWidget.moc\"", true },
        IncludeCase { "src/app/main.cpp", "\"desktop/qt/BoardWidget.h\"", true },
        IncludeCase { "src/app/main.cpp", "\"engine/Theorem.h\"", true },
        IncludeCase { "src/board/GameData.cpp", "\"play/Action.h\"", true },
        IncludeCase { "src/play/Action.h", "\"board/GameData.h\"", false },
        IncludeCase { "src/headless/HeadlessGame.h", "\"controller/Game.h\"", true },
        IncludeCase { "src/headless/HeadlessGame.h", "\"desktop/qt/BoardWidget.h\"", false },
        IncludeCase { "src/headless/HeadlessGame.h", "\"platform/fakes/MemoryFiles.h\"", true },
        IncludeCase { "src/controller/Game.h", "\"platform/fakes/MemoryFiles.h\"", false },
        IncludeCase { "src/platform/fakes/MemoryFiles.h", "\"platform/Files.h\"", true },
        IncludeCase { "src/platform/fakes/MemoryFiles.h", "\"engine/Theorem.h\"", false },
        IncludeCase { "src/web/WebRunLoop.h", "\"desktop/qt/BoardWidget.h\"", false },
        IncludeCase { "src/board/GameData.cpp", "\"GameObject.h\"", false },
        IncludeCase { "src/attic/Old.cpp", "<string>", false }));

INSTANTIATE_TEST_SUITE_P(Libraries, IncludeOrderRule,
    ::testing::Values( //
        IncludeCase { "src/engine/Regex.cpp", "<unicode/uregex.h>", true },
        IncludeCase { "src/engine/Tree.cpp", "<openssl/evp.h>", false },
        IncludeCase { "src/progress/Catalogue.cpp", "<unicode/uregex.h>", false },
        IncludeCase { "src/engine/Tree.cpp", "<unordered_set>", true },
        IncludeCase { "src/engine/Tree.cpp", "<nlohmann/json.hpp>", false },
        IncludeCase { "src/board/GameData.cpp", "<unicode/uregex.h>", false },
        IncludeCase { "src/controller/Pages.cpp", "<nlohmann/json.hpp>", true },
        IncludeCase { "src/controller/Pages.cpp", "<QString>", false },
        IncludeCase { "src/controller/Pages.cpp", "<QtCore/QString>", false },
        IncludeCase { "src/controller/Pages.cpp", "<thread>", false },
        IncludeCase { "src/controller/Pages.cpp", "<fstream>", false },
        IncludeCase { "src/controller/Pages.cpp", "<sstream>", false },
        IncludeCase { "src/platform/Sounds.h", "<AL/al.h>", false },
        IncludeCase { "src/desktop/qt/OpenAlSounds.cpp", "<AL/al.h>", true },
        IncludeCase { "src/desktop/qt/OpenAlSounds.cpp", "<mutex>", true },
        IncludeCase { "src/app/main.cpp", "<QApplication>", true }));

TEST(IncludeOrder, FindsEveryOffenderAndTellsItsLine)
{
    const SourceFile file { "src/engine/Proof.cpp",
        "#include \"engine/Proof.h\"\n"
        "  #  include <QString> // indented\n"
        "// #include <QWidget>\n"
        "#include \"app/Application.h\"" };
    EXPECT_THAT(includeFindings(file),
        ElementsAre(
            HasSubstr("Proof.cpp:2: QString"), HasSubstr("Proof.cpp:4: app/Application.h")));
}

TEST(IncludeOrder, LeavesTestsAndToolsAlone)
{
    EXPECT_THAT(includeFindings({ "tests/engine/ProofTest.cpp", "#include <QTest>\n" }), IsEmpty());
    EXPECT_THAT(includeFindings({ "src/CMakeLists.txt", "#include <QTest>\n" }), IsEmpty());
}

} // namespace veyrand::architecture
