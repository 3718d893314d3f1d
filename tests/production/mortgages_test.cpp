#include <gtest/gtest.h>

#include "core/fields.h"
#include "production/document_goldens.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using namespace field;

Job MortgagedDeal() {
    Job job = SampleDeal();
    job.SetField(BuyersMtgAmount, "$340,000.00");
    job.SetDerived(1, BuyersMtgAmount, "THREE HUNDRED FORTY THOUSAND & 00/100");
    job.SetField(NoteMaturityDate, "June 1, 2054");
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

}  // namespace
}  // namespace quillmark::test
