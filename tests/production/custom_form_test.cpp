#include "production/run/custom_form.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "core/fields.h"
#include "platform/paths.h"
#include "production/run/create.h"
#include "production/sample_deal.h"
#include "support/form_docx.h"
#include "support/scratch.h"
#include "word/docx/check/package_check.h"
#include "word/trace.h"

namespace quillmark::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using namespace std::chrono;

/// A run whose job holds one of the firm's own forms.
class CustomForm : public ::testing::Test {
 protected:
    CustomForm() {
        job.name = "Hollis";
        order.DocumentNames = {"[ Rider ]"};
        order.today = 2025y / April / 6;
        order.CustomFormsFolder = folder / "customforms";
        order.dialogs = &dialogs;
        order.startWord = [this] {
            word::StartedWordProcessor started = word::StartWordProcessor(word::WordProcessor::Embedded);
            started.application =
                word::Trace(started.application, [this](std::string_view line) { trace.emplace_back(line); });
            return started;
        };
        std::filesystem::create_directory(order.CustomFormsFolder);
    }

    void Keep(const FormDocx& form, const std::vector<FormMarker>& markers, std::string name = "Rider") {
        WriteBytes(order.CustomFormsFolder / (name + ".docx"), form.Bytes());
        WriteBytes(order.CustomFormsFolder / (name + ".inf"), FormMarkerRecords(markers));
    }

    const word::Document& Create() {
        run.emplace(job, order);
        run->Run(TextOf(folder / "Hollis_QMF.docx"));
        EXPECT_THAT(word::docx::check::CheckPackage(ReadBytes(folder / "Hollis_QMF.docx")), IsEmpty());
        return run->session().WordDoc;
    }
    std::string Text() { return Create().Content.Text; }

    /// The operations on the form that the trace holds, from its opening to its closing.
    std::vector<std::string> StepsOfForm() const {
        const auto begins = [](std::string_view with) {
            return [with](const std::string& line) { return line.starts_with(with); };
        };
        const auto from = std::ranges::find_if(trace, begins("Documents.Open"));
        const auto to = std::find_if(from, trace.end(),
                                     [](const auto& line) { return line.find(".Close") != line.npos; });
        return {from, to == trace.end() ? to : to + 1};
    }

    ScratchFolder folder;
    Job job = SampleDeal();
    CreateOrder order;
    ScriptedDialogs dialogs;
    std::optional<CreateRun> run;
    std::vector<std::string> trace;
};

const FormMarker kSeller = {"[seller 1 name]", field::Seller1Name, 0};

TEST_F(CustomForm, IsOpenedFilledPastedAndClosed) {
    Keep({Line("Sold by [Seller 1 Name].")}, {kSeller});
    job.SetField(field::Seller1Name, "Ann ^ Roe");
    EXPECT_EQ(Text(), "Sold by Ann ^ Roe.\r\r");
    const std::string file = TextOf(order.CustomFormsFolder / "Rider.docx");
    const std::vector<std::string> steps = {
        "Documents.Open \"" + file + "\"",
        "Documents(1).Content.Find.Execute FindText:=\"[seller 1 name]\", ReplaceWith:=\"Ann ^^ Roe\", Replace:=2",
        "Documents(1).Content.Find.Execute FindText:=\"^b\"",
        "Documents(1).Select",
        "Selection.Copy",
    };
    const std::vector<std::string> done = StepsOfForm();
    ASSERT_GE(done.size(), steps.size());
    for (std::size_t i = 0; i < steps.size(); ++i) EXPECT_THAT(done[i], testing::StartsWith(steps[i]));
    EXPECT_THAT(done, Contains("Selection.PasteAndFormat 16"));
    EXPECT_THAT(done.back(), HasSubstr("Close SaveChanges:=False"));
}

TEST_F(CustomForm, ValuesOf254CharactersGoDirectlyAndLongerOnesByTheClipboard) {
    Keep({Line("[seller 1 name]")}, {kSeller});
    for (const std::size_t length : {254u, 255u, 5000u}) {
        job.SetField(field::Seller1Name, std::string(length, 'n'));
        trace.clear();
        EXPECT_THAT(Text(), HasSubstr(std::string(length, 'n')));
        EXPECT_EQ(
            std::ranges::count_if(trace, [](auto& line) { return line.ends_with("\"^c\", Replace:=2"); }),
            length > 254 ? 1 : 0)
            << length;
    }
    // Accents count as one character each; a caret that is to stand for itself as two.
    std::string accents;
    for (int i = 0; i < 254; ++i) accents += "\u00e9";
    for (const std::string& value : {accents, std::string(200, '^')}) {
        job.SetField(field::Seller1Name, value);
        EXPECT_THAT(Text(), HasSubstr(value));
    }
}

TEST_F(CustomForm, EveryKindOfValueStandsWhereItsMarkerStood) {
    Keep(
        {Line("[sale price words]|[prop municipal csz]|[LOT FEE]|[note]|[seller 1 fwd addr 1]|[BOAT]|[sic]")},
        {{"[sale price words]", field::SalePriceNumeric, 1},
         {"[prop municipal csz]", field::PropertyCityStateZip, 4},
         {"[LOT FEE]", 0, 0},
         {"[seller 1 fwd addr 1]", field::SellerFwdAddr1, 0},
         {"[BOAT]", 0, 0}});
    job.SetUserField("[LOT FEE]", "250");
    job.SetDerived(1, field::SalePriceNumeric, "Five Dollars");
    job.SetDerived(4, field::PropertyCityStateZip, "Norwalk, CT");
    job.ClearField(field::SellerFwdAddr1);
    EXPECT_EQ(Text(),
              "Five Dollars|Norwalk, CT|250|[note]|" + job.D(field::SellerFwdAddr1) + "|[BOAT]|[sic]\r\r")
        << "a hole stays visible";
}

TEST_F(CustomForm, MarkersAreFoundWhereverTheyStand) {
    FormDocx form;
    form.body =
        R"(<w:p w:rsidR="00A1"><w:proofErr w:type="spellStart"/><w:r w:rsidR="00B2"><w:t>[SEL</w:t></w:r>)"
        R"(<w:proofErr w:type="spellEnd"/><w:smartTag w:element="place"><w:r><w:rPr><w:b/></w:rPr>)"
        R"(<w:t xml:space="preserve">ler 1 </w:t></w:r></w:smartTag><w:r><w:t>name]</w:t></w:r></w:p>)"
        R"(<w:tbl><w:tblPr/><w:tblGrid><w:gridCol w:w="2000"/></w:tblGrid><w:tr><w:tc>)" +
        Line("cell [seller 1 name]") + "</w:tc></w:tr></w:tbl>" +
        R"(<w:p><w:r><w:pict><v:shape style="width:90pt;height:30pt"><v:textbox><w:txbxContent>)"
        R"(<w:p><w:r><w:t>box [seller</w:t></w:r><w:r><w:t xml:space="preserve"> 1 name] end</w:t></w:r></w:p>)"
        R"(</w:txbxContent></v:textbox></v:shape></w:pict></w:r></w:p>)";
    form.header = Line("head [seller 1 name]");
    form.footer = Line("foot [seller 1 name]");
    Keep(form, {kSeller});
    job.SetField(field::Seller1Name, "Ann & Bo");
    const word::Document& document = Create();
    EXPECT_THAT(std::string(document.Content.Text), testing::StartsWith("Ann & Bo\r"));
    EXPECT_THAT(std::string(document.Content.Text), HasSubstr("cell Ann & Bo"));
    EXPECT_EQ(std::string(document.Sections(1).Footers(1).Range().Text), "foot Ann & Bo\r");
    for (const char* text : {"box Ann & Bo end", "head Ann & Bo"})
        EXPECT_TRUE(document.Content.Find.Execute(text));
    EXPECT_FALSE(document.Content.Find.Execute("[seller 1 name]"));
}

TEST_F(CustomForm, CurlyAndStraightApostrophesInAMarkerAreOne) {
    Keep({Line("[buyer\u2019s bank] [buyer's bank]")}, {{"[buyer's bank]", 0, 0}});
    job.SetUserField("[buyer's bank]", "First");
    EXPECT_EQ(Text(), "First First\r\r");
}

TEST_F(CustomForm, APictureStandsInItsPlace) {
    Keep({Line("see [schedule]")}, {{"[schedule]", 201, 0}});
    job.SetField(201, kImageLiteral);
    EXPECT_EQ(Text(), "see " + std::string(kImageLiteral) + "\r\r") << "without a picture";
    job.FieldPictures[201] =
        std::string("BM\x3a\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 30) +
        std::string(28, '\0');
    EXPECT_THAT(Text(), Not(HasSubstr("IMAGE")));
    EXPECT_THAT(ReadBytes(folder / "Hollis_QMF.docx"), HasSubstr("word/media/"));
}

TEST_F(CustomForm, SectionBreaksBecomePageBreaksAndTheUserIsTold) {
    Keep({Line("one") +
          R"(<w:p><w:pPr><w:sectPr><w:pgSz w:w="15840" w:h="12240" w:orient="landscape"/></w:sectPr>)"
          R"(</w:pPr></w:p>)" +
          Line("two")},
         {});
    order.DocumentNames = {"Schedule A", "[ Rider ]"};
    EXPECT_EQ(Create().Sections.Count(), 2);
    ASSERT_EQ(dialogs.Shown().size(), 1u);
    EXPECT_EQ(dialogs.Shown()[0].title, " ");
    EXPECT_EQ(dialogs.Shown()[0].icon, DialogIcon::Information);
    EXPECT_EQ(dialogs.Shown()[0].text,
              "Rider: Section Breaks(s) detected & replaced in this form.\n"
              "Please review this document's format after Create");
}

TEST_F(CustomForm, AloneItKeepsItsPageTabStopsHeaderAndFooter) {
    FormDocx form{Line("text")};
    form.header = Line("own head");
    form.footer = Line("own foot");
    form.settings = R"(<w:defaultTabStop w:val="500"/>)";
    form.section =
        R"(<w:pgSz w:w="15840" w:h="12240" w:orient="landscape"/><w:pgMar w:top="2000" w:right="1000" )"
        R"(w:bottom="2000" w:left="2100" w:header="300" w:footer="400" w:gutter="0"/>)";
    Keep(form, {});
    const word::Document& alone = Create();
    EXPECT_EQ(double(alone.DefaultTabStop), 25);
    EXPECT_EQ(double(alone.PageSetup.LeftMargin), 105);
    EXPECT_EQ(std::string(alone.Sections(1).Footers(1).Range().Text), "own foot\r");
    EXPECT_TRUE(alone.Content.Find.Execute("own head"));

    for (const auto& list :
         {std::vector<std::string>{"[ Rider ]", "Schedule A"}, {"Schedule A", "[ Rider ]"}}) {
        order.DocumentNames = list;
        const word::Document& document = Create();
        EXPECT_EQ(double(document.DefaultTabStop), 18);
        ASSERT_EQ(document.Sections.Count(), 2);
        const int other = list[0] == "Schedule A" ? 1 : 2;
        EXPECT_EQ(double(document.Sections(other).PageSetup.LeftMargin), 45) << list[0];
        for (int n : {1, 2})
            EXPECT_EQ(std::string(document.Sections(n).Footers(1).Range().Text), "\r") << list[0] << n;
    }
}

TEST_F(CustomForm, WithoutItsFilesTheRunFails) {
    EXPECT_THROW(Create(), CreateError);
    WriteBytes(order.CustomFormsFolder / "Rider.docx", FormDocx{Line("text")}.Bytes());
    EXPECT_THROW(Create(), CreateError) << "its list of markers is missing";
    WriteBytes(order.CustomFormsFolder / "Rider.inf", "\"[seller 1 name]\",999,0\r\n");
    EXPECT_THROW(Create(), CreateError) << "its list of markers is damaged";
}

TEST_F(CustomForm, IsFoundByItsNameUpToTheLastDot) {
    Keep({Line("wrong")}, {}, "Rider");
    Keep({Line("right")}, {}, "Rider 2.1");
    order.DocumentNames = {"[ Rider 2.1 ]"};
    EXPECT_EQ(Text(), "right\r\r");
    order.DocumentNames = {"[rider]"};
    EXPECT_EQ(Text(), "wrong\r\r");
}

}  // namespace
}  // namespace quillmark::test
