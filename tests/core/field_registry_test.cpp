#include "core/field_registry.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

#include "core/job.h"

namespace quillmark {
namespace {

using testing::EndsWith;
using testing::StartsWith;

bool IsListed(int n) {
    return !FieldMarker(n).empty() && FieldMarker(n) != "[]";
}

TEST(FieldRegistry, MarkersNameOneFieldEach) {
    int listed = 0;
    for (int n = 1; n <= kFields; ++n) {
        if (!IsListed(n)) continue;
        ++listed;
        const std::string marker(FieldMarker(n));
        EXPECT_EQ(FieldOfMarker(marker), n) << marker;
        EXPECT_THAT(marker, testing::AllOf(StartsWith("["), EndsWith("]"))) << n;
        // Row labels take 24 columns, so that the star of a required field lines up.
        EXPECT_LE(marker.size(), 24u) << marker;
    }
    EXPECT_EQ(listed, 213);
}

TEST(FieldRegistry, NumbersWithoutAFieldAreSkippedByEveryLoop) {
    EXPECT_EQ(FieldMarker(172), "[]");
    EXPECT_EQ(FieldOfMarker("[]"), 0);
    EXPECT_EQ(FieldSortKey(172), 6172);
    for (const int n : {-1, 0, 214, 239, 241, 1001, 65535}) {
        EXPECT_EQ(FieldMarker(n), "") << n;
        EXPECT_EQ(FieldSortKey(n), 0) << n;
    }
    EXPECT_EQ(FieldMarker(240), "[FIELD]");
    EXPECT_EQ(FieldOfMarker("[Seller 1 Name]"), 0);
}

TEST(FieldRegistry, SortKeysPutLaterFieldsBesideTheirRelatives) {
    std::set<float> keys;
    for (int n = 1; n <= 213; ++n) keys.insert(FieldSortKey(n));
    EXPECT_EQ(keys.size(), 213u) << "two fields share a place";
    EXPECT_GT(FieldSortKey(26), FieldSortKey(27));
    EXPECT_LT(FieldSortKey(26), FieldSortKey(28));
    EXPECT_LT(FieldSortKey(204), FieldSortKey(54));
    EXPECT_LT(FieldSortKey(209), FieldSortKey(21));
}

TEST(FieldRegistry, EveryDescriptionBeginsWithOneBlank) {
    const Job job;
    const auto wellFormed = [&](int n) {
        const std::string text = FieldDescription(n, job);
        return text.size() > 1 && text[0] == ' ' && text[1] != ' ' && text.back() != ' ';
    };
    for (int n = 1; n <= kFields; ++n) EXPECT_EQ(wellFormed(n), IsListed(n)) << n << FieldDescription(n, job);
    for (const DerivedField& derived : DerivedFields())
        EXPECT_TRUE(wellFormed(derived.number)) << derived.number;
    EXPECT_EQ(FieldDescription(0, job), " user-defined field");
    EXPECT_EQ(FieldDescription(172, job), " ");
    EXPECT_EQ(FieldDescription(214, job), "");
    EXPECT_EQ(FieldDescription(1003, job), "");
}

TEST(FieldRegistry, EveryExampleIsWritten) {
    const Job job;
    int without = 0;
    for (int n = 1; n <= 213; ++n) {
        const std::string text = FieldDescription(n, job);
        without += text.find("(e.g.  ") == std::string::npos ? 1 : 0;
    }
    // The retired number, and the choice of tenancy, which is in the text.
    EXPECT_EQ(without, 2);
    EXPECT_EQ(FieldDescription(20, job),
              " Seller #1's authorized agent's official title (e.g.  Manager\\President)");
}

TEST(FieldRegistry, DerivedFieldsStandInTheOrderOfTheirParents) {
    int previous = 0;
    std::set<std::string_view> markers;
    for (const DerivedField& derived : DerivedFields()) {
        const int place = derived.number % 1000 * 10 + derived.number / 1000;
        EXPECT_GT(place, previous) << derived.number;
        previous = place;
        EXPECT_TRUE(IsListed(derived.number % 1000)) << derived.number;
        EXPECT_EQ(FieldOfMarker(derived.marker), 0) << derived.marker;
        EXPECT_EQ(DerivedMarker(derived.number), derived.marker);
        markers.insert(derived.marker);
    }
    EXPECT_EQ(markers.size(), 24u);
    EXPECT_EQ(DerivedMarker(1003), "");
}

TEST(FieldRegistry, AddressesHaveASecondLine) {
    for (const int n : AddressFields()) {
        std::string second(FieldMarker(n));
        const std::size_t one = second.rfind('1');
        ASSERT_NE(one, std::string::npos) << n;
        second[one] = '2';
        EXPECT_EQ(FieldMarker(n + 1), second) << n;
    }
    EXPECT_EQ(AddressFields().size(), 19u);
}

TEST(FieldDescriptions, SellersAttorneyAsksForTheJurisNumberInTheFirmsDefaults) {
    Job job;
    EXPECT_THAT(FieldDescription(3, job), StartsWith(" Full name of seller's attorney"));
    job.name = "DEFAULTS";
    EXPECT_THAT(
        FieldDescription(3, job),
        StartsWith(" Full name & juris# of seller's attorney, separated by forward-slash \"/\" (e.g.  "));
}

TEST(FieldDescriptions, SellersNameFollowsTheKindOfSeller) {
    Job job;
    job.SetOption(EstateTrust, true);
    EXPECT_THAT(FieldDescription(21, job), StartsWith(" Full name of fiduciary seller signing documents"));
    job.SetOption(Entity, true);
    EXPECT_EQ(FieldDescription(21, job), " Full name of seller entity (e.g.  ACME Properties LLC)");
}

TEST(FieldDescriptions, ArticleIsOfTheWillOnceADocumentAsksForTheDecedent) {
    Job job;
    EXPECT_THAT(FieldDescription(58, job), StartsWith(" Article number of Trust"));
    job.txtField(45).relevant = true;
    EXPECT_THAT(FieldDescription(58, job), StartsWith(" Article number in decedent's Will"));
    job.SetField(45, "");
    EXPECT_THAT(FieldDescription(58, job), StartsWith(" Article number of Trust"));
    job.txtField(45).relevant = false;
    job.SetField(45, "John J. Doe");
    EXPECT_THAT(FieldDescription(58, job), StartsWith(" Article number in decedent's Will"));
}

TEST(FieldDescriptions, CommissionNamesItsRealtor) {
    Job job;
    const std::string unnamed = FieldDescription(88, job);
    job.SetField(85, "Any Realty");
    EXPECT_EQ(FieldDescription(86, job), " Commission charged by Any Realty (e.g.  15000 or 6%), auto-fmt");
    EXPECT_EQ(FieldDescription(88, job), unnamed);
    job.SetField(87, "[realtor 2 name]");
    EXPECT_EQ(FieldDescription(88, job), unnamed);
}

}  // namespace
}  // namespace quillmark
