#include "QtStage.h"
#include "ScenarioChecks.h"
#include "ScriptBridge.h"
#include "ScriptIncludes.h"
#include "app/Gallery.h"
#include "desktop/qt/DataFolder.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

#include <CLI/CLI.hpp>
#include <cstdio>

using namespace veyrand;

namespace {

constexpr int kBadArguments = 2;

std::string asSize(const std::string& text)
{
    int width = 0;
    int height = 0;
    char rest = 0;
    const bool whole = std::sscanf(text.c_str(), "%dx%d%c", &width, &height, &rest) == 2
        && width > 0 && height > 0;
    return whole ? std::string() : text + " is not a size such as 1440x900";
}

QSize toSize(const std::string& text)
{
    QSize size;
    std::sscanf(text.c_str(), "%dx%d", &size.rwidth(), &size.rheight());
    return size;
}

void runScript(const QString& fileName, const scenario::QtStage::Settings& settings,
    scenario::ScenarioChecks& checks)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        checks.fileFailed(fileName, file.errorString());
        return;
    }
    QJSEngine engine;
    engine.installExtensions(QJSEngine::ConsoleExtension);
    scenario::Scenario scenario([&settings](const scenario::ScenarioStage::Launch& launch) {
        return std::make_unique<scenario::QtStage>(settings, launch);
    });
    scenario::ScriptBridge bridge(engine, scenario);
    bridge.install();
    checks.installIn(engine, fileName);
    scenario::ScriptIncludes includes(engine, fileName);
    includes.install();
    const QJSValue result = engine.evaluate(QString::fromUtf8(file.readAll()), fileName);
    if (result.isError()) {
        checks.scriptFailed(result);
    }
}

void sayNamesOfGallery()
{
    for (const std::string& name : app::namesOfGallery(desktop::qt::findDataFolder())) {
        QTextStream(stdout) << QString::fromStdString(name) << Qt::endl;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    CLI::App options("Plays scenario scripts against a fresh game each and checks what happens",
        "veyrand-scenario");
    options.set_version_flag("--version", "veyrand-scenario " VEYRAND_VERSION);
    std::string screen = "1440x900";
    std::string window = "1440x900";
    std::string out = ".";
    std::vector<std::string> files;
    options.add_option("--screen", screen, "Size of the main screen, in points")->check(asSize);
    options.add_option("--window", window, "Size of the window's content, in points")
        ->check(asSize);
    options.add_option("--out", out, "Folder for screenshots");
    options.add_option("FILE", files, "Scripts, each run by itself");
    bool namesGallery = false;
    options.add_flag("--gallery-names", namesGallery,
        "Say what the pictures of veyrand --gallery are called, and play nothing");
    options.callback([&] {
        if (files.empty() && !namesGallery) {
            throw CLI::RequiredError("FILE");
        }
    });
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return options.exit(error) == 0 ? 0 : kBadArguments;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    if (namesGallery) {
        sayNamesOfGallery();
        return 0;
    }
    const QSize screenSize = toSize(screen);
    const scenario::QtStage::Settings settings { .screen
        = { .width = static_cast<double>(screenSize.width()),
            .height = static_cast<double>(screenSize.height()) },
        .window = toSize(window),
        .outFolder = QString::fromStdString(out),
        .dataFolder = desktop::qt::findDataFolder() };
    scenario::ScenarioChecks checks;
    for (const std::string& file : files) {
        runScript(QString::fromStdString(file), settings, checks);
    }
    QTextStream(stdout) << checks.passed() << " passed, " << checks.failed() << " failed"
                        << Qt::endl;
    return checks.failed() == 0 ? 0 : 1;
}
