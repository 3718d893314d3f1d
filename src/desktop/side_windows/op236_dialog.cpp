#include "desktop/side_windows/op236_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

constexpr const char* kCity = "City, State Zip";

QGroupBox* Group(const char* title) {
    return new QGroupBox(QString::fromLatin1(title));
}

}  // namespace

OP236Dialog::OP236Dialog(op236::OP236Window& model, QWidget* parent)
    : ToolDialog(model, parent), return_(model) {
    setObjectName(QStringLiteral("OP236"));
    form_ = NewReturn();
    settings_ = NewSettings();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(form_, 1);
    layout->addWidget(settings_, 1);
    return_.OnWait([](bool waits) {
        waits ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
    });
    OrderTabs();
    Refresh();
    ResizeTo(130, 44);
}

QWidget* OP236Dialog::NewReturn() {
    auto* page = new QWidget(this);
    auto* addresses = new QVBoxLayout;
    addresses->addWidget(NewSellers());
    addresses->addWidget(NewBuyers());
    addresses->addStretch();
    auto* particulars = new QVBoxLayout;
    particulars->addWidget(NewParticulars());
    particulars->addWidget(NewSigners());
    particulars->addStretch();
    auto* entries = new QHBoxLayout;
    entries->addLayout(addresses, 3);
    entries->addLayout(particulars, 2);
    auto* foot = new QHBoxLayout;
    foot->addWidget(NewLabel("revision"), 1);
    foot->addWidget(NewButton("Printer Setup"));
    foot->addWidget(NewButton("CREATE"));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(entries);
    layout->addLayout(NewExemptions(), 1);
    layout->addLayout(foot);
    return page;
}

void OP236Dialog::AddAddress(QGridLayout& grid, const char* caption, const char* street, const char* city) {
    const int row = grid.rowCount();
    auto* line = NewBox(street, caption);
    auto* cityLine = NewBox(city, (std::string(caption) + ", " + kCity).c_str());
    cityLine->setPlaceholderText(QString::fromLatin1(kCity));
    grid.addWidget(NewCaption(caption, street), row, 0, 1, 2);
    grid.addWidget(line, row + 1, 0);
    grid.addWidget(cityLine, row + 1, 1);
    grid.setColumnStretch(0, 1);
    grid.setColumnStretch(1, 1);
}

QWidget* OP236Dialog::NewSellers() {
    auto* group = Group("Sellers");
    auto* grid = new QGridLayout(group);
    AddAddress(*grid, "Seller #1 address after conveyance (Section 4)", "Text1", "Text2");
    AddAddress(*grid, "Seller #2 address after conveyance (Section 5)", "Text3", "Text4");
    return group;
}

QWidget* OP236Dialog::NewBuyers() {
    auto* group = Group("Buyers");
    auto* grid = new QGridLayout(group);
    AddAddress(*grid, "Buyer #1 address after conveyance (Section 10)", "Text5", "Text6");
    grid->addWidget(NewCheck("Check0"), grid->rowCount(), 0, 1, 2);
    AddAddress(*grid, "< enter Buyer #2 address after conveyance >", "Text7", "Text8");
    grid->addWidget(NewCheck("Check5"), grid->rowCount(), 0, 1, 2);
    return group;
}

QWidget* OP236Dialog::NewParticulars() {
    auto* group = Group("Conveyance");
    auto* column = new QVBoxLayout(group);
    auto* instrument = NewCombo("Combo1", "Type of instrument");
    column->addWidget(NewCaption("Select type of instrument", "Combo1"));
    column->addWidget(instrument);
    for (const char* check : {"Check1", "Check2", "Check3", "Check4"}) column->addWidget(NewCheck(check));
    return group;
}

QWidget* OP236Dialog::NewSigners() {
    auto* group = Group("Person signing return .........");
    auto* line = new QHBoxLayout(group);
    for (const char* option : {"Option1", "Option2", "Option3"}) line->addWidget(NewOption(option));
    line->addStretch();
    return group;
}

QBoxLayout* OP236Dialog::NewExemptions() {
    rtbCode_ = NewList("rtbCode", "Exemption codes");
    rtbCode_->setUniformItemSizes(false);
    rtbCode_->setWordWrap(true);
    rtbCode_->setTextElideMode(Qt::ElideNone);
    rtbCode_->setResizeMode(QListView::Adjust);
    rtbCode_->setMinimumHeight(fontMetrics().lineSpacing() * 8);
    rtbCode_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    rtbCode_->installEventFilter(this);
    rtbCode_->viewport()->installEventFilter(this);
    auto* chosen = new QHBoxLayout;
    auto* code = NewLabel("code");
    QFont large = code->font();
    large.setBold(true);
    code->setFont(large);
    codeCaption_ = new QLabel(QStringLiteral("Exemption code:"), this);
    Text9_ = NewBox("Text9", "Citation or docket number");
    QSizePolicy keeps = Text9_->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);  // or the list would jump
    Text9_->setSizePolicy(keeps);
    chosen->addWidget(NewCaption("Click to select exemption code (if applicable) ...", "rtbCode"), 1);
    chosen->addWidget(codeCaption_);
    chosen->addWidget(code);
    chosen->addWidget(Text9_, 1);
    auto* column = new QVBoxLayout;
    column->addLayout(chosen);
    column->addWidget(rtbCode_, 1);
    return column;
}

QWidget* OP236Dialog::NewSettings() {
    auto* page = Group("Printer Setup");
    auto* grid = new QGridLayout(page);
    const auto add = [&](const char* caption, QWidget* widget) {
        const int row = grid->rowCount();
        grid->addWidget(NewCaption(caption, widget->objectName().toLatin1().constData()), row, 0,
                        Qt::AlignTop);
        grid->addWidget(widget, row, 1);
    };
    for (const char* note : {"note1", "note2"}) grid->addWidget(NewLabel(note), grid->rowCount(), 0, 1, 2);
    add("Identify the dot-matrix printer on your system ...", NewCombo("cboPrinters", "Printer"));
    auto* bins = NewList("lstBins", "Printer bin");
    bins->setMaximumHeight(fontMetrics().lineSpacing() * 8);
    add("Specify printer bin ...", bins);
    grid->addWidget(NewLabel("note3"), grid->rowCount(), 0, 1, 2);
    add("VERTICAL adjustment (inches +/-)", NewBox("txtFromTop", "Vertical adjustment", Commit::WhenLeft));
    add("HORIZONTAL adjustment (inches +/-)",
        NewBox("txtFromLft", "Horizontal adjustment", Commit::WhenLeft));
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(NewButton("Test"));
    foot->addWidget(NewButton("OK"));
    grid->addLayout(foot, grid->rowCount(), 0, 1, 2);
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(1, 1);
    return page;
}

void OP236Dialog::Follow() {
    const bool setsUp = return_.Control("OK").visible;
    form_->setVisible(!setsUp);
    settings_->setVisible(setsUp);
    codeCaption_->setVisible(!return_.Control("code").text.empty());
    const WindowControl asked = return_.Control("Text9");
    const QString asks = asked.visible ? Shown(return_.Control("code").text) : QString();
    if (asks == asked_) return;
    asked_ = asks;
    if (asks.isEmpty()) return;
    Text9_->setFocus();
    Text9_->selectAll();
}

bool OP236Dialog::IsFirstCharacter(const QEvent& event) const {
    if (event.type() != QEvent::MouseButtonPress) return false;
    const QPoint place = static_cast<const QMouseEvent&>(event).position().toPoint();
    const QModelIndex line = rtbCode_->indexAt(place);
    if (!line.isValid()) return false;
    const QRect area = rtbCode_->visualRect(line);
    const int margin = rtbCode_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QFontMetrics metrics = rtbCode_->fontMetrics();
    return place.y() < area.top() + metrics.height() + metrics.height() / 3 &&
           place.x() < area.left() + margin + metrics.horizontalAdvance(QLatin1Char('['));
}

bool OP236Dialog::eventFilter(QObject* watched, QEvent* event) {
    const bool deletes = watched == rtbCode_ && event->type() == QEvent::KeyPress &&
                         static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    const bool clears = watched == rtbCode_->viewport() && IsFirstCharacter(*event);
    if (!deletes && !clears) return ToolDialog::eventFilter(watched, event);
    Do([this] { return_.Pick("rtbCode", ""); });
    return true;
}

void ShowReturn(MainScreen& screen, QWidget* parent) {
    auto* model = dynamic_cast<op236::OP236Window*>(screen.Window());
    if (!model) return;
    OP236Dialog(*model, parent).exec();
    screen.WindowHasActed();
}

}  // namespace quillmark::desktop
