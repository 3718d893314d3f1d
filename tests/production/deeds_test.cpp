#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/document_goldens.h"
#include "production/sample_deal.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using namespace field;

void ExpectReading(const std::string& golden, const std::string& document, const std::string& facts,
                   const Job& job) {
    ExpectWhole("deeds/" + golden, document, facts, job);
}

/// The deed of a changed deal as a redline against the warranty deed of the sample deal.
void ExpectRedline(const std::string& golden, const std::string& document, const std::string& facts,
                   const std::function<void(Job&)>& change) {
    Job job = SampleDeal();
    change(job);
    ExpectGolden("deeds/" + golden + ".txt",
                 document + "\n" + facts +
                     "; redlined against the warranty deed of one seller to one buyer\n\n" +
                     Redline(Reading("Deed / Warranty", SampleDeal()), Reading(document, job)));
}

TEST(Deeds, WarrantyInFull) {
    ExpectReading("warranty", "Deed / Warranty", "one person sells to one buyer", SampleDeal());
    ExpectReading("warranty_unfilled", "Deed / Warranty", "a job without any entry", UnfilledDeal());
}

TEST(Deeds, WarrantyByItsParties) {
    const std::string deed = "Deed / Warranty";
    ExpectRedline("warranty_two_sellers", deed, "a couple at one address sells to a couple", [](Job& job) {
        SellersAtOneAddress(job);
        BuyersAtOneAddress(job);
    });
    ExpectRedline("warranty_parties_apart", deed, "sellers and buyers at two addresses each", [](Job& job) {
        SellersApart(job);
        BuyersApart(job);
        job.SetField(TenancyType, "tenants in common");
    });
    ExpectRedline("warranty_entity", deed, "a company sells to one buyer", SellerIsEntity);
    ExpectRedline("warranty_entity_two_buyers", deed, "a company sells to two buyers", [](Job& job) {
        SellerIsEntity(job);
        BuyersAtOneAddress(job);
    });
    ExpectRedline("warranty_fiduciary", deed, "an executor sells with warranty",
                  [](Job& job) { SellerIsFiduciary(job, "Executor"); });
}

TEST(Deeds, WarrantyByPowerOfAttorney) {
    const std::string deed = "Deed / Warranty";
    ExpectRedline("warranty_power_one_seller", deed, "the only seller acts by an attorney in fact",
                  [](Job& job) { SellsByPower(job, "Walter B. Hollis", "Nora Feld"); });
    ExpectRedline("warranty_power_seller_1", deed, "the first of two sellers acts by a third person",
                  [](Job& job) {
                      SellersApart(job);
                      SellsByPower(job, "Walter B. Hollis", "Nora Feld");
                  });
    ExpectRedline("warranty_power_seller_2", deed, "the second of two sellers acts by the first",
                  [](Job& job) {
                      SellersAtOneAddress(job);
                      SellsByPower(job, "June Hollis", "Walter B. Hollis");
                  });
}

TEST(Deeds, PrincipalWhoIsNoSellerLeavesThePlainDeed) {
    Job job = SampleDeal();
    SellersApart(job);
    const std::string plain = Reading("Deed / Warranty", job);
    SellsByPower(job, "Somebody Else", "Nora Feld");
    EXPECT_EQ(Reading("Deed / Warranty", job), plain);
}

TEST(Deeds, TheOtherKinds) {
    const Job job = SampleDeal();
    Job toCouple = SampleDeal();
    BuyersAtOneAddress(toCouple);
    ExpectReading("quitclaim", "Deed / Quitclaim", "one person sells to one buyer", job);
    ExpectReading("administrator", "Deed / Administrator", "to one buyer", job);
    ExpectReading("conservator", "Deed / Conservator", "to one buyer", job);
    ExpectReading("executor", "Deed / Executor", "to a couple", toCouple);
    ExpectReading("testamentary_trustee", "Deed / Testamentary Trustee", "to one buyer", job);
    ExpectReading("trustee", "Deed / Trustee", "to one buyer", job);
}

// A fiduciary gives the deed alone and in person, whatever the options say of sellers.
TEST(Deeds, FiduciaryDeedKnowsOneGrantorOnly) {
    Job job = SampleDeal();
    const std::string plain = Reading("Deed / Executor", job);
    SellersAtOneAddress(job);
    SellerIsFiduciary(job, "Executor");
    SellsByPower(job, "Walter B. Hollis", "Nora Feld");
    EXPECT_EQ(Reading("Deed / Executor", job), plain);
}

TEST(Deeds, ScheduleA) {
    ExpectReading("schedule_a", "Schedule A", "a description of two paragraphs, three encumbrances",
                  SampleDeal());
    Job job = SampleDeal();
    job.SetField(SchedAEncumbrances, "");
    EXPECT_NE(Reading("Schedule A", job).find("\n1. \n[justified, indents 0 and 13.5]\n\n"),
              std::string::npos)
        << "no encumbrance is one empty numbered item\n"
        << Reading("Schedule A", job);
}

TEST(Deeds, ScheduleAOfAPicture) {
    Job job = SampleDeal();
    job.SetField(SchedADescription, kImageLiteral);
    job.FieldPictures[SchedADescription] =
        std::string("BM\x3a\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 30) +
        std::string(28, '\0');
    const std::string reading = Reading("Schedule A", job);
    EXPECT_NE(reading.find("{Legal description of 14 Chestnut Lane, Branford, CT 06405}"), std::string::npos)
        << reading;
    EXPECT_EQ(reading.find("IMAGE"), std::string::npos) << reading;
    job.FieldPictures[SchedADescription] = "BM of a drawing";
    EXPECT_NE(Reading("Schedule A", job).find("[sched A description]"), std::string::npos)
        << "one that cannot be read leaves its marker";
}

TEST(Deeds, NoticeOfJointTenantsOnlyForTheBareWords) {
    Job job = SampleDeal();
    const Builder& deed = *FindBuilder("Deed / Warranty");
    EXPECT_EQ(NoticesOf(deed, job), "C") << "with rights of survivorship said, nobody is surprised";
    job.SetField(TenancyType, "Joint Tenants");
    EXPECT_EQ(NoticesOf(deed, job), "CD");
    EXPECT_EQ(NoticesOf(*FindBuilder("Schedule A"), job), "");
}

}  // namespace
}  // namespace quillmark::test
