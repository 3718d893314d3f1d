#pragma once

#include <map>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

/// Parts of an untrusted package as XML trees whose names can be compared as they stand.
namespace quillmark::word::docx::xml {

/// What is wrong with a part's XML, without the name of file and part.
class XmlDamage : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// A part of a package, parsed and put into one form:
///
/// Names bear the usual prefixes of their namespaces (w, r, wp, a, ...), whatever the file calls them;
/// namespaces that this project does not know keep a prefix of their own. Declarations are gone. Of
/// compatibility markup the ignorable is dropped and alternatives are decided, but for drawings in runs,
/// whose alternatives stay together. Marks of proofing, revisions' numbers, the ends of moved text and the
/// former state of tables and sections are dropped. Texts are UTF-8 without control characters.
class XmlTree {
 public:
    /// Throws XmlDamage for text that is no XML, and for trees too deep or too large.
    explicit XmlTree(std::string_view bytes);

    pugi::xml_node root() const { return document_.document_element(); }

    /// An element as text that may stand in any part: it declares those of its prefixes that parts of the
    /// document do not declare by themselves.
    std::string Fragment(pugi::xml_node element) const;
    /// The root as a part of its own, with all declarations.
    std::string Part() const;
    /// An element for a part that declares the prefix w alone.
    std::string PlainFragment(pugi::xml_node element) const;

 private:
    using UriByPrefix = std::map<std::string, std::string, std::less<>>;

    enum class Declare { All, AllButPlain, Unknown };
    std::string Print(pugi::xml_node element, Declare which) const;

    pugi::xml_document document_;
    UriByPrefix uriByPrefix_;
};

/// XML of the model (with the usual prefixes, declared or not) for reading or changing; throws XmlDamage.
std::unique_ptr<pugi::xml_document> ParseFragment(std::string_view xml);
std::string PrintFragment(const pugi::xml_document& fragment);

bool IsNamed(pugi::xml_node node, std::string_view name);
/// The attribute's text, empty when there is none.
std::string_view Attribute(pugi::xml_node node, const char* name);
inline std::string_view Val(pugi::xml_node node) {
    return Attribute(node, "w:val");
}

/// A number, or a measure with its unit ("1in", "12pt"), as a whole number of `perPoint` to the point; unset
/// for anything else. Values beyond any page are cut.
std::optional<int> ToNumber(std::string_view text, double perPoint = 20.0);
inline std::optional<int> NumberAttribute(pugi::xml_node node, const char* name) {
    return ToNumber(Attribute(node, name));
}
/// An element that is on by being there, unless its value says no.
bool IsOn(pugi::xml_node node);
/// The same for an attribute's text; `absent` when it is empty.
bool IsOnText(std::string_view text, bool absent);

}  // namespace quillmark::word::docx::xml
