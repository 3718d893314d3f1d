#include "production/run/footers.h"

#include <algorithm>

#include "core/fields.h"

namespace quillmark {

namespace {

constexpr std::string_view kProduct = "Quillmark";
constexpr int kFooterColumns = 134;
/// Between the page number and the text at the right, however long the names are.
constexpr int kLeastBlanks = 2;
/// From this version on the story's length falls one short.
constexpr double kLongerFooters = 12;

/// Recorded documents that have no "Deed" in their names.
constexpr std::string_view kRecorded[] = {
    "Name Change Affidavit",          "Schedule A",
    "Release Of Mortgage / Partial",  "Power Of Attorney / Long Form",
    "Power Of Attorney / Short Form",
};

/// The right-hand text and the columns that it takes.
struct FooterEnd {
    std::string text;
    int columns = 0;
};

int Characters(std::string_view utf8) {
    return static_cast<int>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

FooterEnd EndOfFooters(const WordSession& session, const Job& job, Footers footers) {
    FooterEnd end;
    end.text = footers == Footers::LawFirm ? job.D(field::SellerLawfirm) : std::string(kProduct);
    end.columns = Characters(end.text) + (session.WordApp.Version() >= kLongerFooters ? 1 : 0);
    return end;
}

void TypeFooter(const word::Range& range, const std::string& beginning, const std::string& document,
                const FooterEnd& end) {
    range.ParagraphFormat.Alignment = word::AlignCentre;
    range.Font.Name = "Courier New";
    range.Font.Size = 8;
    range.Text = beginning;
    range.MoveStart(word::UnitStory);
    range.InsertAfter(document + " - ");
    range.MoveStart(word::UnitStory);
    range.Fields.Add(range, word::FieldPage);
    range.MoveStart(word::UnitStory);
    const int blanks = std::max(kLeastBlanks, kFooterColumns - range.StoryLength - end.columns);
    range.InsertAfter(std::string(static_cast<std::size_t>(blanks), ' ') + end.text);
}

std::string BeginningOfFooter(const Job& job, const FooterPlan& plan) {
    const bool named = plan.footers == Footers::Description && plan.nameUsable && !job.name.empty();
    return named ? job.name + " - " : std::string{};
}

class FooterPass {
 public:
    FooterPass(const WordSession& session, const Job& job, const FooterPlan& plan)
        : job_(job),
          plan_(plan),
          beginning_(BeginningOfFooter(job, plan)),
          end_(EndOfFooters(session, job, plan.footers)) {}

    void Finish(const word::Section& section, const std::string& document) const {
        if (plan_.LegalList.find(document) != plan_.LegalList.npos)
            section.PageSetup.PaperSize = word::PaperLegal;
        const int footers = section.Footers.Count();
        for (int n = 1; n <= footers; ++n) FinishFooter(section.Footers(n), document);
    }

 private:
    void FinishFooter(const word::Footer& footer, const std::string& document) const {
        footer.PageNumbers.RestartNumberingAtSection = true;
        footer.PageNumbers.StartingNumber = 1;
        footer.LinkToPrevious = false;
        const word::Range range = footer.Range();
        const bool described = plan_.footers != Footers::None && !IsRecordedDocument(document, job_);
        if (described && range.StoryType == word::PrimaryFooterStory) {
            TypeFooter(range, beginning_, document, end_);
        } else if (!document.starts_with('[') || plan_.documents.size() > 1 || !plan_.isWholeJob) {
            range.Text = "";
        }
    }

    const Job& job_;
    const FooterPlan& plan_;
    std::string beginning_;
    FooterEnd end_;
};

}  // namespace

bool IsRecordedDocument(std::string_view name, const Job& job) {
    if (name.find("Deed") != name.npos || name.starts_with('[')) return true;
    if (name == "Trustee's Affidavit") return job.IsFilled(field::OriginalTrustee);
    return std::ranges::find(kRecorded, name) != std::end(kRecorded);
}

void FinishSections(const WordSession& session, const Job& job, const FooterPlan& plan) {
    const FooterPass pass(session, job, plan);
    const word::Sections& sections = session.WordDoc.Sections;
    const int count = sections.Count();
    std::size_t entry = 0;
    for (int n = 1; n <= count && entry < plan.documents.size(); ++n) {
        const word::Section section = sections(n);
        if (section.PageSetup.SectionStart != word::SectionNewPage) continue;
        pass.Finish(section, plan.documents[entry++]);
    }
}

void LockFooters(const WordSession& session) {
    session.WordDoc.Protect(word::AllowOnlyFormFields, true);
    const word::Sections& sections = session.WordDoc.Sections;
    const int count = sections.Count();
    for (int n = 1; n <= count; ++n) sections(n).ProtectedForForms = false;
}

}  // namespace quillmark
