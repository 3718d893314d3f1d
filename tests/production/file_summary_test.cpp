#include <gtest/gtest.h>

#include "core/fields.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using namespace field;

constexpr const char* kSheet = "FILE SUMMARY SHEET";

void ExpectReading(const std::string& golden, const std::string& facts, const Job& job) {
    EngineDesk desk;
    desk.Type(kSheet, job);
    ExpectGolden("closing/" + golden + ".txt", std::string(kSheet) + "\n" + facts + "\n\n" + desk.Reading());
}

TEST(FileSummarySheet, ByItsParties) {
    Job job = SampleDeal();
    SellerIsEntity(job);
    BuyersAtOneAddress(job);
    for (const auto& [n, text] :
         {std::pair(BuyerLawfirm, "Lang & Ruiz LLP"), std::pair(BinderDeposit, "$5,000.00"),
          std::pair(ContractDeposit, "$36,500.00"), std::pair(Realtor2Name, "Harbor Homes"),
          std::pair(PropertyAddress2, "Unit 4"), std::pair(Buyer1TaxId, "123-45-6789"),
          std::pair(Buyer1Addr2, ""), std::pair(Buyer2Addr2, "Unit 3")})
        job.SetField(n, text);
    ExpectReading("file_summary_sheet", "a company sells to a couple, deposits known", job);
    ExpectReading("file_summary_unfilled", "a job without any entry: blanks for what is optional or unknown",
                  UnfilledDeal());
}

}  // namespace
}  // namespace quillmark::test
