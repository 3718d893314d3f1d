#include "session/window_placement.h"

#include <algorithm>
#include <cmath>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "platform/record_file.h"

namespace quillmark {

namespace {

constexpr std::size_t kLimit = 4096;
constexpr std::size_t kPlaced = 4;

std::filesystem::path PlacementFile(const std::filesystem::path& programFolder) {
    return programFolder / "mdispec.ini";
}

/// No screen is so large; numbers beyond it are none of this program's, and would not fit.
bool IsOnSomeScreen(const WindowPlacement& placement) {
    constexpr double kFarthest = 1'000'000;
    const double numbers[] = {placement.height, placement.left,  placement.top,
                              placement.width,  placement.scale, placement.slider};
    return std::ranges::all_of(numbers, [](double n) { return std::abs(n) < kFarthest; });
}

}  // namespace

std::optional<WindowPlacement> ReadWindowPlacement(const std::filesystem::path& programFolder) {
    const auto file = PlacementFile(programFolder);
    if (!std::filesystem::exists(file)) return std::nullopt;
    try {
        const std::string bytes = ReadFile(file, kLimit);
        RecordReader record(TextOf(file), bytes);
        if (!record.Next() || record.Items() < kPlaced) return std::nullopt;
        WindowPlacement placement{record.Number(0), record.Number(1), record.Number(2), record.Number(3)};
        if (record.Items() > 4) placement.scale = record.Number(4);
        if (record.Items() > 5) placement.slider = record.Number(5);
        return IsOnSomeScreen(placement) ? std::optional(placement) : std::nullopt;
    } catch (const RecordError&) {
        // A window finds its place without it.
    } catch (const FileError&) {
    }
    return std::nullopt;
}

void WriteWindowPlacement(const std::filesystem::path& programFolder, const WindowPlacement& placement) {
    RecordWriter record;
    record.Write({placement.height, placement.left, placement.top, placement.width, placement.scale,
                  placement.slider});
    ReplaceFile(PlacementFile(programFolder), record.Bytes());
}

}  // namespace quillmark
