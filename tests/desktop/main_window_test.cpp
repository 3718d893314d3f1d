#include "desktop/main_window.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <map>
#include <set>

#include "session/office_fixture.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

/// A person at the main window of an office.
class MainWindowTest : public test::OfficeTest {
 protected:
    MainWindowTest() { fs::create_directories(scratch / "Documents"); }

    void OpenWindow(QSize size = {1024, 660}) {
        if (!screen) Start();
        window = std::make_unique<MainWindow>(*screen);
        window->resize(size);
        window->show();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <class Widget = QWidget>
    Widget& Control(const char* name) {
        return *window->findChild<Widget*>(QLatin1String(name));
    }
    QString Focused() const {
        const QWidget* focus = QApplication::focusWidget();
        while (focus && focus->objectName().isEmpty()) focus = focus->parentWidget();
        return focus ? focus->objectName() : QString();
    }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// Each letter to what has the keyboard by then.
    static void Type(const QString& text) {
        for (const QChar letter : text) QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
    }
    /// Name, deed and the way into the grid, at the keyboard.
    void BeginJob(const QString& name) {
        Type(name);
        Press(Qt::Key_Return);
        Type(QStringLiteral("Deed / W"));
        Press(Qt::Key_Return);
        Control("grdField").setFocus();
        Press(Qt::Key_Return);
    }
    int RowOf(int n) const {
        for (std::size_t row = 0; row < State().grid.size(); ++row)
            if (State().grid[row].n == n) return static_cast<int>(row);
        return -1;
    }
    QPoint CellOf(int row, int column) {
        const auto& grid = Control<GridView>("grdField");
        return grid.visualRect(grid.model()->index(row, column)).center();
    }
    void Click(int row, int column = GridModel::kValue) {
        QTest::mouseClick(Control<GridView>("grdField").viewport(), Qt::LeftButton, {}, CellOf(row, column));
    }
    QWidget* Visible(const char* name) {
        QWidget& control = Control(name);
        return control.isVisible() ? &control : nullptr;
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowTest, AWholeJobAtTheKeyboardAlone) {
    OpenWindow();
    EXPECT_EQ(Focused(), "txtJobName");
    Type(QStringLiteral("Smith - 101 Any Street"));
    EXPECT_FALSE(Control("cmdOpen").isEnabled());
    Press(Qt::Key_Return);
    EXPECT_EQ(Focused(), "List1");
    Type(QStringLiteral("Deed / W"));
    Press(Qt::Key_Return);
    ASSERT_EQ(State().List2.size(), 1u);
    for (int i = 0; i < 30 && Focused() != QLatin1String("grdField"); ++i) Press(Qt::Key_Tab);
    ASSERT_EQ(Focused(), "grdField");
    Press(Qt::Key_Return);
    ASSERT_EQ(Focused(), "txtEdit");
    EXPECT_EQ(screen->Editor().EditField, 1);
    while (screen->Editor().EditField != 21) {
        ASSERT_EQ(Focused(), "txtEdit");
        Press(Qt::Key_Down);
    }
    Type(QStringLiteral("anna abbott"));
    EXPECT_EQ(Control<QLineEdit>("txtEdit").text(), "Anna Abbott");
    Press(Qt::Key_Tab);
    EXPECT_EQ(State().job.D(21), "Anna Abbott");
    Answer({"Yes"});
    Press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(shell.opened.size(), 1u) << LastBox();
    EXPECT_TRUE(fs::exists(shell.opened.front()));
    EXPECT_EQ(Control<QPushButton>("cmdCreate").text().remove('&'), "Re-Make");
    EXPECT_TRUE(fs::exists(JobFile("Smith - 101 Any Street")));
    EXPECT_FALSE(Control("ProgressBar1").isVisible());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindowTest, AJobIsRecalledChangedAndMadeAgain) {
    Start();
    MakeSmallJob("Reed");
    Answer({"Yes"});
    screen->Click("cmdCreate");
    screen->Click("cmdReset");
    screen->OpenBrowser(false);
    screen->LoadJob("Reed", false);
    OpenWindow();
    EXPECT_TRUE(Control<QLineEdit>("txtJobName").isReadOnly());
    EXPECT_EQ(Control<QPushButton>("cmdOpen").text().remove('&'), "EDIT");
    QTest::mouseClick(&Control("cmdOpen"), Qt::LeftButton);
    Answer({"Yes"});
    QTest::mouseDClick(Control<GridView>("grdField").viewport(), Qt::LeftButton, {}, CellOf(RowOf(21), 1));
    ASSERT_TRUE(Focused() == QLatin1String("txtEdit")) << Focused().toStdString() << ", " << LastBox();
    Type(QStringLiteral("mary reed"));
    Press(Qt::Key_Return);
    EXPECT_EQ(State().job.D(21), "Mary Reed");
    EXPECT_EQ(Control<QPushButton>("cmdOpen").text().remove('&'), "SAVE");
    Answer({"Yes", "OK"});
    shell.opened.clear();
    QTest::mouseClick(&Control("cmdCreate"), Qt::LeftButton);
    EXPECT_EQ(shell.opened.size(), 1u) << LastBox();
}

TEST_F(MainWindowTest, TheEditorKeepsToItsCellAndItsRules) {
    OpenWindow();
    BeginJob(QStringLiteral("Gray"));
    Click(RowOf(21));
    ASSERT_EQ(Focused(), "txtEdit");
    auto& edit = Control<QLineEdit>("txtEdit");
    auto& grid = Control<GridView>("grdField");
    EXPECT_TRUE(grid.CellRect(RowOf(21), GridModel::kValue, GridModel::kValue).contains(edit.geometry()));
    Type(QStringLiteral("Jose \"Pepe\""));
    EXPECT_EQ(edit.text(), "Jose Pepe");
    edit.setSelection(0, 4);
    edit.insert(QStringLiteral("José"));  // as an input method does
    edit.setCursorPosition(4);
    Press(Qt::Key_Right);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(edit.text(), "JoséPepe");
    EXPECT_EQ(edit.cursorPosition(), 4);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Focused(), "grdField");
    EXPECT_EQ(Visible("txtEdit"), nullptr);
    EXPECT_FALSE(State().job.IsFilled(21));

    Click(RowOf(21));
    Type(QStringLiteral("Ida Gray"));
    QTest::mouseClick(&Control("cmdPrintFList"), Qt::LeftButton);
    EXPECT_EQ(State().job.D(21), "Ida Gray") << "leaving the editor commits";

    const int heading = State().groups[2].headingRow;
    Click(heading);
    EXPECT_EQ(Visible("txtEdit"), nullptr);
}

TEST_F(MainWindowTest, CalendarAndListsBelongToTheEditor) {
    OpenWindow();
    BeginJob(QStringLiteral("Hill"));
    Click(RowOf(1));
    auto* calendar = static_cast<MonthView*>(Visible("MonthView1"));
    ASSERT_NE(calendar, nullptr);
    EXPECT_TRUE(window->rect().contains(calendar->geometry()));
    EXPECT_FALSE(calendar->geometry().contains(Control("txtEdit").mapTo(window.get(), QPoint(5, 5))));
    Press(Qt::Key_F4);
    EXPECT_EQ(screen->Editor().focus, ScreenFocus::Calendar);
    Press(Qt::Key_Right);
    Press(Qt::Key_Return);
    EXPECT_EQ(Visible("MonthView1"), nullptr);
    EXPECT_EQ(State().job.D(1), "March 10, 2026") << "the day that it showed";
}

TEST_F(MainWindowTest, TheRowCursorIsWhereTheKeyboardIsAndTypingOpensItsRow) {
    OpenWindow();
    BeginJob(QStringLiteral("Gray"));
    Press(Qt::Key_Escape);
    ASSERT_EQ(Focused(), "grdField");
    const int last = static_cast<int>(State().grid.size()) - 1;
    Press(Qt::Key_End);
    EXPECT_EQ(State().currentRow, last);
    Press(Qt::Key_Home);
    EXPECT_EQ(State().currentRow, RowOf(1));
    EXPECT_EQ(Visible("txtEdit"), nullptr);
    Press(Qt::Key_PageDown);
    EXPECT_GT(State().currentRow, RowOf(1));
    EXPECT_LT(State().currentRow, last);

    window->CommandDesk().Do([row = RowOf(21)](MainScreen& at) { at.MoveCursor(row); });
    auto& grid = Control<GridView>("grdField");
    const QRect cell = grid.visualRect(grid.model()->index(RowOf(21), 0));
    const QImage picture = grid.viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(cell.topLeft() + QPoint(1, cell.height() / 2)),
              grid.palette().color(QPalette::Highlight));
    Type(QStringLiteral("anna abbott"));
    EXPECT_EQ(Focused(), "txtEdit");
    Press(Qt::Key_Return);
    EXPECT_EQ(State().job.D(21), "Anna Abbott");
}

TEST_F(MainWindowTest, TheMenuOffersWhatCanBeDone) {
    Start();
    MakeSmallJob("Reed");
    Answer({"Yes"});
    screen->Click("cmdCreate");
    screen->Click("cmdReset");
    screen->OpenBrowser(false);
    screen->LoadJob("Reed", false);
    screen->CloseBrowser();
    OpenWindow();
    const auto offered = [&](int row) {
        auto* viewport = Control<GridView>("grdField").viewport();
        const QPoint point = CellOf(row, GridModel::kValue);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, viewport->mapToGlobal(point));
        QApplication::sendEvent(viewport, &event);
        QStringList names;
        auto& menu = Control<QMenu>("mnuEdit");
        for (const QAction* action : menu.actions())
            if (menu.isVisible() && action->isVisible() && action->isEnabled()) names << action->objectName();
        menu.close();
        return names;
    };
    ASSERT_TRUE(State().grid[static_cast<std::size_t>(RowOf(21))].locked);
    EXPECT_EQ(offered(RowOf(21)), QStringList{QStringLiteral("mnuUnlock")});
    EXPECT_EQ(offered(State().groups[2].headingRow), QStringList());

    Answer({"Yes"});
    Control<QMenu>("mnuEdit").findChild<QAction*>(QStringLiteral("mnuUnlock"))->trigger();
    ASSERT_EQ(Focused(), "txtEdit") << LastBox();
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(offered(RowOf(21)), (QStringList{QStringLiteral("mnuCut"), QStringLiteral("mnuCopy"),
                                               QStringLiteral("mnuSelectAll"), QStringLiteral("mnuClear")}));
}

TEST_F(MainWindowTest, LegalPaperIsABadgeAndNoSelection) {
    OpenWindow();
    Type(QStringLiteral("Dunn"));
    Press(Qt::Key_Return);
    Type(QStringLiteral("Deed / W"));
    Press(Qt::Key_Return);
    auto& list = Control<QListWidget>("List2");
    const QRect line = list.visualItemRect(list.item(0));
    const auto colours = [&](const QRect& part) {
        const QImage picture = list.viewport()->grab(part).toImage();
        std::set<QRgb> found;
        for (int x = 0; x < picture.width(); ++x) found.insert(picture.pixel(x, picture.height() / 2));
        return found;
    };
    const QRect left(line.topLeft() + QPoint(3, 0), QSize(3, line.height()));  // within the row cursor
    const QRect right(line.topRight() - QPoint(40, 0), QSize(40, line.height()));
    const auto plain = colours(right);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, line.center());
    ASSERT_TRUE(State().List2.front().selected);
    EXPECT_FALSE(colours(left).contains(list.palette().color(QPalette::Highlight).rgb()));
    const auto badge = colours(right);
    EXPECT_NE(badge, plain);
    Control("grdField").setFocus();
    Press(Qt::Key_Return);
    ASSERT_FALSE(list.isEnabled()) << "the choice is closed, and the paper is still legal";
    EXPECT_NE(colours(right), plain);
    EXPECT_TRUE(
        list.item(0)->data(Qt::AccessibleTextRole).toString().contains(QStringLiteral("legal paper")));
}

TEST_F(MainWindowTest, WhateverIsGreySaysWhy) {
    OpenWindow();
    const auto says = [&](const char* control, const char* why) {
        QWidget& grey = Control(control);
        EXPECT_FALSE(grey.isEnabled()) << control;
        EXPECT_TRUE(grey.toolTip().contains(QLatin1String(why))) << control << ": " << Utf8(grey.toolTip());
        QTest::mouseClick(&grey, Qt::LeftButton);
        EXPECT_TRUE(Control<QLabel>("picInfo").text().contains(QLatin1String(why))) << control;
    };
    says("cmdCreate", "Choose documents first");
    says("optConf2", "Choose documents first");
    says("cmdOP236", "Open a job");
    says("lblJump2", "No field of this group");
    Type(QStringLiteral("Lane"));
    says("cmdTemplate", "RESET");
    says("cmdOpen", "RESET");
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(Control<QLabel>("picInfo").text().contains(QStringLiteral("Choose documents first")))
        << "by its key as well";
}

TEST_F(MainWindowTest, OptionsAndListsAskForWhatTheyShow) {
    OpenWindow();
    Type(QStringLiteral("Dunn"));
    Press(Qt::Key_Return);
    Answer({});
    for (const char* document : {"Deed / W", "Mortgage Payoff N"}) {
        Type(QLatin1String(document));  // anew, however soon after the pick
        Press(Qt::Key_Return);
    }
    ASSERT_EQ(State().List2.size(), 2u);
    auto& twoPayoffs = Control<OptionRadio>("optConf8");
    QTest::mouseClick(&twoPayoffs, Qt::LeftButton, {}, QPoint(8, twoPayoffs.height() / 2));
    EXPECT_TRUE(twoPayoffs.isChecked());
    EXPECT_FALSE(Control<OptionRadio>("optConf7").isChecked());
    twoPayoffs.setFocus();
    QTest::keyClick(&twoPayoffs, Qt::Key_Delete);
    EXPECT_FALSE(twoPayoffs.isChecked());
    EXPECT_EQ(State().List2.size(), 1u) << "without payoffs their documents are off the list";
    EXPECT_EQ(Control<QListWidget>("List2").count(), 1);
}

TEST_F(MainWindowTest, AFaultBecomesAMessageAndTheJobStays) {
    OpenWindow();
    BeginJob(QStringLiteral("Ford"));
    fs::remove_all(scratch / "data");
    test::WriteBytes(scratch / "data", "a file where the folder was");
    Answer({"Yes"});
    bool told = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&] {
        if (QWidget* box = QApplication::activeModalWidget()) told = box->close();
    });
    closer.start(5);
    window->CommandDesk().Do([](MainScreen&) { throw std::runtime_error("the disk is full"); });
    EXPECT_TRUE(told);
    EXPECT_EQ(State().txtJobName.text, "Ford");
    EXPECT_FALSE(window->CommandDesk().IsBusy());
}

/// Mnemonics of what is on the screen, by key.
std::map<QString, QStringList> MnemonicsOf(const QWidget& window) {
    std::map<QString, QStringList> found;
    const auto add = [&](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) found[key.toString()].push_back(text);
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->shortcut().isEmpty())
            found[button->shortcut().toString()].push_back(button->text());
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) add(label->text());
    return found;
}

/// What can have the keyboard and says nothing to a screen reader.
void FindNameless(QAccessibleInterface* at, QStringList& nameless) {
    if (!at || !at->isValid() || at->state().invisible) return;
    const QObject* object = at->object();
    if (object && at->state().focusable && at->text(QAccessible::Name).trimmed().isEmpty())
        nameless.push_back(QLatin1String(object->metaObject()->className()) + QLatin1Char(' ') +
                           object->objectName());
    if (at->role() == QAccessible::Table || at->role() == QAccessible::List) return;
    for (int i = 0; i < at->childCount(); ++i) FindNameless(at->child(i), nameless);
}

TEST_F(MainWindowTest, EveryStateIsUsableAtTheKeyboardAndByEar) {
    OpenWindow();
    const auto check = [&](const char* state) {
        SCOPED_TRACE(state);
        for (const auto& [key, texts] : MnemonicsOf(*window))
            EXPECT_EQ(texts.size(), 1) << key.toStdString() << ": " << texts.join(", ").toStdString();
        QStringList nameless;
        FindNameless(QAccessible::queryAccessibleInterface(window.get()), nameless);
        EXPECT_TRUE(nameless.isEmpty()) << nameless.join(", ").toStdString();
        EXPECT_LE(window->minimumSizeHint().width(), 1024);
        EXPECT_LE(window->minimumSizeHint().height(), 660);
        for (const auto* button : window->findChildren<QPushButton*>()) {
            if (!button->isVisible()) continue;
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
            EXPECT_TRUE(
                window->rect().contains(QRect(button->mapTo(window.get(), QPoint()), button->size())));
        }
    };
    check("idle");
    screen->TypeName("Lane");
    screen->PickDocument("Contract / Regional Bar");
    Control("grdField").setFocus();
    Press(Qt::Key_Return);
    check("entering fields");
    screen->EnterField(18, "atty@example.com", EntryWay::Paste);
    window->ShowState();
    check("with an address to write to");
    screen->Click("cmdOpen");
    screen->Click("cmdExit");
    screen->Click("cmdReset");
    screen->OpenBrowser(false);
    screen->LoadJob("Lane", false);
    window->ShowState();
    check("opened");
    screen->Click("cmdOpen");
    window->ShowState();
    check("editing");
    screen->Click("cmdReset");
    screen->TypeName("DEFAULTS");
    screen->EnterName();
    window->ShowState();
    check("settings");
}

TEST_F(MainWindowTest, ThePageLeavesANarrowWindowFirstAndItsWidthIsKept) {
    OpenWindow({1500, 700});
    screen->TypeName("Lane");
    screen->PickDocument("Deed / Warranty");
    window->ShowState();
    const QWidget& page = Control("previewPane");
    const QWidget& documents = Control("List1");
    const auto resize = [&](int width) {
        window->resize(width, 700);
        QTest::qWait(20);
        for (const auto* button : window->findChildren<QAbstractButton*>(
                 QRegularExpression(QStringLiteral("^(lblJump|cmd|optConf)")))) {
            if (!button->isVisible()) continue;
            EXPECT_GE(button->width(), button->sizeHint().width())
                << button->text().toStdString() << " at " << width;
        }
    };
    window->PaneWidths().SetWidths(340, 460);
    window->PaneWidths().WantPage(true);
    resize(1500);
    EXPECT_EQ(page.width(), 460);
    resize(1240);
    EXPECT_TRUE(page.isVisible() && documents.isVisible());
    EXPECT_LT(page.width(), 460);
    resize(1024);
    EXPECT_FALSE(page.isVisible());
    EXPECT_LE(window->minimumSizeHint().width(), 1024);
    Press(Qt::Key_F6);
    EXPECT_TRUE(page.isVisible() && !documents.isVisible()) << "asked for, it takes the documents' place";
    resize(1500);
    EXPECT_TRUE(documents.isVisible());
    EXPECT_EQ(page.width(), 460);
    resize(1024);
    Press(Qt::Key_F6);
    EXPECT_TRUE(documents.isVisible() && !page.isVisible());
}

TEST_F(MainWindowTest, ScalesInStepsAndComesBackWhereItWas) {
    OpenWindow();
    const int height = Control("cmdCreate").fontMetrics().height();
    for (int i = 0; i < 30; ++i) QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(window->minimumSizeHint().width() <= window->screen()->availableSize().width() ||
                window->Look().Scale() == 100)
        << "as large as the screen allows and no larger";
    window->Look().SetScale(150);
    EXPECT_GT(Control("cmdCreate").fontMetrics().height(), height);
    QTest::qWait(50);
    for (const char* option : {"optConf1", "optConf10", "optConf11", "optConf15"})
        EXPECT_GE(Control(option).width(), Control(option).sizeHint().width()) << option;
    QTest::mouseClick(&Control("lblResize"), Qt::RightButton);
    EXPECT_EQ(window->Look().Scale(), 140);
    Control<QSlider>("Slider1").setValue(4);
    EXPECT_LT(window->palette().color(QPalette::Base).lightness(), 255);
    const WindowPlacement placement = window->Placement();

    MainWindow again(*screen);
    again.Restore(placement);
    EXPECT_EQ(again.Look().Scale(), 140);
    EXPECT_EQ(again.Look().Dimming(), 4);
    WindowPlacement lost = placement;
    lost.left = lost.top = 1e6;
    again.Restore(lost);
    EXPECT_TRUE(again.screen()->availableGeometry().intersects(again.geometry()));
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(window->Look().Scale(), 100);
}

}  // namespace
}  // namespace quillmark::desktop
