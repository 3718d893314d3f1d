#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/folders.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "tools/custom_forms/form_check.h"
#include "tools/custom_forms/form_store.h"
#include "tools/window/side_window.h"

namespace quillmark {

/// What the manager of custom forms needs of what is around it.
struct CustomFormsOffice {
    std::filesystem::path folder;  ///< `CustomFormsFolder`
    Dialogs& dialogs;
    Shell& shell;
    StartWord startWord;
    std::set<std::string> fonts = {};  ///< installed, in small letters; empty where nobody knows
};

/// The custom forms manager: forms are imported from files of the disk, and kept as the custom forms
/// database, in which they are opened, checked, renamed and deleted beside the list of markers.
class CustomFormsWindow final : public SideWindow {
 public:
    explicit CustomFormsWindow(CustomFormsOffice office);

    std::string Title() const override;
    std::vector<WindowControl> Controls() const override;

    /// What the last act put on the clipboard; empty for nothing.
    const std::string& Clipboard() const { return clipboard_; }
    /// Whether a form is open for editing, so that `Timer1` has something to watch.
    bool IsWatching() const { return editing_.has_value(); }
    /// Whether the window was left for the test mode of the main screen.
    bool LeftForTest() const { return leftForTest_; }

 private:
    /// A form that a person works on in the word processor.
    struct Editing {
        std::string file;
        std::filesystem::file_time_type date;
        std::unique_ptr<OpenedForm> word;  ///< null where the system's own program has it
    };

    void OnText(std::string_view name, std::string_view text) override;
    void OnPick(std::string_view name, std::size_t entry) override;
    void OnClick(std::string_view name, bool twice, const std::filesystem::path& to) override;
    bool OnClose() override;

    std::string FormsCaption() const;
    WindowControl ButtonOf(std::string_view name) const;
    bool InDatabase() const { return inDatabase_; }
    void ShowDatabase(bool shown);
    void ReadForms();
    void ReadSources();
    void ReadMarkers();
    std::string SelectedForm() const;
    std::filesystem::path PathOfForm(const std::string& file) const;

    void Import();
    void Open();
    void Rename();
    void Delete();
    void DeleteField(const std::string& marker);
    void DeleteSelectedForm();
    void Tick();
    void Check();
    void MendChosen();
    void PickMarker(std::size_t row);
    void AddField();
    void EndEditing();
    void Rescan(const std::string& file);
    /// Runs a step and tells what it fails by; whether it went through.
    bool Attempt(const std::function<void()>& step) const;

    CustomFormsOffice office_;
    bool inDatabase_ = false;
    bool leftForTest_ = false;
    std::filesystem::path sourceFolder_;  ///< `Dir1`
    std::vector<std::string> folders_;    ///< below it
    std::vector<std::string> files_;      ///< `File1`: sources or forms
    std::optional<std::size_t> file_;
    std::string source_;              ///< `txtSourceFile`
    std::vector<MarkerRow> markers_;  ///< `List1` but for its last row
    std::optional<std::size_t> marker_;
    bool fieldIsChosen_ = false;  ///< a user-defined field was clicked last, not a form
    std::string description_;     ///< `Text1`
    std::vector<FormFinding> findings_;
    std::optional<std::size_t> finding_;
    std::string clipboard_;
    std::optional<Editing> editing_;
};

}  // namespace quillmark
