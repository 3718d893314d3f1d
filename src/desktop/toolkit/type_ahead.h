#pragma once

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QString>

namespace quillmark::desktop {

/// The letters typed in a list one after another, which lead to a line by its beginning. The toolkit's own
/// memory of them ends by time alone; here a pick ends it too.
class TypeAhead {
 public:
    /// The row that one more letter leads to, 0 columns deep, looked for from `current` on and round; -1 if
    /// no line begins so. A letter typed again goes on to the next line that begins with it.
    int Search(const QAbstractItemModel& lines, int current, const QString& letter);
    /// The next letter begins a new word.
    void Forget() { typed_.clear(); }

 private:
    QString typed_;
    QElapsedTimer since_;
};

}  // namespace quillmark::desktop
