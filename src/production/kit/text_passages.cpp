#include "production/kit/text_passages.h"

#include <array>

#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

Passages CommonPassages() {
    // clang-format off
    static constexpr auto kPassages = std::to_array<Passage>({
        {"grantor phrase", [](const JobValues& job, Typist& type) { TypeGrantorPhrase(job, type, Names::Bold); }},
        {"grantee phrase", [](const JobValues& job, Typist& type) { TypeGranteePhrase(job, type, Names::Bold); }},
        {"grantee phrase with tenancy", [](const JobValues& job, Typist& type) {
            TypeGranteePhrase(job, type, Names::Bold, Tenancy::Said);
        }},
        {"seller names",     [](const JobValues& job, Typist& type) { type.Text(job.SellerNames()); }},
        {"buyer names",      [](const JobValues& job, Typist& type) { type.Text(job.BuyerNames()); }},
        {"property",         [](const JobValues& job, Typist& type) { type.Text(job.Property()); }},
        {"gender paragraph", [](const JobValues&, Typist& type) { TypeGenderParagraph(type); }},
    });
    // clang-format on
    return kPassages;
}

}  // namespace quillmark
