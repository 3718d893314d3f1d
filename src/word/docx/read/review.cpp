#include "word/docx/read/review.h"

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::read {

namespace {

constexpr const char* kInsertion = "w:ins";
constexpr const char* kDeletion = "w:del";

void CopyAttributes(pugi::xml_node from, pugi::xml_node into) {
    for (const pugi::xml_attribute attribute : from.attributes()) into.append_copy(attribute);
}

/// How many more fields begin than end within the element; text that is moved away is told like deleted text.
int PrepareDeleted(pugi::xml_node element) {
    int open = 0;
    for (pugi::xml_node child : element.children()) {
        if (xml::IsNamed(child, "w:t")) child.set_name("w:delText");
        if (xml::IsNamed(child, "w:instrText")) child.set_name("w:delInstrText");
        const std::string_view mark = xml::Attribute(child, "w:fldCharType");
        open += mark == "begin" ? 1 : mark == "end" ? -1 : 0;
        open += PrepareDeleted(child);
    }
    return open;
}

}  // namespace

bool IsAroundText(std::string_view name) {
    return name == kInsertion || name == "w:moveTo" || name == "w:sdt";
}

bool IsDeletion(std::string_view name) {
    return name == kDeletion || name == "w:moveFrom";
}

bool IsCommentMark(std::string_view name) {
    return name == "w:commentRangeStart" || name == "w:commentRangeEnd" || name == "w:commentReference";
}

std::string ShellOf(const ReadPart& part, pugi::xml_node element) {
    const bool isControl = xml::IsNamed(element, "w:sdt");
    pugi::xml_document scratch;
    pugi::xml_node shell = scratch.append_child(isControl ? element.name() : kInsertion);
    CopyAttributes(element, shell);
    for (const char* properties : {"w:sdtPr", "w:sdtEndPr"})
        if (isControl && element.child(properties)) shell.append_copy(element.child(properties));
    if (isControl) shell.append_child("w:sdtContent");
    return part.Keep(shell);
}

std::string DeletionOf(const ReadPart& part, pugi::xml_node element) {
    element.set_name(kDeletion);
    return PrepareDeleted(element) == 0 && element.first_child() ? part.Keep(element) : std::string();
}

std::string MarkReviewOf(const ReadPart& part, pugi::xml_node markProperties) {
    std::string review;
    for (const auto& [name, kept] : {std::pair{"w:ins", kInsertion},
                                     {"w:moveTo", kInsertion},
                                     {"w:del", kDeletion},
                                     {"w:moveFrom", kDeletion}}) {
        const pugi::xml_node mark = markProperties.child(name);
        if (!mark || review.find(kept) != review.npos) continue;
        pugi::xml_document scratch;
        pugi::xml_node copy = scratch.append_child(kept);
        CopyAttributes(mark, copy);
        review += part.Keep(copy);
    }
    return review;
}

pugi::xml_node ContentOf(pugi::xml_node element) {
    return xml::IsNamed(element, "w:sdt") ? element.child("w:sdtContent") : element;
}

}  // namespace quillmark::word::docx::read
