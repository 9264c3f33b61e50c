#include "Program.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

namespace veyrand::bench {

namespace {

QByteArray contentsOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The number after the name in a file of the kind of /proc/self/status.
long numberIn(const QByteArray& status, const char* name)
{
    const auto at = status.indexOf(name);
    return at < 0 ? 0 : status.mid(at).simplified().split(' ').value(1).toLong();
}

void write(const QString& name, const QByteArray& contents)
{
    QFile file(name);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(contents);
    }
}

} // namespace

QString platformWithScreen(const QString& platform, const QTemporaryDir& folder, QSize size)
{
    if (platform != QLatin1String("offscreen")) {
        return platform;
    }
    const QString file = folder.filePath(QStringLiteral("screen.json"));
    write(file,
        QStringLiteral(R"({"screens":[{"name":"screen","x":0,"y":0,"width":%1,"height":%2,)"
                       R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
            .arg(size.width())
            .arg(size.height())
            .toUtf8());
    return QStringLiteral("offscreen:configfile=") + file;
}

Program::Program(const QString& file, const QString& platform)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("veyrand"));
    write(m_folder.filePath(QStringLiteral("veyrand/preferences.json")),
        R"({ "Window": { "x": 0, "y": 0, "width": 1920, "height": 1080 } })");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
        platformWithScreen(platform, m_folder, QSize(1920, 1080)));
    environment.insert(
        QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("veyrand.timing.debug=true"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.path());
    environment.insert(QStringLiteral("ALSOFT_DRIVERS"), QStringLiteral("null"));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);

    QElapsedTimer timer;
    timer.start();
    m_process.start(file, {});
    QByteArray said;
    while (m_process.waitForReadyRead()) {
        said += m_process.readAll();
        if (said.contains("first frame")) {
            constexpr double kNanosecondsPerMillisecond = 1e6;
            m_firstFrame = static_cast<double>(timer.nsecsElapsed()) / kNanosecondsPerMillisecond;
            const QByteArray spent = contentsOf(
                QStringLiteral("/proc/%1/task/%1/schedstat").arg(m_process.processId()));
            m_firstFrameWork = spent.split(' ').value(0).toDouble() / kNanosecondsPerMillisecond;
            break;
        }
    }
}

Program::~Program()
{
    m_process.kill();
    m_process.waitForFinished();
}

double Program::residentMemory() const
{
    constexpr double kKilobytesPerMegabyte = 1024.0;
    const QByteArray status
        = contentsOf(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
    return static_cast<double>(numberIn(status, "VmRSS:")) / kKilobytesPerMegabyte;
}

long Program::switches() const
{
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(m_process.processId()));
    long count = 0;
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        count += numberIn(contentsOf(tasks.filePath(task + QStringLiteral("/status"))),
            "voluntary_ctxt_switches:");
    }
    return count;
}

void Program::awaitRest() const
{
    constexpr int kMostSeconds = 30;
    int rested = 0;
    for (int second = 0; second < kMostSeconds && rested < 2; ++second) {
        rested = wakeUpsIn(1) == 0 ? rested + 1 : 0;
    }
}

long Program::wakeUpsIn(int seconds) const
{
    const long before = switches();
    QThread::sleep(static_cast<unsigned long>(seconds));
    return switches() - before;
}

} // namespace veyrand::bench
