#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/find/codes.h"
#include "word/docx/find/search.h"
#include "word/docx/model/rewrite.h"

namespace quillmark::word::docx::find {

/// A part of the story: from an offset of one stop to an offset of another.
struct SearchPart {
    std::size_t firstStop = 0;
    std::size_t from = 0;
    std::size_t lastStop = 0;
    std::size_t until = 0;
};

/// One search of one story, with its replacements.
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
        for (const SearchPart& part : Parts(range)) {
            HasMarks(pattern_) ? SearchAcross(part) : SearchPlain(part);
            if (result_.found) break;
        }
        return std::move(result_);
    }

 private:
    std::vector<SearchPart> Parts(const std::optional<TextRange>& range) const;
    std::size_t StopOf(const Place& place) const;
    void SearchPlain(const SearchPart& part);
    void SearchAcross(const SearchPart& part);
    void FindInFields(const Stop& stop, std::size_t from, std::size_t until);
    void ReplacePlain(const Stop& stop, std::size_t from, std::size_t until);
    void ReplaceInFields(const Stop& stop, std::size_t from, std::size_t until);
    std::string FieldResultFor(std::string_view found) const;
    bool KeepsApart(const Stop& stop) const;
    void ReplaceSectionBreak(const Stop& stop, const MarkMatch& match);
    std::size_t Join(std::size_t stop, const MarkMatch& match);
    void Put(GrowingParagraph& growing, std::string_view found, FormatId format) const;
    std::vector<NewContent> ContentFor(std::string_view found) const;
    void SplitAtReturns(const Stop& stop);
    void Note(const Stop& first, std::size_t begin, const Stop& last, std::size_t end);
    void DropSection(const Stop& stop);
    bool MayEndParagraphs() const;
    bool IsDone() const { return result_.found && request_.replace != ReplaceAll; }

    Document& document_;
    const FindRequest& request_;
    Pattern pattern_;
    std::vector<ReplacementPiece> replacement_;
    std::vector<Stop> stops_;
    FindResult result_;
};

}  // namespace quillmark::word::docx::find
