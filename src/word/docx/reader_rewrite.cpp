#include "word/docx/reader_rewrite.h"

#include <algorithm>

#include "word/docx/editing_spans.h"

namespace quillmark::word::docx {

namespace {

/// Copies a paragraph's content piece by piece.
class Copier {
   public:
    explicit Copier(Paragraph& source) : source_(source) {}

    void CopyTo(std::size_t offset) {
        while (at_ < offset) {
            const Span& span = source_.spans[span_];
            const std::size_t length = std::min(offset - at_, span.length - inSpan_);
            Put(std::string_view(source_.text).substr(at_, length), span.format);
            Skip(length, true);
        }
    }
    void SkipTo(std::size_t offset) {
        while (at_ < offset) Skip(std::min(offset - at_, source_.spans[span_].length - inSpan_), false);
    }
    void PutObject(InlineObject object, FormatId format) {
        objects_.push_back(std::move(object));
        Put({&character::kObject, 1}, format);
    }
    std::size_t size() const { return text_.size(); }
    void Finish() {
        source_.text = std::move(text_);
        source_.spans = std::move(spans_);
        source_.objects = std::move(objects_);
    }

   private:
    void Put(std::string_view text, FormatId format) {
        text_ += text;
        AppendSpans(spans_, {{text.size(), format}});
    }
    void Skip(std::size_t length, bool keepsObjects) {
        const std::string_view skipped = std::string_view(source_.text).substr(at_, length);
        for (auto n = std::ranges::count(skipped, character::kObject); n > 0; --n, ++object_) {
            if (keepsObjects) objects_.push_back(std::move(source_.objects[object_]));
        }
        at_ += length;
        inSpan_ += length;
        if (inSpan_ < source_.spans[span_].length) return;
        inSpan_ = 0;
        ++span_;
    }

    Paragraph& source_;
    std::size_t at_ = 0, span_ = 0, inSpan_ = 0, object_ = 0;
    std::string text_;
    std::vector<Span> spans_;
    std::vector<InlineObject> objects_;
};

}  // namespace

void Apply(Paragraph& paragraph, std::vector<Rewrite> rewrites) {
    Copier copier(paragraph);
    auto anchor = paragraph.anchors.begin();
    const auto moveAnchors = [&](std::size_t before, std::size_t oldStart, std::size_t newStart, bool isCut) {
        for (; anchor != paragraph.anchors.end() && anchor->offset < before; ++anchor) {
            anchor->offset = isCut ? newStart : anchor->offset - oldStart + newStart;
        }
    };
    std::size_t done = 0;
    for (Rewrite& rewrite : rewrites) {
        moveAnchors(rewrite.begin + 1, done, copier.size(), false);
        copier.CopyTo(rewrite.begin);
        moveAnchors(rewrite.end, 0, copier.size(), true);
        copier.SkipTo(rewrite.end);
        if (rewrite.replacement) copier.PutObject(std::move(*rewrite.replacement), rewrite.format);
        done = rewrite.end;
    }
    moveAnchors(paragraph.text.size() + 1, done, copier.size(), false);
    copier.CopyTo(paragraph.text.size());
    copier.Finish();
}

void RemoveObjects(Paragraph& paragraph, const std::set<std::size_t>& objects) {
    std::vector<Rewrite> rewrites;
    std::size_t at = paragraph.text.find(character::kObject);
    for (std::size_t object = 0; at != std::string::npos; ++object) {
        if (objects.contains(object)) rewrites.push_back({at, at + 1, {}, 0});
        at = paragraph.text.find(character::kObject, at + 1);
    }
    Apply(paragraph, std::move(rewrites));
}

}  // namespace quillmark::word::docx
