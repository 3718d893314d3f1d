#ifndef _WIN32

#include "platform/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "platform/file_step.h"
#include "platform/files.h"
#include "platform/posix/shared_folder.h"
#include "platform/temporary_name.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

std::error_code LastError() {
    return {errno, std::generic_category()};
}

/// An open file, closed with the object.
class File {
 public:
    File(const fs::path& path, int flags, mode_t mode = 0)
        : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {}
    ~File() { Close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool IsOpen() const { return descriptor_ >= 0; }
    int Descriptor() const { return descriptor_; }
    bool Close() { return !IsOpen() || ::close(std::exchange(descriptor_, -1)) == 0; }

 private:
    int descriptor_;
};

struct flock WholeFile(short type) {
    struct flock whole = {};
    whole.l_type = type;
    whole.l_whence = SEEK_SET;
    return whole;
}

/// A new file that is gone with the object unless it was kept under another name.
class TemporaryFile {
 public:
    /// `target` is the file that it is meant to replace.
    explicit TemporaryFile(const fs::path& target)
        : target_(target), path_(NameFor(target)), file_(path_, O_WRONLY | O_CREAT | O_EXCL, 0666) {
        if (!file_.IsOpen()) Fail();
        // Tells others that a living writer has it; a file system without locks does without.
        struct flock mine = WholeFile(F_WRLCK);
        ::fcntl(file_.Descriptor(), F_OFD_SETLK, &mine);
    }
    ~TemporaryFile() {
        if (!path_.empty() && file_.IsOpen()) ::unlink(path_.c_str());
    }

    /// Owner and rights of the file that it replaces. Another's file cannot be given back to its owner by
    /// everyone, and is then shared by its group alone.
    void TakeOver(const struct stat& old) {
        if (::fchown(file_.Descriptor(), old.st_uid, old.st_gid) != 0 &&
            ::fchown(file_.Descriptor(), static_cast<uid_t>(-1), old.st_gid) != 0 && errno != EPERM) {
            Fail();
        }
        if (::fchmod(file_.Descriptor(), old.st_mode & 07777) != 0) Fail();
    }
    void Share() { ShareWithGroup(file_.Descriptor(), target_.parent_path()); }

    void Write(std::string_view bytes) {
        BeforeStep(FileStep::Write, target_);
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_.Descriptor(), bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) Fail();
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void Replace() {
        BeforeStep(FileStep::Flush, target_);
        if (::fsync(file_.Descriptor()) != 0) Fail();
        SweepLeftovers(path_);
        BeforeStep(FileStep::Rename, target_);
        if (::rename(path_.c_str(), target_.c_str()) != 0) Fail();
        path_.clear();
    }

 private:
    static fs::path NameFor(const fs::path& target) {
        BeforeStep(FileStep::Create, target);
        return target.parent_path() / TemporaryName();
    }
    [[noreturn]] void Fail() const { throw FileError(target_, LastError()); }

    const fs::path target_;
    fs::path path_;
    File file_;
};

/// Where the bytes end up: behind a link, its target.
fs::path TargetOf(const fs::path& file) {
    std::error_code error;
    if (!fs::is_symlink(file, error)) return file;
    const fs::path target = fs::canonical(file, error);
    return error ? file : target;
}

/// 0 or the system's error number. Not every file system can do it.
int RenameInOneStep(const fs::path& file, const fs::path& newFile) {
#ifdef RENAME_NOREPLACE
    const int done = ::renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, newFile.c_str(), RENAME_NOREPLACE);
    return done == 0 ? 0 : errno;
#else
    if (::link(file.c_str(), newFile.c_str()) != 0) return errno;
    return ::unlink(file.c_str()) == 0 ? 0 : errno;
#endif
}

}  // namespace

std::optional<bool> IsBeingWritten(const fs::path& temporary) {
    const File file(temporary, O_RDONLY | O_NOFOLLOW);
    struct flock other = WholeFile(F_RDLCK);
    if (!file.IsOpen() || ::fcntl(file.Descriptor(), F_OFD_GETLK, &other) != 0) return std::nullopt;
    return other.l_type != F_UNLCK;
}

void ReplaceFile(const fs::path& file, std::string_view bytes) {
    const fs::path target = TargetOf(file);
    struct stat old = {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && !S_ISREG(old.st_mode))
        throw FileError(target, FileError::Kind::Other, "is no ordinary file");
    if (exists && ::access(target.c_str(), W_OK) != 0) throw FileError(target, LastError());

    TemporaryFile temporary(target);
    if (exists) {
        temporary.TakeOver(old);
    } else {
        temporary.Share();
    }
    temporary.Write(bytes);
    temporary.Replace();
    FlushFolder(target.parent_path());
}

bool RenameUnlessTaken(const fs::path& file, const fs::path& newFile) {
    BeforeStep(FileStep::Rename, file);
    int error = RenameInOneStep(file, newFile);
    if (error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM) {
        error = EEXIST;
        if (::access(newFile.c_str(), F_OK) != 0)
            error = ::rename(file.c_str(), newFile.c_str()) == 0 ? 0 : errno;
    }
    if (error == EEXIST) return false;
    if (error != 0) throw FileError(file, std::error_code(error, std::generic_category()));
    FlushFolder(newFile.parent_path());
    return true;
}

std::string ReadFile(const fs::path& file, std::size_t limit) {
    const File in(file, O_RDONLY | O_NONBLOCK);  // a pipe must not hold the program up
    struct stat status = {};
    if (!in.IsOpen() || ::fstat(in.Descriptor(), &status) != 0) throw FileError(file, LastError());
    if (!S_ISREG(status.st_mode)) throw FileError(file, FileError::Kind::Other, "is no ordinary file");

    std::string bytes;
    const std::size_t expected = static_cast<std::size_t>(status.st_size);
    while (bytes.size() <= limit) {
        const std::size_t before = bytes.size();
        const std::size_t wanted = before < expected ? expected - before + 1 : 4096;
        bytes.resize(before + std::min(wanted, limit + 1 - before));
        const ssize_t done = ::read(in.Descriptor(), bytes.data() + before, bytes.size() - before);
        if (done < 0 && errno != EINTR) throw FileError(file, LastError());
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(done, 0)));
        if (done == 0) return bytes;
    }
    throw FileError(file, FileError::Kind::TooLarge, "is larger than any file of this kind");
}

}  // namespace quillmark

#endif
