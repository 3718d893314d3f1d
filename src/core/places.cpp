#include "core/places.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "core/places_tables.h"
#include "core/text_conversions.h"

namespace quillmark {

namespace places {

namespace {

// clang-format off
constexpr PlaceRow kCounties[] = {
    // county        towns
    {"Fairfield",  "bethel, bridgeport, brookfield, danbury, darien, easton, fairfield, greenwich, monroe, "
                   "new canaan, new fairfield, newtown, norwalk, redding, ridgefield, shelton, sherman, "
                   "stamford, stratford, trumbull, weston, westport, wilton"},
    {"Hartford",   "avon, berlin, bloomfield, bristol, burlington, canton, east granby, east hartford, "
                   "east windsor, enfield, farmington, glastonbury, granby, hartford, hartland, manchester, "
                   "marlborough, new britain, newington, plainville, rocky hill, simsbury, southington, "
                   "south windsor, suffield, west hartford, wethersfield, windsor, windsor locks"},
    {"Litchfield", "barkhamsted, bethlehem, bridgewater, canaan, colebrook, cornwall, goshen, harwinton, "
                   "kent, litchfield, morris, new hartford, new milford, norfolk, north canaan, plymouth, "
                   "roxbury, salisbury, sharon, thomaston, torrington, warren, washington, watertown, "
                   "winchester, woodbury"},
    {"Middlesex",  "chester, clinton, cromwell, deep river, durham, east haddam, east hampton, essex, "
                   "haddam, killingworth, middlefield, middletown, old saybrook, portland, westbrook"},
    {"New Haven",  "ansonia, beacon falls, bethany, branford, cheshire, derby, east haven, guilford, "
                   "hamden, madison, meriden, middlebury, milford, naugatuck, new haven, north branford, "
                   "north haven, orange, oxford, prospect, seymour, southbury, wallingford, waterbury, "
                   "west haven, wolcott, woodbridge"},
    {"New London", "bozrah, colchester, east lyme, franklin, griswold, groton, lebanon, ledyard, lisbon, "
                   "lyme, montville, new london, north stonington, norwich, old lyme, preston, salem, "
                   "sprague, stonington, voluntown, waterford"},
    {"Tolland",    "andover, bolton, columbia, coventry, ellington, hebron, mansfield, somers, stafford, "
                   "tolland, union, vernon, willington"},
    {"Windham",    "ashford, brooklyn, canterbury, chaplin, eastford, hampton, killingly, plainfield, "
                   "pomfret, putnam, scotland, sterling, thompson, windham, woodstock"},
};

struct ScheduleRow {
    TaxSchedule schedule;
    std::string_view towns;
};
/// In the order in which they are tried; every other town pays semi-annually.
constexpr ScheduleRow kSchedules[] = {
    {TaxSchedule::Annual,              "berlin, bloomfield, bolton, warren, windsor"},
    {TaxSchedule::QuarterlyInArrears,  "meriden"},
    {TaxSchedule::SemiAnnualInArrears, "beacon falls, wallingford"},
    {TaxSchedule::Quarterly,           "andover, bethel, brooklyn, danbury, fairfield, killingly, "
                                       "ridgefield, salisbury, sharon, trumbull, westport"},
};

constexpr std::string_view kOctoberTowns = "beacon falls, meriden, wallingford";

constexpr std::string_view kTargetedTowns =
    "bloomfield, bridgeport, bristol, east hartford, hamden, hartford, meriden, middletown, new britain, "
    "new haven, new london, norwalk, norwich, southington, waterbury, west haven, windham";
// clang-format on

constexpr std::size_t kTowns = 169;

using Names = std::unordered_map<std::string_view, std::string_view>;

std::string Key(std::string_view name) {
    return Lowered(Trimmed(name));
}

bool Lists(std::string_view list, std::string_view key) {
    bool found = false;
    EachName(list, [&](std::string_view name) { found = found || name == key; });
    return found;
}

/// "New Britain" for "new britain".
std::string DisplayForm(std::string_view key) {
    std::string name(key);
    for (std::size_t i = 0; i < name.size(); ++i)
        if (i == 0 || name[i - 1] == ' ') name[i] = static_cast<char>(name[i] - 'a' + 'A');
    return name;
}

/// The look-up tables, built from the rows at first use. Keys are views of the rows.
struct Index {
    std::vector<std::string> townNames;
    Names counties;
    Names places;  // an ambiguous place has the empty town
    Names zipCodes;

    Index() {
        townNames.reserve(kTowns);
        counties.reserve(kTowns);
        places.reserve(1607);
        zipCodes.reserve(432);
        EachName(AmbiguousPlaces(),
                 [&](std::string_view place) { places.emplace(place, std::string_view{}); });
        for (const PlaceRow& county : kCounties)
            EachName(county.list, [&](std::string_view town) { AddTown(town, county.name); });
        Add(places, DistrictRows());
        Add(zipCodes, ZipRows());
    }

    /// A town whose name is ambiguous as a place stays so.
    void AddTown(std::string_view key, std::string_view county) {
        counties.emplace(key, county);
        townNames.push_back(DisplayForm(key));
        places.emplace(key, townNames.back());
    }

    static void Add(Names& names, std::span<const PlaceRow> rows) {
        for (const PlaceRow& row : rows)
            EachName(row.list, [&](std::string_view key) { names.emplace(key, row.name); });
    }
};

const Index& Tables() {
    static const Index index;
    return index;
}

std::string_view Find(const Names& names, std::string_view key) {
    const auto found = names.find(key);
    return found == names.end() ? std::string_view{} : found->second;
}

std::string_view TownOfLineZip(std::string_view line) {
    constexpr std::size_t kZipDigits = 5;
    line = RightTrimmed(line);
    if (line.size() > kZipDigits) line.remove_prefix(line.size() - kZipDigits);
    return TownOfZip(line);
}

std::string WithoutPossessive(std::string_view place) {
    std::string plain(place);
    for (std::size_t at = plain.find("'s "); at != std::string::npos; at = plain.find("'s ", at))
        plain.erase(at, 1);
    return plain;
}

}  // namespace

std::span<const PlaceRow> CountyRows() {
    return kCounties;
}

}  // namespace places

std::string_view CountyOfTown(std::string_view town) {
    return places::Find(places::Tables().counties, places::Key(town));
}

std::string_view TownOfPlace(std::string_view place, std::string_view propertyCityLine) {
    const places::Names& known = places::Tables().places;
    const auto found = known.find(places::Key(place));
    if (found != known.end())
        return found->second.empty() ? places::TownOfLineZip(propertyCityLine) : found->second;
    const std::string plain = places::WithoutPossessive(place);
    return plain == place ? std::string_view{} : TownOfPlace(plain, propertyCityLine);
}

std::string_view TownOfZip(std::string_view zip) {
    return places::Find(places::Tables().zipCodes, Trimmed(zip));
}

FiscalYear FiscalYearOf(std::string_view town) {
    return places::Lists(places::kOctoberTowns, places::Key(town)) ? FiscalYear::October : FiscalYear::July;
}

TaxSchedule TaxScheduleOf(std::string_view town) {
    const std::string key = places::Key(town);
    for (const places::ScheduleRow& row : places::kSchedules)
        if (places::Lists(row.towns, key)) return row.schedule;
    return TaxSchedule::SemiAnnual;
}

ConveyanceRate ConveyanceRateOf(std::string_view town) {
    const std::string key = places::Key(town);
    if (key == "stamford") return ConveyanceRate::Stamford;
    return places::Lists(places::kTargetedTowns, key) ? ConveyanceRate::Targeted : ConveyanceRate::Ordinary;
}

}  // namespace quillmark
