#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/docx/check/package_check.h"
#include "word/docx/paste/paste.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/reader_dump.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using test::AddParagraph;
using test::BareDocx;
using test::Text;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class PasteTest : public testing::Test {
 protected:
    Place End() {
        auto& last = std::get<Paragraph>(target.body.back());
        return {&target.body, std::prev(target.body.end()), last.text.size()};
    }
    Place Paste(const Document& source, bool keepSourceFormatting = true) {
        const Place behind = paste::PasteAt(target, End(), paste::CopyAll(source), keepSourceFormatting);
        EXPECT_EQ(test::Faults(target), "");
        EXPECT_THAT(check::CheckPackage(write::WriteDocx(target)), IsEmpty());
        return behind;
    }
    void TypeAtEnd(std::string_view text) {
        test::Type(target, std::get<Paragraph>(target.body.back()), text);
    }
    const Paragraph& At(int index) const {
        return std::get<Paragraph>(*std::next(target.body.begin(), index));
    }
    const ParaFormat& FormatAt(int index) const { return target.paraFormats[At(index).format]; }
    std::string StyleXml(const std::string& id) const {
        for (const StyleDefinition& style : target.styles) {
            if (style.id == id) return style.xml;
        }
        return "no style " + id;
    }
    std::string Part(const std::string& name) const { return test::PartOf(target, name); }

    Document target;
};

/// A form as the word processor writes it: theme-sized defaults, a heading, a table style, a numbered style.
BareDocx Form() {
    BareDocx form;
    form.styles = R"(<w:docDefaults><w:rPrDefault><w:rPr><w:rFonts w:ascii="Calibri" w:hAnsi="Calibri"/>)"
                  R"(<w:sz w:val="22"/></w:rPr>)"
                  R"(</w:rPrDefault><w:pPrDefault><w:pPr>)"
                  R"(<w:spacing w:after="160" w:line="259" w:lineRule="auto"/></w:pPr>)"
                  R"(</w:pPrDefault></w:docDefaults>)"
                  R"(<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/>)"
                  R"(<w:rPr><w:lang )"
                  R"(w:val="en-US"/></w:rPr></w:style>)"
                  R"(<w:style w:type="paragraph" w:styleId="Clause"><w:name w:val="Clause"/>)"
                  R"(<w:basedOn w:val="Normal"/><w:next )"
                  R"(w:val="Normal"/><w:pPr><w:numPr><w:ilvl w:val="1"/><w:numId w:val="5"/></w:numPr>)"
                  R"(<w:ind w:left="900" )"
                  R"(w:hanging="300"/></w:pPr></w:style>)"
                  R"(<w:style w:type="paragraph" w:styleId="Unused"><w:name w:val="Unused"/></w:style>)"
                  R"(<w:style w:type="table" w:default="1" w:styleId="TableNormal">)"
                  R"(<w:name w:val="Normal Table"/></w:style>)"
                  R"(<w:style w:type="table" w:styleId="Grid"><w:name w:val="Table Grid"/>)"
                  R"(<w:basedOn w:val="TableNormal"/>)"
                  R"(<w:pPr><w:spacing w:after="0" w:line="240" w:lineRule="auto"/></w:pPr><w:rPr>)"
                  R"(<w:sz w:val="18"/></w:rPr>)"
                  R"(</w:style>)";
    form.numbering =
        R"(<w:abstractNum w:abstractNumId="0"><w:lvl w:ilvl="1"><w:start w:val="1"/>)"
        R"(<w:numFmt w:val="decimal"/>)"
        R"(<w:pStyle w:val="Clause"/><w:lvlText w:val="%2."/></w:lvl></w:abstractNum><w:num w:numId="5">)"
        R"(<w:abstractNumId w:val="0"/></w:num>)";
    form.body =
        R"(<w:p><w:r><w:t>Title</w:t></w:r></w:p><w:p><w:pPr><w:pStyle w:val="Clause"/></w:pPr><w:r>)"
        R"(<w:t>Clause one)"
        R"(</w:t></w:r></w:p><w:tbl><w:tblPr><w:tblStyle w:val="Grid"/></w:tblPr><w:tr><w:tc><w:p><w:r>)"
        R"(<w:t>Cell</w:t>)"
        R"(</w:r></w:p></w:tc></w:tr></w:tbl><w:p/><w:sectPr>)"
        R"(<w:footerReference w:type="default" r:id="rId9"/>)"
        R"(<w:pgMar w:top="1000" w:left="1111"/></w:sectPr>)";
    form.relationships = R"(<Relationship Id="rId9" Type="t/footer" Target="footer1.xml"/>)";
    form.extraPartName = "word/footer1.xml";
    form.extraPart =
        R"(<w:ftr xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:p><w:r>)"
        R"(<w:t>form footer)"
        R"(</w:t></w:r></w:p></w:ftr>)";
    return form;
}

TEST_F(PasteTest, TheFormKeepsItsLookUnderStylesOfItsOwn) {
    Paste(*Form().Open());
    EXPECT_EQ(Text(target.body), "Title\nClause one\n[Cell\n]\n\n");
    const std::string normal = StyleXml(FormatAt(0).style);
    EXPECT_THAT(normal, HasSubstr("w:val=\"Normal (pasted)\""));
    EXPECT_THAT(normal, HasSubstr(R"(<w:spacing w:after="160" w:line="259" w:lineRule="auto"/>)"));
    EXPECT_THAT(normal, HasSubstr(R"(w:ascii="Calibri")"));
    EXPECT_THAT(normal, HasSubstr(R"(<w:sz w:val="22"/>)"));
    EXPECT_THAT(normal, Not(HasSubstr("w:default")));
    EXPECT_THAT(Part("word/styles.xml"), Not(HasSubstr("Unused")));
    // What is typed behind the form looks as before.
    EXPECT_EQ(FormatAt(3).style, "");
}

TEST_F(PasteTest, NumberingOfStylesBeginsAnewWithEachPaste) {
    const auto form = Form().Open();
    Paste(*form);
    TypeAtEnd("between");
    Paste(*form);
    EXPECT_EQ(FormatAt(1).numId, 1);
    EXPECT_EQ(FormatAt(1).listLevel, 1);
    EXPECT_EQ(FormatAt(1).leftIndent, 900);
    EXPECT_EQ(FormatAt(1).firstLine, -300);
    EXPECT_EQ(FormatAt(5).numId, 2);
    ASSERT_EQ(target.lists.size(), 2u);
    EXPECT_NE(target.lists[0].abstractIndex, target.lists[1].abstractIndex);
    EXPECT_THAT(Part("word/numbering.xml"), Not(HasSubstr("pStyle")));
    EXPECT_THAT(StyleXml(FormatAt(1).style), Not(HasSubstr("numPr")));
}

TEST_F(PasteTest, ASecondPasteUsesTheStylesOfTheFirst) {
    const auto form = Form().Open();
    Paste(*form);
    const std::size_t styles = target.styles.size();
    Paste(*form);
    EXPECT_EQ(target.styles.size(), styles);
    BareDocx other = Form();
    other.styles.replace(other.styles.find("w:val=\"22\""), 10, "w:val=\"30\"");
    Paste(*other.Open());
    EXPECT_EQ(target.styles.size(), 2 * styles - Document().styles.size());
    EXPECT_THAT(StyleXml(FormatAt(6).style), HasSubstr("Normal (pasted 2)"));
}

TEST_F(PasteTest, WithoutSourceFormattingTheTargetsStylesOfTheNameAreTaken) {
    Paste(*Form().Open(), false);
    EXPECT_EQ(FormatAt(0).style, "Normal");
    EXPECT_THAT(StyleXml(FormatAt(1).style), HasSubstr(R"(<w:basedOn w:val="Normal"/>)"));
}

TEST_F(PasteTest, TableStylesStillRuleTheTextOfTheirCells) {
    Paste(*Form().Open());
    const auto& table = *std::get<std::unique_ptr<Table>>(*std::next(target.body.begin(), 2));
    const auto& cell = std::get<Paragraph>(table.rows.at(0).cells.at(0).blocks.front());
    // The defaults that now stand in the paragraph's style would win over the table's.
    EXPECT_EQ(target.paraFormats[cell.format].spaceAfter, 0);
    EXPECT_EQ(target.paraFormats[cell.format].line, 240);
    EXPECT_EQ(target.charFormats[cell.spans.at(0).format].halfPoints, 18);
    EXPECT_EQ(target.charFormats[At(0).spans.at(0).format].halfPoints, std::nullopt);
}

TEST_F(PasteTest, OnlyAnEmptyDocumentTakesTheFormsPage) {
    const auto form = Form().Open();
    Paste(*form);
    EXPECT_EQ(target.lastSection.leftMargin, 1111);
    ASSERT_TRUE(target.lastSection.footers[0]);
    EXPECT_EQ(Text(target.lastSection.footers[0]->blocks), "form footer\n");

    Document typed;
    test::Type(typed, std::get<Paragraph>(typed.body.back()), "deed");
    const Place place{&typed.body, typed.body.begin(), 2};
    const Place behind = paste::PasteAt(typed, place, paste::CopyAll(*form));
    EXPECT_EQ(Text(typed.body), "de\nTitle\nClause one\n[Cell\n]\ned\n");
    EXPECT_EQ(behind.block, std::prev(typed.body.end()));
    EXPECT_EQ(behind.offset, 0u);
    EXPECT_EQ(typed.lastSection.leftMargin, 1440);
    EXPECT_FALSE(typed.lastSection.footers[0]);
}

TEST_F(PasteTest, SectionsInsideComeAlongAndDoNotShowThroughBehind) {
    const auto source = test::SampleDocument();
    TypeAtEnd("deed");
    target.body.emplace_back(Paragraph{});
    Paste(*source);
    int sections = 0;
    for (const Block& block : target.body) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) ++sections;
    }
    EXPECT_EQ(sections, 1);
    // The last section had no footer; the pasted one must not show there.
    ASSERT_TRUE(target.lastSection.footers[0]);
    EXPECT_EQ(Text(target.lastSection.footers[0]->blocks), "\n");
    EXPECT_FALSE(target.lastSection.headers[0]);
}

TEST_F(PasteTest, NamesStayUniqueAndFieldsFollowThem) {
    const auto source = test::EmptyDocument();
    Paragraph& paragraph = AddParagraph(*source, source->body, "see ");
    test::Insert(*source, paragraph, FormFieldData{.name = "Text1", .result = "x"});
    test::Insert(*source, paragraph, FieldBegin{});
    test::Insert(*source, paragraph, FieldInstruction{" REF Terms \\h "});
    test::Insert(*source, paragraph, FieldEnd{});
    paragraph.anchors = {{0, true, 1, "Terms"}, {3, false, 1, ""}};
    Paste(*source);
    Paste(*source);
    EXPECT_EQ(At(0).anchors.at(0).name, "Terms");
    EXPECT_EQ(At(1).anchors.at(0).name, "Terms_2");
    EXPECT_NE(At(1).anchors.at(0).id, At(0).anchors.at(0).id);
    EXPECT_EQ(std::get<FieldInstruction>(At(1).objects.at(2)).text, " REF Terms_2 \\h ");
    const auto& field = std::get<FormFieldData>(At(1).objects.at(0));
    EXPECT_NE(field.name, "Text1");
    EXPECT_EQ(field.result, "x");
}

TEST_F(PasteTest, PartsAndNotesAreBroughtAlongOnceAndRenumbered) {
    BareDocx form;
    form.body =
        R"(<w:p><w:r><w:t>see</w:t></w:r><w:r><w:footnoteReference w:id="2"/></w:r><w:r><w:pict><v:shape>)"
        R"(<v:imagedata )"
        R"(r:id="rId9"/><v:textbox><w:txbxContent><w:p/></w:txbxContent></v:textbox></v:shape>)"
        R"(</w:pict></w:r></w:p>)";
    form.relationships = R"(<Relationship Id="rId9" Type="t/image" Target="media/a.png"/>)"
                         R"(<Relationship Id="rId8" Type="t/footnotes" Target="footnotes.xml"/>)";
    form.extraPartName = "word/media/a.png";
    form.extraPart = test::PngBytes(2, 2);
    test::Parts parts = test::Unzip(form.Bytes());
    parts["word/footnotes.xml"] =
        R"(<w:footnotes xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:footnote )"
        R"(w:type="separator" w:id="0"><w:p/></w:footnote><w:footnote w:id="2"><w:p><w:r><w:t>the note)"
        R"(</w:t></w:r></w:p>)"
        R"(</w:footnote></w:footnotes>)";
    const auto source = read::OpenDocxBytes(test::Zip(parts));
    Paste(*source);
    Paste(*source);
    EXPECT_EQ(target.relations.size(), 2u);
    const std::string notes = Part("word/footnotes.xml");
    EXPECT_THAT(notes, HasSubstr(R"(<w:footnote w:id="2">)"));
    EXPECT_THAT(notes, HasSubstr(R"(<w:footnote w:id="5">)"));
    EXPECT_THAT(Part("word/document.xml"), HasSubstr(R"(<w:footnoteReference w:id="5"/>)"));
}

TEST_F(PasteTest, AnEmptyOrTypedFormWithoutAFile) {
    Paste(Document());
    EXPECT_EQ(Text(target.body), "\n");
    const auto sample = test::SampleDocument();
    Paste(*sample);
    target.body.pop_back();
    const std::string pasted = Text(target.body);
    EXPECT_EQ(pasted, Text(sample->body));
}

}  // namespace
}  // namespace quillmark::word::docx
