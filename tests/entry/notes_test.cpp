#include "entry/note_cells.h"

#include <gtest/gtest.h>

#include <random>

#include "desk.h"

namespace quillmark {
namespace {

class Notes : public test::Desk {
 protected:
    Notes() { List({86, 88, 99, 100, 117, 118, 170, 171, 175, 177, 193, 194, 195, 196}); }

    void Draw(int n, std::string_view value) {
        hand.job.SetField(n, value);
        DrawRow(*FindRow(n, hand), hand);
    }
};

TEST_F(Notes, ACellOfTwoIsChosenByItsClick) {
    Draw(170, "1000 - p");
    EXPECT_EQ(Click(170, 2), "$1,000.00 - P") << "a click on the lit cell leaves it";
    EXPECT_EQ(Click(170, 3), "$1,000.00 - U");
    EXPECT_EQ(Row(170).lit, (LitCells{false, true}));
    Draw(193, "$250.00 - fire tax");
    EXPECT_EQ(Click(193, 2), "$250.00 - fire tax = P");
    EXPECT_EQ(Row(193).value, "$250.00 - fire tax");
    Draw(175, "0");
    EXPECT_EQ(Click(175, 3), "$0.00 - U");
}

TEST_F(Notes, ACellOfFourTurnsItsOwnFactOver) {
    Draw(118, "$70,000.00 - R");
    EXPECT_EQ(Click(118, 3), "$70,000.00 = R");
    EXPECT_EQ(Click(118, 3), "$70,000.00 - R");
    EXPECT_EQ(Click(118, 2), "$70,000.00 - T");
    EXPECT_EQ(Row(118).notes[0], "rec fee incl");
    Draw(171, "480 = p");
    EXPECT_EQ(Row(171).lit, (LitCells{false, false}));
    EXPECT_EQ(Click(171, 2), "$480.00 - P");
    EXPECT_EQ(Click(171, 3), "$480.00 - U");
    EXPECT_EQ(Click(171, 2), "$480.00 = U");
}

TEST_F(Notes, WithoutAnAmountThereIsNothingToTag) {
    EXPECT_EQ(Click(170, 2), "[annual property tax]");
    Draw(171, "POC");
    EXPECT_EQ(Click(171, 3), "POC");
    EXPECT_EQ(Click(171, 0), "POC");
    Draw(100, "90000");
    EXPECT_EQ(Click(100, 2), "$90,000.00") << "a payoff without note cells";
}

TEST_F(Notes, ValuesFromOutsideTakeTheirFinalForm) {
    Draw(170, "1000 - paid");
    Draw(175, "1000 = p");
    Draw(171, "480");
    Draw(86, "$9,000.00 - B");
    Draw(88, "$8,000.00");
    Draw(100, "$90,000.00 = T");
    Draw(177, "$0.00");
    ShowAllFieldNotes(hand);
    EXPECT_EQ(hand.job.D(170), "$1,000.00 - U");
    EXPECT_EQ(hand.job.D(175), "$1,000.00 - P");
    EXPECT_EQ(hand.job.D(171), "$480.00 = P");
    EXPECT_EQ(hand.job.D(86), "$9,000.00 - B");
    EXPECT_EQ(hand.job.D(88), "$8,000.00 - N");
    EXPECT_EQ(hand.job.D(100), "$90,000.00 = T");
    EXPECT_EQ(hand.job.D(177), "$0.00");
}

TEST_F(Notes, ClicksValueAndDrawingAgree) {
    std::mt19937 random(1041);
    hand.List2.push_back({"Payoff / SMS"});
    const std::vector<int> fields = {86, 88, 99, 100, 117, 118, 170, 171, 175, 177, 193, 196};
    for (int step = 0; step < 5000; ++step) {
        const int n = fields[random() % fields.size()];
        const bool reenter = !hand.job.IsFilled(n) || random() % 4 == 0;
        const LitCells before = Row(n).lit;
        if (reenter) hand.job.SetField(n, std::to_string(1 + random() % 9000));
        const int column = reenter ? 0 : 2 + static_cast<int>(random() % 2);
        const std::string value = Click(n, column);
        const LitCells lit = Row(n).lit;
        const TaggedValue read = ReadTag(value, TagFamilyOf(n));
        ASSERT_EQ(Row(n).value, read.text) << n;
        if (!read.tag.empty()) {
            ASSERT_EQ(CellsLitBy(read.tag, TagFamilyOf(n)), lit) << n << ": " << value;
        }
        const bool binderTaken = (n == 86 || n == 88) && TakesBinder(hand.job.D(PairedField(n)));
        if (reenter && !binderTaken) {
            ASSERT_EQ(lit, before) << n << ": the cells are the memory of the tag";
        }
        if (column != 0 && !binderTaken) {
            const bool first = column == 2;
            const bool twoFacts = n == 171 || n == 100 || n == 118;
            const LitCells flipped = {before[0] != first, before[1] == first};
            ASSERT_EQ(lit, twoFacts ? flipped : LitCells({first, !first})) << n << ": " << value;
        }
        ASSERT_FALSE(TakesBinder(hand.job.D(86)) && TakesBinder(hand.job.D(88)));
        ShowFieldNotes(n, *FindRow(n, hand), 0, hand);
        ASSERT_EQ(hand.job.D(n), value) << n << ": drawn once more";
    }
}

}  // namespace
}  // namespace quillmark
