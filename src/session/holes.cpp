#include "session/holes.h"

#include <algorithm>
#include <map>

#include "core/field_registry.h"
#include "core/text_conversions.h"
#include "selection/field_rows.h"

namespace quillmark {

namespace {

struct Marker {
    std::string text;
    int field;  ///< that would fill it
};

/// All markers that a document may show, by their form in small letters.
std::map<std::string, Marker, std::less<>> AllMarkers() {
    std::map<std::string, Marker, std::less<>> markers;
    const auto add = [&](std::string text, int n) {
        std::string key = Lowered(text);
        markers.emplace(std::move(key), Marker{std::move(text), n});
    };
    for (int n = 1; n <= kFields; ++n)
        if (FieldMarker(n).size() > 2) add(std::string(FieldMarker(n)), n);
    for (const DerivedField& derived : DerivedFields())
        add(std::string(derived.marker), derived.number % 1000);
    for (const int n : AddressFields()) {
        const std::string_view marker = FieldMarker(n);
        const std::string label(marker.substr(0, marker.size() - 1));
        add(label + ", addr 2]", n);
        add(label + " - addr 2]", n);
    }
    return markers;
}

}  // namespace

std::vector<std::string> MarkersNobodyAsksFor(std::string_view text, const JobInHand& hand) {
    static const auto kMarkers = AllMarkers();
    std::vector<std::string> found;
    for (std::size_t at = text.find('['); at != text.npos; at = text.find('[', at + 1)) {
        const std::size_t end = text.find(']', at);
        if (end == text.npos) break;
        const auto marker = kMarkers.find(Lowered(text.substr(at, end + 1 - at)));
        if (marker == kMarkers.end() || FindRow(marker->second.field, hand)) continue;
        if (std::find(found.begin(), found.end(), marker->second.text) == found.end())
            found.push_back(marker->second.text);
    }
    return found;
}

}  // namespace quillmark
