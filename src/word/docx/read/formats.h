#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "word/docx/read/context.h"

/// Direct formatting of an opened file.
namespace quillmark::word::docx::read {

/// From w:rPr (or nothing). A style that the file does not define is left out.
CharFormat ReadCharFormat(const ReadPart& part, pugi::xml_node properties);
/// From w:pPr (or nothing), without the mark's look and the section.
ParaFormat ReadParaFormat(const ReadPart& part, pugi::xml_node properties);
/// From w:sectPr, without headers and footers.
SectionProperties ReadSectionFormat(const ReadPart& part, pugi::xml_node properties);

/// Keeps a child as (local name, XML) unless the schema has no such child or there is one already; the
/// result is in the schema's order.
using Extra = std::vector<std::pair<std::string, std::string>>;
void KeepExtra(const ReadPart& part, pugi::xml_node child, std::span<const std::string_view> order,
               Extra& extra);

/// Twips of an attribute, unset when it is absent.
std::optional<int> Twips(pugi::xml_node node, const char* name);

}  // namespace quillmark::word::docx::read
