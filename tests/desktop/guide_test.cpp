#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <set>

#include "desktop/guide/first_run_window.h"
#include "desktop/guide/guide_pages.h"
#include "desktop/guide/guide_window.h"
#include "desktop/toolkit/text.h"
#include "support/scratch.h"

namespace quillmark::desktop {
namespace {

std::set<std::string> FilesIn(const QString& folder, const QString& pattern) {
    std::set<std::string> names;
    for (const QString& name : QDir(folder).entryList({pattern})) names.insert(Utf8(name));
    return names;
}

std::set<QString> AnchorsOf(const QString& page) {
    std::set<QString> anchors;
    for (const QString& line : page.split(QLatin1Char('\n')))
        if (line.startsWith(QLatin1Char('#'))) anchors.insert(GuideAnchor(line.section(QLatin1Char(' '), 1)));
    return anchors;
}

/// The targets of links and pictures.
QStringList TargetsIn(const QString& page) {
    static const QRegularExpression link(QStringLiteral(R"(\]\(([^)]+)\))"));
    QStringList targets;
    for (auto found = link.globalMatch(page); found.hasNext();) targets.append(found.next().captured(1));
    return targets;
}

void ExpectTarget(const QString& target, std::string_view from, std::set<std::string>& pictures) {
    if (target.endsWith(QLatin1String(".png"))) {
        EXPECT_FALSE(QImage(QStringLiteral(":/guide/") + target).isNull()) << from << ": " << Utf8(target);
        pictures.insert(Utf8(target.section(QLatin1Char('/'), -1)));
        return;
    }
    const QString page = GuideText(Utf8(target.section(QStringLiteral(".md"), 0, 0)));
    EXPECT_FALSE(page.isEmpty()) << from << ": " << Utf8(target);
    const QString anchor = target.section(QLatin1Char('#'), 1);
    if (!anchor.isEmpty()) {
        EXPECT_TRUE(AnchorsOf(page).contains(anchor)) << from << ": " << Utf8(target);
    }
}

TEST(GuideTest, PagesLinksAndPicturesAreComplete) {
    std::set<std::string> listed;
    std::set<std::string> pictures;
    for (const std::string_view page : GuidePages()) {
        listed.insert(std::string(page) + ".md");
        EXPECT_FALSE(GuideTitle(page).isEmpty()) << page;
        for (const QString& target : TargetsIn(GuideText(page))) ExpectTarget(target, page, pictures);
    }
    const QString folder = QString::fromStdString((test::SourceFolder() / "docs/guide").string());
    EXPECT_EQ(listed, FilesIn(folder, QStringLiteral("*.md")));
    EXPECT_EQ(pictures, FilesIn(folder + QStringLiteral("/images"), QStringLiteral("*.png")))
        << "a picture that no page shows";
    for (const GuideTopic& topic : GuideTopics())
        EXPECT_FALSE(GuideText(topic.page).isEmpty()) << topic.control << " leads to " << topic.page;
    // The box that asks for the firm's defaults sends the reader to page 3.
    EXPECT_EQ(GuidePages().at(2), "firm-defaults");
}

/// A window with a named panel that holds a box, as the main screen has them.
struct HelpedWindow {
    explicit HelpedWindow(const char* panelName) {
        auto* panel = new QWidget(&window);
        panel->setObjectName(QLatin1String(panelName));
        box = new QLineEdit(panel);
        window.show();
    }

    GuideWindow* Guide() {
        return dynamic_cast<GuideWindow*>(window.findChild<QWidget*>(QStringLiteral("Guide")));
    }
    QString ShownPage() { return Guide()->findChild<QTextBrowser*>()->source().fileName(); }

    QWidget window;
    QLineEdit* box;
};

TEST(GuideTest, TheHelpKeyOpensTheGuideAtThePageForTheControl) {
    HelpKey help;
    qApp->installEventFilter(&help);
    for (const auto& [panel, page] :
         {std::pair{"optConf13", "documents.md"}, {"grdField", "grid.md"}, {"other", "index.md"}}) {
        HelpedWindow helped(panel);
        QTest::keyClick(helped.box, Qt::Key_F1);
        ASSERT_NE(helped.Guide(), nullptr);
        EXPECT_TRUE(helped.Guide()->isVisible());
        EXPECT_EQ(helped.ShownPage(), QLatin1String(page));
        // The key pressed in the guide itself opens no second one.
        QTest::keyClick(helped.Guide()->findChild<QTextBrowser*>(), Qt::Key_F1);
        EXPECT_EQ(helped.window.findChildren<QWidget*>(QStringLiteral("Guide")).size(), 1);
        QTest::keyClick(helped.Guide(), Qt::Key_Escape);
        EXPECT_FALSE(helped.Guide()->isVisible());
    }
    qApp->removeEventFilter(&help);
}

TEST(GuideTest, PagesAreFoundTurnedAndLeft) {
    GuideWindow guide(nullptr);
    guide.show();
    auto* page = guide.findChild<QTextBrowser*>();
    auto* contents = guide.findChild<QListWidget*>();
    auto* search = guide.findChild<QLineEdit*>(QStringLiteral("Search"));
    guide.Open("messages");
    guide.Open("firm-defaults#the-settings");
    EXPECT_GT(page->textCursor().position(), 0) << "stands at the heading";
    EXPECT_TRUE(page->textCursor().block().text() == QLatin1String("The settings"));
    EXPECT_EQ(contents->currentItem()->text(), GuideTitle("firm-defaults"));
    page->backward();
    EXPECT_EQ(page->source().fileName(), QLatin1String("messages.md"));
    EXPECT_EQ(contents->currentItem()->text(), GuideTitle("messages"));

    const int all = contents->count();
    QTest::keyClicks(search, QStringLiteral("RELEASOR"));
    ASSERT_EQ(contents->count(), 1);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(page->source().fileName(), QLatin1String("amounts.md"));
    EXPECT_FALSE(page->extraSelections().isEmpty());
    EXPECT_EQ(page->textCursor().selectedText().toLower(), QLatin1String("releasor"));
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(contents->count(), all);
    EXPECT_TRUE(page->extraSelections().isEmpty());
}

TEST(FirstRunWindowTest, EachOfferIsTakenByItsKeyAndEscapeLeadsToTheEmptyScreen) {
    const auto chosen = [](auto press) {
        FirstRunWindow window(nullptr);
        EXPECT_FALSE(window.findChild<QLabel*>()->pixmap().isNull()) << "the program's icon";
        window.show();
        press(window);
        return window.Step();
    };
    EXPECT_EQ(chosen([](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Return); }),
              FirstStep::SampleJob);
    EXPECT_EQ(chosen([](QWidget& window) {
                  QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
                  QTest::keyClick(window.focusWidget(), Qt::Key_Space);
              }),
              FirstStep::FirmDefaults);
    EXPECT_EQ(chosen([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }), FirstStep::NewJob);

    const std::string name = "data/" + std::string(kSampleJob) + ".dat";
    ASSERT_EQ(SeedFiles().front().name, name);
    EXPECT_EQ(SeedFiles().front().bytes, test::ReadBytes(test::SourceFolder() / name));
}

}  // namespace
}  // namespace quillmark::desktop
