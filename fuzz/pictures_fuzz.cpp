// Reads arbitrary bytes as a picture: its natural size is that of something that can be printed.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "word/docx/objects/picture_size.h"
#include "word/seam/automation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark::word;
    try {
        const auto picture = docx::objects::ReadPictureSize({reinterpret_cast<const char*>(data), size});
        if (picture.WidthEmu() < 1 || picture.HeightEmu() < 1) std::abort();
    } catch (const AutomationError&) {
    }
    return 0;
}
