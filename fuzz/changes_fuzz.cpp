// Takes arbitrary bytes for the record of a change that was broken off: nothing outside its folder changes.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/atomic_file.h"
#include "platform/change_set.h"
#include "scratch_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    namespace fs = std::filesystem;
    static const fuzz::ScratchFolder folder;
    const std::string outside = "outside";
    const fs::path jobs = folder.path() / "jobs";
    fs::remove_all(jobs);
    fs::create_directory(jobs);
    folder.Put("important.txt", reinterpret_cast<const std::uint8_t*>(outside.data()), outside.size());
    folder.Put("jobs/.quillmark-change", data, size);
    try {
        UndoBrokenChange(jobs);
    } catch (const FileError&) {
    }
    if (ReadFile(folder.path() / "important.txt", 100) != outside) std::abort();
    for (const auto& entry : fs::directory_iterator(folder.path()))
        if (entry.path().filename() != "jobs" && entry.path().filename() != "important.txt") std::abort();
    return 0;
}
