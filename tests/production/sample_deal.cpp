#include "production/sample_deal.h"

#include "core/fields.h"
#include "entry/smart_fields.h"

namespace quillmark::test {

using namespace field;

namespace {

void Fill(Job& job, std::initializer_list<std::pair<int, const char*>> values) {
    for (const auto& [n, text] : values) job.SetField(n, text);
}

void Choose(Job& job, Option on, Option off) {
    job.SetOption(off, false);
    job.SetOption(on, true);
    for (const int n : {Seller1Name, Seller2Name, Buyer1Name, Buyer2Name}) job.RunChangeRule(n);
}

}  // namespace

Job UnfilledDeal() {
    Job job;
    AttachSmartFields(job);
    return job;
}

Job SampleDeal() {
    Job job = UnfilledDeal();
    // clang-format off
    Fill(job, {
        {DocumentDate,          "May 2, 2024"},
        {SellerAtty,            "Ruth Ann Penfield"},
        {BuyerAtty,             "Tobias Lang, Esq."},
        {BuyerAttyAddr1,        "200 Elm Street"},
        {BuyerAttyAddr2,        "2nd Floor"},
        {BuyerAttyCityStateZip, "Milford, CT 06460"},
        {Seller1Name,           "Walter B. Hollis"},
        {Seller1Addr1,          "14 Chestnut Lane"},
        {Seller1CityStateZip,   "Branford, CT 06405"},
        {Buyer1Name,            "Priya Castellan"},
        {Buyer1Addr1,           "8 Harbor View"},
        {Buyer1Addr2,           "Unit 3"},
        {Buyer1CityStateZip,    "Clinton, CT 06413"},
        {PropertyAddress1,      "14 Chestnut Lane"},
        {PropertyCityStateZip,  "Branford, CT 06405"},
        {SalePriceNumeric,      "415000"},
        {TenancyType,           "Joint Tenants WROS"},
        {TownOfExecution,       "Branford"},
        {Witness1,              "Dale Whitcomb"},
        {Witness2,              "Sandra Oyelaran"},
        {FiduciaryArticleNumber, "IV"},
        {Decedent,              "Agnes M. Hollis"},
        {DecedentAddr1,         "14 Chestnut Lane"},
        {DecedentCityStateZip,  "Branford, CT 06405"},
        {ConservedParty,        "Lionel Hollis"},
        {TrustInstrument,       "Hollis Family 2005 Trust"},
        {Seller1Agent,          "Marcus Dell"},
        {Seller1AgentTitle,     "Manager"},
        {DateOfPower,           "April 16, 2024"},
        {SchedADescription,     "A certain piece or parcel of land, known as Lot 7.\r\n\r\nNORTHERLY: by Chestnut Lane."},
        {SchedAEncumbrances,    "A sewer easement.\r\n\r\n  Covenants of record.\r\n \r\nTaxes not yet due."},
    });
    // clang-format on
    return job;
}

Job FullDeal() {
    Job job = SampleDeal();
    SellersApart(job);
    BuyersApart(job);
    // clang-format off
    Fill(job, {
        {SellerLawfirm,         "Penfield & Marsh, LLC"},
        {SellerAttyAddr1,       "31 Main Street"},
        {SellerAttyAddr2,       "Suite 4"},
        {SellerAttyCityStateZip, "Branford, CT 06405"},
        {SellerAttyPhone,       "(203) 555-0141"},
        {SellerAttyFax,         "(203) 555-0142"},
        {SellerAttyEmail,       "rpenfield@penfieldmarsh.example"},
        {SellerAttysFee,        "$950.00"},
        {BuyerLawfirm,          "Lang Law Offices"},
        {BuyerAttyPhone,        "(203) 555-0160"},
        {BuyerAttyFax,          "(203) 555-0161"},
        {BuyerAttyEmail,        "tlang@langlaw.example"},
        {NamesOfMembers,        "Marcus Dell and Ada Quinn"},
        {NamesOfDirectors,      "Marcus Dell, Ada Quinn and Leo Hart"},
        {CorporateSecretary,    "Ada Quinn"},
        {StateOfFormation,      "Connecticut"},
        {Seller1Phone,          "(203) 555-0101"},
        {Seller1TaxId,          "040-12-3456"},
        {Seller2TaxId,          "041-22-3344"},
        {Seller2Phone,          "(203) 555-0102"},
        {Buyer1TaxId,           "042-33-4455"},
        {Buyer2TaxId,           "043-44-5566"},
        {SellerFwdAddr1,        "9 Orchard Lane"},
        {SellerFwdAddr2,        "Apt. 2"},
        {SellerFwdCityStateZip, "Sarasota, FL 34230"},
        {Administrator,         "Walter B. Hollis"},
        {AdminAddr1,            "14 Chestnut Lane"},
        {AdminCityStateZip,     "Branford, CT 06405"},
        {Executor,              "Walter B. Hollis"},
        {ExecutorAddr1,         "14 Chestnut Lane"},
        {ExecutorCityStateZip,  "Branford, CT 06405"},
        {Conservator,           "Walter B. Hollis"},
        {ConservatorAddr1,      "14 Chestnut Lane"},
        {ConservatorCityStateZip, "Branford, CT 06405"},
        {Trustee,               "Walter B. Hollis"},
        {TrusteeAddr1,          "14 Chestnut Lane"},
        {TrusteeCityStateZip,   "Branford, CT 06405"},
        {FiduciaryType,         "Executor"},
        {OriginalTrustee,       "Agnes M. Hollis"},
        {DateOfProbateOrder,    "March 4, 2024"},
        {ContractDate,          "March 15, 2024"},
        {ConstructionMonthYear, "06/1987"},
        {DeedRecordingVol,      "812"},
        {DeedRecordingPage,     "44"},
        {BinderDeposit,         "$5,000.00"},
        {ContractDeposit,       "$36,500.00"},
        {ClosingDate,           "May 2, 2024"},
        {ClosingTime,           "10:00 a.m."},
        {ProrationDate,         "May 2, 2024"},
        {ItemsInclInSale,       "refrigerator, washer and dryer"},
        {ItemsExclFromSale,     "dining room chandelier"},
        {LeasedFixtures,        "propane tank"},
        {Realtor1Name,          "Shoreline Realty"},
        {Realtor1Commission,    "$20,750.00"},
        {Realtor2Name,          "Harbor Homes"},
        {Realtor2Commission,    "$10,375.00"},
        {BuyersMtgAmount,       "$340,000.00"},
        {BuyersMtgTerm,         "30"},
        {BuyersMtgRate,         "7.25%"},
        {MtgContingencyDate,    "April 10, 2024"},
        {SearchContingenDate,   "April 12, 2024"},
        {InspContingencyDate,   "March 29, 2024"},
        {RepairsBySeller,       "repair the rear deck railing"},
        {ClosingCostCredit,     "$4,000.00"},
        {RepairCredit,          "$1,500.00"},
        {SmokeDetectorCredit,   "$250.00"},
        {BuyerTitleInsurCo,     "Stewart Title Guaranty Company"},
        {Payoff1Servicer,       "Granite Loan Servicing"},
        {Payoff1Addr1,          "400 Commerce Way"},
        {Payoff1Addr2,          "Payoff Department"},
        {Payoff1CityStateZip,   "Dayton, OH 45402"},
        {Payoff1LoanNumber,     "7710045512"},
        {Payoff1Amount,         "$188,240.17"},
        {Payoff1Method,         "pay by wire"},
        {Payoff1Date,           "May 3, 2024"},
        {Payoff1Mortgagor,      "W. B. Hollis and J. Hollis"},
        {Payoff1Mortgagee,      "Granite Savings Bank"},
        {Mortgage1Amount,       "$240,000.00"},
        {Mortgage1Date,         "August 9, 2012"},
        {Mtg1RecordingDate,     "August 10, 2012"},
        {Mtg1RecordingVol,      "701"},
        {Mtg1RecordingPage,     "112"},
        {Mtg1Assignee,          "Beacon Mortgage Trust"},
        {Mtg1AssignmentVol,     "733"},
        {Mtg1AssignmentPage,    "9"},
        {Payoff2Servicer,       "Union Credit Cooperative"},
        {Payoff2Addr1,          "77 Orange Street"},
        {Payoff2Addr2,          "Loan Operations"},
        {Payoff2CityStateZip,   "New Haven, CT 06510"},
        {Payoff2LoanNumber,     "HE-20931 (E)"},
        {Payoff2Amount,         "$22,018.40"},
        {Payoff2Method,         "100457"},
        {Payoff2Date,           "May 4, 2024"},
        {Payoff2Mortgagor,      "Walter Hollis"},
        {Payoff2Mortgagee,      "Union Credit Bank"},
        {Mortgage2Amount,       "$50,000.00"},
        {Mortgage2Date,         "June 1, 2018"},
        {Mtg2RecordingDate,     "June 5, 2018"},
        {Mtg2RecordingVol,      "780"},
        {Mtg2RecordingPage,     "61"},
        {Mtg2Assignee,          "Elm City Funding"},
        {Mtg2AssignmentVol,     "799"},
        {Mtg2AssignmentPage,    "15"},
        {Mtgee1Agent,           "Paula Reyes"},
        {Mtgee1AgentTitle,      "Vice President"},
        {Mtgee2Agent,           "Glen Abbott"},
        {Mtgee2AgentTitle,      "Assistant Secretary"},
        {IndemMortgagor,        "Walter B. Hollis"},
        {IndemMortgagee,        "Old Colony Lending"},
        {IndemMtgAmount,        "$30,000.00"},
        {IndemMtgDate,          "May 5, 1999"},
        {IndemMtgRecordDate,    "May 7, 1999"},
        {IndemMtgRecordVol,     "488"},
        {IndemMtgRecordPage,    "203"},
        {IndemComplianceDate,   "August 1, 2024"},
        {EscrowAmountHeld,      "$3,000.00"},
        {EscrowAtty,            "Colin Marsh"},
        {EscrowAttyAddr1,       "31 Main Street"},
        {EscrowAttyAddr2,       "Suite 4"},
        {EscrowAttyCityStateZip, "Branford, CT 06405"},
        {EscrowAttyPhone,       "(203) 555-0170"},
        {NoteInterestRate,      "6.5"},
        {NoteMonthlyPymt,       "$2,149.03"},
        {NoteFirstPymtDate,     "July 1, 2024"},
        {NoteGracePeriod,       "15"},
        {NoteLateCharge,        "5%"},
        {NoteMaturityDate,      "June 1, 2054"},
        {RefiMaturityDate,      "June 1, 2061"},
        {SellerFormerName,      "June Alder"},
        {SellerCurrentName,     "June Hollis"},
        {NameChangeDate,        "October 2, 2010"},
        {NameChangeInstr,       "certificate of marriage"},
        {PrincipalOfPower,      "Walter B. Hollis"},
        {PrincipalAddr1,        "14 Chestnut Lane"},
        {PrincipalCityStateZip, "Branford, CT 06405"},
        {AttyInFact,            "Nora Feld"},
        {AttyInFactAddr1,       "5 Hill Road"},
        {AttyInFactCityStateZip, "Hamden, CT 06514"},
        {AttyInFact2,           "Peter Feld"},
        {AttyInFact2Addr1,      "7 Hill Road"},
        {AttyInFact2CityStateZip, "Hamden, CT 06514"},
        {PoaAgentCapacity,      "severally"},
        {SuccessorAgent1,       "Iris Vance"},
        {SuccessorAgent2,       "Hugo Vance"},
        {AnnualPropertyTax,     "$8,400.00"},
        {MonthlyCommonChg,      "$310.00"},
        {RecordingFees,         "$159.00"},
        {CourierFee,            "$35.00"},
    });
    // clang-format on
    return job;
}

Production From(const Job& job) {
    static const Settings settings;
    static ScriptedDialogs dialogs;
    return {job, settings, dialogs};
}

void SellersAtOneAddress(Job& job) {
    Choose(job, TwoSellers, OneSeller);
    Fill(job, {{Seller2Name, "June Hollis"},
               {Seller2Addr1, "14 Chestnut Lane"},
               {Seller2CityStateZip, "Branford, CT 06405"}});
}

void SellersApart(Job& job) {
    SellersAtOneAddress(job);
    Fill(job, {{Seller2Addr1, "51 Union Street"}, {Seller2CityStateZip, "Guilford, CT 06437"}});
}

void BuyersAtOneAddress(Job& job) {
    Choose(job, TwoBuyers, OneBuyer);
    Fill(job, {{Buyer2Name, "Omar Castellan"},
               {Buyer2Addr1, "8 Harbor View"},
               {Buyer2Addr2, "Unit 3"},
               {Buyer2CityStateZip, "Clinton, CT 06413"}});
}

void BuyersApart(Job& job) {
    BuyersAtOneAddress(job);
    Fill(job, {{Buyer2Addr1, "8 Harborview"}});
}

void SellerIsEntity(Job& job) {
    Choose(job, Entity, Person);
    job.SetField(Seller1Name, "Chestnut Holdings LLC");
}

void SellerIsFiduciary(Job& job, std::string_view capacity) {
    job.SetOption(EstateTrust, true);
    job.SetField(FiduciaryType, capacity);
}

void SellsByPower(Job& job, std::string_view principal, std::string_view attorney) {
    job.SetOption(PowerOfAttorney, true);
    job.SetField(PrincipalOfPower, principal);
    job.SetField(AttyInFact, attorney);
}

}  // namespace quillmark::test
