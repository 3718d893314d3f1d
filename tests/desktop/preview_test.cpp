#include <signal.h>

#include <QSignalSpy>
#include <QTest>
#include <filesystem>

#include "desktop/main_window.h"
#include "desktop/preview/page_map.h"
#include "platform/code_points.h"
#include "session/office_fixture.h"
#include "support/scratch.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

// ---- The document's text and its pages' ----

TEST(PageMap, FindsWordsAgainThatPagesBreakAndNumber) {
    const std::u32string text =
        U"DEED\rKnow that Anna Abbott of Guilford gives much to Priya.\rTaxes not yet due.\r";
    const std::vector<std::u32string> pages = {
        U"DEED\r\nKnow that Anna\r\nAbbott of Guil\r\nford gives\r\nHollis - Deed - 1",
        U"much to Priya.\r\n1. Taxes not yet due."};
    const PageMap map(text, pages);
    const std::size_t anna = text.find(U"Anna");
    EXPECT_EQ(map.SpansOf(anna, 11), (std::vector<PageSpan>{{0, 16, 4}, {0, 22, 6}}));
    const std::size_t much = text.find(U"much");
    EXPECT_EQ(map.SpansOf(much, 4), (std::vector<PageSpan>{{1, 0, 4}}));
    EXPECT_EQ(map.PlaceOf(0, 22), anna + 5);
    EXPECT_EQ(map.PlaceOf(0, static_cast<int>(pages[0].find(U"Hollis"))), std::nullopt) << "a footer";
    const std::size_t taxes = text.find(U"Taxes");
    EXPECT_EQ(map.SpansOf(taxes, 5), (std::vector<PageSpan>{{1, 19, 5}}));
}

// ---- The renderer's process, played by a shell script ----

class RendererTest : public ::testing::Test {
 protected:
    /// A renderer that does this.
    QString Program(const std::string& script) {
        const fs::path file = scratch / "renderer.sh";
        test::WriteBytes(file, "#!/bin/sh\n" + script);
        fs::permissions(file, fs::perms::owner_all);
        return QString::fromStdString(file.string());
    }
    QString Profile() { return QString::fromStdString((scratch / "profile").string()); }
    test::ScratchFolder scratch;
};

TEST_F(RendererTest, AnswersTheNewestOfWhatWaits) {
    RendererProcess renderer(
        Program("echo ready\nwhile read word path; do echo \"$path\" >> $1/asked; sleep 0.2; "
                "echo ok 3; printf PDF; done"),
        Profile(), nullptr);
    QSignalSpy rendered(&renderer, &RendererProcess::Rendered);
    for (const char* name : {"/a", "/b", "/c", "/d"}) {
        renderer.Render(QString::fromLatin1(name));
        QTest::qWait(30);
    }
    QTRY_COMPARE_WITH_TIMEOUT(rendered.count(), 2, 5000);
    EXPECT_EQ(rendered.at(1).at(0).toByteArray(), "PDF");
    const std::string asked = test::ReadBytes(scratch / "profile" / "asked");
    EXPECT_TRUE(asked.ends_with("/d\n")) << asked;
    EXPECT_EQ(std::ranges::count(asked, '\n'), 2) << asked;
}

TEST_F(RendererTest, StartsAgainWhenItDiesAndIsGivenUpAtTheThirdDeath) {
    RendererProcess renderer(Program("echo ready\nread line\nkill -SEGV $$"), Profile(), nullptr);
    QSignalSpy failed(&renderer, &RendererProcess::Failed);
    QSignalSpy givenUp(&renderer, &RendererProcess::GivenUp);
    for (int death = 0; death < 3; ++death) {
        renderer.Render(QStringLiteral("/a"));
        QTRY_COMPARE_WITH_TIMEOUT(failed.count() + givenUp.count(), death + 1, 5000);
    }
    EXPECT_EQ(givenUp.count(), 1);
    EXPECT_TRUE(renderer.IsGivenUp());
}

TEST_F(RendererTest, WhatIsNoRendererIsGivenUp) {
    for (const QString& program : {Program("echo none no office"), QStringLiteral("/nowhere/renderer")}) {
        RendererProcess renderer(program, Profile(), nullptr);
        QSignalSpy givenUp(&renderer, &RendererProcess::GivenUp);
        renderer.Render(QStringLiteral("/a"));
        QTRY_COMPARE_WITH_TIMEOUT(givenUp.count(), 1, 5000);
    }
    RendererProcess babbler(Program("while echo nonsense; do sleep 0.05; done"), Profile(), nullptr);
    QSignalSpy givenUp(&babbler, &RendererProcess::GivenUp);
    for (int i = 0; i < 3; ++i) {
        babbler.Render(QStringLiteral("/a"));
        QTest::qWait(300);
    }
    QTRY_COMPARE_WITH_TIMEOUT(givenUp.count(), 1, 5000);
}

// ---- The pane ----

class PreviewPaneTest : public test::OfficeTest {
 protected:
    void OpenWindow() {
        qputenv("XDG_CACHE_HOME", QByteArray::fromStdString((scratch / "cache").string()));
        Start();
        MakeSmallJob("Abbott");
        window = std::make_unique<MainWindow>(*screen);
        window->resize(1400, 760);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->ShowPreview(true);
    }
    std::unique_ptr<MainWindow> window;
};

TEST_F(PreviewPaneTest, WithoutARendererItShowsTheTextAndAClickGoesToTheRow) {
    qputenv("QUILLMARK_PREVIEW", "/nowhere/renderer");
    OpenWindow();
    auto& text = *window->findChild<TextView*>(QStringLiteral("textView"));
    QTRY_VERIFY_WITH_TIMEOUT(text.toPlainText().contains(QStringLiteral("Anna Abbott")), 5000);
    QTRY_VERIFY_WITH_TIMEOUT(window->Preview().Renderer().IsGivenUp(), 5000);
    Q_EMIT text.anchorClicked(QUrl(QStringLiteral("59")));
    EXPECT_EQ(screen->Editor().EditField, 59);
    window->CommandDesk().Do([](MainScreen& s) { s.EnterField(59, "Priya Castellan", EntryWay::Type); });
    QTRY_VERIFY_WITH_TIMEOUT(text.toPlainText().contains(QStringLiteral("Priya Castellan")), 5000);
    qunsetenv("QUILLMARK_PREVIEW");
}

#ifdef QUILLMARK_RENDERER
TEST_F(PreviewPaneTest, ThePageFollowsTheCommitAndItsValuesCanBeClicked) {
    qputenv("QUILLMARK_PREVIEW", QUILLMARK_RENDERER);
    OpenWindow();
    if (window->Preview().Renderer().IsGivenUp()) GTEST_SKIP() << "no LibreOffice here";
    QSignalSpy drawn(&window->Preview(), &PreviewPane::Drawn);
    if (!drawn.wait(60'000)) GTEST_SKIP() << "no pages on this machine";
    auto& pages = *window->findChild<PageView*>(QStringLiteral("pageView"));
    EXPECT_TRUE(pages.isVisible());
    const QImage before = pages.grab().toImage();
    window->CommandDesk().Do([](MainScreen& s) { s.EnterField(59, "Priya Castellan", EntryWay::Type); });
    ASSERT_TRUE(drawn.wait(20'000));
    EXPECT_NE(before, pages.grab().toImage());
    const qint64 first = window->Preview().Renderer().Pid();
    ASSERT_GT(first, 0);
    ::kill(static_cast<pid_t>(first), SIGSEGV);
    QTest::qWait(300);
    EXPECT_TRUE(pages.isVisible()) << "the last good page stays";
    window->CommandDesk().Do([](MainScreen& s) { s.EnterField(59, "Omar Castellan", EntryWay::Type); });
    ASSERT_TRUE(drawn.wait(20'000)) << "a new renderer";
    EXPECT_NE(window->Preview().Renderer().Pid(), first);
    qunsetenv("QUILLMARK_PREVIEW");
}
#endif

}  // namespace
}  // namespace quillmark::desktop
