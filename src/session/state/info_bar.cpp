#include "session/state/info_bar.h"

namespace quillmark {

void ShowInfo(std::initializer_list<InfoPiece> pieces, ScreenState& screen) {
    InfoColours colours;
    for (const InfoPiece& piece : pieces) {
        colours.spans.push_back({colours.text.size(), piece.text.size(), piece.colour});
        colours.text += piece.text;
    }
    screen.picInfo = colours.text;
    screen.picInfoColours = std::move(colours);
}

}  // namespace quillmark
