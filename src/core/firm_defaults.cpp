#include "core/firm_defaults.h"

#include <algorithm>
#include <set>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "platform/record_file.h"

namespace quillmark {
namespace {

constexpr std::size_t kPrefix = 29;

bool IsValue(std::string_view text) {
    return !text.empty() && text.front() != '[';
}

}  // namespace

std::string FirmDefaults::ValueOf(std::string_view marker) const {
    for (const auto& [rowMarker, value] : rows_) {
        if (rowMarker == marker) return value;
    }
    return std::string(marker);
}

void FirmDefaults::Set(std::string_view marker, std::string_view value) {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const auto& row) { return row.first == marker; });
    if (!IsValue(value)) {
        if (found != rows_.end()) rows_.erase(found);
    } else if (found != rows_.end()) {
        found->second = value;
    } else {
        rows_.emplace_back(marker, value);
    }
}

std::string FirmDefaultRow(std::string_view marker, std::string_view value) {
    std::string row = std::string(marker) + ':';
    const std::size_t characters = FirstUnencodable(row) ? row.size() : ToWindows1252(row).size();
    if (characters < kPrefix) row.append(kPrefix - characters, ' ');
    return row.append(value);
}

FirmDefaults FirmDefaultsOfRecords(const std::string& file, std::string_view bytes) {
    FirmDefaults defaults;
    RecordReader reader(file, bytes);
    while (reader.Next()) {
        if (reader.Items() != 1) reader.Fail("holds more than one text");
        const std::string row = ToWindows1252(reader.Text(0));
        const std::string prefix = row.substr(0, kPrefix);
        const auto end = prefix.find_last_not_of(' ');
        if (end == std::string::npos || prefix[end] != ':') {
            reader.Fail("is not a marker and a colon, with the value from character 30 on");
        }
        const std::string marker = FromWindows1252(prefix.substr(0, end));
        const bool known = defaults.ValueOf(marker) != marker;
        if (!known && row.size() > kPrefix) defaults.Set(marker, FromWindows1252(row.substr(kPrefix)));
    }
    return defaults;
}

std::string FirmDefaultsRecords(const FirmDefaults& defaults) {
    RecordWriter writer;
    for (const auto& [marker, value] : defaults.Rows()) writer.Write({FirmDefaultRow(marker, value)});
    return writer.Bytes();
}

FirmDefaults ReadFirmDefaults(const std::filesystem::path& file) {
    try {
        return FirmDefaultsOfRecords(TextOf(file.filename()), ReadFile(file, kFirmDefaultsLimit));
    } catch (const FileError& error) {
        if (error.kind != FileError::Kind::NotFound) throw;
        return {};
    }
}

FirmDefaults MergedDefaults(const FirmDefaults& before, const FirmDefaults& mine, FirmDefaults present,
                            std::vector<std::string>& contested) {
    std::set<std::string> markers;
    for (const FirmDefaults* defaults : {&before, &mine})
        for (const auto& [marker, value] : defaults->Rows()) markers.insert(marker);
    for (const std::string& marker : markers) {
        const std::string changed = mine.ValueOf(marker);
        const std::string now = present.ValueOf(marker);
        if (changed == before.ValueOf(marker)) continue;
        if (now != before.ValueOf(marker) && now != changed) contested.push_back(marker);
        present.Set(marker, changed);
    }
    return present;
}

}  // namespace quillmark
