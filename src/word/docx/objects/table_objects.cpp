#include "word/docx/objects/table_objects.h"

#include <algorithm>
#include <numeric>

#include "word/docx/edit/table_merge.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/section_objects.h"
#include "word/docx/objects/selection.h"
#include "word/docx/objects/table_parts.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr int kMostRows = 32767;
constexpr int kMostColumns = 63;
/// The space that a cell keeps on both sides of its text.
constexpr int kCellPadding = 2 * 108;

/// A cell's text begins in the paragraph format of the place, outside of any list.
Paragraph CellParagraph(Document& document, const Paragraph& here, FormatId font) {
    ParaFormat format = document.paraFormats[here.format];
    format.numId.reset();
    format.listLevel = 0;
    Paragraph paragraph;
    paragraph.format = document.paraFormats.Intern(format);
    paragraph.markFormat = font;
    return paragraph;
}

std::unique_ptr<Table> MakeTable(Document& document, int rows, int columns, int width, const Paragraph& here,
                                 FormatId font) {
    auto table = std::make_unique<Table>();
    for (int column = 0; column < columns; ++column)
        table->grid.push_back(width * (column + 1) / columns - width * column / columns);
    table->rows.resize(static_cast<std::size_t>(rows));
    for (TableRow& row : table->rows) {
        row.cells.resize(static_cast<std::size_t>(columns));
        for (TableCell& cell : row.cells) cell.blocks.emplace_back(CellParagraph(document, here, font));
    }
    return table;
}

/// The cell whose own blocks these are, in the table or one nested in it.
std::pair<const Table*, std::pair<std::size_t, std::size_t>> FindCell(const Table& table,
                                                                      const Blocks* blocks) {
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        for (std::size_t cell = 0; cell < table.rows[row].cells.size(); ++cell) {
            const Blocks& own = table.rows[row].cells[cell].blocks;
            if (&own == blocks) return {&table, {row, cell}};
            for (const Block& block : own)
                if (const auto* nested = std::get_if<std::unique_ptr<Table>>(&block))
                    if (const auto found = FindCell(**nested, blocks); found.first) return found;
        }
    return {};
}

}  // namespace

int CellTextWidth(OpenDocument& document, const Place& place) {
    if (place.blocks == &document.model().body) return 0;
    const auto block = document.editor().TopLevelBlock(place);
    if (block == document.model().body.end()) return 0;
    const auto [table, position] = FindCell(*std::get<std::unique_ptr<Table>>(*block), place.blocks);
    if (!table) return 0;
    const TableRow& row = table->rows[position.first];
    const auto first = table->grid.begin() + std::min<std::ptrdiff_t>(edit::GridColumn(row, position.second),
                                                                      std::ssize(table->grid));
    const auto last =
        first + std::min<std::ptrdiff_t>(row.cells[position.second].span, table->grid.end() - first);
    return std::max(std::accumulate(first, last, 0) - kCellPadding, 1);
}

// ---- The collection ----

const MemberTable<TablesObject>& TablesObject::Members() {
    static const MemberTable<TablesObject> members = {
        {"Add", nullptr, nullptr,
         [](TablesObject& tables, Arguments arguments) { return tables.Add(arguments); }},
        {"Item", [](TablesObject& tables, Arguments arguments) { return tables.Item(arguments); }},
        {"Count",
         [](TablesObject& tables, Arguments) { return Whole(static_cast<int>(tables.All().size())); }},
    };
    return members;
}

std::vector<Table*> TablesObject::All() {
    std::vector<Table*> tables;
    for (Block& block : document_.model().body)
        if (auto* table = std::get_if<std::unique_ptr<Table>>(&block)) tables.push_back(table->get());
    return tables;
}

Value TablesObject::Add(Arguments arguments) {
    const ArgumentReader reader(arguments, {"Range", "NumRows", "NumColumns"});
    const auto range = ObjectOf<RangeObject>(reader["Range"]);
    const int rows = WholeWithin(reader["NumRows"], 1, kMostRows);
    const int columns = WholeWithin(reader["NumColumns"], 1, kMostColumns);
    edit::Editor& editor = document_.editor();
    const Place place = range->BeginInsertion();
    const SectionProperties* const section = editor.SectionAt(place);
    if (!section) throw AutomationError(error::kNotAvailable, "A table can be added to the main text only");
    const int cellWidth = CellTextWidth(document_, place);
    const int width = cellWidth > 0 ? cellWidth : ColumnWidth(*section);
    Table& table =
        editor.InsertTable(place, MakeTable(document_.model(), rows, columns, width,
                                            edit::Editor::ParagraphAt(place), range->InsertionFormat()));
    document_.Changed();
    return ObjectPtr(std::make_shared<TableObject>(document_.Self(), table));
}

Value TablesObject::Item(Arguments arguments) {
    const int index = WholeOf(ArgumentReader(arguments, {"Index"})["Index"]);
    const std::vector<Table*> tables = All();
    if (index < 1 || index > static_cast<int>(tables.size())) RefuseElement();
    return ObjectPtr(std::make_shared<TableObject>(document_.Self(), *tables[index - 1]));
}

// ---- One table ----

/// `Rows` and `Columns`: their elements come from the table.
class TableObject::Lines final : public LateBound<Lines> {
 public:
    static constexpr const char* kName = "Rows";
    static const MemberTable<Lines>& Members() {
        static const MemberTable<Lines> members = {
            {"Count", [](Lines& lines, Arguments) { return Whole(static_cast<int>(lines.Count())); }},
            {"Item", [](Lines& lines, Arguments arguments) { return lines.Item(arguments); }},
        };
        return members;
    }

    Lines(TableObject& table, bool areRows) : table_(table), areRows_(areRows) {}
    void CheckAlive() const { table_.CheckAlive(); }

 private:
    std::size_t Count() const { return areRows_ ? table_.table_->rows.size() : table_.table_->grid.size(); }
    Value Item(Arguments arguments) {
        const int index = WholeOf(ArgumentReader(arguments, {"Index"})["Index"]);
        if (index < 1 || index > static_cast<int>(Count())) RefuseElement();
        return areRows_ ? table_.Row(static_cast<std::size_t>(index) - 1)
                        : table_.Column(static_cast<std::size_t>(index) - 1);
    }

    TableObject& table_;
    bool areRows_;
};

struct TableObject::Parts {
    explicit Parts(TableObject& table) : rows(table, true), columns(table, false), borders(table) {}
    Lines rows;
    Lines columns;
    BordersObject borders;
};

TableObject::TableObject(std::shared_ptr<OpenDocument> document, Table& table)
    : document_(std::move(document)),
      table_(&table),
      checkedAt_(document_->editor().removals()),
      parts_(std::make_unique<Parts>(*this)) {}

TableObject::~TableObject() = default;

const MemberTable<TableObject>& TableObject::Members() {
    static const MemberTable<TableObject> members = {
        {"Cell", nullptr, nullptr,
         [](TableObject& table, Arguments arguments) { return table.Cell(arguments); }},
        {"Rows", [](TableObject& table,
                    Arguments index) { return CollectionOrItem(table.Share(table.parts_->rows), index); }},
        {"Columns",
         [](TableObject& table, Arguments index) {
             return CollectionOrItem(table.Share(table.parts_->columns), index);
         }},
        {"Borders", [](TableObject& table, Arguments) { return Value(table.Share(table.parts_->borders)); }},
    };
    return members;
}

void TableObject::CheckAlive() const {
    document_->CheckAlive();
    if (checkedAt_ == document_->editor().removals()) return;
    bool isThere = false;
    const auto look = [&](const auto& again, const Blocks& blocks) -> void {
        for (const Block& block : blocks) {
            const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
            if (!table) continue;
            isThere = isThere || table->get() == table_;
            for (const TableRow& row : (*table)->rows)
                for (const TableCell& cell : row.cells) again(again, cell.blocks);
        }
    };
    look(look, document_->model().body);
    if (!isThere) throw AutomationError(error::kObjectDeleted, "Object has been deleted.");
    checkedAt_ = document_->editor().removals();
}

Value TableObject::Cell(Arguments arguments) {
    const ArgumentReader reader(arguments, {"Row", "Column"});
    const int row = WholeOf(reader["Row"]);
    const int column = WholeOf(reader["Column"]);
    if (row < 1 || row > std::ssize(table_->rows)) RefuseElement();
    const auto& cells = table_->rows[row - 1].cells;
    if (column < 1 || column > std::ssize(cells)) RefuseElement();
    if (cells[column - 1].vertical == Merge::Continued) RefuseElement();
    return ObjectPtr(std::make_shared<CellObject>(Self(), row - 1, column - 1));
}

Value TableObject::Row(std::size_t row) {
    if (edit::HasVerticalMerges(*table_))
        throw AutomationError(error::kMergedRows,
                              "Cannot access individual rows in this collection because the "
                              "table has vertically merged cells.");
    return ObjectPtr(std::make_shared<RowObject>(Self(), row));
}

Value TableObject::Column(std::size_t column) {
    if (edit::HasMixedWidths(*table_))
        throw AutomationError(error::kMixedCellWidths,
                              "Cannot access individual columns in this collection because "
                              "the table has mixed cell widths.");
    return ObjectPtr(std::make_shared<ColumnObject>(Self(), column));
}

std::optional<int> TableObject::LineStyle(Edges edges) {
    return TableLineStyle(*table_, edges);
}

void TableObject::SetLineStyle(Edges edges, int style) {
    SetTableLineStyle(*table_, edges, style);
}

}  // namespace quillmark::word::docx::objects
