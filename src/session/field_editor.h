#pragma once

#include <string>
#include <string_view>

#include "entry/filter_keys.h"

/// The texts of the editors that open over the grid.
namespace quillmark {

/// The fields that open the block editor: several lines, or a picture.
bool IsBlockField(int n);

struct TypedText {
    std::string text;
    KeyEffect effect = KeyEffect::None;  ///< of the last key; typing ended there if it is not None
};
/// What the one-line editor holds after all of the text was typed over what it held, key by key.
TypedText TypeOver(std::string_view text, const KeyPlace& place, std::string_view marker, bool properCase);

/// A pasted text in the one-line editor: line breaks become ", ".
std::string PastedLine(std::string_view text);

/// A text of several lines as values keep it: CR LF between lines.
std::string WithFileLineEnds(std::string_view text);

}  // namespace quillmark
