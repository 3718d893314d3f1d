#include "tools/window/printer_choice.h"

#include <algorithm>

namespace quillmark {

namespace {

constexpr const char* kNameless = "  ---";

}  // namespace

void PrinterChoice::Fill(ControlSet& controls, const std::string& printer, int bin) {
    WindowControl& box = controls["cboPrinters"];
    SetItems(box, printers_ ? printers_->Names() : std::vector<std::string>());
    ChooseEntry(box, FindEntry(box, printer));
    FillBins(controls);
    const auto chosen = std::ranges::find(bins_, bin, &PrinterBin::number);
    if (chosen != bins_.end())
        ChooseEntry(controls["lstBins"], static_cast<std::size_t>(chosen - bins_.begin()));
}

void PrinterChoice::FillBins(ControlSet& controls) {
    bins_.clear();
    const WindowControl& printer = controls["cboPrinters"];
    if (printers_ && printer.index) bins_ = printers_->BinsOf(printer.text);
    std::vector<std::string> lines;
    for (const PrinterBin& bin : bins_) lines.push_back(bin.name.empty() ? kNameless : bin.name);
    SetItems(controls["lstBins"], std::move(lines));
}

int PrinterChoice::Bin(const ControlSet& controls) const {
    const auto& chosen = controls["lstBins"].index;
    return chosen ? bins_.at(*chosen).number : 0;
}

std::string PrinterChoice::PrinterFor(const std::string& name) const {
    if (!printers_) return {};
    const std::vector<std::string> names = printers_->Names();
    return std::ranges::find(names, name) == names.end() ? printers_->DefaultName() : name;
}

}  // namespace quillmark
