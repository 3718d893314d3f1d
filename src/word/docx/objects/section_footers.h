#pragma once

#include "word/docx/objects/section_objects.h"

namespace quillmark::word::docx::objects {

/// The three footers of a section: 1 for most pages, 2 for the first page, 3 for even pages.
class FootersObject final : public LateBound<FootersObject> {
 public:
    static constexpr const char* kName = "HeadersFooters";
    static const MemberTable<FootersObject>& Members();

    explicit FootersObject(SectionObject& section) : section_(section) {}
    void CheckAlive() const { section_.CheckAlive(); }

 private:
    Value Item(Arguments arguments);

    SectionObject& section_;
};

/// One footer. While it is linked it shows the footer of the section before, and writing to its range writes
/// to that one. Cutting the link leaves a copy of what it showed.
class FooterObject final : public Shared, public LateBound<FooterObject> {
 public:
    static constexpr const char* kName = "HeaderFooter";
    static const MemberTable<FooterObject>& Members();

    FooterObject(std::shared_ptr<SectionObject> section, Pages pages);
    ~FooterObject() override;
    void CheckAlive() const { section_->CheckAlive(); }

 private:
    /// The footer's numbering is the section's, whichever footer it is reached by.
    class PageNumbers;

    Value Range();
    bool IsLinked() const;
    void Link(bool on);
    std::unique_ptr<Story>& Own() const;
    /// The story that the pages show; the first section gets an empty one when there is none.
    Story& Shown() const;
    std::unique_ptr<Story> EmptyStory() const;

    std::shared_ptr<SectionObject> section_;
    Pages pages_;
    std::unique_ptr<PageNumbers> pageNumbers_;
};

}  // namespace quillmark::word::docx::objects
