#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include "desktop/grid/block_editor.h"
#include "desktop/grid/month_view.h"
#include "desktop/grid/pictures.h"
#include "desktop/grid/pop_list.h"
#include "desktop/panels/settings_view.h"
#include "desktop/side_windows_support.h"

namespace quillmark::desktop {
namespace {

using namespace std::chrono_literals;

TEST(Pictures, ABitmapComesBackAsThePictureThatItWas) {
    QImage picture(31, 7, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    picture.setPixelColor(3, 4, QColor(200, 10, 20));
    const std::string bitmap = BitmapOf(picture);
    EXPECT_EQ(bitmap.substr(0, 2), "BM");
    const QImage again = PictureOf(bitmap);
    ASSERT_EQ(again.size(), picture.size());
    EXPECT_EQ(again.pixelColor(3, 4), QColor(200, 10, 20));
    EXPECT_EQ(again.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_TRUE(PictureOf("BM no picture").isNull());
    EXPECT_TRUE(BitmapOf({}).empty());
}

TEST(ListUnderAnEditor, ShowsEveryRecordWhole) {
    PopList list(QStringLiteral("Combo2"), QStringLiteral("Address book"), nullptr);
    list.ShowLines(
        {"< SELECT FROM DATABASE >",
         "Hale and Hale _ Nora Hale _ 1 Main Street _ Suite 2 _ Guilford, CT 06437 _ (203) 555-0100"},
        0);
    list.resize(list.WantedSize());
    list.show();
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(1))));
    EXPECT_GE(list.viewport()->width(), list.sizeHintForColumn(0));
    list.resize(list.width() / 2, list.height());
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(1)).bottomLeft()));
}

TEST(Pictures, AClipboardWithTextAndPictureCountsAsText) {
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    auto* both = new QMimeData;
    both->setImageData(picture);
    both->setText(QStringLiteral("cell"));
    QGuiApplication::clipboard()->setMimeData(both);
    EXPECT_EQ(ReadClipboard().text, "cell");
    EXPECT_TRUE(ReadClipboard().picture.empty());
    QGuiApplication::clipboard()->setImage(picture);
    EXPECT_EQ(PictureOf(ReadClipboard().picture).pixelColor(1, 1), QColor(Qt::red));
}

class MonthTest : public SideWindowTest {
 protected:
    MonthTest() {
        month.SetDay(2026y / 3 / 9);
        Show(month);
        month.setFocus();
    }

    MonthView month;
    QSignalSpy keys{&month, &MonthView::KeyPressed};
    QSignalSpy clicks{&month, &MonthView::DayClicked};
};

TEST_F(MonthTest, ArrowsMoveByDaysAndWeeksAndTheOtherKeysAreHandedOn) {
    Press(month, Qt::Key_Right);
    Press(month, Qt::Key_Right);
    Press(month, Qt::Key_Left);
    Press(month, Qt::Key_Down, Qt::ControlModifier);
    Press(month, Qt::Key_PageUp);
    EXPECT_EQ(month.Day(), 2026y / 2 / 17);
    EXPECT_EQ(keys.count(), 0);
    EXPECT_EQ(clicks.count(), 0);
    const std::pair<Qt::Key, EditorKey> handed[] = {{Qt::Key_Return, EditorKey::Enter},
                                                    {Qt::Key_Tab, EditorKey::Tab},
                                                    {Qt::Key_Up, EditorKey::Up},
                                                    {Qt::Key_Down, EditorKey::Down},
                                                    {Qt::Key_Escape, EditorKey::Escape}};
    for (const auto& [key, meant] : handed) {
        Press(month, key);
        ASSERT_EQ(keys.count(), 1);
        const QVariantList told = keys.takeFirst();
        EXPECT_EQ(told[0].value<EditorKey>(), meant);
        EXPECT_EQ(told[1].value<std::chrono::year_month_day>(), 2026y / 2 / 17);
    }
    EXPECT_EQ(month.Day(), 2026y / 2 / 17);
}

TEST_F(MonthTest, ClicksTellTheDayAndWhetherTwice) {
    auto* days = month.findChild<QAbstractItemView*>();
    const QModelIndex day = days->model()->index(3, 3);
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(day).center());
    ASSERT_EQ(clicks.count(), 1);
    const auto clicked = clicks[0][0].value<std::chrono::year_month_day>();
    EXPECT_EQ(static_cast<unsigned>(clicked.day()), day.data().toUInt());
    EXPECT_FALSE(clicks[0][1].toBool());
    QTest::mouseDClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(day).center());
    EXPECT_TRUE(clicks.back()[1].toBool());
}

/// The block editor over the field that takes texts and pictures, with the session behind it.
class BlockTest : public SideWindowTest {
 protected:
    void Open() {
        Start({"OK"});
        screen->TypeName("smith");
        screen->EnterName();
        screen->PickDocument("Schedule A");
        Reopen();
        QObject::connect(&block, &BlockEditor::Edited, [this](const EditorText& text) {
            screen->SetBlockText(text);
            block.ShowState(screen->Editor());
        });
        QObject::connect(&block, &BlockEditor::KeyPressed, [this](EditorKey key) {
            screen->KeyInEditor(key);
            block.ShowState(screen->Editor());
        });
        QObject::connect(&block, &BlockEditor::PasteWanted, [this] {
            screen->Paste(ReadClipboard());
            block.ShowState(screen->Editor());
        });
        Show(block);
        block.setFocus();
    }
    void Reopen() {
        const auto row = std::find_if(State().grid.begin(), State().grid.end(),
                                      [](const GridRow& r) { return r.n == kDescription; });
        ASSERT_NE(row, State().grid.end());
        screen->ClickGrid(static_cast<int>(row - State().grid.begin()), 1);
        block.ShowState(screen->Editor());
    }
    const std::string& Value() const { return State().job.D(kDescription); }

    static constexpr int kDescription = 201;
    BlockEditor block;
};

TEST_F(BlockTest, LinesAreTypedPastedAndCommitted) {
    Open();
    Type(block, "Lot 7");
    Press(block, Qt::Key_Return);
    Type(block, "Meriden");
    Press(block, Qt::Key_Home);
    QGuiApplication::clipboard()->setText(QStringLiteral("Ch\u00E2teau of "));
    Press(block, Qt::Key_V, Qt::ControlModifier);
    Type(block, "old ");
    Press(block, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(block.Text().text, "Lot 7\nCh\xC3\xA2teau of Meriden");
    Press(block, Qt::Key_Tab);
    EXPECT_EQ(Value(), "Lot 7\r\nCh\xC3\xA2teau of Meriden");
    Reopen();
    Press(block, Qt::Key_A, Qt::ControlModifier);
    Type(block, "x");
    EXPECT_EQ(block.Text().text, "x");
    Press(block, Qt::Key_Escape);
    EXPECT_EQ(Value(), "Lot 7\r\nCh\xC3\xA2teau of Meriden");
}

TEST_F(BlockTest, APictureIsPastedShownKeptAndTypedOver) {
    Open();
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QGuiApplication::clipboard()->setImage(picture);
    Press(block, Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(block.ShowsPicture());
    Press(block, Qt::Key_Return);
    EXPECT_EQ(Value(), kImageLiteral);
    EXPECT_EQ(PictureOf(State().job.FieldPictures[kDescription]).size(), picture.size());

    Reopen();
    screen->ViewPicture();
    block.ShowState(screen->Editor());
    EXPECT_TRUE(block.ShowsPicture());
    QGuiApplication::clipboard()->clear();
    Press(block, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), picture.size());
    Type(block, "text");
    EXPECT_FALSE(block.ShowsPicture());
    Press(block, Qt::Key_Tab);
    EXPECT_EQ(Value(), "text");
    EXPECT_TRUE(State().job.FieldPictures[kDescription].empty());
}

TEST_F(SideWindowTest, TheSettingsListSkipsBlankRowsAndOpensRowsByKeyAndClick) {
    Start();
    screen->TypeName("DEFAULTS");
    screen->EnterName();
    SettingsView view;
    view.ShowRows(screen->List3());
    Show(view);
    QSignalSpy selected(&view, &SettingsView::RowSelected);
    QSignalSpy opened(&view, &SettingsView::RowOpened);
    view.SelectRow(9);
    Press(view, Qt::Key_Down);
    EXPECT_EQ(selected.back()[0].toUInt(), 11U);
    Press(view, Qt::Key_Return);
    ASSERT_EQ(opened.count(), 1);
    Answer({"w:\\firm"});
    screen->EditSetting(opened[0][0].toUInt());
    view.ShowRows(screen->List3());
    EXPECT_EQ(view.model()->index(11, 2).data().toString(), QStringLiteral("w:\\firm\\"));
    EXPECT_EQ(view.currentIndex().row(), 11);
    DoubleClick(view, view.model()->index(0, 2));
    EXPECT_EQ(opened.back()[0].toUInt(), 0U);
}

}  // namespace
}  // namespace quillmark::desktop
