#ifndef _WIN32

#include "platform/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/file_step.h"
#include "platform/posix/shared_folder.h"

namespace quillmark {

namespace fs = std::filesystem;

bool ClaimName(const fs::path& file) {
    BeforeStep(FileStep::Create, file);
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0 && errno == EEXIST) return false;
    if (descriptor < 0) throw FileError(file, std::error_code(errno, std::generic_category()));
    ShareWithGroup(descriptor, file.parent_path());
    ::close(descriptor);
    return true;
}

void FlushFolder(const fs::path& folder) {
    const fs::path place = folder.empty() ? fs::path(".") : folder;
    const int descriptor = ::open(place.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace quillmark

#endif
