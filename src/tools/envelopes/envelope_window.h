#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/job.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "tools/envelopes/envelope_page.h"
#include "tools/window/control_set.h"
#include "tools/window/printer_choice.h"
#include "tools/window/side_window.h"

namespace quillmark::envelopes {

/// What the window needs of what is around it. Everything that is referred to must outlive the window; the
/// job must not change meanwhile.
struct EnvelopeOffice {
    const Job& job;
    std::filesystem::path programFolder;  ///< of the settings
    std::vector<std::string> fonts;       ///< to choose from
    Dialogs& dialogs;
    Printers* printers = nullptr;     ///< null: there are none
    SheetPrinter* printer = nullptr;  ///< null: nothing can be printed
};

/// "Quillmark - Envelope Printer": one #10 envelope at a time.
class EnvelopeWindow final : public SideWindow {
 public:
    /// Reads the settings; says so when there are none yet.
    explicit EnvelopeWindow(EnvelopeOffice office);

    std::string Title() const override { return "Quillmark - Envelope Printer"; }
    std::vector<WindowControl> Controls() const override { return controls_.All(); }

    void PrintEnvelope(const std::string& line1, const std::string& line2, const std::string& line3,
                       const std::string& cityStateZip);
    /// The envelope as PRINT would print it now, for a look at it before; while the setup shows, with the
    /// settings as they stand there.
    PrintedPage Preview() const;

 private:
    void OnText(std::string_view name, std::string_view text) override;
    void OnPick(std::string_view name, std::size_t entry) override;
    void OnTick(std::string_view name, bool on) override;
    void OnClick(std::string_view name, bool twice, const std::filesystem::path& to) override;

    void ChooseAddressee();
    Address Entered() const;
    EnvelopeSettings Entering() const;
    void Print(const Address& address, const EnvelopeSettings& settings);
    void ShowSetup(bool shown);
    void OpenSetup();
    void ReadSettings();
    void ShowSettings();
    void SaveSettings();

    EnvelopeOffice office_;
    ControlSet controls_;
    PrinterChoice printers_;
    std::vector<Addressee> addressees_;
    EnvelopeSettings settings_;  ///< as they were read or saved last
};

}  // namespace quillmark::envelopes
