#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace quillmark {

/// LibreOffice loaded into this process, which makes a PDF in a tenth of the time that a start of the program
/// takes. It installs signal handlers, runs threads of its own and cannot be unloaded: a process that loads
/// it does nothing else, and there is one in a process.
class OfficeKit {
 public:
    /// Where its libraries lie: beside the real file of the program `soffice` of the PATH. Nothing where
    /// there is none, or one that cannot be loaded.
    static std::optional<std::filesystem::path> Find();

    /// `profile` is its own folder of settings, made when it is not there; a kept one saves most of a second
    /// at the next start. Throws PdfError.
    OfficeKit(const std::filesystem::path& programs, const std::filesystem::path& profile);
    ~OfficeKit();
    OfficeKit(const OfficeKit&) = delete;
    OfficeKit& operator=(const OfficeKit&) = delete;

    /// Throws PdfError with LibreOffice's own words; it can be used again after that.
    void MakePdf(const std::filesystem::path& document, const std::filesystem::path& pdf);

 private:
    struct Loaded;
    std::unique_ptr<Loaded> loaded_;
};

}  // namespace quillmark
