#include "word/word.h"

namespace quillmark::word {
namespace {

Value Text(std::string_view text) {
    return std::string(text);
}
Value Whole(int number) {
    return std::int32_t{number};
}

/// The story of the same kind behind a range's, null after the last.
ObjectPtr NextStory(const ObjectPtr& range) {
    const Value next = range->Get("NextStoryRange");
    const auto* object = std::get_if<ObjectPtr>(&next);
    return object ? *object : nullptr;
}

}  // namespace

// ---- Selection and ranges ----

void TabStops::Add(double position) const {
    Call("Add", {{position}});
}
void TabStops::Clear(double position) const {
    Item(position)->Call("Clear");
}
void TabStops::ClearAll() const {
    Call("ClearAll");
}

void Paragraphs::Indent() const {
    Call("Indent");
}
void Paragraphs::Outdent() const {
    Call("Outdent");
}

ListLevel ListTemplate::ListLevels(int level) const {
    return ListLevel(ItemOf("ListLevels", Whole(level)));
}

void ListFormat::ApplyListTemplate(const ListTemplate& list) const {
    Call("ApplyListTemplate", {{list.Reach()}});
}
void ListFormat::ApplyBulletDefault() const {
    Call("ApplyBulletDefault");
}
void ListFormat::RemoveNumbers() const {
    Call("RemoveNumbers");
}
void ListFormat::ListIndent() const {
    Call("ListIndent");
}
void ListFormat::ListOutdent() const {
    Call("ListOutdent");
}

void TextColumns::SetCount(int columns) const {
    Call("SetCount", {{Whole(columns)}});
}

bool Find::Execute(std::string_view findText) const {
    return ToFlag(Call("Execute", {{Text(findText), "FindText"}}));
}
bool Find::Execute(std::string_view findText, FindWrap wrap) const {
    return ToFlag(Call("Execute", {{Text(findText), "FindText"}, {Whole(wrap), "Wrap"}}));
}
bool Find::ReplaceAll(std::string_view findText, std::string_view replaceWith) const {
    return ToFlag(Call("Execute", {{Text(findText), "FindText"},
                                   {Text(replaceWith), "ReplaceWith"},
                                   {Whole(word::ReplaceAll), "Replace"}}));
}

void Fields::Add(const Range& range, FieldType type) const {
    Call("Add", {{range.Reach()}, {Whole(type)}});
}

void Range::MoveStart(Unit unit) const {
    Call("MoveStart", {{Whole(unit)}});
}
void Range::InsertAfter(std::string_view text) const {
    Call("InsertAfter", {{word::Text(text)}});
}
void Range::InsertBreak(Break kind) const {
    Call("InsertBreak", {{Whole(kind)}});
}

ListFormat Selection::ListFormat() const {
    return word::ListFormat(Range().ListFormat.Reach());
}
Range Selection::Range() const {
    return word::Range(GetObject("Range"));
}
void Selection::TypeText(std::string_view text) const {
    Call("TypeText", {{Text(text)}});
}
void Selection::TypeBackspace() const {
    Call("TypeBackspace");
}
void Selection::InsertBreak(Break kind) const {
    Call("InsertBreak", {{Whole(kind)}});
}
void Selection::GoTo(GoToItem what, GoToDirection which) const {
    Call("GoTo", {{Whole(what)}, {Whole(which)}});
}
void Selection::Copy() const {
    Call("Copy");
}
void Selection::Paste() const {
    Call("Paste");
}
void Selection::PasteAndFormat(PasteFormat format) const {
    Call("PasteAndFormat", {{Whole(format)}});
}

// ---- Parts of a document ----

FormField FormFields::Add(const Range& range, FieldType type) const {
    return FormField(CallObject("Add", {{range.Reach()}, {Whole(type)}}));
}
FormField FormFields::operator()(int index) const {
    return FormField(Item(Whole(index)));
}
int FormFields::Count() const {
    return ToWhole(Get("Count"));
}

void Cell::Select() const {
    Call("Select");
}
void Cell::Merge(const Cell& mergeTo) const {
    Call("Merge", {{mergeTo.Reach(), "MergeTo"}});
}

Cell Table::Cell(int row, int column) const {
    return word::Cell(CallObject("Cell", {{Whole(row)}, {Whole(column)}}));
}
Row Table::Rows(int row) const {
    return Row(ItemOf("Rows", Whole(row)));
}
Column Table::Columns(int column) const {
    return Column(ItemOf("Columns", Whole(column)));
}

Table Tables::Add(const Range& range, int rows, int columns) const {
    return Table(CallObject("Add", {{range.Reach()}, {Whole(rows)}, {Whole(columns)}}));
}

void InlineShapes::AddPicture(std::string_view fileName) const {
    Call("AddPicture", {{Text(fileName)}});
}
void InlineShapes::AddPicture(std::string_view fileName, const Range& range) const {
    Call("AddPicture", {{Text(fileName)}, {range.Reach(), "Range"}});
}

Range Footer::Range() const {
    return word::Range(GetObject("Range"));
}
int Footers::Count() const {
    return ToWhole(Get("Count"));
}
Footer Footers::operator()(int index) const {
    return Footer(Item(Whole(index)));
}

int Sections::Count() const {
    return ToWhole(Get("Count"));
}
Section Sections::operator()(int index) const {
    return Section(Item(Whole(index)));
}

ListTemplate ListTemplates::Add(bool outlineNumbered) const {
    return ListTemplate(CallObject("Add", {{outlineNumbered, "OutlineNumbered"}}));
}

int Bookmarks::Count() const {
    return ToWhole(Get("Count"));
}
bool Bookmarks::Exists(std::string_view name) const {
    return ToFlag(Call("Exists", {{Text(name)}}));
}

// ---- Documents and the application ----

Style Document::Styles(std::string_view name) const {
    return Style(ItemOf("Styles", Text(name)));
}
std::vector<Range> Document::OtherStories() const {
    constexpr int kFootnotes = 2;
    constexpr int kFirstPageFooters = 11;
    std::vector<Range> stories;
    for (int kind = kFootnotes; kind <= kFirstPageFooters; ++kind) {
        try {
            ObjectPtr story = ItemOf("StoryRanges", Whole(kind));
            for (; story; story = NextStory(story)) stories.emplace_back(story);
        } catch (const AutomationError& failure) {
            // The collection holds the kinds that the document has.
            if (failure.number() != error::kNoSuchElement) throw;
        }
    }
    return stories;
}
void Document::Protect(word::ProtectionType type, bool noReset) const {
    Call("Protect", {{Whole(type)}, {noReset}});
}
void Document::Select() const {
    Call("Select");
}
void Document::Save() const {
    Call("Save");
}
void Document::SaveAs(std::string_view fileName) const {
    Call("SaveAs", {{Text(fileName)}});
}
void Document::Close(bool saveChanges) const {
    Call("Close", {{saveChanges, "SaveChanges"}});
}

Document Documents::Add() const {
    return Document(CallObject("Add", {}));
}
Document Documents::Open(std::string_view fileName) const {
    return Document(CallObject("Open", {{Text(fileName)}}));
}
int Documents::Count() const {
    return ToWhole(Get("Count"));
}
Document Documents::operator()(int index) const {
    return Document(Item(Whole(index)));
}

double Application::Version() const {
    return ToNumber(Get("Version"));
}
void Application::Activate() const {
    Call("Activate");
}
void Application::Quit() const {
    Call("Quit", {{Whole(0)}});
}

}  // namespace quillmark::word
