#include "word/docx/objects/table_borders.h"

namespace quillmark::word::docx::objects {
namespace {

/// Indexes into docx::Borders.
enum Side : std::size_t { Top, Left, Bottom, Right, InsideHorizontal, InsideVertical };

constexpr Side kOuterSides[] = {Top, Left, Bottom, Right};
constexpr Side kInnerSides[] = {InsideHorizontal, InsideVertical};

int StyleOf(const std::optional<BorderLine>& own, const std::optional<BorderLine>& inherited) {
    if (own) return own->style;
    return inherited ? inherited->style : static_cast<int>(LineStyleNone);
}

/// Whether a side of a cell lies inside its row.
bool IsInsideRow(const TableRow& row, std::size_t cell, Side side) {
    return (side == Left && cell > 0) || (side == Right && cell + 1 < row.cells.size());
}

bool IsMeant(Edges edges, bool isInside) {
    return edges == Edges::All || (edges == Edges::Inside) == isInside;
}

/// What the table says about a side of one of its cells.
Side TableSide(const Table& table, std::size_t row, std::size_t cell, Side side) {
    if (IsInsideRow(table.rows[row], cell, side)) return InsideVertical;
    if ((side == Top && row > 0) || (side == Bottom && row + 1 < table.rows.size())) return InsideHorizontal;
    return side;
}

void SetFacingSides(TableRow& row, Side side, int style) {
    for (TableCell& cell : row.cells) cell.borders[side] = BorderLine{style};
}

/// Collects styles and tells whether they are all alike.
class Agreement {
 public:
    void Add(int style) {
        isMixed_ = isMixed_ || (common_ && *common_ != style);
        common_ = style;
    }
    std::optional<int> Result() const {
        return isMixed_ ? std::nullopt : common_ ? common_ : std::optional(0);
    }

 private:
    std::optional<int> common_;
    bool isMixed_ = false;
};

}  // namespace

template <Edges edges>
Member<BordersObject> BordersObject::Style(std::string_view name) {
    return {name,
            [](BordersObject& borders, Arguments) {
                return Whole(borders.target_.LineStyle(edges).value_or(kUndefined));
            },
            [](BordersObject& borders, const Value& value) {
                const int style = WholeOf(value);
                if (style != LineStyleNone && style != LineStyleSingle && style != LineStyleDouble)
                    throw AutomationError(error::kBadValue, "No such line style");
                borders.target_.SetLineStyle(edges, style);
                borders.target_.document().Changed();
            }};
}

const MemberTable<BordersObject>& BordersObject::Members() {
    static const MemberTable<BordersObject> members = {
        Style<Edges::All>("LineStyle"),
        Style<Edges::Outside>("OutsideLineStyle"),
        Style<Edges::Inside>("InsideLineStyle"),
    };
    return members;
}

// ---- Tables ----

std::optional<int> TableLineStyle(const Table& table, Edges edges) {
    Agreement agreement;
    if (edges != Edges::Inside)
        for (Side side : kOuterSides) agreement.Add(StyleOf(table.borders[side], {}));
    if (edges != Edges::Outside)
        for (Side side : kInnerSides) agreement.Add(StyleOf(table.borders[side], {}));
    return agreement.Result();
}

void SetTableLineStyle(Table& table, Edges edges, int style) {
    if (edges != Edges::Inside)
        for (Side side : kOuterSides) table.borders[side] = BorderLine{style};
    if (edges != Edges::Outside)
        for (Side side : kInnerSides) table.borders[side] = BorderLine{style};
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        for (std::size_t cell = 0; cell < table.rows[row].cells.size(); ++cell)
            for (Side side : kOuterSides) {
                const Side meant = TableSide(table, row, cell, side);
                if (IsMeant(edges, meant == InsideHorizontal || meant == InsideVertical))
                    table.rows[row].cells[cell].borders[side].reset();
            }
}

// ---- Rows ----

std::optional<int> RowLineStyle(const Table& table, std::size_t row, Edges edges) {
    Agreement agreement;
    for (std::size_t cell = 0; cell < table.rows[row].cells.size(); ++cell)
        for (Side side : kOuterSides)
            if (IsMeant(edges, IsInsideRow(table.rows[row], cell, side)))
                agreement.Add(StyleOf(table.rows[row].cells[cell].borders[side],
                                      table.borders[TableSide(table, row, cell, side)]));
    return agreement.Result();
}

void SetRowLineStyle(Table& table, std::size_t row, Edges edges, int style) {
    for (std::size_t cell = 0; cell < table.rows[row].cells.size(); ++cell)
        for (Side side : kOuterSides)
            if (IsMeant(edges, IsInsideRow(table.rows[row], cell, side)))
                table.rows[row].cells[cell].borders[side] = BorderLine{style};
    if (edges == Edges::Inside) return;
    if (row > 0) SetFacingSides(table.rows[row - 1], Bottom, style);
    if (row + 1 < table.rows.size()) SetFacingSides(table.rows[row + 1], Top, style);
}

}  // namespace quillmark::word::docx::objects
