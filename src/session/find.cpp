#include "session/find.h"

#include <algorithm>

#include "core/field_registry.h"
#include "core/text_conversions.h"

namespace quillmark {

bool HoldsWords(std::string_view text, std::string_view sought) {
    const std::string in = Lowered(text);
    const std::string words = Lowered(sought);
    for (std::size_t begin = words.find_first_not_of(' '); begin != words.npos;) {
        const std::size_t end = std::min(words.find(' ', begin), words.size());
        if (in.find(words.substr(begin, end - begin)) == in.npos) return false;
        begin = words.find_first_not_of(' ', end);
    }
    return true;
}

std::vector<std::size_t> RowsHolding(std::string_view sought, const ScreenState& screen) {
    std::vector<std::size_t> rows;
    if (Trimmed(sought).empty()) return rows;
    for (std::size_t i = 0; i < screen.grid.size(); ++i) {
        const GridRow& row = screen.grid[i];
        if (row.kind == RowKind::Heading) continue;
        const std::string description = row.n > 0 ? FieldDescription(row.n, screen.job) : std::string();
        if (HoldsWords(row.label + ' ' + row.value + ' ' + description, sought)) rows.push_back(i);
    }
    return rows;
}

}  // namespace quillmark
