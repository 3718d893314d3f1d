#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The people of a list as a field holds it, names separated by commas: "Ann Poe, John Roe, Jr. and Lee Moe"
/// are three. What belongs to the name before it ("Jr.", "III", "Esq.") stays with it. A list of nobody is
/// one empty name.
std::vector<std::string> PeopleIn(std::string_view list);

}  // namespace quillmark
