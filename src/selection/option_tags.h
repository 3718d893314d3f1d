#pragma once

#include <array>
#include <string>
#include <string_view>

#include "selection/job_in_hand.h"

/// The option tags of amounts: what stands behind an amount, shown by the two note cells of its row.
namespace quillmark {

/// Fields whose values carry the same kind of tag.
enum class TagFamily {
    None,
    Commission,  ///< 86, 88: binder deposit applied to it or not
    LoanNumber,  ///< 99, 117: mortgage or home equity line
    Payoff,      ///< 100, 118: fee for recording the release included, MERS the releasor
    Paid,        ///< 170, 175, 177: paid current or not
    Sewer,       ///< 171: payable with taxes, credit to the buyer
    Credit,      ///< 193 to 196: credit to the seller or the buyer
};
TagFamily TagFamilyOf(int n);

/// A value taken apart: amount and description, and the tag with its separator, such as " - P" or " (M)".
struct TaggedValue {
    std::string_view text;
    std::string_view tag;  ///< empty where there is none
};
TaggedValue SplitTag(std::string_view value, TagFamily family);
/// The tag that lights just these note cells, such as " - P"; empty where the family has none.
std::string_view TagLighting(std::array<bool, 2> lit, TagFamily family);

/// Whether a payoff row has note cells: the job list holds an SMS document, or the value has its tag.
bool PayoffShowsNotes(std::string_view value, const JobInHand& hand);

/// Draws the note cells of a field's row from the field's value, and the value without its tag.
void DrawOptionTags(GridRow& row, const JobInHand& hand);

}  // namespace quillmark
