#pragma once

#include <iosfwd>

namespace quillmark::cli {

/// The built-in document names in catalogue order, one a line.
void ListDocuments(std::ostream& out);

/// The fields, one a line: number, marker, sort key and description, tab-separated. Reserved numbers and the
/// retired one, whose marker is "[]", are left out, as every listing leaves them out.
void ListFields(std::ostream& out);

}  // namespace quillmark::cli
