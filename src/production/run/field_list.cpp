#include "production/run/field_list.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/field_registry.h"
#include "core/text_conversions.h"
#include "platform/paper.h"

namespace quillmark {

namespace {

constexpr std::size_t kFirstColumns = 89;  ///< of the documents, behind the heading
constexpr std::size_t kColumns = 120;
constexpr std::size_t kMarkerColumns = 21;
constexpr double kPoints = 8;  ///< 120 columns are eight inches of letter paper

/// What the form leaves to choice: less than the grid, which has more of the adjustments and disbursements as
/// optional (`IsOptionalField`).
// clang-format off
constexpr int kOptionalFields[] = {
      5,   9,  11,  14,  18,  24,  30,  35,  39,  43,  47,  51,  56,  61,  66,  71,  73,  87,  88,  97, 101,
    110, 112, 115, 119, 128, 130, 142, 158, 163, 167, 171, 174, 176, 185, 189, 193, 196, 203, 205, 210, 213,
};
// clang-format on

std::string_view WithoutBrackets(std::string_view marker) {
    return marker.starts_with('[') && marker.ends_with(']') ? marker.substr(1, marker.size() - 2) : marker;
}

void AddDocuments(const JobInHand& hand, std::vector<std::string>& lines) {
    std::string documents;
    for (const JobListLine& line : hand.List2) documents += (documents.empty() ? "" : "; ") + line.name;
    lines = CutIntoColumns(documents, kFirstColumns, kColumns);
    lines.front().insert(0, "QUILL MARK Field List >  ");
}

/// A value of several lines goes on below its field.
void AddField(std::string_view marker, bool required, std::string_view value,
              std::vector<std::string>& lines) {
    std::string line = FillColumns(WithoutBrackets(marker), kMarkerColumns) + (required ? " * " : "   ");
    for (const char c : value) {
        if (c == '\n')
            lines.push_back(std::exchange(line, {}));
        else if (c != '\r')
            line += c;
    }
    lines.push_back(std::move(line));
}

void AddFields(const JobInHand& hand, std::vector<std::string>& lines) {
    const std::string rule = RepeatUnderscore(30);
    for (int n = 1; n <= kFields; ++n) {
        const FieldHolder& holder = hand.job.txtField(n);
        if (!holder.relevant || WithoutBrackets(FieldMarker(n)).empty()) continue;
        const bool required = !std::binary_search(std::begin(kOptionalFields), std::end(kOptionalFields), n);
        AddField(FieldMarker(n), required, holder.text == FieldMarker(n) ? rule : holder.text, lines);
    }
    for (const GridRow& row : hand.grid)
        if (row.kind == RowKind::User) AddField(row.label, true, row.value.empty() ? rule : row.value, lines);
}

}  // namespace

PrintJob FieldList(const JobInHand& hand, std::string_view fileName) {
    PrintJob job = {"Field List", "Courier New", kPoints, {}};
    AddDocuments(hand, job.lines);
    if (!fileName.empty()) job.lines.push_back("File Name: " + std::string(fileName));
    if (hand.List2.empty()) return job;
    AddFields(hand, job.lines);
    job.lines.push_back("* asterisks denote required fields");
    return job;
}

}  // namespace quillmark
