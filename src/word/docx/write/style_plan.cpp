#include "word/docx/write/style_plan.h"

#include <algorithm>

#include "word/docx/model/style_look.h"
#include "word/docx/model/walk.h"
#include "word/docx/write/closer_lines.h"
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

std::size_t LettersIn(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return c != '_' && c != ' ' && c != '\t'; }));
}

/// An item of a list that ends with a blank line of its own: where it is cut at the end of a page, that line
/// counts as one of the two that stay together, and its last words stand alone. So it stays whole, unless it
/// is so long that half a page would stay empty before it.
bool StaysWhole(const PlannedStyle& style, const Paragraph& paragraph) {
    constexpr std::size_t kLongest = 800;  // some eight lines
    return style.kind == StyleKind::ListItem && paragraph.text.ends_with(character::kLineBreak) &&
           paragraph.text.size() <= kLongest;
}

}  // namespace

StylePlan::StylePlan(const Document& document) : document_(document) {
    if (!HasRoles(document)) return;
    normalLetters_ = EffectiveFont(document, {}, {});
    normalLook_ = EffectiveParagraph(document, {});
    styles_.push_back({});
    ForEachParagraph(document.body, [this](const Paragraph& paragraph) { Plan(paragraph); });
    PlanSections();
    Weigh();
    SetLooks(document, normalLetters_, normalLook_, styles_);
    NameStyles(document, styles_);
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
    PlannedStyle wanted{.kind = kind, .role = role};
    // The lines of a statement mix their letters, and stand under one another.
    if (role < Role::StatementHeading)
        wanted.letterLook = Completed(document_.charFormats[letters], normalLetters_);
    return known->second = StyleLike(wanted);
}

int StylePlan::StyleLike(const PlannedStyle& wanted) {
    const auto isSame = [&](const PlannedStyle& style) {
        return style.kind == wanted.kind && style.role == wanted.role && style.closer == wanted.closer &&
               style.letterLook.font == wanted.letterLook.font &&
               style.letterLook.halfPoints == wanted.letterLook.halfPoints;
    };
    const auto style = std::ranges::find_if(styles_, isSame);
    const auto index = static_cast<int>(style - styles_.begin());
    if (style == styles_.end()) styles_.push_back(wanted);
    return index;
}

void StylePlan::Plan(const Paragraph& paragraph) {
    const ParaFormat& format = document_.paraFormats[paragraph.format];
    Planned& planned = paragraphs_.emplace_back(Planned{&paragraph, {}});
    if (format.style.empty()) planned.use.style = StyleOf(format, LettersOf(paragraph));
}

/// Divides the body into what stands on pages of its own, and plans each.
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
                .letters = LettersIn(paragraph->text),
                .isEmpty = paragraph->text.empty() && paragraph->anchors.empty()};
        ++planned;
        if (!paragraph->section || sections[++section]->start == kContinuous) continue;
        PlanPage(parts, *paragraph->section);
        parts.clear();
    }
    PlanPage(parts, document_.lastSection);
}

void StylePlan::PlanPage(std::vector<PagePart>& parts, const SectionProperties& section) {
    const std::size_t end = KeepTogether(parts).value_or(parts.size());
    PageMeasure measure(document_, normalLetters_, normalLook_);
    bool isStatement = false;
    for (std::size_t i = 0; i < end; ++i) {
        if (!parts[i].isPlanned) continue;
        Planned& planned = paragraphs_[parts[i].planned];
        planned.use.keepNext = parts[i].keepNext;
        planned.use.isGap = parts[i].isGap;
        planned.use.keepLines =
            StaysWhole(styles_[static_cast<std::size_t>(planned.use.style)], *planned.paragraph);
        isStatement = isStatement || parts[i].role == Role::StatementLine;
    }
    for (std::size_t i = end; i < parts.size(); ++i)
        paragraphs_[parts[i].planned].use.style = StyleLike({.kind = StyleKind::DocumentEnd});
    if (!isStatement) return;
    for (std::size_t i = 0; i < end; ++i)
        if (parts[i].isPlanned) measure.Add(*paragraphs_[parts[i].planned].paragraph, section);
    const int closer = measure.CloserBy(section);
    for (std::size_t i = 0; i < end && closer > 0; ++i) {
        if (!parts[i].isPlanned) continue;
        int& style = paragraphs_[parts[i].planned].use.style;
        PlannedStyle wanted = styles_[static_cast<std::size_t>(style)];
        if (wanted.kind == StyleKind::Normal) continue;
        wanted.closer = closer;
        style = StyleLike(wanted);
    }
}

/// Counts what is in each style.
void StylePlan::Weigh() {
    // Empty lines count for little: they often stand in what the paragraph before left behind.
    constexpr std::size_t kWithText = 8;
    for (const auto& [paragraph, use] : paragraphs_) {
        if (use.style == StyleUse::kAsItIs) continue;
        PlannedStyle& style = styles_[static_cast<std::size_t>(use.style)];
        for (const Span& span : paragraph->spans) style.letters[span.format] += span.length;
        if (paragraph->spans.empty()) style.letters[paragraph->markFormat] += 1;
        style.paragraphs[paragraph->format] += paragraph->text.empty() ? 1 : kWithText;
    }
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
        direct = isItem ? CompletedItem(own, normalLook_) : Completed(own, normalLook_);
        direct = Beyond(Closer(std::move(direct), style.closer), style.look);
    }
    if (style.kind != StyleKind::Normal) direct.style = style.id;
    if (use.keepNext == StyleUse::Keep::On) direct.extra.emplace_back("keepNext", "<w:keepNext/>");
    if (use.keepNext == StyleUse::Keep::Off)
        direct.extra.emplace_back("keepNext", R"(<w:keepNext w:val="0"/>)");
    if (use.keepLines) direct.extra.emplace_back("keepLines", "<w:keepLines/>");
    if (use.isGap) direct.extra.emplace_back("outlineLvl", R"(<w:outlineLvl w:val="9"/>)");
    return write::ParagraphProperties(direct, mark, section);
}

std::vector<StyleDefinition> StylePlan::Styles() const {
    std::vector<StyleDefinition> definitions = document_.styles;
    if (!isActive()) return definitions;
    for (const PlannedStyle& style : styles_) {
        if (!IsUsed(style)) continue;
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
