#include "entry/questions.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "core/text_conversions.h"
#include "desk.h"

namespace quillmark {
namespace {

class Questions : public test::Desk {
 protected:
    Questions() {
        List({86, 88, 99, 100, 117, 118, 170, 171, 173, 175, 177, 182, 193, 196});
        hand.job.SetField(85, "Shoreline Realty");
    }
    void ListSmsPayoff() { hand.List2.push_back({"Payoff Letter / SMS"}); }
};

TEST_F(Questions, ATaxIsPaidOrNot) {
    Answer({"Yes"});
    EXPECT_EQ(Enter(170, "1000"), "$1,000.00 - P");
    const auto shown = dialogs.TakeShown();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, "annual property tax  ");
    EXPECT_EQ(shown[0].text, "This item paid current ?");
    EXPECT_EQ(shown[0].buttons, (std::vector{DialogButton::Yes, DialogButton::No}));
    EXPECT_EQ(Row(170).value, "$1,000.00");
    EXPECT_EQ(Row(170).lit, (LitCells{true, false}));
    EXPECT_EQ(Enter(170, "2000"), "$2,000.00 - P") << "the lit cell keeps the tag";
    EXPECT_EQ(Enter(170, "2000"), "$2,000.00 - P");
    EXPECT_EQ(BoxesShown(), 0u);
}

TEST_F(Questions, TheSewerQuestionsDependOnEachOther) {
    Answer({"No", "Yes"});
    EXPECT_EQ(Enter(171, "$480"), "$480.00 = U");
    EXPECT_EQ(Row(171).lit, (LitCells{false, true}));
    const auto shown = dialogs.TakeShown();
    EXPECT_EQ(shown.at(0).text,
              "Payable with taxes ?\n\n(YES: value entered must be annual assessment)\n"
              "(NO:  value entered must be net adjustment)");
    EXPECT_EQ(shown.at(1).text, "Credit to Buyer(s) ?");
    Enter(171, "");
    EXPECT_EQ(Row(171).lit, (LitCells{false, false})) << "an emptied field forgets its tag";
    Answer({"Yes", "No"});
    EXPECT_EQ(Enter(171, "480"), "$480.00 - U");
    EXPECT_EQ(Row(171).lit, (LitCells{true, true}));
    EXPECT_EQ(dialogs.TakeShown().at(1).text, "This item paid current ?");
}

TEST_F(Questions, AnAdjustmentWithADescriptionIsAskedAbout) {
    Answer({"Yes"});
    EXPECT_EQ(Enter(193, "500 - Oil"), "$500.00 - Oil = U");
    Answer({"No"});
    EXPECT_EQ(Enter(196, "75"), "$75.00 = P");
    EXPECT_EQ(Enter(193, "600 - Fuel"), "$600.00 - Fuel = U");
    EXPECT_EQ(Enter(193, "650 - A"), "$650.00 - A = U") << "one letter is a description, too";
    EXPECT_EQ(Row(193).value, "$650.00 - A");
}

TEST_F(Questions, APayoffIsAskedAboutWhereItShowsNoteCells) {
    EXPECT_EQ(Enter(100, "90000"), "$90,000.00");
    EXPECT_EQ(Row(100).notes[0], "");
    Enter(100, "");
    ListSmsPayoff();
    Answer({"Yes", "Yes"});
    EXPECT_EQ(Enter(100, "90000"), "$90,000.00 = R");
    const auto shown = dialogs.TakeShown();
    EXPECT_EQ(shown.at(0).title, "payoff 1 amount     $90,000.00");
    EXPECT_EQ(shown.at(0).text, "Does this amount include the charge \nfor recording the release ?");
    EXPECT_EQ(shown.at(1).text, "Is MERS the releasor \nof this mortgage ?");
    hand.List2.clear();
    EXPECT_EQ(Enter(100, "91000"), "$91,000.00 = R") << "a row that has note cells keeps them";
    EXPECT_EQ(Click(100, 2), "$91,000.00 = T");
    EXPECT_EQ(Enter(118, "1000 - d"), "$1,000.00 - D") << "no cells, no state";
}

TEST_F(Questions, OneCommissionTakesTheBinder) {
    Answer({"Yes"});
    EXPECT_EQ(Enter(86, "9000"), "$9,000.00 - B");
    const auto shown = dialogs.TakeShown();
    EXPECT_EQ(shown.at(0).title, "Shoreline Realty  ");
    EXPECT_EQ(shown.at(0).text, "Apply binder deposit\ntoward this realtor's commission ?");
    EXPECT_EQ(Enter(88, "8000"), "$8,000.00 - N");
    EXPECT_EQ(Row(88).lit, (LitCells{false, true}));
    EXPECT_EQ(BoxesShown(), 0u);
    EXPECT_EQ(Click(88, 2), "$8,000.00 - N") << "not while the other one has it";
    EXPECT_EQ(Click(86, 3), "$9,000.00 - N");
    EXPECT_EQ(Click(88, 2), "$8,000.00 - B");
}

TEST_F(Questions, OneLoanIsAnEquityLineByQuestion) {
    Answer({"Yes"});
    EXPECT_EQ(Enter(117, "0047-11"), "0047-11 (E)");
    const auto shown = dialogs.TakeShown();
    EXPECT_EQ(shown.at(0).title, "payoff 2 loan #  ");
    EXPECT_EQ(shown.at(0).text, "Is this loan a Home Equity\nLine of Credit ?");
    EXPECT_EQ(Enter(99, "12345"), "12345");
    EXPECT_EQ(BoxesShown(), 0u);
    EXPECT_EQ(Click(99, 2), "12345 (M)");
    EXPECT_EQ(Enter(99, "54321"), "54321 (M)");
    Enter(99, "");
    EXPECT_EQ(Enter(99, "777 (M)"), "777 (M)") << "a tag that was typed answers the question";
}

TEST_F(Questions, WhatIsNoAmountOrHasATagIsNotAskedAbout) {
    EXPECT_EQ(Enter(170, "1000 - u"), "$1,000.00 - U");
    EXPECT_EQ(Enter(175, "0"), "$0.00");
    EXPECT_EQ(Enter(177, "to come"), "to come");
    EXPECT_EQ(Enter(171, "poc"), "POC");
    EXPECT_EQ(Enter(193, "80 = p"), "$80.00 = P");
    EXPECT_EQ(Enter(173, "100"), "$100.00") << "no questions for this one";
    EXPECT_EQ(Enter(182, "450 - Title search"), "$450.00 - Title search");
    EXPECT_EQ(Enter(170, "1000 - paid"), "$1,000.00 - U") << "the last letter is neither of the two";
}

TEST_F(Questions, ATemplateIsAskedAboutInEmptyFieldsToo) {
    hand.job.SetField(170, "");
    EXPECT_EQ(Enter(170, "1000"), "$1,000.00");
    hand.mode = ScreenMode::Presets;
    hand.job.SetField(175, "");
    Answer({"No"});
    EXPECT_EQ(Enter(175, "200"), "$200.00 - U");
}

/// How many questions an entry raises, told in the words of the rules and not of the code.
std::size_t QuestionsDue(int n, const std::string& text, const JobInHand& hand) {
    const Job& job = hand.job;
    if (text.empty() || job.IsFilled(n)) return 0;
    const bool sms = !hand.List2.empty();
    if (n == 99 || n == 117) {
        if (text.ends_with(" (E)") || text.ends_with(" (M)")) return 0;
        return job.D(n == 99 ? 117 : 99).ends_with(" (E)") ? 0 : 1;
    }
    const bool amount = (text[0] == '$' && text != "$0") || (text[0] >= '1' && text[0] <= '9');
    const bool tagged = text.find('=') != text.npos || (n < 178 && text.find('-') != text.npos);
    if (!amount || tagged) return 0;
    if (n == 86 || n == 88) return job.D(n == 86 ? 88 : 86).ends_with(" - B") ? 0 : 1;
    if (n == 100 || n == 118) return sms ? 2 : 0;
    return n == 171 ? 2 : n == 173 ? 0 : 1;
}

TEST_F(Questions, RandomEntriesAreAskedAboutExactlyWhenDue) {
    std::mt19937 random(20260309);
    const std::vector<int> fields = {86, 88, 99, 100, 117, 118, 170, 171, 173, 175, 177, 193, 196};
    const std::vector<std::string> texts = {"",         "1000",      "$25",    "0",    "250 - u",
                                            "40 = p",   "12 (M)",    "33 (E)", "poc",  "1,500.50",
                                            "88 - Oil", "9 - A = U", "no sum", "-100", "$0"};
    for (int step = 0; step < 4000; ++step) {
        const int n = fields[random() % fields.size()];
        std::string text = texts[random() % texts.size()];
        if ((n == 86 || n == 88) && text.find('=') != text.npos) text = "700";
        if (random() % 10 == 0) hand.List2.empty() ? ListSmsPayoff() : hand.List2.clear();
        if (n == 100 || n == 118) RebuildRows(hand);
        const auto due = text == hand.job.txtField(n).text ? 0 : QuestionsDue(n, text, hand);
        ScriptedDialogs::Answers answers;
        for (std::size_t i = 0; i < due; ++i) answers.emplace_back(random() % 2 ? "Yes" : "No");
        Answer(answers);
        ASSERT_NO_THROW(Enter(n, text)) << "step " << step << ": field " << n << ", \"" << text << "\"";
        ASSERT_EQ(dialogs.AnswersLeft(), 0u) << "step " << step << ": field " << n << ", \"" << text << "\"";

        const std::string stored = hand.job.D(n);
        hand.job.RunChangeRule(n);
        ShowFieldNotes(n, *FindRow(n, hand), 0, hand);
        ASSERT_EQ(hand.job.D(n), stored) << "step " << step << ": stored and drawn once more";
    }
}

}  // namespace
}  // namespace quillmark
