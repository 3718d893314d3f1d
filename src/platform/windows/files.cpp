#ifdef _WIN32

#include "platform/files.h"

#include <windows.h>

#include <system_error>

#include "platform/atomic_file.h"
#include "platform/file_step.h"

namespace quillmark {

bool ClaimName(const std::filesystem::path& file) {
    BeforeStep(FileStep::Create, file);
    const HANDLE handle =
        CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
        return true;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS) return false;
    throw FileError(file, std::error_code(static_cast<int>(error), std::system_category()));
}

/// Names are part of the file system's own journal here.
void FlushFolder(const std::filesystem::path&) {}

}  // namespace quillmark

#endif
