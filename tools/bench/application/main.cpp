#include "Frames.h"
#include "Live.h"
#include "Program.h"
#include "desktop/qt/DataFolder.h"

#include <QApplication>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <iostream>

// Measures the application on one platform and prints a line a figure: name, value, unit and
// remark, parted by tabs. veyrand-bench reads them.

namespace {

using namespace veyrand::bench;

void print(const char* name, double value, const char* unit, const std::string& remark = "")
{
    std::cout << name << '\t' << value << '\t' << unit << '\t' << remark << std::endl;
}

bool measureProgram(const QString& game, const QString& platform)
{
    constexpr int kStarts = 15;
    std::vector<double> starts;
    std::vector<double> works;
    for (int i = 0; i < kStarts; ++i) {
        const Program program(game, platform);
        starts.push_back(program.firstFrame());
        works.push_back(program.firstFrameWork());
    }
    std::sort(starts.begin(), starts.end());
    std::sort(works.begin(), works.end());
    if (starts.front() < 0.0) {
        std::cerr << game.toStdString() << " showed no frame\n";
        return false;
    }
    // The start least disturbed by the rest of the machine.
    print("startup.first_frame_ms", starts.front(), "ms", "least of 15, wanted: under 100");
    print("startup.first_frame_median_ms", starts.at(kStarts / 2), "ms");
    print("startup.first_frame_work_ms", works.at(kStarts / 2), "ms", "of the main thread");
    const Program program(game, platform);
    program.awaitRest();
    print("memory.rss_mb", program.residentMemory(), "MB", "1920x1080, wanted: under 80");
    constexpr int kIdle = 10; // seconds
    print("idle.wakeups", static_cast<double>(program.wakeUpsIn(kIdle)), "",
        "in 10 s, all threads, wanted: 0");
    return true;
}

void measureFrames(const QString& dataFolder)
{
    struct Row {
        Scene scene;
        const char* mean;
        const char* p99;
        const char* ratio;
    };
    // What the moves of the game cost most, then what is rarer and larger.
    for (const Row& row : {
             Row { Scene::Doubling, "frame.damage.mean_ms", "frame.damage.p99_ms",
                 "frame.damage.ratio" },
             Row { Scene::Deleting, "frame.deleting.mean_ms", "frame.deleting.p99_ms",
                 "frame.deleting.ratio" },
             Row { Scene::Page, "frame.page.mean_ms", "frame.page.p99_ms", "frame.page.ratio" },
             Row { Scene::Title, "frame.title.mean_ms", "frame.title.p99_ms", "frame.title.ratio" },
         }) {
        const FrameTimes times = measureScene(dataFolder, row.scene, 1920, 1080);
        const double damage = FrameTimes::mean(times.damage);
        print(row.mean, damage, "ms",
            row.scene == Scene::Doubling ? "a move to 11 chips at 1920x1080, wanted: under 0.5"
                                         : "");
        print(row.p99, FrameTimes::percentile(times.damage, 99), "ms",
            row.scene == Scene::Doubling ? "wanted: under 2" : "");
        print(row.ratio, FrameTimes::mean(times.full) / damage, "times",
            "a plain widget that paints all of it");
    }
    print("frame.answer.mean_ms", measureAnswers(dataFolder, 1920, 1080), "ms",
        "what answers add to a frame, wanted: at most 0.1");
    const FrameTimes large = measureScene(dataFolder, Scene::Doubling, 3840, 2160);
    print("frame.full_4k.mean_ms", FrameTimes::mean(large.full), "ms",
        "all of 3840x2160, wanted: under 16");
}

void measureTime(const QString& dataFolder)
{
    struct Row {
        double rate;
        const char* p99;
        const char* off;
    };
    for (const Row& row : {
             Row { 60.0, "frame.interval_60.p99_ms", "frame.interval_60.off_p99_ms" },
             Row { 120.0, "frame.interval_120.p99_ms", "frame.interval_120.off_p99_ms" },
         }) {
        const double period = 1e3 / row.rate;
        std::vector<double> away;
        const std::vector<double> intervals = measureFrameIntervals(dataFolder, row.rate);
        away.reserve(intervals.size());
        for (const double interval : intervals) {
            away.push_back(std::abs(interval - period));
        }
        print(row.p99, FrameTimes::percentile(intervals, 99), "ms",
            "a period is " + std::to_string(period) + ", with music");
        print(row.off, FrameTimes::percentile(away, 99), "ms",
            "99 of 100 are no further from the period, wanted: under 2");
    }
    print("answer.press_to_pixel_p99_ms",
        FrameTimes::percentile(measureAnswerTimes(dataFolder), 99), "ms",
        "wanted: under two periods of the display");
}

int run(int argc, char** argv)
{
    CLI::App options("Measures the application on one platform.", "veyrand-bench-app");
    std::string platform = "offscreen";
    options.add_option("--platform", platform, "The toolkit's platform: offscreen or xcb");
    std::string part;
    options.add_option("--part", part, "Measures only the program, the frames or the time")
        ->check(CLI::IsMember({ "program", "frames", "time" }));
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return options.exit(error) == 0 ? 0 : 2;
    }
    qputenv("ALSOFT_DRIVERS", "null");
    const QString name = QString::fromStdString(platform);
    const QTemporaryDir folder;
    qputenv("QT_QPA_PLATFORM", platformWithScreen(name, folder, QSize(3840, 2160)).toUtf8());
    const QApplication application(argc, argv);
    const QString game = QCoreApplication::applicationDirPath() + QStringLiteral("/veyrand");
    const QString data = veyrand::desktop::qt::findDataFolder();
    const auto isWanted = [&part](const char* one) { return part.empty() || part == one; };
    if (isWanted("program") && !measureProgram(game, name)) {
        return 1;
    }
    if (isWanted("frames")) {
        measureFrames(data);
    }
    if (isWanted("time")) {
        measureTime(data);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
