#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "support/scratch.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/docx/zip/zip_reader.h"
#include "word/reader_dump.h"
#include "word/seam/automation.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using testing::AllOf;
using testing::HasSubstr;

/// The number and the text of the refusal; 0 when the document opens.
std::pair<int, std::string> Refusal(const std::string& bytes) {
    try {
        read::OpenDocxBytes(bytes, "deed.docx");
    } catch (const AutomationError& refusal) {
        return {refusal.number(), refusal.what()};
    }
    return {0, ""};
}

void ExpectDamage(const std::string& bytes, const std::string& reason) {
    const auto [number, text] = Refusal(bytes);
    EXPECT_EQ(number, error::kFileDamaged);
    EXPECT_THAT(text, AllOf(HasSubstr("deed.docx"), HasSubstr(reason)));
}

std::string WithPart(const std::string& name, const std::string& bytes) {
    test::Parts parts = test::Unzip(test::BareDocx{.body = "<w:p/>"}.Bytes());
    parts[name] = bytes;
    return test::Zip(parts);
}

TEST(ReaderDamage, FilesThatAreNoDocument) {
    ExpectDamage("", "is not a .docx file");
    ExpectDamage("{\\rtf1 text}", "is not a .docx file");
    ExpectDamage("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", "older or a password-protected");
    ExpectDamage("PK\x03\x04 and no more", "cannot be unpacked");
    ExpectDamage(test::Zip({{"readme.txt", "hello"}}), "[Content_Types].xml");
    ExpectDamage(WithPart("_rels/.rels", "<Relationships/>"), "holds no document");
    ExpectDamage(WithPart("word/document.xml", "<html><body/></html>"), "is no text document");
    ExpectDamage(WithPart("word/document.xml", "<w:document><w:body>"), "word/document.xml");
}

TEST(ReaderDamage, MissingFilesAreNotFound) {
    const quillmark::test::ScratchFolder folder;
    try {
        read::OpenDocx(folder / "none.docx");
        FAIL();
    } catch (const AutomationError& refusal) {
        EXPECT_EQ(refusal.number(), error::kFileNotFound);
        EXPECT_THAT(refusal.what(), HasSubstr("none.docx"));
    }
    quillmark::test::WriteBytes(folder / "form.docx", test::BareDocx{.body = "<w:p/>"}.Bytes());
    EXPECT_EQ(test::Text(read::OpenDocx(folder / "form.docx")->body), "\n");
}

TEST(ReaderDamage, NestingWithoutEndIsRefused) {
    std::string deep;
    for (int level = 0; level < 20'000; ++level) deep += "<w:sdt><w:sdtContent>";
    for (int level = 0; level < 20'000; ++level) deep += "</w:sdtContent></w:sdt>";
    ExpectDamage(test::BareDocx{.body = deep}.Bytes(), "nested too deeply");
}

TEST(ReaderDamage, BombsAreRefused) {
    ExpectDamage(WithPart("word/document.xml", std::string(std::size_t{64} << 20, ' ')), "unreasonable size");
    zip::ZipReader many(WithPart("a", "b"), "f", {.totalBytes = 700});
    EXPECT_THROW(for (int n = 0; n < 10; ++n) many.Read("[Content_Types].xml"), AutomationError);
    EXPECT_THROW(zip::ZipReader(WithPart("a", "b"), "f", {.entries = 3}), AutomationError);
}

TEST(ReaderDamage, AHeaderOfManySectionsCountsAsOftenAsItIsRead) {
    test::BareDocx docx;
    std::mt19937 random(1);
    for (int section = 0; section < 900; ++section)
        docx.body += fmt::format(
            R"(<w:p w:rsidR="{:x}"><w:pPr><w:sectPr><w:headerReference r:id="rId9"/></w:sectPr></w:pPr></w:p>)",
            random());
    docx.relationships = R"(<Relationship Id="rId9" Type="t/header" Target="header.xml"/>)";
    docx.extraPartName = "word/header.xml";
    docx.extraPart = R"(<w:hdr xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main">)";
    for (int n = 0; n < 1000; ++n) docx.extraPart += fmt::format(R"(<w:p w:rsidR="{:x}"/>)", random());
    docx.extraPart += "</w:hdr>";
    ExpectDamage(docx.Bytes(), "more than any document");
}

TEST(ReaderDamage, PartsThatLeadToEachOtherEnd) {
    test::BareDocx docx;
    docx.body = R"(<w:p><w:r><w:pict><v:shape><v:imagedata r:id="rId9"/></v:shape></w:pict></w:r></w:p>)";
    docx.relationships = R"(<Relationship Id="rId9" Type="t/chart" Target="chart.xml"/>)";
    docx.extraPartName = "word/chart.xml";
    docx.extraPart = "<chart/>";
    test::Parts parts = test::Unzip(docx.Bytes());
    parts["word/_rels/chart.xml.rels"] =
        R"(<Relationships><Relationship Id="a" Type="t/chart" Target="chart.xml"/>)"
        R"(<Relationship Id="b" Type="t/chart" Target="../word/chart.xml"/></Relationships>)";
    const auto document = read::OpenDocxBytes(test::Zip(parts));
    EXPECT_EQ(document->relations.size(), 1u);
    EXPECT_FALSE(write::WriteDocx(*document).empty());
}

TEST(ReaderDamage, TornFilesAreRefusedOrRead) {
    const std::string whole = write::WriteDocx(*test::SampleDocument());
    std::mt19937 random(20210701);
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        std::string torn = whole;
        if (round % 2) torn.resize(random() % torn.size());
        for (int n = 0; n < 8 && !torn.empty(); ++n)
            torn[random() % torn.size()] = static_cast<char>(random());
        const int number = Refusal(torn).first;
        EXPECT_TRUE(number == 0 || number == error::kFileDamaged) << number;
    }
}

}  // namespace
}  // namespace quillmark::word::docx
