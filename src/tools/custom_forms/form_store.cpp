#include "tools/custom_forms/form_store.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "production/pdf/form_copy.h"
#include "production/pdf/pdf_program.h"
#include "tools/custom_forms/form_package.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestList = std::size_t{1} << 20;

/// A folder of this run's own, gone with the object.
struct PrivateFolder {
    const fs::path path = MakePrivateFolder();
    PrivateFolder() = default;
    ~PrivateFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
};

/// Job files and lists name forms between square brackets, each name with a colon behind it.
void RequireName(std::string_view file) {
    const std::string name(FormName(file));
    const auto refuse = [&](const std::string& why) {
        throw FormRefused("\"" + name + "\" cannot be the name of a form: " + why + ".");
    };
    if (name.empty()) refuse("it is empty");
    if (const auto character = FirstUnencodable(name)) refuse("job files cannot hold " + character->name);
    for (const char c : name) {
        const bool isControl = static_cast<unsigned char>(c) < ' ';
        if (c == ':' || c == '"' || c == '/' || c == '\\' || isControl)
            refuse(isControl ? "it holds a control character"
                             : "it holds the character " + std::string(1, c));
    }
    if (UpperCase(name) == "NEW DOCUMENT") refuse("the list of documents has an entry of that name");
}

std::string ExtensionOf(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    return std::string(dot == file.npos ? std::string_view() : file.substr(dot));
}

std::vector<std::string> FilesOfName(const fs::path& folder, std::string_view file) {
    const std::string name = UpperCase(FormName(file));
    std::vector<std::string> files = FormFiles(folder);
    std::erase_if(files, [&](const std::string& other) { return UpperCase(FormName(other)) != name; });
    return files;
}

std::optional<std::string> BytesOf(const fs::path& file) {
    std::error_code failed;
    if (!fs::exists(file, failed)) return {};
    return ReadFile(file, kLargestList);
}

void PutBack(const fs::path& file, const std::optional<std::string>& bytes) {
    std::error_code ignored;
    if (!bytes) {
        fs::remove(file, ignored);
        return;
    }
    ReplaceFile(file, *bytes);
}

void Remove(const fs::path& file) {
    std::error_code failed;
    fs::remove(file, failed);
    if (failed) throw FileError(file, failed);
}

/// The markers of a form that was put aside. What is wrong with it is told of the file that the person chose.
std::vector<FormMarker> MarkersIn(const fs::path& staged, const std::string& given,
                                  const std::vector<MarkerRow>& rows, const StartWord& startWord) {
    try {
        return OpenedForm(staged, startWord).Markers(rows);
    } catch (const word::AutomationError& failure) {
        std::string text = failure.what();
        const std::string path = TextOf(staged);
        if (const std::size_t at = text.find(path); at != text.npos) text.replace(at, path.size(), given);
        throw word::AutomationError(failure.number(), text);
    }
}

/// Form and list are two files: when the second cannot be written, the first is put back.
void Keep(const fs::path& folder, const std::string& file, std::string_view form,
          const std::vector<FormMarker>& markers) {
    const fs::path list = MarkerFile(folder, FormName(file));
    const std::optional<std::string> formerList = BytesOf(list);
    const std::vector<std::string> former = FilesOfName(folder, file);
    ReplaceFile(list, FormMarkerRecords(markers));
    const fs::path target = FindExisting(folder / PathOf(file));
    try {
        ReplaceFile(target, form);
    } catch (const FileError&) {
        PutBack(list, formerList);
        throw;
    }
    for (const std::string& other : former)
        if (folder / PathOf(other) != target) Remove(folder / PathOf(other));
}

}  // namespace

bool IsInStore(const fs::path& folder, std::string_view file) {
    return !FilesOfName(folder, file).empty();
}

std::string ImportForm(const fs::path& source, const fs::path& folder, const StartWord& startWord) {
    const std::string given = TextOf(source.filename());
    RequireName(given);
    const std::string bytes = ReadFile(source, kLargestForm);
    std::string form = bytes;
    std::string extension = ExtensionOf(given);
    const word::StartedWordProcessor started = startWord();
    const auto sameWord = [&] { return started; };
    const ReadableForm readable(source, started.isEmbedded);
    if (readable.path() != source) {
        form = ReadFile(readable.path(), kLargestForm);
        extension = ".docx";
    } else if (const std::string document = DocumentExtension(extension); document != extension) {
        form = AsDocument(form, given);
        extension = document;
    }
    const std::string file = std::string(FormName(given)) + extension;
    const PrivateFolder stage;
    ReplaceFile(stage.path / PathOf(file), form);
    Keep(folder, file, form, MarkersIn(stage.path / PathOf(file), given, MarkerRows(folder), sameWord));
    return file;
}

void WriteMarkers(const fs::path& folder, const std::string& file, const OpenedForm& form) {
    ReplaceFile(MarkerFile(folder, FormName(file)), FormMarkerRecords(form.Markers(MarkerRows(folder))));
}

void RescanForm(const fs::path& folder, const std::string& file, const StartWord& startWord) {
    const word::StartedWordProcessor started = startWord();
    const ReadableForm readable(folder / PathOf(file), started.isEmbedded);
    WriteMarkers(folder, file, OpenedForm(readable.path(), [&] { return started; }));
}

void RenameForm(const fs::path& folder, const std::string& file, const std::string& newFile) {
    RequireName(newFile);
    const fs::path from = folder / PathOf(file);
    const fs::path to = folder / PathOf(newFile);
    if (!RenameUnlessTaken(from, to)) throw FormRefused("A File/Folder with this name already exits");
    const fs::path list = MarkerFile(folder, FormName(file));
    std::error_code failed;
    if (!fs::exists(list, failed)) return;
    fs::rename(list, folder / PathOf(std::string(FormName(newFile)) + ".inf"), failed);
    if (!failed) return;
    std::error_code ignored;
    fs::rename(to, from, ignored);
    throw FileError(list, failed);
}

void DeleteForm(const fs::path& folder, const std::string& file) {
    Remove(folder / PathOf(file));
    Remove(MarkerFile(folder, FormName(file)));
}

}  // namespace quillmark
