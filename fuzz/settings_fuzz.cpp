// Reads arbitrary bytes as the settings file. What is read must survive being written and read again.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/settings.h"
#include "platform/code_page.h"
#include "platform/record_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const Settings settings = SettingsOfRecords("input", bytes);
        if (SettingsOfRecords("written", SettingsRecords(settings)) != settings) std::abort();
    } catch (const RecordError&) {
    }
    return 0;
}
