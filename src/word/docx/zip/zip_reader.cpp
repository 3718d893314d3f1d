#include "word/docx/zip/zip_reader.h"

#include <fmt/format.h>
#include <zip.h>

#include <algorithm>
#include <fstream>
#include <system_error>

#include "word/seam/automation.h"

namespace quillmark::word::docx::zip {

namespace {

constexpr std::string_view kZipMark = "PK";
constexpr std::string_view kCompoundFileMark = "\xD0\xCF\x11\xE0";
constexpr std::uintmax_t kLargestFile = std::uintmax_t{96} << 20;

std::string LowerCase(std::string_view name) {
    std::string lower(name);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        if (c == '\\') c = '/';
    }
    return lower;
}

}  // namespace

struct ZipReader::Archive {
    explicit Archive(const std::string& bytes) {
        zip_error_t error;
        zip_error_init(&error);
        zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
        if (source) zip = zip_open_from_source(source, ZIP_RDONLY, &error);
        if (source && !zip) zip_source_free(source);
        if (!zip) reason = zip_error_strerror(&error);
        zip_error_fini(&error);
    }
    ~Archive() {
        if (zip) zip_discard(zip);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    zip_t* zip = nullptr;
    std::string reason;
};

ZipReader::ZipReader(std::string bytes, std::string fileName, ZipLimits limits)
    : bytes_(std::move(bytes)), fileName_(std::move(fileName)), limits_(limits) {
    if (bytes_.starts_with(kCompoundFileMark)) {
        Refuse("is an older or a password-protected document, not a .docx file");
    }
    if (!bytes_.starts_with(kZipMark)) Refuse("is not a .docx file");
    archive_ = std::make_unique<Archive>(bytes_);
    if (!archive_->zip) Refuse("cannot be unpacked: " + archive_->reason);
    ListEntries();
}

ZipReader::~ZipReader() = default;

void ZipReader::Refuse(std::string_view reason) const {
    throw AutomationError(error::kFileDamaged, fmt::format("{} {}.", fileName_, reason));
}

void ZipReader::ListEntries() {
    const zip_int64_t count = zip_get_num_entries(archive_->zip, 0);
    if (count < 0 || static_cast<std::size_t>(count) > limits_.entries) {
        Refuse(fmt::format("holds more than {} parts", limits_.entries));
    }
    for (std::size_t index = 0; index < static_cast<std::size_t>(count); ++index) {
        const char* name = zip_get_name(archive_->zip, index, ZIP_FL_ENC_GUESS);
        if (name) indexByName_.try_emplace(LowerCase(name), index);
    }
}

bool ZipReader::Has(std::string_view name) const {
    return indexByName_.contains(LowerCase(name));
}

std::vector<std::string> ZipReader::Names() const {
    std::vector<std::string> names;
    const zip_int64_t count = zip_get_num_entries(archive_->zip, 0);
    for (zip_int64_t index = 0; index < count; ++index) {
        const char* name = zip_get_name(archive_->zip, static_cast<zip_uint64_t>(index), ZIP_FL_ENC_GUESS);
        if (name) names.emplace_back(name);
    }
    return names;
}

std::string ZipReader::Read(std::string_view name) {
    const auto found = indexByName_.find(LowerCase(name));
    if (found == indexByName_.end()) Refuse(fmt::format("lacks its part {}", name));
    return Inflate(found->second, name);
}

std::string ZipReader::Inflate(std::size_t index, std::string_view name) {
    zip_stat_t stat;
    const bool known = zip_stat_index(archive_->zip, index, 0, &stat) == 0;
    if (!known) Refuse(fmt::format("has a torn part {}", name));
    const std::size_t packed = std::min<std::size_t>(stat.comp_size, bytes_.size());
    const std::size_t byRatio = std::max(limits_.freeBytes, packed * limits_.ratio);
    const std::size_t limit = std::min({limits_.entryBytes, limits_.totalBytes - inflated_, byRatio});
    if (stat.size > limit) Refuse(fmt::format("has a part {} of unreasonable size", name));

    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(zip_fopen_index(archive_->zip, index, 0),
                                                                 &zip_fclose);
    if (!file) Refuse(fmt::format("has a part {} that cannot be unpacked", name));
    std::string out(stat.size, '\0');
    const zip_int64_t got = zip_fread(file.get(), out.data(), out.size());
    if (got < 0 || static_cast<std::size_t>(got) != out.size()) {
        Refuse(fmt::format("has a torn part {}", name));
    }
    // The check sum is compared only where the end is reached.
    char beyond = 0;
    if (zip_fread(file.get(), &beyond, 1) != 0) Refuse(fmt::format("has a torn part {}", name));
    inflated_ += out.size();
    return out;
}

std::string ReadWholeFile(const std::filesystem::path& file) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(file, failure)) {
        throw AutomationError(error::kFileNotFound, fmt::format("There is no file {}.", file.string()));
    }
    const std::uintmax_t size = std::filesystem::file_size(file, failure);
    std::ifstream in(file, std::ios::binary);
    if (failure || !in) {
        throw AutomationError(error::kPermissionDenied, fmt::format("{} cannot be read.", file.string()));
    }
    if (size > kLargestFile) {
        throw AutomationError(error::kFileDamaged, fmt::format("{} is too large.", file.string()));
    }
    std::string bytes(size, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return bytes;
}

}  // namespace quillmark::word::docx::zip
