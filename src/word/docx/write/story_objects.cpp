#include <fmt/format.h>

#include <string>
#include <utility>

#include "word/docx/write/story.h"
#include "word/docx/xml/names.h"

/// What stands in a paragraph in place of a character: pictures, fields and form fields.
namespace quillmark::word::docx::write {

namespace {

constexpr std::size_t kLongestFieldName = 20;
/// Five en spaces: what an empty text field shows.
constexpr std::string_view kEmptyResult = "\u2002\u2002\u2002\u2002\u2002";
constexpr std::string_view kPictureSpace = "http://schemas.openxmlformats.org/drawingml/2006/picture";

void WriteSizePair(xml::XmlWriter& xml, std::string_view tag, std::string_view x, std::string_view y,
                   std::int64_t width, std::int64_t height) {
    xml.Open(tag);
    xml.Attribute(x, width);
    xml.Attribute(y, height);
    xml.Close();
}

void WriteNonVisual(xml::XmlWriter& xml, std::string_view tag, int id, const std::string& description) {
    xml.Open(tag);
    xml.Attribute("id", id);
    xml.Attribute("name", fmt::format("Picture {}", id));
    if (!description.empty()) xml.Attribute("descr", description);
    xml.Close();
}

void WriteFill(xml::XmlWriter& xml, const std::string& relation) {
    xml.Open("pic:blipFill");
    xml.Open("a:blip");
    xml.Attribute("r:embed", relation);
    xml.Close();
    xml.Open("a:stretch");
    xml.Empty("a:fillRect");
    xml.Close();
    xml.Close();
}

void WriteShape(xml::XmlWriter& xml, const Picture& picture) {
    xml.Open("pic:spPr");
    xml.Open("a:xfrm");
    WriteSizePair(xml, "a:off", "x", "y", 0, 0);
    WriteSizePair(xml, "a:ext", "cx", "cy", picture.widthEmu, picture.heightEmu);
    xml.Close();
    xml.Open("a:prstGeom");
    xml.Attribute("prst", "rect");
    xml.Empty("a:avLst");
    xml.Close();
    xml.Close();
}

void WriteGraphic(xml::XmlWriter& xml, const Picture& picture, int id, const std::string& relation) {
    xml.Open("a:graphic");
    xml.Open("a:graphicData");
    xml.Attribute("uri", kPictureSpace);
    xml.Open("pic:pic");
    xml.Open("pic:nvPicPr");
    WriteNonVisual(xml, "pic:cNvPr", id, picture.description);
    xml.Empty("pic:cNvPicPr");
    xml.Close();
    WriteFill(xml, relation);
    WriteShape(xml, picture);
    xml.Close();
    xml.Close();
    xml.Close();
}

void WriteFormData(xml::XmlWriter& xml, const FormFieldData& field, bool isNamed) {
    xml.Open("w:ffData");
    if (isNamed) xml.Empty("w:name", field.name);
    xml.Empty("w:enabled");
    xml.Empty("w:calcOnExit", 0);
    xml.Open(field.isCheckBox ? "w:checkBox" : "w:textInput");
    if (field.isCheckBox) {
        xml.Empty("w:sizeAuto");
        xml.Empty("w:default", field.checked ? 1 : 0);
    }
    xml.Close();
    xml.Close();
}

}  // namespace

void StoryWriter::WriteObject(const Picture& picture, FormatId format) {
    const int id = state_.nextDrawing++;
    const std::string part = state_.parts.Picture(picture.bytes, picture.extension);
    OpenRun(format);
    xml_.Open("w:drawing");
    xml_.Open("wp:inline");
    for (const char* side : {"distT", "distB", "distL", "distR"}) xml_.Attribute(side, 0);
    WriteSizePair(xml_, "wp:extent", "cx", "cy", picture.widthEmu, picture.heightEmu);
    WriteNonVisual(xml_, "wp:docPr", id, picture.description);
    WriteGraphic(xml_, picture, id, relations_.Add(xml::relationship::kImage, part));
    xml_.Close();
    xml_.Close();
}

void StoryWriter::WriteFieldMark(std::string_view type, FormatId format) {
    OpenRun(format);
    xml_.Open("w:fldChar");
    xml_.Attribute("w:fldCharType", type);
    xml_.Close();
    CloseRun();
}

void StoryWriter::WriteObject(const FieldBegin& begin, FormatId format) {
    OpenRun(format);
    xml_.Open("w:fldChar");
    xml_.Attribute("w:fldCharType", "begin");
    if (begin.dirty) xml_.Attribute("w:dirty", 1);
    WriteRaw(begin.formData);
    xml_.Close();
    CloseRun();
}

void StoryWriter::WriteObject(const FieldInstruction& instruction, FormatId format) {
    OpenRun(format);
    xml_.Open("w:instrText");
    xml_.Attribute("xml:space", "preserve");
    xml_.Text(instruction.text);
    xml_.Close();
    CloseRun();
}

void StoryWriter::WriteObject(const FormFieldData& field, FormatId format) {
    const bool fits = !field.name.empty() && field.name.size() <= kLongestFieldName;
    const bool isNamed = fits && TakeBookmarkName(field.name);
    const int bookmark = isNamed ? state_.nextBookmark++ : 0;
    if (isNamed) WriteBookmarkStart(bookmark, field.name);
    OpenRun(format);
    xml_.Open("w:fldChar");
    xml_.Attribute("w:fldCharType", "begin");
    WriteFormData(xml_, field, isNamed);
    xml_.Close();
    CloseRun();
    WriteObject(FieldInstruction{field.isCheckBox ? " FORMCHECKBOX " : " FORMTEXT "}, format);
    WriteFieldMark("separate", format);
    if (!field.isCheckBox) {
        const auto* objects = std::exchange(objects_, nullptr);  // a result is text and nothing else
        WriteCharacters(field.result.empty() ? kEmptyResult : field.result, format);
        objects_ = objects;
    }
    WriteFieldMark("end", format);
    if (isNamed) WriteBookmarkEnd(bookmark);
}

}  // namespace quillmark::word::docx::write
