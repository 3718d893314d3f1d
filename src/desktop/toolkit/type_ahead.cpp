#include "desktop/toolkit/type_ahead.h"

#include <QApplication>

namespace quillmark::desktop {

int TypeAhead::Search(const QAbstractItemModel& lines, int current, const QString& letter) {
    const bool goesOn = since_.isValid() && since_.elapsed() <= QApplication::keyboardInputInterval();
    if (!goesOn) typed_.clear();
    since_.start();
    const bool again = !typed_.isEmpty() && typed_ == QString(typed_.size(), letter.front());
    const bool begins = typed_.isEmpty();
    typed_ += letter;
    const auto find = [&](const QString& word, int from) {
        const int rows = lines.rowCount();
        for (int step = 0; step < rows; ++step) {
            const int row = (from + step) % rows;
            if (lines.index(row, 0).data().toString().trimmed().startsWith(word, Qt::CaseInsensitive))
                return row;
        }
        return -1;
    };
    const int here = std::max(current, 0);
    const int row = find(typed_, begins && current >= 0 ? here + 1 : here);
    return row < 0 && again ? find(letter, here + 1) : row;
}

}  // namespace quillmark::desktop
