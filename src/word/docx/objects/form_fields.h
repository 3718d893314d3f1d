#pragma once

#include <memory>

#include "word/docx/objects/open_document.h"

/// Form fields: text fields and check boxes that stay open when the document is protected.
namespace quillmark::word::docx::objects {

/// `Document.FormFields`, in the order of the text.
class FormFieldsObject final : public DocumentPart<FormFieldsObject> {
 public:
    static constexpr const char* kName = "FormFields";
    static const MemberTable<FormFieldsObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    /// Puts a field (70 a text field, 71 a check box) in place of the range's text, named "Text1", "Check1"
    /// and so on. An insertion point that stood there stands behind it.
    Value Add(Arguments arguments);
    /// By number from 1, or by name.
    Value Item(Arguments arguments);
};

/// One form field, known by its name.
class FormFieldObject final : public Shared, public LateBound<FormFieldObject> {
 public:
    static constexpr const char* kName = "FormField";
    static const MemberTable<FormFieldObject>& Members();

    FormFieldObject(std::shared_ptr<OpenDocument> document, std::string name);
    ~FormFieldObject() override;
    void CheckAlive() const;

 private:
    class CheckBox;

    /// Throws kObjectDeleted when the field's text was taken out.
    FormFieldData& Data() const;
    std::string Result() const;
    void SetResult(const std::string& text);

    std::shared_ptr<OpenDocument> document_;
    std::string name_;
    mutable std::size_t index_ = 0;
    std::unique_ptr<CheckBox> checkBox_;
};

/// `Document.Bookmarks`: those of the text and the names of form fields.
class BookmarksObject final : public DocumentPart<BookmarksObject> {
 public:
    static constexpr const char* kName = "Bookmarks";
    static const MemberTable<BookmarksObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    template <class Function>
    void ForEachName(const Function& function);
};

}  // namespace quillmark::word::docx::objects
