#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "word/docx/check/package_check.h"
#include "word/docx/write/document_writer.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::size_t Count(const std::string& text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

/// A part as it is written, with single quotes: the expectations below are easier to read so.
std::string PartOf(const Document& document, const std::string& name) {
    std::string xml = test::PartOf(document, name);
    std::ranges::replace(xml, '"', '\'');
    return xml;
}

/// The last section's w:sectPr.
std::string SectionOf(const Document& document) {
    const std::string xml = PartOf(document, "word/document.xml");
    return xml.substr(xml.rfind("<w:sectPr>"));
}

/// What is between the tags of the body, without the last section.
std::string CheckedBodyOf(const Document& document) {
    EXPECT_THAT(check::CheckPackage(write::WriteDocx(document)), IsEmpty());
    const std::string xml = PartOf(document, "word/document.xml");
    const std::size_t start = xml.find("<w:body>") + std::string_view("<w:body>").size();
    return xml.substr(start, xml.rfind("<w:sectPr>") - start);
}

std::unique_ptr<Story> StoryOf(Document& document, std::string_view text) {
    auto story = std::make_unique<Story>();
    test::AddParagraph(document, story->blocks, text);
    return story;
}

TEST(DocumentWriter, TextTurnsIntoRunsByFormatAndCharactersIntoElements) {
    const auto document = test::EmptyDocument();
    Paragraph& paragraph = test::AddParagraph(*document, document->body, "A & B\tC\v");
    test::Type(*document, paragraph, "D\f\x0e", {.bold = true, .italic = false});
    EXPECT_EQ(
        CheckedBodyOf(*document),
        "<w:p><w:r><w:t xml:space='preserve'>A &amp; B</w:t><w:tab/><w:t xml:space='preserve'>C</w:t><w:br/></w:r>"
        "<w:r><w:rPr><w:b/><w:i w:val='0'/></w:rPr><w:t xml:space='preserve'>D</w:t>"
        "<w:br w:type='page'/><w:br w:type='column'/></w:r></w:p>");
}

TEST(DocumentWriter, FormatsKeepTheSchemasOrderAroundWhatAnOpenedFileHad) {
    const auto document = test::EmptyDocument();
    const ParaFormat format = {.style = "ListParagraph",
                               .tabs = {{-720, "clear", ""}, {720, "right", "dot"}},
                               .line = 276,
                               .leftIndent = 0,
                               .firstLine = -360,
                               .alignment = 3,
                               .extra = {{"keepNext", R"(<w:keepNext/>)"},
                                         {"outlineLvl", R"(<w:outlineLvl w:val="1"/>)"},
                                         {"jc", R"(<w:jc w:val="left"/>)"}}};
    const CharFormat look = {.font = "A \"B\"",
                             .halfPoints = 17,
                             .underline = 3,
                             .superscript = false,
                             .extra = {{"caps", R"(<w:caps/>)"},
                                       {"ligatures", R"(<w14:ligatures w14:val="all"/>)"},
                                       {"lang", R"(<w:lang w:val="en-US"/>)"}}};
    test::AddParagraph(*document, document->body, "x", format, look);
    const std::string run =
        "<w:rPr><w:rFonts w:ascii='A &quot;B&quot;' w:eastAsia='A &quot;B&quot;' w:hAnsi='A &quot;B&quot;' "
        "w:cs='A &quot;B&quot;'/><w:caps/><w:sz w:val='17'/><w:szCs w:val='17'/><w:u w:val='double'/>"
        "<w:vertAlign w:val='baseline'/><w:lang w:val='en-US'/><w14:ligatures w14:val='all'/></w:rPr>";
    EXPECT_EQ(
        CheckedBodyOf(*document),
        "<w:p><w:pPr><w:pStyle w:val='ListParagraph'/><w:keepNext/>"
        "<w:tabs><w:tab w:val='clear' w:pos='-720'/><w:tab w:val='right' w:leader='dot' w:pos='720'/></w:tabs>"
        "<w:spacing w:line='276' w:lineRule='auto'/><w:ind w:left='0' w:hanging='360'/><w:jc w:val='both'/>"
        "<w:outlineLvl w:val='1'/>" +
            run + "</w:pPr><w:r>" + run + "<w:t xml:space='preserve'>x</w:t></w:r></w:p>");
}

TEST(DocumentWriter, FormFieldsShowTheirResultsAndAreReachedByTheirBookmarks) {
    const auto document = test::EmptyDocument();
    document->nextBookmarkId = 5;
    Paragraph& paragraph = test::AddParagraph(*document, document->body);
    test::Insert(*document, paragraph, FormFieldData{.name = "Text1"});
    test::Insert(*document, paragraph, FormFieldData{.name = "Check1", .isCheckBox = true, .checked = true});
    test::Insert(*document, paragraph, FormFieldData{.name = "TEXT1", .result = "a\x01\tb"});
    test::Insert(*document, paragraph, FormFieldData{.name = "AnNameOf21Characters_", .result = "long"});
    test::Insert(*document, paragraph, FieldEnd{});
    paragraph.objects.pop_back();
    const std::string xml = CheckedBodyOf(*document);
    EXPECT_THAT(
        xml,
        HasSubstr(
            "<w:bookmarkStart w:id='5' w:name='Text1'/><w:r><w:fldChar w:fldCharType='begin'><w:ffData>"
            "<w:name w:val='Text1'/><w:enabled/><w:calcOnExit w:val='0'/><w:textInput/></w:ffData></w:fldChar></w:r>"));
    EXPECT_THAT(xml, HasSubstr(">\u2002\u2002\u2002\u2002\u2002<"));
    EXPECT_THAT(xml, HasSubstr("<w:checkBox><w:sizeAuto/><w:default w:val='1'/></w:checkBox>"));
    EXPECT_THAT(xml, HasSubstr(">a</w:t><w:tab/><w:t xml:space='preserve'>b</w:t>"));
    EXPECT_EQ(Count(xml, "<w:bookmarkStart"), 2u) << "a taken name and one too long are given up";
    EXPECT_EQ(Count(xml, "<w:ffData>"), 4u);
}

TEST(DocumentWriter, AnchorsCutRunsAndOfTwoNamesTheFirstStays) {
    const auto document = test::EmptyDocument();
    Paragraph& first = test::AddParagraph(*document, document->body, "abcd");
    first.anchors = {{1, true, 1, "Here"}, {3, false, 1, ""}};
    Paragraph& second = test::AddParagraph(*document, document->body, "ef");
    second.anchors = {{0, true, 2, "here"}, {2, false, 2, ""}};
    const auto run = [](const std::string& text) {
        return "<w:r><w:t xml:space='preserve'>" + text + "</w:t></w:r>";
    };
    EXPECT_EQ(CheckedBodyOf(*document), "<w:p>" + run("a") + "<w:bookmarkStart w:id='1' w:name='Here'/>" +
                                            run("bc") + "<w:bookmarkEnd w:id='1'/>" + run("d") +
                                            "</w:p><w:p>" + run("ef") + "</w:p>");
}

TEST(DocumentWriter, SectionsSayHowTheyStartAndWhatTheyShow) {
    const auto document = test::EmptyDocument();
    document->lastSection.start = 0;
    EXPECT_THAT(SectionOf(*document),
                HasSubstr("<w:type w:val='continuous'/><w:pgSz w:w='12240' w:h='15840'/>"));
    Paragraph& deed = test::AddParagraph(*document, document->body, "deed", {}, {.bold = true});
    deed.section = std::make_unique<SectionProperties>();
    deed.section->footers[0] = StoryOf(*document, "one");
    deed.section->unequalColumns = {{2000, 360}, {3000, 0}};
    deed.section->extra = {{"vAlign", R"(<w:vAlign w:val="top"/>)"},
                           {"lnNumType", R"(<w:lnNumType w:countBy="1"/>)"}};
    document->lastSection.pageHeight = 20160;
    document->lastSection.titlePage = true;
    document->lastSection.pageNumberStart = 1;
    document->lastSection.protectedForForms = false;
    const std::string body = CheckedBodyOf(*document);
    EXPECT_THAT(body, HasSubstr("</w:rPr><w:sectPr><w:footerReference w:type='default' r:id='rId1'/>"
                                "<w:type w:val='nextPage'/>"));
    EXPECT_THAT(
        body,
        HasSubstr(
            "<w:lnNumType w:countBy='1'/><w:cols w:num='2' w:equalWidth='0'><w:col w:w='2000' "
            "w:space='360'/><w:col w:w='3000' w:space='0'/></w:cols><w:vAlign w:val='top'/></w:sectPr>"));
    EXPECT_THAT(SectionOf(*document),
                HasSubstr("<w:sectPr><w:type w:val='nextPage'/><w:pgSz w:w='12240' w:h='20160'/>"));
    EXPECT_THAT(
        SectionOf(*document),
        HasSubstr(
            "<w:pgNumType w:start='1'/><w:cols w:space='720'/><w:formProt w:val='0'/><w:titlePg/></w:sectPr>"));
}

TEST(DocumentWriter, ASectionAtTheVeryEndIsFollowedByAParagraph) {
    const auto document = test::EmptyDocument();
    test::AddParagraph(*document, document->body).section = std::make_unique<SectionProperties>();
    EXPECT_THAT(CheckedBodyOf(*document), ::testing::EndsWith("</w:sectPr></w:pPr></w:p><w:p/>"));
}

TEST(DocumentWriter, EachStoryIsAPartAndOnlyThoseThatShowAreWritten) {
    const auto document = test::EmptyDocument();
    Paragraph& deed = test::AddParagraph(*document, document->body, "deed");
    deed.section = std::make_unique<SectionProperties>();
    for (SectionProperties* section : {deed.section.get(), &document->lastSection}) {
        for (auto& footer : section->footers) footer = StoryOf(*document, "");
    }
    EXPECT_EQ(Count(CheckedBodyOf(*document) + SectionOf(*document), "<w:footerReference"), 2u);
    deed.section->footers[1] = StoryOf(*document, "on the first page");
    EXPECT_EQ(Count(SectionOf(*document), "<w:footerReference"), 2u)
        << "the empty one hides the one before it";
    document->evenAndOddHeaders = true;
    EXPECT_EQ(Count(SectionOf(*document), "<w:footerReference"), 3u);
    EXPECT_EQ(Count(PartOf(*document, "[Content_Types].xml"), "footer+xml"), 6u);
    EXPECT_THAT(PartOf(*document, "word/settings.xml"), HasSubstr("<w:evenAndOddHeaders/>"));
}

TEST(DocumentWriter, CellsSpanMergeAndAreMendedWhereWordWouldRefuseThem) {
    const auto document = test::EmptyDocument();
    auto table = std::make_unique<Table>();
    table->grid = {1000, 2000, 4000};
    TableRow& row = table->rows.emplace_back();
    row.extra = {{"gridBefore", R"(<w:gridBefore w:val="1"/>)"},
                 {"tblPrEx", R"(<w:tblPrEx><w:jc w:val="left"/></w:tblPrEx>)"}};
    row.cells.resize(1);
    row.cells[0].span = 2;
    row.cells[0].fill = 0x0102FF;
    row.cells[0].borders[2] = BorderLine{0};
    table->rows.emplace_back();
    document->body.emplace_back(std::move(table));
    document->body.emplace_back(std::make_unique<Table>());
    EXPECT_EQ(
        CheckedBodyOf(*document),
        "<w:tbl><w:tblPr><w:tblW w:w='7000' w:type='dxa'/><w:tblLayout w:type='fixed'/></w:tblPr>"
        "<w:tblGrid><w:gridCol w:w='1000'/><w:gridCol w:w='2000'/><w:gridCol w:w='4000'/></w:tblGrid>"
        "<w:tr><w:tblPrEx><w:jc w:val='left'/></w:tblPrEx><w:trPr><w:gridBefore w:val='1'/></w:trPr><w:tc><w:tcPr>"
        "<w:tcW w:w='6000' w:type='dxa'/><w:gridSpan w:val='2'/><w:tcBorders><w:bottom w:val='nil'/></w:tcBorders>"
        "<w:shd w:val='clear' w:color='auto' w:fill='FF0201'/></w:tcPr><w:p/></w:tc></w:tr></w:tbl><w:p/>");
}

TEST(DocumentWriter, EqualPicturesShareAPartAndNoTwoDrawingsANumber) {
    const auto document = test::SampleDocument();
    Paragraph& more = test::AddParagraph(*document, document->body);
    const Picture picture = {test::PngBytes(96, 48), "png", 914400, 457200};
    test::Insert(*document, more, picture);
    test::Insert(
        *document, more,
        RawInline{R"(<w:r><w:drawing><wp:inline><wp:docPr name="x" id="1"/></wp:inline></w:drawing></w:r>)"});
    const test::Parts parts = test::Unzip(write::WriteDocx(*document));
    EXPECT_THAT(check::CheckPackage(write::WriteDocx(*document)), IsEmpty());
    EXPECT_TRUE(parts.contains("word/media/image2.png"));
    EXPECT_FALSE(parts.contains("word/media/image3.png"));
    EXPECT_EQ(Count(parts.at("word/_rels/document.xml.rels"), "media/"), 1u);
    EXPECT_EQ(Count(parts.at("word/_rels/footer2.xml.rels"), "media/"), 1u);
}

TEST(DocumentWriter, RawXmlBringsItsPartsWhereverItStands) {
    const auto document = test::EmptyDocument();
    Relation chart = {.type = "http://example.com/chart",
                      .target = "charts/chart1.xml",
                      .contentType = "application/chart+xml",
                      .bytes = "<c/>"};
    chart.relations["rId1"] = {.type = "http://example.com/sheet",
                               .target = "embeddings/sheet.bin",
                               .contentType = "application/sheet",
                               .bytes = "s"};
    document->relations["rId1"] = chart;
    document->relations["rId2"] = {
        .type = "http://example.com/link", .target = "https://example.com/?a=1&b=2", .external = true};
    document->relations["rId3"] = {.type = "http://example.com/notes",
                                   .target = "footer1.xml",
                                   .contentType = "application/notes+xml",
                                   .bytes = "<n/>"};
    document->body.emplace_back(RawBlock{R"(<w:p><w:hyperlink r:id="rId2"/></w:p>)"});
    test::AddParagraph(*document, document->body, "x");
    document->lastSection.footers[0] = StoryOf(*document, "");
    document->lastSection.footers[0]->blocks.emplace_front(
        RawBlock{R"(<w:p><w:r><w:object r:id="rId1"/></w:r></w:p>)"});
    EXPECT_THAT(check::CheckPackage(write::WriteDocx(*document)), IsEmpty());
    const std::string main = PartOf(*document, "word/_rels/document.xml.rels");
    EXPECT_THAT(
        main, HasSubstr("Id='rId2' Type='http://example.com/link' Target='https://example.com/?a=1&amp;b=2' "
                        "TargetMode='External'"));
    EXPECT_THAT(main, HasSubstr("Target='footer1_2.xml'")) << "a name that is taken already";
    EXPECT_THAT(main, Not(HasSubstr("chart1.xml"))) << "only the footer names it";
    EXPECT_THAT(PartOf(*document, "word/_rels/footer1.xml.rels"),
                HasSubstr("Id='rId1' Type='http://example.com/chart' Target='charts/chart1.xml'"));
    EXPECT_THAT(PartOf(*document, "word/charts/_rels/chart1.xml.rels"),
                HasSubstr("Target='/word/embeddings/sheet.bin'"));
    EXPECT_EQ(PartOf(*document, "word/embeddings/sheet.bin"), "s");
}

TEST(DocumentWriter, ListsRestartAndKeepWhatAnOpenedFileSays) {
    const auto document = test::EmptyDocument();
    document->abstractLists = {{{{3, "decimal", "%1.", 360, -360, ""}}, ""},
                               {{}, R"(<w:abstractNum w:abstractNumId="%ID%"/>)"}};
    document->lists = {{0, false, ""}, {0, true, ""}, {1, true, R"(<w:lvlOverride w:ilvl="0"/>)"}};
    EXPECT_THAT(check::CheckPackage(write::WriteDocx(*document)), IsEmpty());
    EXPECT_THAT(
        PartOf(*document, "word/numbering.xml"),
        HasSubstr(
            "<w:abstractNum w:abstractNumId='1'/><w:num w:numId='1'><w:abstractNumId w:val='0'/></w:num>"
            "<w:num w:numId='2'><w:abstractNumId w:val='0'/><w:lvlOverride w:ilvl='0'><w:startOverride w:val='3'/>"
            "</w:lvlOverride></w:num><w:num w:numId='3'><w:abstractNumId w:val='1'/><w:lvlOverride w:ilvl='0'/></w:num>"));
}

TEST(DocumentWriter, SettingsHoldWhatBelongsToTheWholeDocument) {
    const auto document = test::EmptyDocument();
    document->protection = 2;
    document->defaultTabStop = 360;
    document->zoomToPageWidth = true;
    EXPECT_THAT(
        PartOf(*document, "word/settings.xml"),
        HasSubstr(
            "<w:zoom w:val='bestFit' w:percent='100'/><w:documentProtection w:edit='forms' w:enforcement='1'/>"
            "<w:defaultTabStop w:val='360'/><w:characterSpacingControl w:val='doNotCompress'/><w:compat>"
            "<w:compatSetting w:name='compatibilityMode'"));
}

}  // namespace
}  // namespace quillmark::word::docx
