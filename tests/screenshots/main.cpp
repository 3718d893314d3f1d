#include <fmt/format.h>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <stdexcept>

#include "desktop/guide/first_run_window.h"
#include "desktop/main_window.h"
#include "desktop/side_windows/address_window.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/text.h"
#include "session/first_run.h"
#include "support/form_docx.h"
#include "support/scratch.h"
#include "tools/backup/backup.h"
#include "word/start.h"

/// The pictures of the user's guide, made from the real windows with the sample job: quillmark-screenshots
/// FOLDER
namespace quillmark::desktop {
namespace {

using test::ScratchFolder;
using test::WriteBytes;

constexpr std::string_view kDefaults[][2] = {
    {"[seller lawfirm]", "Delaney & Marsh LLC"},     {"[seller atty]", "Margaret A. Delaney/412387"},
    {"[seller atty addr 1]", "61 Whitfield Street"}, {"[seller atty cy,st zip]", "Guilford, CT 06437"},
    {"[seller atty phone]", "(203) 555-0141"},       {"[seller atty fax]", "(203) 555-0142"},
    {"[seller atty email]", "mdelaney@example.com"},
};

constexpr std::string_view kAttorneys =
    "Okafor Law Offices _ Thomas J. Okafor _ 2200 Whitney Avenue _ Suite 310 _ Hamden, CT 06518 _ "
    "(203) 555-0177 _ (203) 555-0178 _ tokafor@example.com\r\n"
    "Prentiss & Cole LLP _ Ruth Prentiss _ 14 Church Street _  _ New Haven, CT 06510 _ (203) 555-0120 _ "
    "(203) 555-0121 _ \r\n";

class NoShell final : public Shell {
 public:
    explicit NoShell(std::filesystem::path home) : home_(std::move(home)) {}
    std::filesystem::path FolderOf(SpecialFolder) override { return home_; }
    void Open(const std::string&) override {}
    void Start(const std::filesystem::path&, const std::vector<std::string>&) override {}

 private:
    std::filesystem::path home_;
};

/// One printer with three bins.
class PicturePrinters final : public Printers {
 public:
    std::vector<std::string> Names() override { return {"Office Laser"}; }
    std::string DefaultName() override { return "Office Laser"; }
    std::vector<PrinterBin> BinsOf(const std::string&) override {
        return {{1, "Upper tray"}, {2, "Lower tray"}, {4, "Manual feed"}};
    }
};

void Settle() {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

/// An office of its own for each picture, on March 9, 2026.
class Studio {
 public:
    explicit Studio(QDir out) : out_(std::move(out)) {
        SetUpProgramFolder(scratch_.path(), SeedFiles());
        for (const char* name : {"Sorensen - 41 Columbus Avenue", "Pell Trust - 330 Lovely Street"}) {
            const std::string file = fmt::format("data/{}.dat", name);
            WriteBytes(scratch_ / file, test::ReadBytes(test::SourceFolder() / file));
        }
        std::string records;
        for (const auto& [marker, value] : kDefaults)
            records += fmt::format("\"{}\"\r\n", FirmDefaultRow(marker, value));
        WriteBytes(scratch_ / "defaults.fld", records);
        WriteBytes(scratch_ / "data/Attorneys.lst", std::string(kAttorneys));
        screen_.Start();
        window_.resize(1240, 700);
        window_.show();
        Do([](MainScreen&) {});
    }

    MainWindow& Window() { return window_; }
    MainScreen& Screen() { return screen_; }

    void Do(const Desk::Command& command) {
        window_.CommandDesk().Do(command);
        Settle();
    }
    void Answer(ScriptedDialogs::Answers answers) { dialogs_.SetAnswers(std::move(answers)); }

    template <class Widget = QWidget>
    Widget* Find(const char* name) {
        auto* found = window_.findChild<Widget*>(QLatin1String(name));
        if (!found) throw std::runtime_error(fmt::format("there is no control {}", name));
        return found;
    }

    /// A form of the firm's own, with a marker that is nearly right.
    void KeepForm() {
        const std::filesystem::path forms = screen_.FirmAround().folders.CustomFormsFolder;
        std::filesystem::create_directories(forms);
        const test::FormDocx form{test::Line(
            "Rider to the contract between [seller 1 name], hereinafter called the [seler 1 name], and others.")};
        WriteBytes(forms / "Rider to contract.docx", form.Bytes());
        WriteBytes(forms / "Rider to contract.inf", "\"[seller 1 name]\",21,0\r\n");
    }

    void Keep(QWidget& widget, const char* name, QRect part = {}) {
        Settle();
        const QPixmap picture = part.isNull() ? widget.grab() : widget.grab(part);
        const QString file = out_.filePath(QStringLiteral("%1.png").arg(QLatin1String(name)));
        if (!picture.toImage().save(file)) throw std::runtime_error("cannot write " + Utf8(file));
    }
    /// A backup of some days ago on the drive, older than one of the jobs.
    void OldBackup() {
        std::filesystem::create_directory(stick_.root);
        MakeBackup(HomeOf(BackupMode::User, screen_.FirmAround().folders), stick_, {});
        const auto day = std::chrono::sys_days{std::chrono::year(2026) / 3 / 6} + std::chrono::hours(17);
        std::filesystem::last_write_time(BackupFolderOf(stick_),
                                         std::chrono::file_clock::from_sys(std::chrono::sys_seconds(day)));
        std::filesystem::last_write_time(BackupFolderOf(stick_) / "data/Pell Trust - 330 Lovely Street.dat",
                                         std::chrono::file_clock::from_sys(std::chrono::sys_seconds(day)));
    }
    /// The part of the main window around a control.
    QRect Around(const QWidget* control) const {
        return {control->mapTo(&window_, QPoint()), control->size()};
    }

    /// Keeps a picture of the modal window that the action opens, after `work` in it, and closes it.
    void KeepModal(
        const char* name, const std::function<void()>& open,
        const std::function<void(QWidget&)>& work = [](QWidget&) {}) {
        QTimer::singleShot(50, &window_, [this, name, work] {
            QWidget* modal = QApplication::activeModalWidget();
            work(*modal);
            Keep(*modal, name);
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        open();
        Settle();
    }

 private:
    QDir out_;
    ScratchFolder scratch_;
    Drive stick_{"E:", scratch_ / "stick"};
    FixedClock clock_{std::chrono::year(2026) / 3 / 9};
    ScriptedDialogs dialogs_;
    NoShell shell_{scratch_.path()};
    PicturePrinters printers_;
    MainScreen screen_{
        scratch_.path(),
        Machine{.clock = clock_,
                .dialogs = dialogs_,
                .shell = shell_,
                .printers = &printers_,
                .startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); },
                .handOver = {},
                .programFile = {},
                .drives = [this] { return std::vector{stick_}; }}};
    MainWindow window_{screen_};
};

void StartSmith(Studio& studio) {
    studio.Do([](MainScreen& screen) { screen.TypeName("Smith - 101 Any Street"); });
    studio.Do([](MainScreen& screen) { screen.EnterName(); });
    studio.Do([](MainScreen& screen) { screen.PickDocument("< STANDARD SELLER'S PACKAGE >"); });
}

int RowOf(Studio& studio, int n) {
    const auto& grid = studio.Screen().State().grid;
    for (std::size_t row = 0; row < grid.size(); ++row)
        if (grid[row].n == n) return static_cast<int>(row);
    throw std::runtime_error(fmt::format("field {} has no row", n));
}

void OpenField(Studio& studio, int n) {
    const int row = RowOf(studio, n);
    studio.Do([row](MainScreen& screen) { screen.ClickGrid(row, 1); });
}

void Enter(Studio& studio, int n, const char* text) {
    studio.Do([=](MainScreen& screen) { screen.EnterField(n, text, EntryWay::Type); });
}

void FillPrice(Studio& studio) {
    Enter(studio, 21, "John Q. Smith");
    Enter(studio, 72, "Stony Creek, CT 06405");
    Enter(studio, 76, "450000");
    Enter(studio, 86, "5%");
}

/// The grid from some rows above a control that lies over it to some below it.
QRect GridAround(Studio& studio, const char* control, int above, int below) {
    QWidget* grid = studio.Find("grdField");
    QRect part = studio.Around(grid);
    const int row = grid->fontMetrics().height() + 10;
    const QRect place = studio.Around(studio.Find(control));
    part.setTop(std::max(part.top(), place.top() - above * row));
    part.setBottom(std::min(part.bottom(), place.bottom() + below * row));
    return part;
}

void MainScreenAndBlock(const QDir& out) {
    Studio studio(out);
    studio.Do([](MainScreen& screen) { TakeFirstStep(screen, FirstStep::SampleJob); });
    studio.Keep(studio.Window(), "main-screen");
    const int row = RowOf(studio, 201);
    studio.Do([row](MainScreen& screen) { screen.ScrollTo(row - 3); });
    studio.Answer({"Yes"});
    studio.Do([row](MainScreen& screen) { screen.DoubleClickGrid(row, 1); });
    studio.Keep(studio.Window(), "block", GridAround(studio, "txtBlock", 2, 1));
}

void ListsAndGrid(const QDir& out) {
    Studio studio(out);
    StartSmith(studio);
    const QRect lists = studio.Around(studio.Find("List1")->parentWidget()->parentWidget());
    studio.Keep(studio.Window(), "lists", lists);
    FillPrice(studio);
    const int price = RowOf(studio, 76);
    studio.Do([price](MainScreen& screen) { screen.ScrollTo(price - 5); });
    OpenField(studio, 79);
    studio.Keep(studio.Window(), "grid", GridAround(studio, "txtEdit", 7, 9));
    studio.Answer({"Yes", "Yes", "No"});
    Enter(studio, 170, "4812.50");
    Enter(studio, 171, "800");
    Enter(studio, 193, "200 - Oil");
    const int tax = RowOf(studio, 170);
    studio.Do([tax](MainScreen& screen) { screen.ScrollTo(tax - 1); });
    OpenField(studio, 173);
    studio.Keep(studio.Window(), "note-cells", GridAround(studio, "txtEdit", 3, 4));
}

void Calculator(const QDir& out) {
    Studio studio(out);
    StartSmith(studio);
    OpenField(studio, 193);
    QTest::keyClick(&studio.Window(), Qt::Key_F9);
    Settle();
    auto* calculator = studio.Find("Calculator");
    QTest::keyClicks(calculator->focusWidget(), QStringLiteral("2400"));
    studio.Keep(*calculator, "calculator");
}

void Settings(const QDir& out) {
    Studio studio(out);
    studio.Do([](MainScreen& screen) { TakeFirstStep(screen, FirstStep::FirmDefaults); });
    QRect part = studio.Around(studio.Find("picInfo"));
    part.setBottom(studio.Around(studio.Find("List3")).bottom());
    studio.Keep(studio.Window(), "settings", part);
}

void SideWindows(const QDir& out) {
    Studio studio(out);
    const auto click = [&](const char* name) {
        return [&studio, name] { studio.Find<QPushButton>(name)->click(); };
    };
    studio.KeepModal("browser", click("cmdOpen"));
    studio.KeepModal("packages", click("cmdPackages"), [](QWidget& editor) {
        auto* names = editor.findChild<QComboBox*>();
        names->setCurrentIndex(1);
        Q_EMIT names->activated(1);
    });
    studio.KeepModal("addresses", [&] {
        studio.Do(
            [&](MainScreen& screen) { ShowAddressEditor(AddressBook::Attorneys, screen, &studio.Window()); });
    });
    studio.KeepModal("backup", [&] {
        studio.OldBackup();
        QTest::keyClicks(studio.Find("txtJobName"), QStringLiteral("backup"));
    });
    studio.Answer({"OK"});
    studio.KeepModal("custom-forms", click("cmdCustom"), [&](QWidget& manager) {
        studio.KeepForm();
        manager.findChild<QPushButton*>(QStringLiteral("cmdEdit"))->click();
        auto* search = manager.findChild<QLineEdit*>(QStringLiteral("searchMarkers"));
        QTest::keyClicks(search, QStringLiteral("seller 1"));
        const auto choose = [&](const char* name, int line) {
            for (auto* list : manager.findChildren<LinesView*>())
                if (list->accessibleName() == QLatin1String(name)) list->SelectLine(line);
        };
        choose("Forms", 0);
        manager.findChild<QPushButton*>(QStringLiteral("cmdCheck"))->click();
        choose("Found in the form", 0);
        choose("Field markers", 2);
    });
    FirstRunWindow welcome(&studio.Window());
    welcome.show();
    studio.Keep(welcome, "welcome");
}

/// The return and an envelope of the sample job, on a printer of the picture's own.
void ReturnAndEnvelope(const QDir& out) {
    Studio studio(out);
    studio.Do([](MainScreen& screen) { TakeFirstStep(screen, FirstStep::SampleJob); });
    const auto press = [&](const char* name) {
        return [&studio, name] { studio.Find<QPushButton>(name)->click(); };
    };
    studio.KeepModal("op236", press("cmdOP236"));
    const auto setUp = [](QWidget& window) {
        window.findChild<QPushButton*>(QStringLiteral("setup"))->click();
        const auto pick = [&](const char* box, int entry) {
            Q_EMIT window.findChild<QComboBox*>(QLatin1String(box))->activated(entry);
        };
        pick("cboFonts", 0);
        pick("Combo1", 2);
        for (const char* choice : {"Landscape", "Check1"})
            window.findChild<QAbstractButton*>(QLatin1String(choice))->click();
    };
    studio.KeepModal("envelopes-setup", press("cmdEnvelopes"), setUp);
    studio.KeepModal("envelopes", press("cmdEnvelopes"), [&](QWidget& window) {
        setUp(window);
        window.findChild<QPushButton*>(QStringLiteral("OK"))->click();
    });
}

void MakeAll(const QDir& out) {
    MainScreenAndBlock(out);
    ListsAndGrid(out);
    Calculator(out);
    Settings(out);
    SideWindows(out);
    ReturnAndEnvelope(out);
}

/// The same looks on every machine.
void FixLooks() {
    ApplyTheme(ThemeChoice::Light);
    QApplication::setCursorFlashTime(0);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(9.75);
    QApplication::setFont(font);
}

}  // namespace
}  // namespace quillmark::desktop

int main(int count, char** arguments) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    if (count != 2) {
        fmt::print(stderr, "quillmark-screenshots FOLDER: writes the pictures of the user's guide there\n");
        return 2;
    }
    quillmark::desktop::FixLooks();
    try {
        quillmark::desktop::MakeAll(QDir(QString::fromLocal8Bit(arguments[1])));
    } catch (const std::exception& failure) {
        fmt::print(stderr, "quillmark-screenshots: {}\n", failure.what());
        return 1;
    }
    return 0;
}
