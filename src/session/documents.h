#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"
#include "selection/firm_context.h"
#include "session/grid/grid_editor.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// What the name box shows for a job that is worked on without a name.
inline constexpr std::string_view kNoSaveText = "<< NO SAVE >>";

/// The lists `List1` and `List2` and the option buttons. They change the job list, the options and what
/// follows from them on the screen; each command refreshes the grid. Every command throws NotAllowed where
/// the screen would not take it, with nothing changed.
class DocumentCommands {
 public:
    /// The arguments must outlive the object.
    DocumentCommands(ScreenState& screen, GridEditor& editor, const FirmContext& firm, Dialogs& dialogs)
        : screen_(screen), editor_(editor), firm_(firm), dialogs_(dialogs) {}

    /// `List1` offers the packages, documents and forms that there are now. Tells of what cannot be read.
    void Offer();

    void FocusList1();  ///< the keyboard or a click comes to List1
    void FocusList2();
    void Pick(std::string_view line);                         ///< double click in List1
    void Drop(std::string_view line);                         ///< double click in List2, the first such line
    void SelectLegal(const std::vector<std::string>& lines);  ///< makes exactly these lines selected
    /// Takes a line of List2 to another place; the lines between make room. Documents are made in this order.
    void Move(std::size_t line, std::size_t to);
    /// Throws ParkingFull, with nothing changed.
    void ClickOption(int n);
    void DoubleClickOption(int n);

    /// No more documents can be chosen: nothing is selected, both lists are out of use.
    void CloseChoice();

 private:
    void MarkNoSave();
    void FollowPick(bool droveOut, bool asksPropertyType);
    void FollowDrop();
    void ShowOptions(bool shown);
    void ShowOptionsOfNamedJob();
    void RequireOption(int n) const;
    void ApplyInterlocks();
    void BringBack(int n);
    void ShowCapacityTooltips();
    void TellOfAdded(const std::vector<std::string>& notices);

    ScreenState& screen_;
    GridEditor& editor_;
    const FirmContext& firm_;
    Dialogs& dialogs_;
};

/// Gives all option buttons their tool tips.
void ShowOptionTooltips(ScreenState& screen);

}  // namespace quillmark
