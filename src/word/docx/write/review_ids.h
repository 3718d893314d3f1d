#pragma once

#include <string>

/// Numbers of tracked changes.
namespace quillmark::word::docx::write {

/// Gives every tracked change of a part a number of its own, from `next` on: texts of several files stand in
/// one document, and no two of its changes may have the same.
void NumberReviews(std::string& part, int& next);

}  // namespace quillmark::word::docx::write
