#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "word/docx/model/document.h"

/// Documents built straight from the model, and packages taken apart and put together again.
namespace quillmark::word::docx::test {

/// Types at the end of a paragraph.
void Type(Document& document, Paragraph& paragraph, std::string_view text, const CharFormat& format = {});
void Insert(Document& document, Paragraph& paragraph, InlineObject object, const CharFormat& format = {});

/// A paragraph at the end of the blocks.
Paragraph& AddParagraph(Document& document, Blocks& blocks, std::string_view text = {},
                        const ParaFormat& format = {}, const CharFormat& characters = {});

/// A document without even its first paragraph.
std::unique_ptr<Document> EmptyDocument();

/// A document that has something of everything that the writer knows.
std::unique_ptr<Document> SampleDocument();

/// A picture of so many pixels that is right as far as its header goes.
std::string PngBytes(int width, int height);

using Parts = std::map<std::string, std::string>;
Parts Unzip(const std::string& package);
std::string Zip(const Parts& parts);
/// One part of the document as it is written.
std::string PartOf(const Document& document, const std::string& name);

}  // namespace quillmark::word::docx::test
