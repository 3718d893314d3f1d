#include "entry/note_cells.h"

#include "core/text_conversions.h"
#include "selection/field_rows.h"

namespace quillmark {

namespace {

constexpr int kFirstCell = 2;

std::size_t CellOf(int clicked) {
    return static_cast<std::size_t>(clicked - kFirstCell);
}

/// Two facts, one to each cell.
bool IsFourWay(TagFamily family) {
    return family == TagFamily::Sewer || family == TagFamily::Payoff;
}

LitCells AfterClick(LitCells lit, int clicked, TagFamily family) {
    if (!IsFourWay(family)) return {CellOf(clicked) == 0, CellOf(clicked) == 1};
    lit[CellOf(clicked)] = !lit[CellOf(clicked)];
    return lit;
}

bool BinderIsTaken(int n, const Job& job) {
    return TagFamilyOf(n) == TagFamily::Commission && TakesBinder(job.D(PairedField(n)));
}

bool HasNoMemory(LitCells lit) {
    return lit == LitCells{false, false};
}

}  // namespace

NotedValue NoteValue(int n, std::string_view value, LitCells lit, int clicked, const Job& job) {
    const TagFamily family = TagFamilyOf(n);
    if (family == TagFamily::None || value.empty() || value == "POC") return {std::string(value)};
    const TaggedValue tagged = ReadTag(value, family);
    if (tagged.text.empty()) return {};
    if (!tagged.tag.empty())
        lit = CellsLitBy(tagged.tag, family);
    else if (clicked == 0 && HasNoMemory(lit) && AmountOf(value) == 0)
        return {std::string(value)};
    if (clicked != 0) lit = AfterClick(lit, clicked, family);
    if (BinderIsTaken(n, job)) lit = {false, true};
    return {WithTag(tagged.text, lit, family), lit};
}

bool ShowsNotes(int n, std::string_view value, const GridRow* row, const JobInHand& hand) {
    const TagFamily family = TagFamilyOf(n);
    if (family != TagFamily::Payoff) return family != TagFamily::None;
    return PayoffShowsNotes(value, hand) || (row && !row->notes[0].empty());
}

std::string NotedFieldValue(int n, const JobInHand& hand) {
    const std::string& value = hand.job.D(n);
    const GridRow* row = FindRow(n, hand);
    if (!hand.job.IsFilled(n) || !ShowsNotes(n, value, row, hand)) return value;
    return NoteValue(n, value, row ? row->lit : LitCells{false, false}, 0, hand.job).value;
}

void ShowFieldNotes(int n, GridRow& row, int clicked, JobInHand& hand) {
    Job& job = hand.job;
    if (job.IsFilled(n) && ShowsNotes(n, job.D(n), &row, hand)) {
        const std::string noted = NoteValue(n, job.D(n), row.lit, clicked, job).value;
        noted.empty() ? job.ClearField(n) : job.SetField(n, noted);
    }
    DrawRow(row, hand);
}

void ShowAllFieldNotes(JobInHand& hand) {
    for (GridRow& row : hand.grid)
        if (row.kind == RowKind::Field && TagFamilyOf(row.n) != TagFamily::None)
            ShowFieldNotes(row.n, row, 0, hand);
}

}  // namespace quillmark
