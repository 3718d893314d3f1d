#pragma once

#include <filesystem>
#include <string>

#include "word/docx/objects/open_document.h"

/// Pictures in line with the text.
namespace quillmark::word::docx::objects {

/// A picture in the size that its file gives it; a bitmap becomes a PNG, which looks the same and is small.
/// An empty description leaves the one that the file may have. Throws kFileDamaged for anything but PNG, JPEG
/// and BMP.
Picture MakePicture(std::string bytes, std::string description = {});

/// The picture in a file; kNoSuchPicture when it cannot be read.
Picture LoadPicture(const std::filesystem::path& file);

/// Shrinks a picture, its proportions kept, until it fits into so many twips.
void FitPicture(Picture& picture, int width, int height);

/// Puts a picture in, no wider than the lines of the paragraph that the place is in, and low enough for the
/// page to hold it with the heading directly above it. Gives the place behind it.
Place InsertPicture(OpenDocument& document, const Place& place, Picture picture, FormatId format);

/// `Selection.InlineShapes` and `Document.InlineShapes`. `AddPicture` keeps the file's bytes in the document;
/// it stands at the range given, else at the insertion point.
class InlineShapesObject final : public DocumentPart<InlineShapesObject> {
 public:
    static constexpr const char* kName = "InlineShapes";
    static const MemberTable<InlineShapesObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    void AddPicture(Arguments arguments);
};

}  // namespace quillmark::word::docx::objects
