#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "production/create.h"
#include "selection/office.h"
#include "selection/option_clicks.h"
#include "selection/selection_state.h"
#include "tools/browser/file_browser.h"

/// The main screen without a toolkit: a window shows its state and passes keys and clicks to it; it decides
/// everything. It owns exactly one job.
namespace quillmark {

/// What the screen would not allow in its present state: a disabled button, a hidden option, a line that is
/// not in the list. Nothing has changed.
class NotAllowed : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// What lies outside the program. `http` may be null: then no upgrade is looked for.
struct Machine {
    const Clock& clock;
    Dialogs& dialogs;
    Shell& shell;
    HttpClient* http = nullptr;
    std::function<word::StartedWordProcessor()> startWord;
    /// Whether another copy of the program runs on this computer and has been brought to the front; null
    /// where several may run.
    std::function<bool()> handOver;
    std::filesystem::path programFile;  ///< whose date upgrades are measured by; empty for none
};

/// The first entry of the template browser: a template that is yet to be made.
inline constexpr std::string_view kNewTemplateEntry = FileBrowser::kNewTemplate;

/// A row of `List3`, the settings list that replaces the grid while the firm's defaults are being set.
struct SettingsRow {
    int field = 0;  ///< of a firm default; 0 for settings and blank rows
    std::string text;
    std::string value;  ///< of a firm default; empty while the firm has set none
};

/// How a text gets into a field's editor.
enum class EntryWay { Type, Paste, Pick };

class MainScreen {
 public:
    MainScreen(std::filesystem::path programFolder, Machine machine);

    /// From the start of the program to the first input. False when the program is to end at once.
    bool Start();
    bool HasEnded() const { return ended_; }

    const SelectionState& State() const { return screen_; }
    const std::vector<SettingsRow>& List3() const { return List3_; }
    bool SettingsListShown() const { return !List3_.empty(); }
    const Folders& OfficeFolders() const { return folders_; }
    const Settings& OfficeSettings() const { return settings_; }
    const Office& OfficeAround() const { return office_; }
    const std::vector<std::string>& Clients() const { return clients_; }

    // Every command below throws NotAllowed where the screen would not take it.

    // The name box.
    void FocusName();
    void TypeName(std::string_view text);  ///< key by key, into the empty or selected box
    void EnterName();                      ///< the Enter key

    // The lists and the options.
    void PickDocument(std::string_view line);                 ///< double click in List1
    void DropDocument(std::string_view line);                 ///< double click in List2, the first such line
    void SelectLegal(const std::vector<std::string>& lines);  ///< makes exactly these lines selected
    void ClickOption(int n);
    void DoubleClickOption(int n);

    // The grid. Fields are named by their number; a user-defined row by its marker.
    std::string EnterField(int n, std::string_view text, EntryWay way);
    std::string EnterUserField(std::string_view marker, std::string_view text, EntryWay way);
    /// What the editor shows after the text was typed; closed with Escape.
    std::string TypeInEditor(int n, std::string_view text);
    void UnlockRow(int n);
    std::string ClickNote(int n, int column);
    void ClickJumpLabel(int group);

    /// A click on a button of the main screen by its control name, such as "cmdCreate".
    void Click(std::string_view button);
    /// After the package editor: `List1` offers the packages as they are now.
    void LeavePackages() { FillList1(); }
    /// The lines that the window's close box runs: as EXIT.
    void Close();

    // The browser's results (tools/browser): OPEN and TEMPLATES show it, these take what it chose.
    bool BrowserOpen() const { return browserOpen_; }
    void OpenBrowser(bool templates);
    void CloseBrowser();
    void LoadJob(std::string_view name, bool asTemplate);
    void Spawn(std::string_view entry);

    // Firm defaults, settings and clients.
    void EditSetting(std::size_t row);         ///< double click in List3
    void SelectClient(std::string_view name);  ///< the first line adds one
    void DeleteClient(std::string_view name);

    /// Where the next CREATE puts its document (a .docx path or an existing folder) and its trace.
    void SetCreateTarget(std::filesystem::path to, std::filesystem::path trace);
    /// The document that the last CREATE made; nothing when the run left early.
    const std::optional<std::filesystem::path>& LastDocument() const { return lastDocument_; }

 private:
    // Start-up (start_up.cpp).
    bool Upkeep();
    void ReadOffice();
    Settings ReachableSettings() const;
    bool DataIsNewer();
    void UseFolders(std::string_view client);
    void FillList1();
    void WarnOfEmptyDefaults();
    void ReadClients();
    void AskForClient();
    void ServeClient(const std::string& name);
    void AddClient();

    // The session (reset.cpp).
    void ResetSession();
    void StartAnew();
    void BeginFieldEntry();
    void Edit();
    void End();
    bool HasUnsavedChanges() const;
    bool AsksToSave();

    // The name box (name_box.cpp).
    void NameChanged();
    void ShowNameGuidance();
    void OfferUpgrade();

    // Files (job_files.cpp).
    void Save();
    void SaveJob();
    bool JobExists(std::string_view name) const;
    bool ChangedByOthers() const;
    bool MayOverwrite();
    void WriteJob();
    void NameJob();
    std::optional<std::string> AskForName(bool rename);
    bool Rename(const std::string& name);
    void CountAsSaved();
    void FillList2FromHistory();
    void ShowAsOpened();

    // The settings list (settings_list.cpp).
    void ShowSettings();
    void SaveSettings();
    void EditDefault(SettingsRow& row);
    void EditPath(SettingsRow& row);
    void EditAnswer(SettingsRow& row);

    // The grid (grid.cpp).
    std::size_t RowOf(int n) const;
    std::size_t RowOf(std::string_view marker) const;
    void OpenRow(std::size_t row);
    std::string PickChoice(std::size_t row, std::string_view text);
    std::string Commit(std::size_t row, std::string_view text);
    void FieldChanged();
    void Advance(std::size_t row);

    // CREATE and the rest of the buttons.
    void Create();
    void Mail();
    void ShowExit();
    void Templates();

    void RequireOption(int n, OptionAction action) const;
    void Require(bool condition, const std::string& otherwise) const;
    void Refresh(bool headingsOnly = false);

    std::filesystem::path programFolder_;
    Machine machine_;
    Settings settings_;
    Folders folders_;
    FirmDefaults firmDefaults_;
    Office office_;
    SelectionState screen_;
    std::vector<SettingsRow> List3_;
    std::vector<std::string> clients_;
    std::string client_;
    std::string knownFile_;  ///< the job's file as this session last read or wrote it
    bool choosingClient_ = false;
    bool dataPathLost_ = false;
    std::unique_ptr<CreateRun> run_;
    std::filesystem::path createTo_;
    std::filesystem::path createTrace_;
    std::optional<std::filesystem::path> lastDocument_;
    bool browserOpen_ = false;
    bool ended_ = false;
};

}  // namespace quillmark
