#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "support/scratch.h"

namespace {

namespace fs = std::filesystem;
using quillmark::test::ReadBytes;

const fs::path kRoot = QUILLMARK_SOURCE_DIR;

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

std::set<std::string> BacktickedWords(const std::string& text) {
    static const std::regex word("`([a-z_]+)`");
    std::set<std::string> words;
    for (std::sregex_iterator it(text.begin(), text.end(), word), end; it != end; ++it) words.insert((*it)[1]);
    return words;
}

/// Folder to the folders it may use, as docs/architecture.md has them.
std::map<std::string, std::set<std::string>> DocumentedUses() {
    static const std::regex row(R"(\| `([a-z_]+)` \|[^|]*\|([^|]*)\|)");
    std::map<std::string, std::set<std::string>> uses;
    for (const std::string& line : Lines(ReadBytes(kRoot / "docs" / "architecture.md"))) {
        std::smatch match;
        if (std::regex_match(line, match, row)) uses[match[1]] = BacktickedWords(match[2]);
        if (line == "## The seams") break;
    }
    return uses;
}

std::vector<fs::path> Sources(const fs::path& below) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(below)) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".cpp" || extension == ".h" || extension == ".inc") files.push_back(entry.path());
    }
    return files;
}

TEST(Architecture, EveryFolderIsDocumentedAndEveryDocumentedFolderExists) {
    std::set<std::string> real;
    for (const auto& entry : fs::directory_iterator(kRoot / "src"))
        if (entry.is_directory()) real.insert(entry.path().filename().string());
    std::set<std::string> documented;
    for (const auto& [folder, uses] : DocumentedUses()) documented.insert(folder);
    EXPECT_EQ(documented, real);
}

TEST(Architecture, IncludesKeepTheDocumentedOrder) {
    static const std::regex include(R"re(\s*#\s*include\s+"([a-z_]+)/.*)re");
    const auto uses = DocumentedUses();
    ASSERT_FALSE(uses.empty());
    for (const auto& [folder, allowed] : uses) {
        for (const fs::path& file : Sources(kRoot / "src" / folder)) {
            for (const std::string& line : Lines(ReadBytes(file))) {
                std::smatch match;
                if (!std::regex_match(line, match, include)) continue;
                const std::string used = match[1];
                EXPECT_TRUE(used == folder || allowed.count(used)) << file << " includes " << used;
            }
        }
    }
}

TEST(Architecture, OnlyTheDesktopIncludesTheToolkit) {
    static const std::regex toolkit(R"(\s*#\s*include\s+<Q[A-Z].*)");
    for (const fs::path& file : Sources(kRoot / "src")) {
        if (fs::relative(file, kRoot / "src").begin()->string() == "desktop") continue;
        for (const std::string& line : Lines(ReadBytes(file)))
            EXPECT_FALSE(std::regex_match(line, toolkit)) << file << ": " << line;
    }
}

/// Calls that have one place of their own: time comes from the clock, files are replaced atomically.
TEST(Architecture, BannedCallsStayInThePlatform) {
    static const std::regex banned(R"(.*(std::ofstream|system_clock|std::system\(|\bpopen\().*)");
    for (const fs::path& file : Sources(kRoot / "src")) {
        if (fs::relative(file, kRoot / "src").begin()->string() == "platform") continue;
        for (const std::string& line : Lines(ReadBytes(file)))
            EXPECT_FALSE(std::regex_match(line, banned)) << file << ": " << line;
    }
}

}  // namespace
