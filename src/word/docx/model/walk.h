#pragma once

#include "word/docx/model/document.h"

/// The paragraphs of a text in reading order.
namespace quillmark::word::docx::inline model {

/// Calls `function(Blocks&, Blocks::iterator)` for every paragraph of the blocks, those in tables included.
template <class Function>
void ForEachParagraph(Blocks& blocks, const Function& function) {
    for (auto block = blocks.begin(); block != blocks.end(); ++block) {
        if (std::holds_alternative<Paragraph>(*block)) function(blocks, block);
        const auto* table = std::get_if<std::unique_ptr<Table>>(&*block);
        if (!table) continue;
        for (TableRow& row : (*table)->rows)
            for (TableCell& cell : row.cells) ForEachParagraph(cell.blocks, function);
    }
}

/// Calls `function(const Paragraph&)` for the same.
template <class Function>
void ForEachParagraph(const Blocks& blocks, const Function& function) {
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) function(*paragraph);
        const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
        if (!table) continue;
        for (const TableRow& row : (*table)->rows)
            for (const TableCell& cell : row.cells) ForEachParagraph(cell.blocks, function);
    }
}

}  // namespace quillmark::word::docx::inline model
