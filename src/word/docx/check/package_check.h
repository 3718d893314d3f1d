#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::word::docx::check {

/// Looks through the parts of a .docx for what Word refuses, repairs or shows wrongly although it satisfies
/// the file format's schema: things that name other things which are not there, or are there twice (lists,
/// styles, bookmarks, relationships, drawings), fields without an end, cells without a paragraph, rows wider
/// than their table, text where none belongs, parts that nothing leads to.
///
/// Each finding is one sentence that begins with the part's name; an empty list is a good package. Bytes
/// that are no zip file give one finding and never an exception.
std::vector<std::string> CheckPackage(std::string_view bytes);

}  // namespace quillmark::word::docx::check
