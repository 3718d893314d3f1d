#include "production/builders/builder_list.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <regex>
#include <set>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "production/engine_desk.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"
#include "production/sample_deal.h"
#include "support/scratch.h"

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

std::string TypedText(const Builder& builder, const Job& job) {
    EngineDesk desk;
    desk.Type(builder.document, job);
    return desk.Text();
}

/// Words in brackets that a form prints itself.
constexpr std::string_view kPrintedInBrackets[] = {
    "[Space Above This Line For Recording Data]",
    "[specify]",
    "[Sign Original Only]",
};

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

TEST(Builders, RunAgainForTheSecondSellerOrPayoff) {
    static std::string calls;
    const Builder letter{"Letter",
                         [](const Production&, Typist&, const Variant& variant) {
                             calls += std::string(variant.tag) + std::to_string(variant.number) + " ";
                         },
                         {"SMS", 1},
                         RunsAgain::WithTwoPayoffs,
                         ""};
    EngineDesk desk;
    Job job;
    job.SetOption(TwoSellers, true);
    TypeDocument(letter, From(job), desk.session);
    EXPECT_EQ(calls, "SMS1 ");
    job.SetOption(TwoPayoffs, true);
    TypeDocument(letter, From(job), desk.session);
    EXPECT_EQ(calls, "SMS1 SMS1 SMS2 ");
    EXPECT_EQ(desk.Text(), "\f\n") << "the second stands on a page of its own";
}

TEST(Builders, LeaveThePageBreakOfTheSecondCopyToTheList) {
    Job job = FullDeal();
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
