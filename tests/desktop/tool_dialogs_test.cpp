#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "core/fields.h"
#include "desktop/machine/printer_bins.h"
#include "desktop/side_windows/envelope_dialog.h"
#include "desktop/side_windows/op236_dialog.h"
#include "desktop/side_windows_support.h"
#include "desktop/toolkit/sheet.h"

namespace quillmark::desktop {
namespace {

/// The windows of the return and of the envelopes, over a job with a seller.
class ToolDialogTest : public SideWindowTest {
 protected:
    void Open(const char* button) {
        WriteData("Hollis.dat",
                  "\"000\",\"Deed / Warranty\"\r\n\"021\",\"Walter B. Hollis\"\r\n"
                  "\"023\",\"14 Chestnut Lane\"\r\n\"025\",\"Branford, CT 06405\"\r\n"
                  "\"076\",\"$415,000.00\"\r\n");
        Start();
        screen->OpenBrowser(false);
        screen->LoadJob("Hollis", false);
        screen->Click(button);
    }
    template <class Widget>
    static Widget& Find(QWidget& window, const char* name) {
        auto* found = window.findChild<Widget*>(QLatin1String(name));
        if (!found) throw std::runtime_error(std::string("no ") + name);
        return *found;
    }
    static void ClickLine(QListView& list, int line, int across) {
        list.scrollTo(list.model()->index(line, 0), QAbstractItemView::PositionAtTop);
        const QRect area = list.visualRect(list.model()->index(line, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, area.topLeft() + QPoint(across, 8));
    }
};

TEST_F(ToolDialogTest, AnExemptionIsClickedCitedAndTakenBack) {
    Open("cmdOP236");
    const WhenOpened work([&](QWidget& window) {
        Show(window);
        EXPECT_EQ(Find<QComboBox>(window, "Combo1").currentText(), QStringLiteral("Warranty Deed"));
        EXPECT_FALSE(Find<QLineEdit>(window, "Text3").isEnabled());
        EXPECT_EQ(window.focusWidget(), &Find<QLineEdit>(window, "Text1"));
        Press(window, Qt::Key_Tab);
        Press(window, Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), &Find<QLineEdit>(window, "Text5")) << "a grey entry is passed over";
        EXPECT_FALSE(Find<QLineEdit>(window, "Text7").isVisible());
        auto& codes = Find<QListView>(window, "rtbCode");
        ClickLine(codes, 8, 60);
        EXPECT_EQ(Find<QLabel>(window, "code").text(), QStringLiteral("09"));
        EXPECT_EQ(window.focusWidget(), &Find<QLineEdit>(window, "Text9"));
        Type(window, "FA-26-1");  // over what is selected
        EXPECT_EQ(screen->Window()->Control("Text9").text, "FA-26-1");
        ClickLine(codes, 8, 2);
        EXPECT_EQ(Find<QLabel>(window, "code").text(), QString());
        EXPECT_FALSE(Find<QLineEdit>(window, "Text9").isVisible());
        Find<QCheckBox>(window, "Check1").click();
        EXPECT_EQ(Find<QLabel>(window, "code").text(), QStringLiteral("17"));
        Find<QPushButton>(window, "Printer Setup").click();
        EXPECT_FALSE(codes.isVisible());
        auto& fromTop = Find<QLineEdit>(window, "txtFromTop");
        fromTop.setFocus();
        fromTop.clear();
        Find<QPushButton>(window, "OK").setFocus();
        EXPECT_EQ(fromTop.text(), QStringLiteral("0.0000"));
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    ShowReturn(*screen, &parent);
    EXPECT_EQ(screen->Window(), nullptr);
}

TEST_F(ToolDialogTest, AnUntouchedLineIsTypedOverAndTheIndentWaitsForTheWholeNumber) {
    Open("cmdEnvelopes");
    dialogs.TakeShown();
    const WhenOpened work([&](QWidget& window) {
        Show(window);
        EXPECT_FALSE(Find<QPushButton>(window, "PRINT").isEnabled());
        Find<QLineEdit>(window, "txtAddr1").setFocus();
        QApplication::processEvents();
        Type(window, "Jane");
        EXPECT_EQ(Find<QLineEdit>(window, "txtAddr1").text(), QStringLiteral("Jane"));
        Find<QPushButton>(window, "setup").click();
        auto& indent = Find<QLineEdit>(window, "txtIndent");
        indent.setFocus();
        indent.selectAll();
        Type(window, "12");
        EXPECT_EQ(indent.text(), QStringLiteral("12"));
        Find<QRadioButton>(window, "Landscape").setFocus();
        EXPECT_EQ(indent.text(), QStringLiteral("6.00"));
        Find<QRadioButton>(window, "Landscape").click();
        Find<QPushButton>(window, "OK").click();
        EXPECT_TRUE(Find<QPushButton>(window, "PRINT").isEnabled());
        EXPECT_FALSE(indent.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    ShowEnvelopes(*screen, &parent);
    EXPECT_EQ(screen->Window(), nullptr);
}

// The ink of a text begins at its place, in inches, and the paper has the size that the printer is told.
TEST(Sheet, StandsAtItsPlacesInInches) {
    PrintedPage page{.paper = SheetSize::Envelope10, .landscape = true};
    page.items = {{2.75, 1.75, "H", "Arial", 14, true}};
    EXPECT_EQ(SheetInches(page), QSizeF(9.5, 4.125));
    constexpr int kDots = 200;
    QImage paper((SheetInches(page) * kDots).toSize(), QImage::Format_Grayscale8);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    DrawSheet(page, painter, kDots);
    painter.end();
    QRect ink;
    for (int y = 0; y < paper.height(); ++y)
        for (int x = 0; x < paper.width(); ++x)
            if (qGray(paper.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
    EXPECT_NEAR(ink.left() / double(kDots), 2.75, 0.03);
    EXPECT_GT(ink.top() / double(kDots), 1.75);
    EXPECT_LT(ink.bottom() / double(kDots), 1.75 + 0.25) << "within the line";
    EXPECT_FALSE(RunsOffTheSheet(page));
    page.landscape = false;
    page.items[0].text = "Mr. John Q. Public";
    EXPECT_TRUE(RunsOffTheSheet(page));
}

TEST(PrinterBins, AreThoseOfTheDriver) {
    const auto bins = BinsInOptions(
        "PageSize/Media Size: *Letter Env10\nInputSlot/Media Source: *Auto Upper Manual\nDuplex/Two: *None\n");
    ASSERT_EQ(bins.size(), 3u);
    EXPECT_EQ(bins[0].name, "Auto");
    EXPECT_EQ(bins[2].number, 3);
    EXPECT_EQ(bins[2].name, "Manual");
    EXPECT_TRUE(BinsInOptions("").empty());
}

}  // namespace
}  // namespace quillmark::desktop
