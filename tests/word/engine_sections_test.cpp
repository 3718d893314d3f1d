#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

using testing::ElementsAre;

class EngineSections : public testing::Test, protected EngineSession {
 protected:
    /// Types a document and puts the break in front of it, as a run does for all but the first.
    void TypeDocument(const std::string& text) {
        const Range start = sel.Range();
        const bool isFirst = doc.Sections.Count() == 1 && sel.Range().StoryLength == 1;
        sel.TypeText(text);
        if (!isFirst) start.InsertBreak(SectionBreakNextPage);
    }
    std::string FooterText(int section) {
        const std::string text = doc.Sections(section).Footers(1).Range().Text;
        return text.substr(0, text.size() - 1);
    }
    void TearDown() override { EXPECT_EQ(FaultIn(Model()), ""); }
};

TEST_F(EngineSections, ABreakPutInFrontOfTypedTextKeepsThatTextTogether) {
    sel.TypeText("end of the first");
    const Range start = sel.Range();
    sel.TypeText("second");
    start.InsertBreak(SectionBreakNextPage);
    sel.TypeText(", typed on");
    EXPECT_THAT(Texts(), ElementsAre("end of the first=", "second, typed on"));
}

TEST_F(EngineSections, ABreakAtAParagraphsStartHasALineOfItsOwnOutsideOfAnyList) {
    sel.TypeText("first\r");
    const Range start = sel.Range();
    const ListTemplate list = doc.ListTemplates.Add(false);
    sel.ListFormat().ApplyListTemplate(list);
    sel.Paragraphs.SpaceAfter = 10;
    sel.TypeText("item");
    start.InsertBreak(SectionBreakNextPage);
    ASSERT_THAT(Texts(), ElementsAre("first", "=", "item"));
    EXPECT_EQ(ListAt(1), 0);
    EXPECT_EQ(FormatAt(1).spaceAfter, std::nullopt);
    EXPECT_EQ(ListAt(2), 1);
}

TEST_F(EngineSections, TheEmptyDocumentStillGetsItsSection) {
    TypeDocument("first\r");
    TypeDocument("");
    TypeDocument("third");
    EXPECT_EQ(doc.Sections.Count(), 3);
    EXPECT_THAT(Texts(), ElementsAre("first", "=", "=", "third"));
}

TEST_F(EngineSections, ThePartBeforeKeepsItsStartAndFootersAndThePartBehindItsPage) {
    doc.PageSetup.LeftMargin = 45;
    doc.PageSetup.FooterDistance = 18;
    sel.TypeText("one");
    doc.Sections(1).Footers(1).Range().Text = "the first's";
    doc.Sections(1).Footers(1).PageNumbers.StartingNumber = 5;
    doc.Sections(1).PageSetup.SectionStart = SectionContinuous;
    sel.InsertBreak(SectionBreakNextPage);
    sel.TypeText("two");
    sel.InsertBreak(SectionBreakContinuous);
    sel.TypeText("three");

    ASSERT_EQ(doc.Sections.Count(), 3);
    EXPECT_EQ(doc.Sections(1).PageSetup.SectionStart, SectionContinuous);
    EXPECT_EQ(doc.Sections(2).PageSetup.SectionStart, SectionNewPage);
    EXPECT_EQ(doc.Sections(3).PageSetup.SectionStart, SectionContinuous);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(doc.Sections(i).PageSetup.LeftMargin, 45);
        EXPECT_EQ(doc.Sections(i).PageSetup.FooterDistance, 18);
        EXPECT_EQ(doc.Sections(i).Footers(1).PageNumbers.StartingNumber, 5);
        EXPECT_EQ(FooterText(i), "the first's");
        EXPECT_EQ(doc.Sections(i).Footers(1).LinkToPrevious, i > 1);
    }
}

TEST_F(EngineSections, PageSetUpOfTheDocumentIsThatOfAllSections) {
    TypeDocument("one");
    TypeDocument("two");
    doc.Sections(2).PageSetup.PaperSize = PaperLegal;
    EXPECT_EQ(doc.PageSetup.PaperSize, 9999999);
    EXPECT_EQ(doc.Sections(1).PageSetup.PaperSize, PaperLetter);
    EXPECT_EQ(Model().lastSection.pageHeight, 20160);
    doc.PageSetup.PaperSize = PaperLegal;
    doc.PageSetup.TopMargin = 54;
    EXPECT_EQ(doc.Sections(1).PageSetup.PaperSize, PaperLegal);
    EXPECT_EQ(doc.PageSetup.TopMargin, 54);
}

TEST_F(EngineSections, ColumnsAreThoseOfTheSectionAtTheInsertionPoint) {
    doc.PageSetup.LeftMargin = 45;
    doc.PageSetup.RightMargin = 45;
    sel.TypeText("whole width");
    sel.InsertBreak(SectionBreakContinuous);
    const TextColumns& columns = sel.PageSetup.TextColumns;
    columns.SetCount(2);
    EXPECT_EQ(columns.Width, 243) << "half of what the space leaves of 522 points";
    columns.Width = 252;
    EXPECT_EQ(columns.Spacing, 18);
    columns.Spacing = 22;
    EXPECT_EQ(columns.Width, 250);
    EXPECT_EQ(ErrorOf([&] { columns.Width = 300; }), error::kBadValue);

    sel.TypeText("left and right");
    sel.InsertBreak(SectionBreakContinuous);
    sel.PageSetup.TextColumns.SetCount(1);
    EXPECT_EQ(doc.Sections(1).PageSetup.TextColumns.Spacing, 36);
    EXPECT_EQ(doc.Sections(2).PageSetup.TextColumns.Width, 250);
    EXPECT_EQ(doc.Sections(3).PageSetup.TextColumns.Width, 522);
}

TEST_F(EngineSections, ALinkedFooterWritesToTheOneItShowsUntilItIsCutLoose) {
    TypeDocument("one");
    TypeDocument("two");
    TypeDocument("three");
    doc.Sections(2).Footers(1).Range().Text = "common";
    EXPECT_EQ(FooterText(1), "common");
    doc.Sections(2).Footers(1).LinkToPrevious = false;
    EXPECT_EQ(FooterText(2), "common") << "a copy of what it showed";
    doc.Sections(3).Footers(1).Range().Text = "second's";
    EXPECT_EQ(FooterText(1), "common");
    EXPECT_EQ(FooterText(2), "second's");
    EXPECT_EQ(FooterText(3), "second's");
    doc.Sections(2).Footers(1).LinkToPrevious = true;
    EXPECT_EQ(FooterText(3), "common");
    EXPECT_FALSE(doc.Sections(1).Footers(1).LinkToPrevious);
}

TEST_F(EngineSections, TheThreeFootersOfASectionAreApart) {
    const Footers& footers = doc.Sections(1).Footers;
    ASSERT_EQ(footers.Count(), 3);
    EXPECT_EQ(footers(1).Range().StoryType, PrimaryFooterStory);
    EXPECT_EQ(footers(2).Range().StoryType, FirstPageFooterStory);
    EXPECT_EQ(footers(3).Range().StoryType, EvenPagesFooterStory);
    EXPECT_EQ(sel.Range().StoryType, MainTextStory);
    footers(1).Range().Text = "primary";
    EXPECT_EQ(footers(2).Range().Text.Read(), "\r");
    EXPECT_EQ(ErrorOf([&] { footers(4); }), error::kNoSuchElement);
}

/// The descriptive footer as a run writes it, for job and document names of any length.
std::string DescriptiveFooter(const Section& section, const std::string& job, const std::string& name,
                              const std::string& firm) {
    const Footer footer = section.Footers(1);
    footer.LinkToPrevious = false;
    const Range range = footer.Range();
    range.ParagraphFormat.Alignment = AlignCentre;
    range.Font.Name = "Courier New";
    range.Font.Size = 8;
    range.Text = job + " - ";
    range.MoveStart(UnitStory);
    range.InsertAfter(name + " - ");
    range.MoveStart(UnitStory);
    range.Fields.Add(range, FieldPage);
    range.MoveStart(UnitStory);
    const int kept = static_cast<int>(firm.size()) + 1;
    range.InsertAfter(std::string(static_cast<std::size_t>(134 - range.StoryLength - kept), ' ') + firm);
    return footer.Range().Text;
}

TEST_F(EngineSections, TheDescriptiveFooterFillsItsLineWhateverTheNamesAre) {
    TypeDocument("one");
    TypeDocument("two");
    const std::string first = DescriptiveFooter(doc.Sections(1), "SMITH", "Deed / Warranty", "Quillmark");
    const std::string second =
        DescriptiveFooter(doc.Sections(2), "A job with a longer name", "Owner's Affidavit", "Doe & Roe, LLP");
    EXPECT_TRUE(first.starts_with("SMITH - Deed / Warranty - 1   ")) << first;
    EXPECT_TRUE(first.ends_with("   Quillmark\r")) << first;
    EXPECT_TRUE(second.starts_with("A job with a longer name - Owner's Affidavit - 1   ")) << second;
    EXPECT_TRUE(second.ends_with("   Doe & Roe, LLP\r")) << second;
    // Of the 134 the page number's field takes 25 that do not show, the paragraph's mark one, and one more is
    // the column kept with the firm's name: what shows fits between the margins at 8 points.
    EXPECT_EQ(first.size(), 134u - 25u - 1u);
    EXPECT_EQ(second.size(), first.size());

    const docx::Paragraph& line = std::get<docx::Paragraph>(Model().lastSection.footers[0]->blocks.front());
    ASSERT_EQ(line.objects.size(), 4u);
    EXPECT_EQ(std::get<docx::FieldInstruction>(line.objects[1]).text, " PAGE  \\* MERGEFORMAT ");
    EXPECT_EQ(line.spans.size(), 1u) << "Courier New 8 throughout";
    EXPECT_EQ(Model().charFormats[line.spans[0].format].halfPoints, 16);
}

TEST_F(EngineSections, PageNumbersRestartWhereTheyAreToldTo) {
    const PageNumbers& numbers = doc.Sections(1).Footers(2).PageNumbers;
    EXPECT_FALSE(numbers.RestartNumberingAtSection);
    numbers.RestartNumberingAtSection = true;
    numbers.StartingNumber = 1;
    EXPECT_EQ(Model().lastSection.pageNumberStart, 1);
    numbers.RestartNumberingAtSection = false;
    EXPECT_EQ(Model().lastSection.pageNumberStart, std::nullopt);
}

TEST_F(EngineSections, ASectionWhoseBreakIsTakenOutIsGone) {
    sel.TypeText("one");
    sel.InsertBreak(SectionBreakNextPage);
    doc.Sections(1).Footers(1).Range().Text = "first's";
    doc.Sections(2).Footers(1).LinkToPrevious = false;
    doc.Sections(2).Footers(1).Range().Text = "second's";
    const Section first = doc.Sections(1);
    const Range footer = doc.Sections(1).Footers(1).Range();
    sel.TypeBackspace();
    EXPECT_EQ(doc.Sections.Count(), 1);
    EXPECT_EQ(FooterText(1), "second's") << "the text takes the section that follows it";
    EXPECT_EQ(ErrorOf([&] { first.PageSetup.PaperSize = PaperLegal; }), error::kObjectDeleted);
    footer.InsertAfter("!");
}

TEST_F(EngineSections, APageBreakLiesInsideTheParagraph) {
    sel.TypeText("one");
    sel.InsertBreak(PageBreak);
    sel.TypeText("two");
    EXPECT_THAT(Texts(), ElementsAre("one\ftwo"));
    EXPECT_EQ(ErrorOf([&] { sel.InsertBreak(static_cast<Break>(99)); }), error::kBadValue);
    const Range footer = doc.Sections(1).Footers(1).Range();
    EXPECT_EQ(ErrorOf([&] { footer.InsertBreak(SectionBreakNextPage); }), error::kNotAvailable);
}

}  // namespace
}  // namespace quillmark::word::test
