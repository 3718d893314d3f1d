#include "word/docx/objects/table_parts.h"

#include "word/docx/edit/stretch.h"
#include "word/docx/edit/table_merge.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/selection.h"

namespace quillmark::word::docx::objects {
namespace {

/// The colour number for "none of its own".
constexpr int kAutomaticColour = -16777216;
constexpr int kLargestColour = 0xFFFFFF;
constexpr double kTallestRow = 1584;

}  // namespace

// ---- Cells ----

CellObject::CellObject(std::shared_ptr<TableObject> table, std::size_t row, std::size_t column)
    : table_(std::move(table)), row_(row), column_(column) {}

const MemberTable<CellObject>& CellObject::Members() {
    static const MemberTable<CellObject> members = {
        {"Range", [](CellObject& cell, Arguments) { return cell.Range(); }},
        {"VerticalAlignment",
         [](CellObject& cell, Arguments) {
             return Whole(cell.Data().verticalAlignment.value_or(CellAlignTop));
         },
         [](CellObject& cell, const Value& value) { cell.SetVerticalAlignment(value); }},
        {"Select", nullptr, nullptr,
         [](CellObject& cell, Arguments arguments) {
             ExpectNoArguments(arguments);
             cell.Select();
             return Value();
         }},
        {"Merge", nullptr, nullptr,
         [](CellObject& cell, Arguments arguments) {
             cell.Merge(arguments);
             return Value();
         }},
    };
    return members;
}

void CellObject::CheckAlive() const {
    table_->CheckAlive();
    Data();
}

TableCell& CellObject::Data() const {
    auto& cells = table_->table().rows[row_].cells;
    if (column_ >= cells.size() || cells[column_].vertical == Merge::Continued)
        throw AutomationError(error::kObjectDeleted, "Object has been deleted.");
    return cells[column_];
}

Value CellObject::Range() {
    return ObjectPtr(RangeOver(table_->document(), Data().blocks, RangeObject::Extent::Cell));
}

void CellObject::SetVerticalAlignment(const Value& value) {
    const int alignment = WholeOf(value);
    if (alignment != CellAlignTop && alignment != CellAlignCentre && alignment != CellAlignBottom)
        throw AutomationError(error::kBadValue, "No such vertical alignment");
    Data().verticalAlignment = alignment;
    table_->document().Changed();
}

void CellObject::Select() {
    table_->document().selection().SelectAll(Data().blocks);
}

void CellObject::Merge(Arguments arguments) {
    const auto other = ObjectOf<CellObject>(ArgumentReader(arguments, {"MergeTo"})["MergeTo"]);
    if (&other->table_->table() != &table_->table())
        throw AutomationError(error::kBadValue, "The cells are in two tables");
    other->CheckAlive();
    table_->document().RequireEditable(edit::Editor::StartOf(Data().blocks));
    edit::MergeCells(table_->document().editor(), table_->table(), row_, column_, other->row_,
                     other->column_);
    table_->document().Changed();
}

// ---- Rows ----

class RowObject::Text final : public LateBound<Text> {
 public:
    static constexpr const char* kName = "Range";
    static const MemberTable<Text>& Members() {
        static const MemberTable<Text> members = {
            {"Font", [](Text& text, Arguments) { return Value(text.row_.Share(text.font_)); }},
            {"ParagraphFormat", [](Text& text, Arguments) { return Value(text.row_.Share(text.format_)); }},
        };
        return members;
    }

    explicit Text(RowObject& row) : row_(row), font_(row), format_(row) {}
    void CheckAlive() const { row_.CheckAlive(); }

 private:
    RowObject& row_;
    FontObject font_;
    ParagraphFormatObject format_;
};

class RowObject::Shading final : public LateBound<Shading> {
 public:
    static constexpr const char* kName = "Shading";
    static const MemberTable<Shading>& Members() {
        static const MemberTable<Shading> members = {
            {"BackgroundPatternColor", [](Shading& shading, Arguments) { return shading.Colour(); },
             [](Shading& shading, const Value& value) { shading.SetColour(value); }},
        };
        return members;
    }

    explicit Shading(RowObject& row) : row_(row) {}
    void CheckAlive() const { row_.CheckAlive(); }

 private:
    Value Colour() const {
        const auto& cells = row_.Data().cells;
        for (const TableCell& cell : cells)
            if (cell.fill != cells.front().fill) return Whole(kUndefined);
        return Whole(cells.front().fill.value_or(kAutomaticColour));
    }
    void SetColour(const Value& value) {
        const int colour = WholeOf(value);
        if (colour != kAutomaticColour) WholeWithin(value, 0, kLargestColour);
        for (TableCell& cell : row_.Data().cells)
            cell.fill = colour == kAutomaticColour ? std::nullopt : std::optional(colour);
        row_.document().Changed();
    }

    RowObject& row_;
};

struct RowObject::Parts {
    explicit Parts(RowObject& row) : text(row), shading(row), borders(row) {}
    Text text;
    Shading shading;
    BordersObject borders;
};

RowObject::RowObject(std::shared_ptr<TableObject> table, std::size_t row)
    : table_(std::move(table)), row_(row), parts_(std::make_unique<Parts>(*this)) {}

RowObject::~RowObject() = default;

const MemberTable<RowObject>& RowObject::Members() {
    static const MemberTable<RowObject> members = {
        {"Height", [](RowObject& row, Arguments) { return row.Height(); },
         [](RowObject& row, const Value& value) { row.SetHeight(value); }},
        {"Range", [](RowObject& row, Arguments) { return Value(row.Share(row.parts_->text)); }},
        {"Shading", [](RowObject& row, Arguments) { return Value(row.Share(row.parts_->shading)); }},
        {"Borders", [](RowObject& row, Arguments) { return Value(row.Share(row.parts_->borders)); }},
    };
    return members;
}

void RowObject::CheckAlive() const {
    table_->CheckAlive();
}

TableRow& RowObject::Data() const {
    return table_->table().rows[row_];
}

Value RowObject::Height() const {
    return Data().height ? PointsOf(*Data().height) : Whole(kUndefined);
}

void RowObject::SetHeight(const Value& value) {
    Data().height = TwipsOf(value, 0, kTallestRow);
    if (Data().heightRule.empty()) Data().heightRule = "atLeast";
    table_->document().Changed();
}

std::optional<int> RowObject::LineStyle(Edges edges) {
    return RowLineStyle(table_->table(), row_, edges);
}

void RowObject::SetLineStyle(Edges edges, int style) {
    SetRowLineStyle(table_->table(), row_, edges, style);
}

void RowObject::RequireEditable() {
    document().RequireEditable(edit::Editor::StartOf(Data().cells.front().blocks));
}

void RowObject::ForEachStretchOfRow(const std::function<void(const edit::Stretch&)>& function) {
    for (TableCell& cell : Data().cells)
        edit::ForEachStretch({&cell.blocks, cell.blocks.begin(), 0}, edit::Editor::EndOf(cell.blocks), true,
                             function);
}

void RowObject::ChangeFont(const CharFormat& patch) {
    RequireEditable();
    ForEachStretchOfRow(
        [&](const edit::Stretch& stretch) { edit::ChangeFontOf(document().model(), stretch, patch); });
    document().Changed();
}

void RowObject::ForEachFont(const std::function<void(const CharFormat&)>& look) {
    ForEachStretchOfRow(
        [&](const edit::Stretch& stretch) { edit::LookAtFontsOf(document().model(), stretch, look); });
}

void RowObject::ForEachParagraph(const std::function<void(Paragraph&)>& visit) {
    ForEachStretchOfRow([&](const edit::Stretch& stretch) { visit(stretch.paragraph); });
}

// ---- Columns ----

const MemberTable<ColumnObject>& ColumnObject::Members() {
    static const MemberTable<ColumnObject> members = {
        {"Width",
         [](ColumnObject& column, Arguments) {
             return PointsOf(column.table_->table().grid[column.column_]);
         },
         [](ColumnObject& column, const Value& value) {
             column.table_->table().grid[column.column_] = TwipsOf(value, 1, kTallestRow);
             column.table_->document().Changed();
         }},
    };
    return members;
}

}  // namespace quillmark::word::docx::objects
