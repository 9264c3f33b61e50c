#include "desktop/qt/QtFileExchange.h"

#include "platform/FileExchangeContract.h"
#include "platform/MemoryPreferences.h"
#include "support/QtEnvironment.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>

namespace veyrand::platform {

namespace {

QFileDialog* openFileDialog()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QFileDialog*>(widget);
        if (dialog != nullptr && dialog->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

class QtFileExchangeHarness {
public:
    QtFileExchangeHarness()
    {
        m_preferences.setValue(desktop::qt::QtFileExchange::kFolderKey, m_folder.path());
    }

    FileExchange& exchange() { return m_exchange; }
    void put(const std::string& name, const std::string& text)
    {
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(text));
    }
    std::string contents(const std::string& name)
    {
        QFile file(pathOf(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
    void willChoose(const std::string& name) { m_wanted = pathOf(name); }
    void choose()
    {
        QFileDialog* const dialog = openFileDialog();
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(m_wanted);
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
        serve();
    }
    static void cancel()
    {
        QFileDialog* const dialog = openFileDialog();
        ASSERT_NE(dialog, nullptr);
        dialog->reject();
        serve();
    }
    // A folder lies where the file would.
    void block() { QDir().mkpath(pathOf("game.json")); }

private:
    QString pathOf(const std::string& name) { return QString::fromStdString(m_folder.at(name)); }
    static void serve()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    test::ScratchFolder m_folder;
    MemoryPreferences m_preferences;
    desktop::qt::QtFileExchange m_exchange { m_preferences };
    QString m_wanted;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, FileExchangeContract, QtFileExchangeHarness);

} // namespace veyrand::platform
