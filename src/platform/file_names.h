#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// What keeps a name from being the name of a file or folder of this program on any of its systems, as the
/// end of a sentence: "holds a \"/\"" or "is the name of a device". Empty for a good name. `fileName` is the
/// whole name without a folder, with its extension, in UTF-8.
///
/// Refused are names that are empty, name a folder ("." and ".."), hold a separator, a control character or
/// one of : * ? " < > |, end in a dot or a blank, are a device's on Windows (CON, NUL.txt, COM1), or are
/// longer than file systems keep.
std::string FaultOfFileName(std::string_view fileName);

inline bool IsFileName(std::string_view fileName) {
    return FaultOfFileName(fileName).empty();
}

/// The most bytes of a name: 255 is what file systems keep, less what a temporary name or a counter adds.
inline constexpr std::size_t kLongestFileName = 240;

}  // namespace quillmark
