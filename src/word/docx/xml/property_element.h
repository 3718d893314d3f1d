#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "word/docx/xml/xml_writer.h"

/// The elements of properties, whose children the schema wants in one order.
namespace quillmark::word::docx::xml {

/// Local names of the children that one property element may have, in the schema's order.
using ChildOrder = std::span<const std::string_view>;

extern const ChildOrder kParagraphOrder;  ///< w:pPr
extern const ChildOrder kRunOrder;        ///< w:rPr
extern const ChildOrder kSectionOrder;    ///< w:sectPr
extern const ChildOrder kTableOrder;      ///< w:tblPr
extern const ChildOrder kRowOrder;        ///< w:trPr
extern const ChildOrder kCellOrder;       ///< w:tcPr

/// Collects the children of a property element in any order and gives the element in the schema's.
class PropertyElement {
 public:
    PropertyElement(std::string_view tag, ChildOrder order) : tag_(tag), order_(order) {}

    /// The writer for one child, whose tag is open; the child ends with the next call on this object.
    XmlWriter& Add(std::string_view tag);
    /// A child whose only attribute is w:val.
    template <class Content>
    void Value(std::string_view tag, const Content& value) {
        Add(tag).Attribute("w:val", value);
    }
    /// A child that is on or off: on is the element alone.
    void Flag(std::string_view tag, bool on);
    /// A complete element.
    void Raw(std::string_view localName, std::string_view xml);
    /// Elements taken over from an opened file, as (local name, complete XML). One that this object has
    /// already of its own is left out; elements of other namespaces come last, as extensions do.
    void Extra(const std::vector<std::pair<std::string, std::string>>& elements);
    bool Has(std::string_view localName) const;

    /// The whole element; nothing at all when it has no children.
    std::string Take();

 private:
    struct Child {
        std::size_t rank = 0;
        std::size_t start = 0;
        std::size_t end = 0;
    };
    std::size_t Rank(std::string_view localName) const;
    void FinishChild();

    std::string_view tag_;
    ChildOrder order_;
    XmlWriter children_;
    std::vector<Child> placed_;
    bool inChild_ = false;
};

}  // namespace quillmark::word::docx::xml
