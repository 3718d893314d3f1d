#include "cli/make.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <set>

#include "cli/make_dialogs.h"
#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "production/pdf/pdf.h"
#include "production/run/create_checks.h"
#include "production/run/dispatch.h"
#include "selection/relevant_fields.h"
#include "session/job_check.h"
#include "session/main_screen.h"
#include "session/preview_command.h"
#include "word/start.h"
#include "word/trace.h"

namespace quillmark::cli {

namespace fs = std::filesystem;

namespace {

/// The line on a terminal that tells how far the run is, written over itself.
class ProgressLine {
 public:
    ProgressLine(const Streams& streams, bool shown) : err_(streams.err), shown_(shown) {}
    ~ProgressLine() { Clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void Show(const std::string& text) {
        if (!shown_) return;
        err_ << "\r\x1b[K" << text << std::flush;
        written_ = true;
    }
    void Clear() {
        if (written_) err_ << "\r\x1b[K" << std::flush;
        written_ = false;
    }

 private:
    std::ostream& err_;
    bool shown_;
    bool written_ = false;
};

/// A screen that opens nothing.
class NoShell final : public Shell {
 public:
    fs::path FolderOf(SpecialFolder) override { return {}; }
    void Open(const std::string&) override {}
    void Start(const fs::path&, const std::vector<std::string>&) override {}
};

bool Holds(const std::vector<std::string>& list, const std::string& text) {
    return std::ranges::find(list, text) != list.end();
}

std::string InOneLine(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return text;
}

class MakeRun {
 public:
    MakeRun(const MakeOrder& order, const Streams& streams)
        : order_(order),
          streams_(streams),
          clock_(order.today),
          dialogs_(order.answers, order.anyway,
                   [this](const std::string& notice) {
                       // While a job loads, a value that is no date is told with the value instead.
                       if (!loading_) Notify(job_.empty() ? notice : job_ + ": " + notice);
                   }),
          progress_(streams, streams.errIsTerminal && !order.quiet) {}

    int Run() {
        try {
            Prepare();
        } catch (const std::exception& failure) {
            Complain(failure.what());
            return kFailed;
        }
        for (number_ = 0; number_ < order_.jobs.size(); ++number_) MakeOne(order_.jobs[number_]);
        MakePdfs();
        job_.clear();
        WriteTrace();
        return Summarise();
    }

 private:
    void Prepare() {
        if (!fs::is_directory(order_.folder))
            throw FileError(order_.folder, FileError::Kind::NotFound, "there is no such folder");
        screen_ = std::make_unique<MainScreen>(fs::absolute(order_.folder),
                                               Machine{.clock = clock_,
                                                       .dialogs = dialogs_,
                                                       .shell = shell_,
                                                       .startWord = [this] { return StartWord(); },
                                                       .onProgress = [this] { ShowProgress(); }});
        screen_->StartForBulk();
        dialogs_.Flush();
        if (order_.check) return;
        std::error_code error;
        fs::create_directories(order_.out, error);
        if (error) throw FileError(order_.out, error);
        if (order_.pdf) pdf_.emplace();
    }

    void MakeOne(const std::string& job) {
        job_ = job;
        loading_ = false;
        dialogs_.Forget();
        progress_.Show(JobProgress());
        try {
            screen_->Click("cmdReset");
            Load();
            order_.check ? Check() : Produce();
        } catch (const std::exception& failure) {
            Fail(failure.what());
        }
        dialogs_.Forget();
        progress_.Clear();
    }

    void Load() {
        const JobSource source = FindJob(job_, screen_->FirmAround().folders);
        loading_ = true;
        screen_->LoadJobFrom(source);
        dialogs_.Forget();
        loading_ = false;
        for (const std::string& notice : screen_->FileNotices()) Notify(job_ + ": " + notice);
        if (order_.documents) screen_->ListDocuments(*order_.documents);
        if (screen_->State().List2.empty())
            throw std::runtime_error("the job lists no documents; --documents can name some");
        const std::string today = FormatDate(order_.today, DateForm::LongTwoDigits);
        screen_->DateDocuments(order_.documentDate.value_or(today));
        if (!order_.legal.empty()) SelectLegal();
    }

    /// A document that this job does not have is not on legal paper.
    void SelectLegal() {
        std::vector<std::string> lines;
        for (const JobListLine& line : screen_->State().List2)
            if (std::ranges::find(order_.legal, line.name) != order_.legal.end()) lines.push_back(line.name);
        screen_->SelectLegal(lines);
    }

    void Produce() {
        for (const std::vector<std::string>& doubts : {screen_->Doubts(), DoubtfulValues(screen_->State())})
            for (const std::string& doubt : doubts) Notify(job_ + ": " + doubt);
        const fs::path document =
            (fs::absolute(order_.out) / PathOf(screen_->State().job.name + "_QMF.docx")).lexically_normal();
        if (order_.force && !written_.insert(document).second)
            throw std::runtime_error("another job of this run has the same name and has written " +
                                     TextOf(document));
        screen_->SetCreateTarget({.to = document, .trace = {}, .replaces = order_.force, .keepsJob = false});
        screen_->Click("cmdCreate");
        if (!screen_->LastDocument()) return Fail(WhyLeft());
        dialogs_.Flush();
        TellOfGaps();
        const fs::path made = *screen_->LastDocument();
        Deliver(made);
        if (!pdf_) return;
        pdfs_.push_back({made, fs::path(made).replace_extension(".pdf")});
        pdfWords_.push_back(job_);
    }

    /// All together, since LibreOffice takes longer to start than to make one.
    void MakePdfs() {
        if (pdfs_.empty()) return;
        progress_.Show(fmt::format("PDF of {} documents", pdfs_.size()));
        pdf_->ConvertAll(pdfs_, [this](const PdfOrder& order, const std::exception_ptr& failure) {
            TellOfPdf(order, failure);
        });
        progress_.Clear();
    }
    void TellOfPdf(const PdfOrder& order, const std::exception_ptr& failure) {
        job_ = pdfWords_[static_cast<std::size_t>(&order - pdfs_.data())];
        try {
            if (failure) std::rethrow_exception(failure);
            Deliver(order.pdf);
        } catch (const std::exception& why) {
            Fail(why.what());
        }
    }

    /// What kept the documents from being made: a box, and for open fields their names.
    std::string WhyLeft() const {
        if (dialogs_.Last() != kProceedAnyway) return dialogs_.Last();
        return fmt::format("required fields are open: {}",
                           fmt::join(OpenFieldsOf(screen_->State()).required, ", "));
    }

    void TellOfGaps() {
        const Finish& made = screen_->LastRun().Made().value();
        if (!made.withoutText.empty())
            Complain(fmt::format("{}: no text yet for {}", job_, fmt::join(made.withoutText, "; ")));
        for (const std::string& fault : made.pictureFaults) Complain(job_ + ": " + fault);
        if (!made.holes.empty())
            Notify(fmt::format("{}: nothing fills {}", job_, fmt::join(made.holes, ", ")));
    }

    /// What the window of open fields shows, and what is wrong besides.
    void Check() {
        const ScreenState& state = screen_->State();
        const std::vector<std::string> unknown = UnknownDocuments(state);
        const OpenList open = OpenNow(*screen_);
        std::vector<std::string> wrong;
        for (const Blank& blank : open.blanks)
            if (blank.required) wrong.push_back(InWords(blank));
        for (const std::string& marker : open.filledByCreate)
            if (Holds(OpenFieldsOf(state).required, marker))
                wrong.push_back(marker + " is open, a line to write on will stand for it");
        for (const std::vector<std::string>& doubts : {screen_->Doubts(), DoubtfulValues(state)})
            wrong.insert(wrong.end(), doubts.begin(), doubts.end());
        if (const auto obstacle = WhyNotCreate(state.job)) wrong.push_back(obstacle->text);
        for (const std::string& name : unknown) wrong.push_back("no document has the name \"" + name + "\"");
        for (const OpenList::Failure& failure : open.failures)
            if (!Holds(unknown, failure.document))
                wrong.push_back(failure.document + " cannot be made: " + failure.why);
        for (const std::string& name : open.withoutText)
            Complain(fmt::format("{}: no text yet for {}", job_, name));
        for (const Blank& blank : open.blanks)
            if (!blank.required) Complain(job_ + ": " + InWords(blank));
        for (const OpenList::Question& question : open.questions)
            Complain(fmt::format("{}: {} will ask: {}", job_, question.document, InOneLine(question.text)));
        for (const std::string& what : wrong) Complain(job_ + ": " + what);
        if (!wrong.empty()) failed_.push_back(job_);
    }

    static std::string InWords(const Blank& blank) {
        std::string text = blank.hasRow ? blank.marker + " is open" : "nothing fills " + blank.marker;
        if (!blank.required) text += " (optional)";
        if (!blank.documents.empty()) text += fmt::format(" in {}", fmt::join(blank.documents, "; "));
        return text;
    }

    word::StartedWordProcessor StartWord() {
        auto started = word::StartWordProcessor(word::WordProcessor::Embedded);
        if (order_.trace && !order_.check)
            started.application = word::Trace(
                started.application, [this](std::string_view line) { trace_.append(line).append("\n"); });
        return started;
    }

    std::string JobProgress() const {
        return fmt::format("job {} of {} ({})", number_ + 1, order_.jobs.size(), job_);
    }

    void ShowProgress() {
        const ProgressBar& bar = screen_->State().progress;
        if (bar.document > 0 && bar.document <= bar.documents)
            progress_.Show(fmt::format("{}, document {} of {}", JobProgress(), bar.document, bar.documents));
    }

    void Deliver(const fs::path& file) {
        progress_.Clear();
        if (!order_.quiet) streams_.out << TextOf(file) << std::endl;
    }

    void Fail(const std::string& why) {
        // Errors about the file begin with it.
        const bool named = why.starts_with(job_ + ":") || why.starts_with(job_ + ",");
        Complain(named ? why : job_ + ": " + why);
        failed_.push_back(job_);
    }

    void Notify(const std::string& what) {
        if (!order_.quiet) Complain(what);
    }

    void Complain(const std::string& what) {
        progress_.Clear();
        streams_.err << "quillmark-cli: " << what << std::endl;
    }

    void WriteTrace() {
        if (!order_.trace || order_.check) return;
        try {
            ReplaceFile(*order_.trace, trace_);
        } catch (const FileError& failure) {
            Complain(failure.what());
            traceFailed_ = true;
        }
    }

    int Summarise() {
        if (order_.jobs.size() > 1 && !failed_.empty())
            Complain(fmt::format("{} of {} jobs failed: {}", failed_.size(), order_.jobs.size(),
                                 fmt::join(failed_, ", ")));
        return failed_.empty() && !traceFailed_ ? kDone : kFailed;
    }

    const MakeOrder& order_;
    Streams streams_;
    FixedClock clock_;
    NoShell shell_;
    MakeDialogs dialogs_;
    ProgressLine progress_;
    std::unique_ptr<MainScreen> screen_;
    std::optional<PdfConverter> pdf_;
    std::vector<PdfOrder> pdfs_;
    std::vector<std::string> pdfWords_;  ///< the jobs that they are of, as they were asked for
    std::size_t number_ = 0;
    std::string job_;  ///< in hand, as it was named; empty for none
    std::set<fs::path> written_;
    std::string trace_;
    bool traceFailed_ = false;
    bool loading_ = false;
    std::vector<std::string> failed_;
};

}  // namespace

int Make(const MakeOrder& order, const Streams& streams) {
    return MakeRun(order, streams).Run();
}

}  // namespace quillmark::cli
