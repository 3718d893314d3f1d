#include "production/run/field_list.h"
#include "session/main_screen.h"

namespace quillmark {

void MainScreen::PrintFieldList() {
    Require(machine_.printer != nullptr, "there is no printer to print the field list on");
    try {
        machine_.printer->Print(FieldList(screen_));
    } catch (const MachineError& failure) {
        machine_.dialogs.Tell("  ALERT", failure.what(), DialogIcon::Warning);
    }
}

}  // namespace quillmark
