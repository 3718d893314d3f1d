#include "production/run/create.h"

#include <new>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "production/run/dispatch.h"
#include "production/run/footers.h"
#include "production/run/normalise.h"

namespace quillmark {

namespace {

constexpr int kActiveXUnavailable = 463;

// Numbers of failures that are not the word processor's own.
constexpr int kOtherFailure = 5;
constexpr int kOverflow = 6;
constexpr int kOutOfMemory = 7;
constexpr int kDeviceError = 57;
constexpr int kAccessError = 75;

int NumberOf(FileError::Kind kind) {
    switch (kind) {
        case FileError::Kind::InUse:
            return word::error::kPermissionDenied;
        case FileError::Kind::Denied:
            return kAccessError;
        case FileError::Kind::NotFound:
            return word::error::kPathNotFound;
        case FileError::Kind::DiskFull:
            return word::error::kDiskFull;
        default:
            return kDeviceError;
    }
}

template <class Step>
void Quietly(Step step) {
    try {
        step();
    } catch (const word::AutomationError&) {
    }
}

}  // namespace

class CreateRun::ValuesForTyping {
 public:
    ValuesForTyping(Job& job, std::chrono::year_month_day today) : values_(job, today) {}
    ~ValuesForTyping() { values_.Undo(); }
    ValuesForTyping(const ValuesForTyping&) = delete;
    ValuesForTyping& operator=(const ValuesForTyping&) = delete;

 private:
    NormalisedValues values_;
};

CreateError CreateError::OfPresentException() {
    try {
        throw;
    } catch (const CreateError& failure) {
        return failure;
    } catch (const word::AutomationError& failure) {
        return {failure.number(), failure.what()};
    } catch (const NotANumber& failure) {
        return {word::error::kTypeMismatch, failure.what()};
    } catch (const FileError& failure) {
        return {NumberOf(failure.kind), failure.what()};
    } catch (const std::overflow_error& failure) {
        return {kOverflow, failure.what()};
    } catch (const std::bad_alloc&) {
        return {kOutOfMemory, "The computer is out of memory"};
    } catch (const std::exception& failure) {
        return {kOtherFailure, failure.what()};
    } catch (...) {
        return {kOtherFailure, "A failure of an unknown kind"};
    }
}

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

CreateRun::~CreateRun() = default;

void CreateRun::Run(const std::string& file) {
    Produce();
    PutValuesBack();
    if (!file.empty()) Save(file);
    RestoreCheckers();
    Show();
}

void CreateRun::Produce() {
    Attempt([this] {
        CheckEntries();
        values_ = std::make_unique<ValuesForTyping>(job_, order_.today);
        Report(0.25, 0);
        StartWord();
        for (std::size_t entry = 0; entry < progress_.documents; ++entry) TypeDocumentAt(entry);
        FinishDocument();
    });
}

void CreateRun::PutValuesBack() {
    values_.reset();
}

void CreateRun::CheckEntries() const {
    for (const std::string& name : order_.DocumentNames)
        if (!IsKnownDocument(name)) throw std::invalid_argument("no document has the name \"" + name + "\"");
}

const std::vector<std::string>& CreateRun::JobList() const {
    return order_.JobList.empty() ? order_.DocumentNames : order_.JobList;
}

void CreateRun::StartWord() {
    const word::StartedWordProcessor started = order_.startWord();
    session_.emplace(started.application, started.clipboard, started.hints);
    session_->isEmbedded = embedded_ = started.isEmbedded;
    SetUpWordSession(*session_);
}

void CreateRun::TypeDocumentAt(std::size_t entry) {
    Report(progress_.value + (entry == 0 ? 0.25 : 0.5), entry + 1);
    const word::Range beginning = session_->WordSel.Range();
    Dialogs& dialogs = order_.dialogs ? *order_.dialogs : defaultAnswers_;
    if (session_->hints) session_->hints->SetRole(word::Role::Body);
    notices_ += TypeEntry(order_.DocumentNames[entry],
                          {job_, order_.settings, dialogs, JobList(), order_.CustomFormsFolder}, *session_);
    // In front of the document, so that a builder's own paragraph format never reaches the break.
    if (entry > 0) beginning.InsertBreak(word::SectionBreakNextPage);
    Report(static_cast<double>(entry + 1), entry + 1);
}

void CreateRun::FinishDocument() {
    Report(progress_.value, progress_.documents + 1);
    FinishSections(*session_, job_,
                   {.documents = order_.DocumentNames,
                    .LegalList = order_.LegalList,
                    .footers = order_.settings.footers,
                    .nameUsable = order_.nameUsable,
                    .isWholeJob = JobList().size() == order_.DocumentNames.size()});
    if (order_.settings.footers == Footers::Description) LockFooters(*session_);
    DescribeFile();
    session_->WordSel.GoTo(word::GoToLine, word::GoToFirst);
}

/// What the file says of itself; the view is set before it is saved, since it is shown later.
void CreateRun::DescribeFile() {
    if (!session_->hints) return;
    word::DocumentProperties properties;
    const bool isOne = order_.DocumentNames.size() == 1;
    if (isOne) properties.title = order_.DocumentNames.front();
    if (!job_.name.empty() && order_.nameUsable) properties.title += (isOne ? " - " : "") + job_.name;
    properties.author = job_.IsFilled(field::SellerLawfirm) ? job_.D(field::SellerLawfirm) : "Quillmark";
    properties.created = std::chrono::sys_days(order_.today);
    session_->hints->SetProperties(properties);
    session_->hints->SetBestFit(order_.settings.bestFitPageView);
}

void CreateRun::Save(const std::string& file) {
    Attempt([&] { session_->WordDoc.SaveAs(file); });
}

void CreateRun::RestoreCheckers() {
    Attempt([this] { quillmark::RestoreCheckers(*session_); });
}

void CreateRun::Show() {
    Attempt([this] {
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
    });
}

void CreateRun::Abandon() {
    const CreateError failure = CreateError::OfPresentException();
    PutValuesBack();
    if (session_) {
        // The word processor may be what has gone; the failure to report is the first one.
        Quietly([this] { quillmark::RestoreCheckers(*session_); });
        Quietly([this] { session_->WordApp.Quit(); });
        session_.reset();
    }
    throw failure;
}

void CreateRun::Report(double value, std::size_t document) {
    progress_.value = value;
    progress_.document = document;
    if (order_.onProgress) order_.onProgress(progress_);
}

}  // namespace quillmark
