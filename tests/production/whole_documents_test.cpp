#include <gtest/gtest.h>

#include <sstream>

#include "core/fields.h"
#include "production/builders/builder_list.h"
#include "production/letter_deal.h"
#include "selection/document_catalogue.h"

/// Every document that the program offers is there, and long enough to be the document of its name.
namespace quillmark::test {
namespace {

using namespace field;

/// The words of the shortest page that a document of the kind can honestly have. The first kind that fits
/// counts.
struct Kind {
    std::string_view begins;
    std::size_t words;
};
constexpr Kind kKinds[] = {
    {"Contract / ", 3500},
    {"Mortgage Deed / FNMA", 5000},
    {"Mortgage Deed / ", 250},
    {"Note / ", 1000},
    {"Power Of Attorney / Long Form", 800},
    {"Power Of Attorney / ", 280},
    {"Owner's Affidavit", 400},
    {"Deed / ", 230},
    {"Undertaking", 350},
    {"Guarantee", 350},
    {"Indemnity", 600},
    {"Escrow", 600},
    {"Closing Letter", 270},
    {"Mortgage Payoff", 250},
    {"Seller's ", 280},
    {"Privacy Policy", 280},
    {"CFPB", 250},
    {"CHRO", 250},
    // What they hold is the job's: a description, a letter that is still to be written.
    {"Schedule A", 20},
    {"Form Letter", 40},
    {"", 110},
};

std::size_t WordsOfKind(std::string_view document) {
    for (const Kind& kind : kKinds)
        if (document.starts_with(kind.begins)) return kind.words;
    return 0;
}

Job FilledJob() {
    Job job = LetterDeal();
    for (int n = 1; n <= kFields; ++n)
        if (FieldMarker(n).size() > 2 && !job.IsFilled(n)) job.SetField(n, "May 3, 2024");
    return job;
}

std::size_t WordsIn(const std::string& text) {
    std::istringstream words(text);
    return static_cast<std::size_t>(
        std::distance(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()));
}

TEST(WholeDocuments, EveryEntryOfTheCatalogueHasItsText) {
    for (const std::string_view entry : DocumentCatalogue())
        EXPECT_NE(FindBuilder(entry), nullptr) << entry << " would be an empty section";
}

TEST(WholeDocuments, NoneIsShorterThanAPageOfItsKind) {
    const Job job = FilledJob();
    for (const Builder& builder : Builders()) {
        const std::size_t words = WordsIn(TextBeside(std::string(builder.document), job, {}));
        EXPECT_GE(words, WordsOfKind(builder.document)) << builder.document;
    }
}

}  // namespace
}  // namespace quillmark::test
