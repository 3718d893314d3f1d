#include "word/docx/paste/paste.h"

#include <algorithm>
#include <array>

#include "word/docx/model/pieces.h"
#include "word/docx/paste/import_copy.h"
#include "word/docx/paste/import_text.h"

namespace quillmark::word::docx::paste {

namespace {

using Stories = std::array<std::unique_ptr<Story>, 3>;

bool IsEmptyParagraph(const Block& block) {
    const auto* paragraph = std::get_if<Paragraph>(&block);
    return paragraph && paragraph->text.empty() && paragraph->anchors.empty() && !paragraph->section &&
           paragraph->frames.empty();
}

/// Ends the paragraph at the place, which then begins the rest of it.
Place SplitAt(const Place& place) {
    if (place.offset == 0) return place;
    Paragraph& paragraph = std::get<Paragraph>(*place.block);
    Paragraph tail = CutTail(paragraph, place.offset);
    place.blocks->emplace(place.block, std::exchange(paragraph, std::move(tail)));
    return {place.blocks, place.block, 0};
}

/// Two tables without a paragraph between them would be one.
void SeparateTables(const Place& place, Blocks& pasted) {
    if (pasted.empty() || place.block == place.blocks->begin()) return;
    const bool meets = std::holds_alternative<std::unique_ptr<Table>>(pasted.front()) &&
                       std::holds_alternative<std::unique_ptr<Table>>(*std::prev(place.block));
    if (meets) pasted.emplace_front(Paragraph{});
}

void DropSections(Blocks& blocks) {
    for (Block& block : blocks) {
        if (auto* paragraph = std::get_if<Paragraph>(&block)) paragraph->section.reset();
    }
}

/// What a section shows that has no story of its own, for each kind of pages.
struct Shown {
    std::array<const Story*, 3> headers = {};
    std::array<const Story*, 3> footers = {};

    void Pass(const SectionProperties& section) {
        for (std::size_t pages = 0; pages < headers.size(); ++pages) {
            if (section.headers[pages]) headers[pages] = section.headers[pages].get();
            if (section.footers[pages]) footers[pages] = section.footers[pages].get();
        }
    }
};

/// The section that the block of the body is in, and what it shows by way of those before it.
SectionProperties& SectionAt(Document& document, Blocks::const_iterator place, Shown& shown) {
    bool isBehind = false;
    for (auto block = document.body.begin(); block != document.body.end(); ++block) {
        isBehind = isBehind || block == place;
        auto* paragraph = std::get_if<Paragraph>(&*block);
        if (!paragraph || !paragraph->section) continue;
        if (isBehind) return *paragraph->section;
        shown.Pass(*paragraph->section);
    }
    return document.lastSection;
}

/// Gives the section stories of its own wherever the pasted ones would show through.
void KeepStories(Stories& own, const std::array<const Story*, 3>& shown,
                 const std::array<const Story*, 3>& pasted) {
    for (std::size_t pages = 0; pages < own.size(); ++pages) {
        if (own[pages] || !pasted[pages]) continue;
        own[pages] = std::make_unique<Story>();
        if (shown[pages]) own[pages]->blocks = CopyBlocks(shown[pages]->blocks);
        if (!shown[pages]) own[pages]->blocks.emplace_back(Paragraph{});
    }
}

void ShieldSection(Document& target, Blocks::const_iterator place, const Blocks& pasted) {
    Shown fromPasted;
    for (const Block& block : pasted) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) fromPasted.Pass(*paragraph->section);
    }
    Shown shown;
    SectionProperties& section = SectionAt(target, place, shown);
    KeepStories(section.headers, shown.headers, fromPasted.headers);
    KeepStories(section.footers, shown.footers, fromPasted.footers);
}

}  // namespace

CopiedText CopyAll(const Document& document) {
    return CopiedText(CloneDocument(document));
}

bool IsEmpty(const Document& document) {
    if (document.body.size() != 1) return false;
    const auto* paragraph = std::get_if<Paragraph>(&document.body.front());
    return paragraph && paragraph->text.empty();
}

Place PasteAt(Document& target, const Place& place, const CopiedText& copied, bool keepSourceFormatting) {
    const Document& source = copied.document();
    const bool isBody = place.blocks == &target.body;
    const bool wasEmpty = isBody && IsEmpty(target);
    TextImport import(source, target, keepSourceFormatting);
    Blocks pasted = import.Body();
    if (IsEmptyParagraph(pasted.back())) pasted.pop_back();
    if (!isBody) DropSections(pasted);
    if (isBody && !wasEmpty) ShieldSection(target, place.block, pasted);
    if (wasEmpty) {
        target.lastSection = import.Section(source.lastSection);
        target.evenAndOddHeaders = source.evenAndOddHeaders;
    }
    import.Finish();
    const Place behind = SplitAt(place);
    SeparateTables(behind, pasted);
    behind.blocks->splice(behind.block, pasted);
    return behind;
}

void TakeBackPage(Document& target, const SectionProperties& former) {
    constexpr int kNewPage = 2;
    Shown shown;
    for (const Block& block : target.body) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) shown.Pass(*paragraph->section);
    }
    target.lastSection = former.CopyWithoutStories();
    target.lastSection.start = kNewPage;
    KeepStories(target.lastSection.headers, {}, shown.headers);
    KeepStories(target.lastSection.footers, {}, shown.footers);
}

}  // namespace quillmark::word::docx::paste
