#pragma once

#include <QApplication>

namespace quillmark::desktop {

/// The program as the toolkit has it. A fault in a handler becomes a message with its text, and the program
/// goes on.
class Application final : public QApplication {
    Q_OBJECT

 public:
    Application(int& count, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;

 private:
    bool telling_ = false;
};

}  // namespace quillmark::desktop
