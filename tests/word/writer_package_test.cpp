#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <random>
#include <stdexcept>

#include "support/scratch.h"
#include "word/docx/check/package_check.h"
#include "word/docx/write/document_writer.h"
#include "word/docx/xml/xml_writer.h"
#include "word/docx/zip/zip_reader.h"
#include "word/docx/zip/zip_writer.h"
#include "word/seam/automation.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

namespace fs = std::filesystem;

std::string Random(std::mt19937& random, std::size_t length) {
    std::string bytes;
    for (std::size_t i = 0; i < length; ++i) bytes += static_cast<char>(random() & 0xFF);
    return bytes;
}

TEST(XmlWriter, EscapesWhatIsMarkupAndClosesWhatIsEmpty) {
    xml::XmlWriter xml;
    xml.Open("a");
    xml.Attribute("x", "1 < \"2\" & 3\n\t");
    xml.Attribute("n", -7);
    xml.Empty("b");
    xml.Element("c", "\"5\" > 4 & 3 < 4 \r");
    xml.Close();
    EXPECT_EQ(xml.Take(),
              "<a x=\"1 &lt; &quot;2&quot; &amp; 3&#10;&#9;\" n=\"-7\"><b/>"
              "<c>\"5\" &gt; 4 &amp; 3 &lt; 4 &#13;</c></a>");
}

TEST(XmlWriter, KeepsGoodCharactersAndLetsNoBadOnesOut) {
    xml::XmlWriter xml;
    // Two of the characters that XML forbids, a broken sequence, an overlong one, a surrogate, one too large.
    xml.Text("caf\xC3\xA9 \xF0\x9F\x8F\xA0|\x02\xEF\xBF\xBE|\xC3(|\xC0\xAF|\xED\xA0\x80|\xF5\x80|\xE2\x82");
    const std::string bad = "\xEF\xBF\xBD";
    EXPECT_EQ(xml.Take(), "caf\xC3\xA9 \xF0\x9F\x8F\xA0||" + bad + "(|" + bad + bad + "|" + bad + bad + bad +
                              "|" + bad + bad + "|" + bad + bad);
}

TEST(XmlWriter, AnyBytesGiveReadableXml) {
    std::mt19937 random(20260107);
    for (int round = 0; round < 500; ++round) {
        const std::string bytes = Random(random, random() % 64);
        xml::XmlWriter xml;
        xml.Open("a");
        xml.Attribute("x", bytes);
        xml.Text(bytes);
        xml.Close();
        const std::string text = xml.Take();
        pugi::xml_document parsed;
        ASSERT_TRUE(parsed.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata))
            << round;
        for (const char c : std::string_view(parsed.child("a").text().get())) {
            ASSERT_FALSE(static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r')
                << round;
        }
    }
}

TEST(ZipWriter, GivesBackEveryFileInItsOrder) {
    std::mt19937 random(7);
    const std::string noise = Random(random, 5000), text(100'000, 'x');
    const std::vector<zip::ZipEntry> entries = {{"[Content_Types].xml", text}, {"empty.xml", ""},
                                                {"noise.bin", noise},          {"media/a.png", text},
                                                {"media/b.bmp", text},         {"caf\xC3\xA9.xml", "<a/>"}};
    const std::string archive = zip::WriteZip(entries);
    EXPECT_EQ(archive, zip::WriteZip(entries));
    zip::ZipReader reader(archive, "The archive");
    std::vector<std::string> names;
    for (const zip::ZipEntry& entry : entries) {
        names.push_back(entry.name);
        EXPECT_EQ(reader.Read(entry.name), entry.bytes) << entry.name;
    }
    EXPECT_EQ(reader.Names(), names);
    // One picture is stored as it is; everything else that can be packed is.
    EXPECT_GT(archive.size(), text.size());
    EXPECT_LT(archive.size(), text.size() + noise.size() + 3000);
    EXPECT_EQ(zip::ZipReader(zip::WriteZip({}) + "", "Nothing").Names().size(), 0u);
}

TEST(ZipWriter, RefusesWhatThePlainFormatCannotHold) {
    const std::vector<zip::ZipEntry> many(65'535, zip::ZipEntry{"a", ""});
    EXPECT_THROW(zip::WriteZip(many), std::length_error);
    EXPECT_THROW(zip::WriteZip(std::vector<zip::ZipEntry>{{std::string(70'000, 'n'), ""}}),
                 std::length_error);
    const std::string small = "x";
    // The size is looked at before any of the bytes are.
    const std::string_view huge(small.data(), std::size_t{1} << 32);
    EXPECT_THROW(zip::WriteZip(std::vector<zip::ZipEntry>{{"huge.xml", huge}}), std::length_error);
}

TEST(SaveDocx, ReplacesTheFileWithTheSamePackage) {
    const quillmark::test::ScratchFolder folder;
    const auto document = test::SampleDocument();
    const fs::path file = folder / "Smith - 1 Any Street_QMF.docx";
    quillmark::test::WriteBytes(file, "an older one");
    write::SaveDocx(*document, file);
    EXPECT_EQ(quillmark::test::ReadBytes(file), write::WriteDocx(*document));
    EXPECT_EQ(write::WriteDocx(*document), write::WriteDocx(*test::SampleDocument()));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

TEST(SaveDocx, FailsWithTheNumbersOfTheModel) {
    const quillmark::test::ScratchFolder folder;
    const auto document = test::SampleDocument();
    const auto numberFor = [&](const fs::path& file) {
        try {
            write::SaveDocx(*document, file);
        } catch (const AutomationError& failure) {
            EXPECT_NE(std::string(failure.what()).find(file.filename().string()), std::string::npos)
                << failure.what();
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(numberFor(folder / "no such folder/deed.docx"), error::kPathNotFound);
    fs::create_directory(folder / "deed.docx");
    EXPECT_EQ(numberFor(folder / "deed.docx"), error::kPermissionDenied);
}

}  // namespace
}  // namespace quillmark::word::docx
