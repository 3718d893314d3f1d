#ifdef _WIN32

#include <windows.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/atomic_file.h"
#include "platform/file_step.h"
#include "platform/temporary_name.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

/// An open file, closed with the object.
class File {
 public:
    File(const fs::path& path, DWORD access, DWORD share, DWORD creation)
        : handle_(
              CreateFileW(path.c_str(), access, share, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~File() { Close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Handle() const { return handle_; }
    void Close() {
        if (IsOpen()) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    }

 private:
    HANDLE handle_;
};

bool WriteAll(const File& file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD done = 0;
        const auto size = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 30));
        if (!WriteFile(file.Handle(), bytes.data(), size, &done, nullptr)) return false;
        bytes.remove_prefix(done);
    }
    return FlushFileBuffers(file.Handle()) != 0;
}

bool Exists(const fs::path& file) {
    return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool IsFolder(const fs::path& file) {
    const DWORD attributes = GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Where the old file stands for a moment, and for good if neither of both can be brought back: beside the
/// file, under a name that tells whose it is.
fs::path FormerOf(const fs::path& target) {
    fs::path former = target;
    former += L".former";
    return former;
}

/// After a replacement that stopped half-way (ERROR_UNABLE_TO_MOVE_REPLACEMENT and its kin): the new file
/// takes the name, or else the old one takes it back.
bool Recover(const fs::path& temporary, const fs::path& target, const fs::path& former) {
    if (Exists(target)) return false;
    if (MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH)) {
        DeleteFileW(former.c_str());
        return true;
    }
    MoveFileExW(former.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
    return false;
}

/// Keeps the old file's owner, rights, attributes and streams where there is one.
bool TryMoveOnto(const fs::path& temporary, const fs::path& target) {
    const fs::path former = FormerOf(target);
    if (ReplaceFileW(target.c_str(), temporary.c_str(), former.c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr)) {
        DeleteFileW(former.c_str());
        return true;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND)
        return MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    if (Recover(temporary, target, former)) return true;
    SetLastError(error);
    return false;
}

bool IsWriteProtected(const fs::path& file) {
    const DWORD attributes = GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

/// Other programs (a search index, a virus scanner, a backup) and other copies of this one hold a file for
/// moments. Waits for one of these; false when it has been enough. `attempt` is the number of tries so far.
bool PauseAfter(int attempt) {
    constexpr int kAttempts = 10;
    constexpr DWORD kPause = 30;  // milliseconds
    if (attempt < kAttempts) Sleep(kPause);
    return attempt < kAttempts;
}

/// The old file is whole whichever of these it is.
bool MoveOnto(const fs::path& temporary, const fs::path& target) {
    for (int attempt = 1;; ++attempt) {
        if (TryMoveOnto(temporary, target)) return true;
        const DWORD error = GetLastError();
        const bool passes = error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
                            error == ERROR_UNABLE_TO_REMOVE_REPLACED ||
                            (error == ERROR_ACCESS_DENIED && !IsWriteProtected(target));
        if (!passes || !Exists(temporary) || !PauseAfter(attempt)) return SetLastError(error), false;
    }
}

/// While a file is replaced its name may mean nothing, or a file on its way out.
bool IsBeingReplaced(const fs::path& file, DWORD error) {
    if (error == ERROR_FILE_NOT_FOUND) return Exists(FormerOf(file)) || Exists(file);
    return error == ERROR_SHARING_VIOLATION || (error == ERROR_ACCESS_DENIED && !IsFolder(file));
}

}  // namespace

/// Writers share their file with nobody.
std::optional<bool> IsBeingWritten(const fs::path& temporary) {
    if (File(temporary, GENERIC_READ, 0, OPEN_EXISTING).IsOpen()) return false;
    if (GetLastError() == ERROR_SHARING_VIOLATION) return true;
    return std::nullopt;
}

void ReplaceFile(const fs::path& file, std::string_view bytes) {
    if (IsFolder(file)) throw FileError(file, FileError::Kind::Other, "is no ordinary file");
    const bool hadFormer = Exists(file);
    const fs::path temporary = file.parent_path() / TemporaryName();
    BeforeStep(FileStep::Create, file);
    File out(temporary, GENERIC_WRITE, 0, CREATE_NEW);
    if (!out.IsOpen()) throw FileError(file, LastError());
    bool done = WriteAll(out, bytes);
    std::error_code error = LastError();
    out.Close();
    if (done) {
        SweepLeftovers(temporary);
        done = MoveOnto(temporary, file);
        error = LastError();
    }
    if (done) return;
    // Where the old file is gone as well, the new one is the only copy.
    if (!hadFormer || Exists(file) || Exists(FormerOf(file))) DeleteFileW(temporary.c_str());
    throw FileError(file, error);
}

bool RenameUnlessTaken(const fs::path& file, const fs::path& newFile) {
    BeforeStep(FileStep::Rename, file);
    if (MoveFileExW(file.c_str(), newFile.c_str(), MOVEFILE_WRITE_THROUGH)) return true;
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) return false;
    throw FileError(file, std::error_code(static_cast<int>(error), std::system_category()));
}

std::string ReadFile(const fs::path& file, std::size_t limit) {
    std::optional<File> in;
    for (int attempt = 1; !in; ++attempt) {
        in.emplace(file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_EXISTING);
        if (in->IsOpen()) break;
        const std::error_code error = LastError();
        if (IsFolder(file)) throw FileError(file, FileError::Kind::Other, "is no ordinary file");
        if (!IsBeingReplaced(file, static_cast<DWORD>(error.value())) || !PauseAfter(attempt))
            throw FileError(file, error);
        in.reset();
    }
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(in->Handle(), &size)) throw FileError(file, LastError());
    if (GetFileType(in->Handle()) != FILE_TYPE_DISK) {
        throw FileError(file, FileError::Kind::Other, "is no ordinary file");
    }
    if (static_cast<std::uint64_t>(size.QuadPart) > limit) {
        throw FileError(file, FileError::Kind::TooLarge, "is larger than any file of this kind");
    }
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD done = 0;
    if (!::ReadFile(in->Handle(), bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr)) {
        throw FileError(file, LastError());
    }
    bytes.resize(done);
    return bytes;
}

}  // namespace quillmark

#endif
