#include <fmt/format.h>

#ifndef _WIN32
#include <sys/resource.h>
#endif

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "entry/smart_fields.h"
#include "platform/paths.h"
#include "production/builders/builder_list.h"
#include "production/run/create.h"
#include "selection/document_catalogue.h"
#include "word/start.h"

/// CREATE of all catalogue documents of one job, with both copies of those that are typed twice, from the
/// first check to the closed file. The budget is 150 ms and 100 MB.
namespace {

namespace fs = std::filesystem;
using namespace quillmark;

constexpr int kRounds = 21;

Job FullJob() {
    Job job;
    AttachSmartFields(job);
    for (const int option : {TwoSellers, TwoBuyers, TwoPayoffs, Letterhead}) job.SetOption(option, true);
    for (const int option : {OneSeller, OneBuyer, OnePayoff, DefaultLetterhead}) job.SetOption(option, false);
    // clang-format off
    const std::pair<int, const char*> kValues[] = {
        {2, "Delaney & Marsh LLC"},     {3, "Margaret A. Delaney/412387"}, {12, "Thomas J. Okafor"},
        {21, "Daniel R. Whitcomb"},     {23, "27 Beech Hill Road"},        {25, "Guilford, CT 06437"},
        {28, "Laura M. Whitcomb"},      {59, "Adrian Velasquez"},          {64, "Nora K. Velasquez"},
        {70, "27 Beech Hill Road"},     {72, "Guilford, CT 06437"},        {76, "485000"},
        {77, "48500"},                  {79, "June 2, 2026"},              {81, "June 1, 2026"},
        {95, "First Shore Bank"},       {100, "201455.12 - P"},            {113, "Elm City Credit Union"},
        {118, "25000 - P"},             {170, "9000"},                     {89, "388000"},
    };
    // clang-format on
    for (const auto& [n, text] : kValues) job.SetField(n, text);
    // A text that every field takes, dates too.
    for (int n = 1; n <= kFields; ++n)
        if (FieldMarker(n).size() > 2 && !job.IsFilled(n)) job.SetField(n, "June 2, 2026");
    job.SetField(201, std::string(4000, 'x'));
    job.SetField(202, "A sewer easement.\r\nCovenants of record.\r\nTaxes not yet due.");
    return job;
}

CreateOrder OrderOfAll() {
    CreateOrder order;
    for (const std::string_view name : DocumentCatalogue()) order.DocumentNames.emplace_back(name);
    order.LegalList = "Schedule A,";
    order.today = std::chrono::year(2026) / 3 / 9;
    order.startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); };
    return order;
}

double PeakMegabytes() {
#ifndef _WIN32
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
#else
    return 0;
#endif
}

std::size_t ParagraphsIn(const std::string& text) {
    return static_cast<std::size_t>(std::ranges::count(text, '\r'));
}

std::size_t WordsIn(const std::string& text) {
    const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    std::size_t words = 0;
    bool inWord = false;
    for (const char c : text) {
        if (!inWord && !isBlank(c)) ++words;
        inWord = !isBlank(c);
    }
    return words;
}

}  // namespace

int main() {
    const fs::path folder =
        fs::temp_directory_path() / fmt::format("quillmark-bench-{}", std::random_device()());
    fs::create_directory(folder);
    const std::string file = TextOf(folder / "all.docx");
    const Job job = FullJob();
    std::vector<double> times;
    std::string text;
    for (int round = 0; round < kRounds; ++round) {
        Job made = job;
        const auto start = std::chrono::steady_clock::now();
        CreateRun run(made, OrderOfAll());
        run.Run(file);
        const auto taken = std::chrono::steady_clock::now() - start;
        times.push_back(std::chrono::duration<double, std::milli>(taken).count());
        if (round == 0) text = run.session().WordDoc.Content.Text;
    }
    std::ranges::sort(times);
    const auto typed = std::ranges::count_if(
        DocumentCatalogue(), [](std::string_view name) { return FindBuilder(name) != nullptr; });
    fmt::print(
        "CREATE of {} documents, {} with a text: {:.1f} ms median, {:.1f} ms best, {:.1f} MB at the most\n",
        DocumentCatalogue().size(), typed, times[times.size() / 2], times.front(), PeakMegabytes());
    fmt::print("{} paragraphs, {} words, {} bytes\n", ParagraphsIn(text), WordsIn(text), fs::file_size(file));
    fs::remove_all(folder);
}
