#pragma once

#include <map>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// The half of the package check that looks inside the XML parts.
namespace quillmark::word::docx::check {

/// What was found, and what the parts of one package tell about each other.
struct PackageFindings {
    /// Adds "PART: SENTENCE".
    void Add(std::string_view part, std::string_view sentence);

    std::vector<std::string> sentences;
    std::map<std::string, std::string> styleTypes;  ///< by style id
    std::set<std::string> lists;                    ///< numbers of w:num
    std::set<std::string> bookmarkNames;            ///< in small letters
    std::set<std::string> bookmarkIds;
    std::set<std::string> fieldNames;  ///< of form fields, in small letters
    std::set<std::string> drawings;
    std::set<std::string> comments;  ///< their numbers
};

/// Reads the styles, lists and comments that other parts name, and looks for those that are wrong in
/// themselves.
void CheckStyles(PackageFindings& findings, std::string_view part, const pugi::xml_node& root);
void CheckLists(PackageFindings& findings, std::string_view part, const pugi::xml_node& root);
void CheckComments(PackageFindings& findings, std::string_view part, const pugi::xml_node& root);

/// Looks through all elements of a part. `relations` are the ids of the part's relationships.
void CheckContent(PackageFindings& findings, std::string_view part, const pugi::xml_node& root,
                  const std::set<std::string>& relations);

}  // namespace quillmark::word::docx::check
