#include "platform/atomic_file.h"

#include <fmt/format.h>

#include <utility>

#include "platform/paths.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace quillmark {
namespace {

struct KindOfError {
    std::errc error;
    FileError::Kind kind;
};

// clang-format off
constexpr KindOfError kKinds[] = {
    {std::errc::device_or_resource_busy,   FileError::Kind::InUse},
    {std::errc::text_file_busy,            FileError::Kind::InUse},
    {std::errc::permission_denied,         FileError::Kind::Denied},
    {std::errc::operation_not_permitted,   FileError::Kind::Denied},
    {std::errc::read_only_file_system,     FileError::Kind::Denied},
    {std::errc::no_such_file_or_directory, FileError::Kind::NotFound},
    {std::errc::not_a_directory,           FileError::Kind::NotFound},
    {std::errc::no_space_on_device,        FileError::Kind::DiskFull},
    {std::errc::file_too_large,            FileError::Kind::DiskFull},  // over the limit of the user's processes
};

#ifdef _WIN32
struct KindOfCode {
    int code;
    FileError::Kind kind;
};
constexpr KindOfCode kCodes[] = {
    {ERROR_SHARING_VIOLATION, FileError::Kind::InUse},
    {ERROR_LOCK_VIOLATION,    FileError::Kind::InUse},
    {ERROR_ACCESS_DENIED,     FileError::Kind::Denied},
    {ERROR_WRITE_PROTECT,     FileError::Kind::Denied},
    {ERROR_FILE_NOT_FOUND,    FileError::Kind::NotFound},
    {ERROR_PATH_NOT_FOUND,    FileError::Kind::NotFound},
    {ERROR_BAD_NETPATH,       FileError::Kind::NotFound},
    {ERROR_DISK_FULL,         FileError::Kind::DiskFull},
    {ERROR_HANDLE_DISK_FULL,  FileError::Kind::DiskFull},
};
#endif
// clang-format on

FileError::Kind KindOf(std::error_code error) {
#ifdef _WIN32
    for (const KindOfCode& row : kCodes) {
        if (error == std::error_code(row.code, std::system_category())) return row.kind;
    }
#endif
    for (const KindOfError& row : kKinds) {
        if (error == row.error) return row.kind;
    }
    return FileError::Kind::Other;
}

}  // namespace

FileError::FileError(std::filesystem::path f, Kind k, const std::string& reason)
    : std::runtime_error(fmt::format("{}: {}", TextOf(f), reason)), file(std::move(f)), kind(k) {}

FileError::FileError(std::filesystem::path f, std::error_code error)
    : FileError(std::move(f), KindOf(error), error.message()) {}

}  // namespace quillmark
