#include "selection/option_tags.h"

#include "core/fields.h"

#include <algorithm>

namespace quillmark {

namespace {

struct Captions {
    TagFamily family;
    std::string_view first;
    std::string_view second;
};

// clang-format off
constexpr Captions kCaptions[] = {
    {TagFamily::Commission, "binder appl",   "not applied"},
    {TagFamily::LoanNumber, "Mortgage",      "HELOC"},
    {TagFamily::Payoff,     "rec fee incl",  "MERS"},
    {TagFamily::Paid,       "paid curr",     "unpaid"},
    {TagFamily::Sewer,      "pay w-taxes",   "credit buyer"},
    {TagFamily::Credit,     "credit seller", "credit buyer"},
};

/// Tags with the cells that they light.
struct Tag {
    TagFamily family;
    std::string_view text;
    bool first;
    bool second;
};
constexpr Tag kTags[] = {
    {TagFamily::Commission, " - B", true,  false},
    {TagFamily::Commission, " - N", false, true},
    {TagFamily::LoanNumber, " (M)", true,  false},
    {TagFamily::LoanNumber, " (E)", false, true},
    {TagFamily::Payoff,     " - T", false, false},
    {TagFamily::Payoff,     " - R", true,  false},
    {TagFamily::Payoff,     " = T", false, true},
    {TagFamily::Payoff,     " = R", true,  true},
    {TagFamily::Paid,       " - P", true,  false},
    {TagFamily::Paid,       " - U", false, true},
    {TagFamily::Sewer,      " - P", true,  false},
    {TagFamily::Sewer,      " - U", true,  true},
    {TagFamily::Sewer,      " = P", false, false},
    {TagFamily::Sewer,      " = U", false, true},
    {TagFamily::Credit,     " = P", true,  false},
    {TagFamily::Credit,     " = U", false, true},
};
// clang-format on

const Tag* FindTag(std::string_view value, TagFamily family) {
    const auto tag = std::find_if(std::begin(kTags), std::end(kTags), [&](const Tag& t) {
        return t.family == family && value.ends_with(t.text);
    });
    return tag == std::end(kTags) ? nullptr : &*tag;
}

}  // namespace

TagFamily TagFamilyOf(int n) {
    switch (n) {
        case field::Realtor1Commission:
        case field::Realtor2Commission:
            return TagFamily::Commission;
        case field::Payoff1LoanNumber:
        case field::Payoff2LoanNumber:
            return TagFamily::LoanNumber;
        case field::Payoff1Amount:
        case field::Payoff2Amount:
            return TagFamily::Payoff;
        case field::AnnualPropertyTax:
        case field::MonthlyCommonChg:
        case field::MonthlyRent:
            return TagFamily::Paid;
        case field::SewerAdjustment:
            return TagFamily::Sewer;
        case field::OtherAdjustment1:
        case field::OtherAdjustment2:
        case field::OtherAdjustment3:
        case field::OtherAdjustment4:
            return TagFamily::Credit;
        default:
            return TagFamily::None;
    }
}

TaggedValue SplitTag(std::string_view value, TagFamily family) {
    const Tag* tag = FindTag(value, family);
    if (!tag) return {value, {}};
    return {value.substr(0, value.size() - tag->text.size()), tag->text};
}

std::string_view TagLighting(std::array<bool, 2> lit, TagFamily family) {
    const auto tag = std::find_if(std::begin(kTags), std::end(kTags), [&](const Tag& t) {
        return t.family == family && t.first == lit[0] && t.second == lit[1];
    });
    return tag == std::end(kTags) ? std::string_view() : tag->text;
}

bool PayoffShowsNotes(std::string_view value, const JobInHand& hand) {
    return value.ends_with('T') || value.ends_with('R') ||
           std::any_of(hand.List2.begin(), hand.List2.end(),
                       [](const JobListLine& line) { return line.name.find("SMS") != std::string::npos; });
}

void DrawOptionTags(GridRow& row, const JobInHand& hand) {
    row.notes = {};
    row.lit = {false, false};
    const TagFamily family = TagFamilyOf(row.n);
    if (family == TagFamily::None) return;
    if (family == TagFamily::Payoff && !PayoffShowsNotes(row.value, hand)) return;
    for (const Captions& captions : kCaptions) {
        if (captions.family == family)
            row.notes = {std::string(captions.first), std::string(captions.second)};
    }
    const Tag* tag = FindTag(row.value, family);
    if (!tag) return;
    row.lit = {tag->first, tag->second};
    row.value.resize(row.value.size() - tag->text.size());
}

}  // namespace quillmark
