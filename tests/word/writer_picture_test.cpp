#include <gtest/gtest.h>
#include <libdeflate.h>

#include <fmt/format.h>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <random>

#include "word/docx/objects/bitmap.h"
#include "word/docx/objects/picture_size.h"
#include "word/docx/objects/pictures.h"
#include "word/seam/automation.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using namespace std::string_literals;

std::string Big(std::uint32_t value, int size) {
    std::string bytes;
    for (int i = size - 1; i >= 0; --i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

std::string Little(std::uint64_t value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

std::string PngWithResolution(int width, int height, std::uint32_t dotsPerMetre, char unit) {
    std::string png = test::PngBytes(width, height);
    const std::size_t image = png.find("IDAT") - 4;
    return png.insert(image,
                      Big(9, 4) + "pHYs" + Big(dotsPerMetre, 4) + Big(dotsPerMetre, 4) + unit + "sum!");
}

std::string Jpeg(int width, int height, int unit, int density) {
    return "\xFF\xD8\xFF\xE0"s + Big(16, 2) + "JFIF\0\1\2"s + Big(unit, 1) + Big(density, 2) +
           Big(density, 2) + "\0\0"s + "\xFF\xDB"s + Big(4, 2) + "tt\xFF\xFF\xC4"s + Big(4, 2) +
           "hh\xFF\xC2"s + Big(11, 2) + "\x08" + Big(height, 2) + Big(width, 2) + "\1\1\x11\0"s +
           "\xFF\xDA"s + Big(4, 2) + "ss" + "scan\xFF\0data"s + "\xFF\xD9";
}

std::string Bmp(int width, int height, int bits, std::uint32_t dotsPerMetre) {
    const int row = (width * bits + 31) / 32 * 4;
    const std::string pixels(static_cast<std::size_t>(row * std::abs(height)), 'p');
    return "BM" + Little(54 + static_cast<std::uint32_t>(pixels.size()), 4) + Little(0, 4) + Little(54, 4) +
           Little(40, 4) + Little(static_cast<std::uint32_t>(width), 4) +
           Little(static_cast<std::uint32_t>(height), 4) + Little(1, 2) +
           Little(static_cast<std::uint32_t>(bits), 2) + Little(0, 8) + Little(dotsPerMetre, 4) +
           Little(dotsPerMetre, 4) + Little(0, 8) + pixels;
}

TEST(PictureSize, ReadsPixelsAndResolutionOfEachKind) {
    struct Case {
        std::string bytes;
        std::string extension;
        int width, height;
        std::int64_t widthEmu, heightEmu;
    };
    const Case cases[] = {
        {test::PngBytes(96, 48), "png", 96, 48, 914400, 457200},
        {PngWithResolution(600, 300, 11811, 1), "png", 600, 300, 1828808, 914404},  // 300 dots to the inch
        {PngWithResolution(96, 96, 1, 0), "png", 96, 96, 914400, 914400},           // a ratio only
        {Jpeg(640, 480, 1, 72), "jpeg", 640, 480, 8128000, 6096000},
        {Jpeg(100, 200, 2, 50), "jpeg", 100, 200, 720000, 1440000},
        {Jpeg(96, 96, 0, 1), "jpeg", 96, 96, 914400, 914400},
        {Bmp(96, 192, 24, 0), "bmp", 96, 192, 914400, 1828800},
        {Bmp(33, -10, 1, 3780), "bmp", 33, 10, 314286, 95238},
    };
    for (const Case& row : cases) {
        const objects::PictureSize size = objects::ReadPictureSize(row.bytes);
        EXPECT_EQ(size.extension, row.extension);
        EXPECT_EQ(size.width, row.width);
        EXPECT_EQ(size.height, row.height);
        EXPECT_NEAR(static_cast<double>(size.WidthEmu()), static_cast<double>(row.widthEmu), 40.0);
        EXPECT_NEAR(static_cast<double>(size.HeightEmu()), static_cast<double>(row.heightEmu), 40.0);
    }
}

TEST(PictureSize, DescriptionOfAPngReachesTheDocument) {
    std::string png = test::PngBytes(96, 48);
    const std::string text = "Description\0A caf\xE9 & its door"s;
    png.insert(png.find("IDAT") - 4,
               Big(static_cast<std::uint32_t>(text.size()), 4) + "tEXt" + text + "sum!");
    EXPECT_EQ(objects::ReadPictureSize(png).description, "A café & its door");

    const auto document = test::EmptyDocument();
    test::Insert(*document, test::AddParagraph(*document, document->body), objects::MakePicture(png));
    const std::string xml = test::PartOf(*document, "word/document.xml");
    EXPECT_NE(xml.find(R"(<wp:docPr id="1" name="Picture 1" descr="A café &amp; its door"/>)"),
              std::string::npos)
        << xml;
}

// ---- Bitmaps become PNG ----

/// A bitmap of three pixels by two: red, green, blue over white, black, grey (of 255, 0 and 128), or what
/// comes nearest in so many bits.
std::string ColourBitmap(int bits, bool isTopDown, bool hasMasks) {
    using Pixels = std::array<std::uint32_t, 3>;
    const bool isPalette = bits <= 8;
    Pixels upper = {0, 1, 2}, lower = {3, 4, 5};
    if (bits == 16) upper = {31 << 10, 31 << 5, 31}, lower = {0x7FFF, 0, 16 << 10 | 16 << 5 | 16};
    if (bits == 16 && hasMasks) upper = {31 << 11, 63 << 5, 31}, lower = {0xFFFF, 0, 16 << 11 | 32 << 5 | 16};
    if (bits >= 24) upper = {0xFF0000, 0xFF00, 0xFF}, lower = {0xFFFFFF, 0, 0x808080};
    if (bits == 32 && hasMasks) upper = {0xFF, 0xFF00, 0xFF0000};
    const auto rowOf = [&](const Pixels& pixels) {
        std::uint64_t packed = 0;
        std::string row;
        for (std::uint32_t pixel : pixels) packed = packed << bits | pixel;
        if (bits == 4)
            row = Big(static_cast<std::uint32_t>(packed << 4), 2);
        else
            for (std::uint32_t pixel : pixels) row += Little(pixel, bits / 8);
        row.resize((row.size() + 3) / 4 * 4);
        return row;
    };
    std::string masks, palette;
    if (hasMasks && bits == 16) masks = Little(0xF800, 4) + Little(0x7E0, 4) + Little(0x1F, 4);
    if (hasMasks && bits == 32) masks = Little(0xFF, 4) + Little(0xFF00, 4) + Little(0xFF0000, 4);
    for (std::uint32_t colour : {0xFF0000, 0xFF00, 0xFF, 0xFFFFFF, 0, 0x808080})
        if (isPalette) palette += Little(colour, 4);
    const std::string pixels = isTopDown ? rowOf(upper) + rowOf(lower) : rowOf(lower) + rowOf(upper);
    const std::size_t start = 54 + masks.size() + palette.size();
    return "BM" + Little(start + pixels.size(), 4) + Little(0, 4) + Little(start, 4) + Little(40, 4) +
           Little(3, 4) + Little(static_cast<std::uint32_t>(isTopDown ? -2 : 2), 4) + Little(1, 2) +
           Little(static_cast<std::uint64_t>(bits), 2) + Little(hasMasks ? 3 : 0, 4) + Little(0, 4) +
           Little(3780, 4) + Little(3780, 4) + Little(palette.size() / 4, 4) + Little(0, 4) + masks +
           palette + pixels;
}

std::uint32_t BigAt(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
    return value;
}

/// The chunks of a PNG by name, each with a right check sum.
std::map<std::string, std::string> ChunksOf(const std::string& png) {
    std::map<std::string, std::string> chunks;
    for (std::size_t at = 8; at < png.size();) {
        const std::size_t length = BigAt(png, at);
        EXPECT_EQ(libdeflate_crc32(0, png.data() + at + 4, length + 4), BigAt(png, at + 8 + length));
        chunks[png.substr(at + 4, 4)] = png.substr(at + 8, length);
        at += 12 + length;
    }
    return chunks;
}

/// The pixels as six hexadecimal digits each, row by row; of the filters only those in use are known.
std::string PixelsOf(const std::string& png) {
    auto chunks = ChunksOf(png);
    const unsigned width = BigAt(chunks["IHDR"], 0), height = BigAt(chunks["IHDR"], 4);
    const unsigned bits = static_cast<unsigned>(chunks["IHDR"][8]);
    const bool isPalette = chunks["IHDR"][9] == 3;
    const std::size_t stride = isPalette ? (width * bits + 7) / 8 : std::size_t{width} * 3;
    std::string rows((stride + 1) * height, '\0'), above(stride, '\0'), pixels;
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> unpacker(
        libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
    EXPECT_EQ(libdeflate_zlib_decompress(unpacker.get(), chunks["IDAT"].data(), chunks["IDAT"].size(),
                                         rows.data(), rows.size(), nullptr),
              LIBDEFLATE_SUCCESS);
    for (std::size_t y = 0; y < height; ++y) {
        std::string row = rows.substr(y * (stride + 1) + 1, stride);
        const char filter = rows[y * (stride + 1)];
        EXPECT_TRUE(filter == 0 || filter == 2);
        for (std::size_t i = 0; i < stride && filter == 2; ++i) row[i] = static_cast<char>(row[i] + above[i]);
        for (std::size_t x = 0; x < width; ++x) {
            const auto packed = static_cast<unsigned char>(row[isPalette ? x * bits / 8 : 3 * x]);
            const std::size_t number = packed >> (8 - bits - x * bits % 8) & ((1u << bits) - 1);
            const std::string_view colour = isPalette ? std::string_view(chunks["PLTE"]).substr(3 * number, 3)
                                                      : std::string_view(row).substr(3 * x, 3);
            for (const char c : colour) pixels += fmt::format("{:02x}", static_cast<unsigned char>(c));
            pixels += ' ';
        }
        above = row;
    }
    return pixels;
}

TEST(PictureBitmap, BecomesAPngOfTheSamePixels) {
    const std::string full = "ff0000 00ff00 0000ff ffffff 000000 808080 ";
    const std::string fiveBits = "ff0000 00ff00 0000ff ffffff 000000 848484 ";
    const std::string sixBits = "ff0000 00ff00 0000ff ffffff 000000 848284 ";
    struct Case {
        int bits;
        bool isTopDown, hasMasks;
        std::string pixels;
    };
    for (const Case& row :
         {Case{4, false, false, full}, Case{8, true, false, full}, Case{24, false, false, full},
          Case{32, true, false, full}, Case{32, false, true, full}, Case{16, false, false, fiveBits},
          Case{16, false, true, sixBits}}) {
        const std::string bitmap = ColourBitmap(row.bits, row.isTopDown, row.hasMasks);
        const std::optional<std::string> png = objects::PngOfBitmap(bitmap);
        ASSERT_TRUE(png) << row.bits;
        EXPECT_EQ(PixelsOf(*png), row.pixels) << row.bits;
        const objects::PictureSize as = objects::ReadPictureSize(*png),
                                   was = objects::ReadPictureSize(bitmap);
        EXPECT_EQ(as.WidthEmu(), was.WidthEmu());
        EXPECT_EQ(as.HeightEmu(), was.HeightEmu());
        for (std::size_t length = 0; length < bitmap.size(); ++length)
            EXPECT_FALSE(objects::PngOfBitmap(bitmap.substr(0, length))) << row.bits << " torn at " << length;
    }
}

TEST(PictureBitmap, NumbersBeyondItsPaletteAreBlack) {
    std::string bitmap = ColourBitmap(8, false, false);
    bitmap[bitmap.size() - 2] = '\xEE';
    EXPECT_EQ(PixelsOf(*objects::PngOfBitmap(bitmap)), "ff0000 00ff00 000000 ffffff 000000 808080 ");
}

TEST(PictureBitmap, DamagedOnesNeverReadBeyondTheirEnd) {
    std::mt19937 random(7);
    for (int round = 0; round < 4000; ++round) {
        std::string damaged = ColourBitmap(round % 2 ? 8 : 16, round % 3 == 0, round % 2 == 0);
        for (int n = 0; n < 3; ++n)
            damaged[2 + random() % (damaged.size() - 2)] = static_cast<char>(random());
        if (const auto png = objects::PngOfBitmap(damaged)) EXPECT_NO_THROW(objects::ReadPictureSize(*png));
    }
}

TEST(PictureSize, EveryTornPictureIsRefused) {
    for (const std::string& whole :
         {test::PngBytes(4, 4), PngWithResolution(4, 4, 3780, 1), Jpeg(4, 4, 1, 96), Bmp(4, 4, 24, 0)}) {
        EXPECT_NO_THROW(objects::ReadPictureSize(whole));
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const std::string torn = whole.substr(0, length);
            EXPECT_THROW(objects::ReadPictureSize(torn), AutomationError)
                << whole.substr(0, 4) << " of " << length << " bytes";
        }
    }
}

TEST(PictureSize, DamagedPicturesAreReadOrRefused) {
    std::mt19937 random(5);
    for (const std::string& whole : {PngWithResolution(4, 4, 3780, 1), Jpeg(4, 4, 1, 96), Bmp(4, 4, 24, 0)}) {
        for (int round = 0; round < 2000; ++round) {
            std::string damaged = whole;
            for (int n = 0; n < 3; ++n)
                damaged[2 + random() % (damaged.size() - 2)] = static_cast<char>(random());
            try {
                const objects::PictureSize size = objects::ReadPictureSize(damaged);
                ASSERT_GT(std::min(size.WidthEmu(), size.HeightEmu()), 0) << round;
            } catch (const AutomationError&) {
            }
        }
    }
}

TEST(PictureSize, RefusesOtherFilesAndImpossibleSizes) {
    const std::string broken[] = {"GIF89a",
                                  "",
                                  "a text",
                                  test::PngBytes(0, 5),
                                  test::PngBytes(-1, 5),
                                  Bmp(0, 4, 24, 0),
                                  Jpeg(0, 9, 1, 96),
                                  "\xFF\xD8" + std::string(40, 'j')};
    for (const std::string& bytes : broken) {
        try {
            objects::ReadPictureSize(bytes);
            ADD_FAILURE() << "accepted " << bytes.substr(0, 4);
        } catch (const AutomationError& refusal) {
            EXPECT_EQ(refusal.number(), error::kFileDamaged);
        }
    }
}

}  // namespace
}  // namespace quillmark::word::docx
