#include "tools/op236/op236_window.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "tools/op236/exemptions.h"
#include "tools/op236/op236_controls.h"
#include "tools/op236/pdf_form.h"
#include "tools/op236/return_parts.h"
#include "tools/window/filled_values.h"

namespace quillmark::op236 {

using namespace field;
namespace fs = std::filesystem;

namespace {

constexpr const char* kForm = "OP236.pdf";
constexpr const char* kSettingsFile = "op236.cfg";
constexpr const char* kNote = "PLEASE NOTE ...";
constexpr const char* kAlert = "  ALERT";
constexpr std::string_view kSpouses = "17", kDebt = "02", kFederalLaw = "01", kDecree = "09";

}  // namespace

OP236Window::OP236Window(ReturnOffice office)
    : office_(std::move(office)), controls_(NewControls()), printers_(office_.printers) {
    ShowSettings(controls_, false);
    Prefill();
}

// ---- What the job brings -------------------------------------------------------------------------------

void OP236Window::Prefill() {
    PrefillAddresses();
    const Job& job = office_.job;
    const bool twoBuyers = job.optConf(TwoBuyers);
    const bool land = job.optConf(LandMultiFamily);
    controls_.Show({"Check1"}, !job.optConf(Entity) && !job.optConf(TwoSellers) && !twoBuyers);
    controls_["Check0"].checked = twoBuyers;
    controls_.Show({"Check0"}, twoBuyers);
    controls_.Show({"Text7", "Text8", "Text9"}, false);
    controls_.Show({"Check5"}, !twoBuyers);
    controls_.Show({"Check4"}, land);
    controls_["Check4"].checked =
        land && std::ranges::find(office_.jobList, "CHRO Fair Housing Notice") != office_.jobList.end();
    controls_.Choose(job.optConf(PowerOfAttorney) || job.optConf(Entity) ? "Option3" : "Option1");
    if (const int instrument = InstrumentOf(office_.jobList); instrument >= 0)
        ChooseEntry(controls_["Combo1"], static_cast<std::size_t>(instrument));
    ChooseInstrument();
}

void OP236Window::PrefillAddresses() {
    const FilledValues value(office_.job);
    const auto fill = [&](std::string_view street, std::string_view city, int line, int cityLine) {
        controls_[street].text = value[line];
        controls_[city].text = value[cityLine];
    };
    if (value.Has(Entity))
        fill("Text1", "Text2", 1000 + Seller1Addr1, Seller1CityStateZip);
    else
        fill("Text1", "Text2", 1000 + SellerFwdAddr1, SellerFwdCityStateZip);
    controls_["Text3"].enabled = controls_["Text4"].enabled = value.Has(TwoSellers);
    if (value.Has(TwoSellers)) fill("Text3", "Text4", 1000 + SellerFwdAddr1, SellerFwdCityStateZip);
    if (!value.Has(Commercial)) fill("Text5", "Text6", kPropertyLine, PropertyCityStateZip);
}

// ---- What follows from an entry ------------------------------------------------------------------------

void OP236Window::OnText(std::string_view name, std::string_view text) {
    WindowControl& box = controls_[name];
    box.text = text;
    if (name.starts_with("txtFrom") && text.empty()) box.text = kNoAdjustment;
}

void OP236Window::OnPick(std::string_view name, std::size_t entry) {
    if (name == "rtbCode") return ChooseCode(Exemptions()[entry].code);
    ChooseEntry(controls_[name], entry);
    if (name == "Combo1") ChooseInstrument();
    if (name == "cboPrinters") printers_.FillBins(controls_);
}

/// An exemption goes by its code too; by no code, a click on a line's first character is meant.
bool OP236Window::OnEntryText(std::string_view name, std::string_view text) {
    if (name != "rtbCode") return false;
    if (!text.empty() && LineOfCode(text) < 0)
        throw WindowRefusal("there is no exemption of the code \"" + std::string(text) + "\"");
    text.empty() ? ClearCode() : ChooseCode(text);
    return true;
}

void OP236Window::OnTick(std::string_view name, bool on) {
    if (controls_[name].kind == ControlKind::Option) return controls_.Choose(name);
    if (controls_[name].checked == on) return;
    controls_[name].checked = on;
    if (name == "Check1") ChangeSpouses();
    if (name == "Check0") controls_.Show({"Text7", "Text8"}, !on);
}

void OP236Window::ClearCode() {
    controls_["code"].text.clear();
    ChooseEntry(controls_["rtbCode"], {});
    controls_["Check1"].checked = false;
    controls_["Text9"].text.clear();
    controls_.Show({"Text9"}, false);
}

void OP236Window::ChooseCode(std::string_view code) {
    ClearCode();
    if (code == kSpouses && office_.job.optConf(Entity)) return;
    ChooseEntry(controls_["rtbCode"], static_cast<std::size_t>(LineOfCode(code)));
    controls_["code"].text = code;
    controls_["Check1"].checked = code == kSpouses;
    if (code != kFederalLaw && code != kDecree) return;
    controls_.Show({"Text9"}, true);
    controls_["Text9"].text = code == kFederalLaw ? "enter citation #" : "enter docket #";
}

int OP236Window::ChosenInstrument() const {
    const auto& chosen = controls_["Combo1"].index;
    return chosen ? static_cast<int>(*chosen) : -1;
}

/// A mortgage secures a debt, which is an exemption of its own.
void OP236Window::ChooseInstrument() {
    if (ChosenInstrument() == kMortgageDeed)
        ChooseCode(kDebt);
    else if (controls_["code"].text == kDebt)
        ClearCode();
}

void OP236Window::ChangeSpouses() {
    if (!controls_["Check1"].checked) {
        if (controls_["code"].text == kSpouses) ClearCode();
    } else if (SalePriceOf(office_.job) >= kLeastTaxedPrice) {
        ChooseCode(kSpouses);
    }
}

// ---- Buttons -------------------------------------------------------------------------------------------

void OP236Window::OnClick(std::string_view name, bool, const fs::path& to) {
    if (name == "CREATE") return FillOP236(to);
    if (name == "Printer Setup") return OpenSettings();
    if (name == "OK") return SaveSettings();
    if (name == "Test")
        PrintOP236(controls_["cboPrinters"].text, printers_.Bin(controls_), Adjustment("txtFromTop"),
                   Adjustment("txtFromLft"), true);
}

PostalAddress OP236Window::AddressIn(std::string_view street, std::string_view city) const {
    return {controls_[street].text, controls_[city].text};
}

ReturnEntries OP236Window::Entries() const {
    const auto isTicked = [&](std::string_view name) { return controls_[name].checked; };
    ReturnEntries entries;
    entries.seller1 = AddressIn("Text1", "Text2");
    entries.seller2 = AddressIn("Text3", "Text4");
    entries.buyer1 = AddressIn("Text5", "Text6");
    entries.buyer2 = AddressIn("Text7", "Text8");
    entries.instrument = ChosenInstrument();
    entries.signer = isTicked("Option1")   ? Signer::Grantor
                     : isTicked("Option2") ? Signer::Attorney
                                           : Signer::Agent;
    entries.buyer2LivesWithBuyer1 = isTicked("Check0");
    entries.federalGiftTaxReturn = isTicked("Check2");
    entries.stateGiftTaxReturn = isTicked("Check3");
    entries.otherThanDwelling = isTicked("Check4");
    entries.buyerIsEntity = isTicked("Check5");
    entries.code = controls_["code"].text;
    if (controls_["Text9"].visible) entries.citation = controls_["Text9"].text;
    return entries;
}

fs::path OP236Window::FileFor(const fs::path& to) const {
    const bool isFile = !to.empty() && !fs::is_directory(to);
    if (isFile) return ClaimedName(to);
    const fs::path folder = to.empty() ? office_.shell.FolderOf(SpecialFolder::Documents) : to;
    fs::create_directories(folder);
    const std::string name = office_.jobName.empty() ? "Untitled" : office_.jobName;
    return ClaimedName(folder / PathOf(name + "_OP236.pdf"));
}

void OP236Window::FillOP236(const fs::path& to) {
    EnableButtons(false);
    try {
        TellMissing(Fill(to));
        TellNotices();
        if (to.empty()) office_.shell.Open(TextOf(*document_));
    } catch (const FormError& failure) {
        const bool isThere = failure.kind != FormError::Kind::NotThere;
        office_.dialogs.Tell("Adobe Reader",
                             fmt::format("Cannot open/find {}{}{}", kForm, isThere ? "\n\n" : "",
                                         isThere ? failure.what() : ""),
                             DialogIcon::Warning);
    } catch (const std::runtime_error& failure) {  // the file could not be written, or not be opened
        office_.dialogs.Tell(kAlert, failure.what(), DialogIcon::Warning);
    }
    EnableButtons(true);
}

/// What the form lacks.
std::vector<std::string> OP236Window::Fill(const fs::path& to) {
    struct Waiting {
        explicit Waiting(const std::function<void(bool)>& w) : wait(w) { wait(true); }
        ~Waiting() { wait(false); }
        const std::function<void(bool)>& wait;
    };
    const Waiting waiting(wait_);
    FilledForm filled = FillPdfForm(FindExisting(office_.programFolder / kForm),
                                    FormValues(office_.job, Entries(), office_.clock));
    const fs::path file = FileFor(to);
    try {
        ReplaceFile(file, filled.bytes);
    } catch (...) {
        GiveUpClaim(file);
        throw;
    }
    document_ = file;
    return std::move(filled.missing);
}

void OP236Window::TellMissing(const std::vector<std::string>& fields) {
    if (fields.empty()) return;
    office_.dialogs.Tell(kNote,
                         fmt::format("This revision of {} lacks the following, which you have to fill in by "
                                     "hand if the return asks for it:\n\n{}",
                                     kForm, fmt::join(fields, "\n")),
                         DialogIcon::Warning);
}

void OP236Window::EnableButtons(bool enabled) {
    for (const char* button : {"CREATE", "Printer Setup", "Test", "OK"}) controls_[button].enabled = enabled;
}

void OP236Window::TellNotices() {
    constexpr const char* kAll =
        "An OP-236 Schedule {}, naming all ({}) partners, shareholders,\nmembers or beneficiaries, must "
        "accompany this return.";
    const auto note = [&](const std::string& text) {
        office_.dialogs.Tell(kNote, text, DialogIcon::Warning);
    };
    const ReturnEntries entries = Entries();
    if (NeedsScheduleA(office_.job, entries)) note(fmt::format(kAll, "A", "Seller"));
    if (office_.job.optConf(TwoBuyers))
        note("An OP-236 Schedule B, naming the second Buyer, must accompany this return.");
    if (entries.buyerIsEntity) note(fmt::format(kAll, "B", "Buyer"));
}

// ---- The form of paper ---------------------------------------------------------------------------------

void OP236Window::PrintOP236(const std::string& printer, int bin, double vertical, double horizontal,
                             bool test) {
    PrintedPage page{.printer = printers_.PrinterFor(printer),
                     .bin = bin,
                     .paper = SheetSize::Legal,
                     .landscape = false,
                     .items = {}};
    if (test)
        page.items = {TestItem(vertical, horizontal)};
    else
        page.items = PaperItems(office_.job, Entries(), office_.clock, vertical, horizontal);
    EnableButtons(false);
    try {
        if (!office_.printer) throw MachineError("There is no printer.");
        office_.printer->Print(page);
        printed_.push_back(std::move(page));
        if (!test) TellOlderNotices();
    } catch (const MachineError& failure) {
        office_.dialogs.Tell("", std::string("Printing Error ...\n\n") + failure.what(), DialogIcon::Stop);
    }
    EnableButtons(true);
}

void OP236Window::TellOlderNotices() {
    const auto note = [&](const char* schedule) {
        office_.dialogs.Tell(kNote,
                             fmt::format("{}, naming all partners, members\nor beneficiaries, must accompany "
                                         "this return.",
                                         schedule),
                             DialogIcon::Warning);
    };
    const ReturnEntries entries = Entries();
    if (NeedsScheduleA(office_.job, entries)) note("An OP-236 Schedule A");
    if (NeedsScheduleB(office_.job, entries)) note("An OP-236 Schedule B");
}

void OP236Window::OpenSettings() {
    ShowSettings(controls_, true);
    printers_.Fill(controls_, printer_, bin_);
}

double OP236Window::Adjustment(std::string_view control) const {
    return LeadingNumber(controls_[control].text);
}

/// One record, which nothing reads: each start begins from no printer and no adjustment.
void OP236Window::SaveSettings() {
    printer_ = controls_["cboPrinters"].text;
    bin_ = printers_.Bin(controls_);
    try {
        RecordWriter writer;
        writer.Write({std::string_view(printer_), bin_, std::string_view(controls_["txtFromTop"].text),
                      std::string_view(controls_["txtFromLft"].text)});
        ReplaceFile(office_.programFolder / kSettingsFile, writer.Bytes());
        ShowSettings(controls_, false);
    } catch (const std::runtime_error& failure) {
        office_.dialogs.Tell(kAlert, failure.what(), DialogIcon::Warning);
    }
}

}  // namespace quillmark::op236
