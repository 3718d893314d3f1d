#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <vector>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// Finds fields and values of the grid by words of them: the first row shows as one types, Down and Up go to
/// the next and the one before, Enter opens the row, Esc leaves it marked.
class FindBar final : public QFrame {
    Q_OBJECT

 public:
    FindBar(Desk& desk, QWidget* parent);

    /// Comes with the keyboard; the words of the last time are selected.
    void Open();
    /// After every command: without a grid there is nothing to find.
    void Show();
    QLineEdit* Box() const { return box_; }

 Q_SIGNALS:
    /// This row is to be opened.
    void RowWanted(std::size_t row);
    /// The bar has gone: the keyboard belongs to the grid.
    void Left();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void Search();
    void Step(int by);
    void ShowRow();
    void Leave();

    Desk& desk_;
    QLineEdit* box_;
    QLabel* count_;
    std::vector<std::size_t> rows_;
    std::size_t at_ = 0;  ///< which of them shows
};

}  // namespace quillmark::desktop
