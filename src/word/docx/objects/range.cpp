#include "word/docx/objects/range.h"

#include <algorithm>

#include "word/docx/edit/stretch.h"
#include "word/docx/objects/range_find.h"
#include "word/docx/objects/selection.h"

namespace quillmark::word::docx::objects {
namespace {

/// The format of the text that replaces a range: that of the range's first character.
FormatId FormatOfFirst(const Place& start, const Place& end) {
    if (!std::holds_alternative<Paragraph>(*start.block)) return edit::Editor::FormatAt(end);
    const Paragraph& paragraph = edit::Editor::ParagraphAt(start);
    const bool hasFirst = start.offset < (start.block == end.block ? end.offset : paragraph.text.size());
    return edit::Editor::FormatAt({start.blocks, start.block, start.offset + (hasFirst ? 1 : 0)});
}

std::size_t CharactersIn(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

/// The characters that an object takes beside those it shows: a field's marks and its code count, hidden or
/// not.
std::size_t HiddenCharacters(const InlineObject& object) {
    if (const auto* code = std::get_if<FieldInstruction>(&object)) return CharactersIn(code->text);
    const auto* field = std::get_if<FormFieldData>(&object);
    const bool isOne = std::holds_alternative<Picture>(object) || (field && field->isCheckBox) ||
                       std::holds_alternative<FieldBegin>(object) ||
                       std::holds_alternative<FieldSeparator>(object) ||
                       std::holds_alternative<FieldEnd>(object);
    return isOne ? 1 : 0;
}

}  // namespace

struct RangeObject::Parts {
    explicit Parts(RangeObject& range)
        : font(range), paragraphFormat(range), listFormat(range), fields(*range.document_), find(range) {}
    FontObject font;
    ParagraphFormatObject paragraphFormat;
    ListFormatObject listFormat;
    FieldsObject fields;
    FindObject find;
};

RangeObject::RangeObject(std::shared_ptr<OpenDocument> document, const Place& start, const Place& end,
                         Extent extent, int storyType)
    : document_(std::move(document)),
      start_(document_->editor().marks(), start, edit::Gravity::Before),
      end_(document_->editor().marks(), end,
           extent == Extent::Text ? edit::Gravity::Before : edit::Gravity::Behind),
      extent_(extent),
      storyType_(storyType) {}

RangeObject::~RangeObject() = default;

std::shared_ptr<RangeObject> RangeOver(OpenDocument& document, Blocks& blocks, RangeObject::Extent extent,
                                       int storyType) {
    return std::make_shared<RangeObject>(document.Self(), Place{&blocks, blocks.begin(), 0},
                                         edit::Editor::EndOf(blocks), extent, storyType);
}

// ---- Members ----

struct RangeMembers {
    template <auto part>
    static Value Part(RangeObject& range, Arguments) {
        if (!range.parts_) range.parts_ = std::make_unique<RangeObject::Parts>(range);
        return range.Share(range.parts_.get()->*part);
    }
    template <auto method>
    static Value CallText(RangeObject& range, Arguments arguments) {
        (range.*method)(StringOf(ArgumentReader(arguments, {"Text"})["Text"]));
        return Value();
    }
};

const MemberTable<RangeObject>& RangeObject::Members() {
    using Own = RangeMembers;
    static const MemberTable<RangeObject> members = {
        {"Text", [](RangeObject& range, Arguments) { return Value(range.Text()); },
         [](RangeObject& range, const Value& value) { range.SetText(StringOf(value)); }},
        {"StoryType", [](RangeObject& range, Arguments) { return Whole(range.storyType_); }},
        {"StoryLength", [](RangeObject& range, Arguments) { return Whole(range.StoryLength()); }},
        {"Font", Own::Part<&Parts::font>},
        {"ParagraphFormat", Own::Part<&Parts::paragraphFormat>},
        {"ListFormat", Own::Part<&Parts::listFormat>},
        {"Fields", Own::Part<&Parts::fields>},
        {"Find", Own::Part<&Parts::find>},
        {"InsertAfter", nullptr, nullptr, Own::CallText<&RangeObject::InsertAfter>},
        {"MoveStart", nullptr, nullptr,
         [](RangeObject& range, Arguments arguments) {
             range.MoveStart(arguments);
             return Whole(1);
         }},
        {"InsertBreak", nullptr, nullptr,
         [](RangeObject& range, Arguments arguments) {
             range.InsertBreak(arguments);
             return Value();
         }},
        {"Select", nullptr, nullptr,
         [](RangeObject& range, Arguments arguments) {
             ExpectNoArguments(arguments);
             range.Select();
             return Value();
         }},
    };
    return members;
}

void RangeObject::CheckAlive() {
    document_->CheckAlive();
    Settle();
}

void RangeObject::Settle() {
    if (edit::Editor::InOrder(start(), end())) return;
    const Place place = edit::Editor::FrontOf(*start().blocks, start().block);
    MoveTo(place, place);
}

// ---- The text ----

Blocks& RangeObject::Story() {
    return storyType_ == MainTextStory ? document_->model().body : *start().blocks;
}

int RangeObject::StoryLength() {
    std::size_t length = 0;
    edit::ForEachStretch(edit::Editor::StartOf(Story()), edit::Editor::EndOf(Story()), true,
                         [&](const edit::Stretch& stretch) {
                             length += CharactersIn(edit::PlainText(stretch));
                             for (const InlineObject& object : stretch.paragraph.objects)
                                 length += HiddenCharacters(object);
                         });
    return static_cast<int>(length);
}

std::string RangeObject::Text() {
    std::string text;
    edit::ForEachStretch(start(), end(), WithLastMark(),
                         [&](const edit::Stretch& stretch) { text += edit::PlainText(stretch); });
    if (extent_ == Extent::Cell) text += '\a';
    return text;
}

Place RangeObject::BeginInsertion() {
    Settle();
    RequireEditable();
    if (IsEmpty()) return start();
    const Place place = document_->editor().Erase(document_->editor().InParagraph(start()), end());
    start_.MoveTo(place);
    return place;
}

FormatId RangeObject::InsertionFormat() {
    SelectionObject& selection = document_->selection();
    const bool isInsertionPoint = selection.place().block == start().block &&
                                  selection.place().offset == start().offset && selection.IsInsertionPoint();
    return isInsertionPoint ? selection.InsertionFormat() : edit::Editor::FormatAt(start());
}

void RangeObject::SetText(const std::string& text) {
    const FormatId format = FormatOfFirst(start(), end());
    const Place place = BeginInsertion();
    const Place behind = document_->editor().InsertText(place, text, format);
    document_->Changed();
    end_.MoveTo(behind);
}

void RangeObject::InsertAfter(const std::string& text) {
    RequireEditable();
    const Place behind = document_->editor().InsertText(end(), text, edit::Editor::FormatAt(end()));
    document_->Changed();
    end_.MoveTo(behind);
}

void RangeObject::MoveStart(Arguments arguments) {
    const ArgumentReader reader(arguments, {"Unit", "Count"});
    if (WholeOf(reader["Unit"]) != UnitStory || reader.Whole("Count", 1) != 1)
        throw AutomationError(error::kBadValue, "A range's start moves by one story only");
    if (extent_ == Extent::Cell) extent_ = Extent::Story;
    end_.MoveTo(edit::Editor::EndOf(Story()));
    start_.MoveTo(end_.place());
}

void RangeObject::InsertBreak(Arguments arguments) {
    const int kind = ArgumentReader(arguments, {"Type"}).Whole("Type", PageBreak);
    const Place place = BeginInsertion();
    InsertBreakAt(*document_, place, kind, edit::Editor::FormatAt(place));
}

void RangeObject::Select() {
    SelectionObject& selection = document_->selection();
    if (extent_ == Extent::Text) return selection.MoveTo(start());
    selection.SelectAll(extent_ == Extent::Cell ? *start().blocks : document_->model().body);
}

void RangeObject::MoveTo(const Place& start, const Place& end) {
    start_.MoveTo(start);
    end_.MoveTo(end);
    extent_ = Extent::Text;
    end_.SetGravity(edit::Gravity::Before);
}

find::FindResult RangeObject::FindIn(const find::FindRequest& request) {
    const bool isContent = extent_ == Extent::Story && storyType_ == MainTextStory;
    if (isContent) return FindEverywhere(document_->model(), request);
    if (extent_ == Extent::Story) return Find(document_->model(), Story(), request);
    return Find(document_->model(), Story(), request, find::TextRange{start(), end()});
}

// ---- Its looks ----

void RangeObject::ChangeFont(const CharFormat& patch) {
    Settle();
    RequireEditable();
    edit::ForEachStretch(start(), end(), WithLastMark(), [&](const edit::Stretch& stretch) {
        edit::ChangeFontOf(document_->model(), stretch, patch);
    });
    document_->Changed();
}

void RangeObject::ForEachFont(const std::function<void(const CharFormat&)>& look) {
    Settle();
    edit::ForEachStretch(start(), end(), WithLastMark(), [&](const edit::Stretch& stretch) {
        edit::LookAtFontsOf(document_->model(), stretch, look);
    });
}

void RangeObject::ForEachParagraph(const std::function<void(Paragraph&)>& visit) {
    Settle();
    edit::ForEachStretch(start(), end(), WithLastMark(),
                         [&](const edit::Stretch& stretch) { visit(stretch.paragraph); });
}

}  // namespace quillmark::word::docx::objects
