#include "input/GameViewFixture.h"
#include "support/Instant.h"

#include <functional>
#include <gmock/gmock.h>

namespace veyrand::input {

using platform::PointF;
using test::kInstant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class Drags : public GameViewTest {
protected:
    static PointF single(platform::Point point)
    {
        return { static_cast<float>(point.x), static_cast<float>(point.y) };
    }
};

} // namespace

TEST_F(Drags, LessThanThreePointsInBothDirectionsIsNoDrag)
{
    press(centre("chip-0-1"));
    dragTo(offset(centre("chip-0-1"), 2.9, -2.9));
    EXPECT_THAT(dragImages(), IsEmpty());
    release(offset(centre("chip-0-1"), 2.9, -2.9));
    EXPECT_THAT(target().take(), ElementsAre("click 1 0"));
}

TEST_F(Drags, ThreePointsInEitherDirectionAreOne)
{
    for (const auto& [x, y] :
        { std::pair(3.0, 0.0), std::pair(-3.0, 0.0), std::pair(0.0, 3.0), std::pair(0.0, -3.0) }) {
        press({ 700.0, 787.0 }); // whole points, so that the distance is exact
        dragTo(platform::Point { 700.0 + x, 787.0 + y });
        EXPECT_THAT(dragImages(), SizeIs(1)) << x << ", " << y;
        release({ 700.0, 787.0 });
        wait(1.0);
    }
    EXPECT_THAT(target().take(), IsEmpty()); // dropped on itself each time
}

TEST_F(Drags, AFloatingCopyFollowsThePointerAndTheChipStaysDimmed)
{
    const auto place = centre("chip-1-1");
    startDrag("chip-1-1");
    ASSERT_THAT(dragImages(), SizeIs(1));
    const present::Layer& image = *dragImages().front();
    EXPECT_EQ(dynamic_cast<const present::ImageLayer&>(image).imageName(), "RedChip");
    EXPECT_FLOAT_EQ(image.bounds().width, 67.5F); // as wide as the start line's first chip
    EXPECT_FLOAT_EQ(image.bounds().height, 67.5F);
    EXPECT_FLOAT_EQ(image.opacity(), 0.9F);
    EXPECT_EQ(image.zPosition(), 10);
    EXPECT_EQ(image.position(), single(offset(place, 4.0, 0.0)));
    EXPECT_EQ(layer("chip-1-1").shownOpacity(), 0.5F); // at once
    dragTo(offset(place, 50.0, -20.0));
    EXPECT_EQ(image.position(), single(offset(place, 50.0, -20.0)));
    EXPECT_EQ(image.shownPosition(), image.position());
    release(place);
    EXPECT_EQ(layer("chip-1-1").shownOpacity(), 1.0F);
}

TEST_F(Drags, TheCopyIsAsWideAsTheStartLinesFirstChip)
{
    table().change("chip-0-0", [](board::GameObject& chip) { chip.setWidth(0.1); });
    startDrag("chip-1-1");
    EXPECT_FLOAT_EQ(dragImages().front()->bounds().height, 90.0F);
}

TEST_F(Drags, OnAnotherRowNoCopyShowsAndAReleaseOnTheSameChipClicks)
{
    press(centre("chip-0-0"));
    dragTo(offset(centre("chip-0-0"), 10.0, 0.0));
    EXPECT_THAT(dragImages(), IsEmpty());
    // Nor does a later move over the right row start one.
    dragTo(centre("chip-0-1"));
    EXPECT_THAT(dragImages(), IsEmpty());
    release(centre("chip-0-0"));
    EXPECT_THAT(target().take(), ElementsAre("click 0 0"));
}

TEST_F(Drags, WhereTheGameOffersNoTargetsAtAllNoneStartsAndAReleaseClicks)
{
    target().targets = std::nullopt;
    press(centre("chip-0-1"));
    dragTo(offset(centre("chip-0-1"), 10.0, 0.0));
    target().targets = std::vector<unsigned> {}; // too late for this press
    dragTo(offset(centre("chip-0-1"), 12.0, 0.0));
    EXPECT_THAT(dragImages(), IsEmpty());
    release(centre("chip-0-1"));
    EXPECT_THAT(target().take(), ElementsAre("click 1 0"));
}

TEST_F(Drags, WithAnEmptyListOfTargetsItStartsAndFliesBack)
{
    target().targets = std::vector<unsigned> {};
    drag("chip-0-1", "chip-3-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 3"));
    ASSERT_THAT(dragImages(), SizeIs(1));
    EXPECT_EQ(dragImages().front()->position(), single(centre("chip-0-1")));
}

TEST_F(Drags, OnAnEmptyBoardNothingCanBeDragged)
{
    target().playableRow = std::nullopt;
    startDrag("chip-0-1");
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, ItStartsFromTheChipUnderThePointerAtTheFirstMoveThatQualifies)
{
    const platform::Point bare { 580.0, 787.0 };
    press(bare);
    dragTo(offset(bare, 20.0, 0.0)); // still no chip there: a later move tries again
    EXPECT_THAT(dragImages(), IsEmpty());
    dragTo(centre("chip-1-1"));
    EXPECT_THAT(dragImages(), SizeIs(1));
    EXPECT_EQ(layer("chip-1-1").opacity(), 0.5F);
    release(centre("chip-3-1"));
    EXPECT_THAT(target().take(), ElementsAre("drag 1 1 to 1 3"));
}

TEST_F(Drags, AnAcceptedDropBlocksForThreeQuartersOfASecondAndFades)
{
    target().acceptsDrags = true;
    target().lines = 2;
    drag("chip-0-1", "chip-2-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 2"));
    const present::Layer& image = *dragImages().front();
    EXPECT_EQ(image.position(), single(centre("chip-2-1"))); // it stays where it was let go
    EXPECT_EQ(image.shownOpacity(), 1.0F);
    EXPECT_EQ(image.opacity(), 0.0F);
    wait(0.25);
    EXPECT_EQ(image.shownOpacity(), 0.0F);
    wait(0.25);
    EXPECT_THAT(dragImages(), IsEmpty());
    wait(0.25 - kInstant);
    EXPECT_TRUE(blocked());
    wait(kInstant);
    EXPECT_FALSE(blocked());
}

TEST_F(Drags, TheGameMayLengthenTheBlockOfADropWhileItAnswers)
{
    target().acceptsDrags = true;
    target().whenAsked = [this] {
        EXPECT_FALSE(blocked()); // not before it is known that a move was made
        view().block().increaseDelay(1.5);
    };
    drag("chip-0-1", "chip-2-1");
    wait(2.25 - kInstant);
    EXPECT_TRUE(blocked());
    wait(0.1);
    EXPECT_FALSE(blocked());
}

TEST_F(Drags, ARefusedDropBlocksNothingAndFliesBack)
{
    drag("chip-0-1", "chip-2-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 2"));
    EXPECT_FALSE(blocked());
    const present::Layer& image = *dragImages().front();
    EXPECT_EQ(image.shownPosition(), single(centre("chip-2-1")));
    EXPECT_EQ(image.position(), single(centre("chip-0-1")));
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, DroppedOnItselfOnAnotherRowOrOnNoChipTheGameIsNotAsked)
{
    addImage("goal-0-12", 0.9, 0.2, 0.075);
    for (const auto& place : { centre("chip-0-1"), centre("chip-1-0"), centre("goal-0-12"),
             platform::Point { 5.0, 5.0 }, platform::Point { -50.0, 5.0 } }) {
        drag("chip-0-1", place);
        EXPECT_THAT(target().take(), IsEmpty());
        ASSERT_THAT(dragImages(), SizeIs(1));
        EXPECT_EQ(dragImages().front()->position(), single(centre("chip-0-1")));
        EXPECT_FALSE(blocked());
        wait(1.0);
    }
}

TEST_F(Drags, AQuickSecondDragKeepsItsOwnCopy)
{
    drag("chip-0-1", "chip-0-1");
    wait(0.3);
    startDrag("chip-1-1");
    EXPECT_THAT(dragImages(), SizeIs(2));
    wait(0.2); // the first goes half a second after its release
    ASSERT_THAT(dragImages(), SizeIs(1));
    EXPECT_EQ(
        dynamic_cast<const present::ImageLayer&>(*dragImages().front()).imageName(), "RedChip");
    const auto place = offset(centre("chip-1-1"), 40.0, 0.0);
    dragTo(place);
    EXPECT_EQ(dragImages().front()->position(), single(place));
    wait(5.0);
    EXPECT_THAT(dragImages(), SizeIs(1));
    release(centre("chip-1-1"));
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, TheCopyOfALaterDragSurvivesTheRemovalOfAnEarlierOne)
{
    drag("chip-0-1", "chip-0-1");
    wait(0.3);
    drag("chip-1-1", "chip-1-1");
    wait(0.2);
    EXPECT_THAT(dragImages(), SizeIs(1));
    wait(0.3);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, ADragWhoseChipDisappearsEnds)
{
    startDrag("chip-0-1");
    table().removeGameObjectForKey("chip-0-1");
    dragTo(centre("chip-2-1"));
    EXPECT_EQ(dragImages().front()->opacity(), 0.0F);
    release(centre("chip-2-1"));
    EXPECT_THAT(target().take(), IsEmpty());
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, ADragWhoseChipDisappearsBeforeTheReleaseDropsNothing)
{
    startDrag("chip-0-1");
    dragTo(centre("chip-2-1"));
    table().removeAllEntries();
    release({ 810.0, 787.0 });
    EXPECT_THAT(target().take(), IsEmpty());
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, ADragWhoseChipWasReplacedEndsToo)
{
    startDrag("chip-0-1");
    lines().createChipsForTheorem("YRGG", 1);
    dragTo(centre("chip-2-1"));
    EXPECT_EQ(layer("chip-0-1").opacity(), 1.0F); // the new chip was never dimmed
    // The press has come to nothing: it lifts no other chip, and is no click.
    dragTo(centre("chip-1-1"));
    EXPECT_THAT(dragImages(), SizeIs(1));
    EXPECT_EQ(layer("chip-1-1").opacity(), 1.0F);
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
    release(centre("chip-0-1"));
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(Drags, OneWhoseReleaseNeverComesIsTakenBack)
{
    const std::pair<const char*, std::function<void()>> signs[] = {
        { "told so", [this] { view().cancelGesture(); } },
        { "a move without the button", [this] { moveTo(centre("chip-2-1")); } },
        { "another press",
            [this] {
                press({ 5.0, 5.0 });
            } },
        { "another press that is ignored",
            [this] {
                view().block().startBlockClick(0.5);
                press({ 5.0, 5.0 });
            } },
    };
    for (const auto& [sign, happens] : signs) {
        SCOPED_TRACE(sign);
        target().targets = std::vector<unsigned> { 2 };
        startDrag("chip-0-1");
        dragTo(centre("chip-2-1"));
        ASSERT_EQ(layer("chip-2-1").glow(), 20.0F);
        happens();
        ASSERT_THAT(dragImages(), SizeIs(1));
        EXPECT_EQ(dragImages().front()->opacity(), 0.0F);
        EXPECT_EQ(dragImages().front()->position(), single(centre("chip-0-1")));
        EXPECT_EQ(layer("chip-0-1").shownOpacity(), 1.0F);
        EXPECT_EQ(layer("chip-2-1").glow(), 0.0F);
        wait(0.5);
        EXPECT_THAT(dragImages(), IsEmpty());
        release(centre("chip-2-1")); // nothing is left to let go
        EXPECT_THAT(target().take(), IsEmpty());
        EXPECT_FALSE(blocked());
    }
}

TEST_F(Drags, OneThatIsTakenBackAfterItsChipHasGoneJustEnds)
{
    startDrag("chip-0-1");
    table().removeGameObjectForKey("chip-0-1");
    view().cancelGesture();
    EXPECT_EQ(dragImages().front()->opacity(), 0.0F);
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, TheOneAfterALostReleaseIsLikeAnyOther)
{
    startDrag("chip-0-1");
    drag("chip-1-1", "chip-2-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 1 to 1 2"));
    wait(0.5);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(Drags, TargetsGlowWhileTheChipIsOverThem)
{
    target().targets = std::vector<unsigned> { 0, 3 };
    startDrag("chip-1-1");
    dragTo(centre("chip-2-1")); // no target
    EXPECT_EQ(layer("chip-2-1").glow(), 0.0F);
    dragTo(centre("chip-3-1"));
    EXPECT_EQ(layer("chip-3-1").glow(), 20.0F);
    EXPECT_THAT(sounds(), ElementsAre("Click"));
    dragTo(centre("chip-2-1"));
    EXPECT_EQ(layer("chip-3-1").glow(), 0.0F);
    dragTo(centre("chip-0-1"));
    EXPECT_EQ(layer("chip-0-1").glow(), 20.0F);
}

TEST_F(Drags, NoChipKeepsItsGlowAfterTheDrop)
{
    for (const bool accepted : { true, false }) {
        target().acceptsDrags = accepted;
        target().lines = accepted ? 3 : 2; // counted once the game has answered
        drag("chip-0-1", "chip-1-1");
        for (const char* key : { "chip-0-1", "chip-1-1", "chip-2-1", "chip-3-1" }) {
            EXPECT_EQ(layer(key).glow(), 0.0F) << key;
        }
        wait(1.0);
    }
}

TEST_F(Drags, ButtonsDoNotAnswerWhileTheButtonIsHeld)
{
    addButton("button-lightbulb", 0.275);
    view().establishButtonTracking();
    startDrag("chip-1-1");
    dragTo(centre("button-lightbulboff"));
    EXPECT_EQ(opacity("button-lightbulbon"), 0.0);
    release(centre("button-lightbulboff"));
    EXPECT_EQ(opacity("button-lightbulbon"), 1.0); // made good at the release
}

} // namespace veyrand::input
