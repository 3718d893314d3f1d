#include "tools/envelopes/envelope_window.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/record_file.h"

namespace quillmark::envelopes {

namespace {

constexpr const char* kSettingsFile = "envelope10.cfg";
constexpr std::size_t kLargestSettings = 65'536;
constexpr const char* kCustom = "custom addressee (or select) ...";
constexpr const char* kUsualIndentText = "2.75";
constexpr const char* kMostIndentText = "6.00";
constexpr const char* kNotSet =
    "Your printing defaults need to be set.  Please click\nthe \"Setup\" button at the following window ...";

/// A line of the addressee and what it shows while it is untouched.
struct Line {
    const char* control;
    const char* marker;
};
constexpr auto kLines = std::to_array<Line>({{"txtAddr1", "[Address line 1]"},
                                             {"txtAddr2", "[Address line 2]"},
                                             {"txtAddr3", "[Address line 3]"},
                                             {"txtCSZ", "[City, State  Zip]"}});

/// The frame that "setup" opens.
constexpr auto kSetup = {"frame",     "cboPrinters", "lstBins",   "cboFonts",   "Portrait",
                         "Landscape", "Check1",      "txtIndent", "Test Print", "OK"};

std::vector<WindowControl> NewControls() {
    using enum ControlKind;
    std::vector<WindowControl> controls = {{.name = "Combo1", .kind = List}};
    for (const Line& line : kLines) controls.push_back({.name = line.control, .kind = Box});
    const auto add = [&](const char* name, ControlKind kind, const char* tip = "") {
        const bool isCaption = kind == Button || kind == Option;
        controls.push_back({.name = name, .kind = kind, .text = isCaption ? name : "", .tooltip = tip});
    };
    add("PRINT", Button);
    add("setup", Button, " configure envelope printer ");
    add("frame", Label);
    controls.back().text = "#10 Envelope Printer Setup";
    add("cboPrinters", List);
    add("lstBins", List);
    add("cboFonts", List);
    add("Portrait", Option);
    add("Landscape", Option);
    add("Check1", Check, " include default letterhead ");
    controls.back().text = "return address";
    add("txtIndent", Box, " horizontal position (inches from left) ");
    add("Test Print", Button);
    add("OK", Button, " save config & return ");
    return controls;
}

/// An indent as the box shows it after it was entered.
std::string IndentText(std::string_view typed) {
    std::string text(Trimmed(typed));
    if (text.empty()) return kUsualIndentText;
    return LeadingNumber(text) > kMostIndent ? kMostIndentText : text;
}

}  // namespace

EnvelopeWindow::EnvelopeWindow(EnvelopeOffice office)
    : office_(std::move(office)),
      controls_(NewControls()),
      printers_(office_.printers),
      addressees_(AddresseesOf(office_.job)) {
    std::vector<std::string> lines = {kCustom};
    for (const Addressee& addressee : addressees_) lines.push_back(addressee.line);
    SetItems(controls_["Combo1"], std::move(lines));
    ChooseEntry(controls_["Combo1"], 0);
    ChooseAddressee();
    SetItems(controls_["cboFonts"], office_.fonts);
    ShowSetup(false);
    ReadSettings();
    ShowSettings();
}

// ---- The addressee -------------------------------------------------------------------------------------

void EnvelopeWindow::OnText(std::string_view name, std::string_view text) {
    controls_[name].text = name == "txtIndent" ? IndentText(text) : std::string(text);
}

void EnvelopeWindow::OnPick(std::string_view name, std::size_t entry) {
    ChooseEntry(controls_[name], entry);
    if (name == "Combo1") ChooseAddressee();
    if (name == "cboPrinters") printers_.FillBins(controls_);
}

void EnvelopeWindow::OnTick(std::string_view name, bool on) {
    if (controls_[name].kind == ControlKind::Option) return controls_.Choose(name);
    controls_[name].checked = on;
}

void EnvelopeWindow::ChooseAddressee() {
    const std::size_t line = controls_["Combo1"].index.value_or(0);
    if (line == 0) {
        for (const Line& each : kLines) controls_[each.control].text = each.marker;
        return;
    }
    const Address address = AddressOf(office_.job, addressees_.at(line - 1));
    controls_["txtAddr1"].text = address.line1;
    controls_["txtAddr2"].text = address.line2;
    controls_["txtAddr3"].text = address.line3;
    controls_["txtCSZ"].text = address.cityStateZip;
}

/// A line that is still as the custom addressee shows it is none.
Address EnvelopeWindow::Entered() const {
    const auto entered = [&](const Line& line) {
        const std::string& text = controls_[line.control].text;
        return text == line.marker ? std::string() : text;
    };
    Address address{entered(kLines[0]), entered(kLines[1]), entered(kLines[2]), entered(kLines[3])};
    if (address.line3.starts_with('[')) address.line3.clear();
    return address;
}

// ---- Printing ------------------------------------------------------------------------------------------

void EnvelopeWindow::OnClick(std::string_view name, bool, const std::filesystem::path&) {
    if (name == "setup") return OpenSetup();
    if (name == "OK") return SaveSettings();
    if (name == "PRINT") return Print(Entered(), settings_);
    if (name == "Test Print")
        Print({"Mr. John Q. Public", "100 Main Street", "", "Anytown, CT  06000"}, Entering());
}

void EnvelopeWindow::PrintEnvelope(const std::string& line1, const std::string& line2,
                                   const std::string& line3, const std::string& cityStateZip) {
    Print({line1, line2, line3, cityStateZip}, settings_);
}

PrintedPage EnvelopeWindow::Preview() const {
    EnvelopeSettings settings = controls_["OK"].visible ? Entering() : settings_;
    settings.printer = printers_.PrinterFor(settings.printer);
    return PageOf(Entered(), office_.job, settings);
}

void EnvelopeWindow::Print(const Address& address, const EnvelopeSettings& with) {
    EnvelopeSettings settings = with;
    settings.printer = printers_.PrinterFor(settings.printer);
    PrintedPage page = PageOf(address, office_.job, settings);
    try {
        if (!office_.printer) throw MachineError("There is no printer.");
        office_.printer->Print(page);
        printed_.push_back(std::move(page));
    } catch (const MachineError& failure) {
        office_.dialogs.Tell("", std::string("Printing Error ...\n\n") + failure.what(), DialogIcon::Stop);
    }
}

// ---- Setup ---------------------------------------------------------------------------------------------

void EnvelopeWindow::ShowSetup(bool shown) {
    for (const char* name : kSetup) controls_[name].visible = shown;
}

void EnvelopeWindow::OpenSetup() {
    ShowSetup(true);
    printers_.Fill(controls_, printers_.PrinterFor(settings_.printer), settings_.bin);
}

EnvelopeSettings EnvelopeWindow::Entering() const {
    return {.printer = controls_["cboPrinters"].text,
            .bin = printers_.Bin(controls_),
            .font = controls_["cboFonts"].text,
            .landscape = controls_["Landscape"].checked,
            .returnAddress = controls_["Check1"].checked,
            .indent = LeadingNumber(controls_["txtIndent"].text)};
}

/// PRINT waits for settings: an envelope without them would be a wasted one.
void EnvelopeWindow::ReadSettings() {
    controls_["PRINT"].enabled = false;
    const auto warn = [&](const std::string& text, DialogIcon icon) {
        office_.dialogs.Tell("IMPORTANT", text, icon);
    };
    try {
        const std::string bytes = ReadFile(office_.programFolder / kSettingsFile, kLargestSettings);
        RecordReader record(kSettingsFile, bytes);
        if (!record.Next() || record.Items() < 7) record.Fail("seven items are expected");
        settings_ = {.printer = record.Text(0),
                     .bin = static_cast<int>(std::clamp(record.Number(1), 0.0, 1e9)),
                     .font = record.Text(2),
                     .landscape = record.Boolean(4),
                     .returnAddress = record.Number(5) == 1,
                     .indent = LeadingNumber(IndentText(record.Text(6)))};
        controls_["txtIndent"].text = IndentText(record.Text(6));
        controls_["PRINT"].enabled = true;
    } catch (const FileError&) {
        warn(kNotSet, DialogIcon::Information);
    } catch (const RecordError& damaged) {
        warn(std::string(damaged.what()) + "\n\n" + kNotSet, DialogIcon::Warning);
    }
}

void EnvelopeWindow::ShowSettings() {
    WindowControl& fonts = controls_["cboFonts"];
    ChooseEntry(fonts, FindEntry(fonts, settings_.font));
    controls_.Choose(settings_.landscape ? "Landscape" : "Portrait");
    controls_["Check1"].checked = settings_.returnAddress;
    WindowControl& indent = controls_["txtIndent"];
    indent.text = IndentText(indent.text);
}

void EnvelopeWindow::SaveSettings() {
    const EnvelopeSettings settings = Entering();
    try {
        RecordWriter writer;
        writer.Write({std::string_view(settings.printer), settings.bin, std::string_view(settings.font),
                      !settings.landscape, settings.landscape, settings.returnAddress ? 1 : 0,
                      std::string_view(controls_["txtIndent"].text)});
        ReplaceFile(office_.programFolder / kSettingsFile, writer.Bytes());
    } catch (const std::runtime_error& failure) {
        return office_.dialogs.Tell("  ALERT", failure.what(), DialogIcon::Warning);
    }
    settings_ = settings;
    controls_["PRINT"].enabled = true;
    ShowSetup(false);
}

}  // namespace quillmark::envelopes
