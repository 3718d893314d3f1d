#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>

#include "desktop/machine/desktop_shell.h"
#include "desktop/machine/qt_printer.h"
#include "desktop/machine/single_instance.h"
#include "desktop/side_windows_support.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"
#include "support/scratch.h"

namespace quillmark::desktop {
namespace {

TEST(PrinterTest, LongListsGoOnOnFurtherPages) {
    const test::ScratchFolder scratch;
    const auto pagesOf = [&](std::size_t lines) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(Shown(TextOf(scratch / "list.pdf")));
        printer.setPageSize(QPageSize(QPageSize::Letter));
        DrawPages({"list", "Courier New", 10, std::vector<std::string>(lines, "[seller 1 name]  José")},
                  printer);
        const QString pdf =
            QString::fromLatin1(QByteArray::fromStdString(test::ReadBytes(scratch / "list.pdf")));
        const QRegularExpression page(QStringLiteral("/Type /Page\\b"));
        return pdf.count(page);
    };
    EXPECT_EQ(pagesOf(40), 1);
    EXPECT_GT(pagesOf(140), 1);
}

TEST(SingleInstanceTest, ASecondCopyHandsItsJobOverAndOneOfAnotherFolderIsAFirst) {
    const test::ScratchFolder scratch;
    SingleInstance first(SingleInstance::NameFor(scratch.path()));
    QStringList called;
    QObject::connect(&first, &SingleInstance::Called, &first, [&](const QString& job) { called << job; });
    EXPECT_FALSE(first.HandOver({}));
    const QString job = QStringLiteral("Núñez - 12 Elm Street");
    SingleInstance second(SingleInstance::NameFor(scratch.path() / "."));
    EXPECT_TRUE(second.HandOver(job));
    EXPECT_TRUE(QTest::qWaitFor([&] { return called.size() == 1; }));
    EXPECT_EQ(called.value(0), job);
    SingleInstance elsewhere(SingleInstance::NameFor(scratch.path() / "office"));
    EXPECT_FALSE(elsewhere.HandOver(job));
}

/// What the system's shell was asked to open.
class SystemStandIn final : public Shell {
 public:
    std::filesystem::path FolderOf(SpecialFolder) override { return {}; }
    void Open(const std::string& fileOrAddress) override { opened.push_back(fileOrAddress); }
    void Start(const std::filesystem::path&, const std::vector<std::string>&) override {}

    std::vector<std::string> opened;
};

TEST(DesktopShellTest, WithoutAProgramForMailTheAddressIsOfferedOnTheClipboard) {
    SystemStandIn system;
    DesktopShell shell(system, [](const QString& type) { return !type.contains(QLatin1String("mailto")); });
    const std::string letter = "mailto:ruth@example.com?Subject=Elm Street&Body=Greetings";
    const WhenOpened box([](QWidget& window) {
        auto& shown = dynamic_cast<QMessageBox&>(window);
        EXPECT_TRUE(shown.text().contains(QStringLiteral("ruth@example.com"))) << Utf8(shown.text());
        for (QAbstractButton* button : shown.buttons())
            if (shown.buttonRole(button) == QMessageBox::ActionRole) return button->click();
    });
    shell.Open(letter);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("ruth@example.com"));
    EXPECT_TRUE(system.opened.empty());

    shell.Open("/jobs/Reed_QMF.docx");
    DesktopShell(system, [](const QString&) { return true; }).Open(letter);
    EXPECT_EQ(system.opened, (std::vector<std::string>{"/jobs/Reed_QMF.docx", letter}));
}

}  // namespace
}  // namespace quillmark::desktop
