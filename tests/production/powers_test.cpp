#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/fields.h"
#include "production/document_goldens.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using namespace field;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kShortForm = "Power Of Attorney / Short Form";
constexpr const char* kLongForm = "Power Of Attorney / Long Form";
constexpr const char* kTwoAgents = "Power Of Attorney / Two Agent";
constexpr const char* kSpecific = "Power Of Attorney / Specific";
constexpr const char* kAffidavit = "Power Of Attorney / Affidavit";

/// The seller of the sample deal gives a power of attorney.
Job PowerDeal() {
    Job job = SampleDeal();
    // clang-format off
    for (const auto& [n, text] : std::initializer_list<std::pair<Field, const char*>>{
        {SellerAttyAddr1,        "12 Church Street"},
        {SellerAttyCityStateZip, "New Haven, CT 06510"},
        {PrincipalOfPower,       "Walter B. Hollis"},
        {PrincipalAddr1,         "14 Chestnut Lane"},
        {PrincipalCityStateZip,  "Branford, CT 06405"},
        {AttyInFact,             "Nora Feld"},
        {AttyInFactAddr1,        "3 Water Street"},
        {AttyInFactAddr2,        "Unit 9"},
        {AttyInFactCityStateZip, "Guilford, CT 06437"},
    }) job.SetField(n, text);
    // clang-format on
    return job;
}

void HasSecondAgent(Job& job) {
    job.SetField(AttyInFact2, "Ezra Feld");
    job.SetField(AttyInFact2Addr1, "40 Boston Post Road");
    job.SetField(AttyInFact2CityStateZip, "Madison, CT 06443");
    job.SetField(PoaAgentCapacity, "Severally");
}

void HasSuccessors(Job& job) {
    job.SetField(SuccessorAgent1, "June Hollis of 51 Union Street, Guilford, CT 06437");
    job.SetField(SuccessorAgent2, "Carl Hollis of 6 Fair Street, Norwich, CT 06360");
}

/// The part of a reading from one text to another.
std::string Between(const std::string& reading, const std::string& from, const std::string& to) {
    const std::size_t begin = reading.find(from);
    return begin == std::string::npos ? "" : reading.substr(begin, reading.find(to, begin) - begin);
}

TEST(Powers, ShortForm) {
    ExpectWhole("powers/short_form", kShortForm, "one agent, no successor", PowerDeal());
    ExpectWhole("powers/short_form_unfilled", kShortForm, "a job without any entry", UnfilledDeal());
    ExpectBranch("powers/short_form_successors", kShortForm, "two successors", PowerDeal(), HasSuccessors);
    ExpectBranch("powers/short_form_second_successor", kShortForm, "a successor in the second field only",
                 PowerDeal(), [](Job& job) { job.SetField(SuccessorAgent2, "June Hollis"); });
}

TEST(Powers, TwoAgentFormIsTheShortFormWithBoth) {
    Job job = PowerDeal();
    HasSecondAgent(job);
    ExpectWhole("powers/two_agents", kTwoAgents, "two agents, to act severally", job);
    const std::string reading = Reading(kShortForm, job);
    EXPECT_THAT(reading, Not(HasSubstr("Ezra Feld"))) << "the short form has one agent";
    EXPECT_EQ(Reading(kShortForm, PowerDeal()), reading);
}

TEST(Powers, LongForm) {
    ExpectWhole("powers/long_form", kLongForm, "one agent; nothing said of successors and capacity",
                PowerDeal());
    ExpectBranch("powers/long_form_successors", kLongForm, "two successors, who act jointly with others",
                 PowerDeal(), [](Job& job) {
                     HasSuccessors(job);
                     job.SetField(PoaAgentCapacity, "Jointly");
                 });
    ExpectBranch("powers/long_form_unfilled", kLongForm, "a job without any entry", PowerDeal(),
                 [](Job& job) { job = UnfilledDeal(); });
}

// What the two forms share is one text: whoever changes a subject changes it in both.
TEST(Powers, LongFormHoldsTheSubjectsOfTheShortForm) {
    const char* const from = "*FIRST:*";
    const std::string subjects = Between(Reading(kShortForm, PowerDeal()), from, "*SECOND");
    EXPECT_THAT(subjects, HasSubstr("(N)→All other matters"));
    EXPECT_THAT(Reading(kLongForm, PowerDeal()), HasSubstr(subjects.substr(0, subjects.find("(N)"))));
}

TEST(Powers, SpecificPower) {
    ExpectWhole("powers/specific", kSpecific, "for the sale to one buyer", PowerDeal());
    ExpectBranch("powers/specific_couple", kSpecific, "for the sale to a couple, with a successor",
                 PowerDeal(), [](Job& job) {
                     BuyersAtOneAddress(job);
                     job.SetField(SuccessorAgent1, "June Hollis of 51 Union Street, Guilford, CT 06437");
                 });
}

TEST(Powers, EachAgentSwearsToTheAffidavit) {
    ExpectWhole("powers/affidavit", kAffidavit, "one agent", PowerDeal());
    Job job = PowerDeal();
    HasSecondAgent(job);
    const std::string both = Reading(kAffidavit, job);
    const std::string one = Reading(kAffidavit, PowerDeal());
    const std::string title = "AFFIDAVIT AS TO POWER OF ATTORNEY";
    const std::size_t second = both.rfind(title);
    ASSERT_NE(second, both.find(title)) << both;
    EXPECT_THAT(both.substr(second),
                HasSubstr("The undersigned Ezra Feld of 40 Boston Post Road, Madison, CT 06443 "
                          "being first duly sworn"));
    EXPECT_THAT(both.substr(0, second), Not(HasSubstr("Ezra")));
    EXPECT_THAT(both.substr(second), Not(HasSubstr("Nora")));
    EXPECT_THAT(both, testing::StartsWith(one.substr(0, one.rfind("[left"))));
}

TEST(Powers, AgentInstructions) {
    ExpectWhole("powers/agent_instructions", "POA / Agent Instructions", "the principal is known",
                PowerDeal());
}

}  // namespace
}  // namespace quillmark::test
