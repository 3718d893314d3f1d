#include <gtest/gtest.h>

#include "core/job.h"
#include "entry/smart_fields.h"

namespace quillmark {
namespace {

TEST(NameRules, TheOptionsDecideAnewOnceTheRuleRuns) {
    Job job;
    AttachSmartFields(job);
    job.SetOption(TwoSellers, true);
    job.SetField(21, "Acme Realty LLC");
    job.SetField(28, "Ringo Jones");
    EXPECT_EQ(job.D(1021), "Acme Realty LLC and Ringo Jones");
    job.SetOption(TwoSellers, false);
    job.SetOption(Person, false);
    job.SetOption(Entity, true);
    job.RunChangeRule(21);
    EXPECT_EQ(job.D(1021), "Acme Realty LLC");
    EXPECT_EQ(job.D(3021), "Acme Realty LLC");
}

TEST(NameRules, ASecondRunKeepsTheAttorneysNumber) {
    Job job;
    AttachSmartFields(job);
    job.SetField(3, "Jane Roe / 412345");
    EXPECT_EQ(job.txtField(3).text, "Jane Roe");
    job.RunChangeRule(3);
    EXPECT_EQ(job.D(1003), "412345");
}

TEST(NameRules, TheAttorneysTagIsThePlaceInTheChoiceList) {
    Job job;
    AttachSmartFields(job, {.choices = [](int) { return "Jane Roe/412345; Max Mustermann/498765"; }});
    job.SetField(3, "Max Mustermann/498765");
    EXPECT_EQ(job.txtField(3).tag, "1");
    job.SetField(3, "Nobody Known");
    EXPECT_EQ(job.txtField(3).tag, "0");
}

}  // namespace
}  // namespace quillmark
