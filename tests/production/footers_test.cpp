#include "production/run/footers.h"

#include <gmock/gmock.h>

#include "core/fields.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class FooterPass : public ::testing::Test {
 protected:
    FooterPass() { job.name = "Hollis"; }

    /// Finishes a document whose sections start like this.
    void Finish(std::vector<std::string> documents, std::vector<int> starts, FooterPlan plan = {}) {
        desk.emplace();
        if (!version.empty()) desk->SetVersion(version);
        for (std::size_t n = 1; n < starts.size(); ++n)
            desk->session.WordSel.InsertBreak(starts[n] == word::SectionContinuous
                                                  ? word::SectionBreakContinuous
                                                  : word::SectionBreakNextPage);
        desk->operations.clear();
        plan.documents = documents;
        FinishSections(desk->session, job, plan);
    }

    static std::string Section(std::size_t n) { return "ActiveDocument.Sections(" + std::to_string(n) + ")"; }

    /// The length of the line, the field of the page number counted as the word processor does.
    int Columns() const { return desk->session.WordDoc.Sections(1).Footers(1).Range().StoryLength; }
    bool IsItsOwn(std::size_t n) const { return Did(Section(n) + ".Footers(1).LinkToPrevious = False"); }
    /// What stands in the section's primary footer, on its first page.
    std::string Footer(int n) const {
        std::string text = desk->session.WordDoc.Sections(n).Footers(1).Range().Text;
        text.pop_back();
        return text;
    }
    bool Did(const std::string& line) const { return desk->Did(line); }

    Job job = SampleDeal();
    std::string version;
    std::optional<EngineDesk> desk;
};

TEST_F(FooterPass, AFooterNamesJobDocumentPageAndProduct) {
    Finish({"Privacy Policy"}, {word::SectionNewPage});
    EXPECT_THAT(Footer(1), AllOf(StartsWith("Hollis - Privacy Policy - "), EndsWith(" Quillmark")));
    EXPECT_EQ(Columns(), 134 - 1) << "one column is kept free in later versions";
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).Range.Font.Name = \"Courier New\""));
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).PageNumbers.RestartNumberingAtSection = True"));
    EXPECT_TRUE(Did(Section(1) + ".Footers(2).PageNumbers.StartingNumber = 1"));
    EXPECT_TRUE(Did(Section(1) + ".Footers(2).Range.Text = \"\"")) << "only the primary footer is described";
}

TEST_F(FooterPass, TheFirmStandsInForTheProduct) {
    job.SetField(field::SellerLawfirm, "Penfield & Söhne");
    version = "11.0";
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.footers = Footers::LawFirm});
    EXPECT_THAT(Footer(1), AllOf(StartsWith("Privacy Policy - "), EndsWith(" Penfield & Söhne")));
    EXPECT_EQ(Columns(), 134) << "characters count, not bytes";
}

TEST_F(FooterPass, NamesThatFillTheLineLeaveThePageNumberApart) {
    job.SetField(field::SellerLawfirm, std::string(120, 'x'));
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.footers = Footers::LawFirm});
    EXPECT_EQ(Footer(1), "Privacy Policy - 1  " + std::string(120, 'x'));
}

TEST_F(FooterPass, AnUnusableNameIsLeftOut) {
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.nameUsable = false});
    EXPECT_THAT(Footer(1), ::testing::StartsWith("Privacy Policy - 1 "));
}

TEST_F(FooterPass, RecordedDocumentsHaveNoFooter) {
    for (const char* name :
         {"Deed / Warranty", "Mortgage Deed / FNMA", "Schedule A", "Name Change Affidavit"}) {
        Finish({name}, {word::SectionNewPage});
        EXPECT_EQ(Footer(1), "") << name;
    }
    EXPECT_FALSE(IsRecordedDocument("Trustee's Affidavit", job));
    job.SetField(field::OriginalTrustee, "Ann Lee");
    EXPECT_TRUE(IsRecordedDocument("Trustee's Affidavit", job));
}

TEST_F(FooterPass, NoFootersAtAllWhenSwitchedOff) {
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.footers = Footers::None});
    EXPECT_EQ(Footer(1), "");
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).Range.Text = \"\""));
}

TEST_F(FooterPass, ALoneFirmFormKeepsItsOwnFooter) {
    Finish({"[ Lot Rider ]"}, {word::SectionNewPage});
    EXPECT_THAT(desk->operations, Not(Contains(HasSubstr("Range.Text ="))));
    Finish({"[ Lot Rider ]", "Privacy Policy"}, {word::SectionNewPage, word::SectionNewPage});
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).Range.Text = \"\""));
}

TEST_F(FooterPass, SectionsWithinADocumentAreSkippedAndEntriesStayInStep) {
    Finish({"Privacy Policy", "CFPB Addendum"},
           {word::SectionNewPage, word::SectionContinuous, word::SectionNewPage, word::SectionNewPage},
           {.LegalList = "CFPB Addendum,"});
    EXPECT_THAT(Footer(1), HasSubstr("Privacy Policy"));
    EXPECT_FALSE(IsItsOwn(2)) << "it goes on with the document";
    EXPECT_THAT(Footer(3), HasSubstr("CFPB Addendum"));
    EXPECT_FALSE(IsItsOwn(4)) << "more pages than entries";
    EXPECT_TRUE(Did(Section(3) + ".PageSetup.PaperSize = 4"));
    EXPECT_FALSE(Did(Section(1) + ".PageSetup.PaperSize = 4"));
}

}  // namespace
}  // namespace quillmark::test
