#pragma once

#include <array>
#include <string_view>

/// The names that the package format gives to namespaces, relationships and content types.
namespace quillmark::word::docx::xml {

struct NamespaceName {
    std::string_view declaration;  ///< the attribute that declares the prefix
    std::string_view uri;
};

// clang-format off
/// What the roots of the document, of headers and of footers declare as far as they need it. Raw XML in them
/// declares only other prefixes; a prefix of this list must mean what it means here.
inline constexpr std::array kNamespaces = {
    NamespaceName{"xmlns:w",   "http://schemas.openxmlformats.org/wordprocessingml/2006/main"},
    NamespaceName{"xmlns:r",   "http://schemas.openxmlformats.org/officeDocument/2006/relationships"},
    NamespaceName{"xmlns:wp",  "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing"},
    NamespaceName{"xmlns:a",   "http://schemas.openxmlformats.org/drawingml/2006/main"},
    NamespaceName{"xmlns:pic", "http://schemas.openxmlformats.org/drawingml/2006/picture"},
    NamespaceName{"xmlns:m",   "http://schemas.openxmlformats.org/officeDocument/2006/math"},
    NamespaceName{"xmlns:mc",  "http://schemas.openxmlformats.org/markup-compatibility/2006"},
    NamespaceName{"xmlns:v",   "urn:schemas-microsoft-com:vml"},
    NamespaceName{"xmlns:o",   "urn:schemas-microsoft-com:office:office"},
    NamespaceName{"xmlns:w10", "urn:schemas-microsoft-com:office:word"},
    NamespaceName{"xmlns:wne", "http://schemas.microsoft.com/office/word/2006/wordml"},
    NamespaceName{"xmlns:w14", "http://schemas.microsoft.com/office/word/2010/wordml"},
    NamespaceName{"xmlns:wp14","http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing"},
    NamespaceName{"xmlns:wpc", "http://schemas.microsoft.com/office/word/2010/wordprocessingCanvas"},
    NamespaceName{"xmlns:wpg", "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup"},
    NamespaceName{"xmlns:wpi", "http://schemas.microsoft.com/office/word/2010/wordprocessingInk"},
    NamespaceName{"xmlns:wps", "http://schemas.microsoft.com/office/word/2010/wordprocessingShape"},
    NamespaceName{"xmlns:w15", "http://schemas.microsoft.com/office/word/2012/wordml"},
};
// clang-format on

/// The prefixes of kNamespaces that a reader may skip when it does not know them, and the attribute that says
/// so.
inline constexpr std::array<std::string_view, 3> kIgnorablePrefixes = {"w14", "wp14", "w15"};
inline constexpr std::string_view kIgnorable = "w14 wp14 w15";

/// The namespace of relationship types; a type is this, a slash and a name.
inline constexpr std::string_view kOfficeRelationships = kNamespaces[1].uri;

/// The relationship types by which a document's own parts are reached, without the namespace.
namespace relationship {
inline constexpr std::string_view kMain = "officeDocument";
inline constexpr std::string_view kStyles = "styles";
inline constexpr std::string_view kSettings = "settings";
inline constexpr std::string_view kNumbering = "numbering";
inline constexpr std::string_view kFonts = "fontTable";
inline constexpr std::string_view kHeader = "header";
inline constexpr std::string_view kFooter = "footer";
inline constexpr std::string_view kImage = "image";
}  // namespace relationship

/// The common beginning of the content types of a document's own parts, and the main part's whole one.
inline constexpr std::string_view kWordContentType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.";
inline constexpr std::string_view kMainContentType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml";

}  // namespace quillmark::word::docx::xml
