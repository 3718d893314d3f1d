#include "desktop/toolkit/guard.h"

#include "desktop/toolkit/dialogs.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

void ShowText(QWidget* over, const char* text) {
    QtDialogs(over).Tell("  ALERT", text, DialogIcon::Stop);
}

}  // namespace

void ShowFault(QWidget* over) {
    try {
        throw;
    } catch (const NotAllowed&) {
        return;
    } catch (const CreateError&) {
        return;  // the main screen has told it
    } catch (const std::exception& fault) {
        ShowText(over, fault.what());
    } catch (...) {
        ShowText(over, "The action failed for an unknown reason. The job is as it was.");
    }
}

}  // namespace quillmark::desktop
