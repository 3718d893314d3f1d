#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <fstream>

#include "desktop/side_windows/backup_dialog.h"
#include "desktop/side_windows_support.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

class BackupDialogTest : public SideWindowTest {
 protected:
    BackupDialogTest() {
        fs::create_directory(medium / "e");
        const auto drives = [this] { return std::vector<Drive>{{"E:", medium / "e"}, {"F:", medium / "f"}}; };
        screen = std::make_unique<MainScreen>(
            scratch.path(), Machine{.clock = clock, .dialogs = dialogs, .shell = shell, .drives = drives});
        screen->Start();
        WriteData("Smith.dat", "job");
        screen->TypeName("backup");
    }
    template <class Control>
    static Control& Find(QWidget& window, const char* name) {
        auto* control = window.findChild<Control*>(QLatin1String(name));
        if (!control) throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }

    test::ScratchFolder medium;
};

TEST_F(BackupDialogTest, TheKeyboardMakesABackupOnADriveThatComes) {
    const WhenOpened work([&](QWidget& window) {
        fs::create_directory(medium / "f");
        auto& drive = Find<QComboBox>(window, "Drive1");
        drive.setFocus();
        Press(window, Qt::Key_Down);
        EXPECT_EQ(drive.currentText(), QStringLiteral("F:"));
        auto& backup = Find<QPushButton>(window, "cmdBackup");
        backup.setFocus();
        Press(window, Qt::Key_Return);
        EXPECT_EQ(dialogs.Shown().back().text,
                  "Backup completed to location ...\n\n   F:\\QUILLMARK BACKUP\\");
        EXPECT_TRUE(Find<QPushButton>(window, "cmdRestore").isEnabled());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    ShowBackup(*screen, &parent);
    EXPECT_EQ(test::ReadBytes(medium / "f/QUILLMARK BACKUP/data/Smith.dat"), "job");
    EXPECT_EQ(screen->Window(), nullptr);
}

TEST_F(BackupDialogTest, ALongCopyLeavesTheWindowAliveAndIsGivenUp) {
    WriteData("Long.dat", "");
    fs::resize_file(scratch.path() / "data/Long.dat", 300'000'000);
    const std::size_t boxes = dialogs.Shown().size();
    const WhenOpened work([&](QWidget& window) {
        auto& cancel = Find<QPushButton>(window, "cmdCancel");
        auto& backup = Find<QPushButton>(window, "cmdBackup");
        QTimer person;
        bool gaveUp = false;
        QObject::connect(&person, &QTimer::timeout, &window, [&] {
            if (gaveUp || !cancel.isVisible()) return;
            gaveUp = true;
            EXPECT_FALSE(backup.isEnabled());
            cancel.click();
            EXPECT_TRUE(window.isVisible()) << "it closes when the copying has ended";
        });
        person.start(5);
        backup.click();
        EXPECT_TRUE(gaveUp);
        EXPECT_TRUE(backup.isEnabled());
        EXPECT_FALSE(cancel.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    ShowBackup(*screen, &parent);
    EXPECT_TRUE(fs::is_empty(medium / "e"));
    EXPECT_EQ(dialogs.Shown().size(), boxes);
}

}  // namespace
}  // namespace quillmark::desktop
