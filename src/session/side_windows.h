#pragma once

#include <functional>
#include <memory>

#include "closing/proration_calculator.h"
#include "session/firm.h"
#include "session/grid/grid_editor.h"
#include "session/machine.h"
#include "session/state/screen_state.h"
#include "tools/addresses/address_editor.h"
#include "tools/window/side_window.h"

namespace quillmark {

/// The windows beside the main screen: the screens of the address books, the proration calculator, the side
/// tools. They change the address books, the firm's own forms and, by handing an amount over, one row of the
/// grid.
class SideWindows {
 public:
    struct Surroundings {
        std::function<bool()> isClosed;         ///< another choice stands before any of them
        std::function<bool()> settingsShown;    ///< the settings list stands in the grid's place
        std::function<void(int)> openRow;       ///< field entry begins on a row of the grid
        std::function<void(int)> fieldChanged;  ///< this field has another value
        std::function<void()> offerDocuments;   ///< the list of documents is read anew
        std::function<void()> startTestMode;    ///< custom forms are tried out on an empty screen
        std::function<void()> readFirm;         ///< the firm's files are other ones now
    };

    /// The arguments must outlive the object.
    SideWindows(ScreenState& screen, GridEditor& editor, Firm& firm, Machine& machine, Surroundings around)
        : screen_(screen), editor_(editor), firm_(firm), machine_(machine), around_(std::move(around)) {}

    /// Throws FileError, and there is no such screen then.
    AddressEditor& OpenAddresses(AddressBook book);
    AddressEditor* Addresses() { return addresses_.get(); }
    void CloseAddresses() { addresses_.reset(); }

    ProrationCalculator& OpenCalculator();
    ProrationCalculator* Calculator() { return calculator_.get(); }
    void HandOver(CreditTo side);
    void CloseCalculator() { calculator_.reset(); }

    /// The custom forms manager, once the user has confirmed to leave the main screen for it.
    void OpenCustomForms();
    /// `cmdOP236`, `cmdEnvelopes`.
    void OpenReturn();
    void OpenEnvelopes();
    /// The window of backup and restore. Without one the program has ended, and the person knows why.
    void OpenBackup();
    /// The side tool's window that keeps the main screen waiting; null when there is none.
    SideWindow* Window() { return window_.get(); }
    /// After an act in that window: when it has closed, what follows for the main screen.
    void WindowHasActed();

    void CloseAll();

 private:
    ScreenState& screen_;
    GridEditor& editor_;
    Firm& firm_;
    Machine& machine_;
    Surroundings around_;
    std::unique_ptr<AddressEditor> addresses_;
    std::unique_ptr<ProrationCalculator> calculator_;
    std::unique_ptr<SideWindow> window_;
};

}  // namespace quillmark
