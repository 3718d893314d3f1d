#pragma once

#include <string_view>

namespace quillmark::word {

/// How wide the text is on the page, in points, on one line. The widths are those of Times New Roman, of
/// Arial (also for Tahoma) and of the typewriter faces, as their makers publish them and as the free faces of
/// the same measure have them; any other face counts as Times New Roman. A letter without a table, an
/// accented one for instance, is as wide as most.
double WidthOf(std::string_view utf8, std::string_view font, double points, bool bold = false);

/// What a line of this face takes from the one above it, in points, when it is single-spaced.
double LineHeight(std::string_view font, double points);

}  // namespace quillmark::word
