// Reads arbitrary bytes as a form's list of markers. What is read must survive being written and read again.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/custom_forms.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/record_file.h"
#include "scratch_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    static const fuzz::ScratchFolder folder;
    try {
        const auto markers = ReadFormMarkers(folder.Put("form.inf", data, size));
        const std::string written = FormMarkerRecords(markers);
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(written.data());
        if (ReadFormMarkers(folder.Put("form.inf", bytes, written.size())) != markers) std::abort();
    } catch (const RecordError&) {
    } catch (const FileError&) {
    }
    return 0;
}
