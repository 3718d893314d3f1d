#pragma once

#include <string>
#include <string_view>

#include "selection/job_in_hand.h"

namespace quillmark {

/// How a text comes to the list.
struct ListingEntry {
    int row = -1;          ///< of a user-defined field
    bool filling = false;  ///< one of a block from an address book: its row is unlocked
    std::string tag = {};  ///< what the answers to the field's questions (entry/questions.h) put behind it
};

/// What came of it.
struct Listed {
    std::string warning;  ///< of a place that is no known town, though it is kept; empty for none
};

/// Brings field n to a text with its tag, and redraws its row; n = 0 is a user-defined row. An empty text
/// makes the field unfilled. The value that the field has already changes nothing, unless it is a filling.
/// Passes on what a smart rule throws, the value being stored by then.
Listed UpdateListing(int n, std::string_view value, JobInHand& hand, const ListingEntry& entry = {});

/// Takes a row's lock off or puts it on, and that of its field with it.
void SetLocked(GridRow& row, bool locked, JobInHand& hand);

}  // namespace quillmark
