#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "entry/smart_fields.h"
#include "session/client_choice.h"
#include "session/create_command.h"
#include "session/documents.h"
#include "session/firm.h"
#include "session/grid/grid_editor.h"
#include "session/grid/grid_steps.h"
#include "session/job_files.h"
#include "session/journal.h"
#include "session/machine.h"
#include "session/name_box.h"
#include "session/recent_jobs.h"
#include "session/settings_list.h"
#include "session/side_windows.h"
#include "session/state/not_allowed.h"
#include "session/state/screen_state.h"
#include "session/undo.h"

/// The main screen without a toolkit: a window shows its state and passes keys and clicks to it; it decides
/// everything. It owns exactly one job.
namespace quillmark {

/// The front of the main screen: it starts, resets and ends the session, and hands each command to the part
/// that it belongs to. docs/architecture.md tells which part may touch what.
///
/// Every command throws NotAllowed where the screen would not take it, with nothing changed.
class MainScreen {
 public:
    MainScreen(std::filesystem::path programFolder, Machine machine);

    /// From the start of the program to the first input. False when the program is to end at once.
    /// Without `warns` the word about unset defaults is left to `WarnOfUnsetDefaults`: a newcomer is welcomed
    /// first.
    bool Start(bool warns = true);
    void WarnOfUnsetDefaults();
    bool HasEnded() const { return screen_.ended; }

    const ScreenState& State() const { return screen_; }
    const FirmContext& FirmAround() const { return firm_.Context(); }
    Dialogs& Person() const { return machine_.dialogs; }
    Shell& Programs() const { return machine_.shell; }

    // The name box.
    void FocusName() {
        Act([&] { nameBox_.Focus(); });
    }
    void TypeName(std::string_view text) {
        Act([&] { nameBox_.Type(text); });
    }
    void EditName(std::string_view text) {
        Act([&] { nameBox_.Edit(text); });
    }
    void EnterName() {
        Act([&] { nameBox_.Enter(); });
    }

    // The lists and the options.
    void FocusList1() {
        Act([&] { documents_.FocusList1(); });
    }
    void FocusList2() {
        Act([&] { documents_.FocusList2(); });
    }
    void PickDocument(std::string_view line) {
        Act([&] { documents_.Pick(line); });
    }
    void DropDocument(std::string_view line) {
        Act([&] { documents_.Drop(line); });
    }
    void SelectLegal(const std::vector<std::string>& lines) {
        Act([&] { documents_.SelectLegal(lines); });
    }
    void MoveDocument(std::size_t line, std::size_t to) {
        Act([&] { documents_.Move(line, to); });
    }
    void ClickOption(int n) {
        Act([&] { documents_.ClickOption(n); });
    }
    void DoubleClickOption(int n) {
        Act([&] { documents_.DoubleClickOption(n); });
    }
    /// After the package editor: `List1` offers the packages as they are now.
    void LeavePackages() { documents_.Offer(); }

    // The grid and the editors over it: see GridEditor for each.
    const GridEditorState& Editor() const { return editor_.State(); }
    void ClickGrid(int row, int column) {
        Act([&] { editor_.Click(row, column); });
    }
    void DoubleClickGrid(int row, int column) {
        Act([&] { editor_.DoubleClick(row, column); });
    }
    void KeyInGrid(EditorKey key) {
        Act([&] { editor_.KeyInGrid(key); });
    }
    void TypeInGrid(std::string_view character) {
        Act([&] { editor_.TypeInGrid(character); });
    }
    void MoveCursor(int row) {
        Act([&] { editor_.MoveCursor(row); });
    }
    void KeyInEditor(std::string_view character) { Type(character); }
    void KeyInEditor(EditorKey key) {
        Act([&] { editor_.KeyInEditor(key); });
    }
    void SetEditorText(EditorText text) { editor_.SetEditorText(std::move(text)); }
    void SetBlockText(EditorText text) { editor_.SetBlockText(std::move(text)); }
    void SetBlockText(std::string_view text) {  ///< the caret behind it
        editor_.SetBlockText({std::string(text), text.size(), 0});
    }
    void ClickDay(std::chrono::year_month_day day, bool twice) {
        Act([&] { editor_.ClickDay(day, twice); });
    }
    void KeyInCalendar(EditorKey key, std::chrono::year_month_day day) {
        Act([&] { editor_.KeyInCalendar(key, day); });
    }
    void PickChoice(std::size_t line) {
        Act([&] { editor_.PickChoice(line); });
    }
    void KeyInChoices(EditorKey key, std::string_view text) {
        Act([&] { editor_.KeyInChoices(key, text); });
    }
    void PickRecord(std::size_t line) {
        Act([&] { editor_.PickRecord(line); });
    }
    void LoseFocus(ScreenFocus to) {
        Act([&] { editor_.LoseFocus(to); });
    }
    void ScrollTo(int topRow) {
        Act([&] { editor_.ScrollTo(topRow); });
    }
    void SetRowsOnScreen(int rows) { editor_.SetRowsOnScreen(rows); }
    void ClickJumpLabel(int group) {
        Act([&] { editor_.ClickJumpLabel(group); });
    }
    void Paste(const Clipboard& clipboard) {
        Act([&] { editor_.Paste(clipboard); });
    }
    void ClearValue() {
        Act([&] { editor_.ClearValue(); });
    }
    void SelectAll() { editor_.SelectAll(); }
    void ViewPicture() { editor_.ViewPicture(); }

    // Field entry as one step each: see GridSteps.
    std::string EnterField(int n, std::string_view text, EntryWay way) {
        return Act([&] { return steps_.EnterField(n, text, way); });
    }
    std::string EnterUserField(std::string_view marker, std::string_view text, EntryWay way) {
        return Act([&] { return steps_.EnterUserField(marker, text, way); });
    }
    std::string TypeInEditor(int n, std::string_view text) {
        return Act([&] { return steps_.TypeInEditor(n, text); });
    }
    void UnlockRow(int n) {
        Act([&] { steps_.UnlockRow(n); });
    }
    std::string ClickNote(int n, int column) {
        return Act([&] { return steps_.ClickNote(n, column); });
    }

    // Acts taken back and done again: see UndoHistory. An open editor commits first, as on any click outside
    // it.
    std::string Undo();
    std::string Redo();
    const UndoHistory& History() const { return history_; }

    /// A click on a button of the main screen by its control name, such as "cmdCreate".
    void Click(std::string_view button);
    /// The lines that the window's close box runs: as EXIT. The session goes on where something is left that
    /// could not be saved, or that a refused overwrite or value holds back.
    void Close();

    // The browser's results (tools/browser): OPEN and TEMPLATES show it, these take what it chose.
    bool BrowserOpen() const { return screen_.browserOpen; }
    void OpenBrowser(bool templates);
    void CloseBrowser() { screen_.browserOpen = false; }
    void LoadJob(std::string_view name, bool asTemplate) {
        Anew([&] { files_.Load(name, asTemplate); });
    }
    void Spawn(std::string_view entry);
    /// Jobs last opened or saved by this user, newest first, those that are still there.
    std::vector<RecentJob> RecentJobs() const;
    /// Opens a job by its name as OPEN and a choice in the browser do, or by its file's path. Throws
    /// FileError for a path that leads to none.
    void OpenJob(std::string_view job);

    // Windows beside the main one.
    /// The screen of an address book: by the browser's `cmdAttorneys` and `cmdServicers`, or from the main
    /// screen. It keeps the main screen waiting until `CloseAddresses`. Throws FileError, and there is no
    /// such screen then.
    AddressEditor& OpenAddresses(AddressBook book) { return sideWindows_.OpenAddresses(book); }
    AddressEditor* Addresses() { return sideWindows_.Addresses(); }
    void CloseAddresses() { sideWindows_.CloseAddresses(); }
    /// The proration calculator beside the grid, as after its RESET; the main screen stays in use under it.
    ProrationCalculator& OpenCalculator() { return sideWindows_.OpenCalculator(); }
    ProrationCalculator* Calculator() { return sideWindows_.Calculator(); }
    /// `cmdBuyer`, `cmdSeller`: the amount goes into the grid's current row, if it takes one, as a credit to
    /// that side, with nothing asked; the calculator closes and the grid has the keyboard.
    void HandOver(CreditTo side) {
        Act([&] { sideWindows_.HandOver(side); });
    }
    void CloseCalculator() { sideWindows_.CloseCalculator(); }

    /// The side tool's window that `cmdCustom` and its like have opened; null when there is none. After each
    /// act in it `WindowHasActed` does what follows.
    SideWindow* Window() { return sideWindows_.Window(); }
    void WindowHasActed() { sideWindows_.WindowHasActed(); }

    // Firm defaults, settings and clients.
    const std::vector<SettingsRow>& List3() const { return settings_.Rows(); }
    bool SettingsListShown() const { return settings_.IsShown(); }
    void SelectSetting(std::size_t row) { settings_.Select(row); }
    void EditSetting(std::size_t row) {
        Anew([&] { settings_.Edit(row); });
    }
    bool ChoosingClient() const { return clients_.IsOpen(); }
    const std::vector<std::string>& Clients() const { return firm_.ClientLines(); }
    const std::string& Client() const { return firm_.Client(); }  ///< being served, in Para-Pro mode
    void SelectClient(std::string_view name) {
        Anew([&] { clients_.Select(name); });
    }
    void DeleteClient(std::string_view name) {
        Anew([&] { clients_.Delete(name); });
    }

    // CREATE: see CreateCommand.
    void SetCreateTarget(CreateTarget target) { create_.SetTarget(std::move(target)); }
    const std::optional<std::filesystem::path>& LastDocument() const { return create_.LastDocument(); }
    const CreateCommand& LastRun() const { return create_; }

    // For jobs in bulk, with nobody before the screen.
    /// Reads the firm's files and is ready for the first job; no upkeep, no warning, nothing written.
    void StartForBulk();
    /// A job from wherever its file stands.
    void LoadJobFrom(const JobSource& source) { files_.LoadFrom(source, false); }
    /// Other documents in place of the job's own list.
    void ListDocuments(const std::vector<std::string>& documents);
    void DateDocuments(std::string_view date);  ///< the value of [document date]
    const std::vector<std::string>& Doubts() const { return files_.Doubts(); }
    const std::vector<std::string>& FileNotices() const { return files_.Notices(); }

 private:
    /// Runs a command that a person may take back. Whatever it changed of the job is one act, also where it
    /// then failed.
    template <class Command>
    std::invoke_result_t<Command> Act(Command command) {
        const AfterCommand after{[this, hint = FieldInHand()] { NoteAct(hint); }};
        return command();
    }
    /// Runs a command behind which nothing can be taken back.
    template <class Command>
    void Anew(Command command) {
        const AfterCommand after{[this] { EndHistory(); }};
        command();
    }
    struct AfterCommand {
        std::function<void()> then;
        ~AfterCommand() { then(); }
    };
    int FieldInHand() const { return editor_.State().IsOpen() ? editor_.State().EditField : 0; }
    void NoteAct(int hint);
    void EndHistory();
    void Keep();
    void OpenOwnState();
    void OfferWhatWasLeft();
    void Type(std::string_view character);
    void ClickButton(std::string_view name);
    bool EndsHistory(std::string_view name) const;

    GridSurroundings AroundGrid();
    NameSurroundings AroundName();
    void ResetSession();
    void StartAnew();
    void StartTestMode();
    void ReadFirmAnew();
    void CloseForTest();
    void BeginFieldEntry();
    void Edit();
    void End();
    void Save();
    bool AsksToSave();
    bool HoldsNamelessWork() const;
    bool LeavesNamelessWork();
    void FieldChanged(int n);
    void OpenJobOrSave();
    void Mail();
    void Templates();
    void PrintFieldList();
    void TellBadInput(const BadFieldInput& bad);

    Machine machine_;
    Firm firm_;
    ScreenState screen_;
    GridEditor editor_;
    GridSteps steps_;
    NameCommands nameBox_;
    DocumentCommands documents_;
    JobFiles files_;
    CreateCommand create_;
    SettingsList settings_;
    ClientChoice clients_;
    SideWindows sideWindows_;
    UndoHistory history_{screen_, editor_};
    std::optional<RecentJobList> recent_;
    std::optional<Journal> journal_;        ///< none where the user has no folder for it
    std::size_t changesBeforeHistory_ = 0;  ///< since the job's file, that cannot be taken back
};

}  // namespace quillmark
