#pragma once

#include <qpdf/QPDF.hh>
#include <string>
#include <string_view>

namespace quillmark::pdf {

/// Gives a text field's place on the page the look of this text, as the field's own entries ask for it: font,
/// size (or the one that fits), colour, alignment, lines, a comb of cells.
void ShowText(QPDF& pdf, QPDFObjectHandle field, QPDFObjectHandle widget, std::string_view text);

}  // namespace quillmark::pdf
