#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "selection/office.h"
#include "selection/selection_state.h"

namespace quillmark {

/// Asks what has to be known about a field's new value, and gives the value to store.
using FieldDialogue = std::function<std::string(int n, std::string value)>;

/// How a text comes to the list.
struct ListingEntry {
    int row = -1;          ///< of a user-defined field; -1 for the current row
    bool filling = false;  ///< one of a block from an address book: its row becomes current and is unlocked
};

/// Brings field n to a text, by way of its dialogue, and redraws its row; n = 0 is a user-defined row. An
/// empty text makes the field unfilled. The value that the field has already changes nothing, unless it is a
/// filling. False for a town that is not known: it is kept, with a warning. Passes on what a smart rule
/// throws, the value being stored by then.
bool UpdateListing(int n, std::string_view value, SelectionState& screen, const Office& office,
                   const FieldDialogue& dialogue = {}, ListingEntry entry = {});

/// Takes a row's locked look off ("OFF") or puts it on, and the lock of its field with it.
void SetRowState(GridRow& row, std::string_view state, SelectionState& screen);

}  // namespace quillmark
