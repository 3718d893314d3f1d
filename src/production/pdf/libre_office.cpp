#include "production/pdf/libre_office.h"

#include <optional>
#include <system_error>
#include <vector>

#include "platform/paths.h"
#include "production/pdf/pdf_program.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

std::optional<fs::path> FindOffice() {
    return FindProgram({"soffice", "libreoffice"});
}

std::string InCapitals(std::string_view kind) {
    return kind == "pdf" ? "PDF" : "." + std::string(kind);
}

}  // namespace

bool LibreOffice::IsInstalled() {
    return FindOffice().has_value();
}

LibreOffice::LibreOffice(std::string_view purpose) {
    const auto program = FindOffice();
    if (!program)
        throw OfficeError(std::string(purpose) +
                          " needs LibreOffice, which is not installed (neither soffice nor libreoffice is on "
                          "the PATH)");
    program_ = *program;
    folder_ = MakePrivateFolder();
}

LibreOffice::~LibreOffice() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

ProgramEnd LibreOffice::Run(std::string_view kind, const std::vector<fs::path>& documents,
                            std::chrono::seconds limit) const {
    std::vector<std::string> arguments = {"-env:UserInstallation=" + FileAddress(folder_ / "profile"),
                                          "--headless",
                                          "--norestore",
                                          "--convert-to",
                                          std::string(kind),
                                          "--outdir",
                                          TextOf(folder_ / "output")};
    for (const fs::path& document : documents) arguments.push_back(TextOf(fs::absolute(document)));
    try {
        return RunProgram(program_, arguments, limit);
    } catch (const std::system_error& failure) {
        throw OfficeCannotStart(std::string("LibreOffice cannot be started: ") + failure.what());
    }
}

fs::path LibreOffice::Make(std::string_view kind, const fs::path& document,
                           std::chrono::seconds limit) const {
    const fs::path made = folder_ / "output" / document.filename().replace_extension(kind);
    const std::string name = TextOf(document);
    const ProgramEnd end = Run(kind, {document}, limit);
    if (end == ProgramEnd::TimedOut)
        throw OfficeError(name + ": LibreOffice made no " + InCapitals(kind) + " within " +
                          std::to_string(limit.count()) + " seconds");
    if (end == ProgramEnd::Failed || !fs::exists(made))
        throw OfficeError(name + ": LibreOffice could not make a " + InCapitals(kind));
    return made;
}

}  // namespace quillmark
