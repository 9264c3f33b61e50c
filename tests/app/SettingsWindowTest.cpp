#include "desktop/qt/SettingsWindow.h"

#include "app/MainWindow.h"
#include "support/PlayedGame.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>
#include <set>

namespace veyrand::app {

using platform::SoundKind;
using progress::Settings;

namespace {

// The real settings window over the real window of a game in virtual time.
class SettingsWindowTest : public test::PlayedGame {
protected:
    void open()
    {
        m_window.open(std::nullopt);
        show();
    }
    void show()
    {
        desktop::qt::showSettingsWindow({ .preferences = game().preferences(),
                                            .clock = game().headless().runLoop(),
                                            .changed = [this] { game().game().settingsChanged(); },
                                            .playEffect =
                                                [this] {
                                                    game().controller().context().effects.play(
                                                        platform::Effect::Marble);
                                                } },
            m_window);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QDialog* dialog() { return m_window.findChild<QDialog*>(); }
    template <class Widget> Widget& widget(const char* name)
    {
        auto* const found = dialog()->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    [[nodiscard]] Settings settings() { return progress::readSettings(game().preferences()); }
    MainWindow& window() { return m_window; }

private:
    MainWindow m_window { game().menu(), game().widget() };
};

} // namespace

TEST_F(SettingsWindowTest, EveryChangeIsKeptAndInForceAtOnce)
{
    open();
    widget<QCheckBox>("Say Why").click();
    EXPECT_TRUE(settings().sayWhy);
    QTest::keyClick(&widget<QComboBox>("Tempo"), Qt::Key_Up);
    EXPECT_EQ(settings().tempo, Settings::Tempo::Fast);
    EXPECT_EQ(game().controller().context().tempo.speed(), Settings::Tempo::Fast);
    QTest::keyClick(&widget<QComboBox>("Less motion"), Qt::Key_Down);
    EXPECT_EQ(settings().reducedMotion, Settings::ReducedMotion::On);
    QTest::keyClick(&widget<QComboBox>("Chips"), Qt::Key_End);
    EXPECT_EQ(settings().chips, Settings::Chips::Patterns);
    QTest::keyClick(&widget<QComboBox>("Tips and whispers"), Qt::Key_Down);
    EXPECT_EQ(settings().tipSize, 1.5);
}

TEST_F(SettingsWindowTest, VolumesAreHeardWhileTheyAreMoved)
{
    game().preferences().setValue("TRNPlayEffectsKey", true);
    open();
    game().sounds().takePlayed();
    QTest::keyClick(&widget<QSlider>("Music volume"), Qt::Key_Left);
    EXPECT_EQ(game().sounds().volume(SoundKind::Music), 95);
    EXPECT_THAT(sounds(), ::testing::IsEmpty()) << "the music itself is heard";
    QTest::keyClick(&widget<QSlider>("Effects volume"), Qt::Key_Home);
    EXPECT_EQ(game().sounds().volume(SoundKind::Effects), 0);
    EXPECT_THAT(sounds(), ::testing::ElementsAre("Marble"));
    QTest::keyClick(&widget<QSlider>("Effects volume"), Qt::Key_Right);
    EXPECT_THAT(sounds(), ::testing::IsEmpty()) << "so soon after the last";
    wait(0.2);
    QTest::keyClick(&widget<QSlider>("Effects volume"), Qt::Key_Right);
    EXPECT_THAT(sounds(), ::testing::ElementsAre("Marble"));
    EXPECT_EQ(settings().effectsVolume, 10);
}

TEST_F(SettingsWindowTest, TheLastPlaceOfADraggedSliderIsKept)
{
    open();
    auto& slider = widget<QSlider>("Music volume");
    slider.setSliderDown(true);
    slider.setSliderPosition(70);
    slider.setSliderPosition(40);
    EXPECT_EQ(settings().musicVolume, 70) << "what passes by is written now and then";
    slider.setSliderDown(false);
    EXPECT_EQ(settings().musicVolume, 40);
    EXPECT_EQ(game().sounds().volume(SoundKind::Music), 40);
}

TEST_F(SettingsWindowTest, OneButtonBringsEverythingBackButTheMenusSwitches)
{
    open();
    game().preferences().setValue("TRNPlayMusicKey", false);
    widget<QCheckBox>("Answers").click();
    QTest::keyClick(&widget<QSlider>("Music volume"), Qt::Key_Home);
    QTest::keyClick(&widget<QComboBox>("Chips"), Qt::Key_End);
    for (auto* const button : dialog()->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String(controller::kResetSettings)) {
            QTest::keyClick(button, Qt::Key_Space);
        }
    }
    Settings expected;
    expected.music = false;
    EXPECT_EQ(settings(), expected);
    EXPECT_TRUE(widget<QCheckBox>("Answers").isChecked());
    EXPECT_EQ(widget<QSlider>("Music volume").value(), 100);
    EXPECT_EQ(widget<QComboBox>("Chips").currentIndex(), 0);
    EXPECT_EQ(game().sounds().volume(SoundKind::Music), 100);
}

TEST_F(SettingsWindowTest, EverythingHasANameAndIsReachedByTab)
{
    open();
    std::set<const QWidget*> reached;
    for (int i = 0; i < 40; ++i) {
        reached.insert(dialog()->focusWidget());
        QTest::keyClick(dialog(), Qt::Key_Tab);
    }
    for (const controller::SettingItem& item : controller::settingItems()) {
        const std::string name = controller::plainMenuText(item.text);
        const auto& field = widget<QWidget>(name.c_str());
        EXPECT_EQ(field.accessibleName().toStdString(), name);
        EXPECT_FALSE(field.accessibleDescription().isEmpty()) << name;
        EXPECT_TRUE(reached.contains(&field)) << name;
    }
}

TEST_F(SettingsWindowTest, EveryLineHasALetterOfItsOwn)
{
    std::set<QString> letters;
    const auto take = [&letters](const char* text) {
        const QString mnemonic = QKeySequence::mnemonic(QString::fromUtf8(text)).toString();
        EXPECT_FALSE(mnemonic.isEmpty()) << text;
        EXPECT_TRUE(letters.insert(mnemonic).second) << text;
    };
    for (const controller::SettingItem& item : controller::settingItems()) {
        take(item.text);
    }
    take(controller::kResetSettings);
    take(controller::kCloseSettings);
}

TEST_F(SettingsWindowTest, SpeaksTheLanguageThatIsChosenInItAtOnce)
{
    open();
    auto& language = widget<QComboBox>("Language");
    language.setFocus();
    language.setCurrentIndex(2);
    EXPECT_EQ(settings().language, Settings::Language::German);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(); // and what that has asked for
    EXPECT_EQ(dialog()->windowTitle(), QStringLiteral("Einstellungen"));
    EXPECT_EQ(widget<QCheckBox>("Say Why").text(), QStringLiteral("&Gründe nennen"));
    EXPECT_EQ(widget<QComboBox>("Language").currentIndex(), 2);
    EXPECT_EQ(dialog()->focusWidget(), &widget<QComboBox>("Language"));
}

TEST_F(SettingsWindowTest, TheGameGoesOnBehindIt)
{
    play("YRGG", "YB");
    open();
    EXPECT_FALSE(dialog()->isModal());
    click("chip-0-0");
    settle();
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(SettingsWindowTest, ThereIsOneAndEscapeClosesIt)
{
    open();
    const QDialog* const first = dialog();
    show();
    EXPECT_EQ(window().findChildren<QDialog*>().size(), 1);
    EXPECT_EQ(dialog(), first);
    QTest::keyClick(dialog(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(dialog(), nullptr);
    show();
    EXPECT_NE(dialog(), nullptr);
}

} // namespace veyrand::app
