#include "session/blanks.h"

#include <gmock/gmock.h>

#include "session/office_fixture.h"
#include "session/preview_command.h"

namespace quillmark {
namespace {

using test::OfficeTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class BlanksTest : public OfficeTest {
 protected:
    BlanksTest() { Start(); }
    const Blank* Find(int n) {
        list = OpenNow(*screen).blanks;
        const auto found = std::ranges::find(list, n, &Blank::n);
        return found == list.end() ? nullptr : &*found;
    }
    std::vector<Blank> list;
};

TEST_F(BlanksTest, TellWhatIsOpenAndWhere) {
    EXPECT_THAT(OpenNow(*screen).blanks, IsEmpty());
    MakeSmallJob("Abbott");
    EXPECT_EQ(Find(21), nullptr) << "the seller's name is there";
    EXPECT_EQ(Find(1), nullptr) << "CREATE dates the documents";
    ASSERT_NE(Find(59), nullptr);
    EXPECT_EQ(Find(59)->marker, "[buyer 1 name]");
    EXPECT_TRUE(Find(59)->required);
    EXPECT_THAT(Find(59)->documents, ElementsAre("Deed / Warranty"));
    ASSERT_NE(Find(24), nullptr);
    EXPECT_FALSE(Find(24)->required);
    screen->EnterField(59, "Priya Castellan", EntryWay::Type);
    EXPECT_EQ(Find(59), nullptr);
}

TEST_F(BlanksTest, StandInGridOrderMarkersWithoutARowLast) {
    screen->TypeName("Abbott");
    screen->EnterName();
    for (const char* document : {"Deed / Warranty", "Closing Statement", "Schedule A"})
        screen->PickDocument(document);
    std::vector<int> rows;
    for (const GridRow& row : State().grid) rows.push_back(row.n);
    list = OpenNow(*screen).blanks;
    auto at = rows.begin();
    bool rowsAreOver = false;
    for (const Blank& blank : list) {
        EXPECT_THAT(blank.documents, Not(IsEmpty())) << blank.marker;
        rowsAreOver |= !blank.hasRow;
        if (rowsAreOver) {
            EXPECT_FALSE(blank.hasRow);
            continue;
        }
        at = std::find(at, rows.end(), blank.n);
        EXPECT_NE(at, rows.end()) << blank.marker;
    }
}

TEST_F(BlanksTest, TellWhichDocumentsHaveHolesAndWhatWillBeAsked) {
    screen->TypeName("Abbott");
    screen->EnterName();
    screen->ListDocuments({"Notice Of Lease", "Closing Statement / Tax Exempt"});
    const OpenList open = OpenNow(*screen);
    EXPECT_THAT(open.withHoles, ElementsAre("Closing Statement / Tax Exempt"));
    EXPECT_THAT(open.withoutText, ElementsAre("Notice Of Lease"));
    EXPECT_THAT(open.failures, IsEmpty());
    EXPECT_GT(open.Required(), 0u);
    EXPECT_TRUE(dialogs.TakeShown().empty()) << "nobody was asked";
}

TEST_F(BlanksTest, WhatIsOpenBeforeARunIsWhatItSaysBehindIt) {
    std::filesystem::remove(scratch / "defaults.fld");
    Start();
    MakeSmallJob("Abbott");
    std::vector<std::string> nobodys;
    for (const Blank& blank : OpenNow(*screen).blanks)
        if (!blank.hasRow) nobodys.push_back(blank.marker);
    EXPECT_THAT(nobodys, ElementsAre("[seller atty]"));
    Answer({"Yes"});
    screen->Click("cmdCreate");
    ASSERT_TRUE(screen->LastRun().Made());
    EXPECT_EQ(screen->LastRun().Made()->holes, nobodys);
    EXPECT_TRUE(screen->LastRun().Made()->jobSaved);
}

}  // namespace
}  // namespace quillmark
