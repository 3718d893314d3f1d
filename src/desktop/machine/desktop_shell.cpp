#include "desktop/machine/desktop_shell.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"

namespace quillmark::desktop {

namespace {

constexpr std::string_view kMail = "mailto:";
const QString kMailType = QStringLiteral("x-scheme-handler/mailto");

/// A file that the program makes.
struct Kind {
    const char* extension;
    const char* type;
    const char* files;  ///< as the person calls them
};
constexpr Kind kKinds[] = {
    {".docx", "application/vnd.openxmlformats-officedocument.wordprocessingml.document", "Word documents"},
    {".pdf", "application/pdf", "PDF files"},
};

/// A box with OK and one button more; true if that one was pressed.
bool Offers(QWidget* over, const QString& title, const QString& text, const QString& offer) {
    QMessageBox box(over);
    box.setAttribute(Qt::WA_WindowPropagation);
    box.setWindowTitle(title);
    box.setIcon(QMessageBox::Information);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    const QPushButton* offered = box.addButton(offer, QMessageBox::ActionRole);
    box.addButton(QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    return box.clickedButton() == offered;
}

}  // namespace

bool DesktopShell::SystemKnows([[maybe_unused]] const QString& type) {
#ifdef Q_OS_UNIX
    constexpr int kLimit = 1500;  // milliseconds
    const QString asker = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (asker.isEmpty()) return !QStandardPaths::findExecutable(QStringLiteral("xdg-open")).isEmpty();
    QProcess query;
    query.start(asker, {QStringLiteral("query"), QStringLiteral("default"), type});
    if (!query.waitForFinished(kLimit)) return true;
    return !query.readAllStandardOutput().trimmed().isEmpty();
#else
    return true;
#endif
}

void DesktopShell::Open(const std::string& fileOrAddress) {
    if (fileOrAddress.starts_with(kMail)) {
        if (OpensWithProgram(fileOrAddress, kMailType)) return;
        const std::string_view mail = std::string_view(fileOrAddress).substr(kMail.size());
        return OfferAddress(Shown(mail.substr(0, mail.find('?'))));
    }
    for (const Kind& kind : kKinds) {
        if (!Shown(fileOrAddress).endsWith(QLatin1String(kind.extension), Qt::CaseInsensitive)) continue;
        if (!OpensWithProgram(fileOrAddress, QString::fromLatin1(kind.type)))
            OfferFolder(fileOrAddress, kind.files);
        return;
    }
    system_.Open(fileOrAddress);
}

bool DesktopShell::OpensWithProgram(const std::string& fileOrAddress, const QString& type) {
    if (!knows_(type)) return false;
    try {
        system_.Open(fileOrAddress);
        return true;
    } catch (const MachineError&) {
        return false;  // no program, as far as the person is concerned
    }
}

bool DesktopShell::KnowsMail() {
    if (!knowsMail_) knowsMail_ = knows_(kMailType);
    return *knowsMail_;
}

void DesktopShell::OfferFolder(const std::string& document, const char* files) {
    const QString text =
        QObject::tr("The document is finished:\n\n%1\n\nThis computer has no program for %2.")
            .arg(Shown(document), QString::fromLatin1(files));
    if (!Offers(parent_, QObject::tr("  DOCUMENT CREATED"), text, QObject::tr("Open &Folder"))) return;
    Guarded(parent_, [&] { system_.Open(TextOf(PathOf(document).parent_path())); });
}

void DesktopShell::OfferAddress(const QString& address) {
    const QString text =
        QObject::tr("This computer has no program for mail. The buyer's attorney's address is\n\n%1")
            .arg(address);
    if (Offers(parent_, QObject::tr("  EMAIL"), text, QObject::tr("Copy &Address")))
        QGuiApplication::clipboard()->setText(address);
}

}  // namespace quillmark::desktop
