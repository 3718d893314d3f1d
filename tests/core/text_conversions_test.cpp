#include "core/text_conversions.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace quillmark {
namespace {

// A second computation, by value and in the form of a speaker: hundreds, thousands, millions.
std::string SpokenBelowThousand(long n) {
    static const std::vector<std::string> small = {"",        "ONE",     "TWO",       "THREE",    "FOUR",
                                                   "FIVE",    "SIX",     "SEVEN",     "EIGHT",    "NINE",
                                                   "TEN",     "ELEVEN",  "TWELVE",    "THIRTEEN", "FOURTEEN",
                                                   "FIFTEEN", "SIXTEEN", "SEVENTEEN", "EIGHTEEN", "NINETEEN"};
    static const std::vector<std::string> tens = {"",      "",      "TWENTY",  "THIRTY", "FORTY",
                                                  "FIFTY", "SIXTY", "SEVENTY", "EIGHTY", "NINETY"};
    std::string words;
    const auto say = [&](const std::string& word) { words += word.empty() ? "" : word + " "; };
    if (n >= 100) {
        say(small[static_cast<std::size_t>(n / 100)]);
        say("HUNDRED");
        n %= 100;
    }
    if (n >= 20) {
        say(tens[static_cast<std::size_t>(n / 10)]);
        n %= 10;
    }
    say(small[static_cast<std::size_t>(n)]);
    return words;
}

std::string Spoken(long dollars, long cents) {
    std::string words;
    if (dollars >= 1000000) words += SpokenBelowThousand(dollars / 1000000) + "MILLION ";
    if (dollars / 1000 % 1000 > 0) words += SpokenBelowThousand(dollars / 1000 % 1000) + "THOUSAND ";
    return words + SpokenBelowThousand(dollars % 1000) + fmt::format("& {:02}/100", cents);
}

TEST(AmountToWords, AgreesWithASpeakerBelowOneHundredMillion) {
    std::mt19937 random(76);
    std::vector<long> amounts = {0,      1,      10,     11,     19,      20,      21,       99,      100,
                                 101,    110,    999,    1000,   1100,    10000,   11000,    99999,   100000,
                                 100001, 101000, 110000, 999999, 1000000, 1000001, 10000000, 99999999};
    for (int i = 0; i < 20000; ++i)
        amounts.push_back(static_cast<long>(random() % (i % 2 ? 100000000u : 100000u)));
    for (const long dollars : amounts) {
        const long cents = static_cast<long>(random() % 100);
        const std::string text = fmt::format("{}.{:02}", dollars, cents);
        ASSERT_EQ(AmountToWords(text), Spoken(dollars, cents)) << text;
        ASSERT_EQ(AmountToWords(ShownAmount(text)), Spoken(dollars, cents)) << text;
    }
}

TEST(AmountToWords, AsDeedsAndNotesPrintThem) {
    EXPECT_EQ(AmountToWords("123456.78"),
              "ONE HUNDRED TWENTY THREE THOUSAND FOUR HUNDRED FIFTY SIX & 78/100");
    EXPECT_EQ(AmountToWords("$1,000,000.00"), "ONE MILLION & 00/100");
    EXPECT_EQ(AmountToWords("0.995"), "ONE & 00/100");
}

TEST(AmountToWords, ReadsDigitsByPositionWhereTheAmountDoesNotFit) {
    EXPECT_EQ(AmountToWords("123,456,789.00"),
              "TWELVE MILLION THREE HUNDRED FORTY FIVE THOUSAND SIX HUNDRED SEVENTY EIGHT & 00/100");
    EXPECT_EQ(AmountToWords("99999999.995"), "TEN MILLION & 00/100");
    EXPECT_EQ(AmountToWords("-1000.25"), "ONE HUNDRED & 25/100") << "the minus sign takes a position";
    EXPECT_EQ(AmountToWords("abc"), "& bc/100");
    EXPECT_EQ(AmountToWords(""), "& /100");
    EXPECT_EQ(AmountToWords("[sale price numeric]"), "& c]/100");
    EXPECT_EQ(AmountToWords("caf\xC3\xA9"), "& f\xC3\xA9/100") << "no character is cut in two";
}

TEST(OrdinalSuffix, OfEveryDayOfTheMonth) {
    for (int day = 1; day <= 31; ++day) {
        const bool teen = day >= 10 && day <= 19;
        const std::string expected = teen
                                         ? "th"
                                         : std::vector{"th", "st", "nd", "rd", "th",
                                                       "th", "th", "th", "th", "th"}[static_cast<std::size_t>(
                                               day % 10)];
        EXPECT_EQ(OrdinalSuffix(std::to_string(day)), expected) << day;
    }
    for (const auto text : {"soon", "", "5 ", "5th", "\xC3\xA9"})
        EXPECT_THROW(OrdinalSuffix(text), NotANumber) << text;
}

TEST(Repeats, GiveTheirCounts) {
    EXPECT_EQ(RepeatReturn(3), "\r\r\r");
    EXPECT_EQ(RepeatTab(2, 3), "\t\t   ");
    EXPECT_EQ(RepeatTab(1), "\t");
    EXPECT_EQ(RepeatUnderscore(0) + RepeatReturn(0) + RepeatTab(0), "");
    EXPECT_EQ(RepeatUnderscore(65535).size(), 65535u);
}

TEST(EncodeForMail, KeepsPrintableTextAndEncodesTheRest) {
    EXPECT_EQ(EncodeForMail("A&B 100% ~"), "A%26B 100% ~");
    EXPECT_EQ(EncodeForMail("a\r\n\t\x7F"), "a%0D%0A%09%7F");
    EXPECT_EQ(EncodeForMail("Ren\xC3\xA9\xE2\x80\x99s"), "Ren%E9%92s");
    EXPECT_EQ(EncodeForMail("\xC5\x82&\xC3"), "?%26?") << "what windows-1252 lacks";
}

void ExpectName(std::string_view full, SuffixList list, std::string_view last, std::string_view given) {
    const PersonName name = SplitPersonName(full, list);
    EXPECT_EQ(name.last, last) << full;
    EXPECT_EQ(name.given, given) << full;
}

TEST(SplitPersonName, WorkedNames) {
    ExpectName("Mary Ann Jones", SuffixList::Party, "Jones", "Mary Ann");
    ExpectName("  Mary  Jones ", SuffixList::Party, "Jones", "Mary");
    ExpectName("Cher", SuffixList::Party, "Cher", "");
    ExpectName("John Smith Jr.", SuffixList::Party, "Smith", "John");
    ExpectName("John Smith, Jr.", SuffixList::Party, "Smith,", "John");
    ExpectName("John Smith JR.", SuffixList::Party, "JR.", "John Smith");
    ExpectName("John Smith III", SuffixList::Party, "Smith", "John");
    ExpectName("John Smith Esq.", SuffixList::Party, "Esq.", "John Smith");
    ExpectName("John Smith, Esq.", SuffixList::Attorney, "Smith", "John");
    ExpectName("John Smith, ESQ.", SuffixList::Attorney, "Smith", "John");
    ExpectName("John Smith, Jr., Esq.", SuffixList::Attorney, "Jr.", "John Smith,");
    ExpectName("Sr", SuffixList::Party, "", "");
    ExpectName("", SuffixList::Attorney, "", "");
    ExpectName("John Smith IV", SuffixList::Party, "IV", "John Smith");
}

TEST(SplitPersonName, PartsOfAPlainNameJoinToTheName) {
    std::mt19937 random(59);
    const std::vector<std::string> words = {"Mary",   "Ann",       "van",        "der",
                                            "O'Neil", "Smith-Doe", "Jos\xC3\xA9"};
    for (int i = 0; i < 500; ++i) {
        std::string full = words[random() % words.size()];
        for (std::size_t n = random() % 4; n > 0; --n) full += " " + words[random() % words.size()];
        for (const SuffixList list : {SuffixList::Attorney, SuffixList::Party}) {
            const PersonName name = SplitPersonName(full, list);
            EXPECT_EQ(name.given.empty() ? name.last : name.given + " " + name.last, full);
            EXPECT_EQ(name.last.find(' '), std::string::npos) << full;
            if (list == SuffixList::Party) ExpectName(full + " Jr.", list, name.last, name.given);
        }
    }
}

TEST(LeadingNumber, StopsWhereTheNumberEnds) {
    EXPECT_EQ(LeadingNumber("  12.50abc"), 12.5);
    EXPECT_EQ(LeadingNumber("-3/4"), -3);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("1,000"), 1);
    EXPECT_EQ(LeadingNumber("1e5"), 1);
    for (const auto text : {"$1,000.00", "", " ", "abc", "-", ".", "inf", "nan", "[seller 1 name]"})
        EXPECT_EQ(LeadingNumber(text), 0) << text;
}

TEST(Amounts, FormsThatAreNumbers) {
    for (const auto text :
         {"1000", "1,000", "$1,000", "$1,000.00", "  1000.  ", "$ 1000", "+1000", "01000", "1000.001"}) {
        EXPECT_EQ(PlainAmount(text), "00001000.00") << text;
        EXPECT_EQ(ShownAmount(text), "$1,000.00") << text;
        EXPECT_EQ(AmountOf(text), 1000) << text;
    }
    for (const auto text : {"-1000", "-$1,000.00", "$-1000", "- 1,000"}) {
        EXPECT_EQ(ShownAmount(text), "-$1,000.00") << text;
        EXPECT_EQ(AmountOf(text), -1000) << text;
    }
    EXPECT_EQ(ShownAmount(".5"), "$0.50");
    EXPECT_EQ(ShownAmount("0"), "$0.00");
    EXPECT_EQ(ShownAmount("-0.004"), "$0.00") << "a zero has no sign";
    EXPECT_EQ(ShownAmount("12345678901234567890.129"), "$12,345,678,901,234,567,890.13")
        << "no digit is lost";
}

TEST(Amounts, OtherTextsStayAsTheyAre) {
    for (const auto text : {"", " ", "POC", "$", "-", ".", "1.2.3", "1,,000", ",100", "100,", "1e5", "(100)",
                            "--1", "-$-1", "$1,000.00 - P", "250 - fire tax", "6%", "[sale price numeric]",
                            "1\xC2\xA0"
                            "000"}) {
        EXPECT_EQ(PlainAmount(text), text);
        EXPECT_EQ(ShownAmount(text), text);
        EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
    }
    EXPECT_EQ(AmountOf("[sale price numeric]"), 0);
    EXPECT_EQ(AmountOf("250 - fire tax"), 250);
    EXPECT_EQ(AmountOf("$1,000.00 - P"), 0) << "a tagged amount is read without its tag";
}

TEST(Amounts, HalfCentsRoundAwayFromZeroOnTheDigits) {
    EXPECT_EQ(ShownAmount("1.005"), "$1.01");
    EXPECT_EQ(ShownAmount("-1.005"), "-$1.01");
    EXPECT_EQ(ShownAmount("2.675"), "$2.68");
    EXPECT_EQ(ShownAmount("1.00499999999999999999"), "$1.00");
    EXPECT_EQ(ShownAmount("999.995"), "$1,000.00");
    EXPECT_EQ(ShownAmount("0.995"), "$1.00");
}

TEST(Amounts, RenderingIsIdempotentAndKeepsTheValue) {
    std::mt19937_64 random(10);
    for (int i = 0; i < 20000; ++i) {
        const auto cents = static_cast<long long>(random() % (i % 2 ? 100000000000ull : 100000ull));
        const std::string text = fmt::format("{}{}.{:02}", random() % 4 ? "" : "-", cents / 100, cents % 100);
        const std::string shown = ShownAmount(text);
        ASSERT_EQ(ShownAmount(shown), shown) << text;
        ASSERT_EQ(ShownAmount(PlainAmount(text)), shown) << text;
        ASSERT_EQ(PlainAmount(shown), PlainAmount(text)) << text;
        ASSERT_EQ(AmountOf(shown), std::strtod(text.c_str(), nullptr)) << text;
        ASSERT_EQ(ReadNumber(shown), AmountOf(text)) << text;
    }
}

TEST(DecimalText, RoundsComputedFiguresAsTheyRead) {
    EXPECT_EQ(DecimalText(1.005, 2), "1.01");
    EXPECT_EQ(DecimalText(0.1 + 0.2, 2), "0.30");
    EXPECT_EQ(DecimalText(-2.5, 0), "-3");
    EXPECT_EQ(DecimalText(-0.001, 2), "0.00");
    EXPECT_EQ(DecimalText(6000.0 / 365, 3), "16.438");
    EXPECT_EQ(DecimalText(1e20, 2), "100000000000000000000.00");
    EXPECT_EQ(DecimalText(9.9999e-7, 6), "0.000001");
    EXPECT_EQ(DecimalText(0, 2), "0.00");
    std::mt19937_64 random(42);
    for (int i = 0; i < 20000; ++i) {
        const auto cents = static_cast<long long>(random() % 1000000000000ull);
        ASSERT_EQ(DecimalText(static_cast<double>(cents) / 100, 2),
                  fmt::format("{}.{:02}", cents / 100, cents % 100));
    }
}

TEST(TelephonesAndTaxNumbers, RenderOnlyAtTheirExactLength) {
    EXPECT_EQ(TelephoneForm("8605550123"), "(860) 555-0123");
    EXPECT_EQ(PersonTaxIdForm("043123456"), "043-12-3456");
    EXPECT_EQ(EntityTaxIdForm("043123456"), "04-3123456");
    for (const auto text : {"", "860555012", "860-555-01", "(860) 555-0123", "86055501234", "abcdefghij"})
        EXPECT_EQ(TelephoneForm(text), text);
    for (const auto text : {"", "04312345", "043-12-34", "043-12-3456", "abcdefghi"}) {
        EXPECT_EQ(PersonTaxIdForm(text), text);
        EXPECT_EQ(EntityTaxIdForm(text), text);
    }
}

}  // namespace
}  // namespace quillmark
