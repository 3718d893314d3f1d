#pragma once

#include <span>
#include <string_view>

/// The lists behind places.h, one row per county or town so that a row can be read against its source. Names
/// in a list are separated by ", ".
namespace quillmark::places {

struct PlaceRow {
    std::string_view name;  ///< as shown: a county or a town
    std::string_view list;  ///< keys in lower case, or ZIP codes
};

/// Each county's towns.
std::span<const PlaceRow> CountyRows();
/// Each town's villages, districts, lakes, points and islands that no other town shares.
std::span<const PlaceRow> DistrictRows();
/// Names that occur in more than one town.
std::string_view AmbiguousPlaces();
/// Each town's ZIP codes; four towns have none.
std::span<const PlaceRow> ZipRows();

/// Calls `take` with every name of a list.
template <class Take>
void EachName(std::string_view list, Take take) {
    constexpr std::string_view kSeparator = ", ";
    while (!list.empty()) {
        const std::size_t end = list.find(kSeparator);
        take(list.substr(0, end));
        if (end == std::string_view::npos) return;
        list.remove_prefix(end + kSeparator.size());
    }
}

}  // namespace quillmark::places
