#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/side_windows/custom_forms_dialog.h"
#include "desktop/side_windows_support.h"
#include "platform/paths.h"
#include "support/form_docx.h"

namespace quillmark::desktop {
namespace {

using test::FormDocx;
using test::Line;

/// A window left open, by a check that failed in it, would wait for ever.
struct Closing {
    QWidget& window;
    ~Closing() {
        if (window.isVisible()) QTest::keyClick(&window, Qt::Key_Escape);
    }
};

class CustomFormsDialogTest : public SideWindowTest {
 protected:
    CustomFormsDialogTest() {
        Start();
        forms = screen->FirmAround().folders.CustomFormsFolder;
        source = scratch.path() / "Rider.docx";
        test::WriteBytes(source, FormDocx{Line("[seler 1 name]")}.Bytes());
        screen->Click("cmdCustom");
    }
    static void Press(QWidget& window, const char* button) {
        auto* widget = window.findChild<QPushButton*>(QLatin1String(button));
        ASSERT_TRUE(widget && widget->isEnabled()) << button;
        widget->click();
    }
    static LinesView& List(QWidget& window, const char* name) {
        for (auto* list : window.findChildren<LinesView*>())
            if (list->accessibleName() == QLatin1String(name)) return *list;
        throw std::runtime_error(std::string("no list ") + name);
    }

    std::filesystem::path forms;
    std::filesystem::path source;
};

TEST_F(CustomFormsDialogTest, AFormIsTakenInCheckedAndMended) {
    const WhenOpened work([&](QWidget& window) {
        const Closing closing{window};
        window.findChild<QLineEdit*>(QStringLiteral("txtSourceFile"))->setFocus();
        Type(window, quillmark::TextOf(source));
        Press(window, "cmdImport");
        Press(window, "cmdEdit");
        List(window, "Forms").SelectLine(0);
        Press(window, "cmdCheck");
        LinesView& findings = List(window, "Found in the form");
        const auto faulty = [&] { return LinesOf(findings).filter(QStringLiteral("[seler 1 name]")); };
        ASSERT_EQ(faulty().size(), 1) << "what fonts are missing is told behind it";
        findings.SelectLine(0);
        Press(window, "cmdMend");
        EXPECT_TRUE(faulty().empty());
        Press(window, "cmdExit");
    });
    ShowCustomForms(*screen, &parent);
    EXPECT_EQ(screen->Window(), nullptr);
    EXPECT_EQ(State().List1.back(), "[ Rider ]");
    EXPECT_EQ(test::ReadBytes(forms / "Rider.inf"), "\"[seller 1 name]\",21,0\r\n");
}

TEST_F(CustomFormsDialogTest, TheSearchedMarkerGoesToTheClipboardAtEachClick) {
    const WhenOpened work([&](QWidget& window) {
        const Closing closing{window};
        Press(window, "cmdEdit");
        auto* search = window.findChild<QLineEdit*>(QStringLiteral("searchMarkers"));
        search->setFocus();
        Type(window, "closing mo");
        LinesView& markers = List(window, "Field markers");
        ASSERT_EQ(LinesOf(markers), QStringList{QStringLiteral("[closing month]")});
        markers.SelectLine(0);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("[closing month]"));
        QGuiApplication::clipboard()->setText(QStringLiteral("other"));
        QTest::mouseClick(markers.viewport(), Qt::LeftButton, {},
                          markers.visualRect(markers.currentIndex()).center());
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("[closing month]"));
    });
    ShowCustomForms(*screen, &parent);
    EXPECT_EQ(screen->Window(), nullptr);
}

}  // namespace
}  // namespace quillmark::desktop
