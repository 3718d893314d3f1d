#include "word/docx/objects/bitmap.h"

#include <libdeflate.h>

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>

namespace quillmark::word::docx::objects {

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::uint64_t kMostPixels = 200'000'000;

std::uint32_t Little(std::string_view bytes, std::size_t at, std::size_t count = 4) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value |= std::uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
    return value;
}

void AppendBig(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>(value >> shift);
}

/// Where a colour stands in the bits of a pixel.
struct Channel {
    std::uint32_t mask = 0;

    char Of(std::uint32_t pixel) const {
        const std::uint64_t most = mask >> std::countr_zero(mask);
        const std::uint64_t value = (pixel & mask) >> std::countr_zero(mask);
        return static_cast<char>((value * 255 + most / 2) / most);
    }
};

struct Bitmap {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    bool isTopDown = false;
    unsigned bits = 0;
    std::uint32_t dotsPerMetreX = 0, dotsPerMetreY = 0;
    std::array<Channel, 3> colours = {};  ///< red, green, blue, where there is no palette
    std::string_view palette;             ///< four bytes a colour: blue, green, red, nothing
    std::string_view pixels;
    std::size_t stride = 0;

    bool HasPalette() const { return bits <= 8; }
    std::string_view Row(std::uint32_t row) const {
        const std::uint32_t stored = isTopDown ? row : height - 1 - row;
        return pixels.substr(stored * stride, stride);
    }
};

/// The colours' places, which pixels of 16 and 32 bits may give behind the header.
bool SetColours(Bitmap& bitmap, std::string_view bytes, bool hasMasks) {
    constexpr std::uint32_t kOfFive = 0x1F, kOfEight = 0xFF;
    const std::uint32_t one = bitmap.bits == 16 ? kOfFive : kOfEight;
    const int step = bitmap.bits == 16 ? 5 : 8;
    bitmap.colours = {Channel{one << (2 * step)}, Channel{one << step}, Channel{one}};
    if (!hasMasks) return true;
    if (bytes.size() < kFileHeader + kInfoHeader + 12 || bitmap.bits == 24) return false;
    for (std::size_t i = 0; i < 3; ++i)
        bitmap.colours[i].mask = Little(bytes, kFileHeader + kInfoHeader + 4 * i);
    return bitmap.colours[0].mask && bitmap.colours[1].mask && bitmap.colours[2].mask;
}

bool SetPalette(Bitmap& bitmap, std::string_view bytes, std::size_t header) {
    const std::size_t most = std::size_t{1} << bitmap.bits;
    const std::size_t used = Little(bytes, 46);
    const std::size_t size = 4 * (used > 0 ? used : most);
    if (used > most || bytes.size() < kFileHeader + header + size) return false;
    bitmap.palette = bytes.substr(kFileHeader + header, size);
    return true;
}

bool SetSize(Bitmap& bitmap, std::string_view bytes) {
    const auto width = static_cast<std::int32_t>(Little(bytes, 18));
    const auto height = static_cast<std::int32_t>(Little(bytes, 22));
    if (width <= 0 || height == 0) return false;
    bitmap.isTopDown = height < 0;
    bitmap.width = static_cast<std::uint32_t>(width);
    bitmap.height = static_cast<std::uint32_t>(std::abs(std::int64_t{height}));
    return std::uint64_t{bitmap.width} * bitmap.height <= kMostPixels;
}

std::optional<Bitmap> Read(std::string_view bytes) {
    constexpr std::uint32_t kPlain = 0, kMasks = 3;
    if (bytes.size() < kFileHeader + kInfoHeader || !bytes.starts_with("BM")) return {};
    Bitmap bitmap;
    const std::size_t header = Little(bytes, 14);
    const std::uint32_t packing = Little(bytes, 30);
    bitmap.bits = Little(bytes, 28, 2);
    const bool hasPalette = bitmap.bits == 1 || bitmap.bits == 4 || bitmap.bits == 8;
    const bool hasColours = bitmap.bits == 16 || bitmap.bits == 24 || bitmap.bits == 32;
    const bool isKnown =
        (hasPalette || hasColours) && (packing == kPlain || (packing == kMasks && hasColours));
    if (!isKnown || header < kInfoHeader || header > bytes.size() || !SetSize(bitmap, bytes)) return {};
    bitmap.dotsPerMetreX = Little(bytes, 38);
    bitmap.dotsPerMetreY = Little(bytes, 42);
    bitmap.stride = (std::uint64_t{bitmap.width} * bitmap.bits + 31) / 32 * 4;
    const std::size_t start = Little(bytes, 10);
    if (start > bytes.size() || bytes.size() - start < bitmap.stride * bitmap.height) return {};
    bitmap.pixels = bytes.substr(start);
    const bool isWhole =
        hasPalette ? SetPalette(bitmap, bytes, header) : SetColours(bitmap, bytes, packing == kMasks);
    return isWhole ? std::optional(bitmap) : std::nullopt;
}

/// The row as PNG has it. Bits of a palette are packed alike in both; colours stand the other way round.
std::string RowOf(const Bitmap& bitmap, std::uint32_t row) {
    const std::string_view stored = bitmap.Row(row);
    if (bitmap.HasPalette())
        return std::string(stored.substr(0, (std::uint64_t{bitmap.width} * bitmap.bits + 7) / 8));
    const std::size_t step = bitmap.bits / 8;
    std::string pixels;
    pixels.reserve(std::size_t{bitmap.width} * 3);
    for (std::size_t x = 0; x < bitmap.width; ++x) {
        const std::uint32_t pixel = Little(stored, x * step, step);
        for (const Channel& colour : bitmap.colours) pixels += colour.Of(pixel);
    }
    return pixels;
}

/// All rows, each behind its filter: colours as what they differ from those above, which packs well; numbers
/// of a palette as they are.
std::string FilteredRows(const Bitmap& bitmap) {
    constexpr char kNone = 0, kUp = 2;
    std::string rows, above;
    for (std::uint32_t row = 0; row < bitmap.height; ++row) {
        std::string pixels = RowOf(bitmap, row);
        const bool isUp = !bitmap.HasPalette() && row > 0;
        rows += isUp ? kUp : kNone;
        const std::size_t start = rows.size();
        rows += pixels;
        for (std::size_t i = 0; isUp && i < pixels.size(); ++i)
            rows[start + i] = static_cast<char>(pixels[i] - above[i]);
        above = std::move(pixels);
    }
    return rows;
}

std::string Packed(const std::string& bytes) {
    constexpr int kLevel = 6;
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(kLevel), libdeflate_free_compressor);
    if (!compressor) throw std::bad_alloc();
    std::string packed(libdeflate_zlib_compress_bound(compressor.get(), bytes.size()), '\0');
    packed.resize(
        libdeflate_zlib_compress(compressor.get(), bytes.data(), bytes.size(), packed.data(), packed.size()));
    return packed;
}

void AppendChunk(std::string& png, std::string_view kind, std::string_view data) {
    AppendBig(png, static_cast<std::uint32_t>(data.size()));
    const std::size_t start = png.size();
    png.append(kind).append(data);
    AppendBig(png, libdeflate_crc32(0, png.data() + start, png.size() - start));
}

std::string Header(const Bitmap& bitmap) {
    constexpr char kPalette = 3, kColours = 2;
    std::string header;
    AppendBig(header, bitmap.width);
    AppendBig(header, bitmap.height);
    header += static_cast<char>(bitmap.HasPalette() ? bitmap.bits : 8);
    header += bitmap.HasPalette() ? kPalette : kColours;
    header.append(3, '\0');
    return header;
}

/// Black for numbers that the bitmap's own palette leaves out, since a PNG with such numbers is torn.
std::string Palette(const Bitmap& bitmap) {
    std::string palette;
    for (std::size_t at = 0; at + 4 <= bitmap.palette.size(); at += 4)
        for (const std::size_t colour : {2u, 1u, 0u}) palette += bitmap.palette[at + colour];
    palette.resize(std::size_t{3} << bitmap.bits, '\0');
    return palette;
}

}  // namespace

std::optional<std::string> PngOfBitmap(std::string_view bytes) {
    const std::optional<Bitmap> bitmap = Read(bytes);
    if (!bitmap) return {};
    std::string png = "\x89PNG\r\n\x1a\n";
    AppendChunk(png, "IHDR", Header(*bitmap));
    if (bitmap->dotsPerMetreX > 0 && bitmap->dotsPerMetreY > 0) {
        std::string resolution;
        AppendBig(resolution, bitmap->dotsPerMetreX);
        AppendBig(resolution, bitmap->dotsPerMetreY);
        AppendChunk(png, "pHYs", resolution + '\1');
    }
    if (bitmap->HasPalette()) AppendChunk(png, "PLTE", Palette(*bitmap));
    AppendChunk(png, "IDAT", Packed(FilteredRows(*bitmap)));
    AppendChunk(png, "IEND", {});
    return png;
}

}  // namespace quillmark::word::docx::objects
