#include "word/docx/check/package_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "word/docx/write/document_writer.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kDocument = "word/document.xml";
constexpr const char* kStyles = "word/styles.xml";
constexpr const char* kNumbering = "word/numbering.xml";
constexpr const char* kMainRelations = "word/_rels/document.xml.rels";
constexpr const char* kTypes = "[Content_Types].xml";

struct Damage {
    const char* part;
    const char* good;
    const char* bad;
    const char* finding;
};

// clang-format off
const Damage kDamages[] = {
    // Lists
    {kDocument,  R"(<w:numId w:val="1"/>)",             R"(<w:numId w:val="9"/>)",             "in the list 9, which is not there"},
    {kNumbering, R"(<w:num w:numId="2">)",              R"(<w:num w:numId="1">)",              "the list 1 is there twice"},
    {kNumbering, R"(<w:abstractNumId w:val="1"/>)",     R"(<w:abstractNumId w:val="8"/>)",     "the list 3 has no definition 8"},
    {kNumbering, R"(<w:abstractNum w:abstractNumId="1">)", R"(<w:abstractNum w:abstractNumId="0">)", "the list definition 0 is there twice"},
    // Styles
    {kDocument,  R"(<w:pStyle w:val="ListParagraph"/>)", R"(<w:pStyle w:val="Gone"/>)",        "names the paragraph style Gone"},
    {kDocument,  R"(<w:pStyle w:val="ListParagraph"/>)", R"(<w:pStyle w:val="TableNormal"/>)", "names the paragraph style TableNormal"},
    {kDocument,  R"(<w:b/>)",                           R"(<w:rStyle w:val="Gone"/>)",         "names the character style Gone"},
    {kStyles,    R"(<w:basedOn w:val="Normal"/>)",      R"(<w:basedOn w:val="Gone"/>)",        "w:basedOn of a style names the style Gone"},
    {kStyles,    R"(w:styleId="Header")",               R"(w:styleId="Footer")",               "the style Footer is there twice"},
    // Bookmarks, fields and form fields
    {kDocument,  R"(w:name="inside")",                  R"(w:name="WHOLE")",                   "the bookmark name WHOLE is there twice"},
    {kDocument,  R"(<w:bookmarkStart w:id="2")",        R"(<w:bookmarkStart w:id="1")",        "the bookmark id 1 is there twice"},
    {kDocument,  R"(<w:bookmarkStart w:id="2" w:name="inside"/>)", "",                         "the bookmark end 2 has no start"},
    {kDocument,  R"(<w:bookmarkEnd w:id="2"/>)",        "",                                    "the bookmark 2 has no end"},
    {kDocument,  R"(<w:bookmarkStart w:id="2" w:name="inside")",
                 R"(<w:bookmarkStart w:id="2" w:name="a_name_that_is_longer_than_forty_characters")", "is empty or too long"},
    {kDocument,  R"(<w:fldChar w:fldCharType="end"/>)", "",                                    "a field has no end"},
    {"word/footer1.xml", R"(<w:fldChar w:fldCharType="end"/>)", "",                            "a field has no end"},
    {"word/footer1.xml", R"(<w:fldChar w:fldCharType="begin"/>)", "",                          "the mark \"separate\" without a beginning"},
    {kDocument,  R"(<w:name w:val="Text2"/>)",          R"(<w:name w:val="text1"/>)",          "the form field name text1 is there twice"},
    {kDocument,  R"(<w:name w:val="Text2"/>)",          R"(<w:name w:val="ANameOfMoreThanTwentyLetters"/>)", "is too long"},
    // Sections
    {kDocument,  R"(<w:footerReference w:type="default" r:id="rId1"/>)",
                 R"(<w:footerReference w:type="default" r:id="rId1"/><w:footerReference r:id="rId1"/>)",
                 "a section has w:footerReference default twice"},
    // Tables
    {kDocument,  R"(<w:p><w:r><w:t xml:space="preserve">Yes</w:t></w:r></w:p>)", "",           "a cell of a table does not end with a paragraph"},
    {kDocument,  R"(<w:gridSpan w:val="2"/>)",          R"(<w:gridSpan w:val="3"/>)",          "a row covers 4 columns of a table that has 3"},
    {kDocument,  R"(<w:tbl><w:tblPr>)",                 R"(<w:tbl><w:tblGrid/></w:tbl><w:tbl><w:tblPr>)", "a table has no rows"},
    {kDocument,  R"(<w:tr><w:trPr>)",                   R"(<w:tr></w:tr><w:tr><w:trPr>)",      "a row of a table has no cells"},
    {kDocument,  R"(<w:p><w:r><w:t xml:space="preserve">The affidavit</w:t></w:r></w:p>)", "<w:tbl/>", "the text does not end with a paragraph"},
    // Text and formats
    {kDocument,  R"(<w:sz w:val="28"/>)",               R"(<w:sz w:val="3277"/>)",             "font size of 3277 half-points"},
    {kDocument,  "The affidavit",                       "The\taffidavit",                      "holds a raw tab or line end"},
    {kDocument,  "The affidavit",                       "The\naffidavit",                      "holds a raw tab or line end"},
    {kDocument,  R"(<w:jc w:val="center"/>)",           R"(stray<w:jc w:val="center"/>)",      "w:pPr holds the stray text \"stray\""},
    // Drawings, relationships and parts
    {"word/footer1.xml", R"(<wp:docPr id="1")",         R"(<wp:docPr id="2")",                 "the drawing id 2 is there twice"},
    {kDocument,  R"(r:embed="rId)",                     R"(r:embed="rIdGone)",                 "which is not there"},
    {kMainRelations, R"(Id="rId2")",                    R"(Id="rId1")",                        "the relationship rId1 is there twice"},
    {kMainRelations, R"(Target="styles.xml")",          R"(Target="gone.xml")",                "leads to word/gone.xml, which is not there"},
    {kMainRelations, R"(Target="fontTable.xml")",       R"(Target="styles.xml")",              "word/fontTable.xml: no relationship leads to the part"},
    {kTypes,     "document.main+xml",                   "template.main+xml",                   "and not a document's"},
    {kTypes,     R"(Extension="png")",                  R"(Extension="gif")",                  "the part has no content type"},
    {kTypes,     R"(PartName="/word/styles.xml")",      R"(PartName="/word/gone.xml")",        "the part word/gone.xml is missing"},
    {"_rels/.rels", "relationships/officeDocument\"",   "relationships/other\"",               "no relationship leads to a document"},
    // XML
    {kDocument,  "</w:body>",                           "</w:bdy>",                            "the XML is broken"},
    {kDocument,  R"(<w:jc w:val="center"/>)",           R"(<x:jc w:val="center"/>)",           "the prefix of x:jc is not declared"},
};
// clang-format on

class PackageCheckTest : public ::testing::Test {
 protected:
    const test::Parts good_ = test::Unzip(write::WriteDocx(*test::SampleDocument()));
};

TEST_F(PackageCheckTest, AGoodPackageHasNoFindings) {
    EXPECT_THAT(check::CheckPackage(test::Zip(good_)), IsEmpty());
}

TEST_F(PackageCheckTest, EveryDamageIsFoundInItsPart) {
    for (const Damage& damage : kDamages) {
        test::Parts parts = good_;
        std::string& xml = parts.at(damage.part);
        const std::size_t place = xml.find(damage.good);
        ASSERT_NE(place, std::string::npos) << damage.part << " has no " << damage.good;
        xml.replace(place, std::string_view(damage.good).size(), damage.bad);
        EXPECT_THAT(check::CheckPackage(test::Zip(parts)), Contains(HasSubstr(damage.finding)))
            << damage.good << " -> " << damage.bad;
    }
}

TEST_F(PackageCheckTest, MissingAndUnreachedPartsAreFound) {
    for (const char* part :
         {"word/styles.xml", "word/media/image1.png", "[Content_Types].xml", "_rels/.rels"}) {
        test::Parts parts = good_;
        parts.erase(part);
        EXPECT_THAT(check::CheckPackage(test::Zip(parts)), Contains(HasSubstr(part))) << part;
    }
    test::Parts parts = good_;
    parts["word/notes.xml"] = "<notes/>";
    EXPECT_THAT(check::CheckPackage(test::Zip(parts)),
                ElementsAre("word/notes.xml: no relationship leads to the part."));
}

TEST_F(PackageCheckTest, ContentControlsMayWrapRowsCellsAndParagraphs) {
    test::Parts parts = good_;
    std::string& xml = parts.at(kDocument);
    const std::string control = "<w:sdt><w:sdtContent>", end = "</w:sdtContent></w:sdt>";
    for (const std::string tag : {"w:tr", "w:tc"}) {
        const std::string open = "<" + tag + ">", close = "</" + tag + ">";
        xml.insert(xml.rfind(close) + close.size(), end);
        xml.insert(xml.rfind(open), control);
    }
    EXPECT_THAT(check::CheckPackage(test::Zip(parts)), IsEmpty());
}

TEST(PackageCheck, BytesThatAreNoPackageGiveAFinding) {
    const std::string good = write::WriteDocx(*test::SampleDocument());
    EXPECT_EQ(check::CheckPackage("").size(), 1u);
    EXPECT_EQ(check::CheckPackage("not a zip file").size(), 1u);
    EXPECT_FALSE(check::CheckPackage(good.substr(0, good.size() / 2)).empty());
    std::string deep = "<a>";
    for (int depth = 0; depth < 100'000; ++depth) deep += "<a>";
    for (int depth = 0; depth < 100'000; ++depth) deep += "</a>";
    test::Parts parts = test::Unzip(good);
    parts["word/settings.xml"] = deep + "</a>";
    EXPECT_THAT(check::CheckPackage(test::Zip(parts)), Contains(HasSubstr("nested too deeply")));
}

TEST(PackageCheck, NoBytesWhateverMakeItFail) {
    std::mt19937 random(11);
    const std::string good = write::WriteDocx(*test::SampleDocument());
    const test::Parts parts = test::Unzip(good);
    for (int round = 0; round < 200; ++round) {
        std::string bytes = good;
        for (int n = 0; n < 8; ++n) bytes[random() % bytes.size()] = static_cast<char>(random());
        EXPECT_NO_THROW(check::CheckPackage(bytes)) << round;
        test::Parts damaged = parts;
        std::string& xml = damaged.at(round % 2 ? kDocument : kNumbering);
        xml.erase(random() % xml.size(), random() % 200);
        EXPECT_NO_THROW(check::CheckPackage(test::Zip(damaged))) << round;
    }
}

}  // namespace
}  // namespace quillmark::word::docx
