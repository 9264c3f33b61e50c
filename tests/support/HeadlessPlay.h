#pragma once

#include "headless/HeadlessGame.h"
#include "progress/Settings.h"
#include "support/FolderResources.h"
#include "support/GameFixture.h"

namespace veyrand::test {

// A whole game in virtual time, played with the mouse, with the game's own data and no toolkit.
class HeadlessPlay : public GameFixture<headless::HeadlessGame> {
protected:
    using Options = headless::HeadlessGame::Options;

    explicit HeadlessPlay(Options options = {})
        : GameFixture(withData(std::move(options)))
    {
    }

    // As in the Settings window.
    template <class Change> void choose(Change&& change)
    {
        progress::Settings settings = progress::readSettings(game().preferences());
        change(settings);
        progress::writeSettings(game().preferences(), settings);
        game().controller().settingsChanged();
    }

private:
    static Options withData(Options options)
    {
        options.resources = &gameResources();
        return options;
    }
};

} // namespace veyrand::test
