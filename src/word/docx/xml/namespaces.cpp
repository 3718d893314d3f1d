#include "word/docx/xml/namespaces.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <vector>

#include "word/docx/xml/names.h"
#include "word/docx/xml/text_codes.h"
#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::xml {

namespace {

/// A document of text in tables in text boxes goes to some forty levels.
constexpr int kDeepest = 200;
/// Documents declare some forty namespaces of some sixty characters, and elements have some twenty
/// attributes.
constexpr std::size_t kMostNamespaces = 250;
constexpr std::size_t kLongestNamespace = 1000;
constexpr std::size_t kMostAttributes = 1000;
/// Comparisons of names, of which the largest documents need some millions.
constexpr std::size_t kMostSteps = 100'000'000;

constexpr std::string_view kDeclaration = "xmlns";

struct StrictName {
    std::string_view prefix;
    std::string_view uri;
};

// clang-format off
/// The namespaces of the strict form of the format; the names in them are the same.
constexpr std::array kStrictNames = {
    StrictName{"w",   "http://purl.oclc.org/ooxml/wordprocessingml/main"},
    StrictName{"r",   "http://purl.oclc.org/ooxml/officeDocument/relationships"},
    StrictName{"wp",  "http://purl.oclc.org/ooxml/drawingml/wordprocessingDrawing"},
    StrictName{"a",   "http://purl.oclc.org/ooxml/drawingml/main"},
    StrictName{"pic", "http://purl.oclc.org/ooxml/drawingml/picture"},
    StrictName{"m",   "http://purl.oclc.org/ooxml/officeDocument/math"},
};

/// What a document is read without: marks of tools, and of former states that no page shows.
constexpr std::array<std::string_view, 21> kDroppedElements = {
    "w:proofErr", "w:lastRenderedPageBreak", "w:permStart", "w:permEnd", "w:moveFromRangeStart",
    "w:moveFromRangeEnd", "w:moveToRangeStart", "w:moveToRangeEnd", "w:customXmlInsRangeStart",
    "w:customXmlInsRangeEnd", "w:customXmlDelRangeStart", "w:customXmlDelRangeEnd",
    "w:customXmlMoveFromRangeStart", "w:customXmlMoveFromRangeEnd", "w:customXmlMoveToRangeStart",
    "w:customXmlMoveToRangeEnd", "w:sectPrChange", "w:tblPrChange", "w:trPrChange", "w:tcPrChange",
    "w:tblGridChange",
};

/// Drawings that a reader of this project's documents may be trusted to know.
constexpr std::array<std::string_view, 4> kDrawingPrefixes = {"wps", "wpg", "wpc", "wpi"};
// clang-format on

bool IsNameCharacter(char c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
    return letter || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

bool IsLocalName(std::string_view name) {
    if (name.empty() || (name[0] >= '0' && name[0] <= '9') || name[0] == '-' || name[0] == '.') return false;
    return std::ranges::all_of(name, IsNameCharacter);
}

std::string_view UsualPrefix(std::string_view uri) {
    for (const NamespaceName& name : kNamespaces) {
        if (name.uri == uri) return name.declaration.substr(kDeclaration.size() + 1);
    }
    const auto* strict = std::ranges::find(kStrictNames, uri, &StrictName::uri);
    return strict == kStrictNames.end() ? std::string_view() : strict->prefix;
}

/// Of what a file lets its readers skip, only drawings and the like are worth keeping.
bool IsUnderstood(std::string_view prefix) {
    return IsUsualPrefix(prefix) && prefix != "w14" && prefix != "wp14" && prefix != "w15";
}

std::string_view UriOfUsual(std::string_view prefix) {
    for (const NamespaceName& name : kNamespaces) {
        if (name.declaration.substr(kDeclaration.size() + 1) == prefix) return name.uri;
    }
    return {};
}

/// What becomes of a name.
enum class Fate { Keep, Rename, Drop };

class Normaliser {
 public:
    void Root(pugi::xml_node root);
    std::map<std::string, std::string, std::less<>> Take() { return std::move(uriByPrefix_); }

 private:
    struct Declared {
        std::string prefix;
        std::string usual;  ///< empty for a default that is taken back (xmlns="")
        bool ignorable = false;
    };

    void Declare(pugi::xml_node node);
    void DeclareIgnorable(pugi::xml_node node);
    std::string UsualFor(std::string_view prefix, std::string_view uri);
    const Declared* Find(std::string_view prefix);
    void Count(std::size_t steps);
    Fate FateOf(std::string_view name, bool isAttribute, std::string& newName);
    Fate NameElement(pugi::xml_node node);
    void Attributes(pugi::xml_node node);
    void Children(pugi::xml_node node);
    pugi::xml_node Child(pugi::xml_node child);
    pugi::xml_node Text(pugi::xml_node text);
    pugi::xml_node Alternatives(pugi::xml_node alternatives);
    bool IsKnownDrawing(pugi::xml_node choice);
    void Truncate(std::size_t scopeSize);

    std::vector<Declared> scope_;
    std::size_t steps_ = 0;
    std::ptrdiff_t lastFound_ = -1;  ///< most names in a row have one prefix
    bool inControl_ = false;         ///< in a content control's properties
    std::map<std::string, std::string, std::less<>> uriByPrefix_;
};

std::string Normaliser::UsualFor(std::string_view prefix, std::string_view uri) {
    std::string usual(UsualPrefix(uri));
    if (!usual.empty()) {
        uriByPrefix_.emplace(usual, UriOfUsual(usual));
        return usual;
    }
    const std::string cleanUri = CleanXmlText(uri);
    Count(uriByPrefix_.size());
    if (uriByPrefix_.size() > kMostNamespaces) throw XmlDamage("declares more namespaces than any document");
    if (cleanUri.size() > kLongestNamespace) throw XmlDamage("declares a namespace of unreasonable length");
    for (const auto& [known, knownUri] : uriByPrefix_) {
        if (knownUri == cleanUri) return known;
    }
    usual = IsLocalName(prefix) && !IsUsualPrefix(prefix) && !prefix.starts_with("xml") ? prefix : "ns1";
    for (int n = 2; uriByPrefix_.contains(usual); ++n) usual = fmt::format("ns{}", n);
    uriByPrefix_.emplace(usual, cleanUri);
    return usual;
}

void Normaliser::Declare(pugi::xml_node node) {
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view name = attribute.name();
        const bool isDefault = name == kDeclaration;
        if (!isDefault && PrefixOf(name) != kDeclaration) continue;
        const std::string_view prefix = isDefault ? std::string_view() : name.substr(kDeclaration.size() + 1);
        const std::string_view uri = attribute.value();
        if (scope_.size() > kMostNamespaces) throw XmlDamage("declares more namespaces than any document");
        scope_.push_back({std::string(prefix), uri.empty() ? std::string() : UsualFor(prefix, uri), false});
        lastFound_ = -1;
    }
}

void Normaliser::DeclareIgnorable(pugi::xml_node node) {
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view name = attribute.name();
        const Declared* declared = name.ends_with(":Ignorable") ? Find(PrefixOf(name)) : nullptr;
        if (!declared || declared->usual != "mc") continue;
        std::string_view list = attribute.value();
        while (!list.empty()) {
            const std::string_view prefix = list.substr(0, list.find(' '));
            const Declared* ignored = Find(prefix);
            if (scope_.size() > 2 * kMostNamespaces)
                throw XmlDamage("declares more namespaces than any document");
            if (ignored && !IsUnderstood(ignored->usual))
                scope_.push_back({ignored->prefix, ignored->usual, true});
            list.remove_prefix(std::min(list.size(), prefix.size() + 1));
            lastFound_ = -1;
        }
    }
}

const Normaliser::Declared* Normaliser::Find(std::string_view prefix) {
    if (lastFound_ >= 0 && scope_[lastFound_].prefix == prefix) return &scope_[lastFound_];
    for (std::ptrdiff_t i = std::ssize(scope_) - 1; i >= 0; --i) {
        if (scope_[i].prefix != prefix) continue;
        Count(scope_.size() - static_cast<std::size_t>(i));
        lastFound_ = i;
        return &scope_[i];
    }
    Count(scope_.size());
    return nullptr;
}

void Normaliser::Count(std::size_t steps) {
    steps_ += steps;
    if (steps_ > kMostSteps) throw XmlDamage("is more tangled than any document");
}

void Normaliser::Truncate(std::size_t scopeSize) {
    if (scope_.size() == scopeSize) return;
    scope_.resize(scopeSize);
    lastFound_ = -1;
}

/// Names that are ignorable, have a prefix that nothing declares, or are no names at all, go.
Fate Normaliser::FateOf(std::string_view name, bool isAttribute, std::string& newName) {
    const std::string_view prefix = PrefixOf(name);
    const std::string_view local = prefix.empty() ? name : name.substr(prefix.size() + 1);
    if (!IsLocalName(local)) return Fate::Drop;
    if (prefix == "xml" || (prefix.empty() && isAttribute)) return Fate::Keep;
    const Declared* declared = Find(prefix);
    if (!declared || declared->usual.empty()) return prefix.empty() ? Fate::Keep : Fate::Drop;
    // A check box and a frame's look are told in names that older programs may skip.
    if (declared->ignorable && !(inControl_ && IsUsualPrefix(declared->usual))) return Fate::Drop;
    if (declared->usual == prefix) return Fate::Keep;
    newName = fmt::format("{}:{}", declared->usual, local);
    return Fate::Rename;
}

Fate Normaliser::NameElement(pugi::xml_node node) {
    std::string newName;
    const Fate fate = FateOf(node.name(), false, newName);
    if (fate == Fate::Rename) node.set_name(newName.c_str());
    const bool dropped = std::ranges::find(kDroppedElements, node.name()) != kDroppedElements.end();
    return dropped ? Fate::Drop : fate;
}

void Normaliser::Attributes(pugi::xml_node node) {
    std::vector<std::string_view> seen;
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute;) {
        const pugi::xml_attribute next = attribute.next_attribute();
        const std::string_view oldName = attribute.name();
        const bool isDeclaration = oldName == kDeclaration || PrefixOf(oldName) == kDeclaration;
        std::string newName;
        const Fate fate = isDeclaration ? Fate::Drop : FateOf(oldName, true, newName);
        if (fate == Fate::Rename) attribute.set_name(newName.c_str());
        const std::string_view name = attribute.name();
        Count(seen.size());
        if (seen.size() > kMostAttributes)
            throw XmlDamage("has an element of more than a thousand attributes");
        const bool isNoise = name.starts_with("w:rsid") || name.starts_with("mc:");
        if (fate == Fate::Drop || isNoise || std::ranges::find(seen, name) != seen.end()) {
            node.remove_attribute(attribute);
        } else {
            if (!IsCleanXmlText(attribute.value()))
                attribute.set_value(CleanXmlText(attribute.value()).c_str());
            seen.push_back(name);
        }
        attribute = next;
    }
}

/// Makes plain text of a text, which may be marked character data. Gives the next node.
pugi::xml_node Normaliser::Text(pugi::xml_node text) {
    const pugi::xml_node next = text.next_sibling();
    if (text.type() == pugi::node_cdata) {
        pugi::xml_node plain = text.parent().insert_child_before(pugi::node_pcdata, text);
        plain.set_value(CleanXmlText(text.value()).c_str());
        text.parent().remove_child(text);
    } else if (!IsCleanXmlText(text.value())) {
        text.set_value(CleanXmlText(text.value()).c_str());
    }
    return next;
}

bool Normaliser::IsKnownDrawing(pugi::xml_node choice) {
    const std::size_t outer = scope_.size();
    Declare(choice);
    std::string_view required = choice.attribute("Requires").value();
    bool known = !required.empty();
    while (known && !required.empty()) {
        const std::string_view prefix = required.substr(0, required.find(' '));
        const Declared* declared = Find(prefix);
        known = declared && declared->usual == prefix &&
                std::ranges::find(kDrawingPrefixes, prefix) != kDrawingPrefixes.end();
        required.remove_prefix(std::min(required.size(), prefix.size() + 1));
    }
    Truncate(outer);
    return known;
}

/// Decides between alternatives, whose inner names are still the file's. Gives the node to go on from.
pugi::xml_node Normaliser::Alternatives(pugi::xml_node alternatives) {
    pugi::xml_node parent = alternatives.parent();
    pugi::xml_node fallback;
    bool isDrawing = IsNamed(parent, "w:r");
    int choices = 0;
    for (const pugi::xml_node child : alternatives.children()) {
        const std::string_view name = child.name();
        if (name.ends_with(":Fallback")) fallback = child;
        if (!name.ends_with(":Choice")) continue;
        isDrawing = ++choices == 1 && isDrawing && IsKnownDrawing(child);
    }
    const pugi::xml_node behind = alternatives.next_sibling();
    if (isDrawing && choices == 1) {
        Attributes(alternatives);
        Children(alternatives);
        return behind;
    }
    const pugi::xml_node first = fallback.first_child();
    while (fallback.first_child()) parent.insert_move_before(fallback.first_child(), alternatives);
    parent.remove_child(alternatives);
    return first ? first : behind;
}

/// Gives the next node.
pugi::xml_node Normaliser::Child(pugi::xml_node child) {
    if (child.type() != pugi::node_element) return Text(child);
    const std::size_t outer = scope_.size();
    Declare(child);
    DeclareIgnorable(child);
    pugi::xml_node next = child.next_sibling();
    if (NameElement(child) == Fate::Drop) {
        child.parent().remove_child(child);
    } else if (IsNamed(child, "mc:AlternateContent")) {
        next = Alternatives(child);
    } else {
        const bool wasInControl = inControl_;
        inControl_ = inControl_ || IsNamed(child, "w:sdtPr");
        Attributes(child);
        Children(child);
        inControl_ = wasInControl;
    }
    Truncate(outer);
    return next;
}

void Normaliser::Children(pugi::xml_node node) {
    for (pugi::xml_node child = node.first_child(); child;) child = Child(child);
}

void Normaliser::Root(pugi::xml_node root) {
    Declare(root);
    DeclareIgnorable(root);
    if (NameElement(root) == Fate::Drop) throw XmlDamage("has a root of no known kind");
    Attributes(root);
    Children(root);
}

void CheckDepth(pugi::xml_node root) {
    int depth = 1;
    pugi::xml_node node = root;
    while (node) {
        if (node.first_child()) {
            node = node.first_child();
            if (++depth > kDeepest) throw XmlDamage("is nested too deeply");
            continue;
        }
        while (node && node != root && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        if (!node || node == root) return;
        node = node.next_sibling();
    }
}

}  // namespace

std::string_view PrefixOf(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
}

bool IsUsualPrefix(std::string_view prefix) {
    return !UriOfUsual(prefix).empty();
}

std::map<std::string, std::string, std::less<>> NormaliseNames(pugi::xml_node root) {
    CheckDepth(root);
    Normaliser normaliser;
    normaliser.Root(root);
    return normaliser.Take();
}

}  // namespace quillmark::word::docx::xml
