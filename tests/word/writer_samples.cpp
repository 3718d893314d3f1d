#include "writer_samples.h"

#include "word/docx/write/document_writer.h"
#include "word/docx/zip/zip_reader.h"
#include "word/docx/zip/zip_writer.h"

namespace quillmark::word::docx::test {

void Type(Document& document, Paragraph& paragraph, std::string_view text, const CharFormat& format) {
    if (text.empty()) return;
    paragraph.text += text;
    paragraph.spans.push_back({text.size(), document.charFormats.Intern(format)});
}

void Insert(Document& document, Paragraph& paragraph, InlineObject object, const CharFormat& format) {
    Type(document, paragraph, std::string_view(&character::kObject, 1), format);
    paragraph.objects.push_back(std::move(object));
}

Paragraph& AddParagraph(Document& document, Blocks& blocks, std::string_view text, const ParaFormat& format,
                        const CharFormat& characters) {
    auto& paragraph = std::get<Paragraph>(blocks.emplace_back(Paragraph{}));
    paragraph.format = document.paraFormats.Intern(format);
    paragraph.markFormat = document.charFormats.Intern(characters);
    Type(document, paragraph, text, characters);
    return paragraph;
}

std::unique_ptr<Document> EmptyDocument() {
    auto document = std::make_unique<Document>();
    document->body.clear();
    return document;
}

std::string PngBytes(int width, int height) {
    const auto number = [](int value) {
        std::string bytes;
        for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
        return bytes;
    };
    const auto chunk = [&](std::string_view name, const std::string& data) {
        return number(static_cast<int>(data.size())) + std::string(name) + data + "\x12\x34\x56\x78";
    };
    return "\x89PNG\r\n\x1a\n" +
           chunk("IHDR", number(width) + number(height) + std::string("\x08\x02\0\0\0", 5)) +
           chunk("IDAT", "pixels") + chunk("IEND", "");
}

namespace {

void AddPageFooter(Document& document, SectionProperties& section) {
    section.footers[0] = std::make_unique<Story>();
    const CharFormat look = {.font = "Courier New", .halfPoints = 16};
    Paragraph& footer = AddParagraph(document, section.footers[0]->blocks, "Page ", {.alignment = 1}, look);
    Insert(document, footer, FieldBegin{}, look);
    Insert(document, footer, FieldInstruction{" PAGE "}, look);
    Insert(document, footer, FieldSeparator{}, look);
    Type(document, footer, "1", look);
    Insert(document, footer, FieldEnd{}, look);
    Insert(document, footer, Picture{PngBytes(8, 8), "png", 76200, 76200}, look);
}

void AddTable(Document& document) {
    auto table = std::make_unique<Table>();
    table->grid = {2400, 2400, 2400};
    table->borders.fill(BorderLine{1});
    for (int row = 0; row < 2; ++row) {
        TableRow& cells = table->rows.emplace_back();
        cells.height = 600;
        cells.heightRule = "exact";
        TableCell& wide = cells.cells.emplace_back();
        wide.span = 2;
        wide.fill = 0x00D9D9;
        wide.verticalAlignment = 1;
        AddParagraph(document, wide.blocks, "Smoke detection");
        TableCell& tall = cells.cells.emplace_back();
        tall.vertical = row == 0 ? Merge::Start : Merge::Continued;
        tall.borders[1] = BorderLine{7};
        AddParagraph(document, tall.blocks, row == 0 ? "Yes" : "");
    }
    document.body.emplace_back(std::move(table));
}

void AddList(Document& document) {
    document.abstractLists.push_back(
        {{{1, "decimal", "%1.", 360, -360, ""}, {1, "lowerLetter", "%2.", 720, -360, ""}}, ""});
    document.abstractLists.push_back({{{1, "bullet", "\xEF\x82\xB7", 360, -360, "Symbol"}}, ""});
    document.lists = {{0, false, ""}, {0, true, ""}, {1, false, ""}};
    for (int list = 1; list <= 3; ++list) {
        AddParagraph(document, document.body, "An item\v", {.style = "ListParagraph", .numId = list});
    }
    AddParagraph(document, document.body, "Below it\v", {.numId = 2, .listLevel = 1});
}

void AddForms(Document& document) {
    Paragraph& forms = AddParagraph(document, document.body, "Name: ");
    Insert(document, forms, FormFieldData{.name = "Text1", .result = "John Smith & Co."});
    Type(document, forms, " agreed ");
    Insert(document, forms, FormFieldData{.name = "Check1", .isCheckBox = true, .checked = true});
    Insert(document, forms, FormFieldData{.name = "Text2"}, {.bold = true});
    forms.anchors = {
        {0, true, 1, "whole"}, {3, true, 2, "inside"}, {3, false, 2, ""}, {forms.text.size(), false, 1, ""}};
    document.nextBookmarkId = 3;
    document.protection = 2;
}

}  // namespace

std::unique_ptr<Document> SampleDocument() {
    auto document = EmptyDocument();
    Paragraph& title =
        AddParagraph(*document, document->body, "WARRANTY DEED", {.spaceAfter = 240, .alignment = 1},
                     {.font = "Arial", .bold = true, .halfPoints = 28, .underline = 3});
    Type(*document, title, "1st", {.superscript = true});
    const ParaFormat signature = {.tabs = {{5580, "left", ""}, {9000, "right", "dot"}},
                                  .line = 240,
                                  .lineRule = LineRule::AtLeast,
                                  .leftIndent = 720,
                                  .rightIndent = 1440,
                                  .firstLine = -360};
    AddParagraph(*document, document->body,
                 "Signed\tby\v\"A\" < B & C\f\x0e"
                 "caf\xC3\xA9",
                 signature);
    AddList(*document);
    AddTable(*document);
    AddForms(*document);
    Paragraph& last = AddParagraph(*document, document->body, "end of the deed");
    Insert(*document, last, Picture{PngBytes(96, 48), "png", 914400, 457200});
    last.section = std::make_unique<SectionProperties>();
    AddPageFooter(*document, *last.section);
    AddParagraph(*document, document->body, "The affidavit");
    document->lastSection.start = 0;
    document->lastSection.pageHeight = 20160;
    document->lastSection.pageNumberStart = 1;
    document->lastSection.columns = 2;
    document->lastSection.protectedForForms = false;
    AddPageFooter(*document, document->lastSection);
    return document;
}

Parts Unzip(const std::string& package) {
    zip::ZipReader zip(package, "The package");
    Parts parts;
    for (const std::string& name : zip.Names()) parts[name] = zip.Read(name);
    return parts;
}

std::string Zip(const Parts& parts) {
    std::vector<zip::ZipEntry> entries;
    for (const auto& [name, bytes] : parts) entries.push_back({name, bytes});
    return zip::WriteZip(entries);
}

std::string PartOf(const Document& document, const std::string& name) {
    return Unzip(write::WriteDocx(document)).at(name);
}

}  // namespace quillmark::word::docx::test
