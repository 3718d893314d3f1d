#include "core/custom_forms.h"

#include <algorithm>
#include <system_error>
#include <tuple>

#include "core/field_registry.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/file_names.h"
#include "platform/paths.h"
#include "platform/record_file.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestList = std::size_t{1} << 20;
constexpr int kDerivedForms = 4;

std::string InSmallLetters(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return small;
}

bool IsFormFile(const fs::directory_entry& entry) {
    const std::string name = TextOf(entry.path().filename());
    const std::string extension = FormExtension(name);
    const bool besideForms = extension == ".inf" || extension == ".lst" || extension == ".new";
    std::error_code vanished;
    return entry.is_regular_file(vanished) && !besideForms && !name.starts_with("~$") &&
           !name.starts_with('.');
}

int WholeItem(const RecordReader& records, std::size_t item, int limit, std::string_view what) {
    const double number = records.Number(item);
    if (!(number >= 0 && number <= limit) || number != static_cast<int>(number))
        records.Fail("there is no " + std::string(what) + " of this number");
    return static_cast<int>(number);
}

}  // namespace

std::vector<std::string> FormFiles(const fs::path& folder) {
    std::vector<std::pair<std::string, std::string>> files;
    std::error_code failed;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        if (!IsFormFile(*it)) continue;
        std::string name = TextOf(it->path().filename());
        std::string capitals = UpperCase(FormName(name));
        files.emplace_back(std::move(capitals), std::move(name));
    }
    std::ranges::sort(files);
    std::vector<std::string> names;
    for (auto& [capitals, name] : files) names.push_back(std::move(name));
    return names;
}

std::string_view FormName(std::string_view file) {
    return file.substr(0, file.rfind('.'));
}

std::string FormExtension(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    return dot == file.npos ? std::string() : InSmallLetters(file.substr(dot));
}

std::string FormFileOf(const fs::path& folder, std::string_view name) {
    const std::vector<std::string> files = FormFiles(folder);
    const auto exact = std::ranges::find(files, name, FormName);
    if (exact != files.end()) return *exact;
    const std::string capitals = UpperCase(name);
    const auto found =
        std::ranges::find_if(files, [&](const auto& file) { return UpperCase(FormName(file)) == capitals; });
    return found == files.end() ? std::string() : *found;
}

fs::path MarkerFile(const fs::path& folder, std::string_view name) {
    const std::string list = std::string(name) + ".inf";
    if (const std::string fault = FaultOfFileName(list); !fault.empty())
        throw FileError(PathOf(list), FileError::Kind::NotFound,
                        "is no list of a form's fields: its name " + fault);
    return FindExisting(folder / PathOf(list));
}

std::vector<FormMarker> ReadFormMarkers(const fs::path& file) {
    const std::string bytes = ReadFile(file, kLargestList);
    RecordReader records(TextOf(file), bytes);
    std::vector<FormMarker> markers;
    while (records.Next()) {
        const int field = WholeItem(records, 1, kFields, "field");
        const int form = WholeItem(records, 2, kDerivedForms, "derived value");
        markers.push_back({records.Text(0), field, form});
    }
    return markers;
}

std::string FormMarkerRecords(const std::vector<FormMarker>& markers) {
    RecordWriter records;
    for (const FormMarker& marker : markers) records.Write({marker.marker, marker.field, marker.form});
    return records.Bytes();
}

fs::path UserFieldFile(const fs::path& folder) {
    return FindExisting(folder / "userfields.lst");
}

std::vector<std::string> UserFieldNames(const fs::path& folder) {
    const fs::path file = UserFieldFile(folder);
    std::vector<std::string> fields;
    std::error_code failed;
    if (!fs::exists(file, failed)) return fields;
    const std::string names = FromWindows1252(ReadFile(file, kLargestList));
    for (std::size_t at = 0; at < names.size();) {
        const std::size_t end = std::min(names.find_first_of("\r\n", at), names.size());
        if (end > at) fields.push_back(names.substr(at, end - at));
        at = end + 1;
    }
    return fields;
}

}  // namespace quillmark
