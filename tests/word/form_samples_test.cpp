#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <pugixml.hpp>

#include "platform/paths.h"
#include "word/docx/check/package_check.h"
#include "word/docx/write/document_writer.h"
#include "word/docx/zip/zip_reader.h"
#include "word/engine_session.h"

/// The sample forms, made by several programs, through a run: what they hold is there afterwards.
namespace quillmark::word::test {
namespace {

using testing::IsEmpty;

/// How often each thing stands in a document, and its text.
struct Contents {
    std::map<std::string, int> counts;
    std::map<std::string, std::string> texts;  ///< by part
    std::string deleted;
};

struct Kind {
    const char* element;
    const char* name;
};

// clang-format off
constexpr Kind kKinds[] = {
    {"w:tbl", "table"}, {"w:tc", "cell"}, {"w:drawing", "drawing"}, {"w:pict", "shape"}, {"w:sdt", "control"},
    {"w14:checkbox", "check box"}, {"w:ins", "insertion"}, {"w:moveTo", "insertion"}, {"w:del", "deletion"},
    {"w:moveFrom", "deletion"}, {"w:rPrChange", "former look"}, {"w:pPrChange", "former look"},
    {"w:commentReference", "comment"}, {"w:commentRangeStart", "comment start"},
    {"w:commentRangeEnd", "comment end"}, {"w:comment", "comment text"}, {"w:footnote", "footnote"},
    {"w:endnote", "endnote"}, {"w:footnoteReference", "note mark"}, {"w:endnoteReference", "note mark"},
    {"w:hyperlink", "field"}, {"w:fldSimple", "field"},
};
// clang-format on

void Count(pugi::xml_node node, Contents& contents, std::string& text) {
    for (const pugi::xml_node child : node.children()) {
        const std::string name = child.name();
        const std::string id = child.attribute("w:type").value();
        const bool isSeparator =
            (name == "w:footnote" || name == "w:endnote") && !id.empty() && id != "normal";
        for (const Kind& kind : kKinds)
            if (name == kind.element && !isSeparator) ++contents.counts[kind.name];
        if (name == "w:fldChar" && child.attribute("w:fldCharType").value() == std::string("begin"))
            ++contents.counts["field"];
        if (name == "w:bookmarkStart" && child.attribute("w:name").value() != std::string("_GoBack"))
            ++contents.counts["bookmark"];
        const std::string_view around = node.parent().name();
        const bool isDeleted = name == "w:delText" || (name == "w:t" && around == "w:moveFrom");
        if (isDeleted) contents.deleted += child.text().get();
        if (name == "w:t" && !isDeleted) text += child.text().get();
        // What may be read in two ways is read in one.
        if (name != "mc:Fallback") Count(child, contents, text);
    }
}

Contents ContentsOf(const std::string& bytes) {
    docx::zip::ZipReader zip(bytes, "document");
    Contents contents;
    for (const char* part :
         {"word/document.xml", "word/comments.xml", "word/footnotes.xml", "word/endnotes.xml"}) {
        if (!zip.Has(part)) continue;
        const std::string xml = zip.Read(part);
        pugi::xml_document document;
        document.load_buffer(xml.data(), xml.size(), pugi::parse_default | pugi::parse_ws_pcdata);
        Count(document, contents, contents.texts[part]);
    }
    return contents;
}

std::filesystem::path SampleFolder() {
    return quillmark::test::SourceFolder() / "tests/word/form_samples";
}

std::string WithValues(std::string text) {
    constexpr std::pair<std::string_view, std::string_view> kValues[] = {
        {"[seller 1 name]", "Ann & Bo"}, {"[buyer 1 name]", "Cy"}, {"[LOT FEE]", "250"}};
    for (const auto& [marker, value] : kValues)
        for (auto at = text.find(marker); at != text.npos; at = text.find(marker, at + value.size()))
            text.replace(at, marker.size(), value);
    return text;
}

class FormSample : public testing::TestWithParam<std::string>, protected EngineSession {
 protected:
    void Merge(const std::string& file) {
        const Document form = app.Documents.Open(file);
        form.Content.Find.ReplaceAll("[seller 1 name]", "Ann & Bo");
        form.Content.Find.ReplaceAll("[buyer 1 name]", "Cy");
        form.Content.Find.ReplaceAll("[lot fee]", "250");
        form.Select();
        app.Selection.Copy();
        form.Close(false);
        sel.PasteAndFormat(FormatOriginalFormatting);
    }
    std::string Written() const { return docx::write::WriteDocx(Model()); }
    void ExpectWhole() const {
        EXPECT_EQ(FaultIn(Model()), "");
        EXPECT_THAT(docx::check::CheckPackage(Written()), IsEmpty());
    }
};

TEST_P(FormSample, HoldsAfterTheMergeWhatItHeldBefore) {
    const std::filesystem::path file = SampleFolder() / GetParam();
    const Contents before = ContentsOf(quillmark::test::ReadBytes(file));
    Merge(file.string());
    ExpectWhole();
    const Contents alone = ContentsOf(Written());
    for (const auto& [part, text] : before.texts) {
        if (text.empty()) continue;
        EXPECT_EQ(alone.texts.at(part), WithValues(text)) << part;
    }
    EXPECT_EQ(alone.deleted, before.deleted);
    EXPECT_EQ(alone.counts, before.counts);

    Merge(file.string());
    ExpectWhole();
    const Contents twice = ContentsOf(Written());
    for (const auto& [part, text] : alone.texts) EXPECT_EQ(twice.texts.at(part), text + text) << part;
    for (const auto& [kind, count] : alone.counts) EXPECT_EQ(twice.counts.at(kind), 2 * count) << kind;
}

std::vector<std::string> Samples() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(SampleFolder()))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Forms, FormSample, testing::ValuesIn(Samples()), [](const auto& sample) {
    std::string name = sample.param.substr(0, sample.param.find('.'));
    std::ranges::replace(name, '-', '_');
    return name;
});

}  // namespace
}  // namespace quillmark::word::test
