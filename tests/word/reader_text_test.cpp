#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/docx/check/package_check.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/reader_dump.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using test::BareDocx;
using test::OpenBody;
using test::Text;
using testing::HasSubstr;
using testing::IsEmpty;

const Paragraph& First(const Document& document) {
    return std::get<Paragraph>(document.body.front());
}
const ParaFormat& FirstFormat(const Document& document) {
    return document.paraFormats[First(document).format];
}

TEST(Reader, TextOfRunsIsFlat) {
    const auto document =
        OpenBody(R"(<w:p><w:proofErr w:type="spellStart"/><w:r><w:t>QU</w:t></w:r><w:r><w:rPr><w:b/></w:rPr>)"
                 R"(<w:t>ICK</w:t>)"
                 R"(</w:r><w:bookmarkStart w:id="4" w:name="here"/><w:r><w:tab/>)"
                 R"(<w:t xml:space="preserve"> BR&#1;OWN </w:t>)"
                 R"(<w:br/><w:t> trimmed )"
                 "\n</w:t><w:cr/></w:r>"
                 R"(<w:bookmarkEnd w:id="4"/><w:r><w:br w:type="page"/><w:br w:type="column"/></w:r></w:p>)");
    EXPECT_EQ(Text(document->body), "QUICK<9> BROWN <b>trimmed<b><c><e>\n");
    EXPECT_THAT(test::Dump(*document), HasSubstr("<+here>"));
    EXPECT_EQ(test::Faults(*document), "");
}

TEST(Reader, TrackedChangesStayAroundTheTextThatCounts) {
    const auto document = OpenBody(
        R"(<w:p><w:r><w:t>keep</w:t></w:r><w:ins w:id="1"><w:r><w:t xml:space="preserve"> new</w:t>)"
        R"(</w:r></w:ins>)"
        R"(<w:del w:id="2"><w:r><w:delText> old</w:delText></w:r></w:del><w:moveFrom w:id="3"><w:r>)"
        R"(<w:t>gone</w:t>)"
        R"(</w:r></w:moveFrom></w:p><w:p><w:pPr><w:jc w:val="center"/><w:rPr><w:del w:id="4"/></w:rPr>)"
        R"(</w:pPr><w:r>)"
        R"(<w:t xml:space="preserve">one </w:t></w:r></w:p><w:p><w:pPr><w:jc w:val="right"/></w:pPr><w:r>)"
        R"(<w:t>paragraph</w:t></w:r></w:p>)"
        R"(<w:tbl><w:tr><w:trPr><w:del w:id="5"/></w:trPr><w:tc><w:p/></w:tc></w:tr><w:tr><w:tc><w:p>)"
        R"(<w:r><w:t>row)"
        R"(</w:t></w:r></w:p></w:tc></w:tr></w:tbl><w:p/>)");
    EXPECT_EQ(Text(document->body), "keep new\none \nparagraph\n[\n]\n[row\n]\n\n");
    const auto& deleted = std::get<Paragraph>(*std::next(document->body.begin()));
    EXPECT_EQ(document->paraFormats[deleted.format].markReview, R"(<w:del w:id="4"/>)");
}

TEST(Reader, ContentControlsAndTagsAreUnwrapped) {
    const auto document = OpenBody(
        R"(<w:sdt><w:sdtPr/><w:sdtContent><w:p><w:sdt><w:sdtContent><w:r><w:t>a</w:t></w:r>)"
        R"(</w:sdtContent></w:sdt>)"
        R"(<w:smartTag><w:r><w:t>b</w:t></w:r></w:smartTag></w:p></w:sdtContent></w:sdt><w:tbl><w:sdt>)"
        R"(<w:sdtContent>)"
        R"(<w:tr><w:sdt><w:sdtContent><w:tc><w:p/></w:tc></w:sdtContent></w:sdt></w:tr></w:sdtContent>)"
        R"(</w:sdt></w:tbl>)"
        R"(<w:p/>)");
    EXPECT_EQ(Text(document->body), "ab\n[\n]\n\n");
}

TEST(Reader, NamesGoByNamespaceAndNotByPrefix) {
    test::Parts parts = test::Unzip(BareDocx{.body = "<w:p/>"}.Bytes());
    parts["word/document.xml"] =
        R"(<x:document xmlns:x="http://purl.oclc.org/ooxml/wordprocessingml/main" xmlns:w="urn:mine" )"
        R"(xmlns:i="urn:skip" xmlns:q="http://schemas.openxmlformats.org/markup-compatibility/2006" )"
        R"(q:Ignorable="i">)"
        R"(<x:body><x:p i:id="7"><i:thing/><x:r><x:rPr><x:b/></x:rPr><x:t>text</x:t></x:r>)"
        R"(<w:r><w:t>of another kind</w:t></w:r></x:p></x:body></x:document>)";
    const auto document = read::OpenDocxBytes(test::Zip(parts));
    EXPECT_EQ(Text(document->body), "text\n");
    EXPECT_TRUE(document->charFormats[First(*document).spans.at(0).format].bold.value_or(false));
}

TEST(Reader, AlternativesOfDrawingsStayAndOthersAreDecided) {
    const auto document = OpenBody(
        R"(<w:p><w:r><mc:AlternateContent><mc:Choice Requires="wps"><w:drawing/></mc:Choice>)"
        R"(<mc:Fallback><w:pict/>)"
        R"(</mc:Fallback></mc:AlternateContent></w:r><mc:AlternateContent><mc:Choice Requires="w14">)"
        R"(<w:r><w:t>new)"
        R"(</w:t></w:r></mc:Choice><mc:Fallback><w:r><w:t>old</w:t></w:r></mc:Fallback>)"
        R"(</mc:AlternateContent></w:p>)");
    ASSERT_EQ(Text(document->body), "<1>old\n");
    EXPECT_EQ(std::get<RawInline>(First(*document).objects.at(0)).xml,
              R"(<w:r><mc:AlternateContent><mc:Choice Requires="wps"><w:drawing/></mc:Choice>)"
              R"(<mc:Fallback><w:pict/>)"
              R"(</mc:Fallback></mc:AlternateContent></w:r>)");
}

TEST(Reader, HyperlinksAndSimpleFieldsBecomeFields) {
    BareDocx docx;
    docx.body = R"(<w:p><w:hyperlink r:id="rId9" w:anchor="top"><w:r><w:t>office</w:t></w:r></w:hyperlink>)"
                R"(<w:fldSimple w:instr=" PAGE "><w:r><w:t>3</w:t></w:r></w:fldSimple></w:p>)";
    docx.relationships =
        R"(<Relationship Id="rId9" Type="t/hyperlink" Target="file:///c:\a&quot;b" TargetMode="External"/>)";
    const auto document = docx.Open();
    EXPECT_EQ(Text(document->body), "<1><1><1>office<1><1><1><1>3<1>\n");
    EXPECT_EQ(std::get<FieldInstruction>(First(*document).objects.at(1)).text,
              R"( HYPERLINK "file:///c:\\a\"b" \l "top" )");
    EXPECT_EQ(std::get<FieldInstruction>(First(*document).objects.at(5)).text, " PAGE ");
}

TEST(Reader, FieldsThatNeverEndLeaveTheirText) {
    const auto document = OpenBody(
        R"(<w:p><w:r><w:fldChar w:fldCharType="end"/><w:t>a</w:t><w:fldChar w:fldCharType="begin"/>)"
        R"(<w:instrText> X )"
        R"(</w:instrText><w:t>b</w:t></w:r></w:p><w:p><w:r><w:fldChar w:fldCharType="separate"/><w:t>c)"
        R"(</w:t></w:r></w:p>)");
    EXPECT_EQ(Text(document->body), "ab\nc\n");
    EXPECT_EQ(test::Faults(*document), "");
}

TEST(Reader, FormFieldsOfThePlainShape) {
    const std::string field =
        R"(<w:bookmarkStart w:id="1" w:name="Text1"/><w:r><w:fldChar w:fldCharType="begin">)"
        R"(<w:ffData><w:name )"
        R"(w:val="Text1"/><w:enabled/><w:calcOnExit w:val="0"/><w:textInput>LIMIT</w:textInput>)"
        R"(</w:ffData></w:fldChar>)"
        R"(</w:r><w:r><w:instrText> FORMTEXT </w:instrText></w:r><w:r>)"
        R"(<w:fldChar w:fldCharType="separate"/></w:r><w:r>)"
        R"(<w:rPr><w:b/></w:rPr><w:t>John</w:t></w:r><w:r><w:fldChar w:fldCharType="end"/></w:r>)"
        R"(<w:bookmarkEnd )"
        R"(w:id="1"/>)";
    const auto with = [&](const std::string& limit) {
        std::string xml = field;
        return OpenBody("<w:p>" + xml.replace(xml.find("LIMIT"), 5, limit) + "</w:p>");
    };
    const auto plain = with("");
    ASSERT_EQ(Text(plain->body), "<1>\n");
    const auto& data = std::get<FormFieldData>(First(*plain).objects.at(0));
    EXPECT_EQ(data.name, "Text1");
    EXPECT_EQ(data.result, "John");
    EXPECT_TRUE(First(*plain).anchors.empty());
    EXPECT_TRUE(plain->charFormats[First(*plain).spans.at(0).format].bold.value_or(false));

    const auto limited = with(R"(<w:maxLength w:val="9"/>)");
    EXPECT_EQ(Text(limited->body), "<1><1><1>John<1>\n");
    EXPECT_EQ(First(*limited).anchors.size(), 2u);
}

TEST(Reader, ThemesAreNamedOutright) {
    BareDocx docx;
    docx.styles = R"(<w:docDefaults><w:rPrDefault><w:rPr>)"
                  R"(<w:rFonts w:asciiTheme="minorHAnsi" w:hAnsiTheme="minorHAnsi" )"
                  R"(w:eastAsiaTheme="minorEastAsia"/></w:rPr></w:rPrDefault></w:docDefaults>)"
                  R"(<w:style w:type="paragraph" )"
                  R"(w:styleId="H1"><w:name w:val="heading 1"/><w:basedOn w:val="Missing"/><w:rPr><w:rFonts )"
                  R"(w:asciiTheme="majorHAnsi"/>)"
                  R"(<w:color w:val="2F5496" w:themeColor="accent1" w:themeShade="BF"/></w:rPr>)"
                  R"(</w:style>)";
    docx.body = R"(<w:p><w:pPr><w:pStyle w:val="H1"/></w:pPr></w:p><w:p><w:pPr><w:pStyle w:val="None"/>)"
                R"(</w:pPr></w:p>)";
    docx.relationships = R"(<Relationship Id="rId9" Type="t/theme" Target="/word/theme/theme1.xml"/>)";
    docx.extraPartName = "word/theme/theme1.xml";
    docx.extraPart =
        R"(<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main"><a:themeElements>)"
        R"(<a:fontScheme>)"
        R"(<a:majorFont><a:latin typeface="Calibri Light"/></a:majorFont><a:minorFont>)"
        R"(<a:latin typeface="Calibri"/>)"
        R"(<a:ea typeface=""/></a:minorFont></a:fontScheme></a:themeElements></a:theme>)";
    const auto document = docx.Open();
    EXPECT_THAT(document->docDefaults, HasSubstr(R"(<w:rFonts w:ascii="Calibri" w:hAnsi="Calibri"/>)"));
    ASSERT_EQ(document->styles.size(), 1u);
    EXPECT_THAT(document->styles[0].xml,
                HasSubstr(R"(<w:rFonts w:ascii="Calibri Light"/><w:color w:val="2F5496"/>)"));
    EXPECT_THAT(document->styles[0].xml, testing::Not(HasSubstr("basedOn")));
    EXPECT_EQ(FirstFormat(*document).style, "H1");
    EXPECT_EQ(document->paraFormats[std::get<Paragraph>(document->body.back()).format].style, "");
}

TEST(Reader, ListsGetTheModelsNumbers) {
    BareDocx docx;
    docx.numbering =
        R"(<w:abstractNum w:abstractNumId="7"><w:nsid w:val="00000001"/><w:lvl w:ilvl="0">)"
        R"(<w:start w:val="1"/>)"
        R"(<w:pStyle w:val="A"/><w:numFmt w:val="decimal"/><w:lvlText w:val="%1."/></w:lvl></w:abstractNum>)"
        R"(<w:num w:numId="31"><w:abstractNumId w:val="7"/></w:num><w:num w:numId="32">)"
        R"(<w:abstractNumId w:val="7"/>)"
        R"(<w:lvlOverride w:ilvl="0"><w:startOverride w:val="1"/></w:lvlOverride></w:num>)"
        R"(<w:num w:numId="33">)"
        R"(<w:abstractNumId w:val="99"/></w:num>)";
    docx.body = R"(<w:p><w:pPr><w:numPr><w:ilvl w:val="2"/><w:numId w:val="32"/></w:numPr></w:pPr></w:p>)"
                R"(<w:p><w:pPr><w:numPr><w:numId w:val="33"/></w:numPr></w:pPr></w:p>)";
    const auto document = docx.Open();
    EXPECT_EQ(FirstFormat(*document).numId, 2);
    EXPECT_EQ(FirstFormat(*document).listLevel, 2);
    EXPECT_EQ(document->paraFormats[std::get<Paragraph>(document->body.back()).format].numId, 0);
    ASSERT_EQ(document->lists.size(), 2u);
    EXPECT_TRUE(document->lists[1].restarts);
    // The schema wants the kind of number before the style.
    EXPECT_THAT(document->abstractLists[0].xml,
                HasSubstr(R"(<w:numFmt w:val="decimal"/><w:pStyle w:val="A"/>)"));
}

TEST(Reader, TablesAreMadeWhole) {
    BareDocx docx;
    docx.settings = R"(<w:compat><w:compatSetting w:name="compatibilityMode" w:val="14"/></w:compat>)";
    docx.body =
        R"(<w:tbl><w:tblPr><w:tblInd w:w="50" w:type="dxa"/></w:tblPr><w:tblGrid>)"
        R"(<w:gridCol w:w="900"/></w:tblGrid>)"
        R"(<w:tr/><w:tr><w:tc><w:tcPr><w:gridSpan w:val="2"/></w:tcPr></w:tc><w:tc><w:tcPr><w:hMerge )"
        R"(w:val="restart"/></w:tcPr><w:p/></w:tc><w:tc><w:tcPr><w:hMerge/></w:tcPr><w:p/></w:tc>)"
        R"(</w:tr></w:tbl>)";
    const auto document = docx.Open();
    const auto& table = *std::get<std::unique_ptr<Table>>(document->body.front());
    EXPECT_EQ(table.grid.size(), 4u);
    ASSERT_EQ(table.rows.size(), 1u);
    ASSERT_EQ(table.rows[0].cells.size(), 2u);
    EXPECT_EQ(table.rows[0].cells[1].span, 2);
    EXPECT_THAT(test::Dump(*document), HasSubstr(R"(<w:tblInd w:w="-58" w:type="dxa"/>)"));
    EXPECT_EQ(test::Faults(*document), "");
}

TEST(Reader, UnitsAndOldWaysOfSayingThings) {
    const auto document = OpenBody(
        R"(<w:p><w:pPr><w:spacing w:before="1in" w:after="7" w:afterAutospacing="1" w:line="12pt" )"
        R"(w:lineRule="exact"/>)"
        R"(<w:ind w:start="720" w:hanging="360"/><w:jc w:val="end"/><w:cnfStyle w:val="1"/><w:keepNext/>)"
        R"(</w:pPr></w:p>)"
        R"(<w:sectPr><w:pgSz w:w="8.5in" w:h="99999"/><w:pgMar w:top="-720" w:left="x"/>)"
        R"(<w:cols w:num="2" w:sep="1"/>)"
        R"(<w:formProt w:val="off"/></w:sectPr>)");
    const ParaFormat& format = FirstFormat(*document);
    EXPECT_EQ(format.spaceBefore, 1440);
    EXPECT_EQ(format.spaceAfter, 280);
    EXPECT_EQ(format.line, 240);
    EXPECT_EQ(format.leftIndent, 720);
    EXPECT_EQ(format.firstLine, -360);
    EXPECT_EQ(format.alignment, 2);
    ASSERT_EQ(format.extra.size(), 1u);
    EXPECT_EQ(format.extra[0].second, "<w:keepNext/>");
    EXPECT_EQ(document->lastSection.pageWidth, 12240);
    EXPECT_EQ(document->lastSection.pageHeight, 31680);
    EXPECT_EQ(document->lastSection.topMargin, -720);
    EXPECT_EQ(document->lastSection.leftMargin, 1440);
    EXPECT_EQ(document->lastSection.columns, 2);
    EXPECT_FALSE(document->lastSection.protectedForForms);
}

TEST(Reader, PartsThatKeptXmlLeadsToComeAlong) {
    BareDocx docx;
    docx.body = R"(<w:p><w:r><w:pict><v:shape><v:imagedata r:id="rId9"/></v:shape></w:pict></w:r><w:r>)"
                R"(<w:pict><v:shape>)"
                R"(<v:imagedata r:id="rIdNone"/></v:shape></w:pict></w:r><w:r><w:pict><v:rect/>)"
                R"(</w:pict></w:r></w:p>)";
    docx.relationships = R"(<Relationship Id="rId9" Type="t/image" Target="media/logo.png"/>)";
    docx.extraPartName = "word/media/logo.png";
    docx.extraPart = test::PngBytes(3, 3);
    const auto document = docx.Open();
    // The picture that is not in the package is left out with its drawing.
    ASSERT_EQ(First(*document).objects.size(), 2u);
    ASSERT_EQ(document->relations.size(), 1u);
    const auto& [id, relation] = *document->relations.begin();
    EXPECT_THAT(std::get<RawInline>(First(*document).objects[0]).xml, HasSubstr("r:id=\"" + id + "\""));
    EXPECT_EQ(relation.bytes, docx.extraPart);
    EXPECT_EQ(relation.contentType, "image/png");
    EXPECT_THAT(check::CheckPackage(write::WriteDocx(*document)), IsEmpty());
}

}  // namespace
}  // namespace quillmark::word::docx
