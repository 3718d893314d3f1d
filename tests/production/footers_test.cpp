#include "production/run/footers.h"

#include <gmock/gmock.h>

#include "core/fields.h"
#include "production/recording_word.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr int kStoryLength = 50;

class FooterPass : public ::testing::Test {
 protected:
    FooterPass() : session(word.Application(), word.clipboard()) {
        job.name = "Hollis";
        SetUpWordSession(session);
        word.SetValue("Version", std::string("16.0"));
    }

    /// Finishes a document whose sections start like this.
    void Finish(std::vector<std::string> documents, std::vector<int> starts, FooterPlan plan = {}) {
        word.SetValue("ActiveDocument.Sections.Count", static_cast<std::int32_t>(starts.size()));
        for (std::size_t n = 1; n <= starts.size(); ++n) {
            word.SetValue(Section(n) + ".PageSetup.SectionStart", starts[n - 1]);
            word.SetValue(Section(n) + ".Footers.Count", 2);
            word.SetValue(Section(n) + ".Footers(1).Range.StoryType", word::PrimaryFooterStory);
            word.SetValue(Section(n) + ".Footers(2).Range.StoryType", word::FirstPageFooterStory);
            word.SetValue(Section(n) + ".Footers(1).Range.StoryLength", kStoryLength);
        }
        plan.documents = documents;
        FinishSections(session, job, plan);
    }

    static std::string Section(std::size_t n) { return "ActiveDocument.Sections(" + std::to_string(n) + ")"; }

    /// What was put into the section's primary footer; "#" for the page number.
    std::string Footer(std::size_t n) const {
        const std::string range = Section(n) + ".Footers(1).Range.";
        std::string text;
        for (const std::string& line : word.operations()) {
            if (line.starts_with(range + "Text = ")) text = Quoted(line);
            if (line.starts_with(range + "InsertAfter ")) text += Quoted(line);
            if (line.starts_with(range + "Fields.Add ")) text += '#';
        }
        return text;
    }
    static std::string Quoted(const std::string& line) {
        const auto begin = line.find('"') + 1;
        return line.substr(begin, line.rfind('"') - begin);
    }
    bool Did(const std::string& line) const {
        const auto& lines = word.operations();
        return std::ranges::find(lines, line) != lines.end();
    }

    Job job = SampleDeal();
    RecordingWord word;
    WordSession session;
};

TEST_F(FooterPass, AFooterNamesJobDocumentPageAndProduct) {
    Finish({"Privacy Policy"}, {word::SectionNewPage});
    const std::string blanks(134 - kStoryLength - 10, ' ');
    EXPECT_EQ(Footer(1), "Hollis - Privacy Policy - #" + blanks + "Quillmark");
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).Range.Font.Name = \"Courier New\""));
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).PageNumbers.RestartNumberingAtSection = True"));
    EXPECT_TRUE(Did(Section(1) + ".Footers(2).PageNumbers.StartingNumber = 1"));
    EXPECT_TRUE(Did(Section(1) + ".Footers(2).Range.Text = \"\"")) << "only the primary footer is described";
}

TEST_F(FooterPass, TheFirmStandsInForTheProduct) {
    job.SetField(field::SellerLawfirm, "Penfield & Söhne");
    word.SetValue("Version", std::string("11.0"));
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.footers = Footers::LawFirm});
    EXPECT_EQ(Footer(1),
              "Privacy Policy - #" + std::string(134 - kStoryLength - 16, ' ') + "Penfield & Söhne")
        << "characters count, not bytes";
}

TEST_F(FooterPass, NamesThatFillTheLineLeaveThePageNumberApart) {
    job.SetField(field::SellerLawfirm, std::string(120, 'x'));
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.footers = Footers::LawFirm});
    EXPECT_EQ(Footer(1), "Privacy Policy - #  " + std::string(120, 'x'));
}

TEST_F(FooterPass, AnUnusableNameIsLeftOut) {
    Finish({"Privacy Policy"}, {word::SectionNewPage}, {.nameUsable = false});
    EXPECT_THAT(Footer(1), ::testing::StartsWith("Privacy Policy - #"));
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
    EXPECT_THAT(word.operations(), Not(Contains(HasSubstr("Range.Text ="))));
    Finish({"[ Lot Rider ]", "Privacy Policy"}, {word::SectionNewPage, word::SectionNewPage});
    EXPECT_TRUE(Did(Section(1) + ".Footers(1).Range.Text = \"\""));
}

TEST_F(FooterPass, SectionsWithinADocumentAreSkippedAndEntriesStayInStep) {
    Finish({"Privacy Policy", "CFPB Addendum"},
           {word::SectionNewPage, word::SectionContinuous, word::SectionNewPage, word::SectionNewPage},
           {.LegalList = "CFPB Addendum,"});
    EXPECT_THAT(Footer(1), HasSubstr("Privacy Policy"));
    EXPECT_EQ(Footer(2), "");
    EXPECT_THAT(Footer(3), HasSubstr("CFPB Addendum"));
    EXPECT_EQ(Footer(4), "") << "more pages than entries";
    EXPECT_TRUE(Did(Section(3) + ".PageSetup.PaperSize = 4"));
    EXPECT_FALSE(Did(Section(1) + ".PageSetup.PaperSize = 4"));
}

}  // namespace
}  // namespace quillmark::test
