#include "word/start.h"

#include <gtest/gtest.h>

#include <vector>

#include "word/engine_session.h"
#include "word/trace.h"
#include "word/word.h"

namespace quillmark::word {
namespace {

TEST(StartWordProcessor, TheEmbeddedOnePastesFromTheClipboardThatItCameWith) {
    const StartedWordProcessor started = StartWordProcessor(WordProcessor::Embedded);
    ASSERT_TRUE(started.isEmbedded);
    const Application word{started.application};
    const Document document = word.Documents.Add();
    started.clipboard->SetText("from the clipboard");
    word.Selection.Paste();
    EXPECT_EQ(document.Content.Text.Read(), "from the clipboard\r");
}

#ifndef _WIN32
TEST(StartWordProcessor, WithoutWordTheEmbeddedOneStandsInUnlessWordWasAskedFor) {
    EXPECT_TRUE(StartWordProcessor(WordProcessor::Automatic).isEmbedded);
    EXPECT_EQ(test::ErrorOf([] { StartWordProcessor(WordProcessor::Word); }), error::kCannotCreate);
}
#endif

/// Types with every kind of object that the trace wraps, among them those that are passed back as arguments.
void TypeForm(const Application& word) {
    const Document document = word.Documents.Add();
    const Range start = word.Selection.Range();
    const ListTemplate outline = document.ListTemplates.Add(true);
    word.Selection.ListFormat().ApplyListTemplate(outline);
    word.Selection.TypeText("First\v\rSecond\v\r");
    word.Selection.ListFormat().RemoveNumbers();
    document.FormFields.Add(word.Selection.Range(), FieldFormCheckBox).CheckBox.Value = true;
    word.Selection.TypeText(" agreed\r");
    start.InsertBreak(SectionBreakNextPage);
    const Range footer = document.Sections(2).Footers(1).Range();
    footer.InsertAfter("page ");
    footer.MoveStart(UnitStory);
    footer.Fields.Add(footer, FieldPage);
}

TEST(TraceOfTheEngine, ChangesNothingInTheDocument) {
    const Application plain{docx::objects::StartEngine()};
    std::vector<std::string> lines;
    const Application traced{
        Trace(docx::objects::StartEngine(), [&](std::string_view line) { lines.emplace_back(line); })};
    TypeForm(plain);
    TypeForm(traced);
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "Documents.Add",
                         "ActiveDocument.ListTemplates.Add OutlineNumbered:=True",
                         "Selection.Range.ListFormat.ApplyListTemplate ActiveDocument.ListTemplates(1)",
                         R"(Selection.TypeText "First\v\rSecond\v\r")",
                         "Selection.Range.ListFormat.RemoveNumbers",
                         "ActiveDocument.FormFields.Add Selection.Range, 71",
                         "ActiveDocument.FormFields(1).CheckBox.Value = True",
                         R"(Selection.TypeText " agreed\r")",
                         "Range(1).InsertBreak 2",
                         "ActiveDocument.Sections(2).Footers(1).Range.InsertAfter \"page \"",
                         "ActiveDocument.Sections(2).Footers(1).Range.MoveStart 6",
                         "ActiveDocument.Sections(2).Footers(1).Range.Fields.Add "
                         "ActiveDocument.Sections(2).Footers(1).Range, 33",
                     }));
    const ObjectPtr document = traced.ActiveDocument.Reach();
    EXPECT_THROW(docx::objects::ModelOf(document), AutomationError);
    EXPECT_EQ(test::FaultIn(docx::objects::ModelOf(Untraced(document))), "");
    EXPECT_EQ(traced.ActiveDocument.Content.Text.Read(), plain.ActiveDocument.Content.Text.Read());
}

}  // namespace
}  // namespace quillmark::word
