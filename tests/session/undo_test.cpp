#include "session/undo.h"

#include <gmock/gmock.h>

#include <random>

#include "session/office_fixture.h"
#include "session/screen_text.h"

namespace quillmark {
namespace {

using test::OfficeTest;
using test::TextsOf;
using Names = std::vector<std::string>;

// clang-format off
const Names kDocuments = {"Deed / Warranty", "Closing Statement", "Schedule A", "Deed / Executor", "Owner's Affidavit",
                          "Contract / Regional Bar", "Mortgage Payoff Transmittal", "[ Rider ]", "Power Of Attorney / Short Form"};
const Names kTexts = {"", "Anna Abbott", "12 Elm Street", "Guilford, CT 06437", "$500,000", "1250.5 - P", "March 9, 2026",
                      "2035550100", "Harborline LLC", "soon", "joint tenants"};
// clang-format on

/// Whatever is asked gets its default answer.
class Agreeable final : public Dialogs {
 public:
    DialogButton Show(const MessageDialog& box) override { return box.defaultButton; }
    std::optional<std::string> Ask(const InputDialog& box) override { return box.proposed; }
};

class UndoTest : public OfficeTest {
 protected:
    UndoTest() {
        test::WriteBytes(scratch / "data/customforms/Rider.doc", "");
        test::WriteBytes(scratch / "data/customforms/Rider.inf",
                         "\"[price]\",76,\"\"\r\n\"[pool]\",0,\"\"\r\n");
        screen = std::make_unique<MainScreen>(
            scratch.path(), Machine{.clock = clock, .dialogs = agreeable, .shell = shell, .startWord = [] {
                                        return word::StartWordProcessor(word::WordProcessor::Embedded);
                                    }});
        screen->Start();
        screen->TypeName("Abbott");
        screen->EnterName();
    }

    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random); }
    void AnyAct() {
        const auto& rows = State().grid;
        const int n = rows.empty() ? 21 : rows[Below(rows.size())].n;
        switch (Below(13)) {
            case 12:
                if (State().List2.empty()) return;
                return screen->MoveDocument(Below(State().List2.size()), Below(State().List2.size()));
            case 0:
            case 1:
                return screen->PickDocument(kDocuments[Below(kDocuments.size())]);
            case 2:
                return screen->DropDocument(kDocuments[Below(kDocuments.size())]);
            case 3:
                return screen->ClickOption(static_cast<int>(Below(kOptions)) + 1);
            case 4:
                return screen->DoubleClickOption(static_cast<int>(Below(kOptions)) + 1);
            case 5:
                return screen->SelectLegal({kDocuments[Below(kDocuments.size())]});
            case 6:
                screen->ClickNote(n, static_cast<int>(Below(2)) + 2);
                return;
            case 7:
                screen->EnterUserField("[pool]", kTexts[Below(kTexts.size())], EntryWay::Paste);
                return;
            case 8:
                return screen->UnlockRow(n);
            default:
                screen->EnterField(n, kTexts[Below(kTexts.size())], EntryWay::Paste);
        }
    }

    Agreeable agreeable;
    std::mt19937 random{7};
};

TEST_F(UndoTest, HundredsOfActsAreTakenBackAndDoneAgain) {
    std::vector<Names> before, after, until;  // each act, and until the next one
    const auto act = [&](auto command) {
        const std::size_t done = screen->History().Done();
        const Names was = TextsOf(State());
        try {
            command();
        } catch (const NotAllowed&) {
        }
        if (screen->History().Done() == done) {
            // What changes the screen alone, such as the beginning of field entry, is no act.
            if (!until.empty()) until.back() = TextsOf(State());
            return;
        }
        before.push_back(was);
        after.push_back(TextsOf(State()));
        until.push_back(after.back());
        ASSERT_FALSE(screen->History().UndoName().empty());
    };
    // The choice of documents closes with the first field that is entered.
    const int kChoosing = 150;
    for (int i = 0; i < kChoosing; ++i)
        act([&] {
            if (Below(3) == 0) return screen->PickDocument(kDocuments[Below(kDocuments.size())]);
            if (Below(2) == 0) return screen->ClickOption(static_cast<int>(Below(kOptions)) + 1);
            if (Below(3) == 0) return screen->SelectLegal({kDocuments[Below(kDocuments.size())]});
            if (Below(2) == 0 && !State().List2.empty())
                return screen->MoveDocument(Below(State().List2.size()), Below(State().List2.size()));
            screen->DropDocument(kDocuments[Below(kDocuments.size())]);
        });
    for (const char* document : {"Deed / Warranty", "Closing Statement", "[ Rider ]"})
        act([&] { screen->PickDocument(document); });
    for (int i = 0; i < 3000; ++i) act([&] { AnyAct(); });
    ASSERT_GT(before.size(), 300u);
    ASSERT_EQ(screen->History().Done(), before.size());

    for (std::size_t i = before.size(); i-- > 0;) {
        ASSERT_EQ(TextsOf(State()), until[i]) << i;
        const std::string name = screen->History().UndoName();
        ASSERT_EQ(screen->Undo(), name);
        ASSERT_EQ(TextsOf(State()), before[i]) << i << ": " << name;
    }
    EXPECT_THROW(screen->Undo(), NotAllowed);
    for (std::size_t i = 0; i < after.size(); ++i) {
        screen->Redo();
        ASSERT_EQ(TextsOf(State()), after[i]) << i;
    }
    EXPECT_THROW(screen->Redo(), NotAllowed);
}

TEST_F(UndoTest, OnePressTakesBackOneActAndSaysWhich) {
    screen->PickDocument("Deed / Warranty");
    EXPECT_EQ(screen->History().UndoName(), "add Deed / Warranty");
    screen->SelectLegal({"Deed / Warranty"});
    EXPECT_EQ(screen->History().UndoName(), "legal paper");
    screen->ClickOption(TwoSellers);
    EXPECT_EQ(screen->History().UndoName(), "2 Sellers");
    screen->EnterField(21, "Anna Abbott", EntryWay::Type);
    screen->EnterField(21, "Anna Abbot", EntryWay::Type);
    EXPECT_EQ(screen->History().UndoName(), "seller 1 name");
    screen->Undo();
    EXPECT_EQ(State().job.D(21), "Anna Abbott");
    EXPECT_EQ(State().job.D(3021), "Abbott");
    screen->Undo();
    EXPECT_EQ(State().job.D(3021), "[seller 1 last name]");
    EXPECT_EQ(screen->History().RedoName(), "seller 1 name");
    screen->EnterField(23, "12 Elm Street", EntryWay::Type);
    EXPECT_FALSE(screen->History().CanRedo()) << "another way was taken";
}

TEST_F(UndoTest, AKeyInTheEditorIsNoActAndAProposalThatIsLeftIsOne) {
    screen->PickDocument("Deed / Warranty");
    const std::size_t done = screen->History().Done();
    const auto row = std::ranges::find(State().grid, 21, &GridRow::n) - State().grid.begin();
    screen->ClickGrid(static_cast<int>(row), 1);
    for (const char* key : {"A", "n", "n", "a"}) screen->KeyInEditor(key);
    EXPECT_EQ(screen->History().Done(), done);
    screen->KeyInEditor(EditorKey::Tab);
    EXPECT_EQ(screen->History().Done(), done + 1);
    EXPECT_TRUE(screen->Editor().IsOpen()) << "the next row's editor";
    screen->Undo();
    EXPECT_EQ(State().job.D(21), "[seller 1 name]");
    EXPECT_FALSE(screen->Editor().IsOpen());
}

TEST_F(UndoTest, TheHistoryEndsWhereTheFileBegins) {
    screen->PickDocument("Deed / Warranty");
    screen->EnterField(21, "Anna Abbott", EntryWay::Type);
    ASSERT_EQ(State().cmdOpen.caption, "SAVE");
    screen->Click("cmdOpen");
    EXPECT_FALSE(screen->History().CanUndo());
    screen->EnterField(21, "Anna Abbot", EntryWay::Type);
    EXPECT_TRUE(screen->History().CanUndo());
    screen->Click("cmdReset");
    EXPECT_FALSE(screen->History().CanUndo());
}

}  // namespace
}  // namespace quillmark
