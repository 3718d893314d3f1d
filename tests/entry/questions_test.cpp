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

TEST_F(Questions, BoxesAreTitledByTheFieldTheAmountOrTheRealtor) {
    ListSmsPayoff();
    EXPECT_EQ(NextQuestion(170, "1000", {}, hand).question->title, "annual property tax  ");
    EXPECT_EQ(NextQuestion(100, "90000", {}, hand).question->title, "payoff 1 amount     $90,000.00");
    EXPECT_EQ(NextQuestion(86, "9000", {}, hand).question->title, "Shoreline Realty  ");
    EXPECT_EQ(NextQuestion(117, "0047-11", {}, hand).question->title, "payoff 2 loan #  ");
}

TEST_F(Questions, TheLitCellsAreTheMemoryOfTheTag) {
    Answer({"Yes"});
    EXPECT_EQ(Enter(170, "1000"), "$1,000.00 - P");
    EXPECT_EQ(Row(170).value, "$1,000.00");
    EXPECT_EQ(Row(170).lit, (LitCells{true, false}));
    EXPECT_EQ(Enter(170, "2000"), "$2,000.00 - P");
    Enter(170, "");
    EXPECT_EQ(Row(170).lit, (LitCells{false, false})) << "an emptied field forgets its tag";
    ListSmsPayoff();
    Answer({"Yes", "Yes"});
    EXPECT_EQ(Enter(100, "90000"), "$90,000.00 = R");
    hand.List2.clear();
    EXPECT_EQ(Enter(100, "91000"), "$91,000.00 = R") << "a row that has note cells keeps them";
    EXPECT_EQ(Click(100, 2), "$91,000.00 = T");
}

TEST_F(Questions, WhileOneCommissionHasTheBinderTheOtherCannotTakeIt) {
    Answer({"Yes"});
    EXPECT_EQ(Enter(86, "9000"), "$9,000.00 - B");
    EXPECT_EQ(Enter(88, "8000"), "$8,000.00 - N");
    EXPECT_EQ(Click(88, 2), "$8,000.00 - N");
    EXPECT_EQ(Click(86, 3), "$9,000.00 - N");
    EXPECT_EQ(Click(88, 2), "$8,000.00 - B");
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
