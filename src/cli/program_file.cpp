#include "cli/program_file.h"

#ifdef _WIN32
#include <windows.h>

#include <string>
#endif

namespace quillmark::cli {

std::filesystem::path ProgramFile() {
#ifdef _WIN32
    std::wstring file(32768, L'\0');  // the longest path that the system has
    file.resize(GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size())));
    return file;
#else
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown);
#endif
}

}  // namespace quillmark::cli
