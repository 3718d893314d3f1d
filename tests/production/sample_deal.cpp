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
