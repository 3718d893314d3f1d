#include "desktop/finish_flow.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <utility>

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"
#include "production/pdf/pdf.h"
#include "session/preview_command.h"

namespace quillmark::desktop {

namespace fs = std::filesystem;

FinishFlow::FinishFlow(Desk& desk, FinishPanel& panel, PreviewPane& pane, QWidget& window)
    : QObject(&window), desk_(desk), panel_(panel), pane_(pane), window_(window) {
    worker_.setMaxThreadCount(1);
    connect(&panel_, &FinishPanel::Told, this, &FinishFlow::Begin);
    On(&panel_, &FinishPanel::OpenWanted, &window_, [this] { Open(); });
    On(&panel_, &FinishPanel::FolderWanted, &window_,
       [this] { desk_.Screen().Programs().ShowInFolder(Document()); });
    On(&panel_, &FinishPanel::PdfWanted, &window_, [this] { MakePdf(); });
    On(&panel_, &FinishPanel::PrintWanted, &window_, [this] { Print(); });
    On(&panel_, &FinishPanel::MailWanted, &window_, [this] { Mail(); });
    connect(&panel_, &FinishPanel::BlanksWanted, this, &FinishFlow::ShowBlanks);
}

FinishFlow::~FinishFlow() {
    worker_.clear();
    worker_.waitForDone();
}

fs::path FinishFlow::Document() const {
    const auto& made = desk_.Screen().LastRun().Made();
    return made ? made->document : fs::path();
}

/// What can be done with the new document on this computer, and how many pages it has.
void FinishFlow::Begin() {
    Shell& programs = desk_.Screen().Programs();
    const QString why = QPrinterInfo::availablePrinterNames().isEmpty()
                            ? tr("This computer has no printer. PDF makes a file that any printer prints.")
                            : QString();
    panel_.Offer(programs.CanMailFiles(), programs.CanPrintFiles(), why);
    const fs::path document = Document();
    if (!document.empty())
        pane_.CountPages(Shown(TextOf(document)), [this, document](int pages) {
            if (document == Document()) panel_.SetPages(pages);
        });
    found_.reset();
}

void FinishFlow::Follow() {
    if (desk_.IsBusy()) return;
    // Who does not want documents with holes wants to know where the holes are.
    const std::size_t left = desk_.Screen().LastRun().LeftForOpenFields();
    if (std::exchange(left_, left) != left) ShowBlanks();
    if (panel_.isVisible() || (blanks_ && blanks_->isVisible())) FindOpen();
}

void FinishFlow::ShowBlanks() {
    if (desk_.IsBusy()) return;
    if (!blanks_) {
        blanks_ = new BlanksWindow(&window_);
        connect(blanks_, &BlanksWindow::RowWanted, this, &FinishFlow::RowWanted);
    }
    found_.reset();
    blanks_->show();
    blanks_->raise();
    blanks_->activateWindow();
    FindOpen();
}

/// The documents are typed in the background: a firm's own form may take its time.
void FinishFlow::FindOpen() {
    const auto state = desk_.Screen().History().Present();
    if (!state || (found_ && state->HasSameJob(*found_))) return;
    found_ = state;
    if (desk_.State().List2.empty()) return TakeOpen({});
    worker_.clear();
    worker_.start([this, state, order = std::make_shared<PreviewOrder>(OrderOfPreview(desk_.Screen()))] {
        auto typed = TypeEach(*order);
        QMetaObject::invokeMethod(this, [this, state, typed = std::move(typed)] {
            if (state == found_) TakeOpen(typed);
        });
    });
}

void FinishFlow::TakeOpen(const std::vector<TypedEntry>& typed) {
    const OpenList open = OpenListOf(desk_.State(), desk_.Screen().FirmAround(), typed);
    panel_.SetOpen(open.blanks.size());
    if (blanks_) blanks_->Show(open, desk_.State().job);
}

void FinishFlow::Open() {
    desk_.Screen().Programs().Open(TextOf(Document()));
}

void FinishFlow::MakePdf() {
    panel_.SetMakingPdf(true);
    worker_.start([this, document = Document()] {
        const fs::path pdf = fs::path(document).replace_extension(".pdf");
        QString failure;
        try {
            PdfConverter().Convert(document, pdf);
        } catch (const std::exception& fault) {
            failure = Shown(fault.what());
        }
        QMetaObject::invokeMethod(this, [this, failure, pdf] { TakePdf(failure, pdf); });
    });
}

void FinishFlow::TakePdf(const QString& failure, const fs::path& pdf) {
    panel_.SetMakingPdf(false);
    Guarded(&window_, [&] {
        if (!failure.isEmpty())
            return desk_.Screen().Person().Tell("  PDF", Utf8(failure), DialogIcon::Warning);
        desk_.Screen().Programs().Open(TextOf(pdf));
    });
}

void FinishFlow::Print() {
    QPrinter printer;
    QPrintDialog dialog(&printer, &window_);
    dialog.setAttribute(Qt::WA_WindowPropagation);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    if (dialog.exec() == QDialog::Accepted && !printer.printerName().isEmpty())
        desk_.Screen().Programs().PrintFile(Document(), Utf8(printer.printerName()));
}

void FinishFlow::Mail() {
    desk_.Screen().Programs().MailFile(TextOf(Document().stem()), Document());
}

}  // namespace quillmark::desktop
