#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Lines of a fixed-pitch font on paper. Columns are characters of UTF-8 text, never bytes.
namespace quillmark {

/// The text in pieces of `columns` characters, the first one of `firstColumns`; one empty piece of an empty
/// text. Neither number may be 0.
std::vector<std::string> CutIntoColumns(std::string_view utf8, std::size_t firstColumns, std::size_t columns);

/// The first `columns` characters, filled up with blanks at the right.
std::string FillColumns(std::string_view utf8, std::size_t columns);

/// The lines on pages of `rows` rows: a line that is wider than the paper goes on in the next row. At least
/// one page, and no empty one but that.
std::vector<std::vector<std::string>> PagesOf(const std::vector<std::string>& lines, std::size_t columns,
                                              std::size_t rows);

}  // namespace quillmark
