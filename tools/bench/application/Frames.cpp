#include "Frames.h"

#include "../Measure.h"
#include "app/VirtualGame.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMainWindow>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace veyrand::bench {

namespace {

constexpr double kFrame = 1.0 / 60.0; // seconds
constexpr int kFrames = 90; // of a scene

class Stage {
public:
    Stage(const QString& dataFolder, int width, int height)
        : m_game({ .screen
            = { .width = static_cast<double>(width), .height = static_cast<double>(height) },
            .window = QSize(width, height),
            .dataFolder = dataFolder })
    {
        m_window.setCentralWidget(&m_game.widget());
        m_window.setGeometry(0, 0, width, height);
        m_window.show();
        awaitExposure();
        m_game.launch();
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage() { m_game.widget().setParent(nullptr); }

    void set(Scene scene)
    {
        m_game.wait(2.0);
        if (scene != Scene::Title) {
            // Every line is twelve chips, but for the one that doubles.
            m_game.play({ .root = scene == Scene::Doubling ? "YRGRGR" : "YRGRGRGRGRGR",
                .goal = "YB",
                .par = 2,
                .level = 6,
                .stage = 2 });
            if (scene == Scene::Deleting || scene == Scene::Page) {
                fillBoard();
            }
            m_game.wait(2.0);
        }
        settle();
    }

    void play(Scene scene)
    {
        switch (scene) {
        case Scene::Title:
            return m_game.controller().flow().returnToMenu();
        case Scene::Doubling:
            return click("chip-0-0");
        case Scene::Deleting:
            return click("delete-1");
        case Scene::Page:
            m_game.controller().pages().show("movesMessageWindow");
            return;
        }
    }

    // How long the extras take to lie down among what the layers show, frame by frame.
    std::vector<double> watchAnswers()
    {
        std::vector<double> times;
        present::BoardLayers& layers = m_game.game().layers();
        for (int frame = 0; frame < kFrames; ++frame) {
            m_game.wait(kFrame);
            present::DisplayList list;
            layers.contentLayer().flattenInto(list);
            const double start = processorSeconds();
            layers.extras().decorate(list, layers);
            times.push_back((processorSeconds() - start) * 1e3);
        }
        return times;
    }

    enum class Painting { Damage, Whole };
    std::vector<double> watch(Painting painting)
    {
        std::vector<double> times;
        for (int frame = 0; frame < kFrames; ++frame) {
            m_game.wait(kFrame);
            const int painted = m_game.widget().framesPainted();
            const double start = processorSeconds();
            const QRegion damage = m_game.widget().nextFrame();
            if (damage.isEmpty()) {
                continue; // a frame in which nothing moves costs nothing worth counting
            }
            if (painting == Painting::Whole) {
                m_game.widget().repaint();
            } else {
                m_game.widget().repaint(damage);
            }
            times.push_back((processorSeconds() - start) * 1e3);
            if (m_game.widget().framesPainted() == painted) {
                throw std::runtime_error("a frame was to be measured and nothing was painted");
            }
        }
        if (times.empty()) {
            throw std::runtime_error("a scene was to be measured in which nothing moved");
        }
        return times;
    }

private:
    // A window that the window system has not shown yet paints nothing.
    void awaitExposure() const
    {
        constexpr int kPatience = 10000; // milliseconds
        const QDeadlineTimer deadline(kPatience);
        while (!m_window.windowHandle()->isExposed()) {
            if (deadline.hasExpired()) {
                throw std::runtime_error("the window was never shown, so nothing can be measured");
            }
            constexpr int kMoment = 50; // milliseconds
            QCoreApplication::processEvents(QEventLoop::AllEvents, kMoment);
        }
    }
    void fillBoard()
    {
        auto& proof = *m_game.controller().proof();
        auto& lines = m_game.gameData();
        board::LineDrawing drawing(lines, m_game.runLoop());
        constexpr unsigned kLines = 12;
        for (unsigned row = 1; row < kLines; ++row) {
            proof.appendLine(proof.root());
            drawing.createChipsForTheorem(proof.root().theorem(), row);
            drawing.createDeleteButton(row);
        }
    }
    void click(const std::string& key)
    {
        if (const auto place = m_game.centreOf(key)) {
            m_game.click(*place);
        }
    }
    // Paints what the scene begins with, so that what is measured is the scene alone.
    void settle()
    {
        m_game.widget().nextFrame();
        m_game.widget().repaint();
    }

    app::VirtualGame m_game;
    QMainWindow m_window;
};

} // namespace

double FrameTimes::mean(const std::vector<double>& times)
{
    return times.empty()
        ? 0.0
        : std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
}

double FrameTimes::percentile(std::vector<double> times, int hundredths)
{
    if (times.empty()) {
        return 0.0;
    }
    std::sort(times.begin(), times.end());
    const auto rank = static_cast<std::size_t>(
        std::ceil(static_cast<double>(times.size()) * hundredths / 100.0));
    return times.at(std::max<std::size_t>(rank, 1) - 1);
}

FrameTimes measureScene(const QString& dataFolder, Scene scene, int width, int height)
{
    Stage stage(dataFolder, width, height);
    FrameTimes times;
    // Once for the pictures to be drawn, which a game does once as well.
    stage.set(scene);
    stage.play(scene);
    stage.watch(Stage::Painting::Damage);
    constexpr int kRuns = 4;
    for (int run = 0; run < kRuns; ++run) {
        for (const auto painting : { Stage::Painting::Damage, Stage::Painting::Whole }) {
            stage.set(scene);
            stage.play(scene);
            auto& kept = painting == Stage::Painting::Damage ? times.damage : times.full;
            const auto watched = stage.watch(painting);
            kept.insert(kept.end(), watched.begin(), watched.end());
        }
    }
    return times;
}

double measureAnswers(const QString& dataFolder, int width, int height)
{
    Stage stage(dataFolder, width, height);
    stage.set(Scene::Doubling);
    stage.play(Scene::Doubling);
    return FrameTimes::mean(stage.watchAnswers());
}

} // namespace veyrand::bench
