#include <gtest/gtest.h>

#include "core/fields.h"
#include "production/document_goldens.h"
#include "production/sample_deal.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using namespace field;

constexpr const char* kEscrow = "Escrow Agreement For Contract Deposit";
constexpr const char* kSecured = "Indemnity Agreement / Secured";
constexpr const char* kUnsecured = "Indemnity Agreement / Unsecured";

/// A deposit is held until the closing, and a mortgage of record stands in its way.
Job DealWithDeposit() {
    Job job = SampleDeal();
    const std::pair<Field, const char*> values[] = {
        {SellerLawfirm, "Penfield & Roe LLC"},
        {SellerAttyAddr1, "3 Main Street"},
        {SellerAttyCityStateZip, "Branford, CT 06405"},
        {SellerAttyPhone, "(203) 555-0141"},
        {SellerAttyFax, "(203) 555-0142"},
        {BuyerLawfirm, "Law Office of Tobias Lang, Esq."},
        {BuyerAttyPhone, "(203) 555-0100"},
        {ContractDate, "April 2, 2024"},
        {ContractDeposit, "$41,500.00"},
        {Seller1Phone, "(203) 555-0111"},
        {SellerFwdAddr1, "3 Shore Road"},
        {SellerFwdCityStateZip, "Madison, CT 06443"},
        {IndemMortgagor, "Agnes M. Hollis"},
        {IndemMortgagee, "Stony Creek Savings Bank"},
        {IndemMtgAmount, "$60,000.00"},
        {IndemMtgDate, "March 3, 1994"},
        {IndemMtgRecordDate, "March 4, 1994"},
        {IndemMtgRecordVol, "512"},
        {IndemMtgRecordPage, "44"},
        {IndemComplianceDate, "August 30, 2024"},
        {EscrowAmountHeld, "$2,500.00"},
        {EscrowAtty, "Hart & Lowe LLC"},
        {EscrowAttyAddr1, "12 Elm Street"},
        {EscrowAttyAddr2, "Suite 4"},
        {EscrowAttyCityStateZip, "Clinton, CT 06413"},
        {EscrowAttyPhone, "(860) 555-0145"},
    };
    for (const auto& [n, text] : values) job.SetField(n, text);
    return job;
}

void CompanySellsToCouple(Job& job) {
    SellerIsEntity(job);
    BuyersAtOneAddress(job);
}

TEST(EscrowAgreement, OfTheContractDeposit) {
    ExpectWhole("agreements/escrow_contract_deposit", kEscrow,
                "one person sells to one buyer, whose attorney's firm bears the attorney's name",
                DealWithDeposit());
    ExpectBranch("agreements/escrow_company", kEscrow,
                 "a company sells to a couple; the buyers' firm has partners", DealWithDeposit(),
                 [](Job& job) {
                     CompanySellsToCouple(job);
                     job.SetField(BuyerLawfirm, "Lang & Moss");
                     job.SetField(BuyerAttyFax, "(203) 555-0101");
                 });
}

TEST(Indemnity, WithSecurityAndWithout) {
    ExpectWhole("agreements/indemnity_secured", kSecured, "one person sells", DealWithDeposit());
    ExpectGolden("agreements/indemnity_unsecured.txt",
                 std::string(kUnsecured) + "\none person sells; redlined against the secured indemnity\n\n" +
                     Redline(Reading(kSecured, DealWithDeposit()), Reading(kUnsecured, DealWithDeposit())));
    ExpectBranch("agreements/indemnity_secured_company", kSecured, "a company sells", DealWithDeposit(),
                 SellerIsEntity);
    ExpectBranch("agreements/indemnity_unsecured_couple", kUnsecured, "a couple sells", DealWithDeposit(),
                 SellersAtOneAddress);
    ExpectBranch("agreements/indemnity_unsecured_company", kUnsecured, "a company sells", DealWithDeposit(),
                 SellerIsEntity);
}

}  // namespace
}  // namespace quillmark::test
