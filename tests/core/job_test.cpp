#include "core/job.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmark {
namespace {

constexpr int kSeller = 21;
constexpr int kPrice = 76;

TEST(Job, StartsUnfilledWithTheUsualOptions) {
    const Job job;
    for (int n = 1; n <= kFields; ++n) {
        EXPECT_EQ(job.D(n), FieldMarker(n)) << n;
        EXPECT_EQ(job.txtField(n).text, FieldMarker(n)) << n;
        EXPECT_EQ(job.txtField(n).colour, FieldColour::Unfilled) << n;
        EXPECT_FALSE(job.IsFilled(n)) << n;
    }
    std::vector<int> set;
    for (int n = 1; n <= kOptions; ++n)
        if (job.optConf(n)) set.push_back(n);
    EXPECT_EQ(set, (std::vector{1, 3, 5, 7, 12}));
}

TEST(Job, DerivedValuesStartAsTheHolesThatADocumentShows) {
    const Job job;
    for (const DerivedField& derived : DerivedFields()) EXPECT_EQ(job.D(derived.number), derived.marker);
    EXPECT_EQ(job.D(1023), "[seller 1 addr 1, addr 2]");
    EXPECT_EQ(job.D(2070), "[property address 1 - addr 2]");
    EXPECT_EQ(job.D(1021), "[seller 1 name]");
    EXPECT_EQ(job.D(1003), "");
}

TEST(Job, AChangeReachesHolderValueAndColourBeforeTheSmartRule) {
    Job job;
    int runs = 0;
    job.SetChangeRule([&](Job& changed, int n) {
        ++runs;
        EXPECT_EQ(n, kSeller);
        EXPECT_EQ(changed.D(n), "John J. Doe");
        EXPECT_EQ(changed.txtField(n).colour, FieldColour::Filled);
    });
    job.SetField(kSeller, "John J. Doe");
    EXPECT_TRUE(job.IsFilled(kSeller));
    job.SetField(kSeller, "John J. Doe");
    EXPECT_EQ(runs, 1) << "an equal text is no change";
    job.RunChangeRule(kSeller);
    EXPECT_EQ(runs, 2);
}

TEST(Job, DoubleQuotesBecomeApostrophesWhateverTheirNumber) {
    Job job;
    std::vector<std::string> seen;
    job.SetChangeRule([&](Job& changed, int n) { seen.push_back(changed.D(n)); });
    job.SetField(kSeller, "a \"b\" c");
    EXPECT_EQ(job.txtField(kSeller).text, "a 'b' c");
    EXPECT_EQ(job.D(kSeller), "a 'b' c");
    EXPECT_EQ(seen, std::vector<std::string>{"a 'b' c"}) << "the quoted text must never reach a rule";
}

TEST(Job, ARuleMayPutItsOwnFieldIntoFinalForm) {
    Job job;
    job.SetChangeRule([](Job& changed, int n) {
        if (n == kPrice) changed.SetField(n, "$500,000.00");
        if (n == kSeller) changed.SetDerived(1, kSeller, changed.D(kSeller));
    });
    job.SetField(kPrice, "500000");
    EXPECT_EQ(job.D(kPrice), "$500,000.00");
    job.SetField(kSeller, job.D(kPrice));
    EXPECT_EQ(job.D(1021), "$500,000.00");
}

TEST(Job, AFailingRuleReachesTheCallerWithTheTextInPlace) {
    Job job;
    job.SetChangeRule([](Job&, int) { throw std::runtime_error("no date"); });
    EXPECT_THROW(job.SetField(1, "soon"), std::runtime_error);
    EXPECT_EQ(job.D(1), "soon");
}

TEST(Job, ATextEqualToTheMarkerIsUnfilledAndEmptyIsToo) {
    Job job;
    job.SetField(kSeller, "John J. Doe");
    job.SetField(kSeller, "[seller 1 name]");
    EXPECT_FALSE(job.IsFilled(kSeller));
    EXPECT_EQ(job.txtField(kSeller).colour, FieldColour::Unfilled);
    job.SetField(kSeller, "");
    EXPECT_FALSE(job.IsFilled(kSeller));
    job.SetField(kSeller, "x");
    job.ClearField(kSeller);
    EXPECT_EQ(job.D(kSeller), "[seller 1 name]");
}

TEST(Job, ValuesNormalisedForTypingLeaveTheHolderAlone) {
    Job job;
    job.SetField(100, "$400,000.00 - P");
    job.SetValue(100, "$400,000.00");
    EXPECT_EQ(job.txtField(100).text, "$400,000.00 - P");
    EXPECT_EQ(job.D(100), "$400,000.00");
    job.SetField(100, "$400,000.00 - P");
    EXPECT_EQ(job.D(100), "$400,000.00 - P") << "setting the shown text again restores the value";
}

TEST(Job, TheScratchHolderHasNoValue) {
    Job job;
    job.SetField(0, "Lot 7 \"East\"");
    EXPECT_EQ(job.txtField(0).text, "Lot 7 'East'");
    EXPECT_EQ(job.D(0), "");
}

TEST(Job, NumbersOutsideTheTableAreRefusedOrEmpty) {
    Job job;
    for (const int n : {-1, 0, 241, 999, 1000, 1241, 5001, -1001}) EXPECT_EQ(job.D(n), "") << n;
    EXPECT_THROW(job.SetField(-1, "x"), std::out_of_range);
    EXPECT_THROW(job.SetField(241, "x"), std::out_of_range);
    EXPECT_THROW(job.SetValue(0, "x"), std::out_of_range);
    EXPECT_THROW(job.SetDerived(5, 1, "x"), std::out_of_range);
    EXPECT_THROW(job.SetDerived(1, 241, "x"), std::out_of_range);
}

TEST(Job, UserDefinedFieldsKeepTheirOrderAndLimit) {
    Job job;
    EXPECT_TRUE(job.SetUserField("[lot fee]", "250"));
    EXPECT_TRUE(job.SetUserField("[model]", "the \"Oak\""));
    EXPECT_TRUE(job.SetUserField("[lot fee]", "300"));
    EXPECT_EQ(job.UserField("[lot fee]"), "300");
    EXPECT_EQ(job.UserField("[model]"), "the 'Oak'");
    ASSERT_EQ(job.userFields.size(), 2u);
    EXPECT_EQ(job.userFields[0].first, "[lot fee]");

    EXPECT_TRUE(job.SetUserField("[lot fee]", ""));
    EXPECT_EQ(job.UserField("[lot fee]"), "");
    for (int i = 1; job.userFields.size() < kUserFields; ++i)
        job.SetUserField("[f" + std::to_string(i) + "]", "v");
    EXPECT_FALSE(job.SetUserField("[one too many]", "v"));
    EXPECT_TRUE(job.SetUserField("[model]", "Elm"));
}

TEST(Job, RandomEditsKeepHolderValueAndColourTogether) {
    std::mt19937 random(20050416);
    const std::vector<std::string> texts = {"",      "John J. Doe",     "a \"b\"", "\"",
                                            "$1.00", "[seller 1 name]", "[]"};
    Job job;
    for (int step = 0; step < 5000; ++step) {
        const int n = 1 + static_cast<int>(random() % kFields);
        if (random() % 5 == 0)
            job.ClearField(n);
        else
            job.SetField(n, texts[random() % texts.size()]);
        const FieldHolder& holder = job.txtField(n);
        ASSERT_EQ(holder.text, job.D(n)) << "field " << n << ", step " << step;
        ASSERT_EQ(holder.text.find('"'), std::string::npos) << "field " << n << ", step " << step;
        ASSERT_EQ(holder.colour == FieldColour::Unfilled, job.D(n) == FieldMarker(n)) << "field " << n;
    }
}

TEST(Job, ResetForgetsEverythingButTheRule) {
    Job job;
    int runs = 0;
    job.SetChangeRule([&](Job&, int) { ++runs; });
    job.name = "Doe";
    job.JobDocuments = "Deed / Warranty:";
    job.FieldPictures[201] = "BM";
    job.SetField(kSeller, "John J. Doe");
    job.SetOption(TwoSellers, true);
    job.SetUserField("[lot fee]", "250");
    job.txtField(kSeller).locked = true;
    job.Reset();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(job.D(kSeller), "[seller 1 name]");
    EXPECT_FALSE(job.txtField(kSeller).locked);
    EXPECT_FALSE(job.optConf(TwoSellers));
    EXPECT_TRUE(job.name.empty() && job.JobDocuments.empty() && job.FieldPictures[201].empty());
    EXPECT_TRUE(job.userFields.empty());
    job.SetField(kSeller, "Jane E. Doe");
    EXPECT_EQ(runs, 2);
}

}  // namespace
}  // namespace quillmark
