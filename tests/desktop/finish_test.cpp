#include "desktop/main_window.h"

#include <QTest>
#include <QTreeWidget>

#include "session/office_fixture.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

/// The end of a job at the main window: what is still open, CREATE, what it made.
class FinishTest : public test::OfficeTest {
 protected:
    FinishTest() {
        fs::create_directories(scratch / "Documents");
        Start();
        window = std::make_unique<MainWindow>(*screen);
        window->resize(1024, 700);
        window->show();
        QApplication::setActiveWindow(window.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        MakeSmallJob("Abbott");
        window->ShowState();
    }
    template <class Widget = QWidget>
    Widget* Control(const char* name) {
        return window->findChild<Widget*>(QLatin1String(name));
    }
    void Click(const char* name) { QTest::mouseClick(Control(name), Qt::LeftButton); }
    void Create(const char* answer) {
        Answer({answer});
        Click("cmdCreate");
    }
    /// Of the list of open fields, once it is there.
    QTreeWidgetItem* LineOf(const char* marker) {
        QTreeWidgetItem* line = nullptr;
        (void)QTest::qWaitFor([&] {
            auto* list = Control<QTreeWidget>("blanksList");
            const auto found =
                list ? list->findItems(QLatin1String(marker), Qt::MatchExactly | Qt::MatchRecursive)
                     : QList<QTreeWidgetItem*>();
            line = found.isEmpty() ? nullptr : found.front();
            return line != nullptr;
        });
        return line;
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(FinishTest, TheListOfWhatIsOpenLeadsToTheRowsAndFollowsThem) {
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    auto* buyer = LineOf("[buyer 1 name]");
    ASSERT_TRUE(buyer);
    EXPECT_EQ(buyer->text(1), "Deed / Warranty");
    EXPECT_TRUE(buyer->parent()->text(0).startsWith("Required"));
    ASSERT_TRUE(LineOf("[buyer 1 addr 2]"));
    EXPECT_TRUE(LineOf("[buyer 1 addr 2]")->parent()->text(0).startsWith("Optional"));
    Control<QTreeWidget>("blanksList")->setCurrentItem(buyer);
    QTest::keyClick(Control("blanksList"), Qt::Key_Return);
    EXPECT_EQ(screen->Editor().EditField, 59);
    window->CommandDesk().Do([](MainScreen& s) { s.EnterField(59, "Priya Castellan", EntryWay::Type); });
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return Control<QTreeWidget>("blanksList")
            ->findItems("[buyer 1 name]", Qt::MatchExactly | Qt::MatchRecursive)
            .isEmpty();
    }));
}

TEST_F(FinishTest, WhoDoesNotProceedIsShownWhatIsOpen) {
    Create("No");
    EXPECT_TRUE(LineOf("[buyer 1 name]"));
    EXPECT_FALSE(Control("finishPanel")->isVisible());
}

TEST_F(FinishTest, ThePanelSaysWhatWasMadeAndWhatCanBeDoneWithIt) {
    Create("Yes");
    const fs::path document = scratch / "Documents/Abbott_QMF.docx";
    ASSERT_TRUE(Control("finishPanel")->isVisible());
    EXPECT_EQ(Control<QLabel>("finishDocument")->text(), "Abbott_QMF.docx");
    EXPECT_TRUE(Control<QLabel>("finishFacts")->text().contains("job saved"));
    EXPECT_FALSE(Control("finishMail")->isVisible()) << "this computer mails no files";
    shell.opened.clear();
    Click("finishOpen");
    Click("finishFolder");
    EXPECT_EQ(shell.opened, (std::vector{document.string(), document.parent_path().string()}));
    dialogs.TakeShown();
    Click("finishNotices");
    EXPECT_NE(LastBox().find("ENCUMBRANCES"), std::string::npos);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Control("finishBlanks")->isEnabled(); }));
    Click("finishBlanks");
    EXPECT_TRUE(LineOf("[buyer 1 name]"));
    Click("finishClose");
    EXPECT_FALSE(Control("finishPanel")->isVisible());
    Create("Yes");
    EXPECT_TRUE(Control("finishPanel")->isVisible()) << "another run, another end";
    Click("cmdReset");
    EXPECT_FALSE(Control("finishPanel")->isVisible());
}

}  // namespace
}  // namespace quillmark::desktop
