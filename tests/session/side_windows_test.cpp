#include "office_fixture.h"

#include "platform/file_lock.h"
#include "selection/field_rows.h"

namespace quillmark::test {
namespace {

class SideWindows : public OfficeTest {
 protected:
    /// A job whose grid has the field, named and on the screen.
    void MakeJobWith(std::string_view document, const std::vector<std::pair<int, const char*>>& values) {
        screen->TypeName("Abbott - 14 Orchard Lane");
        screen->EnterName();
        screen->PickDocument(document);
        for (const auto& [n, text] : values) screen->EnterField(n, text, EntryWay::Type);
    }
    void MakeJobWithServicer() {
        MakeJobWith("Mortgage Payoff Transmittal",
                    {{95, "Elm Savings"}, {96, "1 Elm St"}, {98, "Avon, CT 06001"}});
    }
    int RowOf(int n) const {
        for (std::size_t row = 0; row < State().grid.size(); ++row)
            if (State().grid[row].kind == RowKind::Field && State().grid[row].n == n)
                return static_cast<int>(row);
        ADD_FAILURE() << "no row of field " << n;
        return 0;
    }
    std::string Servicers() const { return ReadBytes(scratch / "data/Servicers.lst"); }

    static constexpr const char* kElm = "Elm Savings _ 1 Elm St _  _ Avon, CT 06001";
};

TEST_F(SideWindows, ASaveFeedsTheAddressBooksOnce) {
    Start();
    MakeJobWithServicer();
    screen->Click("cmdOpen");
    EXPECT_EQ(Servicers(), std::string(kElm) + "\r\n");
    screen->EnterField(96, "2 Elm St", EntryWay::Type);
    screen->Click("cmdOpen");
    screen->EnterField(96, "1 Elm St", EntryWay::Type);
    screen->Click("cmdOpen");
    EXPECT_EQ(Servicers(), std::string(kElm) + "\r\nElm Savings _ 2 Elm St _  _ Avon, CT 06001\r\n");
}

TEST_F(SideWindows, WhatKeepsAddressesOutOfTheBooksDoesNotKeepTheJobFromBeingSaved) {
    std::vector<std::string> told;
    waitForFiles = [&](const FileInUse& use) {
        told.push_back(DescriptionOf(use.holder));
        return told.size() < 3;
    };
    Start();
    MakeJobWithServicer();
    {
        const AddressBookLock other(scratch / "data", clock);
        screen->Click("cmdOpen");
        ASSERT_EQ(told.size(), 3u);
        EXPECT_TRUE(told[0].starts_with("In use by ") && told[0].ends_with("since 2026-03-09 12:00:00"))
            << told[0];
        EXPECT_NE(LastBox().find(told[0]), std::string::npos) << LastBox();
        EXPECT_THROW(screen->OpenAddresses(AddressBook::Servicers), FileError);
        EXPECT_EQ(screen->Addresses(), nullptr);
    }
    EXPECT_TRUE(std::filesystem::exists(JobFile("Abbott - 14 Orchard Lane")));
    EXPECT_FALSE(State().cmdOpen.enabled);
    EXPECT_FALSE(std::filesystem::exists(scratch / "data/Servicers.lst"));

    screen->EnterField(95, "Elm _ Oak", EntryWay::Type);
    screen->Click("cmdOpen");
    EXPECT_NE(LastBox().find("\"Elm _ Oak\""), std::string::npos) << LastBox();
    EXPECT_NE(ReadBytes(JobFile("Abbott - 14 Orchard Lane")).find("Elm _ Oak"), std::string::npos);
}

TEST_F(SideWindows, TheAddressEditorOpensFromMainScreenAndJobBrowserOnly) {
    Start();
    screen->OpenBrowser(false);
    AddressEditor& editor = screen->OpenAddresses(AddressBook::Servicers);
    for (const auto& [box, text] : {std::pair(0, "Elm Savings"), {1, "1 Elm St"}, {3, "Avon, CT 06001"}})
        editor.SetBox(static_cast<std::size_t>(box), text);
    EXPECT_TRUE(editor.Add());
    screen->CloseAddresses();
    EXPECT_TRUE(screen->BrowserOpen());
    EXPECT_EQ(Servicers(), std::string(kElm) + "\r\n");
    screen->CloseBrowser();
    screen->Click("cmdTemplate");
    EXPECT_THROW(screen->OpenAddresses(AddressBook::Attorneys), NotAllowed);
    screen->Click("cmdReset");
    screen->TypeName("defaults");
    screen->EnterName();
    EXPECT_THROW(screen->OpenCalculator(), NotAllowed);
}

TEST_F(SideWindows, AnAmountHandedOverIsACreditInTheCurrentRow) {
    Start();
    MakeJobWith("Closing Statement", {});
    screen->ClickGrid(RowOf(193), 1);
    ASSERT_TRUE(screen->Editor().IsOpen());
    const std::size_t boxes = dialogs.Shown().size();
    ProrationCalculator& calculator = screen->OpenCalculator();
    EXPECT_FALSE(screen->Editor().IsOpen());
    calculator.SetGross({"3650", 4, 0});
    screen->HandOver(CreditTo::Buyer);
    EXPECT_EQ(screen->Calculator(), nullptr);
    EXPECT_EQ(State().job.D(193), "$2,510.00 = U");
    EXPECT_EQ(State().currentRow, RowOf(193));
    EXPECT_EQ(screen->Editor().focus, ScreenFocus::Grid);
    EXPECT_EQ(State().grid[static_cast<std::size_t>(RowOf(193))].lit, (std::array{false, true}));
    EXPECT_TRUE(State().cmdOpen.enabled);
    EXPECT_EQ(State().cmdOpen.caption, "SAVE");

    screen->OpenCalculator().SetGross({"3650", 4, 0});
    screen->HandOver(CreditTo::Seller);
    EXPECT_EQ(State().job.D(193), "$1,140.00 = P");
    EXPECT_EQ(dialogs.Shown().size(), boxes) << "nothing is asked";

    screen->OpenCalculator();
    Answer({"No"});
    screen->Click("cmdReset");
    EXPECT_EQ(screen->Calculator(), nullptr);
}

TEST_F(SideWindows, AnAmountIsHandedOverToNoRowThatTakesNoEntry) {
    Start();
    screen->OpenCalculator().SetGross({"3650", 4, 0});
    EXPECT_THROW(screen->HandOver(CreditTo::Buyer), NotAllowed);
    MakeJobWith("Closing Statement", {{193, "55"}});
    screen->ClickGrid(RowOf(21), 1);
    screen->OpenCalculator().SetGross({"3650", 4, 0});
    EXPECT_THROW(screen->HandOver(CreditTo::Buyer), NotAllowed) << "the seller's name is no amount";
    EXPECT_EQ(screen->State().job.IsFilled(21), false);
    screen->Click("cmdOpen");
    screen->Click("cmdReset");
    screen->LoadJob("Abbott - 14 Orchard Lane", false);
    screen->Click("cmdOpen");
    ASSERT_TRUE(State().grid[static_cast<std::size_t>(RowOf(193))].locked);
    screen->ClickGrid(RowOf(193), 1);
    screen->OpenCalculator().SetGross({"3650", 4, 0});
    EXPECT_THROW(screen->HandOver(CreditTo::Buyer), NotAllowed);
    EXPECT_NE(screen->Calculator(), nullptr);
    EXPECT_TRUE(State().job.D(193).starts_with("$55.00"));
}

}  // namespace
}  // namespace quillmark::test
