#include "production/builders/builder_list.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <regex>
#include <set>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"
#include "production/recording_word.h"
#include "production/sample_deal.h"
#include "support/scratch.h"
#include "word/docx/objects/engine.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;

/// A random choice of the options, the radio groups among them kept as the screen keeps them.
std::string ChooseOptions(Job& job, std::mt19937& random) {
    const auto chosen = [&](int on, int off) {
        const bool first = random() % 2 == 0;
        job.SetOption(on, first);
        job.SetOption(off, !first);
    };
    chosen(OneSeller, TwoSellers);
    chosen(Person, Entity);
    chosen(OneBuyer, TwoBuyers);
    chosen(OnePayoff, TwoPayoffs);
    for (const int n : {Condo, Commercial, Letterhead, LandMultiFamily, PowerOfAttorney, EstateTrust}) {
        job.SetOption(n, random() % 2 == 0);
    }
    std::string options;
    for (int n = 1; n <= kOptions; ++n) options += job.optConf(n) ? std::to_string(n) + " " : "";
    return options;
}

/// The sample deal with every other field filled too.
Job FilledDeal() {
    Job job = SampleDeal();
    SellersApart(job);
    BuyersApart(job);
    job.SetField(field::ClosingDate, "May 2, 2024");
    job.SetField(field::ProrationDate, "May 3, 2024");
    for (int n = 1; n <= kFields; ++n) {
        if (FieldMarker(n).size() > 2 && !job.IsFilled(n)) job.SetField(n, "12");
    }
    return job;
}

TEST(Builders, LeaveTheInsertionPointAsTheyFoundIt) {
    std::mt19937 random(20240502);
    for (int round = 0; round < 100; ++round) {
        Job job = FilledDeal();
        const std::string options = ChooseOptions(job, random);
        const char* const principals[] = {"Walter B. Hollis", "June Hollis", "nobody"};
        job.SetField(field::PrincipalOfPower, principals[random() % 3]);
        RecordingWord recorder;
        WordSession session(recorder.Application(), recorder.clipboard());
        SetUpWordSession(session);
        for (const Builder& builder : Builders()) {
            SCOPED_TRACE(std::string(builder.document) + " with options " + options);
            TypeDocument(builder, From(job), session);
            EXPECT_FALSE(recorder.characters().bold);
            EXPECT_FALSE(recorder.characters().italic);
            EXPECT_EQ(recorder.characters().underline, 0);
            EXPECT_EQ(recorder.paragraph().left, 0);
            EXPECT_EQ(recorder.paragraph().right, 0);
            EXPECT_EQ(recorder.paragraph().spaceAfter, 0);
            EXPECT_EQ(recorder.paragraph().lineSpacing, 12);
            EXPECT_TRUE(recorder.paragraph().tabs.empty());
            EXPECT_TRUE(recorder.paragraph().list.empty());
        }
    }
}

std::string TypedText(const Builder& builder, const Job& job) {
    RecordingWord recorder;
    WordSession session(recorder.Application(), recorder.clipboard());
    SetUpWordSession(session);
    TypeDocument(builder, From(job), session);
    return recorder.Text();
}

/// Words in brackets that a form prints itself.
constexpr std::string_view kPrintedInBrackets[] = {
    "[Space Above This Line For Recording Data]",
    "[specify]",
    "[Sign Original Only]",
};

TEST(Builders, FilledJobShowsNoHole) {
    std::mt19937 random(7);
    for (int round = 0; round < 40; ++round) {
        Job job = FilledDeal();
        const std::string options = ChooseOptions(job, random);
        for (const Builder& builder : Builders()) {
            std::string text = TypedText(builder, job);
            for (const std::string_view printed : kPrintedInBrackets) {
                if (const std::size_t at = text.find(printed); at != text.npos)
                    text.erase(at, printed.size());
            }
            if (const std::size_t hole = text.find('['); hole != text.npos)
                ADD_FAILURE() << builder.document << " with options " << options << ": "
                              << text.substr(hole, 60);
        }
    }
}

// Custom documents and the user look for a marker by its text, so a mangled one is a hole that nobody finds.
TEST(Builders, UnfilledJobShowsMarkersOnly) {
    std::set<std::string> markers(std::begin(kPrintedInBrackets), std::end(kPrintedInBrackets));
    markers.insert("[tenancy type]");
    const Job blank = UnfilledDeal();
    for (int n = 1; n <= kFields; ++n) {
        for (int part = 0; part <= 4; ++part) markers.insert(blank.D(part * 1000 + n));
    }
    std::mt19937 random(11);
    const std::regex bracketed(R"(\[[^\]\n]*\])");
    for (int round = 0; round < 40; ++round) {
        Job job = UnfilledDeal();
        const std::string options = ChooseOptions(job, random);
        for (const Builder& builder : Builders()) {
            const std::string text = TypedText(builder, job);
            EXPECT_NE(text.find('['), std::string::npos) << builder.document;
            for (std::sregex_iterator match(text.begin(), text.end(), bracketed), end; match != end;
                 ++match) {
                const std::string marker = match->str();
                EXPECT_TRUE(markers.count(marker) || markers.count(Lowered(marker)))
                    << builder.document << " with options " << options << ": " << marker;
            }
        }
    }
}

/// What stands in a paragraph in place of a character, in braces as RecordingWord shows it.
struct ObjectText {
    std::string operator()(const word::docx::FormFieldData& field) const {
        if (field.isCheckBox) return field.checked ? "{x}" : "{ }";
        return "{" + field.result + "}";
    }
    std::string operator()(const word::docx::Picture& picture) const {
        return "{" + picture.description + "}";
    }
    template <class Other>
    std::string operator()(const Other&) const {
        return "{?}";
    }
};

std::string ParagraphText(const word::docx::Paragraph& paragraph) {
    std::string text;
    std::size_t object = 0;
    for (const char c : paragraph.text) {
        if (c == word::docx::character::kObject) {
            text += std::visit(ObjectText{}, paragraph.objects.at(object++));
        } else {
            text += c;
        }
    }
    return text;
}

/// A cell's paragraphs are parted by "\r"; a cell joined to the one before it has none.
std::string CellText(const word::docx::TableCell& cell) {
    std::string text;
    for (const word::docx::Block& block : cell.blocks)
        text += (text.empty() ? "" : "\r") + ParagraphText(std::get<word::docx::Paragraph>(block));
    return text;
}

/// The paragraphs and table cells of the embedded engine's document, one a line.
std::string EngineText(const word::docx::Document& document) {
    std::string text;
    for (const word::docx::Block& block : document.body) {
        if (const auto* paragraph = std::get_if<word::docx::Paragraph>(&block)) {
            text += ParagraphText(*paragraph) + "\n";
        } else if (const auto* table = std::get_if<std::unique_ptr<word::docx::Table>>(&block)) {
            for (const word::docx::TableRow& row : (*table)->rows)
                for (const word::docx::TableCell& cell : row.cells) text += CellText(cell) + "\n";
        }
    }
    return text;
}

// The recording word processor takes any member; the embedded engine only those that it knows.
TEST(Builders, TypeTheSameIntoTheEmbeddedEngine) {
    std::mt19937 random(19);
    for (int round = 0; round < 10; ++round) {
        Job job = FilledDeal();
        const std::string options = ChooseOptions(job, random);
        for (const Builder& builder : Builders()) {
            SCOPED_TRACE(std::string(builder.document) + " with options " + options);
            auto clipboard = std::make_shared<word::MemoryClipboard>();
            WordSession session(word::docx::objects::StartEngine({.folder = {}, .clipboard = clipboard}),
                                clipboard);
            SetUpWordSession(session);
            TypeDocument(builder, From(job), session);
            EXPECT_EQ(EngineText(word::docx::objects::ModelOf(session.WordDoc.Reach())),
                      TypedText(builder, job));
        }
    }
}

TEST(Builders, RunAgainForTheSecondSellerOrPayoff) {
    static std::string calls;
    const Builder letter{"Letter",
                         [](const Production&, Typist&, const Variant& variant) {
                             calls += std::string(variant.tag) + std::to_string(variant.number) + " ";
                         },
                         {"SMS", 1},
                         RunsAgain::WithTwoPayoffs,
                         ""};
    RecordingWord recorder;
    WordSession session(recorder.Application(), recorder.clipboard());
    SetUpWordSession(session);
    Job job;
    job.SetOption(TwoSellers, true);
    TypeDocument(letter, From(job), session);
    EXPECT_EQ(calls, "SMS1 ");
    job.SetOption(TwoPayoffs, true);
    TypeDocument(letter, From(job), session);
    EXPECT_EQ(calls, "SMS1 SMS1 SMS2 ");
    EXPECT_EQ(recorder.Text(), "\f\n") << "the second stands on a page of its own";
}

TEST(Builders, LeaveThePageBreakOfTheSecondCopyToTheList) {
    Job job = FilledDeal();
    for (const int option : {TwoSellers, TwoPayoffs}) job.SetOption(option, true);
    for (const Builder& builder : Builders()) {
        EXPECT_EQ(TypedText(builder, job).find("\f\f"), std::string::npos) << builder.document;
    }
}

TEST(Builders, EveryFileIsOnTheList) {
    const fs::path folder = SourceFolder() / "src" / "production" / "builders";
    const std::string list = ReadBytes(folder / "builders.inc");
    const std::regex definition(
        R"(\nvoid (Type\w+)\((?:const JobValues& job|const Production& production), Typist& type)");
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".cpp") continue;
        // What a family shares has a header; a document has none.
        if (fs::exists(fs::path(entry.path()).replace_extension(".h"))) continue;
        const std::string source = ReadBytes(entry.path());
        std::smatch name;
        bool listed = false;
        for (auto at = source.cbegin(); std::regex_search(at, source.cend(), name, definition);
             at = name.suffix().first) {
            listed = listed || std::regex_search(list, std::regex("\\b" + name[1].str() + "\\b"));
        }
        EXPECT_TRUE(listed) << entry.path() << " has no builder on the list";
    }
}

// Every golden text of a document begins with the name of the document that it shows.
TEST(Builders, EveryEntryHasAGolden) {
    std::set<std::string, std::less<>> shown;
    for (const auto& entry : fs::recursive_directory_iterator(SourceFolder() / "tests" / "goldens")) {
        if (entry.path().extension() != ".txt") continue;
        const std::string text = ReadBytes(entry.path());
        shown.insert(text.substr(0, text.find('\n')));
    }
    for (const Builder& builder : Builders()) {
        EXPECT_TRUE(shown.contains(builder.document)) << builder.document << " has no golden text";
    }
}

TEST(Builders, ListNamesEachEntryOnce) {
    std::set<std::string_view> names;
    for (const Builder& builder : Builders()) {
        EXPECT_TRUE(names.insert(builder.document).second) << builder.document;
        EXPECT_EQ(FindBuilder(builder.document), &builder);
    }
    EXPECT_EQ(FindBuilder("[ NEW DOCUMENT ]"), nullptr);
}

}  // namespace
}  // namespace quillmark::test
