#include <gmock/gmock.h>

#include <functional>

#include "core/fields.h"
#include "platform/paths.h"
#include "production/run/create.h"
#include "production/sample_deal.h"
#include "selection/document_catalogue.h"
#include "support/scratch.h"
#include "word/docx/check/package_check.h"
#include "word/docx/zip/zip_reader.h"

namespace quillmark::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using namespace std::chrono;

/// A run with the embedded word processor, up to the file.
class CreatedDocument : public ::testing::Test {
 protected:
    CreatedDocument() {
        job.name = "Hollis";
        order.DocumentNames = {"Deed / Warranty", "Privacy Policy", "Schedule A"};
        order.LegalList = "Schedule A,";
        order.today = 2025y / April / 6;
        order.startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); };
    }

    const word::Document& Create() {
        run.emplace(job, order);
        run->Run(TextOf(folder / "Hollis_QMF.docx"));
        return run->session().WordDoc;
    }

    ScratchFolder folder;
    Job job = SampleDeal();
    CreateOrder order;
    std::optional<CreateRun> run;
};

TEST_F(CreatedDocument, HasASectionForEachEntryWithItsPaper) {
    const word::Document& document = Create();
    ASSERT_EQ(document.Sections.Count(), 3);
    const int papers[] = {word::PaperLetter, word::PaperLetter, word::PaperLegal};
    for (int n = 1; n <= 3; ++n) {
        const word::Section section = document.Sections(n);
        EXPECT_EQ(int(section.PageSetup.SectionStart), word::SectionNewPage);
        EXPECT_EQ(int(section.PageSetup.PaperSize), papers[n - 1]) << n;
        EXPECT_FALSE(bool(section.ProtectedForForms)) << n;
        for (int footer = 1; footer <= 3; ++footer) {
            EXPECT_FALSE(bool(section.Footers(footer).LinkToPrevious)) << n;
            EXPECT_EQ(int(section.Footers(footer).PageNumbers.StartingNumber), 1) << n;
        }
    }
    EXPECT_EQ(int(document.ProtectionType), word::AllowOnlyFormFields);
    EXPECT_THAT(word::docx::check::CheckPackage(ReadBytes(folder / "Hollis_QMF.docx")), IsEmpty());
}

TEST_F(CreatedDocument, OfTheWholeCatalogueIsAValidPackage) {
    const auto documents = DocumentCatalogue();
    order.DocumentNames.assign(documents.begin(), documents.end());
    order.DocumentNames.push_back("FILE SUMMARY SHEET");
    const std::function<void(Job&)> kChanges[] = {
        [](Job&) {},
        [](Job& changed) { changed.SetOption(TwoPayoffs, true); },
        [](Job& changed) {
            changed.SetOption(TwoSellers, false);
            changed.SetOption(OneSeller, true);
            SellerIsEntity(changed);
            changed.SetOption(Commercial, true);
        },
        [](Job& changed) { SellsByPower(changed, changed.D(field::Seller2Name), "Nora Feld"); },
    };
    for (const auto& change : kChanges) {
        job = FullDeal();
        job.name = "Hollis";
        change(job);
        order.nameUsable = true;
        Create();
        EXPECT_THAT(word::docx::check::CheckPackage(ReadBytes(folder / "Hollis_QMF.docx")), IsEmpty());
    }
}

TEST_F(CreatedDocument, FileSaysWhatItIsAndHowItIsShown) {
    job.SetField(field::SellerLawfirm, "Penfield & Lowe LLC");
    order.settings.bestFitPageView = true;
    order.DocumentNames = {"Deed / Warranty"};
    Create();
    word::docx::zip::ZipReader package(ReadBytes(folder / "Hollis_QMF.docx"), "made");
    const std::string core = package.Read("docProps/core.xml");
    EXPECT_THAT(core, HasSubstr("<dc:title>Deed / Warranty - Hollis</dc:title>"
                                "<dc:creator>Penfield &amp; Lowe LLC</dc:creator>"));
    EXPECT_THAT(core, HasSubstr("2025-04-06T00:00:00Z</dcterms:created>"));
    EXPECT_THAT(package.Read("word/settings.xml"), HasSubstr(R"(<w:zoom w:val="bestFit")"));
    const std::string body = package.Read("word/document.xml");
    EXPECT_THAT(body, HasSubstr(R"(<w:pStyle w:val="NotaryBlock"/>)"));
    EXPECT_THAT(body, Not(HasSubstr(R"(<w:b w:val="0"/>)")));
}

TEST_F(CreatedDocument, FootersFillTheirColumnsUnderUnrecordedDocumentsOnly) {
    order.DocumentNames = {"Deed / Warranty", "Privacy Policy", "Secretary\u2019s Certificate / Corporate"};
    const word::Document& document = Create();
    EXPECT_EQ(std::string(document.Sections(1).Footers(1).Range().Text), "\r");
    for (int n : {2, 3}) {
        const word::Range footer = document.Sections(n).Footers(1).Range();
        EXPECT_THAT(std::string(footer.Text), StartsWith("Hollis - " + order.DocumentNames[n - 1] + " - "));
        EXPECT_THAT(std::string(footer.Text), EndsWith(" Quillmark\r"));
        EXPECT_EQ(int(footer.StoryLength), 134 - 1) << "one column is kept free in later versions";
        EXPECT_EQ(std::string(document.Sections(n).Footers(2).Range().Text), "\r");
    }
}

TEST_F(CreatedDocument, IsOpenToTheUserWhereFootersNameTheFirm) {
    order.settings.footers = Footers::LawFirm;
    job.SetField(field::SellerLawfirm, "Penfield LLC");
    const word::Document& document = Create();
    EXPECT_EQ(int(document.ProtectionType), word::NoProtection);
    EXPECT_THAT(std::string(document.Sections(2).Footers(1).Range().Text), EndsWith(" Penfield LLC\r"));
}

TEST_F(CreatedDocument, IsTheSameAgain) {
    Create();
    const std::string first = ReadBytes(folder / "Hollis_QMF.docx");
    Create();
    EXPECT_EQ(ReadBytes(folder / "Hollis_QMF.docx"), first);
}

}  // namespace
}  // namespace quillmark::test
