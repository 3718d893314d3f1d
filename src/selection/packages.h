#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"

/// Packages: named lists of documents, kept in "package.def" in the program folder.
///
/// The file is a sequence of blocks: a header line "<05>NAME" with the count of documents in two digits, and
/// that many document lines. Every line is one text in double quotation marks, in windows-1252, ended by CR
/// LF. A file that was edited by hand is read as far as it can be, and what cannot be read stays in the file.
namespace quillmark {

/// A package cannot be kept, or is not there. what() is for the user.
class PackageError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

inline constexpr std::size_t kPackageDocuments = 99;  ///< the most that a header can count

struct Package {
    std::string name;
    std::vector<std::string> documents;
};

struct PackageFile {
    std::vector<Package> packages;    ///< in file order; of a name that comes twice, the first block
    std::vector<std::string> faults;  ///< "FILE, line N: what is wrong", for the user

    /// Null if there is no such package. Names are compared exactly, case too.
    const Package* Find(std::string_view name) const;
};

/// The packages of a file's bytes; `file` is its name for messages.
PackageFile PackagesOf(const std::string& file, std::string_view bytes);
/// The bytes without every block of that name; all other lines stay as they are.
std::string WithoutPackage(std::string_view bytes, std::string_view name);
/// The bytes with a block at the end. Throws PackageError for a package with too many documents or without a
/// name, UnencodableError for texts that the file cannot hold.
std::string WithPackage(std::string_view bytes, const Package& package);

/// No file, no packages. Throws FileError.
PackageFile ReadPackages(const std::filesystem::path& programFolder);
bool HasPackageFile(const std::filesystem::path& programFolder);

/// The documents of a package, read afresh. Throws FileError (NotFound too), PackageError if the file has no
/// such package.
std::vector<std::string> PackageDocuments(const std::filesystem::path& programFolder, std::string_view name);

/// Writes the package at the end of the file, without the block that it `replaces` (none if empty). The file
/// is replaced in one step. Throws FileError and as WithPackage; PackageError if another package has the
/// name.
void SavePackage(const std::filesystem::path& programFolder, const Package& package,
                 std::string_view replaces);
/// Throws FileError.
void DeletePackage(const std::filesystem::path& programFolder, std::string_view name);

/// The line "< NAME >" that offers a package, and its name.
std::string PackageLine(std::string_view name);
bool IsPackageLine(std::string_view line);
std::string PackageNameOf(std::string_view line);

/// The lines of `List1`: packages, the catalogue, the firm's own forms.
std::vector<std::string> LinesOffered(const PackageFile& packages, const Folders& folders);

}  // namespace quillmark
