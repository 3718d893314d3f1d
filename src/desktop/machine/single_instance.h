#pragma once

#include <QLocalServer>
#include <QLocalSocket>
#include <filesystem>

namespace quillmark::desktop {

/// One copy of the program for each user and program folder: a second copy hands over what it was started
/// with and ends.
class SingleInstance final : public QObject {
    Q_OBJECT

 public:
    /// `name` is what copies of the program know each other by.
    explicit SingleInstance(QString name) : name_(std::move(name)) { Listen(); }

    /// True if another copy runs: it has the job now ("" for none), and comes to the front. Else this one is
    /// the first from now on.
    bool HandOver(const QString& job);

    static QString NameFor(const std::filesystem::path& programFolder);

 Q_SIGNALS:
    /// Another copy has handed over.
    void Called(const QString& job);

 private:
    void Listen();
    void Answer();
    void Read(QLocalSocket* caller);

    QString name_;
    QLocalServer server_;
};

}  // namespace quillmark::desktop
