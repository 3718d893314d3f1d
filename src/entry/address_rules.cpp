#include "entry/address_rules.h"

#include "core/fields.h"
#include "core/places.h"
#include "core/text_conversions.h"
#include "entry/rule_helpers.h"

namespace quillmark::rules {

namespace {

/// What stands before the first comma: only the comma tells a place from the rest of the line.
std::string PlaceOf(std::string_view line) {
    const std::string_view text = LeftTrimmed(line);
    const auto comma = text.find(',');
    return comma == text.npos ? std::string{} : std::string(text.substr(0, comma));
}

std::string TownOf(const Job& job, const std::string& place) {
    return place.empty() ? std::string{}
                         : std::string(TownOfPlace(place, job.D(field::PropertyCityStateZip)));
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string result;
    for (auto at = text.find(what); at != text.npos; at = text.find(what)) {
        result.append(text.substr(0, at)).append(with);
        text.remove_prefix(at + what.size());
    }
    return result.append(text);
}

std::string OneLine(const Job& job, int first) {
    if (job.IsFilled(first + 1)) return job.D(first) + ", " + job.D(first + 1);
    if (job.IsFilled(first)) return job.D(first);
    std::string marker(FieldMarker(first));
    marker.pop_back();
    return marker + ", addr 2]";
}

}  // namespace

void AddressPair(Job& job, int first) {
    const std::string line = OneLine(job, first);
    const auto comma = line.find(',');
    job.SetDerived(1, first, line);
    job.SetDerived(2, first,
                   comma == line.npos ? line : line.substr(0, comma) + " -" + line.substr(comma + 1));
}

void AttorneyCity(Job& job, int n) {
    SetPart(job, 1, n, TownOf(job, PlaceOf(job.D(n))),
            n == field::SellerAttyCityStateZip ? "[seller atty city]" : "[buyer atty city]");
}

void PropertyCity(Job& job, int n) {
    const std::string_view line = LeftTrimmed(job.D(n));
    const std::string place = PlaceOf(line);
    const std::string town = TownOf(job, place);
    const std::string municipal = town.empty() ? std::string{} : ReplaceAll(line, place, town);
    SetPart(job, 1, n, town, "[property city]");
    SetPart(job, 2, n, CountyOfTown(town), "[property county]");
    SetPart(job, 3, n, place, "[property village]");
    SetPart(job, 4, n, municipal, "[prop municipal csz]");
    // The property's ZIP code settles ambiguous names of the attorneys' places too.
    AttorneyCity(job, field::SellerAttyCityStateZip);
    AttorneyCity(job, field::BuyerAttyCityStateZip);
}

void TownOfExecution(Job& job, int n) {
    SetPart(job, 1, n, CountyOfTown(job.D(n)), "[county of execution]");
}

void Telephone(Job& job, int n) {
    Reshape(job, n, TelephoneForm(job.D(n)));
}

}  // namespace quillmark::rules
