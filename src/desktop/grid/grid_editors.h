#pragma once

#include "desktop/grid/block_editor.h"
#include "desktop/grid/edit_menu.h"
#include "desktop/grid/grid_view.h"
#include "desktop/grid/line_editor.h"
#include "desktop/grid/month_view.h"
#include "desktop/grid/pop_list.h"

namespace quillmark::desktop {

/// The editors over the grid, their calendar and lists, and the edit menu: shows each where the session has
/// it.
class GridEditors final : public QObject {
    Q_OBJECT

 public:
    /// `ground` is what calendar and lists lie on; they stay within it.
    GridEditors(Desk& desk, GridView& grid, QWidget& ground);

    void Show();
    /// The open editor; null if there is none.
    QWidget* Editor() const;
    QWidget* Calendar() const { return MonthView1_; }
    QWidget* Choices() const { return Combo1_; }
    QWidget* Records() const { return Combo2_; }

 private:
    void ConnectCalendar();
    void ConnectBlock();
    void ConnectLists();
    void Place();
    void ShowCalendar();
    void ShowLists();
    void PlaceUnder(QWidget* widget, const QRect& cell, QSize size) const;
    void ClickNote(int column);
    void FocusChoices();

    Desk& desk_;
    GridView& grid_;
    QWidget& ground_;
    EditorSignals around_;
    LineEditor* txtEdit_;
    BlockEditor* txtBlock_;
    MonthView* MonthView1_;
    PopList* Combo1_;
    PopList* Combo2_;
    EditMenu* menu_;
};

}  // namespace quillmark::desktop
