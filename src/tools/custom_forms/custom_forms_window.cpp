#include "tools/custom_forms/custom_forms_window.h"

#include <algorithm>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "tools/custom_forms/form_package.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kBrowseTitle = "CUSTOM FORMS - IMPORT";
constexpr std::string_view kEditTitle = "CUSTOM FORMS DATABASE - EDIT MODE";
constexpr std::string_view kImportHint = "SELECT A DOCUMENT TO IMPORT";
constexpr std::string_view kEditHint = "SELECT A DOCUMENT FOR EDITING";
constexpr std::string_view kWaiting = "wait ...";
constexpr std::string_view kFailed = " Operation Failed";
constexpr std::string_view kWarning = " Warning - ";
constexpr std::string_view kPalette =
    "Select a field marker from the list at left.  A description will be displayed here and the marker will be "
    "copied to the clipboard.  Paste the marker(s) at the appropriate place(s) within your document and make "
    "any additional modifications.";
constexpr std::string_view kAdvice =
    "To preserve formatting during use, generate custom documents individually, OR set form's Horiz & Vert "
    "margins to 5/8 in. (0.63), and Tabs to 1/4 in. (0.25).";
constexpr std::string_view kSourceKinds[] = {".docx", ".docm", ".dotx", ".dotm", ".doc",
                                             ".dot",  ".rtf",  ".odt",  ".ott"};
constexpr std::string_view kUp = "..";
/// What the word processor answers when its user has closed it.
constexpr int kClosedByUser[] = {word::error::kServerGone, word::error::kObjectNotSet};

bool WasClosed(const word::AutomationError& failure) {
    return std::ranges::find(kClosedByUser, failure.number()) != std::end(kClosedByUser);
}

bool IsSource(const fs::directory_entry& entry) {
    const std::string name = TextOf(entry.path().filename());
    std::error_code vanished;
    return entry.is_regular_file(vanished) && !name.starts_with('.') && !name.starts_with("~$") &&
           std::ranges::find(kSourceKinds, FormExtension(name)) != std::end(kSourceKinds);
}

void SortAsShown(std::vector<std::string>& names) {
    std::ranges::sort(names, {}, [](const std::string& name) { return std::pair(UpperCase(name), name); });
}

std::string Trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return std::string(text);
}

}  // namespace

CustomFormsWindow::CustomFormsWindow(CustomFormsOffice office) : office_(std::move(office)) {
    try {
        sourceFolder_ = office_.shell.FolderOf(SpecialFolder::Documents);
    } catch (const MachineError&) {
        sourceFolder_ = fs::absolute(office_.folder).parent_path();
    }
    ShowDatabase(false);
}

// ---- What the window shows -----------------------------------------------------------------------------

std::string CustomFormsWindow::Title() const {
    return std::string(inDatabase_ ? kEditTitle : kBrowseTitle);
}

std::string CustomFormsWindow::FormsCaption() const {
    return std::string(inDatabase_ ? kEditHint : kImportHint);
}

WindowControl CustomFormsWindow::ButtonOf(std::string_view name) const {
    const bool form = inDatabase_ && !SelectedForm().empty();
    const bool field = inDatabase_ && fieldIsChosen_;
    WindowControl button{.name = std::string(name), .kind = ControlKind::Button};
    const auto show = [&](std::string_view caption, bool enabled, std::string_view tooltip) {
        button.text = caption;
        button.enabled = enabled;
        button.tooltip = tooltip;
        return button;
    };
    if (name == "cmdImport")
        return show("IMPORT", !inDatabase_ && !source_.empty(), " Import selected document ");
    if (name == "cmdOpen")
        return show(editing_ ? kWaiting : "OPEN", form || editing_, " Open selected form ");
    if (name == "cmdRename") return show("RENAME", form && !editing_, " Rename selected form ");
    if (name == "cmdDelete")
        return show("DELETE", field || (form && !editing_),
                    field ? " Delete selected field " : " Delete selected form ");
    if (name == "cmdEdit")
        return inDatabase_ ? show("BROWSE", true, " Back to browse mode ")
                           : show("EDIT", true, " Edit the custom forms database ");
    if (name == "cmdCheck") return show("CHECK", form, " Look for faulty markers in selected form ");
    if (name == "cmdMend") {
        const bool canMend = finding_ && !findings_[*finding_].mend.right.empty();
        return show("MEND", inDatabase_ && canMend && !editing_, " Put the right marker in ");
    }
    if (name == "cmdTest") return show("TEST", inDatabase_ && !editing_, " initiate Test Mode ");
    return show("EXIT", true, " Back to the main program ");
}

std::vector<WindowControl> CustomFormsWindow::Controls() const {
    std::vector<WindowControl> controls;
    const auto add = [&](WindowControl control) { controls.push_back(std::move(control)); };
    add({.name = "lblHint", .text = FormsCaption()});
    WindowControl folders{.name = "Dir1", .kind = ControlKind::List, .text = TextOf(sourceFolder_)};
    folders.items = folders_;
    folders.visible = !inDatabase_;
    add(std::move(folders));
    WindowControl files{.name = "File1", .kind = ControlKind::List};
    files.items = files_;
    files.index = file_;
    if (file_) files.text = files_[*file_];
    add(std::move(files));
    add({.name = "txtSourceFile", .kind = ControlKind::Box, .text = source_, .visible = !inDatabase_});
    WindowControl markers{.name = "List1", .kind = ControlKind::List, .visible = inDatabase_};
    for (const MarkerRow& row : markers_) markers.items.push_back(row.marker.marker);
    markers.items.emplace_back(kAddCustomField);
    markers.index = marker_;
    if (marker_) markers.text = markers.items[*marker_];
    add(std::move(markers));
    add({.name = "Text1", .kind = ControlKind::Label, .text = description_});
    WindowControl findings{.name = "lstFindings", .kind = ControlKind::List, .visible = inDatabase_};
    for (const FormFinding& finding : findings_)
        findings.items.push_back(finding.place + ": " + finding.what);
    findings.index = finding_;
    if (finding_) findings.text = findings.items[*finding_];
    add(std::move(findings));
    for (const char* name : {"cmdImport", "cmdOpen", "cmdRename", "cmdDelete", "cmdCheck", "cmdMend",
                             "cmdEdit", "cmdTest", "cmdExit"})
        add(ButtonOf(name));
    add({.name = "Timer1", .kind = ControlKind::Timer, .enabled = true, .visible = false});
    return controls;
}

void CustomFormsWindow::ShowDatabase(bool shown) {
    inDatabase_ = shown;
    fieldIsChosen_ = false;
    marker_.reset();
    description_.clear();
    findings_.clear();
    finding_.reset();
    if (!shown) return ReadSources();
    ReadForms();
    Attempt([this] { ReadMarkers(); });
}

void CustomFormsWindow::ReadForms() {
    files_ = FormFiles(office_.folder);
    file_.reset();
}

void CustomFormsWindow::ReadMarkers() {
    markers_ = MarkerRows(office_.folder);
}

void CustomFormsWindow::ReadSources() {
    folders_.clear();
    files_.clear();
    file_.reset();
    std::error_code failed;
    for (fs::directory_iterator it(sourceFolder_, failed), end; !failed && it != end; it.increment(failed)) {
        std::error_code vanished;
        const std::string name = TextOf(it->path().filename());
        if (it->is_directory(vanished) && !name.starts_with('.')) folders_.push_back(name);
        if (IsSource(*it)) files_.push_back(name);
    }
    SortAsShown(folders_);
    SortAsShown(files_);
    if (sourceFolder_.has_relative_path()) folders_.insert(folders_.begin(), std::string(kUp));
}

std::string CustomFormsWindow::SelectedForm() const {
    return file_ ? files_[*file_] : std::string();
}

fs::path CustomFormsWindow::PathOfForm(const std::string& file) const {
    return office_.folder / PathOf(file);
}

// ---- Acts ----------------------------------------------------------------------------------------------

bool CustomFormsWindow::Attempt(const std::function<void()>& step) const {
    const auto tell = [this](std::string_view title, const std::string& text) {
        office_.dialogs.Tell(std::string(title), text, DialogIcon::Warning);
        return false;
    };
    try {
        step();
        return true;
    } catch (const word::AutomationError& failure) {
        return tell(kWarning, "Error " + std::to_string(failure.number()) + ": " + failure.what());
    } catch (const std::exception& failure) {
        return tell(kFailed, failure.what());
    }
}

void CustomFormsWindow::OnText(std::string_view, std::string_view text) {
    source_ = text;
}

void CustomFormsWindow::OnPick(std::string_view name, std::size_t entry) {
    if (name == "Dir1") {
        const std::string& below = folders_[entry];
        sourceFolder_ = below == kUp ? sourceFolder_.parent_path() : sourceFolder_ / PathOf(below);
        return ReadSources();
    }
    if (name == "List1") return PickMarker(entry);
    if (name == "lstFindings") {
        finding_ = entry;
        return;
    }
    file_ = entry;
    fieldIsChosen_ = false;
    findings_.clear();
    finding_.reset();
    if (!inDatabase_) source_ = TextOf(sourceFolder_ / PathOf(files_[entry]));
}

void CustomFormsWindow::OnClick(std::string_view name, bool, const fs::path&) {
    if (name == "cmdImport") return Import();
    if (name == "cmdOpen") return Open();
    if (name == "cmdRename") return Rename();
    if (name == "cmdDelete") return Delete();
    if (name == "cmdCheck") return Check();
    if (name == "cmdMend") return MendChosen();
    if (name == "cmdEdit") return ShowDatabase(!inDatabase_);
    if (name == "Timer1") return Tick();
    if (name == "cmdTest") leftForTest_ = true;
    if (name == "cmdTest" || name == "cmdExit") return Close();
}

bool CustomFormsWindow::OnClose() {
    EndEditing();
    return true;
}

void CustomFormsWindow::Import() {
    const fs::path source = PathOf(source_);
    Attempt([&] {
        fs::create_directories(office_.folder);
        const std::string file = TextOf(source.filename());
        if (IsInStore(office_.folder, file) &&
            !office_.dialogs.Confirm("",
                                     "This form template already exists\nin the custom forms database\n\n"
                                     "Proceed with overwrite?",
                                     DialogButton::No))
            return;
        ImportForm(source, office_.folder, office_.startWord);
        description_ = kAdvice;
        office_.dialogs.Tell(Title(), "Import Successful", DialogIcon::Information);
    });
}

void CustomFormsWindow::Open() {
    if (editing_) return EndEditing();
    const std::string file = SelectedForm();
    Attempt([&] {
        Editing editing{file, fs::last_write_time(PathOfForm(file)), nullptr};
        const word::StartedWordProcessor started = office_.startWord();
        if (started.isEmbedded) {
            word::Application(started.application).Quit();
            office_.shell.Open(TextOf(fs::absolute(PathOfForm(file))));
        } else {
            editing.word = std::make_unique<OpenedForm>(PathOfForm(file), [&] { return started; });
            editing.word->application().Visible = true;
            editing.word->application().Activate();
        }
        editing_ = std::move(editing);
        description_ = kPalette;
    });
}

/// The person is done with the form, or leaves it for another.
void CustomFormsWindow::EndEditing() {
    if (!editing_) return;
    Tick();
    try {
        if (editing_->word && !editing_->word->document().Saved &&
            office_.dialogs.Confirm("", "You did not save your changes.\nSave them now ???")) {
            editing_->word->document().Save();
            Tick();
        }
    } catch (const word::AutomationError& failure) {
        if (!WasClosed(failure))
            office_.dialogs.Tell(std::string(kWarning), failure.what(), DialogIcon::Warning);
    }
    editing_.reset();
    description_.clear();
}

void CustomFormsWindow::Tick() {
    if (!editing_) return;
    std::error_code gone;
    const auto date = fs::last_write_time(PathOfForm(editing_->file), gone);
    if (gone || date == editing_->date) return;
    editing_->date = date;
    try {
        Rescan(editing_->file);
    } catch (const word::AutomationError& failure) {
        if (!WasClosed(failure))
            office_.dialogs.Tell(std::string(kWarning),
                                 "Error " + std::to_string(failure.number()) + ": " + failure.what(),
                                 DialogIcon::Warning);
    } catch (const std::exception& failure) {
        office_.dialogs.Tell(std::string(kFailed), failure.what(), DialogIcon::Warning);
    }
}

void CustomFormsWindow::Rescan(const std::string& file) {
    if (editing_ && editing_->word) return WriteMarkers(office_.folder, file, *editing_->word);
    RescanForm(office_.folder, file, office_.startWord);
}

void CustomFormsWindow::Rename() {
    constexpr std::string_view kTitle = " RE-NAME FILE";
    const std::string file = SelectedForm();
    const auto answer = office_.dialogs.Ask({std::string(kTitle), "Enter new name for:\n\n" + file, file});
    if (!answer) return;
    const std::string name = Trimmed(*answer);
    if (name.empty() || name == file) return;
    const auto refuse = [&](const char* why) {
        office_.dialogs.Tell(std::string(kTitle), why, DialogIcon::Warning);
    };
    if (FormExtension(name) != FormExtension(file) || FormName(name).empty())
        return refuse("Invalid Filename.  Include original extension");
    const bool isOther = UpperCase(FormName(name)) != UpperCase(FormName(file));
    if (isOther && (IsInStore(office_.folder, name) || fs::exists(PathOfForm(name))))
        return refuse("A File/Folder with this name already exits");
    if (!Attempt([&] { RenameForm(office_.folder, file, name); })) return;
    ReadForms();
    const auto renamed = std::ranges::find(files_, name);
    if (renamed != files_.end()) file_ = static_cast<std::size_t>(renamed - files_.begin());
}

void CustomFormsWindow::Delete() {
    if (fieldIsChosen_ && marker_) return DeleteField(markers_[*marker_].marker.marker);
    DeleteSelectedForm();
}

void CustomFormsWindow::DeleteField(const std::string& marker) {
    const std::string name = marker.substr(1, marker.size() - 2);
    const MessageDialog box{"",
                            "Delete the user-defined field ... " + name,
                            {DialogButton::OK, DialogButton::Cancel},
                            DialogButton::OK,
                            DialogIcon::Warning};
    if (office_.dialogs.Show(box) != DialogButton::OK) return;
    Attempt([&] {
        RemoveUserField(office_.folder, name);
        marker_.reset();
        fieldIsChosen_ = false;
        ReadMarkers();
    });
}

void CustomFormsWindow::DeleteSelectedForm() {
    const MessageDialog box{"",
                            "You are about to permanently delete this Form from the database",
                            {DialogButton::OK, DialogButton::Cancel},
                            DialogButton::OK,
                            DialogIcon::Warning};
    if (office_.dialogs.Show(box) != DialogButton::OK) return;
    Attempt([&] { DeleteForm(office_.folder, SelectedForm()); });
    ReadForms();
}

// ---- Markers -------------------------------------------------------------------------------------------

void CustomFormsWindow::PickMarker(std::size_t row) {
    clipboard_.clear();
    if (row == markers_.size()) return AddField();
    marker_ = row;
    fieldIsChosen_ = markers_[row].IsUserField();
    clipboard_ = markers_[row].marker.marker;
    description_ = markers_[row].description;
}

void CustomFormsWindow::AddField() {
    const auto answer = office_.dialogs.Ask(
        {" NEW USER-DEFINED FIELD",
         "Enter name for new field ...\n\n21 CHARACTERS MAXIMUM, alpha-numeric only!", ""});
    const std::string name = answer ? Trimmed(*answer) : std::string();
    if (name.empty()) return;
    if (!IsFieldName(name))
        return office_.dialogs.Tell(
            " Bad Field Name", "Field name is too long or contains illegal characters.  Please try again.",
            DialogIcon::Warning);
    const std::string capitals = UpperCase(name);
    Attempt([&] {
        fs::create_directories(office_.folder);
        ReadMarkers();
        if (HasMarker(markers_, "[" + capitals + "]"))
            return office_.dialogs.Tell(" Bad Field Name", "This field already exists.  Please try again.",
                                        DialogIcon::Warning);
        AddUserField(office_.folder, capitals);
        ReadMarkers();
        PickMarker(markers_.size() - 1);
    });
}

void CustomFormsWindow::Check() {
    finding_.reset();
    findings_.clear();
    Attempt([this] {
        ReadMarkers();
        findings_ = CheckForm(PathOfForm(SelectedForm()), MarkerJudge(markers_), office_.fonts);
        description_ = findings_.empty() ? "Every marker of this form is right." : "";
    });
}

void CustomFormsWindow::MendChosen() {
    const std::string file = SelectedForm();
    const Mend mend = findings_[*finding_].mend;
    const bool done = Attempt([&] {
        int count = 0;
        const std::string form = Mended(ReadFile(PathOfForm(file), kLargestForm), file, mend, count);
        if (count == 0)
            throw FormRefused("The marker could not be changed.  Please open the form and mend it there.");
        ReplaceFile(PathOfForm(file), form);
        Rescan(file);
    });
    if (done) Check();
}

}  // namespace quillmark
