#include "word/docx/objects/form_fields.h"

#include "word/docx/model/walk.h"
#include "word/docx/objects/range.h"

namespace quillmark::word::docx::objects {
namespace {

FormFieldData& DataAt(const edit::FormFieldPlace& field) {
    return std::get<FormFieldData>(edit::Editor::ParagraphAt(field.place).objects[field.object]);
}

/// A field's result lies within its paragraph: what ends a paragraph ends a line.
std::string WithoutControls(const std::string& text) {
    std::string clean;
    for (char c : text) {
        if (c == '\r' || c == '\n')
            clean += character::kLineBreak;
        else if (static_cast<unsigned char>(c) >= 0x20 || c == character::kTab || c == character::kLineBreak)
            clean += c;
    }
    return clean;
}

}  // namespace

// ---- The collection ----

const MemberTable<FormFieldsObject>& FormFieldsObject::Members() {
    static const MemberTable<FormFieldsObject> members = {
        {"Count",
         [](FormFieldsObject& fields, Arguments) {
             return Whole(static_cast<int>(fields.document_.editor().FormFields().size()));
         }},
        {"Item", [](FormFieldsObject& fields, Arguments arguments) { return fields.Item(arguments); }},
        {"Add", nullptr, nullptr,
         [](FormFieldsObject& fields, Arguments arguments) { return fields.Add(arguments); }},
    };
    return members;
}

Value FormFieldsObject::Add(Arguments arguments) {
    const ArgumentReader reader(arguments, {"Range", "Type"});
    const auto range = ObjectOf<RangeObject>(reader["Range"]);
    const int type = WholeOf(reader["Type"]);
    if (type != FieldFormTextInput && type != FieldFormCheckBox)
        throw AutomationError(error::kBadValue, "No such form field");
    edit::Editor& editor = document_.editor();
    const Place place = range->BeginInsertion();
    FormFieldData data;
    data.isCheckBox = type == FieldFormCheckBox;
    data.name = editor.NewFormFieldName(data.isCheckBox);
    const std::string name = data.name;
    editor.InsertObject(place, std::move(data), range->InsertionFormat());
    document_.Changed();
    return ObjectPtr(std::make_shared<FormFieldObject>(document_.Self(), name));
}

Value FormFieldsObject::Item(Arguments arguments) {
    const Value& index = ArgumentReader(arguments, {"Index"})["Index"];
    const auto& fields = document_.editor().FormFields();
    const auto* name = std::get_if<std::string>(&index);
    const int number = name ? 0 : WholeOf(index);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string& found = DataAt(fields[i]).name;
        if (name ? found == *name : number == static_cast<int>(i) + 1)
            return ObjectPtr(std::make_shared<FormFieldObject>(document_.Self(), found));
    }
    RefuseElement();
}

// ---- One form field ----

class FormFieldObject::CheckBox final : public LateBound<CheckBox> {
 public:
    static constexpr const char* kName = "CheckBox";
    static const MemberTable<CheckBox>& Members() {
        static const MemberTable<CheckBox> members = {
            {"Value", [](CheckBox& box, Arguments) { return Value(box.Data().checked); },
             [](CheckBox& box, const Value& value) {
                 box.Data().checked = FlagOf(value);
                 box.field_.document_->Changed();
             }},
        };
        return members;
    }

    explicit CheckBox(FormFieldObject& field) : field_(field) {}
    void CheckAlive() const { field_.CheckAlive(); }

 private:
    FormFieldData& Data() {
        FormFieldData& data = field_.Data();
        if (!data.isCheckBox) throw AutomationError(error::kNotAvailable, "The form field is no check box");
        return data;
    }

    FormFieldObject& field_;
};

FormFieldObject::FormFieldObject(std::shared_ptr<OpenDocument> document, std::string name)
    : document_(std::move(document)), name_(std::move(name)), checkBox_(std::make_unique<CheckBox>(*this)) {}

FormFieldObject::~FormFieldObject() = default;

void FormFieldObject::CheckAlive() const {
    document_->CheckAlive();
    Data();
}

const MemberTable<FormFieldObject>& FormFieldObject::Members() {
    static const MemberTable<FormFieldObject> members = {
        {"Result", [](FormFieldObject& field, Arguments) { return Value(field.Result()); },
         [](FormFieldObject& field, const Value& value) { field.SetResult(StringOf(value)); }},
        {"CheckBox", [](FormFieldObject& field, Arguments) { return Value(field.Share(*field.checkBox_)); }},
        {"Name", [](FormFieldObject& field, Arguments) { return Value(field.name_); }},
    };
    return members;
}

FormFieldData& FormFieldObject::Data() const {
    const auto& fields = document_->editor().FormFields();
    if (index_ < fields.size() && DataAt(fields[index_]).name == name_) return DataAt(fields[index_]);
    for (std::size_t i = fields.size(); i-- > 0;)
        if (DataAt(fields[i]).name == name_) return DataAt(fields[index_ = i]);
    throw AutomationError(error::kObjectDeleted, "Object has been deleted.");
}

std::string FormFieldObject::Result() const {
    const FormFieldData& data = Data();
    if (data.isCheckBox) return data.checked ? "1" : "0";
    return data.result;
}

void FormFieldObject::SetResult(const std::string& text) {
    FormFieldData& data = Data();
    if (data.isCheckBox)
        data.checked = text == "1";
    else
        data.result = WithoutControls(text);
    document_->Changed();
}

// ---- Bookmarks ----

template <class Function>
void BookmarksObject::ForEachName(const Function& function) {
    docx::ForEachParagraph(document_.model().body, [&](Blocks&, Blocks::iterator block) {
        const Paragraph& paragraph = std::get<Paragraph>(*block);
        for (const Anchor& anchor : paragraph.anchors)
            if (anchor.isStart && !anchor.name.empty()) function(anchor.name);
        for (const InlineObject& object : paragraph.objects)
            if (const auto* field = std::get_if<FormFieldData>(&object); field && !field->name.empty())
                function(field->name);
    });
}

const MemberTable<BookmarksObject>& BookmarksObject::Members() {
    static const MemberTable<BookmarksObject> members = {
        {"Count",
         [](BookmarksObject& bookmarks, Arguments) {
             int count = 0;
             // Names with an underscore in front are the word processor's own and hidden.
             bookmarks.ForEachName([&](const std::string& name) { count += name.front() != '_'; });
             return Whole(count);
         }},
        {"Exists", nullptr, nullptr,
         [](BookmarksObject& bookmarks, Arguments arguments) {
             const std::string& wanted = StringOf(ArgumentReader(arguments, {"Name"})["Name"]);
             bool exists = false;
             bookmarks.ForEachName([&](const std::string& name) { exists = exists || name == wanted; });
             return Value(exists);
         }},
    };
    return members;
}

}  // namespace quillmark::word::docx::objects
