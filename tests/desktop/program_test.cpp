#include "desktop/program.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/toolkit/text.h"
#include "platform/paths.h"
#include "session/office_fixture.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

/// Closes every modal window as it comes, and keeps what it was and what stood behind it.
class Doorman {
 public:
    Doorman() {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal) return;
            titles << modal->windowTitle().trimmed();
            for (QWidget* window : QApplication::topLevelWidgets())
                for (const QPushButton* button : window->findChildren<QPushButton*>())
                    if (button->isVisible() && button->text().isEmpty()) blanks << button->objectName();
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        timer_.start(5);
    }

    QStringList titles;
    QStringList blanks;  ///< visible buttons without a caption

 private:
    QTimer timer_;
};

class ProgramTest : public test::OfficeTest {
 protected:
    static LaunchOrder OrderFor(const fs::path& folder, bool shared = true) {
        return {.folder = folder, .job = {}, .upgrade = false, .shared = shared, .lookForUpgrade = false};
    }
};

TEST_F(ProgramTest, ANewcomerIsWelcomedBeforeAnyWarningAndSeesNoBlankButtons) {
    Program program(OrderFor(scratch / "new office"));
    Doorman doorman;
    ASSERT_TRUE(program.Start());
    QTest::qWait(50);
    EXPECT_EQ(doorman.titles, (QStringList{QStringLiteral("Welcome"), QStringLiteral("IMPORTANT")}));
    EXPECT_EQ(doorman.blanks, QStringList());
}

TEST_F(ProgramTest, ASecondStartHandsItsJobToTheFirst) {
    Start();
    MakeSmallJob("Reed");
    Answer({"Yes"});
    screen->Click("cmdCreate");
    Program first(OrderFor(scratch.path(), false));
    ASSERT_TRUE(first.Start());
    const QString job = Shown(TextOf(JobFile("Reed")));
    EXPECT_TRUE(SingleInstance(SingleInstance::NameFor(scratch.path())).HandOver(job));
    const auto* name = first.Window().findChild<QLineEdit*>(QStringLiteral("txtJobName"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return name->text() == QLatin1String("Reed"); }));
}

}  // namespace
}  // namespace quillmark::desktop
