#include "core/places.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "core/places_tables.h"
#include "core/text_conversions.h"

namespace quillmark {
namespace {

std::vector<std::string> Names(std::string_view list) {
    std::vector<std::string> names;
    places::EachName(list, [&](std::string_view name) { names.emplace_back(name); });
    return names;
}

std::vector<std::string> TownKeys() {
    std::vector<std::string> towns;
    for (const auto& county : places::CountyRows())
        for (auto& town : Names(county.list)) towns.push_back(std::move(town));
    return towns;
}

TEST(PlaceTables, CountsAreComplete) {
    const auto towns = TownKeys();
    EXPECT_EQ(towns.size(), 169u);
    EXPECT_EQ(places::CountyRows().size(), 8u);
    EXPECT_EQ(Names(places::AmbiguousPlaces()).size(), 78u);

    std::multiset<std::string> keys;
    for (const auto& name : Names(places::AmbiguousPlaces())) keys.insert(name);
    for (const auto& row : places::DistrictRows())
        for (const auto& name : Names(row.list)) keys.insert(name);
    for (const auto& town : towns)
        if (keys.count(town) == 0) keys.insert(town);
    EXPECT_EQ(keys.size(), 1607u);
    for (const auto& key : keys) EXPECT_EQ(keys.count(key), 1u) << key;

    std::set<std::string> zips;
    std::size_t listed = 0;
    for (const auto& row : places::ZipRows())
        for (const auto& zip : Names(row.list)) {
            zips.insert(zip);
            ++listed;
            EXPECT_TRUE(zip.size() == 5 && zip.starts_with("06")) << zip;
        }
    EXPECT_EQ(zips.size(), 432u);
    EXPECT_EQ(listed, 432u);
}

TEST(PlaceTables, EveryRowNamesATownThatKeepsItsCountyAndName) {
    std::set<std::string> shown;
    for (const auto& key : TownKeys()) {
        EXPECT_NE(CountyOfTown(key), "") << key;
        shown.insert(key);
    }
    EXPECT_EQ(shown.size(), 169u);
    for (const auto rows : {places::DistrictRows(), places::ZipRows()})
        for (const auto& row : rows) EXPECT_EQ(shown.count(Lowered(row.name)), 1u) << row.name;
    for (const auto& row : places::DistrictRows())
        for (const auto& place : Names(row.list)) EXPECT_EQ(TownOfPlace(place, ""), row.name) << place;
    for (const auto& row : places::ZipRows())
        for (const auto& zip : Names(row.list)) EXPECT_EQ(TownOfZip(zip), row.name) << zip;
}

TEST(Places, EveryTownIsFoundUnderItsOwnName) {
    for (const auto& key : TownKeys()) {
        if (key == "goshen" || key == "roxbury") continue;
        const std::string town(TownOfPlace("  " + key + " ", ""));
        EXPECT_EQ(Lowered(town), key);
        EXPECT_NE(town, key) << "shown with capitals";
        EXPECT_EQ(TownOfPlace(town, ""), town);
    }
}

TEST(Places, CaseAndSurroundingBlanksDoNotMatter) {
    EXPECT_EQ(TownOfPlace("  NEW britain ", ""), "New Britain");
    EXPECT_EQ(CountyOfTown(" New Britain  "), "Hartford");
    EXPECT_EQ(TownOfPlace("Ashford Lake", ""), "Ashford");
    EXPECT_EQ(TownOfPlace("Storrs", ""), "Mansfield");
    EXPECT_EQ(TownOfPlace("Point O'Woods", ""), "Old Lyme");
    EXPECT_EQ(CountyOfTown("Storrs"), "") << "a village is no town";
    EXPECT_EQ(CountyOfTown(""), "");
    EXPECT_EQ(TownOfPlace("", "Goshen, CT 06756"), "");
}

TEST(Places, TheZipCodeOfThePropertySettlesAnAmbiguousName) {
    EXPECT_EQ(TownOfPlace("Goshen", "Goshen, CT 06756"), "Goshen");
    EXPECT_EQ(TownOfPlace("Goshen", "Goshen, CT 06249  "), "Lebanon");
    EXPECT_EQ(TownOfPlace("Mystic", "Mystic, CT 06355"), "") << "a code that no town has";
    EXPECT_EQ(TownOfPlace("Mystic", "Mystic, CT 06378-1234"), "") << "nine-digit codes end in four digits";
    EXPECT_EQ(TownOfPlace("Mystic", "[property cy,st zip]"), "");
    EXPECT_EQ(TownOfPlace("Mystic", "0637"), "");
    EXPECT_EQ(TownOfPlace("Toby's Rock Mountain", "Beacon Falls, CT 06403"), "Beacon Falls");
}

TEST(Places, APossessiveFindsTheNameWithoutApostrophe) {
    EXPECT_EQ(TownOfPlace("Bishop's Corner", ""), "West Hartford");
    EXPECT_EQ(TownOfPlace("BISHOP'S CORNER", ""), "") << "the apostrophe is looked for with a small s";
    EXPECT_EQ(TownOfPlace("Bishop's", ""), "");
    EXPECT_EQ(TownOfPlace("Nowhere's Corner", ""), "");
}

TEST(Places, FourTownsHaveNoZipCode) {
    std::set<std::string_view> towns;
    for (int code = 0; code < 100000; ++code) {
        const std::string zip = std::string(code < 10000 ? "0" : "") + std::to_string(code);
        towns.insert(TownOfZip(zip));
    }
    EXPECT_EQ(towns.size(), 166u) << "165 towns and the empty text";
    for (const auto town : {"Griswold", "Lisbon", "Union", "Warren"})
        EXPECT_EQ(towns.count(town), 0u) << town;
    EXPECT_EQ(TownOfZip(" 06030 "), "Farmington");
    EXPECT_EQ(TownOfZip("6030"), "");
    EXPECT_EQ(TownOfZip("06161"), "Hartford");
    EXPECT_EQ(TownOfZip("06493"), "Wallingford");
}

TEST(Places, AnyTextIsSafe) {
    std::mt19937 random(12494);
    const std::string letters =
        "ab's ,.\xC3\xA9\r'\0Z"
        "0";
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (std::size_t n = random() % 12; n > 0; --n) text += letters[random() % letters.size()];
        EXPECT_EQ(TownOfPlace(text, text), "") << text;
        EXPECT_EQ(TaxScheduleOf(text), TaxSchedule::SemiAnnual) << text;
    }
}

TEST(TaxClasses, MatchTheTownsTheyAreListedFor) {
    std::map<TaxSchedule, int> schedules;
    std::map<ConveyanceRate, int> rates;
    int october = 0;
    for (const auto& town : TownKeys()) {
        ++schedules[TaxScheduleOf(town)];
        ++rates[ConveyanceRateOf(town)];
        october += FiscalYearOf(town) == FiscalYear::October ? 1 : 0;
    }
    // A misspelled town in a list would be missing here.
    EXPECT_EQ(schedules[TaxSchedule::Annual], 5);
    EXPECT_EQ(schedules[TaxSchedule::Quarterly], 11);
    EXPECT_EQ(schedules[TaxSchedule::QuarterlyInArrears], 1);
    EXPECT_EQ(schedules[TaxSchedule::SemiAnnualInArrears], 2);
    EXPECT_EQ(rates[ConveyanceRate::Targeted], 17);
    EXPECT_EQ(rates[ConveyanceRate::Stamford], 1);
    EXPECT_EQ(october, 3);
}

TEST(TaxClasses, DisplayFormsAndUnknownNames) {
    EXPECT_EQ(TaxScheduleOf(" Beacon Falls "), TaxSchedule::SemiAnnualInArrears);
    EXPECT_EQ(TaxScheduleOf("Meriden"), TaxSchedule::QuarterlyInArrears);
    EXPECT_EQ(FiscalYearOf("WALLINGFORD"), FiscalYear::October);
    EXPECT_EQ(ConveyanceRateOf("Windham"), ConveyanceRate::Targeted);
    EXPECT_EQ(ConveyanceRateOf("Windsor"), ConveyanceRate::Ordinary);
    EXPECT_EQ(ConveyanceRateOf("Stamford"), ConveyanceRate::Stamford);
    for (const auto name : {"", "Nowhere", "hartford, windham", "haven"}) {
        EXPECT_EQ(TaxScheduleOf(name), TaxSchedule::SemiAnnual) << name;
        EXPECT_EQ(FiscalYearOf(name), FiscalYear::July) << name;
        EXPECT_EQ(ConveyanceRateOf(name), ConveyanceRate::Ordinary) << name;
    }
}

}  // namespace
}  // namespace quillmark
