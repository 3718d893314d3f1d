#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/dialogs.h"
#include "platform/paths.h"
#include "production/run/create.h"
#include "tools/custom_forms/form_check.h"
#include "tools/custom_forms/form_store.h"

/// The firm's own forms: listing a folder of 200, importing a form of twenty pages, checking it, merging it.
namespace {

namespace fs = std::filesystem;
using namespace quillmark;

constexpr int kForms = 200;
constexpr int kParagraphs = 700;  ///< twenty pages

StartWord Embedded() {
    return [] { return word::StartWordProcessor(word::WordProcessor::Embedded); };
}

/// A folder with a form of twenty pages, with a marker in every paragraph, and copies of its files.
struct FormsFolder {
    FormsFolder() : path(fs::temp_directory_path() / "quillmark-forms-bench") {
        fs::remove_all(path);
        fs::create_directories(path / "forms");
        WriteForm();
        ImportForm(path / "Form.docx", path / "forms", Embedded());
        for (int n = 1; n < kForms; ++n) {
            const std::string name = "Form " + std::to_string(n);
            fs::copy_file(path / "forms" / "Form.docx", path / "forms" / (name + ".docx"));
            fs::copy_file(path / "forms" / "Form.inf", path / "forms" / (name + ".inf"));
        }
    }
    ~FormsFolder() { fs::remove_all(path); }

    void WriteForm() const {
        const word::Application app(Embedded()().application);
        const word::Document document = app.Documents.Add();
        for (int n = 0; n < kParagraphs; ++n) {
            app.Selection.TypeText("Whereas ");
            app.Selection.Font.Bold = true;
            app.Selection.TypeText(n % 2 ? "[seller 1 name]" : "[buyer 1 name]");
            app.Selection.Font.Bold = false;
            app.Selection.TypeText(
                " of [seller 1 addr 1], hereinafter called the party, has agreed to convey the premises.\r");
        }
        document.SaveAs(TextOf(path / "Form.docx"));
        app.Quit();
    }

    fs::path path;
};

const FormsFolder& Folder() {
    static const FormsFolder folder;
    return folder;
}

void ListForms(benchmark::State& state) {
    Folder();  // is filled with forms once, which is not to be measured
    for (auto _ : state) benchmark::DoNotOptimize(FormFiles(Folder().path / "forms"));
}
BENCHMARK(ListForms)->Unit(benchmark::kMillisecond);

void Import(benchmark::State& state) {
    for (auto _ : state) ImportForm(Folder().path / "Form.docx", Folder().path / "forms", Embedded());
}
BENCHMARK(Import)->Unit(benchmark::kMillisecond);

void Check(benchmark::State& state) {
    const MarkerJudge judge(MarkerRows(Folder().path / "forms"));
    for (auto _ : state) benchmark::DoNotOptimize(CheckForm(Folder().path / "forms" / "Form.docx", judge));
}
BENCHMARK(Check)->Unit(benchmark::kMillisecond);

void Merge(benchmark::State& state) {
    Job job;
    for (auto _ : state) {
        CreateOrder order;
        order.DocumentNames = {"[ Form ]"};
        order.CustomFormsFolder = Folder().path / "forms";
        order.today =
            std::chrono::year_month_day{std::chrono::year(2025), std::chrono::month(4), std::chrono::day(6)};
        order.startWord = Embedded();
        CreateRun(job, order).Run(TextOf(Folder().path / "made.docx"));
    }
}
BENCHMARK(Merge)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
