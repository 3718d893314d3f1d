#include "tools/packages/package_editor.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "selection/document_catalogue.h"
#include "selection/job_list_lines.h"

namespace quillmark {

namespace {

constexpr const char* kAlert = "  ALERT";

std::string_view LineOf(const std::string& line) {
    return line;
}

/// Characters that a header cannot hold are dropped.
std::string Typeable(std::string_view text) {
    std::string name = UpperCase(text);
    std::erase_if(name, [](unsigned char c) { return c == '<' || c == '>' || c == '"' || c < ' '; });
    return name;
}

void ShowFaults(const PackageFile& packages, Dialogs& dialogs) {
    if (packages.faults.empty()) return;
    dialogs.Tell(kAlert,
                 fmt::format("Some lines of the package file cannot be used. They stay in the file as they "
                             "are.\n\n{}",
                             fmt::join(packages.faults, "\n")),
                 DialogIcon::Warning);
}

}  // namespace

PackageEditor::PackageEditor(const std::vector<std::string>& offered, const Folders& folders,
                             Dialogs& dialogs)
    : folders_(folders), dialogs_(dialogs) {
    const auto& folder = folders_.ProgramFolder;
    const bool offersPackages = std::any_of(offered.begin(), offered.end(), IsPackageLine);
    if (offersPackages && !HasPackageFile(folder))
        throw FileError(folder / "package.def", std::make_error_code(std::errc::no_such_file_or_directory));
    state_.cmdSave = {"Save Package", " save package template ", false, true};
    state_.cmdDelete = {"Delete Package", " delete package template ", false, true};
    state_.cmdBack = {"<-- BACK", " back to main program ", true, true};
    state_.cmdImport = {"Click HERE to import/edit custom documents", "", true, true};
    state_.List1 = OfferedDocuments(folders_);
    Reload({});
    ShowFaults(packages_, dialogs_);
}

void PackageEditor::Reload(std::string_view picked) {
    packages_ = ReadPackages(folders_.ProgramFolder);
    state_.Combo1 = {std::string(kNewPackage)};
    for (const Package& package : packages_.packages) state_.Combo1.push_back(package.name);
    const auto line = std::find(state_.Combo1.begin() + 1, state_.Combo1.end(), picked);
    PickPackage(line == state_.Combo1.end() ? 0 : static_cast<std::size_t>(line - state_.Combo1.begin()));
}

bool PackageEditor::PickPackage(std::size_t line) {
    if (line >= state_.Combo1.size()) return false;
    const Package* package = line == 0 ? nullptr : packages_.Find(state_.Combo1[line]);
    state_.Combo1Line = line;
    state_.Combo1Text = state_.Combo1[line];
    state_.List2 = package ? package->documents : std::vector<std::string>();
    state_.Option1 = false;
    state_.cmdDelete.enabled = line > 0;
    state_.cmdSave.enabled = false;
    return true;
}

void PackageEditor::TypeName(std::string_view text) {
    if (const auto foreign = FirstUnencodable(text)) {
        Refuse(fmt::format("A package name cannot hold {}.", foreign->name));
        return;
    }
    const std::string name = Typeable(text);
    if (name == state_.Combo1Text) return;
    if (state_.Option1) {
        state_.Combo1Text = name;
        MarkChanged();
        return;
    }
    const auto existing = std::find(state_.Combo1.begin() + 1, state_.Combo1.end(), name);
    const auto line = static_cast<std::size_t>(existing - state_.Combo1.begin());
    if (existing != state_.Combo1.end() && !state_.cmdSave.enabled) {
        PickPackage(line);
        return;
    }
    state_.Combo1Text = name;
    state_.Combo1Line = existing == state_.Combo1.end() ? 0 : line;
    state_.cmdDelete.enabled = state_.Combo1Line > 0;
    if (!state_.List2.empty()) MarkChanged();
}

void PackageEditor::SetRename(bool on) {
    state_.Option1 = on && state_.Combo1Line > 0;
}

bool PackageEditor::AddDocument(std::string_view line) {
    if (std::find(state_.List1.begin(), state_.List1.end(), line) == state_.List1.end()) return false;
    std::vector<std::string> list = state_.List2;
    const Excluded removed = RemoveExcluded(list, line, LineOf);
    if (list.size() >= kPackageDocuments)
        return Refuse(fmt::format("A package holds {} documents at most.", kPackageDocuments));
    const auto at =
        removed.position == 0 ? list.end() : list.begin() + static_cast<std::ptrdiff_t>(removed.position);
    list.insert(at, std::string(line));
    state_.List2 = std::move(list);
    MarkChanged();
    return true;
}

bool PackageEditor::RemoveDocument(std::size_t line) {
    if (line >= state_.List2.size()) return false;
    state_.List2.erase(state_.List2.begin() + static_cast<std::ptrdiff_t>(line));
    MarkChanged();
    return true;
}

void PackageEditor::MarkChanged() {
    state_.cmdSave.enabled = true;
}

bool PackageEditor::Refuse(std::string text) {
    dialogs_.Tell(kAlert, std::move(text), DialogIcon::Warning);
    return false;
}

bool PackageEditor::Save() {
    if (!state_.cmdSave.enabled) return false;
    const std::string name(Trimmed(state_.Combo1Text));
    if (name.empty() || name == kNewPackage)
        return Refuse("Enter a name for this package and save it again.");
    try {
        return SaveNamed(name);
    } catch (const std::runtime_error& error) {
        return Refuse(error.what());
    }
}

bool PackageEditor::SaveNamed(const std::string& name) {
    const std::string replaced = state_.Combo1Line > 0 ? state_.Combo1[state_.Combo1Line] : std::string();
    SavePackage(folders_.ProgramFolder, {name, state_.List2}, replaced);
    Reload(name);
    return true;
}

bool PackageEditor::Delete() {
    if (!state_.cmdDelete.enabled) return false;
    try {
        DeletePackage(folders_.ProgramFolder, state_.Combo1[state_.Combo1Line]);
        Reload({});
    } catch (const FileError& error) {
        return Refuse(error.what());
    }
    return true;
}

bool PackageEditor::Leave() {
    if (!state_.cmdSave.enabled) return true;
    if (!dialogs_.Confirm(kAlert, "You did not save your changes.\nSave them now ???")) return true;
    return Save();
}

}  // namespace quillmark
