#include <QAbstractButton>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

#include "desktop/side_windows/file_wait.h"
#include "desktop/side_windows_support.h"
#include "desktop/toolkit/dialogs.h"
#include "desktop/toolkit/guard.h"

namespace quillmark::desktop {
namespace {

using namespace std::chrono_literals;

class DialogsTest : public SideWindowTest {
 protected:
    /// What the box gives when that key is pressed in it.
    DialogButton Answer(const MessageDialog& box, Qt::Key key) {
        const WhenOpened opened([&](QWidget& window) { Press(window, key); });
        return boxes.Show(box);
    }
    std::optional<std::string> Answer(const InputDialog& box, const std::function<void(QWidget&)>& act) {
        const WhenOpened opened(act);
        return boxes.Ask(box);
    }

    QtDialogs boxes{&parent};
};

TEST_F(DialogsTest, EnterTakesTheDefaultAndEscapeCancelsWhereItCan) {
    using enum DialogButton;
    const MessageDialog warning{" Warning", "Delete?", {OK, Cancel}, OK, DialogIcon::Warning};
    EXPECT_EQ(Answer(warning, Qt::Key_Return), OK);
    EXPECT_EQ(Answer(warning, Qt::Key_Escape), Cancel);
    EXPECT_EQ(Answer({"", "Done"}, Qt::Key_Escape), OK);
    const MessageDialog question{"  ALERT", "Save?", {Yes, No}, No, DialogIcon::Question};
    EXPECT_EQ(Answer(question, Qt::Key_Return), No);
    EXPECT_EQ(Answer(question, Qt::Key_Y), Yes);
}

TEST_F(DialogsTest, AQuestionWithoutCancelStaysUntilItIsAnswered) {
    using enum DialogButton;
    for (const DialogButton preset : {Yes, No}) {
        const WhenOpened opened([](QWidget& window) {
            Press(window, Qt::Key_Escape);
            window.close();
            EXPECT_TRUE(window.isVisible());
            Press(window, Qt::Key_N);
        });
        EXPECT_EQ(boxes.Show({"  ALERT", "Save?", {Yes, No}, preset, DialogIcon::Question}), No);
    }
}

TEST_F(DialogsTest, AQuestionIsAsWideAsItsTitle) {
    const char* const title = " A QUESTION OF THE CLOSING STATEMENT WITH A TITLE OF MORE WORDS THAN ITS TEXT";
    const auto isWide = [&](QWidget& window) {
        QFont bold = window.font();
        bold.setBold(true);
        EXPECT_GT(window.width(), QFontMetrics(bold).horizontalAdvance(QLatin1String(title)) + 100);
        Press(window, Qt::Key_Return);
    };
    {
        const WhenOpened opened(isWide);
        boxes.Show({title, "Why?"});
    }
    const WhenOpened opened(isWide);
    boxes.Ask({title, "Why?", ""});
}

TEST_F(DialogsTest, ABoxShowsItsTextAsItStandsAndALongOneFits) {
    const WhenOpened opened([](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("  ALERT"));
        EXPECT_TRUE(box.text().startsWith(QStringLiteral("<b>1</b> & 2\n")));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_LT(box.height(), 600);
        EXPECT_TRUE(box.detailedText().endsWith(QStringLiteral("the end")));
        box.close();
    });
    std::string text = "<b>1</b> & 2\n";
    for (int i = 0; i < 100; ++i) text += "a line\n";
    boxes.Tell("  ALERT", text + "the end", DialogIcon::Stop);
}

TEST_F(DialogsTest, AnInputBoxOffersTheProposedTextSelected) {
    const InputDialog box{" EDIT", "Enter new value", "old & \xC3\xA9"};
    EXPECT_EQ(Answer(box, [](QWidget& window) { Press(window, Qt::Key_Return); }), "old & \xC3\xA9");
    EXPECT_EQ(Answer(box, [](QWidget& window) { Press(window, Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(Answer(box, [](QWidget& window) { window.close(); }), std::nullopt);
    const auto replaces = [](QWidget& window) {
        EXPECT_EQ(window.focusWidget()->accessibleName(), QStringLiteral("Enter new value"));
        Type(window, "new");
        Press(window, Qt::Key_Enter);
    };
    EXPECT_EQ(Answer(box, replaces), "new");
    const auto clears = [](QWidget& window) {
        Press(window, Qt::Key_Delete);
        Press(window, Qt::Key_Return);
    };
    EXPECT_EQ(Answer(box, clears), "");
}

TEST_F(DialogsTest, AFaultInAHandlerIsToldAndARefusalIsNot) {
    EXPECT_FALSE(Guarded(&parent, [] { throw NotAllowed("disabled"); }));
    const WhenOpened box([](QWidget& window) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(window).text(), QStringLiteral("disk full"));
        window.close();
    });
    QPushButton button(&parent);
    On(&button, &QPushButton::clicked, &parent, [] { throw std::runtime_error("disk full"); });
    button.click();
}

TEST_F(DialogsTest, AWaitForTheAddressBooksShowsTheHolderAndGivesWay) {
    const auto window = [&] { return parent.findChild<QProgressDialog*>(); };
    const WaitForFile wait = WaitingForFiles(&parent);
    const FileHolder jane{"jane", "FRONTDESK", "2026-03-05 10:16:04"};
    EXPECT_TRUE(wait({"Access.lok", jane, 50ms}));
    EXPECT_EQ(window(), nullptr);
    EXPECT_TRUE(wait({"Access.lok", jane, 5s}));
    ASSERT_NE(window(), nullptr);
    EXPECT_TRUE(window()->labelText().contains(QStringLiteral("jane at FRONTDESK")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window(); }));  // the books came free
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    EXPECT_TRUE(wait({"Access.lok", std::nullopt, 5s}));
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_FALSE(wait({"Access.lok", std::nullopt, 5s}));
    EXPECT_EQ(window(), nullptr);
}

}  // namespace
}  // namespace quillmark::desktop
