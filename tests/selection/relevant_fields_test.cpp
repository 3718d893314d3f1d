#include "selection/relevant_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "core/field_registry.h"
#include "platform/atomic_file.h"
#include "selection/document_table.h"
#include "selection/field_rows.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using std::chrono::month;

class RelevantFields : public ::testing::Test {
 protected:
    RelevantFields() { folders.CustomFormsFolder = scratch.path(); }

    void List(std::initializer_list<std::string> documents) {
        hand.List2.clear();
        for (const std::string& document : documents) hand.List2.push_back({document, false});
        Refresh();
    }
    void Refresh() { offered = RefreshFields(hand, firm); }

    std::set<int> Relevant() const {
        std::set<int> numbers;
        for (int n = 1; n <= kFields; ++n)
            if (hand.job.txtField(n).relevant) numbers.insert(n);
        return numbers;
    }
    void Set(int n, std::string_view value) {
        hand.job.SetField(n, value);
        DrawRow(*FindRow(n, hand), hand);
    }
    const GridRow* Row(int n) { return FindRow(n, hand); }
    std::vector<std::string> Headings() const {
        std::vector<std::string> labels;
        for (const GridRow& row : hand.grid)
            if (row.kind == RowKind::Heading) labels.push_back(row.label.substr(row.label.find(' ')));
        return labels;
    }
    void ExpectSortedRowsOnePerField() const {
        float last = -1;
        std::set<int> seen;
        for (const GridRow& row : hand.grid) {
            if (row.kind == RowKind::Heading) continue;
            const float key = std::stof(row.key);
            EXPECT_LE(last, key);
            last = key;
            if (row.kind == RowKind::Field) {
                EXPECT_TRUE(seen.insert(row.n).second) << row.n;
            }
        }
    }

    test::ScratchFolder scratch;
    Settings settings;
    Folders folders;
    FirmDefaults firmDefaults;
    FixedClock clock{std::chrono::year(2026) / 3 / 9};
    FirmContext firm{settings, folders, firmDefaults, clock};
    JobInHand hand;
    OptionSet offered;  ///< by the last refresh
};

TEST_F(RelevantFields, AnEmptyJobListNeedsNothing) {
    List({});
    EXPECT_TRUE(Relevant().empty());
    EXPECT_TRUE(hand.grid.empty());
    EXPECT_EQ(0, hand.total);
    EXPECT_EQ(0, hand.remaining);
    EXPECT_TRUE(std::none_of(hand.groups.begin(), hand.groups.end(),
                             [](const GridGroup& group) { return group.HasRows(); }));
}

TEST_F(RelevantFields, OptionsAddTheirFieldsAndOnlyThoseOffered) {
    List({"Deed / Warranty"});
    const std::set<int> one = Relevant();
    hand.job.SetOption(TwoSellers, true);
    hand.job.SetOption(TwoBuyers, true);
    Refresh();
    std::set<int> added;
    const std::set<int> two = Relevant();
    std::set_difference(two.begin(), two.end(), one.begin(), one.end(), std::inserter(added, added.end()));
    EXPECT_EQ((std::set<int>{28, 29, 30, 31, 64, 65, 66, 67, 92}), added);
    EXPECT_TRUE(offered.test(TwoBuyers));
    EXPECT_TRUE(IsExcluded(Entity, hand.job)) << "two sellers are persons";
    EXPECT_FALSE(offered.test(OnePayoff)) << "a deed knows no payoff";
}

TEST_F(RelevantFields, RowsStandByKeyUnderTheirGroupsWithAsterisksForWhatIsRequired) {
    List({"Deed / Warranty", "Schedule A"});
    ExpectSortedRowsOnePerField();
    EXPECT_EQ(1, hand.grid.front().n) << "the date stands above every group";
    EXPECT_EQ((std::vector<std::string>{" ATTORNEY", " SELLER/FIDUCIARY", " BUYER", " PROPERTY/TRANSACTION"}),
              Headings());
    EXPECT_EQ("[seller 1 name]         *", Row(21)->label);
    EXPECT_EQ("[seller 1 addr 2]", Row(24)->label);
    Set(21, "Anna Abbott");
    EXPECT_EQ("[seller 1 name]", Row(21)->label);
    EXPECT_EQ("Anna Abbott", Row(21)->value);
    hand.job.ClearField(21);
    DrawRow(*FindRow(21, hand), hand);
    EXPECT_EQ("[seller 1 name]         *", Row(21)->label);
    EXPECT_EQ("", Row(21)->value);
    EXPECT_EQ("[seller 1 name]", hand.job.D(21));
}

TEST_F(RelevantFields, FirmDefaultsFillSilentlyOrOfferTheFirst) {
    firmDefaults.Set("[seller lawfirm]", "Hale & Pike, LLC");
    firmDefaults.Set("[seller atty]", "Nora Hale/412345; Jon Pike/423456");
    List({"Contract / Danbury Bar"});
    EXPECT_EQ(nullptr, Row(2));
    EXPECT_EQ("Hale & Pike, LLC", hand.job.D(2));
    EXPECT_TRUE(hand.job.txtField(2).locked);
    ASSERT_NE(nullptr, Row(3));
    EXPECT_EQ("Nora Hale/412345", hand.job.txtField(3).text);
    EXPECT_EQ("[seller atty addr 1]", hand.job.D(4)) << "no default at all fills with the marker";
    EXPECT_EQ(nullptr, Row(4));
    const int total = hand.total;
    Refresh();
    EXPECT_EQ(total, hand.total);
    EXPECT_EQ("Hale & Pike, LLC", hand.job.D(2));
}

TEST_F(RelevantFields, TheDeedTellsTheFiduciarysCapacity) {
    hand.job.SetOption(EstateTrust, true);
    List({"Deed / Executor"});
    EXPECT_EQ("Executor", hand.job.D(209));
    EXPECT_EQ(0u, Relevant().count(209));
    List({"Closing Statement"});
    EXPECT_EQ(1u, Relevant().count(209)) << "without such a deed it is asked for";
}

TEST_F(RelevantFields, CondominiumChargesAreRequiredForACondominiumOnly) {
    List({"Closing Statement"});
    const int remaining = hand.remaining;
    EXPECT_EQ("[monthly common chg]", Row(175)->label);
    hand.job.SetOption(Condo, true);
    Refresh();
    EXPECT_EQ("[monthly common chg]    *", Row(175)->label);
    EXPECT_EQ(remaining + 1, hand.remaining);
    EXPECT_FALSE(offered.test(LandMultiFamily));
}

TEST_F(RelevantFields, ParkedDocumentsKeepTheirWayBack) {
    hand.ParkedDocuments[1] = {"Mortgage Payoff Notification"};
    List({"Deed / Warranty"});
    EXPECT_TRUE(offered.test(OnePayoff));
    EXPECT_TRUE(offered.test(TwoPayoffs));
    EXPECT_FALSE(offered.test(Commercial));
    hand.ParkedDocuments = {};
    hand.ParkedDocuments[0] = {"1099 Seller Certification"};
    List({"Schedule A"});
    EXPECT_TRUE(offered.test(EstateTrust)) << "the parked document made sense of it";
    EXPECT_FALSE(offered.test(Entity) || offered.test(Commercial) || offered.test(Condo))
        << "no document of this job does";
}

TEST_F(RelevantFields, CustomDocumentsBringTheirMarkers) {
    ReplaceFile(scratch / "Lot letter.inf",
                "\"[property address 1]\",70,0\r\n\"[LOT FEE]\",0,0\r\n\"[curr month]\",1,1\r\n");
    List({"[ Lot letter ]", "[ Lot letter ]"});
    EXPECT_EQ((std::set<int>{1, 70}), Relevant());
    ASSERT_EQ(RowKind::User, hand.grid.back().kind);
    EXPECT_EQ("[LOT FEE]", hand.grid.back().label);
    EXPECT_EQ(3, hand.total);
    hand.job.SetUserField("[LOT FEE]", "250");
    Refresh();
    EXPECT_EQ("250", hand.grid.back().value);
    EXPECT_THROW(List({"[ No such form ]"}), FileError);
}

TEST_F(RelevantFields, EditModeListsEveryValueAndTemplatesEveryField) {
    hand.mode = ScreenMode::Edit;
    hand.job.SetField(152, "Jane Roe");
    List({"Schedule A"});
    EXPECT_NE(nullptr, Row(152));
    EXPECT_NE(nullptr, Row(201));
    hand = JobInHand{};
    hand.mode = ScreenMode::Presets;
    Refresh();
    EXPECT_EQ(nullptr, Row(9));
    for (int n = 10; n < kFields; ++n) {
        const std::string_view marker = FieldMarker(n);
        if (marker.empty() || marker == "[]") continue;
        EXPECT_NE(nullptr, Row(n)) << n;
    }
}

TEST_F(RelevantFields, NoteCellsShowTheTagAndTheValueStandsWithoutIt) {
    List({"Closing Statement"});
    hand.job.SetField(170, "$4,812.50 - U");
    hand.job.SetField(171, "$300.00 - U");
    hand.job.SetField(100, "$90,000.00 = R");
    Refresh();
    for (const int n : {170, 171, 100})
        EXPECT_EQ("", Row(n)->value) << "a rebuild empties what is not locked";
    Set(170, "$4,812.50 - U");
    Set(171, "POC");
    Set(100, "$90,000.00 = R");
    EXPECT_EQ("$4,812.50", Row(170)->value);
    EXPECT_EQ((std::array<bool, 2>{false, true}), Row(170)->lit);
    EXPECT_EQ("unpaid", Row(170)->notes[1]);
    EXPECT_EQ((std::array<bool, 2>{false, false}), Row(171)->lit);
    EXPECT_EQ((std::array<std::string, 2>{"pay w-taxes", "credit buyer"}), Row(171)->notes);
    EXPECT_EQ((std::array<bool, 2>{true, true}), Row(100)->lit);
}

TEST_F(RelevantFields, AnyJobListAndOptionsKeepTheGridWhole) {
    std::mt19937 random(20260309);
    const auto table = DocumentTable();
    for (int round = 0; round < 300; ++round) {
        for (int option = 1; option <= kOptions; ++option) hand.job.SetOption(option, random() % 2);
        hand.List2.clear();
        for (auto i = random() % 5; i > 0; --i)
            hand.List2.push_back({std::string(table[random() % table.size()].document), false});
        Refresh();
        ExpectSortedRowsOnePerField();
        int rows = 0;
        for (const GridRow& row : hand.grid) rows += row.kind == RowKind::Field;
        EXPECT_EQ(static_cast<std::size_t>(rows), Relevant().size());
        EXPECT_EQ(rows, hand.total);
        EXPECT_LE(hand.remaining, hand.total);
    }
}

}  // namespace
}  // namespace quillmark
