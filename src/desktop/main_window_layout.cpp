#include <QHBoxLayout>
#include <QMenu>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/guide/guide_window.h"
#include "desktop/main_window.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/quill_style.h"
#include "desktop/toolkit/text.h"

/// Where everything stands on the main screen.
namespace quillmark::desktop {

namespace {

constexpr int kLeftColumns = 46;  ///< width of the left side in characters

// clang-format off
constexpr std::string_view kMainButtons[] = {"cmdOpen", "cmdCreate", "cmdReset", "cmdExit"};
constexpr std::string_view kSideButtons[] = {"cmdTemplate", "cmdPackages", "cmdCustom", "cmdEnvelopes", "cmdOP236"};

constexpr std::size_t kCreate = 1;  ///< of the main buttons

struct WelcomeStep {
    const char* head;
    const char* text;
};
constexpr WelcomeStep kWelcome[] = {
    {"1.  Name the job",        "Type a name, such as \"Smith - 101 Any Street\", and press Enter."},
    {"2.  Choose the documents", "Double-click documents or a package, then set who sells and who buys."},
    {"3.  Fill in the fields",   "They appear here. Enter goes from one to the next."},
    {"4.  CREATE",               "The documents are made, ready to print and sign."},
};
// clang-format on

}  // namespace

void MainWindow::Arrange() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    left_ = MakeLeft();
    auto* beside = new QSplitter(Qt::Horizontal);
    beside->setObjectName(QStringLiteral("besideGrid"));
    QWidget* right = MakeRight(beside);
    preview_ = new PreviewPane(desk_, appearance_, PreviewPane::RendererProgram(), beside);
    panes_ = new Panes(left_, right, beside, preview_, this);
    layout->addWidget(panes_);
    FitToFont();
}

void MainWindow::FitToFont() {
    for (QPushButton* button : topButtons_) button->setMinimumHeight(2 * fontMetrics().lineSpacing() + 10);
    panes_->Fit();
}

QWidget* MainWindow::MakeLeft() {
    auto* left = new QWidget(this);
    auto* layout = new QVBoxLayout(left);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    name_ = new NamePanel(desk_, buttons_, appearance_, left);
    options_ = new OptionPanel(desk_, left);
    documents_ = new DocumentPanel(desk_, appearance_, left);
    layout->addWidget(name_);
    layout->addWidget(options_);
    layout->addWidget(documents_, 1);
    return left;
}

/// What is said, where one is, and the rows.
QWidget* MainWindow::MakeWork(QWidget* parent) {
    auto* work = new QWidget(parent);
    auto* layout = new QVBoxLayout(work);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    jump_ = new JumpBar(desk_, appearance_, work);
    guidance_ = new GuidanceBar(desk_, appearance_, work);
    finish_ = new FinishPanel(desk_, work);
    find_ = new FindBar(desk_, work);
    pages_ = new QStackedWidget(work);
    grid_ = new GridView(desk_, appearance_, pages_);
    List3_ = new SettingsView(pages_);
    List3_->setObjectName(QStringLiteral("List3"));
    welcome_ = MakeWelcome();
    for (QWidget* page : {static_cast<QWidget*>(grid_), static_cast<QWidget*>(List3_), welcome_})
        pages_->addWidget(page);
    layout->addWidget(guidance_);
    layout->addWidget(finish_);
    layout->addWidget(jump_);
    layout->addWidget(find_);
    layout->addWidget(pages_, 1);
    return work;
}

QWidget* MainWindow::MakeRight(QSplitter* beside) {
    auto* right = new QWidget(this);
    auto* layout = new QVBoxLayout(right);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    beside->addWidget(MakeWork(beside));
    layout->addLayout(MakeButtonRow(right));
    layout->addWidget(beside, 1);
    layout->addLayout(MakeFooter(right));
    return right;
}

QLayout* MainWindow::MakeButtonRow(QWidget* parent) {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    for (const std::string_view name : kMainButtons) topButtons_.push_back(buttons_.Make(name, parent));
    for (const std::string_view name : kSideButtons) topButtons_.push_back(buttons_.Make(name, parent));
    MakePrimary(topButtons_[kCreate]);
    for (QPushButton* button : topButtons_) {
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
        if (button == topButtons_[std::size(kMainButtons)]) row->addStretch(1);
        row->addWidget(button, 2);
    }
    return row;
}

/// What stands in the grid's place while there is no job.
QWidget* MainWindow::MakeWelcome() {
    auto* page = new QFrame(pages_);
    page->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    page->setBackgroundRole(QPalette::Base);
    auto* logo = new QLabel(page);
    logo->setPixmap(QPixmap(QStringLiteral(":/icons/quillmark-128.png")));
    logo->setAlignment(Qt::AlignCenter);
    logo->setAccessibleName(tr("Quillmark"));
    auto* layout = new QVBoxLayout(page);
    layout->addStretch(2);
    layout->addWidget(logo);
    layout->addSpacing(16);
    for (const WelcomeStep& step : kWelcome) {
        auto* text = new QLabel(QStringLiteral("<b>%1</b><br>%2").arg(tr(step.head), tr(step.text)), page);
        text->setAlignment(Qt::AlignCenter);
        text->setWordWrap(true);
        layout->addWidget(text);
        layout->addSpacing(6);
    }
    layout->addSpacing(10);
    layout->addWidget(MakeRecent(page), 0, Qt::AlignHCenter);
    layout->addStretch(3);
    return page;
}

/// The jobs last worked on, on the first screen.
QWidget* MainWindow::MakeRecent(QWidget* page) {
    constexpr int kColumns = 60;
    recentJobs_ = new QWidget(page);
    recentJobs_->setFixedWidth(fontMetrics().averageCharWidth() * kColumns);
    auto* head = new QLabel(QStringLiteral("<b>%1</b>").arg(tr("Recent jobs")), recentJobs_);
    head->setAlignment(Qt::AlignCenter);
    recent_ = new RecentList(tr("Recent jobs"), recentJobs_);
    recent_->setFrameStyle(QFrame::NoFrame);
    auto* layout = new QVBoxLayout(recentJobs_);
    layout->setContentsMargins({});
    layout->addWidget(head);
    layout->addWidget(recent_);
    recentJobs_->hide();
    return recentJobs_;
}

QLayout* MainWindow::MakeFooter(QWidget* parent) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    counters_ = new QLabel(parent);
    view_ = new ViewControls(appearance_, parent);
    undo_ = MakeHistoryButton(QStringLiteral("undo"), QStringLiteral("\u21B6"), parent,
                              [](MainScreen& screen) { screen.Undo(); });
    redo_ = MakeHistoryButton(QStringLiteral("redo"), QStringLiteral("\u21B7"), parent,
                              [](MainScreen& screen) { screen.Redo(); });
    row->addWidget(undo_);
    row->addWidget(redo_);
    row->addWidget(counters_);
    row->addStretch(1);
    row->addWidget(buttons_.Make("cmdPrintFList", parent));
    row->addWidget(MakeMore(parent));
    row->addWidget(view_);
    return row;
}

QToolButton* MainWindow::MakeHistoryButton(const QString& name, const QString& sign, QWidget* parent,
                                           Desk::Command command) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(sign);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, command] { desk_.Do(command); });
    return button;
}

/// What one press would take back or do again.
void MainWindow::ShowHistory() {
    const UndoHistory& history = desk_.Screen().History();
    const auto show = [](QToolButton& button, const QString& what, const std::string& act) {
        const QString text = act.empty() ? what : what + QStringLiteral(": ") + Shown(act);
        button.setEnabled(!act.empty());
        button.setToolTip(text);
        Describe(&button, text);
    };
    undo_->setProperty(kWhyGrey, tr("Nothing has been done to the job that could be taken back."));
    redo_->setProperty(kWhyGrey, tr("Nothing has been taken back that could be done again."));
    show(*undo_, tr("Undo"), history.UndoName());
    show(*redo_, tr("Redo"), history.RedoName());
}

QWidget* MainWindow::MakeMore(QWidget* parent) {
    auto* more = new QPushButton(tr("Tools and &help"), parent);
    more->setAutoDefault(false);
    Describe(more, tr("Tools and help"), tr("calculator, address books, backup, the user's guide"));
    auto* menu = new QMenu(more);
    menu->setAttribute(Qt::WA_WindowPropagation);
    menu->addAction(tr("Proration &calculator"), Qt::Key_F9, &flow_, &SideWindowFlow::OpenCalculator)
        ->setShortcutContext(Qt::WidgetShortcut);
    menu->addAction(tr("&Find a field or value"), QKeySequence::Find, this, [this] { find_->Open(); })
        ->setShortcutContext(Qt::WidgetShortcut);
    menu->addAction(tr("What is still &open"), QKeySequence(Qt::CTRL | Qt::Key_B), this,
                    [this] { finishFlow_->ShowBlanks(); })
        ->setShortcutContext(Qt::WidgetShortcut);
    menu->addAction(tr("Live &page"), Qt::Key_F6, this, [this] { ShowPreview(!PreviewShown()); })
        ->setShortcutContext(Qt::WidgetShortcut);
    menu->addAction(tr("Lawfirms / &Attorneys"), this,
                    [this] { flow_.OpenAddresses(AddressBook::Attorneys); });
    menu->addAction(tr("Lenders / &Servicers"), this,
                    [this] { flow_.OpenAddresses(AddressBook::Servicers); });
    menu->addAction(tr("&Backup and restore"), &flow_, &SideWindowFlow::OpenBackup);
    menu->addSeparator();
    AddThemes(*menu);
    menu->addAction(tr("User's &guide\tF1"), this, [this] { ShowGuide(this, "index"); });
    more->setMenu(menu);
    return more;
}

void MainWindow::AddThemes(QMenu& menu) {
    QMenu* colours = menu.addMenu(tr("&Colours"));
    themes_ = new QActionGroup(this);
    for (const QString& name : {tr("As the &desktop"), tr("&Light"), tr("D&ark")}) {
        QAction* theme = themes_->addAction(colours->addAction(name));
        theme->setCheckable(true);
        const auto choice = static_cast<ThemeChoice>(themes_->actions().size() - 1);
        theme->setChecked(choice == theme_);
        connect(theme, &QAction::triggered, this, [this, choice] { SetTheme(choice); });
    }
}

/// From the name down to the grid, then what is done with the job, then what stands below.
void MainWindow::SetTabOrder() {
    std::vector<QWidget*> order = {name_->Box()};
    for (QRadioButton* option : options_->findChildren<QRadioButton*>()) order.push_back(option);
    order.insert(order.end(),
                 {documents_->Filter(), documents_->Catalogue(), documents_->Documents(), grid_, List3_});
    order.insert(order.end(), topButtons_.begin(), topButtons_.end());
    for (QPushButton* label : jump_->findChildren<QPushButton*>()) order.push_back(label);
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace quillmark::desktop
