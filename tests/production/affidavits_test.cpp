#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "core/fields.h"
#include "production/document_goldens.h"
#include "production/sample_deal.h"
#include "selection/field_defaults.h"

namespace quillmark::test {
namespace {

using namespace field;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kForeignPersons = "Foreign Persons Affidavit / Transferor";
constexpr const char* kNameChange = "Name Change Affidavit";
constexpr const char* kOwners = "Owner's Affidavit";
constexpr const char* kTrustees = "Trustee's Affidavit";

Job TaxedDeal() {
    Job job = SampleDeal();
    job.SetField(Seller1TaxId, "043-12-3456");
    job.SetField(Seller2TaxId, "043-65-4321");
    return job;
}

TEST(ForeignPersonsAffidavit, OfOnePersonAndOfAnEntity) {
    ExpectWhole("affidavits/foreign_person", kForeignPersons, "one person sells", TaxedDeal());
    ExpectWhole("affidavits/foreign_person_unfilled", kForeignPersons, "a job without any entry",
                UnfilledDeal());
    Job job = TaxedDeal();
    SellerIsEntity(job);
    job.SetField(Seller1TaxId, "06-1234567");
    ExpectWhole("affidavits/foreign_entity", kForeignPersons, "a company sells", job);
}

TEST(ForeignPersonsAffidavit, EachSellerHasADocument) {
    ExpectBranch("affidavits/foreign_person_two_sellers", kForeignPersons, "two sellers at two addresses",
                 TaxedDeal(), SellersApart);
}

TEST(ForeignPersonsAffidavit, SignedByAnotherOrInACapacity) {
    ExpectBranch("affidavits/foreign_person_power", kForeignPersons, "the seller acts by an attorney in fact",
                 TaxedDeal(), [](Job& job) { SellsByPower(job, "Walter B. Hollis", "Nora Feld"); });
    ExpectBranch("affidavits/foreign_person_fiduciary", kForeignPersons, "an executor sells", TaxedDeal(),
                 [](Job& job) { SellerIsFiduciary(job, "Executor"); });
    Job job = TaxedDeal();
    SellersApart(job);
    SellsByPower(job, "June Hollis", "Nora Feld");
    const std::string reading = Reading(kForeignPersons, job);
    EXPECT_THAT(reading, HasSubstr("→June Hollis, Transferor\n→By Nora Feld, his/her Attorney in Fact\n"));
    EXPECT_THAT(reading, Not(HasSubstr("Walter B. Hollis, Transferor\n→By")));
}

// A tax number may be left out of a job; the finished document then has a line for it.
TEST(ForeignPersonsAffidavit, TaxNumberCanBeWrittenInByHand) {
    Job job = TaxedDeal();
    job.SetField(Seller1TaxId, "");
    EXPECT_THAT(Reading(kForeignPersons, job), HasSubstr("(Social Security Number) is ____"));
}

Job RenamedSeller() {
    Job job = SampleDeal();
    job.SetField(SellerFormerName, "June Arden");
    job.SetField(SellerCurrentName, "June Hollis");
    job.SetField(NameChangeInstr, "Marriage");
    job.SetField(NameChangeDate, "June 8, 1991");
    job.SetField(DeedRecordingVol, "366");
    job.SetField(DeedRecordingPage, "120");
    return job;
}

TEST(NameChangeAffidavit, TellsBothNamesAndTheDeed) {
    ExpectWhole("affidavits/name_change", kNameChange, "a seller has married", RenamedSeller());
    ExpectBranch("affidavits/name_change_unfilled", kNameChange, "a job without any entry", RenamedSeller(),
                 [](Job& job) { job = UnfilledDeal(); });
}

Job TrusteeSells() {
    Job job = SampleDeal();
    SellerIsFiduciary(job, "Trustee");
    return job;
}

TEST(TrusteesAffidavit, OfTheTrusteeNamedInTheTrust) {
    ExpectWhole("affidavits/trustee", kTrustees, "the original trustee, no order of a court", TrusteeSells());
    ExpectBranch("affidavits/trustee_unfilled", kTrustees, "a job without any entry", TrusteeSells(),
                 [](Job& job) { job = UnfilledDeal(); });
}

TEST(TrusteesAffidavit, OfASuccessorAndOfTwoTrustees) {
    ExpectBranch("affidavits/trustee_successor", kTrustees, "a successor whom the court has appointed",
                 TrusteeSells(), [](Job& job) {
                     job.SetField(OriginalTrustee, "Agnes M. Hollis");
                     job.SetField(DateOfProbateOrder, "March 3, 2019");
                 });
    ExpectBranch("affidavits/trustee_two", kTrustees, "two trustees convey to a couple", TrusteeSells(),
                 [](Job& job) {
                     SellersAtOneAddress(job);
                     BuyersAtOneAddress(job);
                 });
}

Job InsuredBy(const std::string& company) {
    Job job = SampleDeal();
    job.SetField(BuyerTitleInsurCo, company);
    return job;
}

TEST(OwnersAffidavit, InTheFormOfACompany) {
    const Job job = InsuredBy("First American Title Insurance Company");
    ExpectWhole("affidavits/owner_first_american", kOwners, "insured by First American; one owner", job);
    ExpectBranch("affidavits/owner_two_sellers", kOwners, "two owners, one of them by an attorney in fact",
                 job, [](Job& changed) {
                     SellersApart(changed);
                     SellsByPower(changed, "June Hollis", "Nora Feld");
                 });
    ExpectBranch("affidavits/owner_condominium", kOwners, "a condominium", job,
                 [](Job& changed) { changed.SetOption(Condo, true); });
    ExpectBranch("affidavits/owner_entity", kOwners, "a company sells", job, SellerIsEntity);
    ExpectBranch("affidavits/owner_fiduciary", kOwners, "an executor sells", job,
                 [](Job& changed) { SellerIsFiduciary(changed, "Executor"); });
}

/// The companies that the grid offers for the field.
std::vector<std::string> TitleInsurers() {
    Settings settings;
    Folders folders;
    FirmDefaults firmDefaults;
    const FixedClock clock{std::chrono::year(2024) / 5 / 2};
    std::string list =
        FieldDefault("[buyer title insur co]", JobInHand(), {settings, folders, firmDefaults, clock});
    std::vector<std::string> companies;
    for (std::size_t end; (end = list.find("; ")) != std::string::npos; list.erase(0, end + 2))
        companies.push_back(list.substr(0, end));
    companies.push_back(list);
    return companies;
}

/// The statements of a form, without what the deal and the company's name change in it.
std::string Statements(std::string reading) {
    const std::size_t begin = reading.find("\n1. ");
    return reading.substr(begin, reading.rfind("The undersigned has made") - begin);
}

TEST(OwnersAffidavit, EachCompanyOfTheListHasAFormOfItsOwn) {
    std::map<std::string, std::string> companyOf;
    for (const std::string& company : TitleInsurers()) {
        const std::string reading = Reading(kOwners, InsuredBy(company));
        EXPECT_THAT(reading, HasSubstr("OWNERS AFFIDAVIT AND AFFIDAVIT IN LIEU OF SURVEY")) << company;
        EXPECT_THAT(reading, HasSubstr("so that " + company + ", its agents")) << company;
        const auto [other, isNew] = companyOf.emplace(Statements(reading), company);
        EXPECT_TRUE(isNew) << company << " has the form of " << other->second;
        for (const char* const statement : {"This transaction involves the sale or mortgage of real property",
                                            "There are no tenants, lessees or other parties in possession of",
                                            "All real estate taxes, common charges, association dues"})
            EXPECT_THAT(reading, HasSubstr(statement)) << company;
    }
    EXPECT_EQ(companyOf.size(), 9u);
}

TEST(OwnersAffidavit, OfOtherCompaniesAndOfCommercialDeals) {
    ExpectWhole("affidavits/owner_comprehensive", kOwners, "insured by a company that is not on the list",
                InsuredBy("Shoreline Title Company"));
    Job job = InsuredBy("Chicago Title Insurance Company");
    SellerIsEntity(job);
    job.SetOption(Commercial, true);
    ExpectWhole("affidavits/owner_commercial", kOwners, "a company sells a shop; insured by Chicago Title",
                job);
    EXPECT_THAT(Reading(kOwners, UnfilledDeal()),
                AllOf(HasSubstr("COMPREHENSIVE TITLE AFFIDAVIT"), HasSubstr("[buyer title insur co]")));
    EXPECT_THAT(Reading(kOwners, InsuredBy("")), HasSubstr("so that the title insurer, its agents"));
}

}  // namespace
}  // namespace quillmark::test
