#include "production/run/preview.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "platform/code_points.h"
#include "production/builders/builder_list.h"
#include "production/run/create.h"
#include "production/run/normalise.h"
#include "production/sample_deal.h"
#include "support/scratch.h"
#include "word/docx/model/walk.h"
#include "word/docx/objects/engine.h"

namespace quillmark::test {
namespace {

using namespace field;
using namespace std::chrono;

PreviewOrder OrderOf(Job job, std::vector<std::string> documents) {
    PreviewOrder order;
    order.job = std::move(job);
    order.JobList = std::move(documents);
    order.today = 2025y / March / 4;
    return order;
}

std::string At(const Preview& made, const ValuePlace& place) {
    return Utf8Of(made.text.substr(place.at, place.length));
}

/// The words that field n gave the document, in order.
std::vector<std::string> WordsOf(const Preview& made, int n) {
    std::vector<std::string> words;
    for (const ValuePlace& place : made.values)
        if (place.n == n) words.push_back(At(made, place));
    return words;
}

/// The text of a file as the word processor reads it.
std::string TextOfFile(const std::filesystem::path& file) {
    const word::Application application(word::StartWordProcessor(word::WordProcessor::Embedded).application);
    const word::Document document = application.Documents.Open(file.string());
    std::string text;
    word::docx::ForEachParagraph(
        word::docx::objects::ModelOf(document.Reach()).body,
        [&](const word::docx::Paragraph& paragraph) { text += paragraph.text + "\r"; });
    return text;
}

std::vector<Job> Deals() {
    std::vector<Job> deals = {FullDeal(), SampleDeal(), UnfilledDeal()};
    deals.push_back(FullDeal());
    SellsByPower(deals.back(), deals.back().D(Seller1Name), "Nora Feld");
    deals.push_back(FullDeal());
    SellsByPower(deals.back(), deals.back().D(Seller2Name), deals.back().D(Seller1Name));
    deals.push_back(SampleDeal());
    SellerIsFiduciary(deals.back(), "Executor");
    deals.push_back(SampleDeal());
    BuyersAtOneAddress(deals.back());
    return deals;
}

/// A document that compares or calculates with a field takes another turn when the field's value is a sign;
/// the field then belongs to those that are left as they are (value_places.cpp).
TEST(PreviewPlaces, EveryDocumentTakesSignsForValues) {
    std::vector<Job> deals = Deals();
    for (Job& job : deals) {
        NormalisedValues(job, 2025y / March / 4);
        for (const Builder& builder : Builders()) {
            SCOPED_TRACE(std::string(builder.document) + " of deal " + std::to_string(&job - deals.data()));
            const std::vector<std::string> list = {std::string(builder.document)};
            Preview plain, typedOfSigns;
            try {
                plain = MakePreview(OrderOf(job, list), {});
            } catch (const CreateError&) {
                continue;  // as CREATE does with this deal
            }
            PreviewOrder signs = OrderOf(WithSigns(job), list);
            ASSERT_NO_THROW(typedOfSigns = MakePreview(signs, {}));
            EXPECT_TRUE(Correspond(plain.text, typedOfSigns.text));
        }
    }
}

/// A deal in which every name and every other plain text is a word of its own.
Job DealOfPlainWords() {
    Job job = FullDeal();
    for (int n = 2; n <= kFields; ++n) {
        const std::string& value = job.D(n);
        const bool isChoice = n == TenancyType || n == FiduciaryType || n == BuyerTitleInsurCo;
        const bool isPlain = job.IsFilled(n) && value.find_first_of("0123456789,") == value.npos;
        if (!isPlain || isChoice) continue;
        const int letter = n % 26;
        job.SetField(n,
                     std::string("Xq") + static_cast<char>('a' + n / 26) + static_cast<char>('a' + letter));
    }
    return job;
}

TEST(PreviewPlaces, EveryValueIsFoundWhereItStands) {
    std::size_t found = 0;
    for (const Builder& builder : Builders()) {
        const Preview made = MakePreview(OrderOf(DealOfPlainWords(), {std::string(builder.document)}), {});
        std::size_t end = 0;
        for (const ValuePlace& place : made.values) {
            ASSERT_GE(place.at, end) << builder.document << ": one place over another";
            end = place.at + place.length;
            ASSERT_LE(end, made.text.size());
        }
        for (std::size_t at = 0; at + 4 <= made.text.size(); ++at) {
            const std::string word = Lowered(Utf8Of(made.text.substr(at, 4)));
            if (!word.starts_with("xq")) continue;
            const int n = (word[2] - 'a') * 26 + (word[3] - 'a');
            EXPECT_THAT(made.values, testing::Contains(ValuePlace{n, at, 4, false})) << builder.document;
            ++found;
        }
    }
    EXPECT_GT(found, 200u);
}

TEST(PreviewPlaces, EqualValuesOfTwoFieldsAreToldApart) {
    Job job = SampleDeal();
    ASSERT_EQ(job.D(Seller1Addr1), job.D(PropertyAddress1));
    const Preview made = MakePreview(OrderOf(std::move(job), {"Deed / Warranty"}), {});
    EXPECT_THAT(WordsOf(made, Seller1Addr1), testing::Not(testing::IsEmpty()));
    EXPECT_THAT(WordsOf(made, PropertyAddress1), testing::Not(testing::IsEmpty()));
    std::size_t all = 0;
    for (std::size_t at = made.text.find(U"14 Chestnut Lane"); at != made.text.npos;
         at = made.text.find(U"14 Chestnut Lane", at + 1))
        ++all;
    EXPECT_EQ(WordsOf(made, Seller1Addr1).size() + WordsOf(made, PropertyAddress1).size() +
                  WordsOf(made, DecedentAddr1).size(),
              all);
}

TEST(PreviewPlaces, CountCharactersAndCutNoName) {
    Job job = SampleDeal();
    job.SetField(Seller1Name, "José Ángel Núñez-O'Hara, Jr.");
    job.SetField(Buyer1Name, "José Ángel Núñez");
    const Preview made = MakePreview(OrderOf(std::move(job), {"Deed / Warranty"}), {});
    EXPECT_THAT(WordsOf(made, Seller1Name), testing::Contains("José Ángel Núñez-O'Hara, Jr."));
    EXPECT_THAT(WordsOf(made, Buyer1Name), testing::Contains("José Ángel Núñez"));
    EXPECT_THAT(WordsOf(made, Buyer1Name), testing::Not(testing::Contains(testing::HasSubstr("Hara"))));
}

TEST(PreviewPlaces, MarkersAreOpen) {
    Job job = SampleDeal();
    job.ClearField(Seller1Name);
    const Preview made = MakePreview(OrderOf(std::move(job), {"Deed / Warranty"}), {});
    EXPECT_THAT(WordsOf(made, Seller1Name), testing::Contains("[seller 1 name]"));
    for (const ValuePlace& place : made.values) EXPECT_EQ(place.isOpen, At(made, place)[0] == '[');
}

TEST(Previewing, MakesTheDocumentOfCreateAndNothingElse) {
    const ScratchFolder scratch;
    Job job = SampleDeal();
    const std::vector<std::string> list = {"Deed / Warranty", "Schedule A"};
    PreviewOrder order = OrderOf(job, list);
    const Preview made = MakePreview(order, scratch / "preview.docx");
    for (int number = 1; number <= 4240; ++number) ASSERT_EQ(order.job.D(number), job.D(number));

    CreateOrder create;
    create.DocumentNames = list;
    create.today = order.today;
    create.startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); };
    CreateRun(job, create).Run((scratch / "created.docx").string());
    EXPECT_EQ(ReadBytes(scratch / "preview.docx"), ReadBytes(scratch / "created.docx"));
    EXPECT_EQ(TextOfFile(scratch / "preview.docx"), Utf8Of(made.text));

    order.document = "Schedule A";
    const Preview alone = MakePreview(order, scratch / "preview.docx");
    EXPECT_TRUE(Utf8Of(made.text).ends_with(Utf8Of(alone.text)));
    EXPECT_EQ(TextOfFile(scratch / "preview.docx"), Utf8Of(alone.text)) << "the file of before is replaced";
}

TEST(Previewing, WhatKeepsCreateFromBeingRunDoesNotKeepThePage) {
    Job job = FullDeal();
    job.SetValue(ProrationDate, "soon");
    const PreviewOrder order = OrderOf(job, {"Closing Statement", "Deed / Warranty"});
    EXPECT_THAT(MakePreview(order, {}).missing, testing::IsEmpty());
    const PreviewOrder unknown = OrderOf(job, {"Deed / Waranty", "Deed / Warranty"});
    const Preview made = MakePreview(unknown, {});
    EXPECT_THAT(made.missing, testing::ElementsAre("Deed / Waranty"));
    EXPECT_THAT(WordsOf(made, Seller1Name), testing::Not(testing::IsEmpty()));
    EXPECT_THROW(MakePreview(OrderOf(job, {"Deed / Waranty"}), {}), CreateError);
}

}  // namespace
}  // namespace quillmark::test
