#include "production/builder_list.h"

#include <algorithm>
#include <array>

#include "core/text_conversions.h"
#include "production/fields.h"
#include "production/job_values.h"
#include "production/typing.h"

namespace quillmark {

#define DOCUMENT(entry, builder, notices) void builder(const JobValues&, Typist&);
#define VARIANT(entry, builder, tag, number, again, notices) \
    void builder(const JobValues&, Typist&, const Variant&);
#include "production/builders/builders.inc"
#undef DOCUMENT
#undef VARIANT

namespace {

#define DOCUMENT(entry, builder, notices)                                                          \
    Builder{entry, [](const JobValues& job, Typist& type, const Variant&) { builder(job, type); }, \
            Variant{}, RunsAgain::Never, notices},
#define VARIANT(entry, builder, tag, number, again, notices) \
    Builder{entry, builder, Variant{tag, number}, RunsAgain::again, notices},
constexpr auto kBuilders = std::to_array<Builder>({
#include "production/builders/builders.inc"
});
#undef DOCUMENT
#undef VARIANT

bool RunsTwice(const Builder& builder, const JobValues& job) {
    switch (builder.again) {
        case RunsAgain::WithTwoSellers:
            return job.Has(TwoSellers);
        case RunsAgain::WithTwoPayoffs:
            return job.Has(TwoPayoffs);
        case RunsAgain::Never:
            break;
    }
    return false;
}

}  // namespace

std::span<const Builder> Builders() {
    return kBuilders;
}

const Builder* FindBuilder(std::string_view document) {
    const auto found = std::find_if(kBuilders.begin(), kBuilders.end(),
                                    [&](const Builder& builder) { return builder.document == document; });
    return found == kBuilders.end() ? nullptr : &*found;
}

std::string NoticesOf(const Builder& builder, const Job& job) {
    std::string notices(builder.notices);
    if (Lowered(JobValues(job)[field::TenancyType]) != "joint tenants") std::erase(notices, 'D');
    return notices;
}

void TypeDocument(const Builder& builder, const Job& job, WordSession& session) {
    const JobValues values(job);
    Typist typist(session);
    builder.type(values, typist, builder.variant);
    if (RunsTwice(builder, values)) builder.type(values, typist, Variant{builder.variant.tag, 2});
}

}  // namespace quillmark
