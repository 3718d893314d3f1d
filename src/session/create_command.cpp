#include "core/job_file.h"
#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "selection/relevant_fields.h"
#include "session/main_screen.h"
#include "word/trace.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr int kBuyerAttyEmail = 18;
constexpr int kSellerLawfirm = 2;

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// A name beside documents that the user may have changed.
fs::path FreeName(const fs::path& wanted) {
    fs::path free = wanted;
    for (int n = 2; fs::exists(free); ++n)
        free.replace_filename(PathOf(TextOf(wanted.stem()) + " (" + std::to_string(n) + ").docx"));
    return free;
}

fs::path DocumentPath(const fs::path& target, const std::string& name, Shell& shell) {
    if (target.extension() == ".docx") return target;
    const fs::path folder = target.empty() ? shell.FolderOf(SpecialFolder::Documents) : target;
    return FreeName(folder / PathOf((name.empty() ? "Untitled" : name) + "_QMF.docx"));
}

}  // namespace

void MainScreen::SetCreateTarget(fs::path to, fs::path trace) {
    createTo_ = std::move(to);
    createTrace_ = std::move(trace);
}

void MainScreen::Create() {
    Require(!screen_.List2.empty(), "the job list is empty");
    lastDocument_.reset();
    if (run_) {
        try {
            run_->session().WordApp.Quit();
        } catch (const word::AutomationError&) {
            // The user has closed it already.
        }
        run_.reset();
    }
    screen_.cmdOpen.enabled = screen_.cmdOpen.caption == "SAVE";
    if (!MayOverwrite()) return;

    const NameBox& box = screen_.txtJobName;
    screen_.job.name = box.IsSaveable() ? box.text : std::string();
    const fs::path document = DocumentPath(createTo_, screen_.job.name, machine_.shell);
    // The word processor outlives this run, and so must the trace that it writes to.
    const auto trace = std::make_shared<std::string>();
    CreateOrder order;
    for (const JobListLine& line : screen_.List2) order.DocumentNames.push_back(line.name);
    order.LegalList = screen_.LegalList;
    order.settings = settings_;
    order.today = machine_.clock.Today();
    order.nameUsable = box.IsSaveable();
    order.saveAs = TextOf(document);
    order.startWord = [this, trace] {
        word::StartedWordProcessor started = machine_.startWord();
        if (!createTrace_.empty())
            started.application = word::Trace(
                started.application, [trace](std::string_view line) { trace->append(line).append("\n"); });
        return started;
    };
    auto run = std::make_unique<CreateRun>(screen_.job, std::move(order));
    try {
        run->Run();
    } catch (const CreateError& failure) {
        machine_.dialogs.Tell(" FAILED !!!", failure.Message(), DialogIcon::Stop);
        throw;
    }
    if (!createTrace_.empty()) ReplaceFile(createTrace_, *trace);
    lastDocument_ = document;
    run_ = std::move(run);
    if (box.IsSaveable()) {
        for (const JobListLine& line : screen_.List2)
            if (!Contains(screen_.job.JobDocuments, line.name)) screen_.job.JobDocuments += line.name + ":";
        WriteJob();
        CountAsSaved();
    }
    screen_.cmdCreate.caption = "Re-Make";
    screen_.cmdEnvelopes.enabled = screen_.cmdOP236.enabled = true;
    screen_.picInfo = " Edit fields and Re-Make/Save OR click 'RESET' to clear & start over";
}

void MainScreen::Templates() {
    screen_.ScreenMode = screen_mode::kPresets;
    screen_.cmdOpen = {"SAVE", " save settings ", false, true};
    for (OptionButton& option : screen_.options) option = {true, true, option.tooltip};
    OpenBrowser(true);
}

/// With the buyer's attorney's address at hand, the button writes to it.
void MainScreen::ShowExit() {
    if (screen_.job.IsFilled(kBuyerAttyEmail))
        screen_.cmdExit = {"EMAIL", " email buyer attorney ", true, true};
    else
        screen_.cmdExit = {"EXIT", " shutdown Quillmark ", true, true};
}

void MainScreen::Mail() {
    Job& job = screen_.job;
    if (!job.IsFilled(kSellerLawfirm)) AddFields("D(2)_D(3)_D(4)_D(5)_D(6)_D(7)", screen_, office_);
    std::string body = "Greetings Attorney " + job.D(3012) + ",\r\n\r\n\r\n\r\nRespectfully Yours,\r\n\r\n";
    for (const int n : {3, 2, 1004, 6, 7}) body += job.D(n) + "\r\n";
    machine_.shell.Open("mailto:" + job.D(kBuyerAttyEmail) + "?Subject=" + job.D(1070) + ", " + job.D(1072) +
                        "&Body=" + EncodeForMail(body));
}

}  // namespace quillmark
