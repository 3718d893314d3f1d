#pragma once

#include <QDialog>
#include <string_view>

namespace quillmark::desktop {

/// How wide a window has to be for its title to be read whole, buttons of the frame included.
int WidthOfTitle(const QWidget& window);

/// A modal window beside the main screen. It takes over its parent's font, and so its scale. Enter presses
/// the button that has the focus, and no other.
class SideWindow : public QDialog {
 public:
    SideWindow(QWidget* parent, std::string_view title);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// A width and height in characters, within the screen.
    void ResizeTo(int columns, int lines);
};

}  // namespace quillmark::desktop
