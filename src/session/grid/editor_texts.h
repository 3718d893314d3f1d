#pragma once

#include <string>
#include <string_view>

/// The texts of the editors that open over the grid.
namespace quillmark {

/// The fields that open the block editor: several lines, or a picture.
bool IsBlockField(int n);

/// The text with `lineEnd` in the place of every CR LF, CR and LF.
std::string WithLineEnds(std::string_view text, std::string_view lineEnd);

/// A pasted text in the one-line editor: line breaks become ", ", those at its end go.
std::string PastedLine(std::string_view text);

/// What an edit in one place put into a text.
std::string WhatWasPutIn(std::string_view before, std::string_view after);

}  // namespace quillmark
