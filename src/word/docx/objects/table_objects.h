#pragma once

#include <memory>

#include "word/docx/objects/open_document.h"
#include "word/docx/objects/table_borders.h"

/// Tables. Rows and columns count from 1; a cell's column counts the cells of its row, so that cells joined
/// side by side count once and one joined to the cell above keeps its number but cannot be reached.
///
/// `Tables.Add` puts the table in front of the text behind the range. An insertion point that stood exactly
/// there stands in the first cell; one further on stays behind the table. So text that is to follow a table
/// is typed first, and the table added at a range kept from before it.
namespace quillmark::word::docx::objects {

/// How wide text can be in the cell that a place is in, in twips; 0 outside of tables.
int CellTextWidth(OpenDocument& document, const Place& place);

/// `Document.Tables`: the tables of the body.
class TablesObject final : public DocumentPart<TablesObject> {
 public:
    static constexpr const char* kName = "Tables";
    static const MemberTable<TablesObject>& Members();
    using DocumentPart::DocumentPart;

 private:
    /// Columns of one width over the whole text, without borders.
    Value Add(Arguments arguments);
    Value Item(Arguments arguments);
    std::vector<Table*> All();
};

class TableObject final : public Shared, public LateBound<TableObject>, public BorderTarget {
 public:
    static constexpr const char* kName = "Table";
    static const MemberTable<TableObject>& Members();

    TableObject(std::shared_ptr<OpenDocument> document, Table& table);
    ~TableObject() override;
    /// Throws kObjectDeleted also when the table's text was taken out.
    void CheckAlive() const override;

    OpenDocument& document() override { return *document_; }
    Table& table() { return *table_; }
    std::shared_ptr<TableObject> Self() { return std::static_pointer_cast<TableObject>(shared_from_this()); }
    std::optional<int> LineStyle(Edges edges) override;
    void SetLineStyle(Edges edges, int style) override;

 private:
    class Lines;
    struct Parts;
    Value Cell(Arguments arguments);
    Value Row(std::size_t row);
    Value Column(std::size_t column);

    std::shared_ptr<OpenDocument> document_;
    Table* table_;
    /// Up to which removal of text the table is known to be there.
    mutable std::uint64_t checkedAt_;
    std::unique_ptr<Parts> parts_;
};

}  // namespace quillmark::word::docx::objects
