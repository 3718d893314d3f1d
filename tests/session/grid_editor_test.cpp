#include "core/field_registry.h"
#include "session/office_fixture.h"

namespace quillmark {
namespace {

using namespace std::chrono_literals;
using test::OfficeTest;

class GridEditing : public OfficeTest {
 protected:
    void StartWith(std::initializer_list<const char*> documents, std::string_view name = "Abbott") {
        Start();
        if (!name.empty()) screen->TypeName(name);
        screen->EnterName();
        for (const char* document : documents) screen->PickDocument(document);
    }
    int RowOf(int n) const {
        for (std::size_t row = 0; row < State().grid.size(); ++row)
            if (State().grid[row].kind == RowKind::Field && State().grid[row].n == n)
                return static_cast<int>(row);
        ADD_FAILURE() << "no row of field " << n;
        return 0;
    }
    const GridEditorState& Editor() const { return screen->Editor(); }
    const std::string& Value(int n) const { return State().job.D(n); }
    void Click(int n, int column = 1) { screen->ClickGrid(RowOf(n), column); }
    void Type(std::string_view text) {
        for (const char c : text) screen->KeyInEditor(std::string_view(&c, 1));
    }
    void Key(EditorKey key) { screen->KeyInEditor(key); }
};

TEST_F(GridEditing, EnterGoesDownOverHeadingsAndStaysOnTheLastRow) {
    StartWith({"Deed / Warranty"});
    screen->ClickGrid(State().groups[2].headingRow, 1);
    EXPECT_FALSE(Editor().IsOpen()) << "a heading opens nothing";
    Click(21);
    EXPECT_FALSE(State().List1Enabled);
    Type("anna abbott");
    Key(EditorKey::Enter);
    EXPECT_EQ("Anna Abbott", Value(21));
    EXPECT_EQ(RowOf(23), Editor().EditRow);
    EXPECT_EQ(RowOf(23), Editor().markedRow);
    EXPECT_EQ(FieldDescription(23, State().job), State().picInfo);
    Key(EditorKey::Up);
    EXPECT_EQ(RowOf(21), Editor().EditRow);
    EXPECT_EQ((EditorText{"Anna Abbott", 0, 11}), Editor().txtEdit) << "all of it selected";
    Type("X");
    Key(EditorKey::Escape);
    EXPECT_FALSE(Editor().IsOpen());
    EXPECT_EQ("Anna Abbott", Value(21));

    std::size_t steps = 0;
    for (screen->KeyInGrid(EditorKey::Enter); Editor().IsOpen() && steps < 100; ++steps) {
        EXPECT_TRUE(Editor().topRow <= Editor().EditRow &&
                    Editor().EditRow < Editor().topRow + Editor().rowsOnScreen);
        Key(EditorKey::Enter);
    }
    EXPECT_EQ(static_cast<int>(State().grid.size()) - 1, State().currentRow);
    EXPECT_EQ(ScreenFocus::Grid, Editor().focus);
}

TEST_F(GridEditing, AnUnknownTownKeepsTheUserOnItsRowOnce) {
    StartWith({"Deed / Warranty"});
    Click(72);
    Type("Nowhere, CT 06000");
    Key(EditorKey::Enter);
    EXPECT_EQ(RowOf(72), Editor().EditRow);
    EXPECT_EQ("Nowhere, CT 06000", Value(72));
    const std::size_t boxes = dialogs.Shown().size();
    Key(EditorKey::Enter);
    EXPECT_NE(RowOf(72), Editor().EditRow);
    EXPECT_EQ(boxes, dialogs.Shown().size());
}

TEST_F(GridEditing, OnAChangeThePageEndHoldsTheUser) {
    StartWith({"Deed / Warranty"});
    screen->SetRowsOnScreen(4);
    screen->ScrollTo(RowOf(21) - 3);
    Click(21);
    Type("Anna");
    Key(EditorKey::Enter);
    EXPECT_EQ(RowOf(21), Editor().EditRow);
    EXPECT_EQ((EditorText{"Anna", 4, 0}), Editor().txtEdit);
    Key(EditorKey::Enter);
    EXPECT_EQ(RowOf(23), Editor().EditRow) << "nothing changed this time";
}

TEST_F(GridEditing, AJobWithoutANameWarnsOnceAndATemplateAsksForOne) {
    StartWith({"Deed / Warranty"}, "");
    Answer({"Cancel"});
    Click(21);
    EXPECT_FALSE(Editor().IsOpen());
    EXPECT_EQ(ScreenFocus::NameBox, Editor().focus);
    Answer({"OK"});
    Click(21);
    EXPECT_TRUE(Editor().IsOpen());
    const std::size_t boxes = dialogs.Shown().size();
    Click(23);
    EXPECT_EQ(boxes, dialogs.Shown().size());

    Answer({});
    screen->Click("cmdReset");
    screen->Click("cmdTemplate");
    screen->LoadJob(kNewTemplateEntry, true);
    Click(70);
    EXPECT_EQ("You must provide a file name before proceeding", LastBox());
    screen->TypeName("Regency");
    Click(70);
    Type("1 Main;");
    Key(EditorKey::Enter);
    EXPECT_EQ("1 Main", Value(70)) << "a value there is one choice of several";
    EXPECT_FALSE(Editor().IsOpen()) << "no advance in a template";
    screen->EnterField(21, "Ann; Bob", EntryWay::Paste);
    EXPECT_EQ("Ann", Value(21));
}

TEST_F(GridEditing, ALockedRowOpensByADoubleClickAndItsQuestion) {
    test::WriteBytes(JobFile("Old"), "\"000\",\"Deed / Warranty\"\r\n\"021\",\"Anna Abbott\"\r\n");
    Start();
    screen->Click("cmdOpen");
    screen->LoadJob("Old", false);
    Click(21);
    EXPECT_FALSE(Editor().IsOpen());
    EXPECT_EQ(" Locked field, Double-Click to open for edit", State().picInfo);
    Answer({"No", "Yes"});
    screen->DoubleClickGrid(RowOf(21), 0);
    EXPECT_EQ(" action canceled", State().picInfo);
    screen->DoubleClickGrid(RowOf(21), 0);
    EXPECT_EQ(RowOf(21), Editor().EditRow);
    EXPECT_EQ("[seller 1 name] ", dialogs.Shown().back().title);
}

TEST_F(GridEditing, TheCalendarWritesDaysAndNeverLosesTheRow) {
    StartWith({"Closing Statement"});
    Click(79);
    ASSERT_TRUE(Editor().MonthView1);
    screen->LoseFocus(ScreenFocus::Calendar);
    EXPECT_TRUE(Editor().IsOpen()) << "the calendar belongs to the editor";
    screen->ClickDay(2026y / 4 / 6, false);
    EXPECT_EQ("April 6, 2026", Editor().txtEdit.text);
    EXPECT_FALSE(State().job.IsFilled(79)) << "not committed yet";
    screen->ClickDay(2026y / 4 / 7, true);
    EXPECT_EQ("April 7, 2026", Value(79));
    EXPECT_EQ("7th", Value(2079));
    EXPECT_NE(RowOf(79), Editor().EditRow);
    Click(79);
    Type("soon");
    Key(EditorKey::Enter);
    EXPECT_EQ("BAD INPUT\nPlease try a different format.", LastBox());
    EXPECT_FALSE(State().job.IsFilled(79));
    EXPECT_THROW(screen->PickChoice(0), NotAllowed);
}

TEST_F(GridEditing, AQuestionKeepsTheEditorFromCommittingTwice) {
    class Watcher final : public Dialogs {
     public:
        DialogButton Show(const MessageDialog& box) override {
            ++boxes;
            rows.push_back(screen->Editor().EditRow);
            screen->LoseFocus(ScreenFocus::Elsewhere);  // as a window does when a box opens
            return box.defaultButton;
        }
        std::optional<std::string> Ask(const InputDialog& box) override { return box.proposed; }
        MainScreen* screen = nullptr;
        int boxes = 0;
        std::vector<int> rows;
    } watcher;
    MainScreen watched(scratch.path(), Machine{.clock = clock, .dialogs = watcher, .shell = shell});
    watcher.screen = &watched;
    watched.Start();
    watched.TypeName("Abbott");
    watched.PickDocument("Closing Statement");
    watcher.boxes = 0;
    watcher.rows.clear();
    watched.EnterField(171, "100", EntryWay::Type);
    EXPECT_EQ((std::vector<int>{-1, -1}), watcher.rows);
    EXPECT_EQ("$100.00 - P", watched.State().job.D(171));
}

TEST_F(GridEditing, AnAddressBookFillsItsBlock) {
    test::WriteBytes(
        scratch / "data/Attorneys.lst",
        "Hale & Pike _ Thomas Hale _ 1 Main St _  _ Avon, CT 06001 _ 2035550100 _ (203) 555-0101 _ "
        "th@hale.example\r\n");
    StartWith({"Contract / Greenwich Bar"});
    Click(11);
    ASSERT_TRUE(Editor().Combo2);
    EXPECT_EQ("[buyer lawfirm]", Editor().txtEdit.text);
    screen->PickRecord(0);
    EXPECT_TRUE(Editor().IsOpen()) << "the first line is no record";
    screen->PickRecord(1);
    EXPECT_EQ("Hale & Pike", Value(11));
    EXPECT_EQ("Thomas Hale", Value(12));
    EXPECT_FALSE(State().job.IsFilled(14)) << "an item that the record lacks";
    EXPECT_EQ("(203) 555-0100", State().grid[static_cast<std::size_t>(RowOf(16))].value);
    EXPECT_FALSE(Editor().IsOpen());
    EXPECT_EQ("EMAIL", State().cmdExit.caption);
}

TEST_F(GridEditing, AFiduciaryIsPickedAndBringsItsDetail) {
    StartWith({"Owner's Affidavit", "Trustee's Affidavit"});
    screen->ClickOption(EstateTrust);
    Click(209);
    ASSERT_TRUE(Editor().Combo1.open && Editor().Combo1.fixed);
    Type("T");
    EXPECT_EQ("please select from list ...", Editor().txtEdit.text);
    screen->LoseFocus(ScreenFocus::Elsewhere);
    EXPECT_NE("please select from list ...", Value(209));
    Click(209);
    Answer({""});
    screen->PickChoice(4);
    EXPECT_NE("Trustee", Value(209)) << "not without the trust";
    EXPECT_EQ(ScreenFocus::Grid, Editor().focus);
    Click(209);
    Answer({"Abbott Family Trust"});
    screen->PickChoice(4);
    EXPECT_EQ("Trustee", Value(209));
    EXPECT_EQ("Abbott Family Trust", Value(206));
}

TEST_F(GridEditing, ScheduleATakesLinesAndPictures) {
    StartWith({"Schedule A"});
    Click(201);
    ASSERT_EQ(EditorKind::Block, Editor().kind);
    screen->SetBlockText("Lot 7");
    Key(EditorKey::Enter);
    screen->Paste({"Map 12\r\nBlock \"A\"", {}});
    Key(EditorKey::Tab);
    EXPECT_EQ("Lot 7\r\nMap 12\r\nBlock 'A'", Value(201));
    EXPECT_EQ(RowOf(202), Editor().EditRow);
    screen->Paste({"", "BM picture"});
    EXPECT_EQ("This field does not accept images.", LastBox());
    Click(201);
    screen->Paste({"", "BM picture"});
    Key(EditorKey::Escape);
    EXPECT_EQ("", State().job.FieldPictures[201]) << "Escape leaves the value as it was";
    Click(201);
    screen->Paste({"", "BM picture"});
    Key(EditorKey::Enter);
    EXPECT_EQ(kImageLiteral, Value(201));
    EXPECT_EQ("BM picture", State().job.FieldPictures[201]);
    Click(201);
    EXPECT_EQ("", Editor().blockPicture);
    screen->ViewPicture();
    EXPECT_EQ("BM picture", Editor().blockPicture);
    EXPECT_FALSE(Editor().blockWraps);
    screen->SetBlockText(std::string(kImageLiteral) + "Lot 8");
    Key(EditorKey::Tab);
    EXPECT_EQ("Lot 8", Value(201)) << "the first key takes the picture's place";
    EXPECT_EQ("", State().job.FieldPictures[201]);
}

TEST_F(GridEditing, PastesAreOneLineOfCharactersThatFilesCanHold) {
    StartWith({"Deed / Warranty"});
    Click(21);
    screen->Paste({"Anna\r\nAbbott\r\n", {}});
    EXPECT_EQ("Anna, Abbott", Editor().txtEdit.text);
    screen->KeyInEditor("ł");
    EXPECT_EQ("A field cannot hold the character \"ł\" (U+0142).", LastBox());
    screen->Paste({"Łukasz", {}});
    EXPECT_EQ("Anna, Abbott", Editor().txtEdit.text);
    EXPECT_THROW(screen->EnterField(21, "Łukasz", EntryWay::Paste), NotAllowed);
    screen->ClearValue();
    EXPECT_FALSE(State().job.IsFilled(21));
    EXPECT_TRUE(Editor().IsOpen());
}

TEST_F(GridEditing, TheKeyboardReachesEveryRowAndTypingOpensIt) {
    StartWith({"Deed / Warranty"});
    screen->KeyInGrid(EditorKey::End);
    const int last = static_cast<int>(State().grid.size()) - 1;
    EXPECT_EQ(last, Editor().EditRow);
    screen->KeyInEditor(EditorKey::Escape);
    screen->KeyInGrid(EditorKey::Home);
    EXPECT_EQ(0, Editor().EditRow);
    screen->KeyInEditor(EditorKey::Up);
    EXPECT_EQ(0, Editor().EditRow) << "there is no row above the first";
    screen->KeyInEditor(EditorKey::Escape);
    screen->TypeInGrid("M");
    EXPECT_EQ("M", Editor().txtEdit.text) << "the key takes the proposal's place";
    EXPECT_THROW(screen->TypeInGrid("a"), NotAllowed) << "the editor has the keyboard";
}

TEST_F(GridEditing, EnterInTheCalendarTakesTheDayShown) {
    StartWith({"Closing Statement"});
    Click(79);
    using std::chrono::year;
    screen->KeyInCalendar(EditorKey::Enter, year(2026) / 4 / 17);
    EXPECT_EQ("April 17, 2026", Value(79));
}

TEST_F(GridEditing, LeavingTheEditorCommitsWhereverTheKeyboardGoes) {
    StartWith({"Closing Statement"});
    EXPECT_FALSE(State().cmdOpen.enabled) << "there is nothing to save yet";
    Click(21);
    Type("Anna");
    screen->LoseFocus(ScreenFocus::Buttons);
    EXPECT_EQ("Anna", Value(21));
    Click(21);
    Type("Anne");
    screen->ScrollTo(5);
    EXPECT_EQ("Anne", Value(21));
    EXPECT_EQ(-1, Editor().markedRow);
    EXPECT_EQ(" Click an item for edit.  Use Enter, Tab, or Up/Down Arrow keys to navigate", State().picInfo);
    Click(86);
    Answer({"OK", "No"});
    Type("6%");
    EXPECT_EQ("No sale price given", dialogs.Shown().at(dialogs.Shown().size() - 2).text);
    EXPECT_EQ("$6.00 - N", Value(86)) << "what was typed is kept";
    EXPECT_EQ(RowOf(76), Editor().EditRow);
    screen->ClickJumpLabel(3);
    EXPECT_EQ(State().groups[3].headingRow, Editor().topRow);
    EXPECT_TRUE(State().lblJump(3).current);
    Answer({"Yes"});
    screen->EnterField(170, "4812.5", EntryWay::Type);
    Click(170, 3);
    EXPECT_EQ("$4,812.50 - U", Value(170));
    EXPECT_FALSE(Editor().IsOpen()) << "a note cell opens no editor";
}

}  // namespace
}  // namespace quillmark
