#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillmark::word::docx::zip {

/// A file inside a zip archive.
struct ZipEntry {
    std::string name;        ///< with forward slashes
    std::string_view bytes;  ///< must outlive the call that writes them
};

/// The zip archive of these files, in this order and with one fixed date, so that the same files give the
/// same bytes. PNG and JPEG pictures are stored as they are (they are compressed already), as is whatever
/// does not get smaller; everything else is deflated.
///
/// Throws std::length_error for more than 65,534 files, a name longer than 65,535 bytes, or a file or
/// archive of 4 GB and more: what the plain zip format cannot hold.
std::string WriteZip(std::span<const ZipEntry> entries);

}  // namespace quillmark::word::docx::zip
