#include "tools/custom_forms/marker_list.h"

#include <algorithm>

#include "core/field_registry.h"
#include "core/job.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestName = 21;
constexpr std::string_view kUserFieldDescription = " USER-DEFINED FIELD";

bool IsLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// The registry's part of the list never changes.
const std::vector<MarkerRow>& RegistryRows() {
    static const std::vector<MarkerRow> rows = [] {
        const Job job;
        std::vector<MarkerRow> list;
        for (int n = 1; n <= kFields; ++n) {
            const std::string_view marker = FieldMarker(n);
            if (marker.empty() || marker == "[]") continue;
            list.push_back({{std::string(marker), n, 0}, FieldDescription(n, job)});
        }
        for (const DerivedField& derived : DerivedFields())
            list.push_back({{std::string(derived.marker), derived.number % 1000, derived.number / 1000},
                            std::string(derived.description)});
        return list;
    }();
    return rows;
}

void WriteUserFields(const fs::path& folder, const std::vector<std::string>& names) {
    std::string lines;
    for (const std::string& name : names) lines += name + "\r\n";
    ReplaceFile(UserFieldFile(folder), ToWindows1252(lines));
}

}  // namespace

std::vector<MarkerRow> MarkerRows(const fs::path& folder) {
    std::vector<MarkerRow> rows = RegistryRows();
    for (const std::string& name : UserFieldNames(folder))
        rows.push_back({{"[" + name + "]", 0, 0}, std::string(kUserFieldDescription)});
    return rows;
}

bool IsFieldName(std::string_view name) {
    if (name.empty() || name.size() > kLongestName || name.find("  ") != name.npos) return false;
    return std::ranges::all_of(name, [](char c) { return IsLetterOrDigit(c) || c == ' '; });
}

bool HasMarker(const std::vector<MarkerRow>& rows, std::string_view marker) {
    const std::string capitals = UpperCase(marker);
    return std::ranges::any_of(
        rows, [&](const MarkerRow& row) { return UpperCase(row.marker.marker) == capitals; });
}

void AddUserField(const fs::path& folder, std::string_view name) {
    std::vector<std::string> names = UserFieldNames(folder);
    names.emplace_back(name);
    WriteUserFields(folder, names);
}

void RemoveUserField(const fs::path& folder, std::string_view name) {
    std::vector<std::string> names = UserFieldNames(folder);
    std::erase(names, name);
    WriteUserFields(folder, names);
}

}  // namespace quillmark
