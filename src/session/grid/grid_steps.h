#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "session/grid/grid_editor.h"

namespace quillmark {

/// How a text gets into a field's editor.
enum class EntryWay { Type, Paste, Pick };

/// Field entry as one step each, for a person who names rows instead of seeing them: fields by their number,
/// a user-defined row by its marker. The editor is closed with Escape after it, wherever the commit led.
/// Throws NotAllowed where the screen would not take it.
class GridSteps {
 public:
    /// The arguments must outlive the object.
    GridSteps(ScreenState& screen, GridEditor& editor, const FirmContext& firm, Dialogs& dialogs,
              std::function<AddressBooks()> books)
        : screen_(screen), editor_(editor), firm_(firm), dialogs_(dialogs), books_(std::move(books)) {}

    std::string EnterField(int n, std::string_view text, EntryWay way);
    std::string EnterUserField(std::string_view marker, std::string_view text, EntryWay way);
    /// What the editor shows after the text was typed.
    std::string TypeInEditor(int n, std::string_view text);
    void UnlockRow(int n);
    std::string ClickNote(int n, int column);

    /// Begins field entry on a row; throws NotAllowed where no editor opens.
    void VisitRow(int row);

 private:
    int RowOf(int n) const;
    int RowOf(std::string_view marker) const;
    void OpenRow(int row);
    void CommitText(std::string_view text, EntryWay way);
    void PickFrom(int row, std::string_view text);
    void EscapeEditor();

    ScreenState& screen_;
    GridEditor& editor_;
    const FirmContext& firm_;
    Dialogs& dialogs_;
    std::function<AddressBooks()> books_;
};

}  // namespace quillmark
