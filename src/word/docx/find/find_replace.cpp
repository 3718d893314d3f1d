#include "word/docx/find/find_replace.h"

#include <algorithm>

#include "word/docx/find/finder.h"
#include "word/docx/model/pieces.h"

namespace quillmark::word::docx::find {

std::size_t Finder::StopOf(const Place& place) const {
    const auto found =
        std::ranges::find_if(stops_, [&](const Stop& stop) { return stop.block == place.block; });
    return static_cast<std::size_t>(found - stops_.begin()) % stops_.size();
}

std::vector<SearchPart> Finder::Parts(const std::optional<TextRange>& range) const {
    const std::size_t last = stops_.size() - 1;
    const std::size_t end = stops_[last].paragraph().text.size();
    const bool wraps = request_.wrap == FindContinue;
    if (!range || (wraps && request_.replace == ReplaceAll)) return {{0, 0, last, end}};
    const SearchPart inside{StopOf(range->start), range->start.offset, StopOf(range->end), range->end.offset};
    const bool isEmpty = inside.firstStop == inside.lastStop && inside.from == inside.until;
    std::vector<SearchPart> stretches = {isEmpty ? SearchPart{inside.firstStop, inside.from, last, end}
                                                 : inside};
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

void Finder::SearchPlain(const SearchPart& part) {
    for (std::size_t k = part.firstStop; k <= part.lastStop && !IsDone(); ++k) {
        const Stop& stop = stops_[k];
        const std::string& text = stop.paragraph().text;
        const std::size_t from = k == part.firstStop ? part.from : 0;
        const std::size_t until = k == part.lastStop ? std::min(part.until, text.size()) : text.size();
        if (request_.replace != ReplaceNone) {
            // What is put into the text may divide the paragraph.
            if (request_.replace == ReplaceAll) ReplaceInFields(stop, from, until);
            ReplacePlain(stop, from, until);
            if (!IsDone() && request_.replace == ReplaceOne) ReplaceInFields(stop, from, until);
        } else if (const auto match = FindPlain(text, from, until, pattern_)) {
            Note(stop, match->begin, stop, match->end);
        } else {
            FindInFields(stop, from, until);
        }
    }
}

/// Calls `visit(FormFieldData&, offset)` for the text fields of a stretch, as long as it gives true.
template <class Visit>
void ForTextFields(Paragraph& paragraph, std::size_t from, std::size_t until, const Visit& visit) {
    std::size_t at = paragraph.text.find(character::kObject);
    for (InlineObject& object : paragraph.objects) {
        auto* field = std::get_if<FormFieldData>(&object);
        const bool isWithin = at >= from && at < until;
        if (field && !field->isCheckBox && isWithin && !visit(*field, at)) return;
        at = paragraph.text.find(character::kObject, at + 1);
    }
}

/// What a text field holds is text of the document; a match in it is the field's place.
void Finder::FindInFields(const Stop& stop, std::size_t from, std::size_t until) {
    ForTextFields(stop.paragraph(), from, until, [&](const FormFieldData& field, std::size_t at) {
        const bool found = FindPlain(field.result, 0, field.result.size(), pattern_).has_value();
        if (found) Note(stop, at, stop, at + 1);
        return !found;
    });
}

/// A field's result is one text in one look: paragraphs in it become lines, and a picture has no place.
std::string Finder::FieldResultFor(std::string_view found) const {
    std::string result;
    for (const NewContent& piece : ContentFor(found)) {
        if (const auto* text = std::get_if<std::string>(&piece)) result += *text;
    }
    std::ranges::replace(result, '\r', character::kLineBreak);
    return result;
}

void Finder::ReplaceInFields(const Stop& stop, std::size_t from, std::size_t until) {
    ForTextFields(stop.paragraph(), from, until, [&](FormFieldData& field, std::size_t at) {
        std::string replaced;
        std::size_t done = 0;
        while (const auto match = FindPlain(field.result, done, field.result.size(), pattern_)) {
            replaced += field.result.substr(done, match->begin - done);
            replaced += FieldResultFor(
                std::string_view(field.result).substr(match->begin, match->end - match->begin));
            done = match->end;
            ++result_.replaced;
            Note(stop, at, stop, at + 1);
            if (IsDone()) break;
        }
        if (done > 0) field.result = replaced + field.result.substr(done);
        return !IsDone();
    });
}

/// Replaces in one paragraph, all matches in one pass.
void Finder::ReplacePlain(const Stop& stop, std::size_t from, std::size_t until) {
    Paragraph& paragraph = stop.paragraph();
    std::vector<Rewrite> rewrites;
    FormatCursor formats(paragraph);
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
        rewrites.push_back({match->begin, match->end, std::move(content), formats.At(match->begin)});
        from = match->end;
        if (request_.replace == ReplaceOne) break;
    }
    if (rewrites.empty()) return;
    result_.replaced += static_cast<int>(rewrites.size());
    Apply(paragraph, std::move(rewrites));
    Note(stop, lastBegin, stop, lastEnd);
    SplitAtReturns(stop);
}

bool Finder::MayEndParagraphs() const {
    return std::ranges::any_of(replacement_, [&](const ReplacementPiece& piece) {
        const bool bringsMarks = piece.kind == ReplacementPiece::Kind::FoundText && HasMarks(pattern_);
        return bringsMarks || piece.text.find('\r') != std::string::npos;
    });
}

/// Ends a paragraph at each "\r" of its text, which the last match may have brought, and moves the match
/// along.
void Finder::SplitAtReturns(const Stop& stop) {
    if (!MayEndParagraphs()) return;
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

FindResult Find(Document& document, Blocks& story, const FindRequest& request,
                const std::optional<TextRange>& range) {
    CheckLength(request.text);
    if (request.replace != ReplaceNone) CheckLength(request.replaceWith);
    return Finder(document, story, request).Run(range);
}

}  // namespace quillmark::word::docx::find
