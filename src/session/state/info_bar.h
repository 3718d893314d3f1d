#pragma once

#include <initializer_list>
#include <string>

#include "session/state/screen_state.h"

namespace quillmark {

struct InfoPiece {
    std::string text;
    InfoColour colour = InfoColour::Black;
};

/// Puts a text of several colours on the guidance bar.
void ShowInfo(std::initializer_list<InfoPiece> pieces, ScreenState& screen);

}  // namespace quillmark
