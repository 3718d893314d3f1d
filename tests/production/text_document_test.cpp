#include "production/kit/text_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "production/builders/text_bodies.h"
#include "production/engine_desk.h"
#include "production/kit/text_reader.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr Passage kPassages[] = {
    {"price table", [](const JobValues&, Typist& type) { type.Text("a.\tPrice\r"); }}};

class Desk {
 public:
    void Type(std::string_view text, const Job& job = SampleDeal(), std::span<const TextSource> family = {}) {
        const TextDocument document({"forms/lease.txt", text}, kPassages, family);
        EXPECT_THAT(document.Errors(), ElementsAre());
        desk_.operations.clear();
        document.Type(JobValues(job), desk_.type);
    }
    std::string Text() const { return desk_.Text(); }
    std::string Reading() const { return desk_.Reading(); }
    std::vector<std::string> Typed() const {
        std::vector<std::string> typed;
        for (const std::string& operation : desk_.operations) {
            if (operation.find("TypeText") != std::string::npos ||
                operation.find("ListFormat") != std::string::npos)
                typed.push_back(operation.substr(10));
        }
        return typed;
    }

 private:
    EngineDesk desk_;
};

std::string TypedText(std::string_view text, const Job& job = SampleDeal()) {
    Desk desk;
    desk.Type(text, job);
    return desk.Text();
}

TEST(TextDocument, ParagraphsEndWithABlankLineUnlessTheySayOtherwise) {
    EXPECT_EQ(TypedText("One\nline.\n\nTwo\\\nfold¶\n\n% a remark\nThree→tabbed¬\n\n on"),
              "One line.\n\nTwofold\nThree\ttabbed on\n\n\n");
    EXPECT_EQ(TypedText("\\*Not bold\\*, \\[no marker\\], 1\\=1"), "*Not bold*, [no marker], 1=1\n\n\n");
}

TEST(TextDocument, MarksCutTheTextIntoRuns) {
    Desk desk;
    desk.Type("Sold by *[seller 1 name]* for ~=both=~ ==twice==.");
    EXPECT_THAT(desk.Reading(), HasSubstr("Sold by *Walter B. Hollis* for ~=both=~ ==twice==."));
    EXPECT_THAT(desk.Typed(), testing::Contains("TypeText \"Sold by \""));
}

TEST(TextDocument, ItemsEndWithTheirBlankLineAndTheListWithTheNextParagraph) {
    Desk desk;
    desk.Type("# First.\n\n# Second\n\n+ goes on.\n\n## Deeper.\n\n# Third.\n\nAfter.");
    EXPECT_THAT(desk.Typed(),
                ElementsAre("Range.ListFormat.ApplyListTemplate ActiveDocument.ListTemplates(2)",
                            "TypeText \"First.\\v\\r\"", "TypeText \"Second\\v\\vgoes on.\\v\\r\"",
                            "Range.ListFormat.ListIndent", "TypeText \"Deeper.\\v\\r\"",
                            "Range.ListFormat.ListOutdent", "TypeText \"Third.\\v\\r\"",
                            "Range.ListFormat.RemoveNumbers", "TypeText \"After.\\r\\r\""));
}

TEST(TextDocument, ItemsThatAreLeftOutLeaveNoTrace) {
    Job job = SampleDeal();
    const char* const text =
        "# Always.\n@if [repair credit]\n# Credit of [repair credit].\n@end\n# Last.\n@if 2 Sellers\nBoth sign.\n"
        "@else\nOne signs.\n@end\n";
    EXPECT_EQ(TypedText(text, job), "Always.\v\nLast. One signs.\v\n\n");
    job.SetField(field::RepairCredit, "$500.00");
    SellersApart(job);
    EXPECT_EQ(TypedText(text, job), "Always.\v\nCredit of $500.00.\v\nLast. Both sign.\v\n\n");
    EXPECT_EQ(TypedText("@if not [repair credit]\nNone.\n@end\n", job), "\n");
}

TEST(TextDocument, ValuesInTheirForms) {
    EXPECT_EQ(
        TypedText("{address of [seller 1 name]}; {town of [property cy,st zip]}; {date of [document date]}; "
                  "[sale price words]; {last name of [buyer 1 name]}",
                  SampleDeal()),
        "14 Chestnut Lane, Branford, CT 06405; Branford; 2nd day of May, 2024; FOUR HUNDRED FIFTEEN THOUSAND & "
        "00/100; Castellan\n\n\n");
    EXPECT_THAT(TypedText("[seller 1 name] and {words of [sale price numeric]}", UnfilledDeal()),
                HasSubstr("[seller 1 name] and [sale price words]"));
}

TEST(TextDocument, PassagesAndNamedTexts) {
    const TextSource family[] = {
        {"forms/clauses.txt", "@passage EFFECT\n# Binding.\n@if Condo\n# Condo.\n@end\n@end\n"}};
    Desk desk;
    desk.Type("# Price: {price table}\n\n{EFFECT}\n\n{price table}\n\nEnd¶", SampleDeal(), family);
    EXPECT_EQ(desk.Text(), "Price: a.\tPrice\n\v\nBinding.\v\na.\tPrice\nEnd\n\n");
}

TEST(TextDocument, LeavesTheParagraphAsItFoundIt) {
    EngineDesk desk;
    TextDocument({"a/b.txt", "@indents 0.5\n@tabs 1 2\n@align centre\n@space after 6\n# Only item"}, {})
        .Type(JobValues(SampleDeal()), desk.type);
    EXPECT_EQ(desk.LeftOver(), "");
    EXPECT_TRUE(desk.Reading().ends_with("[left, indents 0 and 0]\n\n")) << desk.Reading();

    desk.type.Indents(0.25);
    TextDocument({"a/b.txt", "# Item of a body\n\n@indents 0.5\nMore"}, {})
        .Type(JobValues(SampleDeal()), desk.type);
    EXPECT_TRUE(desk.Reading().ends_with("[left, indents 18 and 18]\n\n"))
        << desk.Reading() << "a body ends with the indents of its document";
}

TEST(TextDocument, NamesEveryFaultWithItsLine) {
    const auto errors = [](std::string_view text) { return TextDocument({"a/b.txt", text}, {}).Errors(); };
    EXPECT_THAT(errors("Good.\n\nBy [seler 1 name] and {nobody}"),
                ElementsAre("a/b.txt:3: no field has the marker [seler 1 name]",
                            "a/b.txt:3: no passage is called \"nobody\""));
    EXPECT_THAT(errors("\n*Never closed\n\nText"), ElementsAre(HasSubstr("is not closed")));
    EXPECT_THAT(errors("@if 3 Sellers\nText\n@end"),
                ElementsAre(HasSubstr("a/b.txt:1: \"3 Sellers\" is neither")));
    EXPECT_THAT(errors("@if Condo\nText"), ElementsAre("a/b.txt:1: a condition without its @end"));
    EXPECT_THAT(errors("@if Condo\n@if Entity\nText\n@end"),
                testing::Contains(HasSubstr("within another one")));
    EXPECT_THAT(errors("Text\n@if Condo\nmore\n\nnext\n@end"), testing::Contains(HasSubstr("ends with it")));
    EXPECT_THAT(errors("### Too deep"), ElementsAre(HasSubstr("without the level above it")));
    EXPECT_THAT(errors("@fount Arial 10\n@font Arial\n@align middle"), testing::SizeIs(3));
    EXPECT_THAT(errors("{words of [seller 1 name]}"), ElementsAre(HasSubstr("has no form \"words\"")));
}

// One pass over all texts, so that whoever edits one sees everything that is wrong at once.
TEST(TextDocument, EveryEmbeddedTextIsWhole) {
    std::set<std::string, std::less<>> used, bodies;
    for (const TextBody& body : TextBodies()) {
        const TextDocument document = ReadBody(body);
        for (const std::string& error : document.Errors()) ADD_FAILURE() << error;
        used.insert(document.NamedTexts().begin(), document.NamedTexts().end());
        bodies.emplace(body.file);
    }
    for (const NamedText& text : FindNamedTexts(TextSources()))
        EXPECT_TRUE(used.contains(text.name)) << text.file << ": nothing uses the text " << text.name;
    for (const TextSource& source : TextSources()) {
        if (bodies.contains(source.file)) continue;
        EXPECT_FALSE(FindNamedTexts({&source, 1}).empty())
            << source.file << " is neither a document nor a set of texts";
    }
}

}  // namespace
}  // namespace quillmark::test
