// Reads arbitrary bytes as the window's file: what it gives fits any whole number.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "scratch_folder.h"
#include "session/window_placement.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    static const fuzz::ScratchFolder folder;
    folder.Put("mdispec.ini", data, size);
    const auto placement = ReadWindowPlacement(folder.path());
    if (!placement) return 0;
    volatile int number = 0;
    for (const double n : {placement->height, placement->left, placement->top, placement->width,
                           placement->scale * 100, placement->slider})
        number = static_cast<int>(n);
    (void)number;
    return 0;
}
