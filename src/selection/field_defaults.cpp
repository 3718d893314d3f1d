#include "selection/field_defaults.h"

#include <algorithm>

#include "core/fields.h"
#include "core/text_conversions.h"

namespace quillmark {

namespace {

struct FixedDefault {
    std::string_view marker;
    std::string_view value;
};

// clang-format off
constexpr FixedDefault kFixedDefaults[] = {
    {"[items incl in sale]",   "(None)"},
    {"[items excl from sale]", "(None)"},
    {"[leased fixtures]",      "(None)"},
    {"[repairs by seller]",    "(None)"},
    {"[tenancy type]",         "Joint Tenants WROS; Tenants In Common"},
    {"[payoff 1 method]",      "(enter check #); pay by wire"},
    {"[payoff 2 method]",      "(enter check #); pay by wire"},
    {"[name change instr]",    "Marriage; Divorce Decree; Probate Decree"},
    {"[POA agent capacity]",   "Jointly; Severally"},
    {"[buyer title insur co]", "First American Title Insurance Company; Chicago Title Insurance Company; "
                               "Commonwealth Land Title Insurance Company; Connecticut Attorneys Title "
                               "Insurance Company; Fidelity National Title Insurance Company; Lawyers "
                               "Title Insurance Corporation; Old Republic National Title Insurance "
                               "Company; Stewart Title Guaranty Company; Ticor Title Insurance Company"},
    {"[state of formation]",   "Connecticut"},
    {"[fiduciary type]",       "Administrator; Conservator; Executor; Testamentary Trustee; Trustee"},
};
// clang-format on

}  // namespace

std::string FieldDefault(std::string_view marker, const JobInHand& hand, const FirmContext& firm) {
    if (marker == "[document date]" || marker == "[contract date]") return LongDate(firm.clock.Today());
    if (marker == "[closing date]") {
        const bool takesToday = !hand.job.IsFilled(field::DocumentDate) && !hand.List2.empty();
        return takesToday ? LongDate(firm.clock.Today()) : std::string(marker);
    }
    const auto fixed = std::find_if(std::begin(kFixedDefaults), std::end(kFixedDefaults),
                                    [&](const FixedDefault& row) { return row.marker == marker; });
    if (fixed != std::end(kFixedDefaults)) return std::string(fixed->value);
    if (hand.fromTemplate) return std::string(marker);
    return firm.firmDefaults.ValueOf(marker);
}

bool IsChoiceList(std::string_view value) {
    return value.find(';') != std::string_view::npos;
}

std::string_view FirstChoice(std::string_view value) {
    return IsChoiceList(value) ? Trimmed(value.substr(0, value.find(';'))) : value;
}

}  // namespace quillmark
