#pragma once

#include <QObject>
#include <QTextBrowser>
#include <QWidget>
#include <string_view>

class QAction;
class QLineEdit;
class QListWidget;

namespace quillmark::desktop {

/// Shows a page of the user's guide in a window beside the one that `parent` belongs to, which stays in use.
/// Each window has one guide at most: a second call turns its pages.
void ShowGuide(QWidget* parent, std::string_view page);

/// Opens the guide when F1 (or the Help key) is pressed anywhere in the program, at the page for the control
/// that has the keyboard. Installed on the application.
class HelpKey final : public QObject {
 public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// A page of the guide with its pictures.
class GuideBrowser final : public QTextBrowser {
 public:
    explicit GuideBrowser(QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

 protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

 private:
    void Layout();
    void GoToHeading(const QString& anchor);
};

/// The guide: its contents with a search on the left, the page on the right.
class GuideWindow final : public QWidget {
 public:
    explicit GuideWindow(QWidget* parent);

    /// A page's name, with "#heading" behind it where a heading of the page is meant.
    void Open(std::string_view page);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QWidget* NewContents();
    QWidget* NewPage();
    QAction* NewAction(const QString& text, QKeySequence keys);
    void ShowContents(const QString& searched);
    void MarkCurrent(const QUrl& source);
    void MarkFound();
    void FindNext();

    QLineEdit* search_;
    QListWidget* contents_;
    GuideBrowser* browser_;
};

}  // namespace quillmark::desktop
