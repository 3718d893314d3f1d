#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "word/docx/model/document.h"

namespace quillmark::word::docx::write {

/// A header or footer that a section names.
struct StoryReference {
    bool isHeader = false;
    Pages pages = Pages::Primary;
    std::string relation;
};

/// w:sectPr of a section. `before` is the section before it, or nullptr: on paper of another size than that
/// one's, a section begins a new page.
std::string SectionProperty(const SectionProperties& section, const SectionProperties* before,
                            const std::vector<StoryReference>& references);

}  // namespace quillmark::word::docx::write
