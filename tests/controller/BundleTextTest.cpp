#include "controller/BundleText.h"

#include "play/ActionText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace veyrand::controller {

using play::Bundle;
using progress::Mode;
using Kind = BundleFault::Kind;
using Json = nlohmann::ordered_json;

namespace {

Bundle::Lines bundleJournal()
{
    play::Replay replay;
    for (const char* const text : { "puzzle 2-1 YRRR YGG 3 320 0", "hint pieces", "move 2 0" }) {
        EXPECT_EQ(replay.apply(*play::parse(text)), "");
    }
    play::JournalWriter writer;
    return play::journalOf(replay, "Zoë", writer);
}

Bundle fullBundle()
{
    Bundle bundle { .player = "Zoë",
        .record = { .level = 2,
            .stage = 1,
            .score = 320,
            .firstHintClick = true,
            .endlessScore = 120,
            .endlessPar = 4 },
        .endlessOpen = true,
        .music = false,
        .settings = { { "Tempo", std::string("fast") }, { "TipSize", 1.5 },
            { "MusicVolume", std::int64_t { 40 } }, { "SayWhy", true },
            { "OfALaterVersion", std::string("kept") } } };
    bundle.journalOf(Mode::Classic) = bundleJournal();
    bundle.results.add("1-4", { { "YR", "YRRG" }, 2, { { 1, 0 }, { 0, 0 } }, 1, { 2026, 11, 21 } });
    bundle.puzzles.add(play::codeOf("YR", "YRRG").value(), "mine \u00eb");
    return bundle;
}

BundleFault bundleFaultOf(std::string_view text)
{
    const auto read = readBundle(text);
    const auto* const fault = std::get_if<BundleFault>(&read);
    EXPECT_NE(fault, nullptr) << text.substr(0, 200);
    return fault != nullptr ? *fault : BundleFault {};
}

} // namespace

TEST(ABundle, IsReadAsItWasWritten)
{
    const Bundle bundle = fullBundle();
    EXPECT_EQ(std::get<Bundle>(readBundle(textOf(bundle))), bundle);
    EXPECT_EQ(textOf(std::get<Bundle>(readBundle(textOf(bundle)))), textOf(bundle));
}

TEST(ABundle, MayHaveBeenLaidOutAnew)
{
    const Bundle bundle = fullBundle();
    EXPECT_EQ(std::get<Bundle>(readBundle(Json::parse(textOf(bundle)).dump())), bundle);
}

TEST(ABundle, IsDamagedWhereverItIsCutOff)
{
    const std::string text = textOf(fullBundle());
    // Its last line feed is nothing that is missed.
    for (std::size_t size = 0; size + 1 < text.size(); ++size) {
        const BundleFault fault = bundleFaultOf(std::string_view(text).substr(0, size));
        ASSERT_TRUE(fault.kind == Kind::Damaged || (size < 20 && fault.kind == Kind::Foreign))
            << size;
    }
}

TEST(ABundle, IsDamagedByEveryChangeOfALetter)
{
    const std::string text = textOf(fullBundle());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::string changed = text;
        changed[i] = changed[i] == 'x' ? 'y' : 'x';
        if (text[i] != ' ' && text[i] != '\n') {
            ASSERT_TRUE(std::holds_alternative<BundleFault>(readBundle(changed))) << i;
        }
    }
}

TEST(ABundle, NamesThePartThatIsMissingOrOfAnotherKind)
{
    const Json whole = Json::parse(textOf(fullBundle()));
    const std::vector<Json> kinds { nullptr, true, 7, -7, 1.5, "text", Json::array({ 1 }),
        Json::object({ { "a", Json::array() } }), 18'446'744'073'709'551'615U };
    for (const auto& [name, value] : whole.items()) {
        if (name == "veyrand-export") {
            continue;
        }
        Json without = whole;
        without.erase(name);
        EXPECT_EQ(bundleFaultOf(without.dump()), (BundleFault { Kind::Damaged, name }));
        for (const Json& other : kinds) {
            if (other == value) {
                continue;
            }
            Json changed = whole;
            changed[name] = other;
            const BundleFault fault = bundleFaultOf(changed.dump());
            EXPECT_EQ(fault.kind, Kind::Damaged) << name;
            const bool isSameKind = other.type() == value.type();
            EXPECT_TRUE(isSameKind || fault.where == name || fault.where == "check")
                << name << ": " << fault.where;
        }
    }
}

TEST(ABundle, HasJournalsThatHold)
{
    Json changed = Json::parse(textOf(fullBundle()));
    changed["journals"]["classic"].erase(1);
    EXPECT_EQ(bundleFaultOf(changed.dump()), (BundleFault { Kind::Damaged, "journals.classic" }));
}

TEST(ABundle, HoldsNoLineThatIsTwoAndNoNumberThatNothingCounts)
{
    const Json whole = Json::parse(textOf(fullBundle()));
    Json changed = whole;
    changed["results"][0] = "one\ntwo";
    EXPECT_EQ(bundleFaultOf(changed.dump()), (BundleFault { Kind::Damaged, "results" }));
    changed = whole;
    changed["settings"]["MusicVolume"] = 18'446'744'073'709'551'615U;
    EXPECT_EQ(bundleFaultOf(changed.dump()), (BundleFault { Kind::Damaged, "settings" }));
    changed["settings"]["MusicVolume"] = -40; // read as it stands; the check tells
    EXPECT_EQ(bundleFaultOf(changed.dump()), (BundleFault { Kind::Damaged, "check" }));
}

TEST(ABundle, IsOfNobodyElse)
{
    for (const char* const text : { "", "{}", "[]", "null", "7", "GIF89a", "{\"a\": 1}",
             "{\"veyrand-export\": \"1\"}", "{\"veyrand-export\": 0}", "\xff\xfe" }) {
        EXPECT_EQ(bundleFaultOf(text).kind, Kind::Foreign) << text;
    }
}

TEST(ABundle, OfALaterVersionIsSaidToBeOne)
{
    EXPECT_EQ(bundleFaultOf(R"({"veyrand-export": 2, "whatever": {}})").kind, Kind::Newer);
}

TEST(ABundle, MayBeAsDeepOrLargeAsItLikes)
{
    EXPECT_EQ(bundleFaultOf(std::string(kMostBundleBytes + 1, ' ')).kind, Kind::TooLarge);
    std::string deep = "{\"veyrand-export\": 1, \"player\": ";
    const std::size_t depth = (kMostBundleBytes - deep.size() - 1) / 2;
    deep += std::string(depth, '[') + std::string(depth, ']') + '}';
    EXPECT_EQ(bundleFaultOf(deep), (BundleFault { Kind::Damaged, "player" }));
}

TEST(ABundle, NamesTheLineThatCannotHaveBeenPlayed)
{
    progress::Catalogue catalogue(progress::kClassicEntries, { "YR", "Y", 2 });
    catalogue[11] = { "YRRR", "YGG", 3 };
    EXPECT_EQ(impossibleIn(fullBundle(), Mode::Classic, catalogue), "");
    Bundle bundle = fullBundle();
    play::JournalWriter writer;
    bundle.journalOf(Mode::Classic) = { writer.head("Zoë"),
        writer.line({ *play::parse("puzzle 2-1 YRRR YGG 3 320 0"), "YRRR" }),
        writer.line({ *play::parse("move 5 0"), "YGGG" }) };
    EXPECT_EQ(impossibleIn(bundle, Mode::Classic, catalogue), "journals.classic, 3");
    bundle.journalOf(Mode::Endless) = bundle.journalOf(Mode::Classic);
    EXPECT_THAT(
        impossibleIn(bundle, Mode::Endless, catalogue), testing::StartsWith("journals.endless, "));
}

} // namespace veyrand::controller
