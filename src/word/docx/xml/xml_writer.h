#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark::word::docx::xml {

/// Streams XML into a growing buffer: it owns the tags and the escaping, its callers the order.
///
/// Markup characters are escaped. Characters that XML forbids are left out, and bytes that are not UTF-8
/// become U+FFFD, so that no text whatever makes a part unreadable.
///
/// An element is opened, given its attributes, filled and closed; one without content closes itself.
/// Element and attribute names must outlive the writer, as literals do.
class XmlWriter {
 public:
    XmlWriter() = default;
    explicit XmlWriter(std::size_t expectedSize) { out_.reserve(expectedSize); }

    /// Writes the XML declaration that begins a part.
    void Declaration();
    void Open(std::string_view tag);
    /// An attribute of the element just opened.
    void Attribute(std::string_view name, std::string_view value);
    void Attribute(std::string_view name, const char* value) { Attribute(name, std::string_view(value)); }
    template <std::integral Integer>
    void Attribute(std::string_view name, Integer value) {
        AppendAttribute(name, std::to_string(value));
    }
    void Text(std::string_view text);
    /// XML that is complete in itself, taken as it stands.
    void Raw(std::string_view xml);
    void Close();

    /// An element without content; `value`, when given, is its w:val.
    void Empty(std::string_view tag);
    template <class Value>
    void Empty(std::string_view tag, const Value& value) {
        Open(tag);
        Attribute("w:val", value);
        Close();
    }
    /// An element that holds nothing but text.
    void Element(std::string_view tag, std::string_view text);

    const std::string& xml() const { return out_; }
    /// Hands over the buffer; every element must be closed.
    std::string Take();

 private:
    void AppendAttribute(std::string_view name, std::string_view plainValue);
    void FinishTag();

    std::string out_;
    std::vector<std::string_view> open_;
    bool inTag_ = false;
};

}  // namespace quillmark::word::docx::xml
