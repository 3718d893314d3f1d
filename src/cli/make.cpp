#include "cli/make.h"

#include <fmt/format.h>

#include <ostream>
#include <set>

#include "cli/job_source.h"
#include "core/settings.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "production/pdf/pdf.h"
#include "production/run/create.h"
#include "production/run/create_checks.h"
#include "selection/document_catalogue.h"
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

class MakeRun {
 public:
    MakeRun(const MakeOrder& order, const Streams& streams)
        : order_(order),
          streams_(streams),
          clock_(order.today),
          dialogs_(order.answers),
          progress_(streams, streams.errIsTerminal && !order.quiet) {}

    int Run() {
        try {
            Prepare();
        } catch (const std::exception& failure) {
            Complain(failure.what());
            return kFailed;
        }
        for (job_ = 0; job_ < order_.jobs.size(); ++job_) MakeOne(order_.jobs[job_]);
        WriteTrace();
        return Summarise();
    }

 private:
    void Prepare() {
        if (!fs::is_directory(order_.folder))
            throw FileError(order_.folder, FileError::Kind::NotFound, "there is no such folder");
        settings_ = ReadSettings(order_.folder);
        folders_ = FoldersOf(fs::absolute(order_.folder), settings_);
        defaults_ = ReadFirmDefaults(folders_.firmDefaultsFile);
        std::error_code error;
        fs::create_directories(order_.out, error);
        if (error) throw FileError(order_.out, error);
        if (order_.pdf) pdf_.emplace();
    }

    void MakeOne(const std::string& word) {
        progress_.Show(JobProgress(word));
        try {
            Produce(FindJob(word, folders_), word);
        } catch (const CreateError& failure) {
            Fail(word, failure.Message() + ": " + failure.what());
        } catch (const std::exception& failure) {
            Fail(word, failure.what());
        }
        progress_.Clear();
    }

    void Produce(const JobSource& source, const std::string& word) {
        Job job;
        for (const std::string& refused : ReadJob(source, folders_, defaults_, job))
            Complain(word + ": " + refused);
        const fs::path document =
            (fs::absolute(order_.out) / PathOf(job.name + "_QMF.docx")).lexically_normal();
        if (!written_.insert(document).second)
            throw std::runtime_error("another job of this run has the same name and has written " +
                                     TextOf(document));
        CreateOrder order = CreateOrderFor(job, word);
        KeepRelevantFields(order.DocumentNames, {settings_, folders_, defaults_, clock_}, job);
        if (const auto obstacle = WhyNotCreate(job)) throw std::runtime_error(obstacle->text);
        CreateRun run(job, std::move(order));
        run.Run(TextOf(document));
        run.session().WordApp.Quit();
        Deliver(document);
        if (!pdf_) return;
        progress_.Show(JobProgress(word) + ", PDF");
        const fs::path pdf = fs::path(document).replace_extension(".pdf");
        pdf_->Convert(document, pdf);
        Deliver(pdf);
    }

    CreateOrder CreateOrderFor(const Job& job, const std::string& word) {
        CreateOrder order;
        order.DocumentNames = order_.documents ? *order_.documents : DocumentsOf(job.JobDocuments);
        if (order.DocumentNames.empty())
            throw std::runtime_error("the job lists no documents; --documents can name some");
        order.settings = settings_;
        order.today = order_.today;
        order.CustomFormsFolder = folders_.CustomFormsFolder;
        order.dialogs = &dialogs_;
        order.startWord = [this] { return StartWord(); };
        order.onProgress = [this, word](const CreateProgress& progress) {
            if (progress.document > 0 && progress.document <= progress.documents)
                progress_.Show(fmt::format("{}, document {} of {}", JobProgress(word), progress.document,
                                           progress.documents));
        };
        return order;
    }

    word::StartedWordProcessor StartWord() {
        auto started = word::StartWordProcessor(word::WordProcessor::Embedded);
        if (order_.trace)
            started.application = word::Trace(
                started.application, [this](std::string_view line) { trace_.append(line).append("\n"); });
        return started;
    }

    std::string JobProgress(const std::string& word) const {
        return fmt::format("job {} of {} ({})", job_ + 1, order_.jobs.size(), word);
    }

    void Deliver(const fs::path& file) {
        progress_.Clear();
        if (!order_.quiet) streams_.out << TextOf(file) << std::endl;
    }

    void Fail(const std::string& word, const std::string& why) {
        // Errors about the file begin with it.
        const bool named = why.starts_with(word + ":") || why.starts_with(word + ",");
        Complain(named ? why : word + ": " + why);
        failed_.push_back(word);
    }

    void Complain(const std::string& what) {
        progress_.Clear();
        streams_.err << "quillmark-cli: " << what << std::endl;
    }

    void WriteTrace() {
        if (!order_.trace) return;
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
    ScriptedDialogs dialogs_;
    ProgressLine progress_;
    Settings settings_;
    Folders folders_;
    FirmDefaults defaults_;
    std::optional<PdfConverter> pdf_;
    std::size_t job_ = 0;
    std::set<fs::path> written_;
    std::string trace_;
    bool traceFailed_ = false;
    std::vector<std::string> failed_;
};

}  // namespace

int Make(const MakeOrder& order, const Streams& streams) {
    return MakeRun(order, streams).Run();
}

}  // namespace quillmark::cli
