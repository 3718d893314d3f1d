#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Changes of a form's file that leave all the rest of it as it is.
namespace quillmark {

inline constexpr std::size_t kLargestForm = std::size_t{64} << 20;  ///< bytes of the file

/// The ending of the document that a template makes (".docx" for ".dotx"); others stay.
std::string DocumentExtension(std::string_view extension);
/// The bytes of a template as those of a document. Throws word::AutomationError for damaged bytes.
std::string AsDocument(std::string_view bytes, const std::string& file);

/// A text that is to become another, where it does not stand between these characters (0 for any).
struct Mend {
    std::string wrong;
    std::string right;
    char unlessBehind = 0;
    char unlessBefore = 0;
};

/// The file's bytes with every such text changed, in the look that it has; nothing else of the text changes.
/// Gives how often by `count`. Throws word::AutomationError for damaged bytes.
std::string Mended(std::string_view bytes, const std::string& file, const Mend& mend, int& count);

}  // namespace quillmark
