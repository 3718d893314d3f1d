#ifdef _WIN32

#include "platform/medium.h"

#include <fcntl.h>
#include <io.h>

#include "platform/medium_system.h"

namespace quillmark {
namespace fs = std::filesystem;

namespace medium {

std::FILE* OpenToRead(const fs::path& file) {
    return _wfopen(file.c_str(), L"rb");
}

std::FILE* OpenNew(const fs::path& file) {
    return _wfopen(file.c_str(), L"wbx");
}

bool Settle(std::FILE* written) {
    return _commit(_fileno(written)) == 0;
}

void ForgetCached(std::FILE*) {}

}  // namespace medium

/// Each file has been flushed as it was written, and names are written through.
void FlushMedium(const fs::path&) {}

bool ExchangeFolders(const fs::path&, const fs::path&) {
    return false;
}

/// What stands in a folder has the rights that the folder hands on.
void TakeRightsOf(const fs::path&, const fs::path&) {}

}  // namespace quillmark

#endif
