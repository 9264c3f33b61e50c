#include "present/InfoLayer.h"

#include "LayeredBoard.h"
#include "support/BoardRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::present {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr double kOffsetError = 1e-6; // offsets are single precision

class InfoLayerTest : public LayeredBoard {
protected:
    std::unique_ptr<InfoLayer> open(const InfoLayer::Style& style = pane())
    {
        return std::make_unique<InfoLayer>(gameData(), style);
    }
    static InfoLayer::Style pane()
    {
        InfoLayer::Style style;
        style.background.imageName = "MessageBackground";
        return style;
    }

    [[nodiscard]] board::GameObjectPtr object(const std::string& key)
    {
        return table().objectForKey(key);
    }
    [[nodiscard]] const TextLayer& textOf(const std::string& key)
    {
        return *BoardLayers::textOn(*layers().layerForKey(key));
    }
    [[nodiscard]] std::vector<std::string> keys() { return table().keys(); }
};

} // namespace

TEST_F(InfoLayerTest, SetsItsLinesOneBelowTheOther)
{
    const auto message = open();
    for (const char* line : { "one", "two", "three" }) {
        message->addText(line);
    }
    const std::vector<double> expected { 0.65, 0.575, 0.5 };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto line = object("fullScreen-" + std::to_string(i));
        EXPECT_NEAR(line->y(), expected[i], kOffsetError);
        EXPECT_EQ(line->x(), 0.8);
        EXPECT_EQ(line->width(), 0.0);
        EXPECT_EQ(line->height(), 0.0);
        EXPECT_EQ(line->imageName(), "");
    }
    EXPECT_EQ(textOf("fullScreen-1").string(), "two");
    EXPECT_EQ(textOf("fullScreen-1").fontSize(), 60.0);
    EXPECT_EQ(textOf("fullScreen-1").color(), board::Color {});
}

TEST_F(InfoLayerTest, ScalesLettersAndTheirDistanceTogether)
{
    const auto message = open();
    EXPECT_EQ(message->fontMultiplier(), 1.0F);
    message->setFontMultiplier(0.8F);
    message->addText("one");
    message->addText("two");
    EXPECT_NEAR(textOf("fullScreen-0").fontSize(), 48.0, 1e-5);
    EXPECT_NEAR(object("fullScreen-0")->y() - object("fullScreen-1")->y(), 0.06, kOffsetError);
}

TEST_F(InfoLayerTest, LowersItsLinesByItsOffsetAndMovesEachByItsOwn)
{
    InfoLayer::Style style = pane();
    style.verticalOffset = 0.215F;
    const auto message = open(style);
    const board::Color blue { .red = 0.125, .green = 0.098, .blue = 0.56 };
    message->addText("one", { .horizontal = 0.1, .vertical = -0.2 }, blue, 36.0);
    EXPECT_NEAR(object("fullScreen-0")->x(), 0.9, kOffsetError);
    EXPECT_NEAR(object("fullScreen-0")->y(), 0.75 - 0.215 - 0.2, kOffsetError);
    EXPECT_EQ(textOf("fullScreen-0").fontSize(), 36.0);
    EXPECT_EQ(textOf("fullScreen-0").color(), blue);
}

TEST_F(InfoLayerTest, FadesInOverHalfASecondButForItsPane)
{
    const auto message = open();
    message->addText("one");
    message->fadeInImage("RedChip", 0.7, 0.5, 0.075, 0.075, 0.0);
    const auto shown
        = [this](const char* key) { return layers().layerForKey(key)->shownOpacity(); };
    EXPECT_EQ(shown("fullScreen"), 0.0F);
    EXPECT_EQ(shown("fullScreen-0i"), 1.0F);
    EXPECT_EQ(shown("fullScreen-0"), 0.0F);
    EXPECT_EQ(shown("fullScreen-1i"), 0.0F);
    wait(0.25);
    EXPECT_NEAR(shown("fullScreen"), 0.125F, 1e-5F);
    EXPECT_NEAR(shown("fullScreen-0"), 0.5F, 1e-5F);
    EXPECT_NEAR(shown("fullScreen-1i"), 0.5F, 1e-5F);
    wait(0.25);
    EXPECT_EQ(shown("fullScreen"), 0.25F);
    EXPECT_EQ(shown("fullScreen-0"), 1.0F);
}

TEST_F(InfoLayerTest, NumbersItsPicturesFromThePaneOn)
{
    const auto message = open();
    message->fadeInImage("RedChip", 0.7, 0.5, 0.075, 0.075, 0.0);
    message->fadeInImage("GreenChip", 0.8, 0.5, 0.075, 0.075, 0.0, 0.0);
    EXPECT_THAT(
        keys(), ElementsAre("fullScreen", "fullScreen-0i", "fullScreen-1i", "fullScreen-2i"));
    EXPECT_EQ(object("fullScreen-0i")->imageName(), "MessageBackground");
    EXPECT_EQ(object("fullScreen-0i")->width(), 1.066667);
    EXPECT_EQ(object("fullScreen-2i")->imageName(), "GreenChip");
    EXPECT_EQ(object("fullScreen-2i")->opacity(), 0.0) << "a picture that waits to be lit";
    EXPECT_EQ(message->images().size(), 3U);
}

TEST_F(InfoLayerTest, HasAVeilOverTheWholeBoard)
{
    const auto message = open();
    const auto veil = object("fullScreen");
    EXPECT_EQ(veil, message->gameObject());
    EXPECT_EQ(veil->imageName(), "Veil");
    EXPECT_EQ(veil->x(), 0.8);
    EXPECT_EQ(veil->y(), 0.5);
    EXPECT_EQ(veil->width(), 1.6);
    EXPECT_EQ(veil->height(), 1.0);
    EXPECT_EQ(veil->opacity(), 0.25);
    EXPECT_FALSE(layers().layerForKey("fullScreen")->isHidden());
}

TEST_F(InfoLayerTest, WithoutAPaneAndVeilLetsPressesThrough)
{
    gameData().gameObjects().addGameObject(
        std::make_shared<board::GameObject>("RedChip", 0.8, 0.5, 0.075, 0.075, 1.0, true),
        "chip-0-0");
    layers().fitTo({ .width = 1440, .height = 900 });
    const auto note
        = open({ .background = {}, .visible = false, .verticalOffset = 0.135F, .veil = 0.0F });
    note->addText("Click here", { .horizontal = 0.3 });
    EXPECT_THAT(keys(), ElementsAre("chip-0-0", "fullScreen", "fullScreen-0"));
    EXPECT_EQ(layers().contentLayer().hitTest({ .x = 720.0F, .y = 450.0F }),
        layers().layerForKey("chip-0-0"));
}

TEST_F(InfoLayerTest, TakesEverythingAlongWhenItGoes)
{
    auto message = open();
    message->addText("one");
    message->fadeInImage("RedChip", 0.7, 0.5, 0.075, 0.075, 0.0);
    message.reset();
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_EQ(layers().layerForKey("fullScreen-0"), nullptr);
}

TEST_F(InfoLayerTest, CanLoseItsVeilAlone)
{
    auto message = open();
    message->removeLayer();
    EXPECT_THAT(keys(), ElementsAre("fullScreen-0i"));
    message.reset();
    EXPECT_THAT(keys(), IsEmpty());
}

TEST_F(InfoLayerTest, LeavesAloneWhatALaterMessageHasTaken)
{
    auto first = open();
    first->addText("first");
    first->addText("second line of the first");
    auto second = open();
    second->addText("second");
    first.reset();
    EXPECT_THAT(keys(), ElementsAre("fullScreen", "fullScreen-0", "fullScreen-0i"));
    EXPECT_EQ(textOf("fullScreen-0").string(), "second");
    second.reset();
    EXPECT_THAT(keys(), IsEmpty());
}

TEST_F(InfoLayerTest, CanLeaveEverythingToTheBoard)
{
    auto message = open();
    message->addText("one");
    message->leaveEverything();
    message.reset();
    EXPECT_THAT(keys(), ElementsAre("fullScreen", "fullScreen-0", "fullScreen-0i"));
}

} // namespace veyrand::present
