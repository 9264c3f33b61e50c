#include "Measurements.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>

namespace veyrand::bench {

namespace {

// The name, value, unit and remark that a line of the measuring program holds, parted by tabs.
void addLine(Results& results, const std::string& prefix, const std::string& line)
{
    std::istringstream fields(line);
    std::string name;
    std::string value;
    std::string unit;
    std::string remark;
    std::getline(fields, name, '\t');
    std::getline(fields, value, '\t');
    std::getline(fields, unit, '\t');
    std::getline(fields, remark, '\t');
    results.add(prefix + name, std::stod(value), unit, remark);
}

// Runs the shell command and adds what it prints.
bool addFrom(Results& results, const std::string& prefix, const std::string& command)
{
    struct Closer {
        int* status;
        void operator()(std::FILE* pipe) const { *status = pclose(pipe); }
    };
    int status = -1;
    {
        const std::unique_ptr<std::FILE, Closer> pipe(popen(command.c_str(), "r"), { &status });
        if (!pipe) {
            return false;
        }
        std::array<char, 512> line {};
        while (std::fgets(line.data(), static_cast<int>(line.size()), pipe.get()) != nullptr) {
            std::string text(line.data());
            if (!text.empty() && text.back() == '\n') {
                text.pop_back();
            }
            addLine(results, prefix, text);
        }
    }
    return status == 0;
}

} // namespace

bool measureApplication(Results& results, const std::string& ownProgram)
{
    const std::filesystem::path folder = std::filesystem::path(ownProgram).parent_path();
    const std::string program = '\'' + (folder / "veyrand-bench-app").string() + '\'';
    Results::heading("The application, offscreen");
    if (!addFrom(results, "", program + " 2>/dev/null")) {
        return false;
    }
    if (std::system("command -v Xvfb >/dev/null") != 0) {
        std::cout
            << "\nThere is no Xvfb (tools/packages test installs it): no window is measured\n";
        return true;
    }
    Results::heading("The application, in a window of an X server");
    return addFrom(results, "x11.",
        '\'' + std::string(VEYRAND_BENCH_DIR) + "/on-xvfb' " + program
            + " --platform xcb 2>/dev/null");
}

} // namespace veyrand::bench
