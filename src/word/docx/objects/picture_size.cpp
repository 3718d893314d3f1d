#include "word/docx/objects/picture_size.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "word/seam/automation.h"

namespace quillmark::word::docx::objects {

namespace {

constexpr double kEmuPerInch = 914400.0;
constexpr double kMetresPerInch = 0.0254;
constexpr double kCentimetresPerInch = 2.54;

[[noreturn]] void Fail(std::string_view kind, std::string_view what) {
    throw AutomationError(error::kFileDamaged, fmt::format("The {} picture {}.", kind, what));
}

/// Reads numbers out of a picture; beyond its end the picture is torn.
class Reader {
 public:
    Reader(std::string_view bytes, std::string_view kind) : bytes_(bytes), kind_(kind) {}

    std::uint32_t Big(std::size_t at, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i) value = value << 8 | Byte(at + i);
        return value;
    }
    std::uint32_t Little(std::size_t at, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = size; i-- > 0;) value = value << 8 | Byte(at + i);
        return value;
    }
    std::uint8_t Byte(std::size_t at) const {
        if (at >= bytes_.size()) Fail(kind_, "ends too early");
        return static_cast<std::uint8_t>(bytes_[at]);
    }
    std::string_view Slice(std::size_t at, std::size_t size) const {
        return at <= bytes_.size() ? bytes_.substr(at, size) : std::string_view();
    }
    void NeedsBytes(std::uint64_t size) const {
        if (bytes_.size() < size) Fail(kind_, "ends too early");
    }
    std::size_t size() const { return bytes_.size(); }

 private:
    std::string_view bytes_;
    std::string_view kind_;
};

/// Puts in the pixels, which must be at least one and a number that a picture can have.
void SetPixels(PictureSize& size, std::int64_t width, std::int64_t height) {
    constexpr std::int64_t kMostPixels = 1'000'000;
    const auto sensible = [](std::int64_t pixels) { return pixels >= 1 && pixels <= kMostPixels; };
    if (!sensible(width) || !sensible(height)) {
        Fail(size.extension, fmt::format("has the impossible size of {} by {}", width, height));
    }
    size.width = static_cast<int>(width);
    size.height = static_cast<int>(height);
}

/// A resolution of nothing, or of less than one dot to the inch, is none.
void SetResolution(PictureSize& size, double x, double y) {
    if (x < 1.0 || y < 1.0) return;
    size.dotsPerInchX = x;
    size.dotsPerInchY = y;
}

std::string Utf8OfLatin1(std::string_view latin1) {
    std::string utf8;
    for (const char c : latin1) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x20) continue;
        if (code < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0 | code >> 6);
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1a\n";

PictureSize ReadPng(std::string_view bytes) {
    const Reader png(bytes, "PNG");
    PictureSize size = {.extension = "png"};
    constexpr std::size_t kChunkFrame = 12;  // length, name and check sum
    constexpr std::string_view kDescription("Description\0", 12);
    bool hasImage = false;
    for (std::size_t at = kPngSignature.size();;) {
        const std::uint32_t length = png.Big(at, 4);
        const std::string_view name = png.Slice(at + 4, 4);
        png.NeedsBytes(std::uint64_t{at} + kChunkFrame + length);
        const std::size_t data = at + 8;
        if (name == "IHDR" && length >= 8) SetPixels(size, png.Big(data, 4), png.Big(data + 4, 4));
        if (name == "pHYs" && length >= 9 && png.Byte(data + 8) == 1) {
            SetResolution(size, png.Big(data, 4) * kMetresPerInch, png.Big(data + 4, 4) * kMetresPerInch);
        }
        const std::string_view text = name == "tEXt" ? png.Slice(data, length) : std::string_view();
        if (text.starts_with(kDescription)) size.description = Utf8OfLatin1(text.substr(kDescription.size()));
        hasImage = hasImage || name == "IDAT";
        if (name == "IEND") break;
        at += kChunkFrame + length;
    }
    if (size.width == 0 || !hasImage) Fail("PNG", "holds no image");
    return size;
}

bool IsJpegFrame(std::uint8_t marker) {
    const bool table = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && !table;
}

void ReadJfif(PictureSize& size, const Reader& jpeg, std::size_t data) {
    if (jpeg.Slice(data, 5) != std::string_view("JFIF\0", 5)) return;
    const std::uint8_t unit = jpeg.Byte(data + 7);
    const double scale = unit == 1 ? 1.0 : unit == 2 ? kCentimetresPerInch : 0.0;
    SetResolution(size, jpeg.Big(data + 8, 2) * scale, jpeg.Big(data + 10, 2) * scale);
}

PictureSize ReadJpeg(std::string_view bytes) {
    const Reader jpeg(bytes, "JPEG");
    PictureSize size = {.extension = "jpeg"};
    constexpr std::uint8_t kFill = 0xFF, kScan = 0xDA, kFirstApplication = 0xE0;
    for (std::size_t at = 2;;) {
        if (jpeg.Byte(at) != kFill) Fail("JPEG", "is damaged");
        const std::uint8_t marker = jpeg.Byte(at + 1);
        if (marker == kFill) {
            ++at;
            continue;
        }
        const std::uint32_t length = jpeg.Big(at + 2, 2);
        if (length < 2) Fail("JPEG", "is damaged");
        jpeg.NeedsBytes(std::uint64_t{at} + 2 + length);
        const std::size_t data = at + 4;
        if (marker == kFirstApplication && length >= 14) ReadJfif(size, jpeg, data);
        if (IsJpegFrame(marker) && length >= 7) SetPixels(size, jpeg.Big(data + 3, 2), jpeg.Big(data + 1, 2));
        at += 2 + length;
        if (marker != kScan) continue;
        if (size.width == 0) Fail("JPEG", "holds no image");
        if (bytes.find("\xFF\xD9", at) == std::string_view::npos) Fail("JPEG", "ends too early");
        return size;
    }
}

/// Rows of an uncompressed bitmap fill up to four bytes each.
void CheckBitmapLength(const Reader& bmp, const PictureSize& size, std::size_t header) {
    const std::uint32_t compression = bmp.Little(header + 16, 4);
    constexpr std::uint32_t kUncompressed = 0, kBitFields = 3;
    if (compression != kUncompressed && compression != kBitFields) return;
    const std::uint64_t bits = bmp.Little(header + 14, 2);
    const std::uint64_t row = (static_cast<std::uint64_t>(size.width) * bits + 31) / 32 * 4;
    bmp.NeedsBytes(bmp.Little(10, 4) + row * static_cast<std::uint64_t>(size.height));
}

PictureSize ReadBmp(std::string_view bytes) {
    const Reader bmp(bytes, "BMP");
    PictureSize size = {.extension = "bmp"};
    constexpr std::size_t kHeader = 14;
    constexpr std::uint32_t kOldestHeader = 12, kCommonHeader = 40;
    const std::uint32_t headerSize = bmp.Little(kHeader, 4);
    if (headerSize == kOldestHeader) {
        SetPixels(size, bmp.Little(kHeader + 4, 2), bmp.Little(kHeader + 6, 2));
        return size;
    }
    if (headerSize < kCommonHeader) Fail("BMP", "is damaged");
    const auto width = static_cast<std::int32_t>(bmp.Little(kHeader + 4, 4));
    // A negative height means that the rows run downwards.
    const std::int64_t height = static_cast<std::int32_t>(bmp.Little(kHeader + 8, 4));
    SetPixels(size, width, std::abs(height));
    SetResolution(size, bmp.Little(kHeader + 24, 4) * kMetresPerInch,
                  bmp.Little(kHeader + 28, 4) * kMetresPerInch);
    CheckBitmapLength(bmp, size, kHeader);
    return size;
}

std::int64_t Emu(int pixels, double dotsPerInch) {
    return std::max<std::int64_t>(1, std::llround(pixels * kEmuPerInch / dotsPerInch));
}

}  // namespace

std::int64_t PictureSize::WidthEmu() const {
    return Emu(width, dotsPerInchX);
}
std::int64_t PictureSize::HeightEmu() const {
    return Emu(height, dotsPerInchY);
}

PictureSize ReadPictureSize(std::string_view bytes) {
    if (bytes.starts_with(kPngSignature)) return ReadPng(bytes);
    if (bytes.starts_with("\xFF\xD8")) return ReadJpeg(bytes);
    if (bytes.starts_with("BM")) return ReadBmp(bytes);
    throw AutomationError(error::kFileDamaged, "The picture is none of the kinds PNG, JPEG and BMP.");
}

}  // namespace quillmark::word::docx::objects
