#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <random>

#include "word/docx/check/package_check.h"
#include "word/docx/model/style_look.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/docx/zip/zip_reader.h"
#include "word/engine_session.h"

/// Named styles that the writer makes of the roles of paragraphs.
namespace quillmark::word::test {
namespace {

/// A document that is typed with hints, and the file that becomes of it.
class Roles : public ::testing::Test, protected EngineSession {
 protected:
    Roles() {
        sel.Font.Name = "Arial";
        sel.Font.Size = 10;
    }

    void Type(Role role, std::string_view text) {
        hints->SetRole(role);
        sel.TypeText(text);
    }

    std::string Part(const std::string& name) const {
        return docx::zip::ZipReader(docx::write::WriteDocx(Model()), "made").Read(name);
    }
    pugi::xml_document Body() const { return Parsed("word/document.xml"); }
    pugi::xml_document Parsed(const std::string& part) const {
        pugi::xml_document xml;
        xml.load_string(Part(part).c_str(), pugi::parse_default | pugi::parse_ws_pcdata);
        return xml;
    }
    /// The style of each paragraph, with "+" where it is to stay with the next one and "-" where it is not
    /// although its style says so.
    std::string Styles() const {
        const pugi::xml_document xml = Body();
        std::string styles;
        for (const pugi::xml_node paragraph : xml.first_child().child("w:body").children("w:p")) {
            const pugi::xml_node properties = paragraph.child("w:pPr");
            styles += styles.empty() ? "" : " ";
            styles += properties.child("w:pStyle").attribute("w:val").as_string("Normal");
            if (const auto keep = properties.child("w:keepNext"))
                styles += keep.attribute("w:val").as_string("1") == std::string("0") ? "-" : "+";
        }
        return styles;
    }

    std::shared_ptr<Hints> hints = docx::objects::HintsOf(app.Reach());
};

TEST_F(Roles, BecomeNamedStylesThatHoldWhatTheirParagraphsShare) {
    Type(Role::Title, "");
    sel.ParagraphFormat.Alignment = AlignCentre;
    sel.Font.Bold = true;
    sel.TypeText("WARRANTY DEED\r\r");
    sel.Font.Bold = false;
    sel.ParagraphFormat.Alignment = AlignJustified;
    Type(Role::Body, "To all persons.\rKnow ye that ");
    sel.Font.Bold = true;
    sel.TypeText("Dale Hollis");
    sel.Font.Bold = false;
    sel.TypeText(" grants.\r");
    sel.Font.Size = 8;
    Type(Role::Body, "In small type.");

    EXPECT_EQ(Styles(), "Heading1 Heading1 BodyText BodyText+ BodyText-2");
    const std::string styles = Part("word/styles.xml");
    EXPECT_NE(styles.find(R"(<w:name w:val="heading 1"/>)"), std::string::npos);
    EXPECT_NE(styles.find(R"x(<w:name w:val="Body Text (Arial 8)"/>)x"), std::string::npos);
    EXPECT_NE(
        styles.find(R"(<w:keepLines/><w:jc w:val="center"/><w:outlineLvl w:val="0"/></w:pPr><w:rPr><w:b/>)"),
        std::string::npos)
        << styles;
    // Normal has the letters of the text, so that no run need name them.
    EXPECT_NE(styles.find(R"(<w:rFonts w:ascii="Arial")"), std::string::npos);
    const std::string body = Part("word/document.xml");
    EXPECT_EQ(body.find("w:rFonts"), std::string::npos);
    EXPECT_EQ(body.find("w:jc"), std::string::npos);
    EXPECT_EQ(body.find(R"(w:val="0")"), std::string::npos) << body;
    EXPECT_NE(body.find("<w:rPr><w:b/></w:rPr><w:t xml:space=\"preserve\">Dale Hollis"), std::string::npos);
    // The empty line of the heading is no heading.
    EXPECT_NE(body.find(R"(<w:pStyle w:val="Heading1"/><w:outlineLvl w:val="9"/>)"), std::string::npos);
}

TEST_F(Roles, BlocksToSignStayWholeAndTheDocumentsEndTakesNoPage) {
    Type(Role::Body, "First.\rSecond.\rThird.\r");
    Type(Role::Letter, "I remain\r");
    Type(Role::Signature, "Yours,\r\r____\rAmy Roe\r");
    Type(Role::Notary, "STATE OF CONNECTICUT\rSworn to.\r____\r");
    sel.InsertBreak(SectionBreakNextPage);
    Type(Role::Body, "A.\rB.\rC.\r\rD.\r\r");
    EXPECT_EQ(Styles(),
              "BodyText BodyText BodyText LetterText+ SignatureBlock SignatureBlock SignatureBlock "
              "SignatureBlock- NotaryBlock NotaryBlock NotaryBlock- DocumentEnd "
              "BodyText BodyText BodyText+ BodyText+ BodyText DocumentEnd DocumentEnd");
}

TEST_F(Roles, TextBelowTheSignaturesHasThemForCompanyAndItemsAreNotCutBeforeTheirBlankLine) {
    Type(Role::Body, "First.\rSecond.\rThird.\r");
    Type(Role::Signature, std::string(41, '_') + "\rAmy Roe\r");
    Type(Role::Body, "\rEncl.\r");
    sel.InsertBreak(SectionBreakNextPage);
    sel.Range().ListFormat.ApplyListTemplate(doc.ListTemplates.Add(false));
    sel.TypeText("An item.\v\rOne without the line.\r" + std::string(2000, 'x') + "\v\r");
    EXPECT_EQ(Styles(),
              "BodyText BodyText BodyText+ SignatureBlock SignatureBlock+ BodyText+ BodyText DocumentEnd "
              "ListItem ListItem ListItem DocumentEnd")
        << "a rule to sign on is no sentence, so the text above goes with it";
    std::string whole;
    for (const pugi::xml_node paragraph : Body().first_child().child("w:body").children("w:p"))
        whole += paragraph.child("w:pPr").child("w:keepLines") ? '1' : '0';
    EXPECT_EQ(whole, "000000001000");
}

TEST_F(Roles, StatementThatMissesItsPageByAFewLinesIsSetCloser) {
    const auto spacingOf = [](int lines) {
        EngineSession session;
        docx::objects::HintsOf(session.app.Reach())->SetRole(Role::StatementLine);
        session.sel.Font.Name = "Times New Roman";
        session.sel.Font.Size = 10;
        session.sel.Paragraphs.LineSpacing = 11.9;
        for (int i = 0; i < lines; ++i) session.sel.TypeText("TAX ADJUSTMENT\r");
        const auto again = docx::read::OpenDocxBytes(docx::write::WriteDocx(session.Model()));
        const auto& first = std::get<docx::Paragraph>(again->body.front());
        return *docx::EffectiveParagraph(*again, again->paraFormats[first.format]).line;
    };
    // A page of 9 inches has room for 56 lines of 11.4 points.
    EXPECT_EQ(spacingOf(55), 238);
    EXPECT_EQ(spacingOf(57), 228);
    EXPECT_EQ(spacingOf(66), 198);
    EXPECT_EQ(spacingOf(90), 238) << "a second page is needed in any case";
}

TEST_F(Roles, AreNothingToDocumentsWithoutAnyAndAfterTheEngineHasGone) {
    sel.TypeText("Plain.\r");
    EXPECT_EQ(Styles(), "Normal Normal");
    EXPECT_NE(Part("word/document.xml").find("w:rFonts"), std::string::npos);
    app.Quit();
    hints->SetRole(Role::Body);
    EXPECT_THROW(docx::objects::HintsOf(doc.Reach()), AutomationError);
}

/// Types at random what builders type: text in several looks, lists, tab stops, tables, sections, roles.
class Scribbler {
 public:
    Scribbler(const Application& app, Hints& hints, unsigned seed)
        : doc_(app.ActiveDocument), sel_(app.Selection), hints_(hints), random_(seed) {}

    void Scribble(int steps) {
        const ListTemplate list = doc_.ListTemplates.Add(false);
        for (int i = 0; i < steps; ++i) Step(list);
    }

 private:
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    void Step(const ListTemplate& list) {
        static constexpr const char* kFonts[] = {"Arial", "Times New Roman", "Courier New"};
        switch (Below(16)) {
            case 0:
                return hints_.SetRole(static_cast<Role>(Below(kRoles)));
            case 1:
                sel_.Font.Name = kFonts[Below(3)];
                return;
            case 2:
                sel_.Font.Size = 8 + Below(5);
                return;
            case 3:
                sel_.Font.Bold = Below(2) == 0;
                return;
            case 4:
                sel_.Font.Underline = Below(2) ? UnderlineSingle : UnderlineNone;
                return;
            case 5:
                sel_.ParagraphFormat.Alignment = Below(4);
                return;
            case 6:
                sel_.Paragraphs.LeftIndent = Below(3) * 18;
                return;
            case 7:
                sel_.Paragraphs.SpaceAfter = Below(3) * 6;
                return;
            case 8:
                sel_.Paragraphs.LineSpacing = 11.9 + Below(2) * 0.1;
                return;
            case 9:
                sel_.Paragraphs.TabStops.Add(72 * (1 + Below(4)));
                return;
            case 10:
                sel_.Paragraphs.TabStops.ClearAll();
                return;
            case 11:
                return sel_.ListFormat().ApplyListTemplate(list);
            case 12:
                return sel_.ListFormat().RemoveNumbers();
            case 13:
                if (Below(8) == 0) sel_.InsertBreak(SectionBreakNextPage);
                return;
            default:
                sel_.TypeText(std::string(static_cast<std::size_t>(Below(30)), 'x') + (Below(3) ? "\r" : ""));
                return;
        }
    }

    Document doc_;
    Selection sel_;
    Hints& hints_;
    std::mt19937 random_;
};

/// How every paragraph and every character looks, whatever style or direct formatting says so.
std::vector<std::string> LooksOf(const docx::Document& document) {
    std::vector<std::string> looks;
    const auto letters = [&](const docx::Paragraph& paragraph, docx::FormatId id) {
        const docx::CharFormat look =
            docx::EffectiveFont(document, document.paraFormats[paragraph.format], document.charFormats[id]);
        return look.font + " " + std::to_string(*look.halfPoints) + (*look.bold ? " bold" : "") +
               (*look.underline ? " underlined" : "");
    };
    for (const docx::Block& block : document.body) {
        const auto& paragraph = std::get<docx::Paragraph>(block);
        const docx::ParaFormat& direct = document.paraFormats[paragraph.format];
        const docx::ParaFormat look = docx::EffectiveParagraph(document, direct);
        // A list's own indents are its definition's, which is not a look of the paragraph.
        const bool isItem = direct.numId.value_or(0) != 0;
        const docx::ParaFormat& indents = isItem ? direct : look;
        std::string line = paragraph.text + "|";
        for (const std::optional<int>& member :
             {look.alignment, look.spaceBefore, look.spaceAfter, look.line, indents.leftIndent,
              indents.rightIndent, indents.firstLine, direct.numId})
            line += std::to_string(member.value_or(0)) + " ";
        for (const docx::TabStop& stop : look.tabs) line += "tab " + std::to_string(stop.position) + " ";
        std::string before;
        std::size_t at = 0;
        for (const docx::Span& span : paragraph.spans) {
            const std::string own = letters(paragraph, span.format);
            if (own != before) line += "from " + std::to_string(at) + " " + own + "; ";
            before = own;
            at += span.length;
        }
        looks.push_back(line + letters(paragraph, paragraph.markFormat));
    }
    return looks;
}

TEST(RolesAtRandom, LeaveEveryLookAsItWas) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        EngineSession session;
        const auto hints = docx::objects::HintsOf(session.app.Reach());
        hints->SetRole(Role::Body);
        Scribbler(session.app, *hints, seed).Scribble(150);
        const std::string bytes = docx::write::WriteDocx(session.Model());
        EXPECT_EQ(docx::check::CheckPackage(bytes), std::vector<std::string>()) << "seed " << seed;
        const auto again = docx::read::OpenDocxBytes(bytes);
        const std::vector<std::string> typed = LooksOf(session.Model()), read = LooksOf(*again);
        ASSERT_EQ(typed.size(), read.size());
        for (std::size_t i = 0; i < typed.size(); ++i) {
            // The empty paragraph at a document's end is made small.
            const bool isEnd = typed[i].starts_with("|") && read[i].ends_with(" 2");
            if (isEnd) continue;
            EXPECT_EQ(typed[i], read[i]) << "seed " << seed << ", paragraph " << i;
        }
    }
}

}  // namespace
}  // namespace quillmark::word::test
