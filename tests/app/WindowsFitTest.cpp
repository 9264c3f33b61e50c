#include "app/AboutBox.h"
#include "app/MainWindow.h"
#include "desktop/qt/QtAlerts.h"
#include "desktop/qt/SettingsWindow.h"
#include "language/Choice.h"
#include "support/PlayedGame.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace veyrand::app {

namespace {

// The smallest desktop that the game is made for, less a task bar and a frame.
constexpr QSize kDesktop { 1280, 740 };

// Every word of a window has the room that it asks for, and the window has it on the desktop.
class WindowsFit : public test::PlayedGame, public testing::WithParamInterface<std::string> {
protected:
    WindowsFit()
    {
        game().preferences().setRecord("Settings", { { "Language", GetParam() } });
        game().game().settingsChanged();
        m_window.open(std::nullopt);
        m_window.setGeometry(0, 0, kDesktop.width(), kDesktop.height());
    }

    MainWindow& window() { return m_window; }

    static void expectFits(QWidget& window)
    {
        QCoreApplication::processEvents();
        EXPECT_LE(window.width(), kDesktop.width());
        EXPECT_LE(window.height(), kDesktop.height());
        int seen = 0;
        for (auto* const label : window.findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty()) {
                ++seen;
                expectRoom(*label, label->text());
                if (label->wordWrap()) {
                    EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                        << label->text().toStdString();
                }
            }
        }
        for (auto* const button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty()) {
                ++seen;
                expectRoom(*button, button->text());
            }
        }
        for (auto* const box : window.findChildren<QComboBox*>()) {
            expectRoom(*box, box->currentText());
        }
        for (auto* const box : window.findChildren<QGroupBox*>()) {
            expectRoom(*box, box->title());
        }
        EXPECT_GT(seen, 1);
    }

private:
    static void expectRoom(const QWidget& widget, const QString& text)
    {
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        const bool wraps = label != nullptr && label->wordWrap();
        EXPECT_GE(widget.width(), wraps ? 1 : widget.sizeHint().width()) << text.toStdString();
        const QWidget& window = *widget.window();
        EXPECT_TRUE(window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size())))
            << text.toStdString();
    }

    MainWindow m_window { game().menu(), game().widget() };
};

} // namespace

TEST_P(WindowsFit, ForTheSettings)
{
    desktop::qt::showSettingsWindow({ .preferences = game().preferences(),
                                        .clock = game().headless().runLoop(),
                                        .changed = [] {},
                                        .playEffect = [] {} },
        window());
    auto* const settings = window().findChild<QDialog*>(QStringLiteral("settings"));
    ASSERT_NE(settings, nullptr);
    expectFits(*settings);
}

TEST_P(WindowsFit, ForAboutVeyrand)
{
    showAboutBox(window());
    auto* const about = window().findChild<QMessageBox*>(QStringLiteral("about"));
    ASSERT_NE(about, nullptr);
    expectFits(*about);
}

TEST_P(WindowsFit, ForEveryQuestion)
{
    const language::Texts& texts = game().game().texts();
    const auto say = [&texts](const char* id) {
        return texts.text(id,
            { { "points", 16500 }, { "place", "11-10" },
                { "file", "/home/somebody/.local/share/veyrand/classic.journal" },
                { "kept", "/home/somebody/.local/share/veyrand/classic.journal.damaged-1" },
                { "why", "No such file or directory" } });
    };
    const std::vector<platform::Alert> alerts { { .message = say("previous.classic"),
                                                    .informativeText = say("previous.whatClassic"),
                                                    .defaultButton = say("previous.bringBack"),
                                                    .alternateButton = say("previous.leaveIt") },
        { .message = say("practice.leave"),
            .informativeText = say("practice.leaveMore"),
            .defaultButton = say("practice.play"),
            .alternateButton = say("practice.stay") },
        { .message = say("practice.codeSlip"),
            .informativeText = {},
            .defaultButton = say("practice.ok") },
        { .message = say("saving.unreadable"),
            .informativeText = {},
            .defaultButton = say("practice.ok"),
            .suppressionBox = platform::Alert::SuppressionBox::Shown } };
    for (const platform::Alert& alert : alerts) {
        desktop::qt::QtAlerts().show(alert, [](const platform::AlertAnswer& /*answer*/) {});
        QCoreApplication::processEvents();
        for (QWidget* const shown : QApplication::topLevelWidgets()) {
            if (auto* const box = qobject_cast<QMessageBox*>(shown); box && box->isVisible()) {
                expectFits(*box);
                box->close();
            }
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_P(WindowsFit, ForTheMenus)
{
    desktop::qt::GameMenu& menu = game().menu();
    menu.retranslate();
    EXPECT_LE(menu.bar()->sizeHint().width(), 480) << "as narrow as the window becomes";
    int items = 0;
    for (const QAction* const title : menu.bar()->actions()) {
        EXPECT_LE(title->menu()->sizeHint().height(), kDesktop.height());
        EXPECT_LE(title->menu()->sizeHint().width(), kDesktop.width() / 2);
        items += static_cast<int>(title->menu()->actions().size());
    }
    EXPECT_GT(items, 20);
}

INSTANTIATE_TEST_SUITE_P(All, WindowsFit, testing::ValuesIn(language::knownCodes()));

} // namespace veyrand::app
