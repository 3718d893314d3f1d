#include <gtest/gtest.h>

#include <random>

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
