#include "tools/op236/op236_controls.h"

#include "tools/op236/exemptions.h"
#include "tools/op236/return_values.h"

namespace quillmark::op236 {

namespace {

constexpr const char* kBuyer2 = "< enter Buyer #2 address after conveyance >";
constexpr const char* kGiftTip = " for no or less than adequate consideration ";

constexpr const char* kNotes[] = {
    "The State of Connecticut supplies Form OP-236 for use in filing real estate conveyance taxes.  This is a two-part "
    "carbonless form which can be obtained from the Department of Revenue Services or any town clerk's office.  DRS will "
    "NOT accept returns submitted by way of any other document.",
    "This utility requires a Dot-Matrix (impact) printer be available on your system/network and will fill out OP-236s "
    "loaded in such printer, drawing on data from the active file as well as the supplemental data provided herein.",
    "To align the form, load it and click Test: an X is printed, which should stand in the Warranty box of Line 21.  If it "
    "does not, enter by how many inches it has to move, and try again."};

constexpr auto kSettings = {"cboPrinters", "lstBins", "txtFromTop", "txtFromLft", "Test",
                            "OK",          "note1",   "note2",      "note3"};

WindowControl Box(const char* name, const char* tip = "") {
    return {.name = name, .kind = ControlKind::Box, .tooltip = tip};
}
WindowControl List(const char* name) {
    return {.name = name, .kind = ControlKind::List};
}
WindowControl Check(const char* name, const char* caption, const char* tip = "") {
    return {.name = name, .kind = ControlKind::Check, .text = caption, .tooltip = tip};
}
WindowControl Option(const char* name, const char* caption) {
    return {.name = name, .kind = ControlKind::Option, .text = caption};
}
WindowControl CaptionedButton(const char* caption, const char* tip = "") {
    return {.name = caption, .kind = ControlKind::Button, .text = caption, .tooltip = tip};
}
WindowControl Label(const char* name, std::string_view text) {
    return {.name = name, .text = std::string(text)};
}

WindowControl ExemptionList() {
    WindowControl list = List("rtbCode");
    for (const Exemption& exemption : Exemptions()) list.items.push_back(ShownLine(exemption));
    return list;
}

WindowControl InstrumentList() {
    WindowControl list = List("Combo1");
    list.items.assign(kInstruments.begin(), kInstruments.end());
    return list;
}

}  // namespace

std::vector<WindowControl> NewControls() {
    std::vector<WindowControl> controls = {
        Box("Text1"),
        Box("Text2"),
        Box("Text3"),
        Box("Text4"),
        Box("Text5"),
        Box("Text6"),
        Check("Check0", "Buyer2 address same as Buyer1"),
        Box("Text7", kBuyer2),
        Box("Text8", kBuyer2),
        Check("Check5", "Buyer is an entity, estate or trust",
              " Buyer is Partnership, S-Corp, LLC, Estate or Trust "),
        InstrumentList(),
        Check("Check1", "Conveyance between spouses"),
        Check("Check2", "Federal gift tax return will be filed", kGiftTip),
        Check("Check3", "State gift tax return will be filed", kGiftTip),
        Check("Check4", "Residential other than dwelling", " property is improved multi-unit residential "),
        Option("Option1", "Grantor"),
        Option("Option2", "Attorney"),
        Option("Option3", "Agent"),
        ExemptionList(),
        Label("code", ""),
        Box("Text9"),
        Label("revision", kRevision),
        CaptionedButton("CREATE"),
        CaptionedButton("Printer Setup"),
        Label("note1", kNotes[0]),
        Label("note2", kNotes[1]),
        List("cboPrinters"),
        List("lstBins"),
        Label("note3", kNotes[2]),
        Box("txtFromTop", " positive value moves DN, negative value moves UP "),
        Box("txtFromLft", " positive value moves R, negative value moves L "),
        CaptionedButton("Test"),
        CaptionedButton("OK", " save config & return "),
    };
    for (WindowControl& control : controls)
        if (control.name.starts_with("txtFrom")) control.text = kNoAdjustment;
    return controls;
}

void ShowSettings(ControlSet& controls, bool shown) {
    for (const char* name : kSettings) controls[name].visible = shown;
}

}  // namespace quillmark::op236
