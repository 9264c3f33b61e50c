#include "app/PagePreview.h"

#include "language/Choice.h"

#include <QApplication>
#include <QDir>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

namespace veyrand::app {

namespace {

// A picture of the page, and the faults of the files it was made from.
class Preview final : public QWidget {
public:
    explicit Preview(const PageToShow& wanted)
        : m_wanted(wanted)
    {
        setWindowTitle(QString::fromStdString(wanted.page + " (" + wanted.language + ')'));
        m_faults.setTextFormat(Qt::PlainText);
        m_faults.setWordWrap(true);
        auto* const rows = new QVBoxLayout(this);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->addWidget(&m_picture);
        rows->addWidget(&m_faults);
        // An editor may save a file in several steps, or put another in its place.
        constexpr int kSettled = 150; // milliseconds
        m_settled.setSingleShot(true);
        m_settled.setInterval(kSettled);
        connect(&m_settled, &QTimer::timeout, this, [this] { draw(); });
        const auto changed = [this] { m_settled.start(); };
        connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, changed);
        connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, changed);
        draw();
    }

    Preview(const Preview&) = delete;
    Preview& operator=(const Preview&) = delete;
    // The labels are members, which no layout may delete.
    ~Preview() override
    {
        m_picture.setParent(nullptr);
        m_faults.setParent(nullptr);
    }

private:
    void draw()
    {
        watch();
        const ShownPage made = pictureOfPage(m_wanted);
        m_picture.setPixmap(QPixmap::fromImage(made.picture));
        m_faults.setText(made.faults.trimmed());
        m_faults.setVisible(!made.faults.isEmpty());
        QTextStream(stdout) << "drawn" << Qt::endl << made.faults;
    }

    void watch()
    {
        const QString languages = m_wanted.languagesFolder.isEmpty()
            ? m_wanted.dataFolder + QStringLiteral("/languages")
            : m_wanted.languagesFolder;
        for (const std::string& code : { std::string(language::kEnglish), m_wanted.language }) {
            const QDir folder(languages + QLatin1Char('/') + QString::fromStdString(code));
            if (!folder.exists()) {
                continue; // as for the pseudo-language
            }
            m_watcher.addPath(folder.path());
            for (const QString& file : folder.entryList(QDir::Files)) {
                m_watcher.addPath(folder.filePath(file));
            }
        }
    }

    PageToShow m_wanted;
    QLabel m_picture;
    QLabel m_faults;
    QFileSystemWatcher m_watcher;
    QTimer m_settled;
};

} // namespace

int showPage(const PageToShow& wanted)
{
    if (pictureOfPage(wanted).picture.isNull()) {
        QTextStream(stderr) << "There is no page " << QString::fromStdString(wanted.page)
                            << Qt::endl;
        return 1;
    }
    Preview preview(wanted);
    preview.show();
    return QApplication::exec();
}

} // namespace veyrand::app
