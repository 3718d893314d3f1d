#pragma once

#include <memory>

#include "word/docx/edit/stretch.h"
#include "word/docx/objects/font.h"
#include "word/docx/objects/paragraphs.h"
#include "word/docx/objects/table_objects.h"

/// The parts of a table that can be reached: cells, rows and columns.
namespace quillmark::word::docx::objects {

/// One cell, known by its row and its place in the row.
class CellObject final : public Shared, public LateBound<CellObject> {
 public:
    static constexpr const char* kName = "Cell";
    static const MemberTable<CellObject>& Members();

    CellObject(std::shared_ptr<TableObject> table, std::size_t row, std::size_t column);
    void CheckAlive() const;

 private:
    TableCell& Data() const;
    Value Range();
    void SetVerticalAlignment(const Value& value);
    void Select();
    void Merge(Arguments arguments);

    std::shared_ptr<TableObject> table_;
    std::size_t row_;
    std::size_t column_;
};

/// One row: its height (at least so much), shading, borders and the looks of its text.
class RowObject final : public Shared, public LateBound<RowObject>, public BorderTarget, public TextTarget {
 public:
    static constexpr const char* kName = "Row";
    static const MemberTable<RowObject>& Members();

    RowObject(std::shared_ptr<TableObject> table, std::size_t row);
    ~RowObject() override;
    void CheckAlive() const override;

    OpenDocument& document() override { return table_->document(); }
    std::optional<int> LineStyle(Edges edges) override;
    void SetLineStyle(Edges edges, int style) override;

    ObjectPtr Keep(Object& part) override { return Share(part); }
    void RequireEditable() override;
    void ChangeFont(const CharFormat& patch) override;
    void ForEachFont(const std::function<void(const CharFormat&)>& look) override;
    void ForEachParagraph(const std::function<void(Paragraph&)>& visit) override;

 private:
    struct Parts;
    /// `Row.Range`, as far as the looks of its text go.
    class Text;
    class Shading;
    TableRow& Data() const;
    void ForEachStretchOfRow(const std::function<void(const edit::Stretch&)>& function);
    Value Height() const;
    void SetHeight(const Value& value);

    std::shared_ptr<TableObject> table_;
    std::size_t row_;
    std::unique_ptr<Parts> parts_;
};

/// One column of a table whose cells are all one column wide.
class ColumnObject final : public LateBound<ColumnObject> {
 public:
    static constexpr const char* kName = "Column";
    static const MemberTable<ColumnObject>& Members();

    ColumnObject(std::shared_ptr<TableObject> table, std::size_t column)
        : table_(std::move(table)), column_(column) {}
    void CheckAlive() const { table_->CheckAlive(); }

 private:
    std::shared_ptr<TableObject> table_;
    std::size_t column_;
};

}  // namespace quillmark::word::docx::objects
