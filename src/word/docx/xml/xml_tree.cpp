#include "word/docx/xml/xml_tree.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>
#include <sstream>

#include "word/docx/xml/namespaces.h"

namespace quillmark::word::docx::xml {

namespace {

/// A tree takes some ten times the size of its text.
constexpr std::size_t kLargestXml = std::size_t{24} << 20;
/// The declaration of white space is part of the text; without it a lone blank between two runs is lost.
constexpr unsigned kParseOptions = pugi::parse_default | pugi::parse_ws_pcdata;
constexpr unsigned kPrintOptions = pugi::format_raw | pugi::format_no_declaration;
/// No measure of a page reaches this, and sums of many of it still fit.
constexpr double kLargestNumber = 1'000'000;

class StringSink : public pugi::xml_writer {
 public:
    void write(const void* data, std::size_t size) override {
        text.append(static_cast<const char*>(data), size);
    }
    std::string text;
};

void CollectPrefixes(pugi::xml_node element, std::set<std::string, std::less<>>& prefixes) {
    const auto collect = [&](std::string_view name) {
        const std::string_view prefix = PrefixOf(name);
        if (!prefix.empty() && !prefixes.contains(prefix)) prefixes.emplace(prefix);
    };
    collect(element.name());
    for (const pugi::xml_attribute attribute : element.attributes()) collect(attribute.name());
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_element) CollectPrefixes(child, prefixes);
    }
}

/// A unit's points; 0 for an unknown one.
double PointsOf(std::string_view unit) {
    if (unit == "pt") return 1.0;
    if (unit == "in") return 72.0;
    if (unit == "cm") return 72.0 / 2.54;
    if (unit == "mm") return 72.0 / 25.4;
    return unit == "pc" || unit == "pi" ? 12.0 : 0.0;
}

}  // namespace

XmlTree::XmlTree(std::string_view bytes) {
    if (bytes.size() > kLargestXml) throw XmlDamage("is larger than any document");
    const pugi::xml_parse_result result = document_.load_buffer(bytes.data(), bytes.size(), kParseOptions);
    if (!result) throw XmlDamage(std::string("is no XML: ") + result.description());
    uriByPrefix_ = NormaliseNames(root());
}

std::string XmlTree::Print(pugi::xml_node element, Declare which) const {
    std::set<std::string, std::less<>> prefixes;
    CollectPrefixes(element, prefixes);
    StringSink sink;
    element.print(sink, "", kPrintOptions, pugi::encoding_utf8);
    std::string declarations;
    for (const std::string& prefix : prefixes) {
        const auto uri = uriByPrefix_.find(prefix);
        if (uri == uriByPrefix_.end()) continue;
        if (which == Declare::Unknown && IsUsualPrefix(prefix)) continue;
        if (which == Declare::AllButPlain && prefix == "w") continue;
        pugi::xml_document scratch;
        pugi::xml_node holder = scratch.append_child("x");
        holder.append_attribute(("xmlns:" + prefix).c_str()) = uri->second.c_str();
        StringSink printed;
        holder.print(printed, "", kPrintOptions, pugi::encoding_utf8);
        const std::size_t end = printed.text.rfind('"');
        declarations += printed.text.substr(2, end - 1);
    }
    sink.text.insert(1 + std::string_view(element.name()).size(), declarations);
    return std::move(sink.text);
}

std::string XmlTree::Fragment(pugi::xml_node element) const {
    return Print(element, Declare::Unknown);
}
std::string XmlTree::Part() const {
    return Print(root(), Declare::All);
}
std::string XmlTree::PlainFragment(pugi::xml_node element) const {
    return Print(element, Declare::AllButPlain);
}

std::unique_ptr<pugi::xml_document> ParseFragment(std::string_view xml) {
    auto document = std::make_unique<pugi::xml_document>();
    const pugi::xml_parse_result result = document->load_buffer(xml.data(), xml.size(), kParseOptions);
    if (!result) throw XmlDamage(std::string("is no XML: ") + result.description());
    return document;
}

std::string PrintFragment(const pugi::xml_document& fragment) {
    StringSink sink;
    fragment.document_element().print(sink, "", kPrintOptions, pugi::encoding_utf8);
    return std::move(sink.text);
}

bool IsNamed(pugi::xml_node node, std::string_view name) {
    return name == node.name();
}

std::string_view Attribute(pugi::xml_node node, const char* name) {
    return node.attribute(name).value();
}

std::optional<int> ToNumber(std::string_view text, double perPoint) {
    double value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc() || !std::isfinite(value)) return {};
    const std::string_view unit(end, static_cast<std::size_t>(text.data() + text.size() - end));
    const double points = unit.empty() ? 0.0 : PointsOf(unit);
    if (!unit.empty() && points == 0.0) return {};
    if (!unit.empty()) value *= points * perPoint;
    return static_cast<int>(std::lround(std::clamp(value, -kLargestNumber, kLargestNumber)));
}

bool IsOnText(std::string_view text, bool absent) {
    if (text.empty()) return absent;
    return text != "0" && text != "false" && text != "off" && text != "no";
}

bool IsOn(pugi::xml_node node) {
    return node && IsOnText(Val(node), true);
}

}  // namespace quillmark::word::docx::xml
