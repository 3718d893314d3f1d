#include <functional>

#include "word/docx/find/find_replace.h"
#include "word/docx/find/in_xml.h"

/// Searching everywhere in a document: its main text, headers, footers, text boxes and notes.
namespace quillmark::word::docx::find {

namespace {

void ForStories(Document& document, const std::function<void(Blocks&)>& visit) {
    const auto forSection = [&](SectionProperties& section) {
        for (auto* stories : {&section.headers, &section.footers})
            for (auto& story : *stories)
                if (story) visit(story->blocks);
    };
    for (Block& block : document.body) {
        auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) forSection(*paragraph->section);
    }
    forSection(document.lastSection);
}

bool HoldsNotes(const Relation& relation) {
    return relation.type.ends_with("/footnotes") || relation.type.ends_with("/endnotes");
}

/// One search of the stories beside the main text.
class OutsideFinder {
 public:
    OutsideFinder(Document& document, const FindRequest& request, FindResult& result)
        : document_(document),
          request_(request),
          result_(result),
          pattern_(ParsePattern(request.text)),
          replacement_(request.replace == ReplaceNone ? std::vector<ReplacementPiece>()
                                                      : ParseReplacement(request)),
          inXml_(pattern_, replacement_) {}

    void Run() {
        if (pattern_.empty() || HasMarks(pattern_)) return;
        SearchBoxes(document_.body);
        ForStories(document_, [&](Blocks& story) {
            if (IsDone()) return;
            const FindResult found = Find(document_, story, request_);
            result_.found |= found.found;
            result_.replaced += found.replaced;
            SearchBoxes(story);
        });
        for (auto& [id, relation] : document_.relations)
            if (HoldsNotes(relation)) SearchXml(relation.bytes);
    }

 private:
    bool IsDone() const { return result_.found && request_.replace != ReplaceAll; }

    void SearchBoxes(Blocks& story) {
        for (const Stop& stop : CollectStops(story))
            for (InlineObject& object : stop.paragraph().objects) {
                auto* raw = std::get_if<RawInline>(&object);
                if (raw && raw->xml.find("w:txbxContent") != raw->xml.npos) SearchXml(raw->xml);
            }
    }
    void SearchXml(std::string& content) {
        if (IsDone()) return;
        if (request_.replace == ReplaceNone) {
            result_.found |= inXml_.Holds(content);
            return;
        }
        const int replaced = inXml_.Replace(content, request_.replace == ReplaceAll);
        result_.found |= replaced > 0;
        result_.replaced += replaced;
    }

    Document& document_;
    const FindRequest& request_;
    FindResult& result_;
    Pattern pattern_;
    std::vector<ReplacementPiece> replacement_;
    XmlFinder inXml_;
};

}  // namespace

FindResult FindEverywhere(Document& document, const FindRequest& request) {
    FindResult result = Find(document, document.body, request);
    const bool isDone = result.found && request.replace != ReplaceAll;
    if (!isDone) OutsideFinder(document, request, result).Run();
    return result;
}

}  // namespace quillmark::word::docx::find
