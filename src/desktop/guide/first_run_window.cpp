#include "desktop/guide/first_run_window.h"

#include <QCommandLinkButton>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>
#include <stdexcept>

#include "desktop/guide/guide_window.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kIconSize = 64;
constexpr int kColumns = 84;  // of characters, the window's width

std::string Carried(const char* resource) {
    QFile file(Shown(resource));
    if (!file.open(QIODevice::ReadOnly))
        throw std::logic_error(std::string(resource) + " is not compiled in");
    return file.readAll().toStdString();
}

QLabel* Paragraph(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

QHBoxLayout* Heading() {
    auto* icon = new QLabel;
    icon->setPixmap(QIcon(QStringLiteral(":/icons/quillmark-128.png")).pixmap(kIconSize));
    auto* text =
        Paragraph(QStringLiteral("<h2>Welcome to Quillmark</h2><p>Your first document is two minutes "
                                 "away. How would you like to begin?</p>"));
    auto* row = new QHBoxLayout;
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addSpacing(kIconSize / 4);
    row->addWidget(text, 1);
    return row;
}

}  // namespace

std::vector<SeedFile> SeedFiles() {
    return {{"data/" + std::string(kSampleJob) + ".dat", Carried(":/seeds/sample.dat")},
            {"package.def", Carried(":/seeds/package.def")},
            {"OP236.pdf", Carried(":/seeds/OP236.pdf")}};
}

FirstRunWindow::FirstRunWindow(QWidget* parent) : SideWindow(parent, "Welcome") {
    setObjectName(QStringLiteral("FirstRun"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(Heading());
    Offer(QStringLiteral("Open the sample job"),
          QStringLiteral("A house in Guilford is being sold, and its fields are filled in. Press CREATE, and "
                         "its deed opens as a Word document."),
          FirstStep::SampleJob, QStringLiteral("cmdSample"));
    Offer(QStringLiteral("Enter the firm's details"),
          QStringLiteral("Name, address and telephone of your firm, once and for all jobs. You can come back "
                         "to this list at any time by typing DEFAULTS in the name box."),
          FirstStep::FirmDefaults, QStringLiteral("cmdDefaults"));
    Offer(QStringLiteral("Start a job of your own"),
          QStringLiteral("Type a name for it, press Enter, choose documents first, then fill in the fields."),
          FirstStep::NewJob, QStringLiteral("cmdNewJob"));
    column->addWidget(Paragraph(QStringLiteral("Press F1 anywhere for the user's guide.")));
    findChild<QCommandLinkButton*>(QStringLiteral("cmdSample"))->setFocus();
    const int width = fontMetrics().averageCharWidth() * kColumns;
    resize(width, column->totalHeightForWidth(width));
}

void FirstRunWindow::Offer(const QString& caption, const QString& explanation, FirstStep step,
                           const QString& name) {
    auto* button = new QCommandLinkButton(keys_.Mark(Utf8(caption)), explanation);
    button->setObjectName(name);
    Describe(button, caption, explanation);
    connect(button, &QCommandLinkButton::clicked, this, [this, step] {
        step_ = step;
        accept();
    });
    layout()->addWidget(button);
}

FirstStep Welcome() {
    FirstRunWindow window(nullptr);
    window.exec();
    return window.Step();
}

}  // namespace quillmark::desktop
