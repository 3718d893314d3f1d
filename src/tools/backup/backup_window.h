#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/drives.h"
#include "tools/backup/copy_list.h"
#include "tools/window/side_window.h"

namespace quillmark {

/// What the window works on.
struct BackupOffice {
    Folders folders;
    Dialogs& dialogs;
    const Clock& clock;
    std::function<std::vector<Drive>()> drives;  ///< those that are there at the moment of the call
};

/// Copies jobs and settings to a drive and back. Its controls: `lblAcct` the mode, `Drive1`, `path` of the
/// backup on the chosen drive, `there` what is on it and what a restore would replace, `List1` the backups on
/// all drives, `missing` files of the office, `cmdBackup`, `cmdRestore`, `cmdExit`, and `Timer1`, on whose
/// tick drives come and go.
class BackupWindow final : public SideWindow {
 public:
    using Copying = std::function<void(const CopyWatch&)>;
    /// Carries a copying out and returns when it is over; lets through what it throws.
    using Carrier = std::function<void(const Copying&)>;

    explicit BackupWindow(BackupOffice office);

    std::string Title() const override { return "Backup and Restore"; }
    std::vector<WindowControl> Controls() const override;

    /// A window has it done in the background. Without a carrier it is done at once.
    void CarryBy(Carrier carrier) { carrier_ = std::move(carrier); }
    /// Files of the office are other ones than when the window opened.
    bool HasRestored() const { return hasRestored_; }
    /// Something keeps the program from its own folder, of which the person has been told: the program is to
    /// end.
    bool EndsProgram() const { return endsProgram_; }

 private:
    void OnPick(std::string_view name, std::size_t entry) override;
    void OnClick(std::string_view name, bool twice, const std::filesystem::path& to) override;

    void TestProgramFolder();
    void FindMissing();
    /// A drive as it was when it was last looked at.
    struct Place {
        Drive drive;
        bool isReady = false;                                   ///< holds a medium
        std::optional<std::chrono::local_seconds> backup = {};  ///< its date

        bool operator==(const Place&) const = default;
    };

    std::vector<Place> Look() const;
    void ShowDrives(std::vector<Place> places);
    void Describe();
    std::string DescriptionOfBackup(const Place& place) const;
    void Backup();
    void Restore();
    bool Carry(const Copying& copying, std::string_view whatStays);
    void SwitchMode();

    const Place* Chosen() const { return chosen_ < places_.size() ? &places_[chosen_] : nullptr; }
    BackupHome Home() const { return HomeOf(mode_, office_.folders); }
    bool IsReady(const Drive& drive) const;

    BackupOffice office_;
    Carrier carrier_;
    BackupMode mode_ = BackupMode::User;
    bool modeShown_ = false;
    std::vector<std::string> missing_;
    std::vector<Place> places_;
    std::size_t chosen_ = 0;
    std::string there_;
    bool hasRestored_ = false;
    bool endsProgram_ = false;
};

}  // namespace quillmark
