#include "tools/browser/file_browser.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>

#include "core/job_file.h"
#include "core/job_folder.h"
#include "core/job_saves.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kJobsTitle = "  File Browser                                search text =>   ";
constexpr std::string_view kTemplatesTitle =
    "  Template Browser                            search text =>   ";
constexpr std::string_view kExtension = ".DAT";

bool IsDataFile(const fs::directory_entry& entry, std::string_view fileName) {
    if (fileName.size() <= kExtension.size()) return false;
    if (UpperCase(fileName.substr(fileName.size() - kExtension.size())) != kExtension) return false;
    std::error_code vanished;
    return entry.is_regular_file(vanished);
}

void DropLastCharacter(std::string& utf8) {
    const auto continues = [&] { return (static_cast<unsigned char>(utf8.back()) & 0xC0) == 0x80; };
    while (utf8.size() > 1 && continues()) utf8.pop_back();
    utf8.pop_back();
}

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == 0x7F;
}

}  // namespace

FileBrowser::FileBrowser(const Folders& folders, bool templates, Dialogs& dialogs)
    : folders_(folders), dialogs_(dialogs), templates_(templates) {
    open_ = ReadFolder();
    if (!open_) {
        dialogs_.Tell("", "Data Path Not Found", DialogIcon::Warning);
        return;
    }
    SetControls();
    SetSearchText({});
}

bool FileBrowser::ReadFolder() {
    std::error_code failed;
    std::vector<File> files;
    for (fs::directory_iterator it(folders_.JobFolder, failed), end; !failed && it != end;
         it.increment(failed)) {
        std::string name = TextOf(it->path().filename());
        if (IsTemplateName(name) != templates_ || !IsDataFile(*it, name)) continue;
        name.resize(name.size() - kExtension.size());
        std::string capitals = UpperCase(name);
        files.push_back({std::move(name), std::move(capitals)});
    }
    if (failed) return false;
    std::sort(files.begin(), files.end(), [](const File& a, const File& b) {
        return std::tie(a.capitals, a.name) < std::tie(b.capitals, b.name);
    });
    files_ = std::move(files);
    return true;
}

void FileBrowser::SetControls() {
    state_.status = std::string(" Type search text, Double-Click item to") +
                    (templates_ ? " edit " : " load ") +
                    "data, or press ESC to cancel  {CTRL+SHIFT+DEL to delete a selected file}";
    state_.cmdAttorneys = {"Lawfirms / Attorneys", " edit attorney database ", true, !templates_};
    state_.cmdServicers = {"Lenders / Servicers", " edit servicer database ", true, !templates_};
    state_.lblCancel = {"Cancel", "", true, !templates_};
    state_.cmdSpawn = {"Spawn", "Click here to create a new file from the selected template", false,
                       templates_};
}

void FileBrowser::SearchFiles(std::string_view text) {
    SetSearchText(UpperCase(text));
}

void FileBrowser::SetSearchText(std::string_view capitals) {
    search_ = capitals;
    state_.title = std::string(templates_ ? kTemplatesTitle : kJobsTitle) + search_;
    state_.List1.clear();
    if (templates_ && search_.empty()) state_.List1.emplace_back(kNewTemplate);
    for (const File& file : files_)
        if (file.capitals.find(search_) != std::string::npos) state_.List1.push_back(file.name);
    SetSelection(std::nullopt);
}

void FileBrowser::PressKey(std::string_view characters) {
    std::string typed(characters);
    std::erase_if(typed, IsControl);
    if (!typed.empty()) SetSearchText(search_ + UpperCase(typed));
}

void FileBrowser::PressBackspace() {
    if (search_.empty()) return;
    std::string shorter = search_;
    DropLastCharacter(shorter);
    SetSearchText(shorter);
}

bool FileBrowser::DeleteSelected() {
    const std::string name = Selected();
    if (name.empty() || name == kNewTemplate) return false;
    try {
        if (!DeleteAsSeen(name)) return false;
    } catch (const FileError& failure) {
        dialogs_.Tell("", failure.what(), DialogIcon::Warning);
        return false;
    }
    const auto line = static_cast<std::ptrdiff_t>(*state_.entry);
    if (!ReadFolder()) std::erase_if(files_, [&](const File& file) { return file.name == name; });
    state_.List1.erase(state_.List1.begin() + line);
    SetSelection(std::nullopt);
    return true;
}

/// A job that somebody saves while the list stands open is deleted only after a question.
bool FileBrowser::DeleteAsSeen(const std::string& name) {
    JobOnDisk seen = LookAtJob(folders_, name);
    if (TimeOf(name) == selectedTime_ && DeleteJobFiles(folders_, name, {&seen})) return true;
    if (!dialogs_.Confirm("  ALERT",
                          name + " has changed since it was listed. It was " + LastSaveOf(folders_, name) +
                              ".\nDelete it ???",
                          DialogButton::No, DialogIcon::Warning))
        return false;
    return DeleteJobFiles(folders_, name);
}

std::optional<fs::file_time_type> FileBrowser::TimeOf(const std::string& name) const {
    std::error_code error;
    const auto time = fs::last_write_time(JobFilePath(folders_, name), error);
    return error ? std::nullopt : std::optional(time);
}

bool FileBrowser::Select(std::size_t line) {
    if (line >= state_.List1.size()) return false;
    SetSelection(line);
    return true;
}

bool FileBrowser::Select(std::string_view name) {
    const auto found = std::find(state_.List1.begin(), state_.List1.end(), name);
    return Select(static_cast<std::size_t>(found - state_.List1.begin()));
}

void FileBrowser::SetSelection(std::optional<std::size_t> line) {
    state_.entry = line;
    selectedTime_ = line ? TimeOf(state_.List1[*line]) : std::nullopt;
    state_.cmdSpawn.enabled = templates_ && line && state_.List1[*line] != kNewTemplate;
}

std::string FileBrowser::Selected() const {
    return state_.entry ? state_.List1[*state_.entry] : std::string();
}

}  // namespace quillmark
