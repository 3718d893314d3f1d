#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string>
#include <vector>

#include "desktop/toolkit/type_ahead.h"

namespace quillmark::desktop {

/// Shows a list of the state as it stands, without a copy: a line is turned into text when it comes into
/// view.
class LinesModel final : public QAbstractListModel {
 public:
    /// `lines` must outlive the model. Every change of them goes between `Begin` and `End`.
    explicit LinesModel(const std::vector<std::string>& lines, QObject* parent = nullptr)
        : QAbstractListModel(parent), lines_(lines) {}

    void Begin() { beginResetModel(); }
    void End() { endResetModel(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

 private:
    const std::vector<std::string>& lines_;
};

/// A list box over such a model, of one selectable line.
class LinesView final : public QListView {
    Q_OBJECT

 public:
    LinesView(const std::vector<std::string>& lines, const QString& name, QWidget* parent);

    /// Runs `change`, which may change the lines, and shows them anew. The current line stays near its place,
    /// unselected, so that the arrow keys go on from there.
    template <class Change>
    void Update(Change change) {
        const int row = currentIndex().row();
        {
            const Reset reset(*this);
            change();
        }
        KeepPlace(row);
    }
    /// The selected line, -1 for none.
    int Line() const;
    void SelectLine(int line);
    void keyboardSearch(const QString& letter) override;

 Q_SIGNALS:
    void LineSelected(int line);
    /// A double click on a line, or Enter.
    void LineOpened(int line);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
    struct Reset {
        explicit Reset(LinesView& v) : view(v) { view.model_.Begin(); }
        ~Reset() { view.model_.End(); }
        LinesView& view;
    };

    void KeepPlace(int row);

    LinesModel model_;
    TypeAhead typeAhead_;
};

}  // namespace quillmark::desktop
