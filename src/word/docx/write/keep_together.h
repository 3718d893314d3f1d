#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "word/docx/write/style_plan.h"

namespace quillmark::word::docx::write {

/// A paragraph, or another block, among those that begin on a page of their own.
struct PagePart {
    std::size_t planned = 0;  ///< the paragraph's place in the plan
    bool isPlanned = false;   ///< a paragraph with a style of the plan
    Role role = Role::None;
    std::size_t letters = 0;  ///< of its text, without blanks and the rules to sign on
    bool isEmpty = false;
    StyleUse::Keep keepNext = StyleUse::Keep::AsStyle;
    bool isGap = false;
};

/// Says for each part whether it stays on the page of the next one: blocks to sign stay whole and have the
/// text before them with them, the last paragraph has company, totals stay with their lines. Gives where the
/// empty paragraphs at the end begin, when there are any behind text.
std::optional<std::size_t> KeepTogether(std::vector<PagePart>& parts);

}  // namespace quillmark::word::docx::write
