#include "session/blanks.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/fields.h"
#include "platform/code_points.h"
#include "production/run/create.h"
#include "production/run/normalise.h"
#include "selection/asking_documents.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

using Names = std::vector<std::string>;

/// Which documents show a marker, by the field it belongs to; of a marker that is no field's, by itself.
struct Shown {
    std::map<int, Names> fields;
    std::map<std::string, Names> markers;
};

Shown ShownIn(const Names& list, const std::vector<Preview>& typed) {
    Shown shown;
    const auto add = [](Names& names, const std::string& name) {
        if (std::ranges::find(names, name) == names.end()) names.push_back(name);
    };
    for (std::size_t i = 0; i < std::min(list.size(), typed.size()); ++i) {
        for (const ValuePlace& place : typed[i].values) {
            if (!place.isOpen) continue;
            if (place.n > 0) {
                add(shown.fields[place.n], list[i]);
                continue;
            }
            const auto text = std::u32string_view(typed[i].text).substr(place.at, place.length);
            add(shown.markers[Utf8Of(text)], list[i]);
        }
    }
    return shown;
}

/// What stays open when CREATE has filled in what it fills in itself.
class OpenFields {
 public:
    explicit OpenFields(const JobInHand& hand, const FirmContext& firm) : job_(hand.job) {
        NormalisedValues(job_, firm.clock.Today());
    }
    bool Holds(int n) const {
        const FieldHolder& holder = job_.txtField(n);
        return holder.relevant && holder.text == FieldMarker(n) && job_.D(n) == FieldMarker(n);
    }

 private:
    Job job_;
};

class List {
 public:
    List(const JobInHand& hand, const FirmContext& firm, const std::vector<Preview>& typed)
        : hand_(hand), firm_(firm), open_(hand, firm), shown_(ShownIn(ListOf(hand), typed)) {}

    std::vector<Blank> Made() {
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
                blanks_.push_back({n, std::string(FieldMarker(n)), true, documents, false});
        for (const auto& [marker, documents] : shown_.markers)
            if (!seenMarkers_.contains(marker)) blanks_.push_back({0, marker, true, documents, false});
        return std::move(blanks_);
    }

 private:
    static Names ListOf(const JobInHand& hand) {
        Names names;
        for (const JobListLine& line : hand.List2) names.push_back(line.name);
        return names;
    }
    void AddField(int n) {
        if (!open_.Holds(n) || !seen_.insert(n).second) return;
        const auto shown = shown_.fields.find(n);
        blanks_.push_back({n, std::string(FieldMarker(n)), !IsOptionalField(n, hand_.job),
                           shown == shown_.fields.end() ? DocumentsAsking(n, hand_) : shown->second});
    }
    void AddUser(const std::string& label) {
        const std::string marker = label.substr(0, label.find(']') + 1);
        seenMarkers_.insert(marker);
        Names documents;
        const auto shown = shown_.markers.find(marker);
        if (shown != shown_.markers.end()) documents = shown->second;
        if (documents.empty())
            for (const std::string& name : ListOf(hand_))
                if (!CustomDocumentName(name).empty()) documents.push_back(name);
        blanks_.push_back({0, marker, true, documents});
    }

    const JobInHand& hand_;
    const FirmContext& firm_;
    const OpenFields open_;
    const Shown shown_;
    std::set<int> seen_;
    std::set<std::string> seenMarkers_;
    std::vector<Blank> blanks_;
};

}  // namespace

std::vector<Blank> BlanksOf(const JobInHand& hand, const FirmContext& firm,
                            const std::vector<Preview>& typed) {
    return List(hand, firm, typed).Made();
}

}  // namespace quillmark
