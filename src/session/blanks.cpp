#include "session/blanks.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/fields.h"
#include "platform/code_points.h"
#include "production/run/dispatch.h"
#include "production/run/normalise.h"
#include "selection/asking_documents.h"
#include "selection/field_rows.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

using Names = std::vector<std::string>;

/// Which documents show a marker, by the field it belongs to; of a marker that is no field's, by itself.
struct Shown {
    std::map<int, Names> fields;
    std::map<std::string, Names> markers;
};

void AddOnce(Names& names, const std::string& name) {
    if (std::ranges::find(names, name) == names.end()) names.push_back(name);
}

std::string MarkerAt(const ValuePlace& place, std::u32string_view text) {
    return Utf8Of(text.substr(place.at, place.length));
}

Shown ShownIn(const Names& list, const std::vector<TypedEntry>& typed) {
    Shown shown;
    for (std::size_t i = 0; i < std::min(list.size(), typed.size()); ++i)
        for (const ValuePlace& place : typed[i].open)
            AddOnce(place.n > 0 ? shown.fields[place.n] : shown.markers[MarkerAt(place, typed[i].text)],
                    list[i]);
    return shown;
}

Names ListOf(const JobInHand& hand) {
    Names names;
    for (const JobListLine& line : hand.List2) names.push_back(line.name);
    return names;
}

/// What stays open when CREATE has filled in what it fills in itself.
class OpenFields {
 public:
    explicit OpenFields(const JobInHand& hand, const FirmContext& firm) : job_(hand.job) {
        NormalisedValues(job_, firm.clock.Today());
    }
    bool Holds(int n) const { return IsOpenRow(n) && job_.D(n) == FieldMarker(n); }
    bool IsFilledByCreate(int n) const { return IsOpenRow(n) && job_.D(n) != FieldMarker(n); }

 private:
    bool IsOpenRow(int n) const {
        const FieldHolder& holder = job_.txtField(n);
        return holder.relevant && holder.text == FieldMarker(n);
    }

    Job job_;
};

class List {
 public:
    List(const JobInHand& hand, const FirmContext& firm, const std::vector<TypedEntry>& typed)
        : hand_(hand), list_(ListOf(hand)), open_(hand, firm), shown_(ShownIn(list_, typed)) {}

    std::vector<Blank> Blanks() {
        for (const GridRow& row : hand_.grid) {
            if (row.kind == RowKind::Field) AddField(row.n);
            if (row.kind == RowKind::User && row.value.empty()) AddUser(row.label);
        }
        // While a job is edited, rows are those that hold a value.
        std::vector<int> others;
        for (int n = 1; n <= kFields; ++n) others.push_back(n);
        std::ranges::stable_sort(others, {}, FieldSortKey);
        for (const int n : others) AddField(n);
        for (const auto& [n, documents] : shown_.fields)
            if (!seen_.contains(n))
                blanks_.push_back({n, std::string(FieldMarker(n)), true, documents, HasRow(n)});
        for (const auto& [marker, documents] : shown_.markers)
            if (!seenMarkers_.contains(marker)) blanks_.push_back({0, marker, true, documents, false});
        return std::move(blanks_);
    }
    Names FilledByCreate() const {
        Names markers;
        for (const GridRow& row : hand_.grid)
            if (row.kind == RowKind::Field && open_.IsFilledByCreate(row.n))
                markers.emplace_back(FieldMarker(row.n));
        return markers;
    }

 private:
    bool HasRow(int n) const { return FindRow(n, hand_) != nullptr; }
    void AddField(int n) {
        if (!open_.Holds(n) || !seen_.insert(n).second) return;
        const auto shown = shown_.fields.find(n);
        blanks_.push_back({n, std::string(FieldMarker(n)), !IsOptionalField(n, hand_.job),
                           shown == shown_.fields.end() ? DocumentsAsking(n, hand_) : shown->second,
                           HasRow(n)});
    }
    void AddUser(const std::string& label) {
        const std::string marker = label.substr(0, label.find(']') + 1);
        seenMarkers_.insert(marker);
        Names documents;
        const auto shown = shown_.markers.find(marker);
        if (shown != shown_.markers.end()) documents = shown->second;
        if (documents.empty())
            for (const std::string& name : list_)
                if (!CustomDocumentName(name).empty()) documents.push_back(name);
        blanks_.push_back({0, marker, true, documents});
    }

    const JobInHand& hand_;
    const Names list_;
    const OpenFields open_;
    const Shown shown_;
    std::set<int> seen_;
    std::set<std::string> seenMarkers_;
    std::vector<Blank> blanks_;
};

}  // namespace

std::size_t OpenList::Required() const {
    return static_cast<std::size_t>(std::ranges::count(blanks, true, &Blank::required));
}

OpenList OpenListOf(const JobInHand& hand, const FirmContext& firm, const std::vector<TypedEntry>& typed) {
    List list(hand, firm, typed);
    OpenList open;
    open.filledByCreate = list.FilledByCreate();
    open.blanks = list.Blanks();
    const Names names = ListOf(hand);
    for (std::size_t i = 0; i < std::min(names.size(), typed.size()); ++i) {
        if (!typed[i].open.empty()) AddOnce(open.withHoles, names[i]);
        if (StaysEmpty(names[i])) open.withoutText.push_back(names[i]);
        for (const std::string& question : typed[i].questions) open.questions.push_back({names[i], question});
        if (!typed[i].failure.empty()) open.failures.push_back({names[i], typed[i].failure});
    }
    return open;
}

std::vector<std::string> MarkersNobodyAsksFor(std::string_view documentText, const JobInHand& hand) {
    const std::u32string text = CodePoints(documentText);
    std::vector<std::string> found;
    for (const ValuePlace& place : OpenMarkers(hand.job).In(text))
        if (place.n > 0 && !FindRow(place.n, hand)) AddOnce(found, MarkerAt(place, text));
    return found;
}

}  // namespace quillmark
