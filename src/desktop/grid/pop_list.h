#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "desktop/toolkit/type_ahead.h"
#include "session/grid/grid_editor.h"

namespace quillmark::desktop {

/// A list that lies under an editor: `Combo1` or `Combo2`.
class PopList final : public QListWidget {
    Q_OBJECT

 public:
    PopList(const QString& objectName, const QString& name, QWidget* parent);

    void ShowLines(const std::vector<std::string>& lines, std::size_t current);
    /// Room for its lines, up to a number of them, and for the longest to be read whole.
    QSize WantedSize() const;
    void keyboardSearch(const QString& letter) override;

 Q_SIGNALS:
    void Picked(int line);
    void KeyPressed(EditorKey key, const QString& line);

 protected:
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

 private:
    bool TakeKey(int key);

    std::vector<std::string> lines_;
    TypeAhead typeAhead_;
};

}  // namespace quillmark::desktop
