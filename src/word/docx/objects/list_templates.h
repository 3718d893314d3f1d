#pragma once

#include <memory>

#include "word/docx/objects/open_document.h"

/// The lists that a document's paragraphs can be items of.
///
/// A level's number stands at the level's indent, its text hangs a quarter of an inch behind it: 18 points
/// for the first level, 36 for the second and so on.
namespace quillmark::word::docx::objects {

inline constexpr int kListLevels = 9;

/// A definition whose levels count "1.", each with its own number.
AbstractList NumberedList(int levels);
/// The definition behind the default bullet.
AbstractList BulletedList();
bool IsBulletedList(const AbstractList& list);

/// `Document.ListTemplates`.
class ListTemplatesObject final : public DocumentPart<ListTemplatesObject> {
 public:
    static constexpr const char* kName = "ListTemplates";
    static const MemberTable<ListTemplatesObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    /// A template of one level, or of nine with OutlineNumbered.
    Value Add(Arguments arguments);
    Value Item(Arguments arguments);
    Value Template(int abstractIndex);
};

/// One template; its levels count from 1.
class ListTemplateObject final : public Shared, public LateBound<ListTemplateObject> {
 public:
    static constexpr const char* kName = "ListTemplate";
    static const MemberTable<ListTemplateObject>& Members();

    ListTemplateObject(std::shared_ptr<OpenDocument> document, int abstractIndex);
    ~ListTemplateObject() override;
    void CheckAlive() const;
    OpenDocument& document() { return *document_; }
    int abstractIndex() const { return abstractIndex_; }

 private:
    class Levels;
    std::shared_ptr<OpenDocument> document_;
    int abstractIndex_;
    std::unique_ptr<Levels> levels_;
};

}  // namespace quillmark::word::docx::objects
