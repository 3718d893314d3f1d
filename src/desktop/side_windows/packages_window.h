#pragma once

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "tools/packages/package_editor.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QPushButton;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

class LinesView;

/// The window that edits packages. Enter on an available form adds it, Enter or Delete on a document of the
/// package takes it out.
class PackagesWindow final : public SideWindow {
 public:
    /// `editor` must outlive the window.
    PackagesWindow(PackageEditor& editor, QWidget* parent);

    /// Closing asks about changes, and stays when they could not be saved.
    void reject() override;
    /// Whether the user left for the custom documents.
    bool WantsCustomDocuments() const { return wantsCustomDocuments_; }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void AddName(Mnemonics& keys);
    void AddButtons(Mnemonics& keys);
    void Arrange(Mnemonics& keys);
    void AddList(QGridLayout& lists, int column, std::string_view caption, LinesView* list, Mnemonics& keys);
    void Connect();
    template <class Command>
    void Do(Command command);
    void Refresh();

    PackageEditor& editor_;
    bool wantsCustomDocuments_ = false;
    QLabel* caption_;
    QComboBox* Combo1_;
    QCheckBox* Option1_;
    LinesView* List1_;
    LinesView* List2_;
    QPushButton* cmdSave_;
    QPushButton* cmdDelete_;
    QPushButton* cmdBack_;
    QPushButton* cmdImport_;
};

/// Shows the editor until it is left; the main screen then offers the packages as they are. True if the user
/// wants to go on to the custom documents. Throws NotAllowed while the main screen's button is disabled, and
/// FileError.
bool ShowPackageEditor(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
