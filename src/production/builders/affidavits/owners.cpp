#include <algorithm>
#include <array>

#include "core/text_conversions.h"
#include "production/builders/affidavits/passages_affidavit.h"
#include "production/builders/text_bodies.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

constexpr std::string_view kCompanyTitle = "OWNERS AFFIDAVIT AND AFFIDAVIT IN LIEU OF SURVEY";

struct Form {
    std::string_view insurer;  ///< as the field's list names the company
    std::string_view text;
    std::string_view title = kCompanyTitle;
};

// clang-format off
constexpr auto kCompanyForms = std::to_array<Form>({
    {"First American Title Insurance Company",      "affidavits/owner_first_american.txt"},
    {"Chicago Title Insurance Company",             "affidavits/owner_chicago.txt"},
    {"Commonwealth Land Title Insurance Company",   "affidavits/owner_commonwealth.txt"},
    {"Connecticut Attorneys Title Insurance Company", "affidavits/owner_connecticut_attorneys.txt"},
    {"Fidelity National Title Insurance Company",   "affidavits/owner_fidelity.txt"},
    {"Lawyers Title Insurance Corporation",         "affidavits/owner_lawyers.txt"},
    {"Old Republic National Title Insurance Company", "affidavits/owner_old_republic.txt"},
    {"Stewart Title Guaranty Company",              "affidavits/owner_stewart.txt"},
    {"Ticor Title Insurance Company",               "affidavits/owner_ticor.txt"},
});
// clang-format on
constexpr Form kCommercialForm = {"", "affidavits/owner_commercial.txt",
                                  "COMPREHENSIVE OWNERS/SELLERS AFFIDAVIT"};
constexpr Form kOtherForm = {"", "affidavits/owner_comprehensive.txt", "COMPREHENSIVE TITLE AFFIDAVIT"};

/// A commercial deal has one form, whoever insures; a company that is not on the field's list, or none, gets
/// the comprehensive one.
const Form& FormOf(const JobValues& job) {
    if (job.Has(Commercial)) return kCommercialForm;
    const auto* const found = std::ranges::find(kCompanyForms, job[BuyerTitleInsurCo], &Form::insurer);
    return found == kCompanyForms.end() ? kOtherForm : *found;
}

void TypeOpening(const JobValues& job, Typist& type) {
    type.Text("The undersigned, owner of certain real property known as ");
    type.TypeBold(job.Property());
    type.Text(job.Has(TwoSellers) ? ", each being first duly sworn, " : ", being first duly sworn, ",
              "swears to the truth of the following statements:", RepeatReturn(2));
}

}  // namespace

/// The seller's oath on what no search of the records shows, in the form of the company that insures the
/// buyer's title.
void TypeOwnersAffidavit(const JobValues& job, Typist& type) {
    const Form& form = FormOf(job);
    type.Indents(kDeedIndent);
    TypeTitle(type, form.title);
    TypeOpening(job, type);
    TypeBody(form.text, job, type);
    TypeSworn(job, type, SellerSigners(job, SellerRole(job, "Owner")));
}

}  // namespace quillmark
