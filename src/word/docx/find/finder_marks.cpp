#include "word/docx/find/finder.h"
#include "word/docx/model/pieces.h"

/// Matches that take in the ends of paragraphs and sections.
namespace quillmark::word::docx::find {

void Finder::SearchAcross(const SearchPart& part) {
    std::size_t until = part.until;
    std::size_t from = part.from;
    for (std::size_t k = part.firstStop; k <= part.lastStop && !IsDone();) {
        const auto match = FindAcross(stops_[k], from, pattern_);
        const std::size_t endStop = match ? k + match->paragraphs : 0;
        const bool isWithin =
            match && (endStop < part.lastStop || (endStop == part.lastStop && match->end <= until));
        from = 0;
        if (!isWithin) {
            ++k;
        } else if (request_.replace == ReplaceNone) {
            Note(stops_[k], match->begin, stops_[endStop], match->end);
        } else if (match->isSectionBreak && KeepsApart(stops_[k])) {
            ReplaceSectionBreak(stops_[k++], *match);
        } else if (match->takesLastMark) {
            ++k;
        } else {
            from = Join(k, *match);
            if (endStop == part.lastStop) until = until - match->end + from;
            k = endStop;
        }
    }
}

/// Whether a section break that is replaced leaves its paragraph apart from what follows: a table, or the
/// top of a page.
bool Finder::KeepsApart(const Stop& stop) const {
    const bool endsPage = !replacement_.empty() && replacement_.back().text.ends_with(character::kPageBreak);
    return endsPage || !stop.HasNext();
}

void Finder::ReplaceSectionBreak(const Stop& stop, const MarkMatch& match) {
    DropSection(stop);
    GrowingParagraph growing{std::move(stop.paragraph())};
    Put(growing, {}, growing.paragraph.markFormat);
    stop.paragraph() = std::move(growing.paragraph);
    Note(stop, match.begin, stop, stop.paragraph().text.size());
    ++result_.replaced;
    SplitAtReturns(stop);
}

void Finder::Put(GrowingParagraph& growing, std::string_view found, FormatId format) const {
    for (NewContent& piece : ContentFor(found)) {
        if (const auto* text = std::get_if<std::string>(&piece)) growing.Text(*text, format);
        if (auto* object = std::get_if<InlineObject>(&piece)) growing.Object(std::move(*object), format);
    }
}

/// Puts the replacement in for a match that ends in a later paragraph, and what is behind the match behind
/// it. Gives the offset there; the later paragraph's stop is now the earlier one's.
std::size_t Finder::Join(std::size_t k, const MarkMatch& match) {
    const Stop stop = stops_[k];
    const std::size_t end = k + match.paragraphs;
    const FormatId format = FormatFrom(stop.paragraph(), match.begin);
    std::string found = stop.paragraph().text.substr(match.begin);
    for (std::size_t i = k + 1; i <= end; ++i) {
        const std::string& text = stops_[i].paragraph().text;
        found += '\r' + (i < end ? text : text.substr(0, match.end));
        if (stops_[i - 1].paragraph().section) DropSection(stops_[i - 1]);
    }
    GrowingParagraph growing{std::move(stop.paragraph())};
    Paragraph cut = CutTail(growing.paragraph, match.begin);
    growing.TakeAnchors(cut);
    for (std::size_t i = k + 1; i < end; ++i) growing.TakeAnchors(stops_[i].paragraph());
    Put(growing, found, format);
    const std::size_t behind = growing.paragraph.text.size();
    Paragraph rest = std::move(stops_[end].paragraph());
    Apply(rest, {{0, match.end, {}, 0}});
    for (std::size_t i = k + 1; i <= end; ++i) {
        stop.blocks->erase(stops_[i].block);
        stops_[i] = stop;
    }
    Append(growing.paragraph, std::move(rest));
    stop.paragraph() = std::move(growing.paragraph);
    Note(stop, match.begin, stop, behind);
    ++result_.replaced;
    SplitAtReturns(stop);
    return result_.match->end.offset;
}

/// The text of a section becomes part of the next one; what that showed by way of this one it shows on.
void Finder::DropSection(const Stop& stop) {
    const std::unique_ptr<SectionProperties> dropped = std::move(stop.paragraph().section);
    if (!dropped || stop.blocks != &document_.body) return;
    SectionProperties* following = &document_.lastSection;
    for (auto block = std::next(stop.block); block != document_.body.end(); ++block) {
        const auto* paragraph = std::get_if<Paragraph>(&*block);
        if (!paragraph || !paragraph->section) continue;
        following = paragraph->section.get();
        break;
    }
    for (std::size_t pages = 0; pages < dropped->headers.size(); ++pages) {
        if (!following->headers[pages]) following->headers[pages] = std::move(dropped->headers[pages]);
        if (!following->footers[pages]) following->footers[pages] = std::move(dropped->footers[pages]);
    }
}

}  // namespace quillmark::word::docx::find
