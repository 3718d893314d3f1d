#include "production/builders/affidavits/passages_owner.h"

#include <array>

namespace quillmark {

using namespace field;

Passages OwnerPassages() {
    // clang-format off
    static constexpr auto kPassages = std::to_array<Passage>({
        {"has", [](const JobValues& job, Typist& type) { type.Text(job.Has(TwoSellers) ? "have" : "has"); }},
        {"insurer", [](const JobValues& job, Typist& type) {
            const std::string& insurer = job[BuyerTitleInsurCo];
            type.Text(insurer.empty() ? "the title insurer" : insurer);
        }},
        {"sale box",        [](const JobValues&, Typist& type) { type.CheckBox(true); }},
        {"dwelling box",    [](const JobValues& job, Typist& type) {
            type.CheckBox(!job.Has(Condo) && !job.Has(Commercial) && !job.Has(LandMultiFamily));
        }},
        {"condominium box", [](const JobValues& job, Typist& type) { type.CheckBox(job.Has(Condo)); }},
        {"commercial box",  [](const JobValues& job, Typist& type) { type.CheckBox(job.Has(Commercial)); }},
    });
    // clang-format on
    return kPassages;
}

}  // namespace quillmark
