#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The lines of "package.def", each with the block that it belongs to, so that blocks can be taken out and
/// everything else stays byte for byte.
namespace quillmark {

struct PackageHeader {
    std::size_t count;  ///< documents that it announces
    std::string name;
};

struct FileLine {
    std::string_view bytes;               ///< with its line end; points into the file's bytes
    std::string text;                     ///< what stands between the quotation marks
    std::string fault;                    ///< why it cannot be read; empty if it can
    std::optional<PackageHeader> header;  ///< of a readable header line
    std::optional<std::size_t> block;     ///< index of the header that it belongs to; a header has its own

    bool IsBlank() const { return text.empty() && fault.empty(); }
    bool IsReadable() const { return !text.empty() && fault.empty(); }
};

struct PackageLines {
    std::vector<FileLine> lines;
};

struct LineFault {
    std::size_t line;  ///< from 1
    std::string reason;
};

/// Takes any bytes. Lines may end in CR LF, LF or CR. The documents of a header are the lines behind it, up
/// to its count or the next header.
PackageLines ReadPackageLines(std::string_view bytes);

/// What is wrong in the file, in line order.
std::vector<LineFault> FaultsOf(const PackageLines& file);

}  // namespace quillmark
