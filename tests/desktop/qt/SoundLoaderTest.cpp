#include "desktop/qt/SoundLoader.h"

#include "desktop/qt/SoundSupport.h"

#include <QThread>

#include <cstdlib>
#include <random>

namespace veyrand::desktop::qt {

namespace {

int roundsWanted()
{
    const char* const wanted = std::getenv("VEYRAND_THREAD_ROUNDS");
    return wanted != nullptr ? std::atoi(wanted) : 5;
}

// Five short sounds, and one that is none.
class SoundFolder {
public:
    SoundFolder()
    {
        for (int number = 0; number < 5; ++number) {
            test::writeTone(
                m_folder.filePath(QStringLiteral("%1.wav").arg(number)), 0.05, 220.0 + number);
        }
        QFile broken(m_folder.filePath(QStringLiteral("broken.wav")));
        EXPECT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write("no sound");
    }
    [[nodiscard]] QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

// What a loader has told, and in which thread.
struct Told {
    int devices = 0;
    int sounds = 0;
    int errors = 0;
    bool isOver = false;
    bool cameElsewhere = false;

    SoundLoader::Listener listener()
    {
        QThread* const here = QThread::currentThread();
        return { .opened =
                     [this, here](const std::shared_ptr<OpenAlDevice>& device, const QString&) {
                         devices += device != nullptr ? 1 : 0;
                         cameElsewhere = cameElsewhere || QThread::currentThread() != here;
                     },
            .decoded =
                [this, here](const QString&, const SoundSamples& samples, const QString& error) {
                    (samples.samples.empty() ? errors : sounds) += 1;
                    EXPECT_EQ(samples.samples.empty(), !error.isEmpty());
                    cameElsewhere = cameElsewhere || QThread::currentThread() != here;
                },
            .finished = [this] { isOver = true; } };
    }
};

} // namespace

// tools/evidence threads runs it under the thread sanitizer, which sees what one run does not.
TEST(ASoundLoader, TellsEverySoundInTheThreadThatMadeIt)
{
    const SoundFolder folder;
    for (int round = 0; round < roundsWanted(); ++round) {
        Told told;
        const SoundLoader loader(folder.path(), &test::LoopbackDevice::open, told.listener());
        while (!told.isOver) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        EXPECT_EQ(told.devices, 1);
        EXPECT_EQ(told.sounds, 5);
        EXPECT_EQ(told.errors, 1);
        EXPECT_FALSE(told.cameElsewhere);
    }
}

TEST(ASoundLoader, MayBeGivenUpAtAnyMoment)
{
    const SoundFolder folder;
    std::mt19937 random(3);
    for (int round = 0; round < roundsWanted(); ++round) {
        Told told;
        {
            const SoundLoader loader(folder.path(), &test::LoopbackDevice::open, told.listener());
            for (auto turns = random() % 6; turns > 0 && !told.isOver; --turns) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
        }
        const int sounds = told.sounds;
        QCoreApplication::processEvents();
        EXPECT_EQ(told.sounds, sounds) << "told after its end";
    }
}

} // namespace veyrand::desktop::qt
