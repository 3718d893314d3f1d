#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmark::word::docx::zip {

/// What an untrusted package may ask of the machine.
struct ZipLimits {
    std::size_t entries = 20'000;
    std::size_t totalBytes = std::size_t{128} << 20;  ///< of all entries read, inflated
    std::size_t entryBytes = std::size_t{64} << 20;   ///< of one entry, inflated
    /// How many times its packed size an entry may have; counts from `freeBytes` on, since small texts of
    /// one letter pack better than any real document.
    std::size_t ratio = 250;
    std::size_t freeBytes = std::size_t{1} << 20;
};

/// The entries of a zip file in memory. Names are compared without regard to ASCII case, as the package
/// format wants; of two entries of one name the first counts.
///
/// Everything throws AutomationError kFileDamaged for bytes that are no zip file, for torn or encrypted
/// entries and for what exceeds the limits. The text begins with the name of the file.
class ZipReader {
 public:
    /// `fileName` is for messages only.
    ZipReader(std::string bytes, std::string fileName, ZipLimits limits = {});
    ~ZipReader();
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;

    bool Has(std::string_view name) const;
    /// The names of all entries as they are written, in the file's order.
    std::vector<std::string> Names() const;
    /// The inflated bytes of an entry; an entry that is not there is damage.
    std::string Read(std::string_view name);

    const std::string& fileName() const { return fileName_; }
    /// Throws kFileDamaged: the file's name and this reason.
    [[noreturn]] void Refuse(std::string_view reason) const;

 private:
    struct Archive;

    void ListEntries();
    std::string Inflate(std::size_t index, std::string_view name);

    std::string bytes_;
    std::string fileName_;
    ZipLimits limits_;
    std::size_t inflated_ = 0;
    std::unique_ptr<Archive> archive_;
    std::unordered_map<std::string, std::size_t> indexByName_;
};

/// The bytes of a file. Throws AutomationError: kFileNotFound where there is none, kPermissionDenied where
/// it cannot be read, kFileDamaged where it is larger than any document.
std::string ReadWholeFile(const std::filesystem::path& file);

}  // namespace quillmark::word::docx::zip
