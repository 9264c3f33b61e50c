#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace veyrand::test {

// A folder of its own for one test, gone with it.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string name = (std::filesystem::canonical(std::filesystem::temp_directory_path())
            / "veyrand-XXXXXX")
                               .string();
        EXPECT_NE(::mkdtemp(name.data()), nullptr);
        m_path = name;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] const std::string& path() const { return m_path; }
    [[nodiscard]] std::string at(const std::string& name) const { return m_path + '/' + name; }

    // Makes the folders above it.
    static void write(const std::string& path, const std::string& text)
    {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }
    static std::string read(const std::string& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return { std::istreambuf_iterator<char>(stream), {} };
    }

private:
    std::string m_path;
};

} // namespace veyrand::test
