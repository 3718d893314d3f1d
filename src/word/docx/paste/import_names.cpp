#include "word/docx/paste/import_names.h"

#include <fmt/format.h>

#include <algorithm>

#include "word/docx/model/walk.h"
#include "word/docx/xml/text_codes.h"
#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::paste {

namespace {

constexpr std::size_t kLongestBookmark = 40;
constexpr std::size_t kLongestFormField = 20;

std::string NameInFormData(const std::string& formData) {
    if (formData.empty()) return {};
    return std::string(xml::Val(xml::ParseFragment(formData)->document_element().child("w:name")));
}

template <class Function>
void ForStories(const SectionProperties& section, const Function& function) {
    for (const auto* stories : {&section.headers, &section.footers}) {
        for (const auto& story : *stories) {
            if (story) ForEachParagraph(std::as_const(story->blocks), function);
        }
    }
}

/// A name cut to its length with a number behind it.
std::string Numbered(const std::string& name, int number, std::size_t longest) {
    const std::string ending = fmt::format("_{}", number);
    std::size_t kept = std::min(name.size(), longest - ending.size());
    while (kept > 0 && kept < name.size() && (static_cast<unsigned char>(name[kept]) & 0xC0u) == 0x80u)
        --kept;
    return name.substr(0, kept) + ending;
}

}  // namespace

NameImport::NameImport(Document& target) : target_(target) {
    const auto note = [&](const Paragraph& paragraph) {
        for (const Anchor& anchor : paragraph.anchors) {
            if (anchor.isStart && !anchor.name.empty()) Take(anchor.name);
        }
        for (const InlineObject& object : paragraph.objects) {
            if (const auto* field = std::get_if<FormFieldData>(&object)) Take(field->name);
            if (const auto* begin = std::get_if<FieldBegin>(&object)) Take(NameInFormData(begin->formData));
        }
    };
    ForEachParagraph(std::as_const(target.body), note);
    ForStories(target.lastSection, note);
    for (const Block& block : target.body) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) ForStories(*paragraph->section, note);
    }
}

bool NameImport::Take(const std::string& name) {
    return taken_.insert(xml::SmallLetters(name)).second;
}

std::string NameImport::Map(const std::string& name, std::size_t longest) {
    const auto known = renamed_.find(name);
    if (known != renamed_.end()) return known->second;
    std::string candidate = name.size() > longest ? Numbered(name, 1, longest) : name;
    for (int number = 2; !Take(candidate); ++number) candidate = Numbered(name, number, longest);
    return renamed_[name] = std::move(candidate);
}

std::string NameImport::FormFieldName(const FormFieldData& field) {
    if (field.name.empty() || (field.name.size() <= kLongestFormField && Take(field.name))) return field.name;
    int& next = target_.nextFormField[field.isCheckBox ? 1 : 0];
    std::string name;
    do {
        name = fmt::format("{}{}", field.isCheckBox ? "Check" : "Text", next++);
    } while (!Take(name));
    return name;
}

int NameImport::MapId(int id) {
    const auto [place, isNew] = ids_.try_emplace(id, target_.nextBookmarkId);
    if (isNew) ++target_.nextBookmarkId;
    return place->second;
}

void NameImport::Prepare(const Blocks& blocks) {
    ForEachParagraph(blocks, [&](const Paragraph& paragraph) {
        // A field with data of its own and the bookmark around it bear one name.
        for (const InlineObject& object : paragraph.objects) {
            const auto* begin = std::get_if<FieldBegin>(&object);
            const std::string name = begin ? NameInFormData(begin->formData) : std::string();
            if (!name.empty()) Map(name, kLongestFormField);
        }
        for (const Anchor& anchor : paragraph.anchors) {
            if (anchor.isStart && !anchor.name.empty()) Map(anchor.name, kLongestBookmark);
        }
    });
}

std::string NameImport::Instruction(std::string_view text) const {
    std::string result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" \"\\"), text.size());
        const auto renamed = renamed_.find(text.substr(0, end));
        result += renamed == renamed_.end() ? text.substr(0, end) : std::string_view(renamed->second);
        if (end < text.size()) result += text[end];
        text.remove_prefix(std::min(text.size(), end + 1));
    }
    return result;
}

}  // namespace quillmark::word::docx::paste
