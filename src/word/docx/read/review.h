#pragma once

#include <string>
#include <string_view>

#include "word/docx/read/context.h"

/// What stands around text without being text: tracked changes, comments' marks and content controls.
namespace quillmark::word::docx::read {

/// Whether the element is around text that counts: w:ins, w:moveTo or w:sdt.
bool IsAroundText(std::string_view name);
/// Whether the element holds text that was taken out: w:del or w:moveFrom.
bool IsDeletion(std::string_view name);
/// Whether the element is a comment's mark.
bool IsCommentMark(std::string_view name);

/// An element around text, without the text. Text that was moved here counts as put in: the ends of moves are
/// not told. Empty when something that it leads to is missing.
std::string ShellOf(const ReadPart& part, pugi::xml_node element);

/// The text that was taken out, complete; text that was moved away counts as such. Empty when a field would
/// lose one of its ends.
std::string DeletionOf(const ReadPart& part, pugi::xml_node element);

/// What a paragraph mark's properties say of its being put in or taken out.
std::string MarkReviewOf(const ReadPart& part, pugi::xml_node markProperties);

/// What a content control holds; the element itself for any other.
pugi::xml_node ContentOf(pugi::xml_node element);

}  // namespace quillmark::word::docx::read
