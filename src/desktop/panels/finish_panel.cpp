#include "desktop/panels/finish_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/panels/grey_reasons.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"

namespace quillmark::desktop {

FinishPanel::FinishPanel(Desk& desk, QWidget* parent) : QFrame(parent), desk_(desk) {
    setObjectName(QStringLiteral("finishPanel"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    what_ = new QLabel(this);
    what_->setObjectName(QStringLiteral("finishDocument"));
    what_->setTextFormat(Qt::PlainText);
    what_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    what_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont bold = font();
    bold.setBold(true);
    what_->setFont(bold);
    facts_ = new QLabel(this);
    facts_->setObjectName(QStringLiteral("finishFacts"));
    auto* head = new QHBoxLayout;
    head->addWidget(what_, 1);
    head->addWidget(facts_);
    auto* close = Make("finishClose", QStringLiteral("\u2715"), tr("Closes this panel"), nullptr);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    head->addWidget(close);
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    open_ = Make("finishOpen", tr("Open"), tr("Opens the document with the system's program for it"),
                 &FinishPanel::OpenWanted);
    folder_ =
        Make("finishFolder", tr("Show in folder"), tr("Shows where the file is"), &FinishPanel::FolderWanted);
    pdf_ = Make("finishPdf", tr("PDF"), tr("Makes a PDF beside the document and opens it"),
                &FinishPanel::PdfWanted);
    print_ = Make("finishPrint", tr("Print"), {}, &FinishPanel::PrintWanted);
    mail_ = Make("finishMail", tr("Mail"), tr("Begins a mail with the document attached"),
                 &FinishPanel::MailWanted);
    notices_ = Make("finishNotices", tr("Notices"),
                    tr("Shows once more what these documents ask you to mind"), nullptr);
    connect(notices_, &QPushButton::clicked, this, &FinishPanel::ReadNotices);
    blanks_ = Make("finishBlanks", {}, tr("Lists what is still open, and leads there (Ctrl+B)"),
                   &FinishPanel::BlanksWanted);
    for (QPushButton* button : {open_, folder_, pdf_, print_, mail_, notices_, blanks_})
        row->addWidget(button);
    row->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(head);
    layout->addLayout(row);
    hide();
}

template <class Signal>
QPushButton* FinishPanel::Make(const char* name, const QString& text, const QString& tip, Signal signal) {
    auto* button = new CompactButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(tip);
    Describe(button, text.size() > 1 ? text : tip, tip);
    if constexpr (!std::is_null_pointer_v<Signal>) connect(button, &QPushButton::clicked, this, signal);
    return button;
}

void FinishPanel::Show() {
    if (desk_.State().creating) return;
    const auto& made = desk_.Screen().LastRun().Made();
    if (!made) {
        told_ = 0;
        return hide();
    }
    if (made->number == told_) return;
    told_ = made->number;
    Tell();
}

void FinishPanel::Tell() {
    const Finish& made = *desk_.Screen().LastRun().Made();
    const bool isFile = !made.document.empty();
    pages_ = 0;
    what_->setText(isFile ? Shown(TextOf(made.document.filename()))
                          : tr("The documents are in the word processor"));
    what_->setToolTip(Shown(TextOf(made.document)));
    facts_->setText(Facts());
    for (QPushButton* button : {open_, folder_, pdf_, print_, mail_}) button->setVisible(isFile);
    notices_->setVisible(!made.notices.empty());
    SetMakingPdf(false);
    SetOpen(0);
    show();
    Q_EMIT Told();
}

QString FinishPanel::Facts() const {
    const Finish& made = *desk_.Screen().LastRun().Made();
    QStringList facts;
    const auto entries = static_cast<int>(made.entries.size());
    facts.append(entries == 1 ? tr("1 document") : tr("%1 documents").arg(entries));
    if (pages_ > 0) facts.append(pages_ == 1 ? tr("1 page") : tr("%1 pages").arg(pages_));
    facts.append(made.jobSaved ? tr("job saved") : tr("job not saved"));
    return facts.join(QStringLiteral("  \u00B7  "));
}

void FinishPanel::SetPages(int pages) {
    pages_ = pages;
    if (desk_.Screen().LastRun().Made()) facts_->setText(Facts());
}

void FinishPanel::SetOpen(std::size_t open) {
    blanks_->setText(open == 0 ? tr("Nothing open") : tr("Still open: %1").arg(open));
    Describe(blanks_, blanks_->text());
    blanks_->setEnabled(open > 0);
    blanks_->setProperty(kWhyGrey, tr("Every field that the documents show is filled."));
}

void FinishPanel::Offer(bool mail, bool print, const QString& whyNoPrint) {
    mail_->setVisible(mail && open_->isVisibleTo(this));
    print_->setVisible(print && open_->isVisibleTo(this));
    print_->setEnabled(whyNoPrint.isEmpty());
    print_->setProperty(kWhyGrey, whyNoPrint);
    print_->setToolTip(whyNoPrint.isEmpty() ? tr("Prints the document on a printer of your choice")
                                            : whyNoPrint);
}

void FinishPanel::SetMakingPdf(bool making) {
    pdf_->setEnabled(!making);
    pdf_->setText(making ? tr("PDF \u2026") : tr("PDF"));
}

void FinishPanel::ReadNotices() {
    if (const auto& made = desk_.Screen().LastRun().Made()) {
        std::string text;
        for (const std::string& notice : made->notices) text += (text.empty() ? "" : "\n\n\n") + notice;
        desk_.Screen().Person().Tell("  NOTICES", text, DialogIcon::Information);
    }
}

}  // namespace quillmark::desktop
