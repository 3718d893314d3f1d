#include "session/state/reasons.h"

#include <charconv>
#include <optional>

#include "core/options.h"
#include "session/state/buttons.h"

namespace quillmark {

namespace {

constexpr const char* kChooseClient = "Choose the law firm that you work for first.";
constexpr const char* kChoiceClosed =
    "The choice of documents closes with the first option or field. RESET begins another job.";

std::optional<int> NumberOf(std::string_view control, std::string_view prefix) {
    if (!control.starts_with(prefix)) return std::nullopt;
    int number = 0;
    const std::string_view digits = control.substr(prefix.size());
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? std::optional(number)
                                                                        : std::nullopt;
}

std::string WhyNotOpen(const ScreenState& screen) {
    const NameBox& box = screen.txtJobName;
    switch (screen.openDoes) {
        case OpenDoes::OpenJob:
            return "A job has been begun. RESET leaves it, and OPEN shows the others then.";
        case OpenDoes::EditJob:
            return "The list of documents has been changed. CREATE makes them, RESET opens the job anew.";
        case OpenDoes::SaveSettings:
            if (screen.templateBeingSet && box.text.empty()) return "Name the template first.";
            break;
        default:
            if (!box.IsSaveable()) return "The job has no name to save it under. Complete the name first.";
    }
    return "Everything has been saved.";
}

std::string WhyNotCreate(const ScreenState& screen) {
    if (screen.mode == ScreenMode::Presets)
        return "Documents are made from a job. RESET leaves the settings.";
    return "Choose documents first: double-click them in the list.";
}

std::string WhyNoTaxFormOrEnvelopes() {
    return "Open a job, or CREATE its documents first.";
}

std::string WhyNotButton(std::string_view name, const ScreenState& screen) {
    if (screen.creating) return "Documents are being made.";
    if (!screen.cmdReset.enabled) return kChooseClient;
    if (name == "cmdOpen") return WhyNotOpen(screen);
    if (name == "cmdCreate") return WhyNotCreate(screen);
    if (name == "cmdEnvelopes" || name == "cmdOP236") return WhyNoTaxFormOrEnvelopes();
    if (name == "cmdNameAs") return "Save the changes first; then the job can have another name.";
    return "Only before a job is begun. RESET leaves this one.";
}

std::string WhyNotOption(int n, const ScreenState& screen) {
    if (!screen.cmdReset.enabled) return kChooseClient;
    if (screen.FieldEntryStarted)
        return "The options are closed while fields are filled in. EDIT opens them later.";
    if (screen.List2.empty()) return "Choose documents first; they tell which options there are.";
    if (const int other = ExcludedBy(n, screen.job))
        return "Not together with " + std::string(OptionCaption(other)) + ".";
    return "No document of the job list asks for this.";
}

}  // namespace

std::string WhyDisabled(std::string_view control, const ScreenState& screen) {
    if (const Button* button = FindButton(control, screen))
        return button->enabled ? std::string() : WhyNotButton(control, screen);
    if (const auto n = NumberOf(control, "optConf"); n && IsOption(*n))
        return screen.ButtonOf(*n).enabled ? std::string() : WhyNotOption(*n, screen);
    if (const auto g = NumberOf(control, "lblJump"); g && *g >= 1 && *g <= 6)
        return screen.lblJump(static_cast<std::size_t>(*g)).enabled ? std::string()
                                                                    : "No field of this group is needed.";
    const bool choosing = !screen.cmdReset.enabled;
    if (control == "List1" && !screen.List1Enabled) return choosing ? kChooseClient : kChoiceClosed;
    if (control == "List2" && !screen.List2Enabled) {
        if (choosing) return kChooseClient;
        return screen.List2.empty() ? "Choose documents first: double-click them in the list above."
                                    : kChoiceClosed;
    }
    if (control == "txtJobName" && !screen.txtJobName.enabled)
        return "The name is fixed while fields are filled in. Name As gives the job another one once it is saved.";
    return {};
}

}  // namespace quillmark
