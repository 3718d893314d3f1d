#pragma once

#include "word/docx/objects/open_document.h"

namespace quillmark::word::docx::objects {

class RangeObject;

/// `Range.Find`: looks for a text from the range on and moves the range to what it found.
class FindObject final : public LateBound<FindObject> {
 public:
    static constexpr const char* kName = "Find";
    static const MemberTable<FindObject>& Members();

    explicit FindObject(RangeObject& range) : range_(range) {}
    void CheckAlive() const;

 private:
    bool Execute(Arguments arguments);

    RangeObject& range_;
    bool found_ = false;
};

/// `Range.Fields`. The page number is the one field that it adds, in place of the range's text.
class FieldsObject final : public DocumentPart<FieldsObject> {
 public:
    static constexpr const char* kName = "Fields";
    static const MemberTable<FieldsObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    void Add(Arguments arguments);
};

/// `InsertBreak` of a selection or range: a section break (2, 3) or a page break (7).
void InsertBreakAt(OpenDocument& document, const Place& place, int kind, FormatId format);

}  // namespace quillmark::word::docx::objects
