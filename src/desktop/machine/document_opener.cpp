#include "desktop/machine/document_opener.h"

#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"

namespace quillmark::desktop {

namespace fs = std::filesystem;

bool HasProgramForDocuments() {
#ifdef Q_OS_UNIX
    constexpr int kLimit = 1500;  // milliseconds
    const QString asker = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (asker.isEmpty()) return !QStandardPaths::findExecutable(QStringLiteral("xdg-open")).isEmpty();
    QProcess query;
    query.start(asker,
                {QStringLiteral("query"), QStringLiteral("default"),
                 QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.document")});
    if (!query.waitForFinished(kLimit)) return true;
    return !query.readAllStandardOutput().trimmed().isEmpty();
#else
    return true;
#endif
}

void DocumentOpener::Open(const fs::path& document, QWidget& over) {
    if (shownElsewhere_) return;
    try {
        if (HasProgramForDocuments()) return shell_.Open(TextOf(document));
    } catch (const MachineError&) {
        // No program, as far as the user is concerned.
    }
    OfferFolder(document, over);
}

void DocumentOpener::OfferFolder(const fs::path& document, QWidget& over) {
    QMessageBox box(&over);
    box.setAttribute(Qt::WA_WindowPropagation);
    box.setWindowTitle(QObject::tr("  DOCUMENT CREATED"));
    box.setIcon(QMessageBox::Information);
    box.setTextFormat(Qt::PlainText);
    box.setText(
        QObject::tr("The document is finished:\n\n%1\n\nThis computer has no program for Word documents.")
            .arg(Shown(TextOf(document))));
    QPushButton* folder = box.addButton(QObject::tr("Open &Folder"), QMessageBox::ActionRole);
    box.addButton(QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    box.exec();
    if (box.clickedButton() != folder) return;
    Guarded(&over, [&] { shell_.Open(TextOf(document.parent_path())); });
}

}  // namespace quillmark::desktop
