// Reads arbitrary bytes as the list of clients: every name that it gives is one of a folder of its own.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/atomic_file.h"
#include "scratch_folder.h"
#include "session/client_folders.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    static const fuzz::ScratchFolder folder;
    folder.Put("parapro.dir", data, size);
    try {
        for (const std::string& name : ClientFolders(folder.path(), {}).Read().names)
            if (!FaultOfClientName(name).empty() || name.find('/') != name.npos) std::abort();
    } catch (const FileError&) {
    }
    return 0;
}
