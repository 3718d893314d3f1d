#include "production/letter_deal.h"

#include "core/fields.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"

namespace quillmark::test {

using namespace field;

Job LetterDeal() {
    Job job = SampleDeal();
    // clang-format off
    const std::pair<int, const char*> kValues[] = {
        {SellerLawfirm,          "Penfield & Rowe LLC"},
        {SellerAttyAddr1,        "30 Meadow Street"},
        {SellerAttyAddr2,        "Suite 2"},
        {SellerAttyCityStateZip, "Branford, CT 06405"},
        {SellerAttyPhone,        "2035550110"},
        {SellerAttyFax,          "2035550111"},
        {SellerAttyEmail,        "rpenfield@example.com"},
        {SellerAttysFee,         "1250"},
        {BuyerLawfirm,           "Lang & Abbott"},
        {BuyerAttyPhone,         "2035550166"},
        {BuyerAttyFax,           "2035550167"},
        {SellerFwdAddr1,         "9 Quarry Road"},
        {SellerFwdAddr2,         "Unit 4"},
        {SellerFwdCityStateZip,  "Mystic, CT 06355"},
        {ContractDeposit,        "41500"},
        {ClosingCostCredit,      "2500"},
        {RepairCredit,           "800"},
        {ClosingDate,            "May 2, 2024"},
        {BuyerTitleInsurCo,      "Stewart Title Guaranty Company"},
        {Payoff1Servicer,        "First Shore Bank, N.A."},
        {Payoff1Addr1,           "1 Harbor Plaza"},
        {Payoff1Addr2,           "4th Floor"},
        {Payoff1CityStateZip,    "Stamford, CT 06901"},
        {Payoff1LoanNumber,      "0048812207 (M)"},
        {Payoff1Amount,          "$201,455.12 - T"},
        {Payoff1Method,          "40172"},
        {Payoff1Date,            "April 26, 2024"},
        {Payoff1Mortgagor,       "Walter B. Hollis"},
        {Payoff1Mortgagee,       "Branford Savings Bank"},
        {Mortgage1Amount,        "260000"},
        {Mortgage1Date,          "August 14, 2015"},
        {Mtg1RecordingDate,      "August 17, 2015"},
        {Mtg1RecordingVol,       "911"},
        {Mtg1RecordingPage,      "204"},
        {Mtg1Assignee,           "First Shore Bank, N.A."},
        {Mtg1AssignmentVol,      "977"},
        {Mtg1AssignmentPage,     "31"},
        {Payoff2Servicer,        "Elm City Credit Union"},
        {Payoff2Addr1,           "88 Chapel Street"},
        {Payoff2CityStateZip,    "New Haven, CT 06510"},
        {Payoff2LoanNumber,      "7710-442"},
        {Payoff2Amount,          "$25,000.00"},
        {Payoff2Method,          "pay by wire"},
        {Payoff2Date,            "April 29, 2024"},
        {Payoff2Mortgagor,       "Walter B. Hollis"},
        {Payoff2Mortgagee,       "Elm City Credit Union"},
        {Mortgage2Amount,        "50000"},
        {Mortgage2Date,          "March 3, 2019"},
        {Mtg2RecordingDate,      "March 5, 2019"},
        {Mtg2RecordingVol,       "1002"},
        {Mtg2RecordingPage,      "77"},
    };
    // clang-format on
    for (const auto& [n, text] : kValues) job.SetField(n, text);
    // As CREATE leaves the tag to the field.
    job.SetValue(Payoff1Amount, "$201,455.12");
    return job;
}

namespace {

std::vector<std::string> With(std::vector<std::string> others, const std::string& document) {
    others.push_back(document);
    return others;
}

}  // namespace

std::string ReadingBeside(const std::string& document, const Job& job,
                          const std::vector<std::string>& others) {
    EngineDesk desk;
    desk.Type(document, job, With(others, document));
    return desk.Reading();
}

std::string TextBeside(const std::string& document, const Job& job, const std::vector<std::string>& others) {
    EngineDesk desk;
    desk.Type(document, job, With(others, document));
    return desk.Text();
}

}  // namespace quillmark::test
