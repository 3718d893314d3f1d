#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/paths.h"
#include "support/scratch.h"
#include "word/com/com_clipboard.h"
#include "word/com/com_word.h"
#include "word/docx/objects/engine.h"
#include "word/word.h"
#include "word_server/served_object.h"
#include "word_server/word_server.h"

namespace quillmark::word {
namespace {

using namespace std::chrono_literals;
using quillmark::test::Misbehaviour;
using quillmark::test::ReadBytes;
using quillmark::test::ScratchFolder;
using Kind = Misbehaviour::Kind;

/// Some of everything: what is passed on, given back, set by name and by number.
void TypeDocument(const Application& word, Clipboard& clipboard) {
    const Document document = word.Documents.Add();
    const Selection at = word.Selection;
    const ListTemplate outline = document.ListTemplates.Add(true);
    outline.ListLevels(1).NumberFormat = "%1.";
    document.PageSetup.LeftMargin = 45;
    document.Styles("List Paragraph").NoSpaceBetweenParagraphsOfSameStyle = false;
    for (int i = 0; i < 12; ++i) {
        at.Font.Name = "Times New Roman";
        at.Font.Size = 10.5;
        at.Font.Bold = i % 2 == 0;
        at.Paragraphs.LeftIndent = InchesToPoints(0.25 * i);
        at.Paragraphs.TabStops.Add(InchesToPoints(3.875));
        at.TypeText("§ 47-36a – Søn “née” Brontë 😀\tand a line\vof it\r");
        at.Paragraphs.TabStops.Clear(InchesToPoints(3.875));
    }
    at.ListFormat().ApplyListTemplate(outline);
    at.TypeText("first\v\rsecond\r");
    at.ListFormat().RemoveNumbers();
    const Table table = document.Tables.Add(at.Range(), 2, 3);
    table.Cell(1, 1).Range.Text = "left";
    table.Cell(1, 2).Merge(table.Cell(1, 3));
    at.GoTo(GoToLine, GoToFirst);
    clipboard.SetText(std::string(300, 'n') + "\rin two");
    document.Content.Find.ReplaceAll("second", "^c");
    at.InsertBreak(SectionBreakNextPage);
    const Footer footer = document.Sections(1).Footers(1);
    footer.LinkToPrevious = false;
    footer.Range().Text = "Page ";
    document.FormFields.Add(at.Range(), FieldFormCheckBox).CheckBox.Value = true;
    document.Protect(AllowOnlyFormFields, true);
}

/// The embedded word processor in another process, under Word's name.
class WordServer : public ::testing::Test {
 protected:
    void SetUp() override {
        if (!registered.isThere) GTEST_SKIP() << "this machine has a Word of its own";
    }
    ObjectPtr Start(Misbehaviour plan = {}, ComPatience patience = {}) {
        const ObjectPtr application = CreateComObject("Word.Application", patience);
        const Argument arguments[] = {{static_cast<std::int32_t>(plan.kind)}, {plan.at}, {plan.times}};
        application->Call("Misbehave", arguments);
        return application;
    }
    /// The error that typing a document ends with; 0 when it is done.
    int ErrorWith(Misbehaviour plan, ComPatience patience = {}) {
        const Application word(Start(plan, patience));
        try {
            TypeDocument(word, clipboard);
        } catch (const AutomationError& failure) {
            description = failure.what();
            return failure.number();
        }
        return 0;
    }

    quillmark::test::RegisteredWord registered{QUILLMARK_WORD_SERVER};
    ScratchFolder folder;
    SystemClipboard clipboard;
    std::string description;
};

TEST_F(WordServer, MakesTheSameBytesAsWithinTheProgram) {
    const auto own = std::make_shared<MemoryClipboard>();
    docx::objects::EngineOptions options;
    options.clipboard = own;
    const Application within(docx::objects::StartEngine(options));
    TypeDocument(within, *own);
    within.ActiveDocument.SaveAs(TextOf(folder / "within.docx"));

    const ObjectPtr application = Start();
    const Application word(application);
    TypeDocument(word, clipboard);
    word.ActiveDocument.SaveAs(TextOf(folder / "word.docx"));
    EXPECT_TRUE(ReadBytes(folder / "word.docx") == ReadBytes(folder / "within.docx"));

    // The same again: what was learnt of the members serves for all objects of the kind.
    const int questions = ToWhole(application->Get("QuestionsAsked"));
    TypeDocument(word, clipboard);
    EXPECT_LE(ToWhole(application->Get("QuestionsAsked")), questions + 1);
}

TEST_F(WordServer, ABusyWordIsWaitedForAndInTheEndTold) {
    EXPECT_EQ(ErrorWith({Kind::Reject, 40, 8}), 0);
    EXPECT_NE(ErrorWith({Kind::Reject, 40, 1'000'000}, {.busy = 300ms}), 0);
    EXPECT_EQ(description, "Word is busy. If it shows a message or a dialog, close it and try again.");
}

TEST_F(WordServer, RefusalsBearTheirNumbersAndWordsWhenTheyCanBeHad) {
    EXPECT_EQ(ErrorWith({Kind::Refuse, 40, 1}), error::kNotAvailable);
    EXPECT_EQ(description, "This command is not available – “today”.");
    EXPECT_EQ(ErrorWith({Kind::RefuseLate, 40, 1}), error::kNotAvailable);
    const ObjectPtr application = Start();
    const auto numberOf = [](const auto& operation) {
        try {
            operation();
        } catch (const AutomationError& refusal) {
            return refusal.number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf([&] { application->Get("NoSuchMember"); }), error::kNoSuchMember);
    EXPECT_EQ(numberOf([&] { Application(application).Documents(3); }), error::kNoSuchElement);
}

TEST_F(WordServer, AWordThatDiesIsGoneAndTheNextOneWorks) {
    EXPECT_EQ(ErrorWith({Kind::Die, 40, 1}), error::kServerGone);
    EXPECT_EQ(description, "Word was closed, or has stopped working.");
    const ObjectPtr application = Start();
    application->Call("Quit");
    std::this_thread::sleep_for(300ms);
    EXPECT_THROW(application->Get("Version"), AutomationError);
    EXPECT_EQ(ErrorWith({}), 0);
}

TEST_F(WordServer, AWordThatHangsIsEndedUnlessTheUserSeesIt) {
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorWith({Kind::Hang, 40, 1}, {.call = 600ms}), error::kServerGone);
    EXPECT_LT(std::chrono::steady_clock::now() - began, 15s);

    const Application word(Start({Kind::Pause, 2, 1}, {.call = 600ms}));
    word.Visible = true;
    EXPECT_GT(word.Version(), 0) << "a dialog of the user's is nobody else's business";
}

}  // namespace
}  // namespace quillmark::word
