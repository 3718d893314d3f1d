#include "word/docx/write/style_plan.h"

#include <algorithm>

#include "word/docx/model/style_look.h"
#include "word/docx/model/walk.h"
#include "word/docx/write/keep_together.h"
#include "word/docx/write/properties.h"
#include "word/docx/write/style_looks.h"

namespace quillmark::word::docx::write {

namespace {

bool HasRoles(const Document& document) {
    for (std::size_t id = 0; id < document.paraFormats.size(); ++id)
        if (document.paraFormats[static_cast<FormatId>(id)].role != Role::None) return true;
    return false;
}

/// The letters that most of the paragraph has: of an empty one those of its mark.
FormatId LettersOf(const Paragraph& paragraph) {
    const auto longest = std::ranges::max_element(paragraph.spans, {}, &Span::length);
    return longest == paragraph.spans.end() ? paragraph.markFormat : longest->format;
}

}  // namespace

StylePlan::StylePlan(const Document& document) : document_(document) {
    if (!HasRoles(document)) return;
    normalLetters_ = EffectiveFont(document, {}, {});
    normalLook_ = EffectiveParagraph(document, {});
    styles_.push_back({});
    Collect(document.body);
    PlanSections();
    SetLooks(document, normalLetters_, normalLook_, styles_);
    NameStyles(document, styles_);
}

void StylePlan::Collect(const Blocks& blocks) {
    ForEachParagraph(blocks, [this](const Paragraph& paragraph) { Plan(paragraph); });
}

int StylePlan::StyleOf(const ParaFormat& format, FormatId letters) {
    const bool isItem = format.numId.value_or(0) != 0;
    const StyleKind kind = isItem                      ? StyleKind::ListItem
                           : format.role == Role::None ? StyleKind::Normal
                                                       : StyleKind::RoleText;
    if (kind == StyleKind::Normal) return 0;
    const Role role = isItem ? Role::None : format.role;
    const std::uint64_t key = (std::uint64_t{static_cast<std::uint8_t>(kind)} << 40) |
                              (std::uint64_t{static_cast<std::uint8_t>(role)} << 32) | letters;
    const auto [known, isNew] = styleByFormats_.try_emplace(key, 0);
    if (!isNew) return known->second;
    const CharFormat look = Completed(document_.charFormats[letters], normalLetters_);
    const auto isSame = [&](const PlannedStyle& style) {
        return style.kind == kind && style.role == role && style.letterLook.font == look.font &&
               style.letterLook.halfPoints == look.halfPoints;
    };
    auto style = std::ranges::find_if(styles_, isSame);
    if (style == styles_.end()) {
        styles_.push_back({.kind = kind, .role = role, .letterLook = look});
        style = std::prev(styles_.end());
    }
    return known->second = static_cast<int>(style - styles_.begin());
}

void StylePlan::Plan(const Paragraph& paragraph) {
    const ParaFormat& format = document_.paraFormats[paragraph.format];
    Planned& planned = paragraphs_.emplace_back(Planned{&paragraph, {}});
    if (!format.style.empty()) return;
    planned.use.style = StyleOf(format, LettersOf(paragraph));
    PlannedStyle& style = styles_[static_cast<std::size_t>(planned.use.style)];
    for (const Span& span : paragraph.spans) style.letters[span.format] += span.length;
    if (paragraph.spans.empty()) style.letters[paragraph.markFormat] += 1;
    // Empty lines count for little: they often stand in what the paragraph before left behind.
    constexpr std::size_t kWithText = 8;
    style.paragraphs[paragraph.format] += paragraph.text.empty() ? 1 : kWithText;
}

/// Divides the body into what stands on pages of its own, and plans how each holds together.
void StylePlan::PlanSections() {
    std::vector<const SectionProperties*> sections;
    for (const Block& block : document_.body) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) sections.push_back(paragraph->section.get());
    }
    sections.push_back(&document_.lastSection);
    constexpr int kContinuous = 0;
    std::size_t section = 0;
    std::size_t planned = 0;
    std::vector<PagePart> parts;
    const auto finish = [&] {
        const std::optional<std::size_t> end = KeepTogether(parts);
        for (const PagePart& part : parts) {
            if (!part.isPlanned) continue;
            StyleUse& use = paragraphs_[part.planned].use;
            use.keepNext = part.keepNext;
            use.isGap = part.isGap;
        }
        for (std::size_t i = end.value_or(parts.size()); i < parts.size(); ++i)
            paragraphs_[parts[i].planned].use.style = EndStyle();
        parts.clear();
    };
    for (const Block& block : document_.body) {
        PagePart& part = parts.emplace_back();
        if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block)) {
            for (const TableRow& row : (*table)->rows)
                for (const TableCell& cell : row.cells)
                    ForEachParagraph(cell.blocks, [&](const Paragraph&) { ++planned; });
        }
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (!paragraph) continue;
        part = {.planned = planned,
                .isPlanned = paragraphs_[planned].use.style != StyleUse::kAsItIs,
                .role = document_.paraFormats[paragraph->format].role,
                .length = paragraph->text.size(),
                .isEmpty = paragraph->text.empty() && paragraph->anchors.empty()};
        ++planned;
        if (paragraph->section && sections[++section]->start != kContinuous) finish();
    }
    finish();
}

int StylePlan::EndStyle() {
    const auto isEnd = [](const PlannedStyle& style) { return style.kind == StyleKind::DocumentEnd; };
    auto style = std::ranges::find_if(styles_, isEnd);
    if (style == styles_.end()) {
        styles_.push_back({.kind = StyleKind::DocumentEnd});
        style = std::prev(styles_.end());
    }
    return static_cast<int>(style - styles_.begin());
}

StyleUse StylePlan::UseOf(const Paragraph& paragraph) {
    const bool isNext = next_ < paragraphs_.size() && paragraphs_[next_].paragraph == &paragraph;
    return isNext ? paragraphs_[next_++].use : StyleUse{};
}

std::string StylePlan::RunProperties(const StyleUse& use, FormatId format) const {
    const CharFormat& own = document_.charFormats[format];
    if (use.style == StyleUse::kAsItIs || !own.style.empty()) return write::RunProperties(own);
    const PlannedStyle& style = styles_[static_cast<std::size_t>(use.style)];
    if (style.kind == StyleKind::DocumentEnd) return {};
    return write::RunProperties(Beyond(Completed(own, normalLetters_), style.letterLook));
}

std::string StylePlan::ParagraphProperties(const StyleUse& use, FormatId format, std::string_view mark,
                                           std::string_view section) const {
    const ParaFormat& own = document_.paraFormats[format];
    if (use.style == StyleUse::kAsItIs) return write::ParagraphProperties(own, mark, section);
    const PlannedStyle& style = styles_[static_cast<std::size_t>(use.style)];
    ParaFormat direct;
    if (style.kind != StyleKind::DocumentEnd) {
        const bool isItem = style.kind == StyleKind::ListItem;
        direct = Beyond(isItem ? CompletedItem(own, normalLook_) : Completed(own, normalLook_), style.look);
    }
    if (style.kind != StyleKind::Normal) direct.style = style.id;
    if (use.keepNext == StyleUse::Keep::On) direct.extra.emplace_back("keepNext", "<w:keepNext/>");
    if (use.keepNext == StyleUse::Keep::Off)
        direct.extra.emplace_back("keepNext", R"(<w:keepNext w:val="0"/>)");
    if (use.isGap) direct.extra.emplace_back("outlineLvl", R"(<w:outlineLvl w:val="9"/>)");
    return write::ParagraphProperties(direct, mark, section);
}

std::vector<StyleDefinition> StylePlan::Styles() const {
    std::vector<StyleDefinition> definitions = document_.styles;
    if (!isActive()) return definitions;
    for (const PlannedStyle& style : styles_) {
        StyleDefinition definition = DefinitionOf(style, styles_);
        const auto known = std::ranges::find(definitions, definition.id, &StyleDefinition::id);
        if (known == definitions.end())
            definitions.push_back(std::move(definition));
        else
            *known = std::move(definition);
    }
    return definitions;
}

}  // namespace quillmark::word::docx::write
