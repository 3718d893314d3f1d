#include "support/scratch.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <utility>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace quillmark::test {

namespace fs = std::filesystem;

#ifndef _WIN32
namespace {

/// What programs remember of their user goes into a folder of this run, also in the programs that tests
/// start.
class OwnHome {
 public:
    OwnHome() {
        for (const auto& [name, folder] : kFolders) setenv(name, (folder_ / folder).c_str(), 1);
    }
    ~OwnHome() {
        if (getpid() != owner_) folder_.Leave();  // a child of a test
    }

 private:
    static constexpr std::pair<const char*, const char*> kFolders[] = {
        {"XDG_STATE_HOME", "state"}, {"XDG_CONFIG_HOME", "config"}, {"XDG_CACHE_HOME", "cache"}};

    const pid_t owner_ = getpid();
    ScratchFolder folder_;
};
const OwnHome kOwnHome;

}  // namespace
#endif

ScratchFolder::ScratchFolder() {
    std::random_device random;
    do {
        path_ = fs::temp_directory_path() / fmt::format("quillmark-{:08x}{:08x}", random(), random());
    } while (!fs::create_directory(path_));
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove_all(path_, ignored);
}

const fs::path& SourceFolder() {
    static const fs::path folder = QUILLMARK_SOURCE_DIR;
    return folder;
}

std::string ReadBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file.string());
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void WriteBytes(const fs::path& file, std::string_view bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

void ExpectGolden(std::string_view name, std::string_view actual) {
    const fs::path golden = SourceFolder() / "tests" / "goldens" / name;
    if (std::getenv("QUILLMARK_RENEW_GOLDENS")) {
        WriteBytes(golden, actual);
        return;
    }
    ASSERT_TRUE(fs::exists(golden)) << golden << " is missing; renew the goldens";
    EXPECT_EQ(ReadBytes(golden), actual) << "differs from " << golden;
}

}  // namespace quillmark::test
