#include "word/docx/objects/selection.h"

#include "word/docx/edit/stretch.h"
#include "word/docx/model/style_look.h"
#include "word/docx/objects/engine_state.h"
#include "word/docx/objects/list_format.h"
#include "word/docx/objects/pictures.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/range_find.h"
#include "word/docx/objects/section_objects.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr int kGoToLast = -1;

/// The section that the insertion point is in.
class SelectedSection final : public SectionTarget {
 public:
    explicit SelectedSection(SelectionObject& selection) : selection_(selection) {}
    OpenDocument& document() override { return selection_.document(); }
    ObjectPtr Keep(Object& part) override { return selection_.Keep(part); }
    std::vector<SectionProperties*> TargetSections() override {
        return {document().editor().SectionAt(selection_.place())};
    }

 private:
    SelectionObject& selection_;
};

}  // namespace

struct SelectionObject::Parts {
    explicit Parts(SelectionObject& selection)
        : font(selection),
          paragraphFormat(selection),
          paragraphs(selection),
          section(selection),
          pageSetup(section),
          inlineShapes(selection.document_) {}
    FontObject font;
    ParagraphFormatObject paragraphFormat;
    ParagraphsObject paragraphs;
    SelectedSection section;
    PageSetupObject pageSetup;
    InlineShapesObject inlineShapes;
};

SelectionObject::SelectionObject(OpenDocument& document)
    : document_(document),
      start_(document.editor().marks(), edit::Editor::StartOf(document.model().body), edit::Gravity::Behind),
      end_(document.editor().marks(), start_.place(), edit::Gravity::Behind),
      parts_(std::make_unique<Parts>(*this)) {
    TakeFontFromText();
}

SelectionObject::~SelectionObject() = default;

// ---- Members ----

struct SelectionMembers {
    template <auto part>
    static Value Part(SelectionObject& selection, Arguments) {
        return selection.Keep(selection.parts_.get()->*part);
    }
    template <auto method>
    static Value CallPlain(SelectionObject& selection, Arguments arguments) {
        ExpectNoArguments(arguments);
        (selection.*method)();
        return Value();
    }
    static Value Range(SelectionObject& selection, Arguments) {
        using Extent = RangeObject::Extent;
        if (!selection.selectsAll_)
            return ObjectPtr(std::make_shared<RangeObject>(selection.document_.Self(), selection.place(),
                                                           selection.place(), Extent::Text));
        Blocks& blocks = *selection.place().blocks;
        const bool isBody = &blocks == &selection.document_.model().body;
        return ObjectPtr(RangeOver(selection.document_, blocks, isBody ? Extent::Story : Extent::Cell));
    }
};

const MemberTable<SelectionObject>& SelectionObject::Members() {
    using Own = SelectionMembers;
    static const MemberTable<SelectionObject> members = {
        {"Font", Own::Part<&Parts::font>},
        {"ParagraphFormat", Own::Part<&Parts::paragraphFormat>},
        {"Paragraphs", Own::Part<&Parts::paragraphs>},
        {"PageSetup", Own::Part<&Parts::pageSetup>},
        {"InlineShapes", Own::Part<&Parts::inlineShapes>},
        {"Range", Own::Range},
        {"TypeText", nullptr, nullptr,
         [](SelectionObject& selection, Arguments arguments) {
             selection.TypeText(StringOf(ArgumentReader(arguments, {"Text"})["Text"]));
             return Value();
         }},
        {"TypeBackspace", nullptr, nullptr, Own::CallPlain<&SelectionObject::TypeBackspace>},
        {"InsertBreak", nullptr, nullptr,
         [](SelectionObject& selection, Arguments arguments) {
             selection.InsertBreak(ArgumentReader(arguments, {"Type"}).Whole("Type", PageBreak));
             return Value();
         }},
        {"GoTo", nullptr, nullptr,
         [](SelectionObject& selection, Arguments arguments) {
             selection.GoTo(arguments);
             return Value();
         }},
        {"Copy", nullptr, nullptr, Own::CallPlain<&SelectionObject::Copy>},
        {"Paste", nullptr, nullptr,
         [](SelectionObject& selection, Arguments arguments) {
             ExpectNoArguments(arguments);
             selection.Paste(false);
             return Value();
         }},
        {"PasteAndFormat", nullptr, nullptr,
         [](SelectionObject& selection, Arguments arguments) {
             const int type = WholeOf(ArgumentReader(arguments, {"Type"})["Type"]);
             if (type != FormatOriginalFormatting)
                 throw AutomationError(error::kBadValue, "No such way of pasting");
             selection.Paste(true);
             return Value();
         }},
    };
    return members;
}

// ---- The insertion point ----

void SelectionObject::TakeFontFromText() {
    fontId_ = edit::Editor::FormatAt(edit::Editor::FrontOf(*place().blocks, place().block));
    font_ = document_.model().charFormats[fontId_];
    isFontInterned_ = true;
}

FormatId SelectionObject::InsertionFormat() {
    if (!isFontInterned_) fontId_ = document_.model().charFormats.Intern(font_);
    isFontInterned_ = true;
    return fontId_;
}

void SelectionObject::MoveTo(const Place& place) {
    start_.MoveTo(place);
    start_.SetGravity(edit::Gravity::Behind);
    end_.MoveTo(place);
    selectsAll_ = false;
    TakeFontFromText();
}

void SelectionObject::SelectAll(Blocks& blocks) {
    MoveTo({&blocks, blocks.begin(), 0});
    const bool isEmptyCell =
        &blocks != &document_.model().body && edit::Editor::InOrder(edit::Editor::EndOf(blocks), place());
    if (isEmptyCell) return;
    start_.SetGravity(edit::Gravity::Before);
    end_.MoveTo(edit::Editor::EndOf(blocks));
    selectsAll_ = true;
}

Place SelectionObject::BeginInsertion() {
    RequireEditable();
    if (!selectsAll_) return place();
    selectsAll_ = false;
    Place start = document_.editor().InParagraph(place());
    if (edit::Editor::InOrder(start, end_.place())) start = document_.editor().Erase(start, end_.place());
    start_.MoveTo(start);
    start_.SetGravity(edit::Gravity::Behind);
    end_.MoveTo(start);
    return start;
}

// ---- Typing ----

void SelectionObject::TypeText(const std::string& text) {
    const Place at = BeginInsertion();
    document_.editor().InsertText(at, text, InsertionFormat());
    document_.Changed();
}

void SelectionObject::TypeBackspace() {
    if (selectsAll_) {
        BeginInsertion();
        return document_.Changed();
    }
    RequireEditable();
    Paragraph& paragraph = edit::Editor::ParagraphAt(place());
    const ParaFormat& format = document_.model().paraFormats[paragraph.format];
    if (place().offset == 0 && format.numId.value_or(0) != 0)
        RemoveFromList(document_.model(), paragraph);
    else
        document_.editor().EraseBefore(place());
    document_.Changed();
}

void SelectionObject::InsertBreak(int kind) {
    const Place at = BeginInsertion();
    InsertBreakAt(document_, at, kind, InsertionFormat());
}

void SelectionObject::GoTo(Arguments arguments) {
    const ArgumentReader reader(arguments, {"What", "Which"});
    const int which = WholeOf(reader["Which"]);
    if (WholeOf(reader["What"]) != GoToLine || (which != GoToFirst && which != kGoToLast))
        throw AutomationError(error::kBadValue, "Only the first and the last line can be gone to");
    Blocks& body = document_.model().body;
    if (which == GoToFirst) return MoveTo(edit::Editor::StartOf(body));
    Place last = edit::Editor::EndOf(body);
    last.offset = 0;
    MoveTo(last);
}

// ---- The clipboard ----

void SelectionObject::Copy() {
    if (!selectsAll_ || place().blocks != &document_.model().body)
        throw AutomationError(error::kNotAvailable, "Only a whole document can be copied");
    document_.engine().SetCopied(paste::CopyAll(document_.model()));
}

void SelectionObject::Paste(bool keepSourceFormatting) {
    const find::ClipboardContent content = document_.engine().clipboardContent();
    if (document_.engine().copied()) {
        PasteCopied(keepSourceFormatting);
    } else if (const auto* picture = std::get_if<Picture>(&content)) {
        const Place at = BeginInsertion();
        InsertPicture(document_, at, *picture, InsertionFormat());
    } else if (const auto* text = std::get_if<std::string>(&content)) {
        TypeText(*text);
    } else {
        throw AutomationError(error::kNotAvailable, "There is nothing on the clipboard");
    }
}

void SelectionObject::PasteCopied(bool keepSourceFormatting) {
    const Place here = BeginInsertion();
    edit::Editor& editor = document_.editor();
    // Ranges kept at this place stay in front of what is pasted.
    std::vector<edit::Mark*> kept;
    editor.marks().ForEach([&](edit::Mark& mark) {
        const bool isHere = mark.place().block == here.block && mark.place().offset == here.offset;
        if (isHere && mark.gravity() == edit::Gravity::Before) kept.push_back(&mark);
    });
    Blocks& blocks = *here.blocks;
    const Place at = here.offset > 0 ? editor.Split(here, edit::Editor::ParagraphAt(here).markFormat) : here;
    const bool isFirst = at.block == blocks.begin();
    if (paste::IsEmpty(document_.model()))
        document_.pageBeforePaste() = document_.model().lastSection.CopyWithoutStories();
    const auto before = isFirst ? blocks.begin() : std::prev(at.block);
    const Place behind =
        paste::PasteAt(document_.model(), at, document_.engine().copied(), keepSourceFormatting);
    editor.Reattach();
    const auto firstPasted = isFirst ? blocks.begin() : std::next(before);
    for (edit::Mark* mark : kept) mark->MoveTo(edit::Editor::FrontOf(blocks, firstPasted));
    MoveTo(behind);
    document_.Changed();
}

// ---- Its looks ----

void SelectionObject::ChangeFont(const CharFormat& patch) {
    RequireEditable();
    if (selectsAll_) {
        edit::ForEachStretch(start_.place(), end_.place(), true, [&](const edit::Stretch& stretch) {
            edit::ChangeFontOf(document_.model(), stretch, patch);
        });
        TakeFontFromText();
        return document_.Changed();
    }
    edit::Overlay(font_, patch);
    isFontInterned_ = false;
    Paragraph& paragraph = edit::Editor::ParagraphAt(place());
    if (!paragraph.text.empty()) return;
    paragraph.markFormat = InsertionFormat();
    document_.Changed();
}

void SelectionObject::ForEachFont(const std::function<void(const CharFormat&)>& look) {
    const Document& model = document_.model();
    if (selectsAll_)
        return edit::ForEachStretch(start_.place(), end_.place(), true, [&](const edit::Stretch& stretch) {
            edit::LookAtFontsOf(model, stretch, look);
        });
    look(EffectiveFont(model, model.paraFormats[edit::Editor::ParagraphAt(place()).format], font_));
}

void SelectionObject::ForEachParagraph(const std::function<void(Paragraph&)>& visit) {
    if (!selectsAll_) return visit(edit::Editor::ParagraphAt(place()));
    edit::ForEachStretch(start_.place(), end_.place(), true,
                         [&](const edit::Stretch& stretch) { visit(stretch.paragraph); });
}

}  // namespace quillmark::word::docx::objects
