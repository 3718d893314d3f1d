#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <set>

#include "desktop/side_windows/address_window.h"
#include "desktop/side_windows/browser_window.h"
#include "desktop/side_windows/calculator_window.h"
#include "desktop/side_windows/clients_window.h"
#include "desktop/side_windows/packages_window.h"
#include "desktop/side_windows_support.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {
namespace {

using test::ReadBytes;
using test::WriteBytes;

QPushButton* ButtonNamed(const QWidget& window, const char* name) {
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->accessibleName() == QLatin1String(name)) return button;
    return nullptr;
}

class BrowserTest : public SideWindowTest {
 protected:
    void Open(bool templates) {
        screen->Click(templates ? "cmdTemplate" : "cmdOpen");
        browser.emplace(screen->FirmAround().folders, templates, dialogs);
        window.emplace(*screen, *browser, &parent);
        list = window->findChild<LinesView*>();
        Show(*window);
    }

    std::optional<FileBrowser> browser;
    std::optional<BrowserWindow> window;
    LinesView* list = nullptr;
};

TEST_F(BrowserTest, ASavedJobIsFoundAndLoadedAtTheKeyboard) {
    Start({"OK"});
    MakeSmallJob("Smith - 101 Any Street");
    screen->Click("cmdOpen");
    Answer({"No"});
    screen->Click("cmdReset");
    for (const char* name : {"Abbott", "goldSMIth & Sons", "Whitcomb"})
        WriteData(std::string(name) + ".dat", "");

    Open(false);
    Type(*window, "smix");
    EXPECT_TRUE(window->windowTitle().endsWith(QStringLiteral("search text =>   SMIX")));
    EXPECT_TRUE(LinesOf(*list).isEmpty());
    Press(*window, Qt::Key_Backspace);
    EXPECT_EQ(LinesOf(*list), QStringList({"goldSMIth & Sons", "Smith - 101 Any Street"}));
    Press(*window, Qt::Key_Down);
    Press(*window, Qt::Key_Down);
    Type(*window, "th ");  // goes to the search, though the list has the focus
    EXPECT_EQ(LinesOf(*list), QStringList({"goldSMIth & Sons", "Smith - 101 Any Street"}));
    Type(*window, "- ");
    EXPECT_EQ(LinesOf(*list), QStringList("Smith - 101 Any Street"));
    Press(*window, Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(State().txtJobName.text, "Smith - 101 Any Street");
    EXPECT_EQ(State().job.D(21), "Anna Abbott");
}

TEST_F(BrowserTest, AFaultyJobFileIsToldAndTheBrowserStays) {
    WriteData("Torn.dat", "\"1\",\"never ends");
    Start();
    Open(false);
    const WhenOpened box([](QWidget& message) { message.close(); });
    DoubleClick(*list, list->model()->index(0, 0));
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(State().txtJobName.text.empty());
    Press(*window, Qt::Key_Escape);
    EXPECT_FALSE(screen->BrowserOpen());
}

TEST_F(BrowserTest, OnlyControlShiftDeleteDeletesAndOnlyFiles) {
    for (const char* name : {"{ OAK_template }", "{ REGENCY_template }"})
        WriteData(std::string(name) + ".dat", "");
    Start();
    Open(true);
    const QStringList all = LinesOf(*list);
    Press(*window, Qt::Key_Down);
    Press(*window, Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);  // the line for a new template
    Press(*window, Qt::Key_Down);
    Press(*window, Qt::Key_Delete);
    EXPECT_EQ(LinesOf(*list), all);
    QPushButton* spawn = ButtonNamed(*window, "Spawn");
    EXPECT_TRUE(spawn->isEnabled());
    EXPECT_EQ(spawn->palette().color(QPalette::Button), QColor(0xFF, 0xFF, 0xC0));
    Press(*window, Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(LinesOf(*list), QStringList({all[0], "{ REGENCY_template }"}));
    EXPECT_FALSE(std::filesystem::exists(JobFile("{ OAK_template }")));
    EXPECT_FALSE(spawn->isEnabled());
}

TEST_F(BrowserTest, EscapeLeavesTheTemplatesAndSpawnMakesAJob) {
    Start();
    screen->Click("cmdTemplate");
    screen->LoadJob(kNewTemplateEntry, true);
    screen->TypeName("regency");
    screen->EnterField(70, "7 Regency Way", EntryWay::Type);
    screen->Click("cmdOpen");
    screen->Click("cmdReset");

    Open(true);
    Press(*window, Qt::Key_Escape);
    EXPECT_EQ(State().mode, ScreenMode::Job);
    EXPECT_FALSE(window->isVisible());

    Open(true);
    list->SelectLine(1);
    QTest::keyClick(&*window, Qt::Key_S, Qt::AltModifier);  // the search
    EXPECT_EQ(window->focusWidget(), window->findChild<QLineEdit*>());
    ButtonNamed(*window, "Spawn")->setFocus();
    Press(*window, Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(State().txtJobName.text, "regency - ");
    EXPECT_EQ(State().job.D(70), "7 Regency Way");
}

TEST_F(BrowserTest, AMissingJobFolderLeadsToTheSettings) {
    Start();
    screen->Click("cmdOpen");
    std::filesystem::remove_all(scratch.path() / "data");
    EXPECT_FALSE(ShowBrowser(*screen, &parent));
    EXPECT_FALSE(screen->BrowserOpen());
    EXPECT_TRUE(screen->SettingsListShown());
}

TEST_F(BrowserTest, OneMoreLetterIsShownWithinAFrameAmongTenThousandJobs) {
    for (int i = 0; i < 10'000; ++i) WriteData("Job " + std::to_string(i) + " - Smith.dat", "");
    Start();
    Open(false);
    std::vector<qint64> times;
    for (const char letter : std::string("job 1 - smith")) {
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(window->focusWidget(), letter);
        list->viewport()->repaint();
        times.push_back(timer.nsecsElapsed() / 1000);
    }
    std::sort(times.begin(), times.end());
    RecordProperty("median_us", static_cast<int>(times[times.size() / 2]));
    RecordProperty("worst_us", static_cast<int>(times.back()));
    EXPECT_LT(times[times.size() / 2], 16'000);
    EXPECT_EQ(LinesOf(*list), QStringList("Job 1 - Smith"));
}

TEST_F(SideWindowTest, APackageIsMadeRenamedAndLeftAtTheKeyboard) {
    Start();
    PackageEditor editor(State().List1, screen->FirmAround().folders, screen->Person());
    PackagesWindow window(editor, &parent);
    Show(window);
    const auto lists = window.findChildren<LinesView*>();
    Type(window, "my <deeds>");
    EXPECT_EQ(window.findChild<QComboBox*>()->currentText(), QStringLiteral("MY DEEDS"));
    lists[0]->setFocus();
    lists[0]->SelectLine(static_cast<int>(LinesOf(*lists[0]).indexOf(QStringLiteral("Deed / Warranty"))));
    Press(window, Qt::Key_Return);
    lists[0]->SelectLine(static_cast<int>(LinesOf(*lists[0]).indexOf(QStringLiteral("Closing Statement"))));
    Press(window, Qt::Key_Return);
    lists[0]->SelectLine(static_cast<int>(LinesOf(*lists[0]).indexOf(QStringLiteral("Deed / Quitclaim"))));
    Press(window, Qt::Key_Return);
    EXPECT_EQ(LinesOf(*lists[1]), QStringList({"Closing Statement", "Deed / Quitclaim"}));
    ButtonNamed(window, "Save Package")->click();
    EXPECT_EQ(ReadBytes(scratch / "package.def"),
              "\"<02>MY DEEDS\"\r\n\"Closing Statement\"\r\n\"Deed / Quitclaim\"\r\n");

    window.findChild<QCheckBox*>()->click();
    window.findChild<QComboBox*>()->lineEdit()->selectAll();
    QTest::keyClicks(window.findChild<QComboBox*>(), QStringLiteral("ours"));
    ButtonNamed(window, "Save Package")->click();
    EXPECT_EQ(editor.State().Combo1, (std::vector<std::string>{"NEW PACKAGE", "OURS"}));

    lists[1]->setFocus();
    lists[1]->SelectLine(0);
    Press(window, Qt::Key_Delete);
    EXPECT_EQ(LinesOf(*lists[1]), QStringList("Deed / Quitclaim"));
    Answer({"No"});
    Press(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(LastBox(), "You did not save your changes.\nSave them now ???");
    EXPECT_EQ(ReadBytes(scratch / "package.def"),
              "\"<02>OURS\"\r\n\"Closing Statement\"\r\n\"Deed / Quitclaim\"\r\n");
}

TEST_F(SideWindowTest, LeavingThePackagesShowsThemOnTheMainScreenAndLeadsToCustomDocuments) {
    Start();
    const WhenOpened editor([&](QWidget& window) {
        WriteBytes(scratch / "package.def", "\"<01>NEW ONE\"\r\n\"Deed / Warranty\"\r\n");
        ButtonNamed(window, "Click HERE to import/edit custom documents")->click();
    });
    EXPECT_TRUE(ShowPackageEditor(*screen, &parent));
    EXPECT_EQ(State().List1.front(), "< NEW ONE >");
    screen->TypeName("x");
    EXPECT_THROW(ShowPackageEditor(*screen, &parent), NotAllowed);
}

TEST_F(SideWindowTest, AnAddressIsTypedAddedFoundAndRemoved) {
    Start();
    AddressWindow window(screen->OpenAddresses(AddressBook::Attorneys), &parent);
    Show(window);
    for (const char* item :
         {"Brown & Lee", "Maria Brown", "1 Court Street", "", "Hartford, CT 06103", "8605550100", "860"}) {
        Type(window, item);
        Press(window, Qt::Key_Return);
    }
    EXPECT_EQ(window.findChildren<QLineEdit*>()[5]->text(), QStringLiteral("(860) 555-0100"));
    Press(window, Qt::Key_Return);  // from the last box to ADD
    Press(window, Qt::Key_Return);
    const std::string record =
        "Brown & Lee _ Maria Brown _ 1 Court Street _  _ Hartford, CT 06103 _ (860) 555-0100 _ 860 _ ";
    EXPECT_EQ(ReadBytes(scratch / "data/Attorneys.lst"), record + "\r\n");
    auto* records = window.findChild<LinesView*>();
    EXPECT_EQ(LinesOf(*records), QStringList(Shown(record)));

    window.findChildren<QLineEdit*>()[0]->clear();
    records->setFocus();
    records->SelectLine(0);
    EXPECT_EQ(window.findChildren<QLineEdit*>()[0]->text(), QStringLiteral("Brown & Lee"));
    Press(window, Qt::Key_Delete);
    EXPECT_TRUE(LinesOf(*records).isEmpty());
    EXPECT_TRUE(window.findChildren<QLineEdit*>()[1]->text().isEmpty());
    Press(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SideWindowTest, TheCalculatorCopiesAndHandsAnAmountToTheGrid) {
    Start({"OK"});
    screen->TypeName("smith");
    screen->EnterName();
    screen->PickDocument("Closing Statement");
    const auto& grid = State().grid;
    const auto row = std::find_if(grid.begin(), grid.end(), [](const GridRow& r) { return r.n == 193; });
    ASSERT_NE(row, grid.end());
    screen->ClickGrid(static_cast<int>(row - grid.begin()), 1);
    CalculatorWindow window(*screen, &parent);
    Show(window);
    QSignalSpy handedOver(&window, &CalculatorWindow::HandedOver);
    const auto dates = window.findChildren<QDateEdit*>();
    dates[1]->setDate(QDate(2025, 7, 10));
    EXPECT_EQ(dates[2]->maximumDate(), QDate(2025, 7, 10));
    dates[2]->setDate(QDate(2025, 7, 5));
    Type(window, "10000");
    EXPECT_EQ(window.findChild<QLineEdit*>()->text(), QStringLiteral("10,000"));
    QLineEdit* unpaid = nullptr;
    for (QLineEdit* box : window.findChildren<QLineEdit*>())
        if (box->accessibleName() == QStringLiteral("Unpaid")) unpaid = box;
    QTest::mouseClick(unpaid, Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("4,000.00"));
    QPushButton* buyer = ButtonNamed(window, "Credit buyer");
    EXPECT_EQ(buyer->toolTip(), QStringLiteral("Click to credit buyer this amount"));
    buyer->setFocus();
    Press(window, Qt::Key_Space);
    EXPECT_EQ(handedOver.count(), 1);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(State().job.D(193), "$4,000.00 = U");
}

TEST_F(SideWindowTest, TheCalculatorTellsWhyTheGridTakesNoAmount) {
    Start();
    CalculatorWindow window(*screen, &parent);
    Show(window);
    ButtonNamed(window, "Credit buyer")->click();
    EXPECT_EQ(LastBox(), "no field is current in the grid");
    EXPECT_TRUE(window.isVisible());
    screen->Click("cmdReset");
    window.Follow();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SideWindowTest, ClientsAreChosenAndDeletedAndEscapeChoosesNone) {
    WriteBytes(scratch / "DBasePath.txt", "\"data\\\"\r\n\"N\"\r\n\"Y\"\r\n\"Y\"\r\n\"Y\"\r\n\"ON\"\r\n");
    WriteBytes(scratch / "parapro.dir", "\"Hale Law\"\r\n\"Stone\"\r\n");
    WriteBytes(scratch / "data/Stone/images/Hollis_201.bmp", "");
    WriteBytes(scratch / "data/Hale Law/images/Hollis_201.bmp", "");
    Start();
    {
        const WhenOpened escape([](QWidget& window) { Press(window, Qt::Key_Escape); });
        EXPECT_FALSE(ShowClients(*screen, &parent));
    }
    EXPECT_TRUE(screen->ChoosingClient());
    Answer({"OK"});
    const WhenOpened choose([&](QWidget& window) {
        auto* list = window.findChild<LinesView*>();
        list->SelectLine(2);
        Press(window, Qt::Key_Delete);
        EXPECT_EQ(LinesOf(*list), QStringList({"< ADD LAWFIRM / CLIENT >", "Hale Law"}));
        list->SelectLine(1);
        Press(window, Qt::Key_Return);
    });
    EXPECT_TRUE(ShowClients(*screen, &parent));
    EXPECT_EQ(screen->Client(), "Hale Law");
    EXPECT_FALSE(std::filesystem::exists(scratch / "data/Stone"));
}

/// What a person without a mouse or without sight needs of every window.
void ExpectReachable(QWidget& window) {
    SCOPED_TRACE(Utf8(window.windowTitle()));
    std::set<QWidget*> controls;
    std::set<QString> mnemonics;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled()) continue;
        const QString text = control->property("text").toString();
        const bool marks = qobject_cast<QAbstractButton*>(control) ||
                           (qobject_cast<QLabel*>(control) && static_cast<QLabel*>(control)->buddy());
        const QKeySequence key = marks ? QKeySequence::mnemonic(text) : QKeySequence();
        if (!key.isEmpty()) {
            EXPECT_TRUE(mnemonics.insert(key.toString()).second) << key.toString().toStdString();
        }
        const bool ownsFocus = (control->focusPolicy() & Qt::TabFocus) && !control->focusProxy();
        if (!ownsFocus || qobject_cast<QComboBox*>(control->parentWidget()) ||
            qobject_cast<QAbstractSpinBox*>(control->parentWidget()))
            continue;
        controls.insert(control);
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
        ASSERT_TRUE(spoken) << control->metaObject()->className();
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << control->metaObject()->className();
    }
    std::set<QWidget*> reached;
    for (std::size_t i = 0; i < controls.size() * 2; ++i) {
        QWidget* focus = window.focusWidget();
        for (QWidget* w = focus; w && w != &window; w = w->parentWidget()) reached.insert(w);
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    for (QWidget* control : controls)
        EXPECT_TRUE(reached.contains(control))
            << control->metaObject()->className() << " " << control->accessibleName().toStdString();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SideWindowTest, EveryWindowIsReachableByKeyboardAndSpeech) {
    WriteData("Smith.dat", "");
    WriteData("Attorneys.lst", "A _ A _ 1 _  _ H _ 2 _ 3 _ \r\n");
    Start();
    {
        FileBrowser browser(screen->FirmAround().folders, false, dialogs);
        BrowserWindow window(*screen, browser, &parent);
        Show(window);
        ExpectReachable(window);
    }
    {
        PackageEditor editor(State().List1, screen->FirmAround().folders, screen->Person());
        PackagesWindow window(editor, &parent);
        Show(window);
        ExpectReachable(window);
    }
    for (const AddressBook book : {AddressBook::Attorneys, AddressBook::Servicers}) {
        AddressWindow window(screen->OpenAddresses(book), &parent);
        Show(window);
        if (book == AddressBook::Attorneys) window.findChild<LinesView*>()->SelectLine(0);
        ExpectReachable(window);
    }
    {
        CalculatorWindow window(*screen, &parent);
        Show(window);
        ExpectReachable(window);
        EXPECT_EQ(screen->Calculator(), nullptr);
    }
    ClientsWindow window(*screen, &parent);
    Show(window);
    window.findChild<LinesView*>()->SelectLine(0);
    ExpectReachable(window);
}

}  // namespace
}  // namespace quillmark::desktop
