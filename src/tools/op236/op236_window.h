#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "core/job.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "tools/op236/return_values.h"
#include "tools/window/control_set.h"
#include "tools/window/printer_choice.h"
#include "tools/window/side_window.h"

namespace quillmark::op236 {

/// What the window needs of what is around it. Everything that is referred to must outlive the window; the
/// job must not change meanwhile.
struct ReturnOffice {
    const Job& job;
    std::vector<std::string> jobList;
    std::string jobName;                  ///< empty for a job without one
    std::filesystem::path programFolder;  ///< of OP236.pdf and of the settings
    const Clock& clock;
    Dialogs& dialogs;
    Shell& shell;
    Printers* printers = nullptr;     ///< null: there are none
    SheetPrinter* printer = nullptr;  ///< null: nothing can be printed
};

/// "Quillmark - Form OP-236 Utility": fills the state's form for the job, and tries the place of the paper
/// one on a printer.
class OP236Window final : public SideWindow {
 public:
    explicit OP236Window(ReturnOffice office);

    std::string Title() const override { return "Quillmark - Form OP-236 Utility"; }
    std::vector<WindowControl> Controls() const override { return controls_.All(); }

    /// Called with true when the filling begins and with false when it ends, for the mouse pointer.
    void OnWait(std::function<void(bool waits)> wait) { wait_ = std::move(wait); }

    /// Fills OP236.pdf of the program folder and leaves the filled copy where `to` says (a path or a folder),
    /// else beside the job's documents, under a name of its own. What fails is told in a box.
    void FillOP236(const std::filesystem::path& to = {});
    /// Prints the return, or with `test` the X alone. The adjustments are inches.
    void PrintOP236(const std::string& printer, int bin, double vertical, double horizontal, bool test);

 private:
    void OnText(std::string_view name, std::string_view text) override;
    void OnPick(std::string_view name, std::size_t entry) override;
    bool OnEntryText(std::string_view name, std::string_view text) override;
    void OnTick(std::string_view name, bool on) override;
    void OnClick(std::string_view name, bool twice, const std::filesystem::path& to) override;

    void Prefill();
    void PrefillAddresses();
    void ChooseCode(std::string_view code);
    void ClearCode();
    int ChosenInstrument() const;
    void ChooseInstrument();
    void ChangeSpouses();
    PostalAddress AddressIn(std::string_view street, std::string_view city) const;
    ReturnEntries Entries() const;
    std::filesystem::path FileFor(const std::filesystem::path& to) const;
    std::vector<std::string> Fill(const std::filesystem::path& to);
    void TellMissing(const std::vector<std::string>& fields);
    void EnableButtons(bool enabled);
    void TellNotices();
    void TellOlderNotices();
    void OpenSettings();
    void SaveSettings();
    double Adjustment(std::string_view control) const;

    ReturnOffice office_;
    ControlSet controls_;
    PrinterChoice printers_;
    std::string printer_;  ///< of the settings of this session
    int bin_ = 0;
    std::function<void(bool waits)> wait_ = [](bool) {};
};

}  // namespace quillmark::op236
