#include "word/docx/find_replace.h"

#include <algorithm>

#include "word/docx/editing_spans.h"
#include "word/docx/find_replace_codes.h"
#include "word/docx/find_replace_search.h"
#include "word/docx/reader_rewrite.h"

namespace quillmark::word::docx {

namespace {

/// A stretch of the story: from an offset of one stop to an offset of another.
struct Stretch {
    std::size_t firstStop = 0;
    std::size_t from = 0;
    std::size_t lastStop = 0;
    std::size_t until = 0;
};

class Finder {
 public:
    Finder(Document& document, Blocks& story, const FindRequest& request)
        : document_(document),
          request_(request),
          pattern_(ParsePattern(request.text)),
          stops_(CollectStops(story)) {
        if (request.replace != ReplaceNone) replacement_ = ParseReplacement(request);
    }

    FindResult Run(const std::optional<TextRange>& range) {
        if (pattern_.empty() || stops_.empty()) return {};
        for (const Stretch& stretch : Stretches(range)) {
            HasMarks(pattern_) ? SearchAcross(stretch) : SearchPlain(stretch);
            if (result_.found) break;
        }
        return std::move(result_);
    }

 private:
    std::vector<Stretch> Stretches(const std::optional<TextRange>& range) const;
    std::size_t StopOf(const Place& place) const;
    void SearchPlain(const Stretch& stretch);
    void SearchAcross(const Stretch& stretch);
    void ReplacePlain(const Stop& stop, std::size_t from, std::size_t until);
    bool KeepsApart(const Stop& stop) const;
    void ReplaceSectionBreak(const Stop& stop, const MarkMatch& match);
    std::size_t Join(std::size_t stop, const MarkMatch& match);
    void Put(GrowingParagraph& growing, std::string_view found, FormatId format) const;
    std::vector<NewContent> ContentFor(std::string_view found) const;
    void SplitAtReturns(const Stop& stop);
    void Note(const Stop& first, std::size_t begin, const Stop& last, std::size_t end);
    void DropSection(const Stop& stop);
    bool IsDone() const { return result_.found && request_.replace != ReplaceAll; }

    Document& document_;
    const FindRequest& request_;
    Pattern pattern_;
    std::vector<ReplacementPiece> replacement_;
    std::vector<Stop> stops_;
    FindResult result_;
};

std::size_t Finder::StopOf(const Place& place) const {
    const auto found =
        std::ranges::find_if(stops_, [&](const Stop& stop) { return stop.block == place.block; });
    return static_cast<std::size_t>(found - stops_.begin()) % stops_.size();
}

std::vector<Stretch> Finder::Stretches(const std::optional<TextRange>& range) const {
    const std::size_t last = stops_.size() - 1;
    const std::size_t end = stops_[last].paragraph().text.size();
    const bool wraps = request_.wrap == FindContinue;
    if (!range || (wraps && request_.replace == ReplaceAll)) return {{0, 0, last, end}};
    const Stretch inside{StopOf(range->start), range->start.offset, StopOf(range->end), range->end.offset};
    const bool isEmpty = inside.firstStop == inside.lastStop && inside.from == inside.until;
    std::vector<Stretch> stretches = {isEmpty ? Stretch{inside.firstStop, inside.from, last, end} : inside};
    if (!wraps) return stretches;
    if (!isEmpty) stretches.push_back({inside.lastStop, inside.until, last, end});
    const std::size_t paragraphEnd = stops_[inside.firstStop].paragraph().text.size();
    stretches.push_back({0, 0, inside.firstStop, isEmpty ? paragraphEnd : inside.from});
    return stretches;
}

void Finder::Note(const Stop& first, std::size_t begin, const Stop& last, std::size_t end) {
    result_.found = true;
    result_.match = {{first.blocks, first.block, begin}, {last.blocks, last.block, end}};
}

std::vector<NewContent> Finder::ContentFor(std::string_view found) const {
    std::vector<NewContent> content;
    for (const ReplacementPiece& piece : replacement_) {
        if (piece.kind == ReplacementPiece::Kind::Text) content.emplace_back(piece.text);
        if (piece.kind == ReplacementPiece::Kind::FoundText) content.emplace_back(std::string(found));
        if (piece.kind == ReplacementPiece::Kind::Picture) {
            content.emplace_back(InlineObject{std::get<Picture>(*request_.clipboard)});
        }
    }
    return content;
}

// ---- Within paragraphs ---------------------------------------------------------------------------------

void Finder::SearchPlain(const Stretch& stretch) {
    for (std::size_t k = stretch.firstStop; k <= stretch.lastStop && !IsDone(); ++k) {
        const Stop& stop = stops_[k];
        const std::string& text = stop.paragraph().text;
        const std::size_t from = k == stretch.firstStop ? stretch.from : 0;
        const std::size_t until = k == stretch.lastStop ? std::min(stretch.until, text.size()) : text.size();
        if (request_.replace != ReplaceNone) {
            ReplacePlain(stop, from, until);
        } else if (const auto match = FindPlain(text, from, until, pattern_)) {
            Note(stop, match->begin, stop, match->end);
        }
    }
}

/// Replaces in one paragraph, all matches in one pass.
void Finder::ReplacePlain(const Stop& stop, std::size_t from, std::size_t until) {
    Paragraph& paragraph = stop.paragraph();
    std::vector<Rewrite> rewrites;
    std::size_t shift = 0;  // wraps around below zero, and back
    std::size_t lastBegin = 0;
    std::size_t lastEnd = 0;
    while (const auto match = FindPlain(paragraph.text, from, until, pattern_)) {
        const std::string_view found =
            std::string_view(paragraph.text).substr(match->begin, match->end - match->begin);
        std::vector<NewContent> content = ContentFor(found);
        lastBegin = match->begin + shift;
        lastEnd = lastBegin + LengthOf(content);
        shift += LengthOf(content) - found.size();
        rewrites.push_back(
            {match->begin, match->end, std::move(content), FormatFrom(paragraph, match->begin)});
        from = match->end;
        if (request_.replace == ReplaceOne) break;
    }
    if (rewrites.empty()) return;
    result_.replaced += static_cast<int>(rewrites.size());
    Apply(paragraph, std::move(rewrites));
    Note(stop, lastBegin, stop, lastEnd);
    SplitAtReturns(stop);
}

/// Ends a paragraph at each "\r" of its text, which the last match may have brought, and moves the match
/// along.
void Finder::SplitAtReturns(const Stop& stop) {
    std::vector<Paragraph> before = docx::SplitAtReturns(stop.paragraph());
    std::vector<Place> starts;
    for (Paragraph& paragraph : before) {
        const auto block = stop.blocks->emplace(stop.block, std::move(paragraph));
        starts.push_back({stop.blocks, block, std::get<Paragraph>(*block).text.size()});
    }
    for (Place* place : {&result_.match->start, &result_.match->end}) {
        for (const Place& piece : starts) {
            if (place->block != stop.block) break;
            const bool isHere = place->offset <= piece.offset;
            if (isHere) place->block = piece.block;
            if (!isHere) place->offset -= piece.offset + 1;
        }
    }
}

// ---- Across marks --------------------------------------------------------------------------------------

void Finder::SearchAcross(const Stretch& stretch) {
    std::size_t until = stretch.until;
    std::size_t from = stretch.from;
    for (std::size_t k = stretch.firstStop; k <= stretch.lastStop && !IsDone();) {
        const auto match = FindAcross(stops_[k], from, pattern_);
        const std::size_t endStop = match ? k + match->paragraphs : 0;
        const bool isWithin =
            match && (endStop < stretch.lastStop || (endStop == stretch.lastStop && match->end <= until));
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
            if (endStop == stretch.lastStop) until = until - match->end + from;
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
    Apply(growing.paragraph, {{match.begin, growing.paragraph.text.size(), {}, 0}});
    Put(growing, found, format);
    const std::size_t behind = growing.paragraph.text.size();
    Paragraph rest = std::move(stops_[end].paragraph());
    Apply(rest, {{0, match.end, {}, 0}});
    for (std::size_t i = k + 1; i <= end; ++i) {
        stop.blocks->erase(stops_[i].block);
        stops_[i] = stop;
    }
    growing.Append(std::move(rest));
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

}  // namespace

FindResult Find(Document& document, Blocks& story, const FindRequest& request,
                const std::optional<TextRange>& range) {
    CheckLength(request.text);
    if (request.replace != ReplaceNone) CheckLength(request.replaceWith);
    return Finder(document, story, request).Run(range);
}

}  // namespace quillmark::word::docx
