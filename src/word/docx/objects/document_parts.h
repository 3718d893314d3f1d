#pragma once

#include "word/docx/objects/form_fields.h"
#include "word/docx/objects/list_templates.h"
#include "word/docx/objects/open_document.h"
#include "word/docx/objects/pictures.h"
#include "word/docx/objects/section_objects.h"
#include "word/docx/objects/selection.h"
#include "word/docx/objects/table_objects.h"

/// The objects that a document always has, and the small ones among them.
namespace quillmark::word::docx::objects {

/// `Document.PageSetup` speaks of all sections.
class AllSections final : public SectionTarget {
 public:
    explicit AllSections(OpenDocument& document) : document_(document) {}
    OpenDocument& document() override { return document_; }
    ObjectPtr Keep(Object& part) override { return document_.Share(part); }
    std::vector<SectionProperties*> TargetSections() override { return document_.editor().Sections(); }

 private:
    OpenDocument& document_;
};

/// `Document.Styles`, by name.
class StylesObject final : public DocumentPart<StylesObject> {
 public:
    static constexpr const char* kName = "Styles";
    static const MemberTable<StylesObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    Value Item(Arguments arguments);
};

/// `ActiveWindow.View.Zoom`.
class ZoomObject final : public DocumentPart<ZoomObject> {
 public:
    static constexpr const char* kName = "Zoom";
    static const MemberTable<ZoomObject>& Members();
    using DocumentPart::DocumentPart;
};

class ViewObject final : public DocumentPart<ViewObject> {
 public:
    static constexpr const char* kName = "View";
    static const MemberTable<ViewObject>& Members();
    explicit ViewObject(OpenDocument& document) : DocumentPart(document), zoom_(document) {}

 private:
    ZoomObject zoom_;
};

class WindowObject final : public DocumentPart<WindowObject> {
 public:
    static constexpr const char* kName = "Window";
    static const MemberTable<WindowObject>& Members();
    explicit WindowObject(OpenDocument& document) : DocumentPart(document), view_(document) {}

 private:
    ViewObject view_;
};

struct DocumentParts {
    explicit DocumentParts(OpenDocument& document)
        : selection(document),
          allSections(document),
          pageSetup(allSections),
          sections(document),
          styles(document),
          listTemplates(document),
          tables(document),
          formFields(document),
          bookmarks(document),
          inlineShapes(document),
          window(document) {}

    SelectionObject selection;
    AllSections allSections;
    PageSetupObject pageSetup;
    SectionsObject sections;
    StylesObject styles;
    ListTemplatesObject listTemplates;
    TablesObject tables;
    FormFieldsObject formFields;
    BookmarksObject bookmarks;
    InlineShapesObject inlineShapes;
    WindowObject window;
};

}  // namespace quillmark::word::docx::objects
