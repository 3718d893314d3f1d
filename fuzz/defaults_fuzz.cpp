// Reads arbitrary bytes as the firm's defaults. What is read must survive being written, read and merged.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/firm_defaults.h"
#include "platform/code_page.h"
#include "platform/record_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const FirmDefaults defaults = FirmDefaultsOfRecords("input", bytes);
        const std::string written = FirmDefaultsRecords(defaults);
        if (FirmDefaultsOfRecords("written", written).Rows() != defaults.Rows()) std::abort();
        std::vector<std::string> contested;
        const FirmDefaults merged = MergedDefaults({}, defaults, defaults, contested);
        if (!contested.empty() || merged.Rows() != defaults.Rows()) std::abort();
    } catch (const RecordError&) {
    }
    return 0;
}
