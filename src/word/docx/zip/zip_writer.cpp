#include "word/docx/zip/zip_writer.h"

#include <fmt/format.h>
#include <libdeflate.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <vector>

namespace quillmark::word::docx::zip {

namespace {

constexpr int kCompressionLevel = 6;
constexpr std::uint16_t kStored = 0;
constexpr std::uint16_t kDeflated = 8;
constexpr std::uint16_t kNeededVersion = 20;
constexpr std::uint16_t kUtf8Names = 0x0800;
constexpr std::uint16_t kMidnight = 0;
constexpr std::uint16_t kFirstOfJanuary1980 = 0x0021;
constexpr std::size_t kMostEntries = 65534;
constexpr std::size_t kLongestName = 65535;
constexpr std::uint64_t kLargest = std::numeric_limits<std::uint32_t>::max() - 1;

struct Placed {
    const ZipEntry* entry = nullptr;
    std::uint16_t method = kStored;
    std::uint32_t crc = 0;
    std::uint32_t packedSize = 0;
    std::uint32_t offset = 0;
};

template <class Number>
void Append(std::string& out, Number value) {
    for (std::size_t i = 0; i < sizeof value; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

std::uint32_t Fitting(std::uint64_t value, std::string_view what) {
    if (value > kLargest) throw std::length_error(fmt::format("{} is larger than 4 GB", what));
    return static_cast<std::uint32_t>(value);
}

bool IsCompressedPicture(std::string_view name) {
    return name.ends_with(".png") || name.ends_with(".jpeg") || name.ends_with(".jpg");
}

bool IsAscii(std::string_view name) {
    for (const char c : name) {
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    }
    return true;
}

/// The fields that a file's own header and its line in the directory share, in their order.
void AppendShared(std::string& out, const Placed& placed) {
    const ZipEntry& entry = *placed.entry;
    Append(out, kNeededVersion);
    Append(out, IsAscii(entry.name) ? std::uint16_t{0} : kUtf8Names);
    Append(out, placed.method);
    Append(out, kMidnight);
    Append(out, kFirstOfJanuary1980);
    Append(out, placed.crc);
    Append(out, placed.packedSize);
    Append(out, static_cast<std::uint32_t>(entry.bytes.size()));
    Append(out, static_cast<std::uint16_t>(entry.name.size()));
    Append(out, std::uint16_t{0});
}

class Archive {
 public:
    explicit Archive(std::span<const ZipEntry> entries)
        : compressor_(libdeflate_alloc_compressor(kCompressionLevel)) {
        if (!compressor_) throw std::bad_alloc();
        placed_.reserve(entries.size());
    }

    void Add(const ZipEntry& entry) {
        if (entry.name.size() > kLongestName) throw std::length_error("a part's name is too long");
        Fitting(entry.bytes.size(), entry.name);
        Placed placed = {.entry = &entry, .offset = Fitting(out_.size(), "the document")};
        placed.crc = libdeflate_crc32(0, entry.bytes.data(), entry.bytes.size());
        Pack(entry, placed);
        Append(out_, std::uint32_t{0x04034b50});
        AppendShared(out_, placed);
        out_ += entry.name;
        out_ +=
            placed.method == kStored ? entry.bytes : std::string_view(packed_).substr(0, placed.packedSize);
        placed_.push_back(placed);
    }

    std::string Finish() {
        const std::uint32_t start = Fitting(out_.size(), "the document");
        for (const Placed& placed : placed_) AppendDirectoryLine(placed);
        const std::uint32_t size = Fitting(out_.size(), "the document") - start;
        Append(out_, std::uint32_t{0x06054b50});
        Append(out_, std::uint32_t{0});  // the only disk of the archive
        Append(out_, static_cast<std::uint16_t>(placed_.size()));
        Append(out_, static_cast<std::uint16_t>(placed_.size()));
        Append(out_, size);
        Append(out_, start);
        Append(out_, std::uint16_t{0});
        return std::move(out_);
    }

 private:
    /// Leaves the deflated bytes in packed_ when they are fewer.
    void Pack(const ZipEntry& entry, Placed& placed) {
        const std::size_t size = entry.bytes.size();
        placed.packedSize = static_cast<std::uint32_t>(size);
        if (IsCompressedPicture(entry.name) || size == 0) return;
        if (packed_.size() < size) packed_.resize(size);
        const std::size_t packed = libdeflate_deflate_compress(compressor_.get(), entry.bytes.data(), size,
                                                               packed_.data(), size - 1);
        if (packed == 0) return;
        placed.method = kDeflated;
        placed.packedSize = static_cast<std::uint32_t>(packed);
    }

    void AppendDirectoryLine(const Placed& placed) {
        Append(out_, std::uint32_t{0x02014b50});
        Append(out_, kNeededVersion);
        AppendShared(out_, placed);
        Append(out_, std::uint32_t{0});  // no comment, the only disk
        Append(out_, std::uint16_t{0});  // no attributes, neither internal
        Append(out_, std::uint32_t{0});  // nor external
        Append(out_, placed.offset);
        out_ += placed.entry->name;
    }

    struct FreeCompressor {
        void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
    };
    std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor_;
    std::string packed_;
    std::string out_;
    std::vector<Placed> placed_;
};

}  // namespace

std::string WriteZip(std::span<const ZipEntry> entries) {
    if (entries.size() > kMostEntries) throw std::length_error("the document has too many parts");
    Archive archive(entries);
    for (const ZipEntry& entry : entries) archive.Add(entry);
    return archive.Finish();
}

}  // namespace quillmark::word::docx::zip
