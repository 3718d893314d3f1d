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

TEST_F(CustomFormsDialogTest, TheSearchedMarkerGoesToTheClipboard) {
    const WhenOpened work([&](QWidget& window) {
        Press(window, "cmdEdit");
        auto* search = window.findChild<QLineEdit*>(QStringLiteral("searchMarkers"));
        search->setFocus();
        Type(window, "closing mo");
        LinesView& markers = List(window, "Field markers");
        ASSERT_EQ(LinesOf(markers), QStringList{QStringLiteral("[closing month]")});
        markers.SelectLine(0);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("[closing month]"));
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    ShowCustomForms(*screen, &parent);
    EXPECT_EQ(screen->Window(), nullptr);
}

}  // namespace
}  // namespace quillmark::desktop
