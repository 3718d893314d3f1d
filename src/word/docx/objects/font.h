#pragma once

#include "word/docx/objects/text_target.h"

namespace quillmark::word::docx::objects {

/// `Font` of the selection or a range.
class FontObject final : public LateBound<FontObject> {
 public:
    static constexpr const char* kName = "Font";
    static const MemberTable<FontObject>& Members();

    explicit FontObject(TextTarget& target) : target_(target) {}
    void CheckAlive() const;

 private:
    template <class T>
    static Member<FontObject> Property(std::string_view name);

    TextTarget& target_;
};

}  // namespace quillmark::word::docx::objects
