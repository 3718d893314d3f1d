#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/scratch.h"
#include "word/docx/check/package_check.h"
#include "word/docx/write/document_writer.h"
#include "word/engine_session.h"
#include "word/reader_dump.h"

namespace quillmark::word::test {
namespace {

using docx::test::BareDocx;
using testing::ElementsAre;
using testing::IsEmpty;

/// A firm's own form, put into a run the way it is done behind the screen.
class FormMerge : public testing::Test, protected EngineSession {
 protected:
    void SetUp() override {
        BareDocx form;
        form.body = R"(<w:p><w:r><w:t>Rider of [SELLER</w:t></w:r><w:r><w:rPr><w:b/></w:rPr>)"
                    R"(<w:t xml:space="preserve"> 1 name]</w:t></w:r><w:r><w:t>: [note]</w:t></w:r></w:p>)"
                    R"(<w:p><w:pPr><w:sectPr/></w:pPr></w:p>)"
                    R"(<w:p><w:r><w:t>signed</w:t></w:r></w:p><w:sectPr><w:footerReference w:type="default" )"
                    R"(r:id="rId9"/><w:pgMar w:left="2000"/></w:sectPr>)";
        form.settings = "<w:defaultTabStop w:val=\"500\"/>";
        form.relationships = "<Relationship Id=\"rId9\" Type=\"t/footer\" Target=\"footer1.xml\"/>";
        form.extraPartName = "word/footer1.xml";
        form.extraPart =
            R"(<w:ftr xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:p><w:r>)"
            R"(<w:t>own</w:t></w:r></w:p></w:ftr>)";
        quillmark::test::WriteBytes(folder / "Rider.docx", form.Bytes());
    }

    void MergeForm() {
        const Document form = app.Documents.Open("Rider.docx");
        clipboard->SetText(std::string(255, 'n'));
        EXPECT_TRUE(form.Content.Find.ReplaceAll("[seller 1 name]", "Jane Roe"));
        EXPECT_TRUE(form.Content.Find.ReplaceAll("[note]", "^c"));
        EXPECT_FALSE(form.Content.Find.ReplaceAll("[buyer 1 name]", "nobody"));
        EXPECT_TRUE(form.Content.Find.Execute("^b"));
        EXPECT_TRUE(form.Content.Find.ReplaceAll("^b", "^m"));
        EXPECT_FALSE(form.Content.Find.Execute("^b"));
        form.Select();
        app.Selection.Copy();
        form.Close(false);
        sel.PasteAndFormat(FormatOriginalFormatting);
    }
    void TearDown() override {
        EXPECT_EQ(FaultIn(Model()), "");
        EXPECT_THAT(docx::check::CheckPackage(docx::write::WriteDocx(Model())), IsEmpty());
    }

    const std::string merged = "Rider of Jane Roe: " + std::string(255, 'n');
};

TEST_F(FormMerge, AFormAloneKeepsItsPageAndFooter) {
    MergeForm();
    EXPECT_THAT(Texts(), ElementsAre(merged, "\f", "signed", ""));
    EXPECT_EQ(doc.Sections.Count(), 1);
    EXPECT_EQ(static_cast<double>(doc.PageSetup.LeftMargin), 100.0);
    EXPECT_EQ(static_cast<std::string>(doc.Sections(1).Footers(1).Range().Text), "own\r");
}

TEST_F(FormMerge, AFormAmongOthersIsASectionOnTheirPage) {
    doc.PageSetup.LeftMargin = 45;
    sel.TypeText("DEED\rsigned");
    const Range start = sel.Range();
    MergeForm();
    start.InsertBreak(SectionBreakNextPage);
    const Range next = sel.Range();
    sel.TypeText("AFFIDAVIT");
    next.InsertBreak(SectionBreakNextPage);
    EXPECT_THAT(Texts(), ElementsAre("DEED", "signed", "=", merged, "\f", "signed", "=", "AFFIDAVIT"));
    EXPECT_EQ(static_cast<double>(doc.Sections(2).PageSetup.LeftMargin), 45.0);
    EXPECT_EQ(static_cast<std::string>(doc.Sections(2).Footers(1).Range().Text), "\r");
}

}  // namespace
}  // namespace quillmark::word::test
