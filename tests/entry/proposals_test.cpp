#include "entry/proposals.h"

#include <gtest/gtest.h>

#include "core/field_registry.h"
#include "desk.h"
#include "entry/capacity_detail.h"

namespace quillmark {
namespace {

using std::chrono::year;

class Proposals : public test::Desk {
 protected:
    OpenedEditor Open(int n) {
        hand.job.txtField(n).relevant = true;
        RebuildRows(hand);
        return OpenEditor(Row(n), hand, firm);
    }
    void TwoSellers() {
        hand.job.SetField(21, "Anna Abbott");
        hand.job.SetField(23, "1 Oak Street");
        hand.job.SetField(25, "Milford, CT 06460");
        hand.job.SetField(28, "Ben Abbott");
        hand.job.SetField(29, "9 Elm Street");
    }
};

TEST_F(Proposals, AnUnfilledFieldRepeatsAnEarlierOne) {
    EXPECT_EQ(Open(29).text, "");
    hand.job.SetField(23, "1 Oak Street");
    EXPECT_EQ(Open(29).text, "1 Oak Street");
    EXPECT_EQ(Open(70).text, "1 Oak Street");
    hand.job.SetField(29, "9 Elm Street");
    EXPECT_EQ(Open(29).text, "9 Elm Street");
    hand.job.SetField(6, "Milford, CT 06460");
    EXPECT_EQ(Open(187).text, "Milford");
    hand.job.SetField(113, "Shore Savings Bank");
    EXPECT_EQ(Open(122).text, "Shore Savings Bank");
}

TEST_F(Proposals, AFirmsAddressIsNotTheProperty) {
    hand.job.SetField(23, "1 Oak Street");
    hand.job.SetOption(Person, false);
    hand.job.SetOption(Entity, true);
    EXPECT_EQ(Open(70).text, "");
}

TEST_F(Proposals, NamesAndHomesFollowTheSellers) {
    TwoSellers();
    const OpenedEditor principal = Open(156);
    EXPECT_EQ(principal.text, "Anna Abbott");
    EXPECT_EQ(principal.choices, (std::vector<std::string>{"Anna Abbott", "Ben Abbott"}));
    EXPECT_EQ(Open(161).text, "") << "no principal yet";
    hand.job.SetField(156, "Ben Abbott");
    EXPECT_EQ(Open(156).currentChoice, 1u) << "the choice stays open when it is made";
    EXPECT_EQ(Open(156).text, "Ben Abbott");
    EXPECT_EQ(Open(157).text, "9 Elm Street");
    EXPECT_EQ(Open(161).text, "Anna Abbott");
    EXPECT_EQ(Open(162).text, "9 Elm Street") << "the principal's home";
    hand.job.SetField(161, "Anna Abbott");
    EXPECT_EQ(Open(162).text, "1 Oak Street") << "the agent's own home";
    EXPECT_EQ(Open(164).text, "Milford, CT 06460");
    hand.job.SetField(156, "Carl Abbott");
    EXPECT_EQ(Open(157).text, "");
}

TEST_F(Proposals, DefaultsAndChoicesComeBeforeProposals) {
    hand.job.SetField(3, "Jane Roe");
    firmDefaults.Set("[witness #1]", "Will Ness");
    EXPECT_EQ(Open(188).text, "Will Ness");
    const OpenedEditor method = Open(FieldOfMarker("[payoff 1 method]"));
    EXPECT_EQ(method.text, "(enter check #)");
    EXPECT_EQ(method.choices.size(), 2u);
    const int tenancy = FieldOfMarker("[tenancy type]");
    hand.job.SetField(tenancy, "Tenants In Common");
    EXPECT_EQ(Open(tenancy).text, "Tenants In Common");
    EXPECT_EQ(Open(tenancy).currentChoice, 1u);
}

TEST_F(Proposals, TheEmailFollowsTheAttorney) {
    firmDefaults.Set("[seller atty email]", "ann@firm.example; bob@firm.example");
    hand.job.txtField(3).tag = "1";
    EXPECT_EQ(Open(9).text, "bob@firm.example");
    hand.job.txtField(3).tag = "5";
    EXPECT_EQ(Open(9).currentChoice, 1u) << "no more addresses than these";
}

TEST_F(Proposals, DatesOpenTheCalendar) {
    EXPECT_EQ(Open(1).text, "March 9, 2026");
    hand.job.SetField(79, "April 6, 2026");
    EXPECT_EQ(Open(79).calendar, year(2026) / 4 / 6);
    EXPECT_EQ(Open(81).text, "April 6, 2026");
    hand.job.SetField(79, "April ___, 2026");
    EXPECT_EQ(Open(79).calendar, year(2026) / 3 / 9) << "today where there is no date yet";
    EXPECT_FALSE(Open(21).calendar);
}

TEST_F(Proposals, AddressBooksShowTheMarker) {
    EXPECT_EQ(Open(12).book, AddressBook::Attorneys) << "the law firm is not listed";
    EXPECT_EQ(Open(11).book, AddressBook::Attorneys);
    EXPECT_EQ(Open(11).text, "[buyer lawfirm]");
    EXPECT_EQ(Open(12).book, std::nullopt);
    EXPECT_EQ(Open(113).book, AddressBook::Servicers);
    hand.mode = ScreenMode::Presets;
    EXPECT_EQ(Open(95).text, "");
}

TEST_F(Proposals, ATaggedValueOpensWithoutItsTag) {
    hand.job.SetField(170, "1000 - p");
    EXPECT_EQ(Open(170).text, "$1,000.00");
}

TEST_F(Proposals, AFiduciaryNeedsTheDetailOfTheCapacity) {
    EXPECT_FALSE(CapacityDetailOf("Executor", hand.job)) << "not needed by this job";
    List({45, 53, 206});
    const auto detail = CapacityDetailOf(" Executor ", hand.job);
    ASSERT_TRUE(detail);
    EXPECT_EQ(detail->n, 45);
    EXPECT_EQ(CapacityDetailOf("Conservator", hand.job)->n, 53);
    EXPECT_EQ(CapacityDetailOf("Testamentary Trustee", hand.job)->n, 206);
    EXPECT_FALSE(CapacityDetailOf("Trust Officer", hand.job)) << "no such capacity";
    const InputDialog open = DetailQuestion(*detail, hand.job);
    EXPECT_EQ(open.title, " ADDITIONAL INFORMATION REQUIRED");
    EXPECT_EQ(open.text, "Please enter a value for  DECEDENT\n" + FieldDescription(45, hand.job));
    EXPECT_EQ(open.proposed, "");
    hand.job.SetField(45, "John Doe");
    EXPECT_EQ(DetailQuestion(*detail, hand.job).proposed, "John Doe");
}

}  // namespace
}  // namespace quillmark
