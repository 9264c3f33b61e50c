#include "app/Demo.h"

#include "app/VirtualGame.h"

#include <QDir>
#include <QTextStream>

namespace veyrand::app {

namespace {

// Takes numbered pictures, and remembers whether all of them could be written.
class Album {
public:
    Album(VirtualGame& game, const QDir& folder)
        : m_game(game)
        , m_folder(folder)
    {
    }

    void take(const QString& title)
    {
        const QString file = m_folder.filePath(
            QStringLiteral("%1-%2.png").arg(++m_count, 2, 10, QLatin1Char('0')).arg(title));
        const bool written = m_game.picture().save(file);
        m_complete = m_complete && written;
        QTextStream(stdout) << (written ? file : file + QStringLiteral(" could not be written"))
                            << Qt::endl;
    }

    [[nodiscard]] bool isComplete() const { return m_complete; }

private:
    VirtualGame& m_game;
    QDir m_folder;
    int m_count = 0;
    bool m_complete = true;
};

void click(VirtualGame& game, const std::string& key)
{
    if (const auto place = game.centreOf(key)) {
        game.click(*place);
    }
}

void drag(VirtualGame& game, const std::string& from, const std::string& to)
{
    const auto start = game.centreOf(from);
    const auto end = game.centreOf(to);
    if (start && end) {
        game.press(*start);
        game.release(*end);
    }
}

} // namespace

int playDemonstration(const QString& dataFolder, const QString& pictureFolder)
{
    if (!QDir().mkpath(pictureFolder)) {
        QTextStream(stderr) << "The folder " << pictureFolder << " cannot be made" << Qt::endl;
        return 1;
    }
    VirtualGame game({ .dataFolder = dataFolder });
    Album album(game, QDir(pictureFolder));
    constexpr double kMoveTime = 2.5; // the longest animation and the block that goes with it
    constexpr double kCelebrationTime = 8.0;

    game.launch();
    game.wait(1.0);
    album.take(QStringLiteral("title"));

    // A made-up puzzle that shows five of the moves at work.
    game.play({ .root = "YRRR", .goal = "YRBRR", .par = 9, .level = 5, .stage = 2 });
    game.wait(1.0);
    album.take(QStringLiteral("start"));
    drag(game, "chip-1-0", "chip-3-0"); // YG
    game.wait(1.2);
    album.take(QStringLiteral("three-reds-merge"));
    game.wait(kMoveTime);
    click(game, "chip-0-1"); // YGG
    game.wait(kMoveTime);
    click(game, "chip-1-2"); // YGBG
    game.wait(1.0);
    album.take(QStringLiteral("greens-part"));
    game.wait(kMoveTime);
    click(game, "chip-0-3"); // YGBGGBG
    game.wait(1.0);
    album.take(QStringLiteral("doubling"));
    game.wait(kMoveTime);
    drag(game, "chip-2-4", "chip-5-4"); // YGBBG
    game.wait(1.0);
    album.take(QStringLiteral("between-the-blues"));
    game.wait(kMoveTime);
    album.take(QStringLiteral("five-moves-on"));

    // The first puzzle, solved in one move, and the next one that follows.
    game.play({ .root = "YGR", .goal = "YGRGR", .par = 2, .level = 1, .stage = 1 });
    game.wait(1.0);
    click(game, "chip-0-0");
    game.wait(3.4);
    album.take(QStringLiteral("goal"));
    game.wait(kCelebrationTime);
    album.take(QStringLiteral("next-puzzle"));
    return album.isComplete() && game.currentGame().stage() == 2 ? 0 : 1;
}

} // namespace veyrand::app
