#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "core/fields.h"
#include "core/people.h"
#include "production/builders/builder_list.h"
#include "production/document_goldens.h"
#include "production/engine_desk.h"
#include "production/kit/pictures.h"
#include "production/sample_deal.h"
#include "support/scratch.h"
#include "word/docx/objects/picture_size.h"

namespace quillmark::test {
namespace {

using namespace field;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kCertification = "1099 Seller Certification";
constexpr const char* kSheet = "1099 Information Sheet";
constexpr const char* kAddendum = "CFPB Addendum";
constexpr const char* kSmoke = "Smoke Detector Affidavit";

Job ClosingDeal() {
    Job job = SampleDeal();
    job.SetField(SellerLawfirm, "Penfield & Ross, LLC");
    job.SetField(SellerAttyPhone, "(203) 555-1212");
    job.SetField(SellerAttyFax, "(203) 555-1213");
    job.SetField(BuyerLawfirm, "Lang Law Group");
    job.SetField(BuyerAttyPhone, "(203) 555-3434");
    job.SetField(BuyerAttyFax, "(203) 555-3435");
    job.SetField(ClosingDate, "May 29, 2024");
    job.SetField(ProrationDate, "May 29, 2024");
    job.SetField(ContractDate, "April 1, 2024");
    job.SetField(AnnualPropertyTax, "$7,300.03 - P");
    job.SetField(Seller1TaxId, "043-12-3456");
    job.SetField(Seller2TaxId, "043-65-4321");
    job.SetField(SellerFwdAddr1, "9 New Street");
    job.SetField(SellerFwdCityStateZip, "Guilford, CT 06437");
    job.SetField(ConstructionMonthYear, "06/1988");
    return job;
}

Job EntityDeal() {
    Job job = ClosingDeal();
    SellerIsEntity(job);
    job.SetField(NamesOfDirectors, "Ann Poe, John Roe, Jr. and Lee Moe");
    job.SetField(NamesOfMembers, "Marcus Dell, Ann Poe");
    job.SetField(CorporateSecretary, "Lee Moe");
    job.SetField(StateOfFormation, "Connecticut");
    return job;
}

TEST(People, OfAListInAField) {
    EXPECT_THAT(PeopleIn("Ann Poe, John Roe, Jr. and Lee Moe"),
                ElementsAre("Ann Poe", "John Roe, Jr.", "Lee Moe"));
    EXPECT_THAT(PeopleIn(" Ann Poe,  Lee Moe, Esq., and Sandy Rand;"),
                ElementsAre("Ann Poe", "Lee Moe, Esq.", "Sandy Rand"));
    EXPECT_THAT(PeopleIn("Ann Poe\r\nLee Moe III"), ElementsAre("Ann Poe", "Lee Moe III"));
    EXPECT_THAT(PeopleIn(""), ElementsAre("")) << "somebody has to sign";
}

TEST(EntityPapers, InFull) {
    ExpectWhole("entity/resolution_corporate", "Resolution / Corporate", "three directors", EntityDeal());
    ExpectWhole("entity/resolution_members", "Resolution / Unanimous Consent", "two members", EntityDeal());
    ExpectWhole("entity/secretarys_certificate", "Secretary’s Certificate / Corporate", "to one buyer",
                EntityDeal());
    ExpectWhole("entity/incumbency_corporate", "Incumbency Cert / Corporate", "a corporation", EntityDeal());
    ExpectWhole("entity/incumbency_llc", "Incumbency Cert / LLC", "two members", EntityDeal());
    ExpectBranch("entity/incumbency_llc_one_member", "Incumbency Cert / LLC", "one member", EntityDeal(),
                 [](Job& job) { job.SetField(NamesOfMembers, "Marcus Dell"); });
}

TEST(TaxPapers, OfOneSeller) {
    ExpectWhole("notices/tax_certification", kCertification, "one person sells", ClosingDeal());
    ExpectWhole("notices/tax_information", kSheet, "one person sells", ClosingDeal());
    ExpectBranch("notices/tax_information_entity", kSheet, "a company sells", ClosingDeal(), SellerIsEntity);
    ExpectBranch("notices/tax_information_fiduciary", kSheet, "an executor sells", ClosingDeal(),
                 [](Job& job) { SellerIsFiduciary(job, "Executor"); });
    ExpectBranch("notices/tax_certification_power", kCertification, "the seller acts by an attorney in fact",
                 ClosingDeal(), [](Job& job) { SellsByPower(job, "Walter B. Hollis", "Nora Feld"); });
}

TEST(TaxPapers, EachSellerHasTheirOwn) {
    Job job = ClosingDeal();
    SellersApart(job);
    SellsByPower(job, "June Hollis", "Nora Feld");
    for (const char* document : {kCertification, kSheet}) {
        const std::string reading = Reading(document, job);
        const std::size_t page = reading.find("‹page›");
        ASSERT_NE(page, std::string::npos) << document;
        EXPECT_THAT(reading.substr(0, page),
                    AllOf(HasSubstr("043-12-3456"), HasSubstr("→Walter B. Hollis, Seller\n\n"),
                          Not(HasSubstr("June Hollis"))));
        EXPECT_THAT(reading.substr(page),
                    AllOf(HasSubstr("043-65-4321"), Not(HasSubstr("Walter")),
                          HasSubstr("→June Hollis, Seller\n→By Nora Feld, his/her Attorney")));
    }
    EXPECT_THAT(Reading(kSheet, job),
                AllOf(HasSubstr("Share of this seller→50%"), HasSubstr("sale of property:  2")));
}

// Both sheets together report the whole price and the whole tax.
TEST(TaxPapers, HalvesAddUpToTheCent) {
    Job job = ClosingDeal();
    SellersAtOneAddress(job);
    job.SetField(SalePriceNumeric, "$415,000.01");
    const std::string reading = Reading(kSheet, job);
    EXPECT_THAT(reading, AllOf(HasSubstr("→$207,500.01\n"), HasSubstr("→$207,500.00\n")));
    // 7300.03 / 366 days of the fiscal year * 33 days from May 29 through June 30 are 658.20.
    EXPECT_THAT(reading, HasSubstr("^1^→$329.10\n"));
}

TEST(TaxPapers, NumberCanBeWrittenInByHandAndAnUnfilledTaxShows) {
    Job job = ClosingDeal();
    job.SetField(Seller1TaxId, "");
    EXPECT_THAT(Reading(kCertification, job), HasSubstr("(TIN):   ________________________\n"));
    EXPECT_THAT(Reading(kSheet, UnfilledDeal()), HasSubstr("^1^→[annual property tax]\n"));
}

TEST(TaxPapers, SheetKnowsWhetherTheCertificationIsMadeToo) {
    const Job job = ClosingDeal();
    EngineDesk desk;
    desk.Type(kSheet, job, {kCertification, kSheet});
    EXPECT_THAT(desk.Reading(), HasSubstr("{x} certifying that the property"));
    EXPECT_THAT(Reading(kSheet, job), HasSubstr("{ } certifying that the property"));
}

TEST(Notices, InFull) {
    ExpectWhole("notices/fax_cover", "Fax Cover Sheet / Buyer Atty", "one seller, one buyer", ClosingDeal());
    ExpectWhole("notices/closing_disclosure", kAddendum, "one seller, one buyer", ClosingDeal());
    ExpectBranch("notices/closing_disclosure_entity", kAddendum, "a company sells to a couple", ClosingDeal(),
                 [](Job& job) {
                     SellerIsEntity(job);
                     BuyersAtOneAddress(job);
                 });
    ExpectBranch("notices/closing_disclosure_power", kAddendum,
                 "one of two sellers acts by an attorney in fact", ClosingDeal(), [](Job& job) {
                     SellersApart(job);
                     SellsByPower(job, "June Hollis", "Nora Feld");
                 });
    ExpectWhole("notices/fair_housing", "CHRO Fair Housing Notice", "one buyer", ClosingDeal());
}

TEST(SmokeDetectorAffidavit, WithItsTables) {
    ExpectWhole("affidavits/smoke_detector", kSmoke, "one seller, one buyer", ClosingDeal());
    ExpectBranch("affidavits/smoke_detector_couples", kSmoke, "a couple sells to a couple, the year unknown",
                 ClosingDeal(), [](Job& job) {
                     SellersApart(job);
                     BuyersApart(job);
                     job.SetField(ConstructionMonthYear, FieldMarker(ConstructionMonthYear));
                 });
}

TEST(Pictures, AreSharpInPrintSmallAndDescribed) {
    ASSERT_FALSE(PictureSources().empty());
    for (const PictureSource& source : PictureSources()) {
        const word::docx::objects::PictureSize size = word::docx::objects::ReadPictureSize(source.bytes);
        EXPECT_GE(size.dotsPerInchX, 300) << source.file;
        EXPECT_LT(source.bytes.size(), 10'000u) << source.file;
        EXPECT_GT(size.description.size(), 20u) << source.file;
    }
}

#ifndef _WIN32
// The word processor gets the picture as a file, and nothing of that is left behind.
TEST(Pictures, LeaveNoFile) {
    const ScratchFolder folder;
    ::setenv("TMPDIR", folder.path().c_str(), 1);
    EXPECT_THAT(Reading("CHRO Fair Housing Notice", ClosingDeal()), HasSubstr("{Three people"));
    ::unsetenv("TMPDIR");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}
#endif

}  // namespace
}  // namespace quillmark::test
