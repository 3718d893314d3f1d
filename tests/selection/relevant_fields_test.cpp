#include "selection/relevant_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "core/field_registry.h"
#include "platform/atomic_file.h"
#include "selection/document_table.h"
#include "selection/field_listing.h"
#include "selection/field_rows.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using std::chrono::month;

class RelevantFields : public ::testing::Test {
 protected:
    RelevantFields() { folders.CustomFormsFolder = scratch.path(); }

    void List(std::initializer_list<std::string> documents) {
        screen.List2.clear();
        for (const std::string& document : documents) screen.List2.push_back({document, false});
        Refresh();
    }
    void Refresh() { RefreshFields(screen, office); }

    std::set<int> Relevant() const {
        std::set<int> numbers;
        for (int n = 1; n <= kFields; ++n)
            if (screen.job.txtField(n).relevant) numbers.insert(n);
        return numbers;
    }
    const GridRow* Row(int n) { return FindRow(n, screen); }
    std::vector<std::string> Headings() const {
        std::vector<std::string> labels;
        for (const GridRow& row : screen.grid)
            if (row.kind == RowKind::Heading) labels.push_back(row.label.substr(row.label.find(' ')));
        return labels;
    }
    void ExpectSortedRowsOnePerField() const {
        float last = -1;
        std::set<int> seen;
        for (const GridRow& row : screen.grid) {
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
    ScriptedDialogs dialogs{{}, ScriptedDialogs::WhenUnanswered::Fail};
    Office office{settings, folders, firmDefaults, clock, dialogs};
    SelectionState screen;
};

TEST_F(RelevantFields, AnEmptyJobListNeedsNothing) {
    List({});
    EXPECT_TRUE(Relevant().empty());
    EXPECT_TRUE(screen.grid.empty());
    EXPECT_EQ(0, screen.total);
    EXPECT_EQ(0, screen.remaining);
    EXPECT_TRUE(std::none_of(screen.lblJump.begin(), screen.lblJump.end(),
                             [](const JumpLabel& label) { return label.enabled; }));
}

TEST_F(RelevantFields, OptionsAddTheirFieldsAndOnlyThoseOffered) {
    List({"Deed / Warranty"});
    const std::set<int> one = Relevant();
    screen.job.SetOption(TwoSellers, true);
    screen.job.SetOption(TwoBuyers, true);
    Refresh();
    std::set<int> added;
    const std::set<int> two = Relevant();
    std::set_difference(two.begin(), two.end(), one.begin(), one.end(), std::inserter(added, added.end()));
    EXPECT_EQ((std::set<int>{28, 29, 30, 31, 64, 65, 66, 67, 92}), added);
    EXPECT_TRUE(screen.options[TwoBuyers].enabled);
    EXPECT_FALSE(screen.options[Entity].enabled) << "two sellers are persons";
    EXPECT_FALSE(screen.options[OnePayoff].enabled) << "a deed knows no payoff";
}

TEST_F(RelevantFields, RowsStandByKeyUnderTheirGroupsWithAsterisksForWhatIsRequired) {
    List({"Deed / Warranty", "Schedule A"});
    ExpectSortedRowsOnePerField();
    EXPECT_EQ(1, screen.grid.front().n) << "the date stands above every group";
    EXPECT_EQ((std::vector<std::string>{" ATTORNEY", " SELLER/FIDUCIARY", " BUYER", " PROPERTY/TRANSACTION"}),
              Headings());
    EXPECT_EQ("[seller 1 name]         *", Row(21)->label);
    EXPECT_EQ("[seller 1 addr 2]", Row(24)->label);
    UpdateListing(21, "Anna Abbott", screen, office);
    EXPECT_EQ("[seller 1 name]", Row(21)->label);
    EXPECT_EQ("Anna Abbott", Row(21)->value);
    UpdateListing(21, "", screen, office);
    EXPECT_EQ("[seller 1 name]         *", Row(21)->label);
    EXPECT_EQ("", Row(21)->value);
    EXPECT_EQ("[seller 1 name]", screen.job.D(21));
}

TEST_F(RelevantFields, FirmDefaultsFillSilentlyOrOfferTheFirst) {
    firmDefaults.Set("[seller lawfirm]", "Hale & Pike, LLC");
    firmDefaults.Set("[seller atty]", "Nora Hale/412345; Jon Pike/423456");
    List({"Contract / Danbury Bar"});
    EXPECT_EQ(nullptr, Row(2));
    EXPECT_EQ("Hale & Pike, LLC", screen.job.D(2));
    EXPECT_TRUE(screen.job.txtField(2).locked);
    ASSERT_NE(nullptr, Row(3));
    EXPECT_EQ("Nora Hale/412345", screen.job.txtField(3).text);
    EXPECT_EQ("[seller atty addr 1]", screen.job.D(4)) << "no default at all fills with the marker";
    EXPECT_EQ(nullptr, Row(4));
    const int total = screen.total;
    Refresh();
    EXPECT_EQ(total, screen.total);
    EXPECT_EQ("Hale & Pike, LLC", screen.job.D(2));
}

TEST_F(RelevantFields, TheDeedTellsTheFiduciarysCapacity) {
    screen.job.SetOption(EstateTrust, true);
    List({"Deed / Executor"});
    EXPECT_EQ("Executor", screen.job.D(209));
    EXPECT_EQ(0u, Relevant().count(209));
    List({"Closing Statement"});
    EXPECT_EQ(1u, Relevant().count(209)) << "without such a deed it is asked for";
}

TEST_F(RelevantFields, CondominiumChargesAreRequiredForACondominiumOnly) {
    List({"Closing Statement"});
    const int remaining = screen.remaining;
    EXPECT_EQ("[monthly common chg]", Row(175)->label);
    screen.job.SetOption(Condo, true);
    Refresh();
    EXPECT_EQ("[monthly common chg]    *", Row(175)->label);
    EXPECT_EQ(remaining + 1, screen.remaining);
    EXPECT_FALSE(screen.options[LandMultiFamily].enabled);
}

TEST_F(RelevantFields, ParkedDocumentsKeepTheirWayBack) {
    screen.ParkedDocuments[1] = {"Mortgage Payoff Notification"};
    List({"Deed / Warranty"});
    EXPECT_TRUE(screen.options[OnePayoff].enabled);
    EXPECT_TRUE(screen.options[TwoPayoffs].enabled);
    EXPECT_FALSE(screen.options[Commercial].enabled);
}

TEST_F(RelevantFields, CustomDocumentsBringTheirMarkers) {
    ReplaceFile(scratch / "Lot letter.inf",
                "\"[property address 1]\",70,0\r\n\"[LOT FEE]\",0,0\r\n\"[curr month]\",1,1\r\n");
    List({"[ Lot letter ]", "[ Lot letter ]"});
    EXPECT_EQ((std::set<int>{1, 70}), Relevant());
    ASSERT_EQ(RowKind::User, screen.grid.back().kind);
    EXPECT_EQ("[LOT FEE]", screen.grid.back().label);
    EXPECT_EQ(3, screen.total);
    screen.currentRow = static_cast<int>(screen.grid.size()) - 1;
    UpdateListing(0, "250", screen, office);
    EXPECT_EQ("250", screen.grid.back().value);
    EXPECT_EQ("250", screen.job.UserField("[LOT FEE]"));
    EXPECT_THROW(List({"[ No such form ]"}), FileError);
}

TEST_F(RelevantFields, EditModeListsEveryValueAndTemplatesEveryField) {
    screen.ScreenMode = screen_mode::kEdit;
    screen.job.SetField(152, "Jane Roe");
    List({"Schedule A"});
    EXPECT_NE(nullptr, Row(152));
    EXPECT_NE(nullptr, Row(201));
    screen = SelectionState{};
    screen.ScreenMode = screen_mode::kPresets;
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
    screen.job.SetField(170, "$4,812.50 - U");
    screen.job.SetField(171, "$300.00 - U");
    screen.job.SetField(100, "$90,000.00 = R");
    Refresh();
    for (const int n : {170, 171, 100})
        EXPECT_EQ("", Row(n)->value) << "a rebuild empties what is not locked";
    UpdateListing(170, "$4,812.50 - U", screen, office);
    UpdateListing(171, "POC", screen, office);
    UpdateListing(100, "$90,000.00 = R", screen, office);
    EXPECT_EQ("$4,812.50", Row(170)->value);
    EXPECT_EQ((std::array<bool, 2>{false, true}), Row(170)->lit);
    EXPECT_EQ("unpaid", Row(170)->notes[1]);
    EXPECT_EQ((std::array<bool, 2>{false, false}), Row(171)->lit);
    EXPECT_EQ((std::array<bool, 2>{true, true}), Row(100)->lit);
}

TEST_F(RelevantFields, AnyJobListAndOptionsKeepTheGridWhole) {
    std::mt19937 random(20260309);
    const auto table = DocumentTable();
    for (int round = 0; round < 300; ++round) {
        for (int option = 1; option <= kOptions; ++option) screen.job.SetOption(option, random() % 2);
        screen.List2.clear();
        for (auto i = random() % 5; i > 0; --i)
            screen.List2.push_back({std::string(table[random() % table.size()].document), false});
        Refresh();
        ExpectSortedRowsOnePerField();
        int rows = 0;
        for (const GridRow& row : screen.grid) rows += row.kind == RowKind::Field;
        EXPECT_EQ(static_cast<std::size_t>(rows), Relevant().size());
        EXPECT_EQ(rows, screen.total);
        EXPECT_LE(screen.remaining, screen.total);
    }
}

}  // namespace
}  // namespace quillmark
