#include "production/run/dispatch.h"

#include <gtest/gtest.h>

#include <set>

#include "production/builders/builder_list.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"
#include "selection/document_catalogue.h"

namespace quillmark::test {
namespace {

std::string Typed(std::string_view entry, const Job& job, std::string* notices = nullptr) {
    EngineDesk desk;
    const std::string letters = TypeEntry(entry, From(job), desk.session);
    if (notices) *notices = letters;
    return desk.Text();
}

TEST(Dispatch, EveryKnownEntryIsTypedWithoutFailure) {
    const Job job = SampleDeal();
    for (const auto names : {DocumentCatalogue(), OlderDocuments()})
        for (std::string_view name : names) {
            EXPECT_TRUE(IsKnownDocument(name)) << name;
            EXPECT_EQ(Typed(name, job).size() > 1, FindBuilder(name) != nullptr) << name;
        }
}

TEST(Dispatch, NamesAreKnownOnceAndEveryBuilderHasAName) {
    std::set<std::string_view> known;
    for (const auto names : {DocumentCatalogue(), OlderDocuments()})
        for (std::string_view name : names) EXPECT_TRUE(known.insert(name).second) << name;
    for (const Builder& builder : Builders())
        EXPECT_TRUE(known.contains(builder.document)) << builder.document;
}

TEST(Dispatch, ThePlaceholderIsAnEmptySectionAndTyposAreNot) {
    const Job job = SampleDeal();
    EXPECT_EQ(Typed(kNewDocument, job), "\n");
    EXPECT_THROW(Typed("Deed/Warranty", job), std::invalid_argument);
    EXPECT_THROW(Typed("", job), std::invalid_argument);
}

TEST(Dispatch, DeedsCallForTheirNotices) {
    Job job = SampleDeal();
    std::string notices;
    job.SetField(92, "Joint Tenants WROS");
    Typed("Deed / Warranty", job, &notices);
    EXPECT_EQ(notices, "C");
    job.SetField(92, "Joint Tenants");
    Typed("Deed / Warranty", job, &notices);
    EXPECT_EQ(notices, "CD");
}

TEST(DocumentHistory, NamesWithAColonStayWhole) {
    EXPECT_EQ(DocumentsOf("Deed / Warranty:Agreement Re: Mortgage Release:Schedule A:"),
              (std::vector<std::string>{"Deed / Warranty", "Agreement Re: Mortgage Release", "Schedule A"}));
    EXPECT_EQ(DocumentsOf("Agreement Re: Parking:"), (std::vector<std::string>{"Agreement Re", " Parking"}));
    EXPECT_TRUE(DocumentsOf("").empty());
    EXPECT_EQ(DocumentsOf("Schedule A"), std::vector<std::string>{"Schedule A"}) << "cut short";
}

}  // namespace
}  // namespace quillmark::test
