#pragma once

#include <QLocalServer>

namespace quillmark::desktop {

/// One copy of the program on a computer, for each user: a second copy brings the first to the front and
/// ends.
class SingleInstance final : public QObject {
    Q_OBJECT

 public:
    /// `name` is what copies of the program know each other by.
    explicit SingleInstance(QString name = DefaultName());

    /// True if another copy runs: it has been told to come to the front. Else this one is the first from now
    /// on.
    bool HandOver();

    static QString DefaultName();

 Q_SIGNALS:
    /// Another copy has handed over.
    void Called();

 private:
    void Answer();

    QString name_;
    QLocalServer server_;
};

}  // namespace quillmark::desktop
