#include "desktop/side_windows/envelope_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/side_windows/envelope_view.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/sheet.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

constexpr const char* kLines[] = {"txtAddr1", "txtAddr2", "txtAddr3", "txtCSZ"};

}  // namespace

EnvelopeDialog::EnvelopeDialog(envelopes::EnvelopeWindow& model, QWidget* parent)
    : ToolDialog(model, parent), envelope_(model) {
    setObjectName(QStringLiteral("Envelopes"));
    auto* fields = new QVBoxLayout;
    fields->addLayout(NewAddressee());
    setup_ = NewSetup();
    fields->addWidget(setup_);
    fields->addStretch();
    view_ = new EnvelopeView(this);
    word_ = new QLabel(this);
    word_->setWordWrap(true);
    auto* seen = new QVBoxLayout;
    seen->addWidget(word_);
    seen->addWidget(view_, 1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(fields, 2);
    layout->addLayout(seen, 3);
    OrderTabs();
    Refresh();
    ResizeTo(140, 24);
}

QBoxLayout* EnvelopeDialog::NewAddressee() {
    auto* column = new QVBoxLayout;
    auto* people = NewCombo("Combo1", "Addressee");
    people->setMinimumContentsLength(40);
    QFont columns = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    columns.setPointSizeF(font().pointSizeF());
    people->setFont(columns);
    column->addWidget(people);
    constexpr const char* kSpoken[] = {"Address line 1", "Address line 2", "Address line 3",
                                       "City, State Zip"};
    for (int i = 0; i < 4; ++i) {
        auto* line = NewBox(kLines[i], kSpoken[i]);
        line->installEventFilter(this);
        column->addWidget(line);
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(NewButton("PRINT"));
    buttons->addStretch();
    buttons->addWidget(NewButton("setup"));
    column->addLayout(buttons);
    return column;
}

QWidget* EnvelopeDialog::NewSetup() {
    auto* group = new QGroupBox(Shown(envelope_.Control("frame").text), this);
    auto* grid = new QGridLayout(group);
    const auto add = [&](const char* caption, QWidget* widget) {
        const int row = grid->rowCount();
        grid->addWidget(NewCaption(caption, widget->objectName().toLatin1().constData()), row, 0,
                        Qt::AlignTop);
        grid->addWidget(widget, row, 1);
    };
    add("Select a printer ...", NewCombo("cboPrinters", "Printer"));
    auto* bins = NewList("lstBins", "Envelope bin");
    bins->setMaximumHeight(fontMetrics().lineSpacing() * 5);
    add("Select envelope bin ...", bins);
    add("Choose a font ...", NewCombo("cboFonts", "Font"));
    auto* turned = new QHBoxLayout;
    turned->addWidget(NewOption("Portrait"));
    turned->addWidget(NewOption("Landscape"));
    turned->addStretch();
    grid->addLayout(turned, grid->rowCount(), 1);
    grid->addWidget(NewCheck("Check1"), grid->rowCount(), 1);
    add("Inches from left", NewBox("txtIndent", "Inches from left", Commit::WhenLeft));
    auto* foot = new QHBoxLayout;
    foot->addWidget(NewButton("Test Print"));
    foot->addStretch();
    foot->addWidget(NewButton("OK"));
    grid->addLayout(foot, grid->rowCount(), 0, 1, 2);
    grid->setColumnStretch(1, 1);
    return group;
}

void EnvelopeDialog::Follow() {
    setup_->setVisible(envelope_.Control("OK").visible);
    const PrintedPage page = envelope_.Preview();
    view_->Show(page);
    const QSizeF paper = SheetInches(page);
    QString word = tr("#10 envelope, %1 x %2 inches").arg(paper.width()).arg(paper.height());
    if (RunsOffTheSheet(page)) word += tr(". Some of the text runs off the envelope.");
    word_->setText(word);
}

bool EnvelopeDialog::eventFilter(QObject* watched, QEvent* event) {
    auto* line = qobject_cast<QLineEdit*>(watched);
    if (line && event->type() == QEvent::FocusIn && line->text().startsWith(QLatin1Char('[')))
        QTimer::singleShot(0, line, &QLineEdit::selectAll);  // a click sets the caret after this
    return ToolDialog::eventFilter(watched, event);
}

void ShowEnvelopes(MainScreen& screen, QWidget* parent) {
    auto* model = dynamic_cast<envelopes::EnvelopeWindow*>(screen.Window());
    if (!model) return;
    EnvelopeDialog(*model, parent).exec();
    screen.WindowHasActed();
}

}  // namespace quillmark::desktop
