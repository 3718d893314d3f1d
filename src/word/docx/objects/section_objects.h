#pragma once

#include <memory>

#include "word/docx/objects/open_document.h"

/// Sections, their page set-up and their footers.
namespace quillmark::word::docx::objects {

// ---- Page ----

/// What text has to fit into, in twips: one column of the section, and its height.
int ColumnWidth(const SectionProperties& section);
int TextHeight(const SectionProperties& section);

/// The sections that a page set-up speaks of.
class SectionTarget {
 public:
    virtual ~SectionTarget() = default;
    virtual OpenDocument& document() = 0;
    virtual ObjectPtr Keep(Object& part) = 0;
    virtual std::vector<SectionProperties*> TargetSections() = 0;
};

/// `TextColumns`: columns of one width. Setting the width spreads what is left as spaces between them, and
/// setting the space makes the columns fit.
class TextColumnsObject final : public LateBound<TextColumnsObject> {
 public:
    static constexpr const char* kName = "TextColumns";
    static const MemberTable<TextColumnsObject>& Members();

    explicit TextColumnsObject(SectionTarget& target) : target_(target) {}
    void CheckAlive() const { target_.document().CheckAlive(); }

 private:
    void SetCount(Arguments arguments);
    void SetWidth(const Value& value);
    void SetSpacing(const Value& value);

    SectionTarget& target_;
};

class PageSetupObject final : public LateBound<PageSetupObject> {
 public:
    static constexpr const char* kName = "PageSetup";
    static const MemberTable<PageSetupObject>& Members();

    explicit PageSetupObject(SectionTarget& target) : target_(target), columns_(target) {}
    void CheckAlive() const { target_.document().CheckAlive(); }

 private:
    template <int SectionProperties::*member>
    static Member<PageSetupObject> Distance(std::string_view name);
    void SetPaperSize(const Value& value);

    SectionTarget& target_;
    TextColumnsObject columns_;
};

// ---- Sections ----

/// `Document.Sections`, from 1.
class SectionsObject final : public DocumentPart<SectionsObject> {
 public:
    static constexpr const char* kName = "Sections";
    static const MemberTable<SectionsObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    Value Item(Arguments arguments);
};

/// One section. It is gone when its break was taken out.
class SectionObject final : public Shared, public LateBound<SectionObject>, public SectionTarget {
 public:
    static constexpr const char* kName = "Section";
    static const MemberTable<SectionObject>& Members();

    SectionObject(std::shared_ptr<OpenDocument> document, SectionProperties& section);
    ~SectionObject() override;
    void CheckAlive() const;

    OpenDocument& document() override { return *document_; }
    ObjectPtr Keep(Object& part) override { return Share(part); }
    std::vector<SectionProperties*> TargetSections() override { return {section_}; }
    /// Where it stands in the document, from 0. Throws kObjectDeleted when it does not.
    std::size_t Index() const;
    SectionProperties& properties() { return *section_; }

 private:
    struct Parts;
    std::shared_ptr<OpenDocument> document_;
    SectionProperties* section_;
    mutable std::size_t index_;
    std::unique_ptr<Parts> parts_;
};

}  // namespace quillmark::word::docx::objects
