#include <gtest/gtest.h>

#include <vector>

#include "core/fields.h"
#include "production/builders/builder_list.h"
#include "production/document_goldens.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using namespace field;

constexpr const char* kFnma = "Mortgage Deed / FNMA";
constexpr const char* kNote = "Note / Fixed Rate Amortized";
constexpr const char* kBalloon = "Note / Fixed Rate Balloon";
constexpr const char* kRelease = "Release Of Mortgage / Partial";

/// The buyer owes the seller a part of the price.
Job MortgagedDeal() {
    Job job = SampleDeal();
    job.SetField(BuyersMtgAmount, "$340,000.00");
    job.SetDerived(1, BuyersMtgAmount, "THREE HUNDRED FORTY THOUSAND & 00/100");
    job.SetField(NoteInterestRate, "6.5");
    job.SetField(NoteMonthlyPymt, "$2,149.03");
    job.SetField(NoteFirstPymtDate, "July 1, 2024");
    job.SetField(NoteGracePeriod, "15");
    job.SetField(NoteLateCharge, "5");
    job.SetField(NoteMaturityDate, "June 1, 2054");
    return job;
}

Job DealWithPayoffs() {
    Job job = SampleDeal();
    job.SetField(Payoff1Mortgagor, "Walter B. Hollis");
    job.SetField(Payoff1Mortgagee, "Stony Creek Savings Bank");
    job.SetField(Mortgage1Date, "March 3, 2004");
    job.SetField(Mtg1RecordingVol, "812");
    job.SetField(Mtg1RecordingPage, "44");
    job.SetField(Mtgee1Agent, "Ida Falk");
    job.SetField(Mtgee1AgentTitle, "Vice President");
    return job;
}

TEST(StatutoryMortgage, IsGivenByTheBuyersToTheSellers) {
    const std::string document = "Mortgage Deed / Statutory Form";
    ExpectWhole("mortgages/statutory_form", document, "one buyer mortgages to one seller", MortgagedDeal());
    ExpectBranch("mortgages/statutory_form_couples", document, "a couple mortgages to a couple",
                 MortgagedDeal(), [](Job& job) {
                     SellersAtOneAddress(job);
                     BuyersAtOneAddress(job);
                 });
}

TEST(FnmaMortgage, InFullAndByItsParties) {
    ExpectWhole("mortgages/fnma", kFnma, "one buyer mortgages to one seller", MortgagedDeal());
    ExpectBranch("mortgages/fnma_couples", kFnma,
                 "a couple mortgages a condominium to a couple that has moved; the loan can be refinanced",
                 MortgagedDeal(), [](Job& job) {
                     SellersAtOneAddress(job);
                     BuyersAtOneAddress(job);
                     job.SetOption(Condo, true);
                     job.SetField(SellerFwdAddr1, "3 Shore Road");
                     job.SetField(SellerFwdCityStateZip, "Madison, CT 06443");
                     job.SetField(RefiMaturityDate, "June 1, 2061");
                 });
    ExpectBranch("mortgages/fnma_commercial", kFnma, "a company lends on a commercial transaction",
                 MortgagedDeal(), [](Job& job) {
                     SellerIsEntity(job);
                     job.SetOption(Commercial, true);
                 });
    ExpectBranch("mortgages/fnma_without_addresses", kFnma, "a job that holds the parties' names alone",
                 MortgagedDeal(), [](Job& job) {
                     for (const Field n : {Buyer1Addr1, Seller1Addr1, Seller1CityStateZip}) job.ClearField(n);
                 });
}

TEST(FnmaMortgage, MarksTheBalloonRiderThatIsMadeWithIt) {
    const auto text = [](const std::vector<std::string>& documents) {
        EngineDesk desk;
        desk.Type(kFnma, MortgagedDeal(), documents);
        return desk.Text();
    };
    EXPECT_NE(text({kFnma, kBalloon}).find("{x} Balloon Rider"), std::string::npos);
    EXPECT_NE(text({kFnma, kNote}).find("{ } Balloon Rider"), std::string::npos);
}

TEST(Note, InFullAndByItsTerms) {
    ExpectWhole("mortgages/note", kNote, "one buyer owes one seller", MortgagedDeal());
    ExpectBranch("mortgages/note_couples", kNote,
                 "a couple owes a couple that has moved; commercial, percents said, no day of payment yet",
                 MortgagedDeal(), [](Job& job) {
                     SellersAtOneAddress(job);
                     BuyersAtOneAddress(job);
                     job.SetOption(Commercial, true);
                     job.SetField(SellerFwdAddr1, "3 Shore Road");
                     job.SetField(SellerFwdAddr2, "Unit 2");
                     job.SetField(SellerFwdCityStateZip, "Madison, CT 06443");
                     job.SetField(NoteInterestRate, "6.5%");
                     job.SetField(NoteLateCharge, "5 Percent");
                     job.SetField(NoteFirstPymtDate, "July __, 2024");
                 });
}

TEST(Note, BalloonComesWithItsRider) {
    ExpectGolden("mortgages/note_balloon.txt",
                 std::string(kBalloon) +
                     "\none buyer owes one seller; redlined against the amortized note\n\n" +
                     Redline(Reading(kNote, MortgagedDeal()), Reading(kBalloon, MortgagedDeal())));
    ExpectBranch("mortgages/note_balloon_couples", kBalloon,
                 "a couple owes; the new loan's maturity is known", MortgagedDeal(), [](Job& job) {
                     BuyersAtOneAddress(job);
                     job.SetField(RefiMaturityDate, "June 1, 2061");
                 });
}

TEST(PartialRelease, OncePerPayoff) {
    ExpectWhole("mortgages/release_partial", kRelease, "one mortgage, the lender's officer is known",
                DealWithPayoffs());
    ExpectBranch("mortgages/release_partial_two", kRelease,
                 "two mortgages, who signs for the second lender is left to be written in", DealWithPayoffs(),
                 [](Job& job) {
                     job.SetOption(OnePayoff, false);
                     job.SetOption(TwoPayoffs, true);
                     job.SetField(Payoff2Mortgagor, "Walter B. Hollis and June Hollis");
                     job.SetField(Payoff2Mortgagee, "Thimble Islands Credit Union");
                     job.SetField(Mortgage2Date, "April 9, 2011");
                     job.SetField(Mtg2RecordingVol, "1033");
                     job.SetField(Mtg2RecordingPage, "210");
                     job.SetValue(Mtgee2Agent, "");
                     job.SetValue(Mtgee2AgentTitle, "");
                 });
}

}  // namespace
}  // namespace quillmark::test
