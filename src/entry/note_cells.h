#pragma once

#include <string>
#include <string_view>

#include "entry/tagged_values.h"
#include "selection/job_in_hand.h"

/// The two note cells beside a tagged value: they show the tag in words, keep it while the amount is edited,
/// and change it when they are clicked.
namespace quillmark {

/// The value with the tag that belongs to it and the cells that it lights.
struct NotedValue {
    std::string value;
    LitCells lit = {false, false};
};

/// Works out the tag of field n. `clicked` is 2 or 3 for a click on the first or second cell, else 0. The tag
/// comes, in this order, from the click, from the value's own tag, from the cells that are lit. A click
/// chooses one of two answers, but turns one of the two independent facts of a sewer charge or payoff over.
/// While the other commission takes the binder deposit, this one is not applied. The empty text, "POC", and a
/// zero that never had a tag stay as they are; a tag without anything before it is no value.
NotedValue NoteValue(int n, std::string_view value, LitCells lit, int clicked, const Job& job);

/// Whether the row of field n has note cells for this value: that of a payoff has them for an SMS document on
/// the job list, for a value with its tag, or if it had them before.
bool ShowsNotes(int n, std::string_view value, const GridRow* row, const JobInHand& hand);

/// The field's value with the tag that its row remembers; the value itself where the row has no note cells.
std::string NotedFieldValue(int n, const JobInHand& hand);

/// Rewrites the tag of the field's value from the row's lit cells and the click, and draws the row. A field
/// without note cells or without a value stays as it is.
void ShowFieldNotes(int n, GridRow& row, int clicked, JobInHand& hand);

/// The same for every row, without a click: after rows were built from values that came from outside.
void ShowAllFieldNotes(JobInHand& hand);

}  // namespace quillmark
