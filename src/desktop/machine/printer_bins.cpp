#include "desktop/machine/printer_bins.h"

#include <QPrintEngine>
#include <QProcess>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

#ifdef Q_OS_WIN

struct NamedSource {
    QPrinter::PaperSource source;
    const char* name;
};
constexpr NamedSource kSources[] = {
    {QPrinter::Auto, "Automatic"},
    {QPrinter::Upper, "Upper tray"},
    {QPrinter::Lower, "Lower tray"},
    {QPrinter::Middle, "Middle tray"},
    {QPrinter::Manual, "Manual feed"},
    {QPrinter::Envelope, "Envelope feeder"},
    {QPrinter::EnvelopeManual, "Envelope, manual feed"},
    {QPrinter::Tractor, "Tractor feed"},
    {QPrinter::SmallFormat, "Small paper"},
    {QPrinter::LargeFormat, "Large paper"},
    {QPrinter::LargeCapacity, "Large capacity tray"},
    {QPrinter::Cassette, "Cassette"},
    {QPrinter::FormSource, "Form tray"},
};

/// Empty for one of the driver's own.
std::string NameOf(QPrinter::PaperSource source) {
    for (const NamedSource& named : kSources)
        if (named.source == source) return named.name;
    return {};
}

#else

constexpr std::string_view kSlot = "InputSlot";
/// By which Qt hands options on to CUPS.
constexpr auto kCupsOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);

std::string OptionsOf(const std::string& printer) {
    constexpr int kLimit = 3000;  // milliseconds
    QProcess asked;
    asked.start(QStringLiteral("lpoptions"), {QStringLiteral("-p"), Shown(printer), QStringLiteral("-l")});
    if (!asked.waitForFinished(kLimit)) return {};
    return asked.readAllStandardOutput().toStdString();
}

#endif

}  // namespace

std::vector<PrinterBin> BinsInOptions(std::string_view options) {
    const QString all = Shown(options);
    std::vector<PrinterBin> bins;
    for (const QString& line : all.split(QLatin1Char('\n'))) {
        if (!line.startsWith(QLatin1String("InputSlot"))) continue;
        const QString choices = line.mid(line.indexOf(QLatin1Char(':')) + 1);
        for (QString choice : choices.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (choice.startsWith(QLatin1Char('*'))) choice.remove(0, 1);
            bins.push_back({static_cast<int>(bins.size()) + 1, Utf8(choice)});
        }
    }
    return bins;
}

#ifdef Q_OS_WIN

std::vector<PrinterBin> BinsOfPrinter(const std::string& printer) {
    QPrinter chosen(QPrinter::HighResolution);
    chosen.setPrinterName(Shown(printer));
    std::vector<PrinterBin> bins;
    for (const QPrinter::PaperSource source : chosen.supportedPaperSources())
        bins.push_back({static_cast<int>(source), NameOf(source)});
    return bins;
}

void TakePaperFrom(int bin, QPrinter& printer) {
    printer.setPaperSource(static_cast<QPrinter::PaperSource>(bin));
}

#else

std::vector<PrinterBin> BinsOfPrinter(const std::string& printer) {
    return BinsInOptions(OptionsOf(printer));
}

void TakePaperFrom(int bin, QPrinter& printer) {
    for (const PrinterBin& offered : BinsOfPrinter(Utf8(printer.printerName())))
        if (offered.number == bin)
            printer.printEngine()->setProperty(kCupsOptions, QStringList{Shown(kSlot), Shown(offered.name)});
}

#endif

}  // namespace quillmark::desktop
