#pragma once

#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quillmark::word::docx::xml {

/// Puts the names of a tree into the form that XmlTree tells of. Throws XmlDamage for a tree too deep.
///
/// Gives the addresses of all namespaces that the tree uses, by the prefixes that it now has.
std::map<std::string, std::string, std::less<>> NormaliseNames(pugi::xml_node root);

/// Whether every part of a written document declares the prefix by itself.
bool IsUsualPrefix(std::string_view prefix);

/// The part of a name before its colon, empty without one.
std::string_view PrefixOf(std::string_view name);

}  // namespace quillmark::word::docx::xml
