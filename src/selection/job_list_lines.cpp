#include "selection/job_list_lines.h"

#include <algorithm>

namespace quillmark {

namespace {

constexpr std::string_view kLegalSizeTip = " Click to select doc(s) for legal size (8.5 x 14) ";

}  // namespace

std::optional<std::size_t> FindLine(std::string_view name, const SelectionState& screen) {
    for (std::size_t i = 0; i < screen.List2.size(); ++i)
        if (screen.List2[i].name == name) return i;
    return std::nullopt;
}

bool HoldsLine(std::string_view name, const SelectionState& screen) {
    return FindLine(name, screen).has_value();
}

bool HoldsContract(const SelectionState& screen) {
    return std::any_of(screen.List2.begin(), screen.List2.end(),
                       [](const JobListLine& line) { return IsContract(line.name); });
}

void AppendLine(std::string_view name, SelectionState& screen) {
    screen.List2.push_back({std::string(name), false});
}

void TakeOff(const std::function<bool(std::string_view)>& test, SelectionState& screen) {
    std::erase_if(screen.List2, [&](const JobListLine& line) { return test(line.name); });
}

void TakeOff(DocumentTrait any, SelectionState& screen) {
    TakeOff([any](std::string_view name) { return HasTrait(name, any); }, screen);
}

void LinesChanged(SelectionState& screen) {
    screen.LegalList.clear();
    for (const JobListLine& line : screen.List2)
        if (line.selected) screen.LegalList += line.name + ",";
    screen.List2Tooltip = screen.List2.empty() ? "" : kLegalSizeTip;
}

void CloseDocumentChoice(SelectionState& screen) {
    screen.List1Enabled = false;
    screen.List2Enabled = false;
}

void PlacePropertyTypeFrame(SelectionState& screen, std::string_view added) {
    bool statement = added.starts_with(kClosingStatement);
    bool contract = added == kBridgeportContract || added == kValleyContract;
    for (const JobListLine& line : screen.List2) {
        statement |= line.name.starts_with(kClosingStatement);
        contract |= line.name == kBridgeportContract || line.name == kValleyContract;
    }
    if (statement && contract) screen.propertyTypeFrame = PropertyTypeFrame::OverPayoffs;
}

bool IsExcludedBy(std::string_view line, std::string_view picked) {
    using enum DocumentTrait;
    if (picked.starts_with(kDeedPrefix)) return line.starts_with(kDeedPrefix) || line == kTrusteesAffidavit;
    if (HasTrait(picked, SmsPayoff)) return HasTrait(line, DirectPayoff);
    if (HasTrait(picked, DirectPayoff)) return HasTrait(line, SmsPayoff);
    return false;
}

}  // namespace quillmark
