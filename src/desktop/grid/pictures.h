#pragma once

#include <QImage>
#include <string>
#include <string_view>

#include "desktop/toolkit/side_window.h"
#include "session/grid/grid_editor.h"

class QLabel;
class QScrollArea;

namespace quillmark::desktop {

/// The picture as the bytes of a Windows bitmap, on white where it is transparent; empty for none.
std::string BitmapOf(const QImage& picture);
/// The null image for bytes that are no picture.
QImage PictureOf(std::string_view bitmap);

/// What a paste would put in. A clipboard with both, such as cells of a spreadsheet with their image, counts
/// as text.
Clipboard ReadClipboard();

/// A picture of a field in a window of its own, as large as the screen allows. Plus and minus change its
/// size.
class PictureWindow final : public SideWindow {
 public:
    PictureWindow(QWidget* parent, std::string_view title, const QImage& picture);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void Scale(double factor);

    QImage picture_;
    QLabel* shown_;
    QScrollArea* area_;
    double scale_ = 1;
};

/// Shows the picture; a message where the bytes are none.
void ShowPicture(std::string_view bitmap, std::string_view title, QWidget* parent);

}  // namespace quillmark::desktop
