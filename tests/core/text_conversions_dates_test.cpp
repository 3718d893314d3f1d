#include <fmt/format.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "core/text_conversions.h"

namespace quillmark {
namespace {

using namespace std::chrono;

TEST(ReadDate, TakesTheFormsThatOfficesType) {
    const year_month_day date = 2005y / April / 6;
    for (const auto text :
         {"4/6/2005", "04/06/2005", "4/6/05", "4-6-2005", "4.6.2005", "April 6, 2005", "april 06, 2005",
          "APRIL 6 2005", "Apr 6, 2005", "Apr. 6, 2005", "April 6,2005", "April 6th, 2005", "6 April 2005",
          "6-Apr-2005", "6th April 2005", "2005-04-06", "2005/4/6", "  April  6 ,  2005  "})
        EXPECT_EQ(ReadDate(text), date) << text;
    EXPECT_EQ(ReadDate("April 2005"), 2005y / April / 1);
    EXPECT_EQ(ReadDate("04/2005"), 2005y / April / 1);
    EXPECT_EQ(ReadDate("Sept 9, 1999"), 1999y / September / 9);
    EXPECT_EQ(ReadDate("1/1/29"), 2029y / January / 1);
    EXPECT_EQ(ReadDate("1/1/30"), 1930y / January / 1);
    EXPECT_EQ(ReadDate("2/29/2024"), 2024y / February / 29);
}

TEST(ReadDate, RefusesWhatIsNoDate) {
    for (const auto text : {"",
                            " ",
                            "soon",
                            "2/29/2023",
                            "13/1/2005",
                            "0/1/2005",
                            "4/31/2005",
                            "4/0/2005",
                            "April 31, 2005",
                            "April 6",
                            "April",
                            "2005",
                            "4/6",
                            "4/6-2005",
                            "4/6/205",
                            "4/6/20055",
                            "4/6/0005",
                            "1/2/3/2004",
                            "April 6, 2005.",
                            "April 6, 2005 5:00 PM",
                            "Apri 6, 2005",
                            "April ___, 2005",
                            "4 6 2005",
                            "April 6xx, 2005",
                            "April April 2005",
                            "-4/6/2005",
                            "[document date]",
                            "4/6/2005\r",
                            "5th/6/2005",
                            "April 2005 6",
                            "99999999999999999999/1/1"})
        EXPECT_EQ(ReadDate(text), std::nullopt) << text;
}

TEST(ReadDate, ReadsBackEveryDayThatTheProgramWrites) {
    for (sys_days day = sys_days(1930y / January / 1); day < sys_days(2030y / January / 1); day += days(1)) {
        const year_month_day date(day);
        const auto month = static_cast<unsigned>(date.month());
        const auto number = static_cast<unsigned>(date.day());
        const int year = static_cast<int>(date.year());
        ASSERT_EQ(ReadDate(LongDate(date)), date);
        ASSERT_EQ(ReadDate(FormatDate(date, DateForm::LongTwoDigits)), date);
        ASSERT_EQ(ReadDate(fmt::format("{}/{}/{:02}", month, number, year % 100)), date);
        ASSERT_EQ(RenderDate(LongDate(date), DateForm::Long), LongDate(date));
    }
}

TEST(RenderDate, GivesEachPartOrTheTextItself) {
    EXPECT_EQ(RenderDate("3/5/2025", DateForm::Long), "March 5, 2025");
    EXPECT_EQ(RenderDate("3/5/2025", DateForm::LongTwoDigits), "March 05, 2025");
    EXPECT_EQ(RenderDate("3/5/2025", DateForm::Month), "March");
    EXPECT_EQ(RenderDate("3/5/2025", DateForm::Day), "5");
    EXPECT_EQ(RenderDate("3/5/2025", DateForm::Year), "2025");
    EXPECT_EQ(RenderDate("soon", DateForm::Day), "soon");
    EXPECT_EQ(RenderDate("", DateForm::Month), "");
    EXPECT_EQ(MonthName(0) + MonthName(13), "");
}

void ExpectPartial(std::string_view text, std::string_view month, std::string_view day,
                   std::string_view year) {
    const PartialDate date = SplitPartialDate(text, "[curr month]", "[curr day]");
    EXPECT_EQ(date.month, month) << text;
    EXPECT_EQ(date.day, day) << text;
    EXPECT_EQ(date.year, year) << text;
}

TEST(SplitPartialDate, TakesBlanksToFillByHandApart) {
    ExpectPartial("March ___, 2025", "March", "___", "2025");
    ExpectPartial("3/__/25", "March", "__", "2025");
    ExpectPartial(" 12/5/__ ", "December", "5th", "20__");
    ExpectPartial("____ 22, 2025", "____", "22nd", "2025");
    ExpectPartial("March 5th, 20__", "March", "5th", "20__");
    ExpectPartial("13/__/2025", "13", "__", "2025");
    ExpectPartial("March ____", "March", "[curr day]", "____");
    ExpectPartial("________", "[curr month]", "[curr day]", "________");
    EXPECT_THROW(SplitPartialDate("March 5x, 20__"), NotANumber);
}

/// Types a text key by key, as the one-line editor does.
std::string Typed(std::string_view keys, std::string_view marker = "[seller 1 name]",
                  bool properCase = true) {
    EditorText editor;
    for (const char key : keys) {
        const ProperCaseKey typed = ProperCase(editor, std::string(1, key), marker, properCase);
        editor = typed.editor;
        editor.text.replace(editor.caret, editor.selection, typed.character);
        editor.caret += typed.character.size();
        editor.selection = 0;
    }
    return editor.text;
}

TEST(ProperCase, RaisesWordsAndTakesJoiningWordsDown) {
    EXPECT_EQ(Typed("john and jane doe"), "John and Jane Doe");
    EXPECT_EQ(Typed("lot 1 or lot 2 and lot 3"), "Lot 1 or Lot 2 and Lot 3");
    EXPECT_EQ(Typed("john o'neil-smith"), "John O'neil-smith");
    EXPECT_EQ(Typed("ACME llc"), "ACME Llc");
    EXPECT_EQ(Typed("john and"), "John And") << "until the next word begins";
    EXPECT_EQ(Typed("john and jane", "[seller 1 name]", false), "john and jane");
    EXPECT_EQ(Typed("rbrown@browngreen.example", "[buyer atty email]"), "rbrown@browngreen.example");
}

TEST(ProperCase, WorksAtTheCaret) {
    const auto raises = [](EditorText editor) {
        return ProperCase(editor, "x", "[m]", true).character == "X";
    };
    EXPECT_TRUE(raises({"john", 0, 0}));
    EXPECT_TRUE(raises({"john ", 5, 0}));
    EXPECT_TRUE(raises({"john", 0, 4})) << "the whole text is replaced";
    EXPECT_FALSE(raises({"john doe", 5, 0})) << "only at the end is a blank the start of a word";
    EXPECT_FALSE(raises({"john ", 4, 0}));

    const ProperCaseKey joined = ProperCase({"A And B And ", 3, 0}, "c", "[m]", true);
    EXPECT_EQ(joined.editor, (EditorText{"A and B and ", 12, 0}));
    EXPECT_EQ(joined.character, "C");
    EXPECT_EQ(ProperCase({" Or ", 4, 0}, "\xC3\xA9", "[m]", true).character, "\xC3\x89");
    EXPECT_EQ(ProperCase({"A And ", 6, 0}, "\b", "[m]", true).editor.text, "A And ")
        << "backspace types nothing";
}

}  // namespace
}  // namespace quillmark
