#include "production/create.h"

#include "core/text_conversions.h"
#include "production/dispatch.h"
#include "production/footers.h"
#include "production/normalise.h"

namespace quillmark {

namespace {

constexpr int kActiveXUnavailable = 463;
constexpr int kOtherFailure = 5;

/// Puts back the values on every way out.
class ValuesForTyping {
 public:
    ValuesForTyping(Job& job, std::chrono::year_month_day today) : values_(job, today) {}
    ~ValuesForTyping() { values_.Undo(); }

 private:
    NormalisedValues values_;
};

template <class Step>
void Quietly(Step step) {
    try {
        step();
    } catch (const word::AutomationError&) {
    }
}

}  // namespace

std::string CreateError::Message() const {
    switch (number_) {
        case word::error::kTypeMismatch:
            return "One or more fields have improper data.  Please correct and try again.";
        case word::error::kCannotCreate:
        case kActiveXUnavailable:
            return "Full-Version MS Word required";
        default:
            return "CREATE error " + std::to_string(number_);
    }
}

CreateRun::CreateRun(Job& job, CreateOrder order) : job_(job), order_(std::move(order)) {
    progress_.documents = order_.DocumentNames.size();
    progress_.maximum = static_cast<double>(progress_.documents) + 1;
}

void CreateRun::Run() {
    CheckEntries();
    const ValuesForTyping values(job_, order_.today);
    Report(0.25, 0);
    try {
        Produce();
    } catch (const word::AutomationError& failure) {
        Abandon(failure.number(), failure.what());
    } catch (const NotANumber& failure) {
        Abandon(word::error::kTypeMismatch, failure.what());
    } catch (const std::exception& failure) {
        Abandon(kOtherFailure, failure.what());
    }
}

void CreateRun::CheckEntries() const {
    for (const std::string& name : order_.DocumentNames)
        if (!IsKnownDocument(name)) throw std::invalid_argument("no document has the name \"" + name + "\"");
}

void CreateRun::Produce() {
    const word::StartedWordProcessor started = order_.startWord();
    session_.emplace(started.application, started.clipboard);
    SetUpWordSession(*session_);
    TypeDocuments();
    FinishDocument();
    if (!order_.saveAs.empty()) session_->WordDoc.SaveAs(order_.saveAs);
    RestoreCheckers(*session_);
    ShowWord();
}

void CreateRun::TypeDocuments() {
    for (std::size_t entry = 0; entry < progress_.documents; ++entry) TypeDocumentAt(entry);
}

void CreateRun::TypeDocumentAt(std::size_t entry) {
    Report(progress_.value + (entry == 0 ? 0.25 : 0.5), entry + 1);
    const word::Range beginning = session_->WordSel.Range();
    notices_ += TypeEntry(order_.DocumentNames[entry], job_, *session_);
    // In front of the document, so that a builder's own paragraph format never reaches the break.
    if (entry > 0) beginning.InsertBreak(word::SectionBreakNextPage);
    Report(static_cast<double>(entry + 1), entry + 1);
}

void CreateRun::FinishDocument() {
    Report(progress_.value, progress_.documents + 1);
    FinishSections(*session_, job_,
                   {order_.DocumentNames, order_.LegalList, order_.settings.footers, order_.nameUsable});
    if (order_.settings.footers == Footers::Description) LockFooters(*session_);
    session_->WordSel.GoTo(word::GoToLine, word::GoToFirst);
}

void CreateRun::ShowWord() {
    const word::Application& application = session_->WordApp;
    application.Visible = true;
    application.Activate();
    application.WindowState = word::WindowMaximised;
    const word::View& view = application.ActiveDocument.ActiveWindow.View;
    view.Type = word::PrintView;
    if (order_.settings.bestFitPageView) {
        view.Zoom.PageFit = word::PageFitBestFit;
    } else {
        view.Zoom.Percentage = 100;
    }
}

void CreateRun::Abandon(int number, const std::string& description) {
    if (session_) {
        // The word processor may be what has gone; the failure to report is the first one.
        Quietly([this] { RestoreCheckers(*session_); });
        Quietly([this] { session_->WordApp.Quit(); });
        session_.reset();
    }
    throw CreateError(number, description);
}

void CreateRun::Report(double value, std::size_t document) {
    progress_.value = value;
    progress_.document = document;
    if (order_.onProgress) order_.onProgress(progress_);
}

}  // namespace quillmark
