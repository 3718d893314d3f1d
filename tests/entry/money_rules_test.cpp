#include <gtest/gtest.h>

#include "core/job.h"
#include "entry/smart_fields.h"

namespace quillmark {
namespace {

class MoneyRules : public ::testing::Test {
 protected:
    MoneyRules() { AttachSmartFields(job); }

    std::string Entered(int n, const char* text) {
        job.SetField(n, text);
        return job.D(n);
    }

    Job job;
};

TEST_F(MoneyRules, AmountsAreShownAndSpelledOut) {
    EXPECT_EQ(Entered(76, "500000"), "$500,000.00");
    EXPECT_EQ(job.D(1076), "FIVE HUNDRED THOUSAND & 00/100");
    EXPECT_EQ(Entered(89, "$1,234.567"), "$1,234.57");
    EXPECT_EQ(job.D(1089), "ONE THOUSAND TWO HUNDRED THIRTY FOUR & 57/100");
    job.ClearField(76);
    EXPECT_EQ(job.D(1076), "[sale price words]");
    EXPECT_EQ(job.D(76), "[sale price numeric]");
}

TEST_F(MoneyRules, TheLastLetterTypedIsTheTag) {
    EXPECT_EQ(Entered(170, "1000 - p"), "$1,000.00 - P");
    EXPECT_EQ(Entered(170, "1000 - paid"), "$1,000.00 - D");
    EXPECT_EQ(Entered(171, "1000 = u "), "$1,000.00 = U");
    EXPECT_EQ(Entered(105, "1000-p"), "$1,000.00 - P") << "no digit is lost for want of a blank";
    EXPECT_EQ(Entered(178, "-100"), "-$100.00") << "a hyphen that stands first is a minus sign";
    EXPECT_EQ(Entered(178, "call first"), "call first");
}

TEST_F(MoneyRules, PaidOutsideClosing) {
    EXPECT_EQ(Entered(171, "poc"), "POC");
    EXPECT_EQ(Entered(176, "Poc"), "POC");
    EXPECT_EQ(Entered(175, "poc"), "poc") << "common charges are never paid outside closing";
}

TEST_F(MoneyRules, DescriptionsBehindAmounts) {
    EXPECT_EQ(Entered(182, "450 - Title search"), "$450.00 - Title search");
    EXPECT_EQ(Entered(212, "450-  well-water test "), "$450.00 - well-water test");
    EXPECT_EQ(Entered(193, "250 - fire tax"), "$250.00 - fire tax");
    EXPECT_EQ(Entered(193, "250 - fire tax = P"), "$250.00 - fire tax = P");
    EXPECT_EQ(Entered(193, "250 = u"), "$250.00 = U");
}

TEST_F(MoneyRules, TaxIdentifiersFollowTheKindOfSeller) {
    EXPECT_EQ(Entered(26, "043123456"), "043-12-3456");
    EXPECT_EQ(Entered(63, "043123456"), "043-12-3456");
    EXPECT_EQ(Entered(26, "04312345"), "04312345");
    job.SetOption(Entity, true);
    EXPECT_EQ(Entered(32, "061234567"), "06-1234567");
    EXPECT_EQ(Entered(68, "061234567"), "061-23-4567") << "a buyer is a person";
}

}  // namespace
}  // namespace quillmark
