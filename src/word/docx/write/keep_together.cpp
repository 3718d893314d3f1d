#include "word/docx/write/keep_together.h"

#include <algorithm>

namespace quillmark::word::docx::write {

namespace {

using Keep = StyleUse::Keep;
constexpr std::size_t kNone = static_cast<std::size_t>(-1);

/// A block that begins with fewer letters has no sentence of its own, as "Very truly yours," has not.
constexpr std::size_t kSentence = 50;
/// So many paragraphs make a text whose last one can be left alone.
constexpr int kText = 4;

bool IsBlock(Role role) {
    return role == Role::Signature || role == Role::Notary;
}

bool IsStatement(Role role) {
    return role == Role::StatementHeading || role == Role::StatementLine || role == Role::StatementTotal;
}

/// The last part with text before this one, kNone without any.
std::size_t TextBefore(const std::vector<PagePart>& parts, std::size_t at) {
    while (at > 0)
        if (!parts[--at].isEmpty) return at;
    return kNone;
}

void KeepFrom(std::vector<PagePart>& parts, std::size_t first, std::size_t end) {
    for (std::size_t i = first; i < end; ++i) parts[i].keepNext = Keep::On;
}

/// Keeps the text before the block with it, unless the block begins with a sentence or follows another.
void KeepTextWithBlock(std::vector<PagePart>& parts, std::size_t block) {
    std::size_t first = block;
    while (first < parts.size() && parts[first].role == parts[block].role && parts[first].isEmpty) ++first;
    if (first == parts.size() || parts[first].letters >= kSentence) return;
    const std::size_t text = TextBefore(parts, block);
    if (text == kNone || IsBlock(parts[text].role) || !parts[text].isPlanned) return;
    KeepFrom(parts, text, block);
}

void KeepBlocks(std::vector<PagePart>& parts) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Role role = parts[i].role;
        if (IsHeading(role)) parts[i].isGap = parts[i].isEmpty && role != Role::StatementHeading;
        if (!IsBlock(role)) continue;
        if (i == 0 || parts[i - 1].role != role) KeepTextWithBlock(parts, i);
        if (i + 1 == parts.size() || parts[i + 1].role != role) parts[i].keepNext = Keep::Off;
    }
}

void KeepTotals(std::vector<PagePart>& parts) {
    for (std::size_t i = 1; i < parts.size(); ++i) {
        if (parts[i].role == Role::StatementTotal && IsStatement(parts[i - 1].role))
            parts[i - 1].keepNext = Keep::On;
    }
}

void KeepLastInCompany(std::vector<PagePart>& parts, std::size_t last) {
    const auto texts = std::ranges::count(parts, false, &PagePart::isEmpty);
    if (texts < kText || IsBlock(parts[last].role) || IsStatement(parts[last].role)) return;
    KeepFrom(parts, TextBefore(parts, last), last);
}

}  // namespace

std::optional<std::size_t> KeepTogether(std::vector<PagePart>& parts) {
    const bool hasRoles =
        std::ranges::any_of(parts, [](const PagePart& part) { return part.role != Role::None; });
    const std::size_t last = TextBefore(parts, parts.size());
    if (!hasRoles || last == kNone) return std::nullopt;
    KeepBlocks(parts);
    KeepTotals(parts);
    KeepLastInCompany(parts, last);
    for (std::size_t i = last + 1; i < parts.size(); ++i) {
        if (!parts[i].isPlanned) return std::nullopt;
        parts[i].keepNext = Keep::AsStyle;
        parts[i].isGap = false;
    }
    return last + 1;
}

}  // namespace quillmark::word::docx::write
