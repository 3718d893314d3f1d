#include "desktop/main_window.h"

#include <QMimeData>
#include <QTest>
#include <QTreeWidget>

#include "session/office_fixture.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

/// Finding one's way: documents, fields, jobs, and what is dragged here and there.
class FindingTest : public test::OfficeTest {
 protected:
    void OpenWindow() {
        if (!screen) Start();
        window = std::make_unique<MainWindow>(*screen);
        window->resize(1024, 700);
        window->show();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    template <class Widget = QWidget>
    Widget& Control(const char* name) {
        return *window->findChild<Widget*>(QLatin1String(name));
    }
    std::vector<std::string> JobList() const {
        std::vector<std::string> names;
        for (const JobListLine& line : State().List2) names.push_back(line.name);
        return names;
    }
    void Drop(const fs::path& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted()) return;
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &drop);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(FindingTest, AFilterLeavesTheDocumentsThatHoldItsWords) {
    OpenWindow();
    screen->TypeName("Dunn");
    window->ShowState();
    auto& catalogue = Control<QListWidget>("List1");
    const int all = catalogue.count();
    QTest::keyClick(window.get(), Qt::Key_L, Qt::ControlModifier);
    auto& filter = Control<QLineEdit>("documentFilter");
    ASSERT_TRUE(filter.hasFocus());
    QTest::keyClicks(&filter, "affid smoke");
    ASSERT_EQ(catalogue.count(), 1);
    EXPECT_EQ(catalogue.item(0)->text(), "Smoke Detector Affidavit");
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_EQ(JobList(), std::vector<std::string>{"Smoke Detector Affidavit"});
    QTest::keyClicks(&filter, "deed");  // over the words that are selected now
    EXPECT_EQ(filter.text(), "deed");
    EXPECT_GT(catalogue.count(), 1);
    QTest::keyClick(&filter, Qt::Key_Escape);
    EXPECT_EQ(catalogue.count(), all);
}

TEST_F(FindingTest, FieldsAndValuesAreFoundByTheirWords) {
    Start();
    MakeSmallJob("Abbott");
    OpenWindow();
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    auto& box = Control<QLineEdit>("findBox");
    ASSERT_TRUE(box.hasFocus());
    QTest::keyClicks(&box, "abbott");
    EXPECT_EQ(State().grid[static_cast<std::size_t>(State().currentRow)].n, 21) << "by its value";
    EXPECT_TRUE(box.hasFocus());
    box.clear();
    QTest::keyClicks(&box, "buyer name");
    const int first = State().currentRow;
    EXPECT_EQ(State().grid[static_cast<std::size_t>(first)].n, 59);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(screen->Editor().EditField, 59);
    EXPECT_FALSE(Control("findBar").isVisible());
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&box, "no such field");
    EXPECT_EQ(Control<QLabel>("findCount").text(), "nothing");
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_TRUE(Control("grdField").hasFocus());
}

TEST_F(FindingTest, TheJobListIsPutInOrderByKeysAndByDraggingAndTakenBack) {
    OpenWindow();
    for (const char* document : {"Deed / Warranty", "Schedule A", "Owner's Affidavit"})
        screen->PickDocument(document);
    window->ShowState();
    const std::vector<std::string> first = JobList();
    ASSERT_EQ(first.size(), 3u);
    auto& list = Control<QListWidget>("List2");
    list.setFocus();
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(JobList(), (std::vector{first[1], first[0], first[2]}));
    EXPECT_EQ(list.currentRow(), 1) << "it stays in hand";
    EXPECT_EQ(screen->History().UndoName(), "order of the job list");
    const QPoint from = list.visualItemRect(list.item(1)).center();
    const QPoint to(from.x(), list.visualItemRect(list.item(2)).bottom() - 1);
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, from);
    for (const QPoint& point : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, point, list.viewport()->mapToGlobal(point), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(list.viewport(), &move);
    }
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(JobList(), (std::vector{first[1], first[2], first[0]}));
    EXPECT_TRUE(State().LegalList.empty()) << "who drags does not choose paper";
    for (int i = 0; i < 2; ++i) QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(JobList(), first);
}

TEST_F(FindingTest, RecentJobsStandOnTheFirstScreenWithTheirDates) {
    Start();
    for (const char* job : {"Abbott", "Reed"}) {
        MakeSmallJob(job);
        screen->Click("cmdOpen");
        screen->Click("cmdReset");
    }
    OpenWindow();
    auto& recent = Control<QTreeWidget>("recentJobs");
    ASSERT_TRUE(recent.isVisible());
    ASSERT_EQ(recent.topLevelItemCount(), 2);
    EXPECT_EQ(recent.topLevelItem(0)->text(0), "Reed");
    EXPECT_TRUE(recent.topLevelItem(0)->text(1).startsWith("today"));
    recent.setFocus();
    QTest::keyClick(&recent, Qt::Key_Down);
    QTest::keyClick(&recent, Qt::Key_Return);
    EXPECT_EQ(State().txtJobName.text, "Abbott");
    EXPECT_FALSE(recent.isVisible());
}

TEST_F(FindingTest, AJobFileAndAFormAreTakenWhenTheyAreDropped) {
    OpenWindow();
    std::vector<QString> dropped;
    QObject::connect(window.get(), &MainWindow::Dropped,
                     [&](const QString& file) { dropped.push_back(file); });
    for (const char* file : {"Abbott.dat", "Rider.docx", "picture.png"}) Drop(scratch / file);
    ASSERT_EQ(dropped.size(), 2u);
    EXPECT_TRUE(dropped[0].endsWith("Abbott.dat") && dropped[1].endsWith("Rider.docx"));
    // A file from elsewhere is a job like any other.
    test::WriteBytes(scratch / "mail/Reed.dat", "\"021\",\"Mary Reed\"\r\n");
    screen->OpenJob((scratch / "mail/Reed.dat").string());
    EXPECT_EQ(State().txtJobName.text, "Reed");
    EXPECT_EQ(State().job.D(21), "Mary Reed");
    EXPECT_FALSE(screen->BrowserOpen());
}

}  // namespace
}  // namespace quillmark::desktop
