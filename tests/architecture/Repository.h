#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::architecture {

// One file as the checks see it. The checkers take these instead of reading the disk, so that their
// own tests can make files up.
struct SourceFile {
    std::string path; // from the root of the repository, with slashes
    std::string text; // empty for a binary file
};

// What a checker has to say, one finding each: "path:line: finding". Empty when all is well.
using Findings = std::vector<std::string>;

// Every file below the root, except what is built and what belongs to git.
[[nodiscard]] std::vector<SourceFile> readRepository(const std::filesystem::path& root);

// This repository, read once.
[[nodiscard]] const std::vector<SourceFile>& thisRepository();

// The text's lines, without their ends.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

[[nodiscard]] bool isBelow(std::string_view path, std::string_view folder);
[[nodiscard]] bool endsWith(std::string_view text, std::string_view end);

[[nodiscard]] bool isWordCharacter(char c); // of an identifier

// "path:line: finding", lines counted from 1.
[[nodiscard]] std::string finding(
    std::string_view path, std::size_t line, std::string_view description);

} // namespace veyrand::architecture
