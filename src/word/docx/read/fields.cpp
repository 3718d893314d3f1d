#include "word/docx/read/fields.h"

#include <algorithm>
#include <map>
#include <optional>

#include "word/docx/model/rewrite.h"
#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::read {

namespace {

struct MarkPlace {
    Paragraph* paragraph = nullptr;
    std::size_t object = 0;
};

/// A field whose end is still to come, with those of its own marks that were met.
struct OpenField {
    std::vector<MarkPlace> marks;
    bool isSeparated = false;
};

/// Finds the marks that belong to no whole field.
class FieldMatcher {
 public:
    void Take(const MarkPlace& place) {
        const InlineObject& object = place.paragraph->objects[place.object];
        const bool waits = !open_.empty() && !open_.back().isSeparated;
        if (std::holds_alternative<FieldBegin>(object)) {
            open_.push_back({{place}, false});
        } else if (std::holds_alternative<FieldInstruction>(object)) {
            (waits ? open_.back().marks : loose_).push_back(place);
        } else if (std::holds_alternative<FieldSeparator>(object)) {
            (waits ? open_.back().marks : loose_).push_back(place);
            if (waits) open_.back().isSeparated = true;
        } else if (std::holds_alternative<FieldEnd>(object)) {
            open_.empty() ? loose_.push_back(place) : open_.pop_back();
        }
    }

    std::vector<MarkPlace> Loose() {
        for (const OpenField& field : open_)
            loose_.insert(loose_.end(), field.marks.begin(), field.marks.end());
        return std::move(loose_);
    }

 private:
    std::vector<OpenField> open_;
    std::vector<MarkPlace> loose_;
};

std::string_view Trimmed(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? "" : text.substr(start, text.find_last_not_of(' ') - start + 1);
}

bool HasOnlyChildren(pugi::xml_node node, std::initializer_list<std::string_view> names) {
    return std::ranges::all_of(node.children(), [&](pugi::xml_node child) {
        return child.type() != pugi::node_element || std::ranges::find(names, child.name()) != names.end();
    });
}

/// The field, when its data hold nothing that the model has no member for.
std::optional<FormFieldData> ReadFormData(const std::string& formData, bool isCheckBox) {
    const auto xml = xml::ParseFragment(formData);
    const pugi::xml_node data = xml->document_element();
    const pugi::xml_node kind = data.child(isCheckBox ? "w:checkBox" : "w:textInput");
    if (!kind || !HasOnlyChildren(data, {"w:name", "w:enabled", "w:calcOnExit", kind.name()})) return {};
    if (!xml::IsOn(data.child("w:enabled")) || xml::IsOn(data.child("w:calcOnExit"))) return {};
    FormFieldData field;
    field.name = xml::Val(data.child("w:name"));
    field.isCheckBox = isCheckBox;
    const bool isPlain = isCheckBox ? HasOnlyChildren(kind, {"w:sizeAuto", "w:default", "w:checked"})
                                    : HasOnlyChildren(kind, {});
    const pugi::xml_node checked = kind.child("w:checked");
    field.checked = isCheckBox && xml::IsOn(checked ? checked : kind.child("w:default"));
    return isPlain ? std::optional(std::move(field)) : std::nullopt;
}

/// Finds the form fields of one paragraph that consist of marks and a result in one format.
class FormFieldFinder {
 public:
    explicit FormFieldFinder(const Paragraph& paragraph) : paragraph_(paragraph) {
        for (std::size_t at = paragraph.text.find(character::kObject); at != std::string::npos;
             at = paragraph.text.find(character::kObject, at + 1)) {
            offsets_.push_back(at);
        }
        std::size_t end = 0;
        for (const Span& span : paragraph.spans) spanEnds_.push_back(end += span.length);
    }

    /// What replaces the field that begins with this object.
    std::optional<Rewrite> At(std::size_t first);
    const std::set<int>& ownBookmarks() const { return ownBookmarks_; }

 private:
    struct Marks {
        std::size_t last = 0;  ///< the object that ends the field
        std::size_t resultStart = 0;
        bool isCheckBox = false;
    };
    std::optional<Marks> MarksAt(std::size_t first) const;
    std::size_t SpanAt(std::size_t offset) const {
        return static_cast<std::size_t>(std::ranges::upper_bound(spanEnds_, offset) - spanEnds_.begin());
    }
    bool TakeBookmark(std::size_t begin, std::size_t end, const std::string& name);

    const Paragraph& paragraph_;
    std::vector<std::size_t> offsets_;
    std::vector<std::size_t> spanEnds_;
    std::set<int> ownBookmarks_;
};

std::optional<FormFieldFinder::Marks> FormFieldFinder::MarksAt(std::size_t first) const {
    const auto& objects = paragraph_.objects;
    const auto* begin = std::get_if<FieldBegin>(&objects[first]);
    if (!begin || begin->formData.empty() || first + 2 >= objects.size()) return {};
    const auto* instruction = std::get_if<FieldInstruction>(&objects[first + 1]);
    const std::string_view kind = instruction ? Trimmed(instruction->text) : std::string_view();
    const bool isCheckBox = kind == "FORMCHECKBOX";
    const bool isSeparated = std::holds_alternative<FieldSeparator>(objects[first + 2]);
    const std::size_t last = first + (isSeparated ? 3 : 2);
    if ((kind != "FORMTEXT" && !isCheckBox) || last >= objects.size()) return {};
    if (!std::holds_alternative<FieldEnd>(objects[last])) return {};
    const Marks marks{last, offsets_[last - 1] + 1, isCheckBox};
    const bool marksTouch = marks.resultStart - offsets_[first] == last - first;
    const bool hasResult = offsets_[last] > marks.resultStart;
    const bool mayHaveResult = isSeparated && !isCheckBox;
    return marksTouch && (mayHaveResult || !hasResult) ? std::optional(marks) : std::nullopt;
}

/// Notes the field's own bookmark. False when another one begins or ends within the field.
bool FormFieldFinder::TakeBookmark(std::size_t begin, std::size_t end, const std::string& name) {
    int own = 0;
    auto anchor = std::ranges::lower_bound(paragraph_.anchors, begin, {}, &Anchor::offset);
    for (; anchor != paragraph_.anchors.end() && anchor->offset < end; ++anchor) {
        if (anchor->offset == begin && anchor->isStart && anchor->name == name) own = anchor->id;
        if (anchor->offset > begin && anchor->id != own) return false;
    }
    if (own) ownBookmarks_.insert(own);
    return true;
}

std::optional<Rewrite> FormFieldFinder::At(std::size_t first) {
    const std::optional<Marks> marks = MarksAt(first);
    if (!marks) return {};
    auto field = ReadFormData(std::get<FieldBegin>(paragraph_.objects[first]).formData, marks->isCheckBox);
    const std::size_t resultEnd = offsets_[marks->last];
    const bool hasResult = resultEnd > marks->resultStart;
    const std::size_t look = SpanAt(hasResult ? marks->resultStart : offsets_[first]);
    const bool isUniform = !hasResult || look == SpanAt(resultEnd - 1);
    if (!field || !isUniform || !TakeBookmark(offsets_[first], resultEnd + 1, field->name)) return {};
    constexpr std::string_view kEmptyResult = "\u2002\u2002\u2002\u2002\u2002";
    field->result = paragraph_.text.substr(marks->resultStart, resultEnd - marks->resultStart);
    if (field->result == kEmptyResult) field->result.clear();
    return Rewrite{
        offsets_[first], resultEnd + 1, {InlineObject{std::move(*field)}}, paragraph_.spans[look].format};
}

}  // namespace

void BalanceFields(Blocks& blocks) {
    FieldMatcher matcher;
    for (Block& block : blocks) {
        auto* paragraph = std::get_if<Paragraph>(&block);
        for (std::size_t object = 0; paragraph && object < paragraph->objects.size(); ++object) {
            matcher.Take({paragraph, object});
        }
    }
    std::map<Paragraph*, std::set<std::size_t>> loose;
    for (const MarkPlace& place : matcher.Loose()) loose[place.paragraph].insert(place.object);
    for (const auto& [paragraph, objects] : loose) RemoveObjects(*paragraph, objects);
}

void CollapseFormFields(Paragraph& paragraph) {
    if (paragraph.objects.size() < 3) return;
    FormFieldFinder finder(paragraph);
    std::vector<Rewrite> rewrites;
    for (std::size_t object = 0; object < paragraph.objects.size(); ++object) {
        if (auto rewrite = finder.At(object)) rewrites.push_back(std::move(*rewrite));
    }
    if (rewrites.empty()) return;
    std::erase_if(paragraph.anchors,
                  [&](const Anchor& anchor) { return finder.ownBookmarks().contains(anchor.id); });
    Apply(paragraph, std::move(rewrites));
}

}  // namespace quillmark::word::docx::read
