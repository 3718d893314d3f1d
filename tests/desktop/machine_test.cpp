#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>

#include "desktop/machine/qt_printer.h"
#include "desktop/machine/single_instance.h"
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

TEST(SingleInstanceTest, TheSecondCopyCallsTheFirstToTheFront) {
    const QString name = QStringLiteral("quillmark-test-%1").arg(QCoreApplication::applicationPid());
    SingleInstance first(name);
    int called = 0;
    QObject::connect(&first, &SingleInstance::Called, &first, [&] { ++called; });
    EXPECT_FALSE(first.HandOver());
    SingleInstance second(name);
    EXPECT_TRUE(second.HandOver());
    EXPECT_TRUE(QTest::qWaitFor([&] { return called == 1; }));
}

}  // namespace
}  // namespace quillmark::desktop
