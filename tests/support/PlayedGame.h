#pragma once

#include "app/VirtualGame.h"
#include "support/GameFixture.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

namespace veyrand::test {

// A whole game in virtual time, played with the mouse in the window's own content, which can be
// looked at. What needs no picture plays without a toolkit: HeadlessPlay.
class PlayedGame : public GameFixture<app::VirtualGame> {
protected:
    using Options = app::VirtualGame::Options;

    explicit PlayedGame(Options options = {})
        : GameFixture(withData(std::move(options)))
    {
    }

private:
    static Options withData(Options options)
    {
        options.dataFolder = QString::fromStdString(dataFolder());
        return options;
    }
};

} // namespace veyrand::test
