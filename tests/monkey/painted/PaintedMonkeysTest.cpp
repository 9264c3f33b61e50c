#include "app/VirtualGame.h"
#include "monkey/Cages.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"
#include "support/ScratchFolder.h"

#include <QImage>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <span>
#include <utility>

namespace veyrand::test {

namespace {

// Whether a widget has had another size since it was last asked, be it the old one by now.
class Resizes final : public QObject {
public:
    explicit Resizes(QWidget& widget) { widget.installEventFilter(this); }
    [[nodiscard]] bool take() { return std::exchange(m_any, false); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_any = m_any || event->type() == QEvent::Resize;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_any = true;
};

// The window's own content, which gets real events and paints after each what has changed. Painted
// in full as well, it must look the same.
class PaintedBody final : public BodyOn<app::VirtualGame> {
public:
    PaintedBody(std::uint32_t seed, SimulatedDisk& disk, const std::string& data)
        : BodyOn(seed, disk,
            { .screen = { .width = 640, .height = 400 },
                .window = { 480, 300 },
                .dataFolder = QString::fromStdString(data) })
    {
    }

    void launch() override
    {
        m_resizes.reset();
        BodyOn::launch();
        m_resizes.emplace(touched().widget());
    }
    [[nodiscard]] headless::HeadlessGame& game() override { return touched().headless(); }
    void key(const std::string& keys) override { touched().key(QString::fromStdString(keys)); }
    void menu(const std::string& item) override
    {
        touched().menu().trigger(QString::fromStdString(item));
    }
    void resize(platform::Size size) override
    {
        // A third of what monkeys think of: painting takes its time.
        touched().resize(
            { static_cast<int>(size.width / 3.0), static_cast<int>(size.height / 3.0) });
    }

    [[nodiscard]] std::string faultOfPicture() override
    {
        auto& widget = touched().widget();
        const std::size_t picturesBefore = std::exchange(m_pictures, touched().images().count());
        // Another size and other letters are painted in full, by the toolkit's own event.
        const std::string& language = game().game().texts().code();
        if (m_resizes->take() || m_language != language) {
            m_kept = touched().picture();
            m_language = language;
            return {};
        }
        if (const QRegion damage = widget.nextFrame(); !damage.isEmpty()) {
            widget.render(&m_kept, damage.boundingRect().topLeft(), damage);
        }
        QImage full(widget.size(), QImage::Format_RGB32);
        widget.render(&full);
        if (isAlike(full, m_kept)) {
            return {};
        }
        m_kept = full;
        return picturesBefore != touched().images().count() && isMoving()
            ? std::string()
            : "something that has changed was not painted anew";
    }

private:
    // What changes its size is painted from a larger picture, and may find a fitter one that was
    // drawn for something else meanwhile.
    [[nodiscard]] bool isMoving()
    {
        const present::DisplayList list = game().game().layers().displayList();
        return std::any_of(list.begin(), list.end(), [](const present::DisplayItem& item) {
            return item.motion == present::Motion::Moving;
        });
    }

    // Blending rounds the last pixels of a row otherwise than those before, wherever a clip lets it
    // end: a step for each picture that fades over another.
    static bool isAlike(const QImage& one, const QImage& other)
    {
        constexpr int kNear = 4; // of 255
        for (int y = 0; y < one.height(); ++y) {
            const std::span line(
                one.constScanLine(y), static_cast<std::size_t>(one.bytesPerLine()));
            const auto* const others = other.constScanLine(y);
            // Nearly all are equal, which is faster to see.
            if (std::memcmp(line.data(), others, line.size()) != 0
                && !std::equal(line.begin(), line.end(), others,
                    [](uchar a, uchar b) { return std::abs(a - b) <= kNear; })) {
                return false;
            }
        }
        return true;
    }

    std::optional<Resizes> m_resizes;
    QImage m_kept;
    std::size_t m_pictures = 0; // before the last picture was painted
    std::string m_language;
};

MakeBody paintedBodies(const std::string& data)
{
    return [data](std::uint32_t seed, SimulatedDisk& disk) {
        return std::make_unique<PaintedBody>(seed, disk, data);
    };
}

} // namespace

TEST(PaintedMonkeys, FindNothing)
{
    constexpr long kEvents = 1'500;
    letMonkeysPlay(kEvents, paintedBodies(dataFolder()));
}

// A disk that is damaged, or a package that was put together badly.
TEST(PaintedMonkeys, FindNothingWhereNoPictureIs)
{
    namespace fs = std::filesystem;
    const ScratchFolder folder;
    for (const auto& entry : fs::directory_iterator(dataFolder())) {
        if (entry.path().filename() != "images") {
            fs::create_symlink(entry.path(), folder.at(entry.path().filename().string()));
        }
    }
    Monkey monkey(diceOf(1), paintedBodies(folder.path()));
    const auto finding = monkey.play(200);
    EXPECT_FALSE(finding.has_value()) << finding->fault;
}

} // namespace veyrand::test
