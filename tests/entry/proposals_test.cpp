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
        screen.job.txtField(n).relevant = true;
        RebuildRows(screen);
        return OpenEditor(Row(n), screen, office);
    }
    void TwoSellers() {
        screen.job.SetField(21, "Anna Abbott");
        screen.job.SetField(23, "1 Oak Street");
        screen.job.SetField(25, "Milford, CT 06460");
        screen.job.SetField(28, "Ben Abbott");
        screen.job.SetField(29, "9 Elm Street");
    }
};

TEST_F(Proposals, AnUnfilledFieldRepeatsAnEarlierOne) {
    EXPECT_EQ(Open(29).text, "");
    screen.job.SetField(23, "1 Oak Street");
    EXPECT_EQ(Open(29).text, "1 Oak Street");
    EXPECT_EQ(Open(70).text, "1 Oak Street");
    screen.job.SetField(29, "9 Elm Street");
    EXPECT_EQ(Open(29).text, "9 Elm Street");
    screen.job.SetField(6, "Milford, CT 06460");
    EXPECT_EQ(Open(187).text, "Milford");
    screen.job.SetField(113, "Shore Savings Bank");
    EXPECT_EQ(Open(122).text, "Shore Savings Bank");
}

TEST_F(Proposals, AFirmsAddressIsNotTheProperty) {
    screen.job.SetField(23, "1 Oak Street");
    screen.job.SetOption(Person, false);
    screen.job.SetOption(Entity, true);
    EXPECT_EQ(Open(70).text, "");
}

TEST_F(Proposals, NamesAndHomesFollowTheSellers) {
    TwoSellers();
    const OpenedEditor principal = Open(156);
    EXPECT_EQ(principal.text, "Anna Abbott");
    EXPECT_EQ(principal.choices, (std::vector<std::string>{"Anna Abbott", "Ben Abbott"}));
    EXPECT_EQ(Open(161).text, "") << "no principal yet";
    screen.job.SetField(156, "Ben Abbott");
    EXPECT_EQ(Open(156).currentChoice, 1u) << "the choice stays open when it is made";
    EXPECT_EQ(Open(156).text, "Ben Abbott");
    EXPECT_EQ(Open(157).text, "9 Elm Street");
    EXPECT_EQ(Open(161).text, "Anna Abbott");
    EXPECT_EQ(Open(162).text, "9 Elm Street") << "the principal's home";
    screen.job.SetField(161, "Anna Abbott");
    EXPECT_EQ(Open(162).text, "1 Oak Street") << "the agent's own home";
    EXPECT_EQ(Open(164).text, "Milford, CT 06460");
    screen.job.SetField(156, "Carl Abbott");
    EXPECT_EQ(Open(157).text, "");
}

TEST_F(Proposals, DefaultsAndChoicesComeBeforeProposals) {
    screen.job.SetField(3, "Jane Roe");
    firmDefaults.Set("[witness #1]", "Will Ness");
    EXPECT_EQ(Open(188).text, "Will Ness");
    const OpenedEditor method = Open(FieldOfMarker("[payoff 1 method]"));
    EXPECT_EQ(method.text, "(enter check #)");
    EXPECT_EQ(method.choices.size(), 2u);
    const int tenancy = FieldOfMarker("[tenancy type]");
    screen.job.SetField(tenancy, "Tenants In Common");
    EXPECT_EQ(Open(tenancy).text, "Tenants In Common");
    EXPECT_EQ(Open(tenancy).currentChoice, 1u);
}

TEST_F(Proposals, TheEmailFollowsTheAttorney) {
    firmDefaults.Set("[seller atty email]", "ann@firm.example; bob@firm.example");
    screen.job.txtField(3).tag = "1";
    EXPECT_EQ(Open(9).text, "bob@firm.example");
    screen.job.txtField(3).tag = "5";
    EXPECT_EQ(Open(9).currentChoice, 1u) << "no more addresses than these";
}

TEST_F(Proposals, DatesOpenTheCalendar) {
    EXPECT_EQ(Open(1).text, "March 9, 2026");
    screen.job.SetField(79, "April 6, 2026");
    EXPECT_EQ(Open(79).calendar, year(2026) / 4 / 6);
    EXPECT_EQ(Open(81).text, "April 6, 2026");
    screen.job.SetField(79, "April ___, 2026");
    EXPECT_EQ(Open(79).calendar, year(2026) / 3 / 9) << "today where there is no date yet";
    EXPECT_FALSE(Open(21).calendar);
}

TEST_F(Proposals, AddressBooksShowTheMarker) {
    EXPECT_EQ(Open(12).book, AddressBook::Attorneys) << "the law firm is not listed";
    EXPECT_EQ(Open(11).book, AddressBook::Attorneys);
    EXPECT_EQ(Open(11).text, "[buyer lawfirm]");
    EXPECT_EQ(Open(12).book, std::nullopt);
    EXPECT_EQ(Open(113).book, AddressBook::Servicers);
    screen.ScreenMode = screen_mode::kPresets;
    EXPECT_EQ(Open(95).text, "");
}

TEST_F(Proposals, ATaggedValueOpensWithoutItsTag) {
    screen.job.SetField(170, "1000 - p");
    EXPECT_EQ(Open(170).text, "$1,000.00");
}

TEST_F(Proposals, AFiduciaryNeedsTheDetailOfTheCapacity) {
    EXPECT_TRUE(AskForCapacityDetail("Executor", screen, office)) << "not needed by this job";
    List({45, 53, 206});
    Answer({"John Doe"});
    EXPECT_TRUE(AskForCapacityDetail("Executor", screen, office));
    EXPECT_EQ(screen.job.D(45), "John Doe");
    const auto box = dialogs.TakeShown().at(0);
    EXPECT_EQ(box.title, " ADDITIONAL INFORMATION REQUIRED");
    EXPECT_EQ(box.text, "Please enter a value for  DECEDENT\n" + FieldDescription(45, screen.job));
    EXPECT_EQ(box.defaultAnswer, "");

    Answer({std::nullopt});
    EXPECT_FALSE(AskForCapacityDetail("Administrator", screen, office));
    EXPECT_EQ(screen.job.D(45), "John Doe");
    EXPECT_EQ(dialogs.TakeShown().at(0).defaultAnswer, "John Doe");
    Answer({""});
    EXPECT_FALSE(AskForCapacityDetail("Administrator", screen, office));
    EXPECT_FALSE(screen.job.IsFilled(45));
    Answer({"Zażółć", "OK"});
    EXPECT_FALSE(AskForCapacityDetail("Conservator", screen, office)) << "a character that no file can hold";
    Answer({"Doe Trust"});
    EXPECT_TRUE(AskForCapacityDetail("Testamentary Trustee", screen, office));
    EXPECT_EQ(screen.job.D(206), "Doe Trust");
    EXPECT_TRUE(AskForCapacityDetail("Trust Officer", screen, office)) << "no such capacity";
}

}  // namespace
}  // namespace quillmark
