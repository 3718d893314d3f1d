#include "production/builders/builder_list.h"

#include <algorithm>
#include <array>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "production/builders/text_bodies.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"

namespace quillmark {

#define DOCUMENT(entry, builder, notices) void builder(const JobValues&, Typist&);
#define VARIANT(entry, builder, tag, number, again, notices) \
    void builder(const JobValues&, Typist&, const Variant&);
#define COMPUTED(entry, builder, tag, again, notices) \
    void builder(const Production&, Typist&, const Variant&);
#define TEXT(entry, file, passages, notices)
#define BODY(file, passages)
#include "production/builders/builders.inc"
#undef DOCUMENT
#undef VARIANT
#undef COMPUTED
#undef TEXT

namespace {

#define DOCUMENT(entry, builder, notices)                                                                 \
    Builder{                                                                                              \
        entry,                                                                                            \
        [](const Production& from, Typist& type, const Variant&) { builder(JobValues(from.job), type); }, \
        Variant{}, RunsAgain::Never, notices},
#define VARIANT(entry, builder, tag, number, again, notices)                   \
    Builder{entry,                                                             \
            [](const Production& from, Typist& type, const Variant& variant) { \
                builder(JobValues(from.job), type, variant);                   \
            },                                                                 \
            Variant{tag, number}, RunsAgain::again, notices},
#define COMPUTED(entry, builder, tag, again, notices) \
    Builder{entry, builder, Variant{tag}, RunsAgain::again, notices},
#define TEXT(entry, file, passages, notices)                               \
    Builder{entry,                                                         \
            [](const Production& from, Typist& type, const Variant&) {     \
                TypeBody(file, JobValues(from.job, from.documents), type); \
            },                                                             \
            Variant{}, RunsAgain::Never, notices},
constexpr auto kBuilders = std::to_array<Builder>({
#include "production/builders/builders.inc"
});
#undef DOCUMENT
#undef VARIANT
#undef COMPUTED
#undef TEXT
#undef BODY

bool RunsTwice(const Builder& builder, const Job& job) {
    switch (builder.again) {
        case RunsAgain::WithTwoSellers:
            return job.optConf(TwoSellers);
        case RunsAgain::WithTwoPayoffs:
            return job.optConf(TwoPayoffs);
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

void TypeDocument(const Builder& builder, const Production& production, WordSession& session) {
    Typist typist(session);
    builder.type(production, typist, builder.variant);
    if (!RunsTwice(builder, production.job)) return;
    typist.PageBreak();
    builder.type(production, typist, Variant{builder.variant.tag, 2});
}

}  // namespace quillmark
