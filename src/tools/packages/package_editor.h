#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"
#include "platform/dialogs.h"
#include "selection/packages.h"
#include "tools/controls.h"

/// The screen "Quillmark - Package Editor" without its window.
namespace quillmark {

/// Every control as a plain value under its own name.
struct PackageEditorState {
    std::vector<std::string> Combo1;  ///< "NEW PACKAGE", then the package names in file order
    std::string Combo1Text;           ///< what stands in its box
    std::size_t Combo1Line = 0;       ///< the line last picked
    std::vector<std::string> List1;   ///< "Available Forms"
    std::vector<std::string> List2;   ///< the package's documents
    bool Option1 = false;             ///< "rename as"
    Button cmdSave, cmdDelete, cmdBack, cmdImport;
};

class PackageEditor {
 public:
    static constexpr std::string_view kNewPackage = "NEW PACKAGE";

    /// Opens the screen over a main screen that offers these lines (`List1`). Shows a box about lines of the
    /// file that cannot be read. Throws FileError; a file that is missing though packages are on offer is a
    /// failure, too. `folders` and `dialogs` must outlive the object.
    PackageEditor(const std::vector<std::string>& offered, const Folders& folders, Dialogs& dialogs);

    const PackageEditorState& State() const { return state_; }

    /// Picks a line of `Combo1`. False if there is no such line.
    bool PickPackage(std::size_t line);
    /// Brings the text of `Combo1`'s box to this text as if it were typed: in capitals, without "<", ">" and
    /// the double quote. The name of an existing package picks it, but leaves a changed list; with "rename
    /// as" on, the package picked stays the one that is saved over.
    void TypeName(std::string_view text);
    void SetRename(bool on);

    /// Double-click on `List1`; false if there is no such line, or the package is full (a box says so).
    bool AddDocument(std::string_view line);
    /// Double-click on a line of `List2`; false if there is no such line.
    bool RemoveDocument(std::size_t line);

    /// `cmdSave`, `cmdDelete`. False when nothing was done: the button is disabled, or a box told why.
    bool Save();
    bool Delete();
    /// `cmdBack`, or closing the window: asks about changes. False if the screen stays because they could not
    /// be saved. The main screen then fills its `List1` anew.
    bool Leave();

 private:
    void Reload(std::string_view picked);
    bool SaveNamed(const std::string& name);
    void MarkChanged();
    bool Refuse(std::string text);

    const Folders& folders_;
    Dialogs& dialogs_;
    PackageFile packages_;
    PackageEditorState state_;
};

}  // namespace quillmark
