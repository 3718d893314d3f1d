#pragma once

#include <map>
#include <pugixml.hpp>
#include <string>

/// The theme of an opened file: names for fonts and colours that styles and texts refer to.
namespace quillmark::word::docx::read {

class Theme {
 public:
    Theme() = default;
    /// From the theme part's root.
    explicit Theme(pugi::xml_node root);

    /// Names the fonts outright in every w:rFonts below the element, and drops references to theme colours,
    /// whose plain values stand beside them.
    void Resolve(pugi::xml_node element) const;

 private:
    void ResolveFonts(pugi::xml_node fonts) const;

    std::map<std::string, std::string, std::less<>> fontByName_;
};

}  // namespace quillmark::word::docx::read
