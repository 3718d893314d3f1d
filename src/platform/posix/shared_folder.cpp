#ifndef _WIN32

#include "platform/posix/shared_folder.h"

#include <sys/stat.h>
#include <unistd.h>

namespace quillmark {

void ShareWithGroup(int descriptor, const std::filesystem::path& folder) {
    struct stat place = {}, file = {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &place) != 0 || ::fstat(descriptor, &file) != 0) return;
    if ((place.st_mode & S_IWGRP) == 0 || (place.st_mode & S_ISVTX) != 0) return;
    if (file.st_gid != place.st_gid && ::fchown(descriptor, static_cast<uid_t>(-1), place.st_gid) != 0)
        return;
    ::fchmod(descriptor, (file.st_mode & 07777) | S_IRGRP | S_IWGRP);
}

}  // namespace quillmark

#endif
