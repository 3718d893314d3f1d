#include "selection/packages.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "platform/shared_file.h"
#include "selection/document_catalogue.h"
#include "selection/package_lines.h"

namespace quillmark {

namespace {

constexpr const char* kPackageFile = "package.def";
constexpr std::size_t kLimit = 1024 * 1024;  ///< bytes; some 300 full packages

std::filesystem::path FileIn(const std::filesystem::path& programFolder) {
    return FindExisting(programFolder / kPackageFile);
}

/// Empty without a file.
std::string BytesOf(const std::filesystem::path& file) {
    try {
        return ReadFile(file, kLimit);
    } catch (const FileError& error) {
        if (error.kind != FileError::Kind::NotFound) throw;
        return {};
    }
}

void AddBlock(const PackageLines& file, std::size_t header, PackageFile& packages) {
    const std::string& name = file.lines[header].header->name;
    Package package{name, {}};
    for (const FileLine& line : file.lines)
        if (line.block == header && !line.header && line.IsReadable()) package.documents.push_back(line.text);
    if (!packages.Find(name)) packages.packages.push_back(std::move(package));
}

void RequireStorable(const Package& package) {
    if (package.name.empty()) throw PackageError("A package needs a name.");
    if (package.name.find_first_of("<>\"\r\n") != std::string::npos)
        throw PackageError(
            fmt::format("The package name {} holds a character that cannot be kept.", package.name));
    if (package.documents.size() > kPackageDocuments)
        throw PackageError(fmt::format("A package holds {} documents at most; {} has {}.", kPackageDocuments,
                                       package.name, package.documents.size()));
}

}  // namespace

const Package* PackageFile::Find(std::string_view name) const {
    const auto package =
        std::find_if(packages.begin(), packages.end(), [&](const Package& p) { return p.name == name; });
    return package == packages.end() ? nullptr : &*package;
}

PackageFile PackagesOf(const std::string& file, std::string_view bytes) {
    const PackageLines lines = ReadPackageLines(bytes);
    PackageFile packages;
    for (std::size_t i = 0; i < lines.lines.size(); ++i) {
        if (lines.lines[i].header) AddBlock(lines, i, packages);
    }
    for (const LineFault& fault : FaultsOf(lines))
        packages.faults.push_back(fmt::format("{}, line {}: {}", file, fault.line, fault.reason));
    return packages;
}

std::string WithoutPackage(std::string_view bytes, std::string_view name) {
    const PackageLines lines = ReadPackageLines(bytes);
    std::string kept;
    for (const FileLine& line : lines.lines) {
        const bool goes = line.block && lines.lines[*line.block].header->name == name;
        if (!goes) kept += line.bytes;
    }
    return kept;
}

std::string WithPackage(std::string_view bytes, const Package& package) {
    RequireStorable(package);
    RecordWriter block;
    block.Write({fmt::format("<{:02}>{}", package.documents.size(), package.name)});
    for (const std::string& document : package.documents) block.Write({document});
    std::string all(bytes);
    if (!all.empty() && all.back() != '\n' && all.back() != '\r') all += "\r\n";
    return all + block.Bytes();
}

PackageFile ReadPackages(const std::filesystem::path& programFolder) {
    const auto file = FileIn(programFolder);
    return PackagesOf(TextOf(file), BytesOf(file));
}

bool HasPackageFile(const std::filesystem::path& programFolder) {
    return std::filesystem::exists(FileIn(programFolder));
}

std::vector<std::string> PackageDocuments(const std::filesystem::path& programFolder, std::string_view name) {
    const auto file = FileIn(programFolder);
    const PackageFile packages = PackagesOf(TextOf(file), ReadFile(file, kLimit));
    if (const Package* package = packages.Find(name)) return package->documents;
    throw PackageError(fmt::format("{} holds no package \"{}\".", TextOf(file), name));
}

void SavePackage(const std::filesystem::path& programFolder, const Package& package,
                 std::string_view replaces) {
    const auto file = FileIn(programFolder);
    ChangeSharedFile(file, kLimit, [&](const std::optional<std::string>& present) {
        std::string bytes = present.value_or("");
        if (!replaces.empty()) bytes = WithoutPackage(bytes, replaces);
        if (PackagesOf(TextOf(file), bytes).Find(package.name))
            throw PackageError(fmt::format("There is already a package \"{}\".", package.name));
        return WithPackage(bytes, package);
    });
}

void DeletePackage(const std::filesystem::path& programFolder, std::string_view name) {
    ChangeSharedFile(FileIn(programFolder), kLimit, [&](const std::optional<std::string>& present) {
        return present ? std::optional(WithoutPackage(*present, name)) : std::nullopt;
    });
}

std::string PackageLine(std::string_view name) {
    return fmt::format("< {} >", name);
}

bool IsPackageLine(std::string_view line) {
    return line.starts_with('<');
}

std::string PackageNameOf(std::string_view line) {
    constexpr std::size_t kEdge = 2;
    if (!IsPackageLine(line) || line.size() < 2 * kEdge) return {};
    return std::string(line.substr(kEdge, line.size() - 2 * kEdge));
}

std::vector<std::string> LinesOffered(const PackageFile& packages, const Folders& folders) {
    std::vector<std::string> lines;
    for (const Package& package : packages.packages) lines.push_back(PackageLine(package.name));
    for (std::string& document : OfferedDocuments(folders)) lines.push_back(std::move(document));
    return lines;
}

}  // namespace quillmark
