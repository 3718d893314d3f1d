#include "word/docx/model/rewrite.h"

#include <algorithm>

#include "word/docx/model/spans.h"

namespace quillmark::word::docx::inline model {

namespace {

/// Copies a paragraph's content piece by piece.
class Copier {
 public:
    explicit Copier(Paragraph& source) : source_(source) {}

    void CopyTo(std::size_t offset) {
        while (at_ < offset) {
            const Span& span = source_.spans[span_];
            const std::size_t length = std::min(offset - at_, span.length - inSpan_);
            PutText(std::string_view(source_.text).substr(at_, length), span.format);
            Skip(length, true);
        }
    }
    void SkipTo(std::size_t offset) {
        while (at_ < offset) Skip(std::min(offset - at_, source_.spans[span_].length - inSpan_), false);
    }
    void Put(NewContent&& content, FormatId format) {
        if (const auto* text = std::get_if<std::string>(&content)) return PutText(*text, format);
        objects_.push_back(std::get<InlineObject>(std::move(content)));
        PutText({&character::kObject, 1}, format);
    }
    std::size_t size() const { return text_.size(); }
    void Finish() {
        source_.text = std::move(text_);
        source_.spans = std::move(spans_);
        source_.objects = std::move(objects_);
    }

 private:
    void PutText(std::string_view text, FormatId format) {
        if (text.empty()) return;
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

void GrowingParagraph::Text(std::string_view text, FormatId format) {
    if (text.empty()) return;
    paragraph.text += text;
    AppendSpans(paragraph.spans, {{text.size(), format}});
}

void GrowingParagraph::Object(InlineObject object, FormatId format) {
    paragraph.objects.push_back(std::move(object));
    Text({&character::kObject, 1}, format);
}

void GrowingParagraph::TakeAnchors(Paragraph& other) {
    for (Anchor& anchor : other.anchors) {
        anchor.offset = paragraph.text.size();
        paragraph.anchors.push_back(std::move(anchor));
    }
    other.anchors.clear();
}

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
        for (NewContent& content : rewrite.content) copier.Put(std::move(content), rewrite.format);
        done = rewrite.end;
    }
    moveAnchors(paragraph.text.size() + 1, done, copier.size(), false);
    copier.CopyTo(paragraph.text.size());
    copier.Finish();
}

std::size_t LengthOf(const std::vector<NewContent>& content) {
    std::size_t length = 0;
    for (const NewContent& piece : content) {
        const auto* text = std::get_if<std::string>(&piece);
        length += text ? text->size() : 1;
    }
    return length;
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

}  // namespace quillmark::word::docx::inline model
