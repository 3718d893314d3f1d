#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
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

/// A row of the table: a folder below src/ and the folders it may use.
struct Row {
    std::string folder;
    std::vector<std::string> uses;
};

/// The rows of the table in docs/architecture.md, in its order.
std::vector<Row> Table() {
    static const std::regex row(R"(\| `([a-z0-9_/]+)` \|[^|]*\|([^|]*)\|)");
    static const std::regex word("`([a-z0-9_/]+)`");
    std::vector<Row> rows;
    for (const std::string& line : Lines(ReadBytes(kRoot / "docs" / "architecture.md"))) {
        if (line == "## The seams") break;
        std::smatch match;
        if (!std::regex_match(line, match, row)) continue;
        const std::string uses = match[2];
        rows.push_back({match[1], {}});
        for (std::sregex_iterator it(uses.begin(), uses.end(), word), end; it != end; ++it)
            rows.back().uses.push_back((*it)[1]);
    }
    return rows;
}

bool IsBelow(const std::string& folder, const std::string& above) {
    return folder.starts_with(above + '/');
}

/// The row that a folder is part of: its own, or the nearest above it. Null when there is none.
const Row* OwnerOf(const std::vector<Row>& table, const std::string& folder) {
    const Row* owner = nullptr;
    for (const Row& row : table) {
        const bool holds = row.folder == folder || IsBelow(folder, row.folder);
        if (holds && (!owner || owner->folder.size() < row.folder.size())) owner = &row;
    }
    return owner;
}

/// Whether a use named in a row takes in a folder: the folder itself, and from outside all that is below it.
bool TakesIn(const std::string& use, const std::string& folder, const Row& user) {
    return folder == use || (IsBelow(folder, use) && !IsBelow(user.folder, use));
}

bool MayUse(const Row& user, const Row& used) {
    return &user == &used || std::ranges::any_of(user.uses, [&](const std::string& use) {
        return TakesIn(use, used.folder, user);
    });
}

std::vector<fs::path> Sources(const fs::path& below) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(below)) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".cpp" || extension == ".h" || extension == ".inc") files.push_back(entry.path());
    }
    return files;
}

std::string FolderOf(const fs::path& file) {
    return fs::relative(file.parent_path(), kRoot / "src").generic_string();
}

/// Where one folder has rows for its sub-folders, it has them for all.
TEST(Architecture, EveryFolderIsDocumentedAndEveryDocumentedFolderExists) {
    const std::vector<Row> table = Table();
    ASSERT_FALSE(table.empty());
    std::set<std::string> divided = {""}, known, owners;
    for (const Row& row : table) {
        EXPECT_TRUE(known.insert(row.folder).second) << row.folder << " has two rows";
        for (auto slash = row.folder.find('/'); slash != std::string::npos;
             slash = row.folder.find('/', slash + 1))
            divided.insert(row.folder.substr(0, slash));
    }
    for (const std::string& folder : divided) {
        for (const auto& entry : fs::directory_iterator(kRoot / "src" / folder)) {
            if (!entry.is_directory()) continue;
            const std::string name = fs::relative(entry.path(), kRoot / "src").generic_string();
            EXPECT_TRUE(known.contains(name) || divided.contains(name)) << name << " has no row";
        }
    }
    for (const fs::path& file : Sources(kRoot / "src")) {
        const Row* const owner = OwnerOf(table, FolderOf(file));
        ASSERT_TRUE(owner) << file << " belongs to no row";
        owners.insert(owner->folder);
    }
    EXPECT_EQ(owners, known) << "a row has no files";
}

/// Whatever a folder uses stands above it, so that no folders use each other in a ring.
TEST(Architecture, FoldersUseOnlyThoseAboveThem) {
    const std::vector<Row> table = Table();
    for (std::size_t user = 0; user < table.size(); ++user) {
        for (const std::string& use : table[user].uses) {
            bool isThere = false;
            for (std::size_t used = 0; used < table.size(); ++used) {
                if (!TakesIn(use, table[used].folder, table[user])) continue;
                isThere = true;
                EXPECT_LT(used, user) << table[user].folder << " uses " << table[used].folder << " below it";
            }
            EXPECT_TRUE(isThere) << table[user].folder << " uses " << use << ", which has no row";
        }
    }
}

TEST(Architecture, IncludesKeepTheDocumentedOrder) {
    static const std::regex include(R"re(\s*#\s*include\s+"([a-z0-9_/]+)/[^/"]+".*)re");
    const std::vector<Row> table = Table();
    for (const fs::path& file : Sources(kRoot / "src")) {
        const Row* const user = OwnerOf(table, FolderOf(file));
        ASSERT_TRUE(user) << file;
        for (const std::string& line : Lines(ReadBytes(file))) {
            std::smatch match;
            if (!std::regex_match(line, match, include)) continue;
            const Row* const used = OwnerOf(table, match[1]);
            ASSERT_TRUE(used) << file << ": " << line;
            EXPECT_TRUE(MayUse(*user, *used))
                << file << ": " << user->folder << " may not use " << used->folder;
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
