#include "word/docx/xml/xml_writer.h"

#include <array>
#include <cassert>

namespace quillmark::word::docx::xml {

namespace {

enum class Kind : unsigned char { Plain, Markup, AttributeMarkup, Forbidden, Lead };

constexpr std::array<Kind, 256> ByteKinds() {
    std::array<Kind, 256> kinds = {};
    for (std::size_t byte = 0; byte < kinds.size(); ++byte) {
        if (byte >= 0x80) kinds[byte] = Kind::Lead;
        if (byte < 0x20) kinds[byte] = Kind::Forbidden;
    }
    for (const char c : {'&', '<', '>', '\r'}) kinds[static_cast<unsigned char>(c)] = Kind::Markup;
    for (const char c : {'"', '\t', '\n'}) kinds[static_cast<unsigned char>(c)] = Kind::AttributeMarkup;
    return kinds;
}

constexpr std::array<Kind, 256> kKinds = ByteKinds();

/// White space too needs a reference where a parser would turn it into something else.
std::string_view Reference(char c) {
    switch (c) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\t':
            return "&#9;";
        case '\n':
            return "&#10;";
        default:
            return "&#13;";
    }
}

/// Length and value of a character; a length of 0 for bytes that are no UTF-8.
struct Decoded {
    std::size_t length = 0;
    char32_t value = 0;
};

Decoded Decode(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {};
    char32_t value = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0u) != 0x80u) return {};
        value = (value << 6) | (byte(i) & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < kSmallest[length] || value > 0x10FFFF || surrogate) return {};
    return {length, value};
}

/// Appends the character at the start of the text, which is beyond ASCII, and tells how long it was.
std::size_t AppendCharacter(std::string& out, std::string_view text) {
    const Decoded character = Decode(text);
    if (character.length == 0) {
        out += "\xEF\xBF\xBD";
        return 1;
    }
    if (character.value != 0xFFFE && character.value != 0xFFFF) out += text.substr(0, character.length);
    return character.length;
}

/// Runs of plain characters, nearly all of a text, are appended at once.
void Append(std::string& out, std::string_view text, bool isAttribute) {
    std::size_t done = 0;
    for (std::size_t at = 0; at < text.size();) {
        const Kind kind = kKinds[static_cast<unsigned char>(text[at])];
        if (kind == Kind::Plain || (kind == Kind::AttributeMarkup && !isAttribute)) {
            ++at;
            continue;
        }
        out.append(text.data() + done, at - done);
        if (kind == Kind::Markup || kind == Kind::AttributeMarkup) out += Reference(text[at]);
        at += kind == Kind::Lead ? AppendCharacter(out, text.substr(at)) : 1;
        done = at;
    }
    out.append(text.data() + done, text.size() - done);
}

}  // namespace

void XmlWriter::Declaration() {
    out_ += "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
}

void XmlWriter::FinishTag() {
    if (inTag_) out_ += '>';
    inTag_ = false;
}

void XmlWriter::Open(std::string_view tag) {
    FinishTag();
    out_ += '<';
    out_ += tag;
    open_.push_back(tag);
    inTag_ = true;
}

void XmlWriter::Attribute(std::string_view name, std::string_view value) {
    assert(inTag_);
    out_ += ' ';
    out_ += name;
    out_ += "=\"";
    Append(out_, value, true);
    out_ += '"';
}

void XmlWriter::AppendAttribute(std::string_view name, std::string_view plainValue) {
    assert(inTag_);
    out_ += ' ';
    out_ += name;
    out_ += "=\"";
    out_ += plainValue;
    out_ += '"';
}

void XmlWriter::Text(std::string_view text) {
    FinishTag();
    Append(out_, text, false);
}

void XmlWriter::Raw(std::string_view xml) {
    if (xml.empty()) return;
    FinishTag();
    out_ += xml;
}

void XmlWriter::Close() {
    assert(!open_.empty());
    if (inTag_) {
        out_ += "/>";
        inTag_ = false;
    } else {
        out_ += "</";
        out_ += open_.back();
        out_ += '>';
    }
    open_.pop_back();
}

void XmlWriter::Empty(std::string_view tag) {
    Open(tag);
    Close();
}

void XmlWriter::Element(std::string_view tag, std::string_view text) {
    Open(tag);
    Text(text);
    Close();
}

std::string XmlWriter::Take() {
    assert(open_.empty());
    return std::exchange(out_, {});
}

}  // namespace quillmark::word::docx::xml
