#pragma once

#include "word/docx/objects/open_document.h"

namespace quillmark::word::docx::objects {

/// Which lines of a table or row are meant.
enum class Edges { Outside, Inside, All };

/// Something that has borders.
class BorderTarget {
 public:
    virtual ~BorderTarget() = default;
    virtual OpenDocument& document() = 0;
    virtual void CheckAlive() const = 0;
    /// The style that all these lines have; unset when they differ.
    virtual std::optional<int> LineStyle(Edges edges) = 0;
    virtual void SetLineStyle(Edges edges, int style) = 0;
};

/// `Borders` of a table or a row.
class BordersObject final : public LateBound<BordersObject> {
 public:
    static constexpr const char* kName = "Borders";
    static const MemberTable<BordersObject>& Members();

    explicit BordersObject(BorderTarget& target) : target_(target) {}
    void CheckAlive() const { target_.CheckAlive(); }

 private:
    template <Edges edges>
    static Member<BordersObject> Style(std::string_view name);

    BorderTarget& target_;
};

/// The lines of a table's own borders.
std::optional<int> TableLineStyle(const Table& table, Edges edges);
/// Sets them, and takes back what cells had there of their own.
void SetTableLineStyle(Table& table, Edges edges, int style);

/// The lines around and between the cells of one row. Setting them sets the facing edges of the rows above
/// and below too, since of two cells' lines at one place either could be the one that shows.
std::optional<int> RowLineStyle(const Table& table, std::size_t row, Edges edges);
void SetRowLineStyle(Table& table, std::size_t row, Edges edges, int style);

}  // namespace quillmark::word::docx::objects
