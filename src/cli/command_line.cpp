#include "cli/command_line.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>
#include <ostream>

#include "cli/console.h"
#include "cli/forms.h"
#include "cli/listings.h"
#include "cli/make.h"
#include "cli/program_file.h"
#include "core/text_conversions.h"
#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/paths.h"

namespace quillmark::cli {

namespace {

std::optional<unsigned> Digits(std::string_view text) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return {};
    return value;
}

/// YYYY-MM-DD and nothing else.
std::optional<std::chrono::year_month_day> IsoDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return {};
    const auto year = Digits(text.substr(0, 4));
    const auto month = Digits(text.substr(5, 2));
    const auto day = Digits(text.substr(8, 2));
    if (!year || !month || !day) return {};
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(*year)),
                                           std::chrono::month(*month), std::chrono::day(*day)};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        parts.emplace_back(Trimmed(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    return parts;
}

/// Throws CLI::ValidationError for what is no date.
std::chrono::year_month_day Today(const std::string& text) {
    const auto today = IsoDate(text);
    if (!today) throw CLI::ValidationError("--today", text + " is no date of the form YYYY-MM-DD");
    return *today;
}

/// Throws CLI::ValidationError for a list without a name.
std::vector<std::string> DocumentNames(const std::string& option, const std::string& text) {
    std::vector<std::string> names = Split(text, ';');
    std::erase(names, "");
    if (names.empty()) throw CLI::ValidationError(option, "names no document");
    return names;
}

/// The date as the documents show it; one with blanks to fill by hand, "March __, 2026", stays as it is.
/// Throws CLI::ValidationError for what is no date.
std::string DocumentDate(const std::string& text) {
    if (const auto date = IsoDate(text)) return LongDate(*date);
    if (text.find('_') == text.npos && !ReadDate(text))
        throw CLI::ValidationError("--document-date", text + " is no date");
    return text;
}

/// The words of `make` as they were typed.
struct MakeWords {
    std::vector<std::string> jobs;
    std::string folder = ".";
    std::string out = ".";
    std::string documents;
    std::string today;
    std::string answers;
    std::string trace;
    std::string legal;
    std::string documentDate;
    bool pdf = false;
    bool quiet = false;
    bool check = false;
    bool anyway = false;
    bool force = false;
};

CLI::App* AddMake(CLI::App& app, MakeWords& words) {
    CLI::App* make = app.add_subcommand("make", "Make the documents of jobs, one Word document per job");
    make->add_option("JOB", words.jobs, "A job's name in the job folder, or the path of a .dat file")
        ->required();
    make->add_option("--folder", words.folder,
                     "Program folder: settings, firm defaults, packages, data (default: .)")
        ->type_name("DIR");
    make->add_option("--out", words.out, "Where NAME_QMF.docx goes (default: .)")->type_name("DIR");
    make->add_option("--documents", words.documents, "Documents to make in place of those that the job lists")
        ->type_name("\"A;B\"");
    make->add_option("--today", words.today, "The date that counts as today")->type_name("YYYY-MM-DD");
    make->add_option("--answers", words.answers, "Answers to the questions, in the order in which they come")
        ->type_name("Yes,No,...");
    make->add_option("--trace", words.trace, "Also write every word-processor operation to this file")
        ->type_name("FILE");
    make->add_flag("--pdf", words.pdf, "Also write NAME_QMF.pdf beside each document (needs LibreOffice)");
    make->add_flag("--quiet", words.quiet, "Write nothing but notices and errors");
    make->add_flag("--check", words.check,
                   "Make nothing: name open fields, doubtful values and unknown documents");
    make->add_flag("--anyway", words.anyway,
                   "Make jobs with open fields too; the documents show their markers");
    make->add_flag("--force", words.force, "Replace documents that are there already");
    make->add_option("--legal", words.legal, "Documents on legal paper")->type_name("\"A;B\"");
    make->add_option("--document-date", words.documentDate,
                     "The date of the documents, YYYY-MM-DD or as one types it (default: today)")
        ->type_name("TEXT");
    return make;
}

/// Throws CLI::ValidationError for what cannot be read.
MakeOrder OrderOf(const MakeWords& words, const CLI::App& make) {
    MakeOrder order;
    order.jobs = words.jobs;
    order.folder = PathOf(words.folder);
    order.out = PathOf(words.out);
    order.today = SystemClock().Today();
    if (make.count("--today")) order.today = Today(words.today);
    if (make.count("--documents")) order.documents = DocumentNames("--documents", words.documents);
    if (make.count("--legal")) order.legal = DocumentNames("--legal", words.legal);
    if (make.count("--document-date")) order.documentDate = DocumentDate(words.documentDate);
    order.check = words.check;
    order.anyway = words.anyway;
    order.force = words.force;
    if (make.count("--answers"))
        for (std::string& answer : Split(words.answers, ',')) order.answers.emplace_back(std::move(answer));
    if (make.count("--trace")) order.trace = PathOf(words.trace);
    order.pdf = words.pdf;
    order.quiet = words.quiet;
    return order;
}

/// The words of `console` as they were typed.
struct ConsoleWords {
    std::string folder = ".";
    std::string today;
    std::string answers;
    std::vector<std::string> printers;
    std::vector<std::string> drives;
};

CLI::App* AddConsole(CLI::App& app, ConsoleWords& words) {
    CLI::App* console = app.add_subcommand("console", "One session, driven by JSON lines on standard input");
    console
        ->add_option("--folder", words.folder,
                     "Program folder: settings, firm defaults, packages, data (default: .)")
        ->type_name("DIR");
    console->add_option("--today", words.today, "The date that counts as today")->type_name("YYYY-MM-DD");
    console->add_option("--answers", words.answers, "Answers to the questions of the start, in order")
        ->type_name("Yes,No,...");
    console
        ->add_option("--printer", words.printers,
                     "A printer with its bins, for the side tools; given several times, the first is the "
                     "current one")
        ->type_name("\"NAME:NUMBER=BIN,...\"")
        ->allow_extra_args(false);
    console->add_option("--drive", words.drives, "A folder that stands for a drive of the backup window")
        ->type_name("LETTER=DIR")
        ->allow_extra_args(false);
    return console;
}

/// Throws CLI::ValidationError for what is no printer.
std::vector<NamedPrinter> PrintersOf(const std::vector<std::string>& words) {
    std::vector<NamedPrinter> printers;
    try {
        for (const std::string& word : words) printers.push_back(PrinterOf(word));
    } catch (const std::invalid_argument& failure) {
        throw CLI::ValidationError("--printer", failure.what());
    }
    return printers;
}

/// Throws CLI::ValidationError for what is no letter and folder, and for a letter that has one already.
Drive DriveOf(const std::string& text, const std::vector<Drive>& others) {
    const std::string name = UpperCase(text.substr(0, 1)) + ":";
    if (text.size() < 3 || text[1] != '=' || name[0] < 'A' || name[0] > 'Z')
        throw CLI::ValidationError("--drive", text + " is not of the form LETTER=DIR");
    if (std::ranges::find(others, name, &Drive::name) != others.end())
        throw CLI::ValidationError("--drive", "there are two drives " + name);
    return {name, std::filesystem::absolute(PathOf(text.substr(2)))};
}

/// Throws CLI::ValidationError for what cannot be read.
ConsoleOrder OrderOf(const ConsoleWords& words, const CLI::App& console) {
    ConsoleOrder order;
    order.folder = PathOf(words.folder);
    if (console.count("--today")) order.today = Today(words.today);
    if (console.count("--answers"))
        for (std::string& answer : Split(words.answers, ',')) order.answers.emplace_back(std::move(answer));
    order.printers = PrintersOf(words.printers);
    for (const std::string& drive : words.drives) order.drives.push_back(DriveOf(drive, order.drives));
    order.programFile = ProgramFile();
    return order;
}

int Parse(CLI::App& app, const std::vector<std::string>& words, const Streams& streams) {
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
        return kDone;
    } catch (const CLI::ParseError& error) {
        return app.exit(error, streams.out, streams.err) == 0 ? kDone : kWrongCommandLine;
    }
}

}  // namespace

int RunCommandLine(const std::vector<std::string>& words, const Streams& streams) {
    CLI::App app("Quillmark makes the documents of real-estate closings in Connecticut.", "quillmark-cli");
    app.set_version_flag("--version", "quillmark-cli " QUILLMARK_VERSION);
    app.require_subcommand(1);
    int status = kDone;
    MakeWords makeWords;
    CLI::App* make = AddMake(app, makeWords);
    make->callback([&] { status = Make(OrderOf(makeWords, *make), streams); });
    ConsoleWords consoleWords;
    CLI::App* console = AddConsole(app, consoleWords);
    console->callback([&] { status = RunConsole(OrderOf(consoleWords, *console), std::cin, streams); });
    app.add_subcommand("documents", "List the built-in documents in catalogue order")->callback([&] {
        ListDocuments(streams.out);
    });
    FormsOrder formsOrder;
    std::string formsFolder = ".";
    CLI::App* forms = app.add_subcommand("forms", "List the firm's own forms, each with its markers");
    forms
        ->add_option("--folder", formsFolder,
                     "Program folder: settings, firm defaults, packages, data (default: .)")
        ->type_name("DIR");
    forms->add_flag("--check", formsOrder.check, "Tell what is wrong with the forms instead");
    forms->callback([&] {
        formsOrder.folder = PathOf(formsFolder);
        status = Forms(formsOrder, streams);
    });
    app.add_subcommand("fields", "List the fields: number, marker, sort key, description, tab-separated")
        ->callback([&] { ListFields(streams.out); });
    const int parsed = Parse(app, words, streams);
    return parsed == kDone ? status : parsed;
}

}  // namespace quillmark::cli
