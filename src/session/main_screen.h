#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "closing/proration_calculator.h"
#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/settings.h"
#include "entry/address_book_files.h"
#include "entry/address_editor.h"
#include "entry/smart_fields.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "production/run/create.h"
#include "selection/office.h"
#include "selection/option_clicks.h"
#include "selection/selection_state.h"
#include "session/grid_editor.h"
#include "session/not_allowed.h"
#include "tools/browser/file_browser.h"

/// The main screen without a toolkit: a window shows its state and passes keys and clicks to it; it decides
/// everything. It owns exactly one job.
namespace quillmark {

/// What lies outside the program. `http` may be null: then no upgrade is looked for.
struct Machine {
    const Clock& clock;
    Dialogs& dialogs;
    Shell& shell;
    HttpClient* http = nullptr;
    Printer* printer = nullptr;  ///< null: nothing can be printed
    std::function<word::StartedWordProcessor()> startWord = {};
    /// Whether another copy of the program runs on this computer and has been brought to the front; null
    /// where several may run.
    std::function<bool()> handOver = {};
    std::filesystem::path programFile = {};  ///< whose date upgrades are measured by; empty for none
    /// While another user holds the address books: shows the wait and gives way to Cancel. Null waits for
    /// ever.
    WaitForBooks waitForBooks = {};
    /// Called at each step of CREATE, so that a window can show the state as it is then. Null where none
    /// shows.
    std::function<void()> onProgress = {};
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
    void EditName(std::string_view text);  ///< the box's present text, after any edit in it
    void EnterName();                      ///< the Enter key

    // The lists and the options.
    void FocusList1();  ///< the keyboard or a click comes to List1
    void FocusList2();
    void PickDocument(std::string_view line);                 ///< double click in List1
    void DropDocument(std::string_view line);                 ///< double click in List2, the first such line
    void SelectLegal(const std::vector<std::string>& lines);  ///< makes exactly these lines selected
    void ClickOption(int n);
    void DoubleClickOption(int n);

    // The grid and the editors over it: see GridEditor for each.
    const GridEditorState& Editor() const { return editor_.State(); }
    void ClickGrid(int row, int column);
    void DoubleClickGrid(int row, int column);
    void KeyInGrid(EditorKey key);
    void KeyInEditor(std::string_view character);
    void KeyInEditor(EditorKey key);
    void SetEditorText(EditorText text);
    void SetBlockText(std::string_view text);  ///< the caret behind it
    void SetBlockText(EditorText text);
    void ClickDay(std::chrono::year_month_day day, bool twice);
    void KeyInCalendar(EditorKey key, std::chrono::year_month_day day);
    void PickChoice(std::size_t line);
    void KeyInChoices(EditorKey key, std::string_view text);
    void PickRecord(std::size_t line);
    void LoseFocus(ScreenFocus to);
    void ScrollTo(int topRow);
    void SetRowsOnScreen(int rows);
    void ClickJumpLabel(int group);
    void Paste(const Clipboard& clipboard);
    void ClearValue();
    void SelectAll();
    void ViewPicture();

    // The same as one step each, for a person who names rows instead of seeing them: fields by their number,
    // a user-defined row by its marker. The editor is closed with Escape after it, wherever the commit led.
    std::string EnterField(int n, std::string_view text, EntryWay way);
    std::string EnterUserField(std::string_view marker, std::string_view text, EntryWay way);
    /// What the editor shows after the text was typed; closed with Escape.
    std::string TypeInEditor(int n, std::string_view text);
    void UnlockRow(int n);
    std::string ClickNote(int n, int column);

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

    // Windows beside the main one (side_windows.cpp).
    /// The screen of an address book: by the browser's `cmdAttorneys` and `cmdServicers`, or from the main
    /// screen. It keeps the main screen waiting until `CloseAddresses`. Throws FileError, and there is no
    /// such screen then.
    AddressEditor& OpenAddresses(AddressBook book);
    AddressEditor* Addresses() { return addresses_.get(); }
    void CloseAddresses() { addresses_.reset(); }
    /// The proration calculator beside the grid, as after its RESET; the main screen stays in use under it.
    ProrationCalculator& OpenCalculator();
    ProrationCalculator* Calculator() { return calculator_.get(); }
    /// `cmdBuyer`, `cmdSeller`: the amount goes into the grid's current row, if it takes one, as a credit to
    /// that side, with nothing asked; the calculator closes and the grid has the keyboard.
    void HandOver(CreditTo side);
    void CloseCalculator() { calculator_.reset(); }

    // Firm defaults, settings and clients.
    void SelectSetting(std::size_t row);  ///< click in List3
    void EditSetting(std::size_t row);    ///< double click in List3
    bool ChoosingClient() const { return choosingClient_; }
    const std::string& Client() const { return client_; }  ///< the law firm being served, in Para-Pro mode
    void SelectClient(std::string_view name);              ///< the first line adds one
    void DeleteClient(std::string_view name);

    /// Where the next CREATE puts its document (a .docx path or an existing folder) and its trace.
    void SetCreateTarget(std::filesystem::path to, std::filesystem::path trace);
    /// The document that the last CREATE made; nothing when the run left early, the empty path while the word
    /// processor alone has it. A run that fails throws CreateError; the user has been told by then.
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
    AddressBooks Books() const;
    std::string FeedBooks() const;
    void TellOfBooks(const std::string& notFed);
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

    // The grid (grid.cpp, grid_steps.cpp).
    GridSurroundings AroundGrid();
    int RowOf(int n) const;
    int RowOf(std::string_view marker) const;
    void OpenRow(int row);
    void CommitText(std::string_view text, EntryWay way);
    void PickFrom(int row, std::string_view text);
    void EscapeEditor();
    void FieldChanged(int n);

    // CREATE (create_command.cpp).
    void Create();
    void EndFormerRun();
    bool MayCreate();
    CreateOrder OrderOfRun(const std::shared_ptr<std::string>& trace);
    void MakeDocuments();
    std::filesystem::path SaveDocument(CreateRun& run);
    void KeepMadeJob();
    void ShowNotices(const std::string& letters);
    void ShowAsMade();
    void OpenDocument(const std::filesystem::path& document);
    void EndFailedRun(const CreateError& failure);
    void LetRepaint() const;

    // The rest of the buttons (top_buttons.cpp).
    void Mail();
    void PrintFieldList();
    void ShowExit();
    void Templates();

    void RequireOption(int n, OptionAction action) const;
    void Require(bool condition, const std::string& otherwise) const;
    void Refresh(bool headingsOnly = false);
    void RowsHaveChanged();
    void TellBadInput(const BadFieldInput& bad);

    std::filesystem::path programFolder_;
    Machine machine_;
    Settings settings_;
    Folders folders_;
    FirmDefaults firmDefaults_;
    Office office_;
    SelectionState screen_;
    GridEditor editor_;
    std::vector<SettingsRow> List3_;
    std::vector<std::string> clients_;
    std::string client_;
    std::string knownFile_;  ///< the job's file as this session last read or wrote it
    bool choosingClient_ = false;
    bool dataPathLost_ = false;
    std::unique_ptr<CreateRun> run_;
    bool creating_ = false;
    std::filesystem::path createTo_;
    std::filesystem::path createTrace_;
    std::optional<std::filesystem::path> lastDocument_;
    bool browserOpen_ = false;
    std::unique_ptr<AddressEditor> addresses_;
    std::unique_ptr<ProrationCalculator> calculator_;
    bool ended_ = false;
};

}  // namespace quillmark
