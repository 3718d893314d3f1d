#include "word/reader_dump.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "word/docx/read/document_reader.h"
#include "word/docx/xml/names.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx::test {

namespace {

std::string Number(const std::optional<int>& value) {
    return value ? std::to_string(*value) : "-";
}
std::string Flag(const std::optional<bool>& value) {
    return value ? (*value ? "on" : "off") : "-";
}

std::string Extra(const std::vector<std::pair<std::string, std::string>>& extra) {
    std::string text;
    for (const auto& [name, xml] : extra) text += xml;
    return text;
}

std::string Visible(std::string_view text) {
    std::string visible;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x20) visible += c;
        if (static_cast<unsigned char>(c) < 0x20) visible += fmt::format("<{:x}>", static_cast<int>(c));
    }
    return visible;
}

struct ObjectDump {
    std::string operator()(const Picture& picture) const {
        return fmt::format("[{} {} {}x{}]", picture.extension, std::hash<std::string>()(picture.bytes),
                           picture.widthEmu, picture.heightEmu);
    }
    std::string operator()(const FormFieldData& field) const {
        return fmt::format("[field {} {} {} '{}']", field.name, field.isCheckBox, field.checked,
                           Visible(field.result));
    }
    std::string operator()(const FieldBegin& begin) const { return "[begin " + begin.formData + "]"; }
    std::string operator()(const FieldInstruction& instruction) const { return "[" + instruction.text + "]"; }
    std::string operator()(const FieldSeparator&) const { return "[separate]"; }
    std::string operator()(const FieldEnd&) const { return "[end]"; }
    std::string operator()(const RawInline& raw) const { return "[raw " + raw.xml + "]"; }
};

class Dumper {
 public:
    explicit Dumper(const Document& document) : document_(document) {}

    void Add(const Blocks& blocks, const std::string& margin) {
        for (const Block& block : blocks) {
            if (const auto* paragraph = std::get_if<Paragraph>(&block)) Add(*paragraph, margin);
            if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block)) Add(**table, margin);
            if (const auto* raw = std::get_if<RawBlock>(&block)) Line(margin, "RAW " + raw->xml);
        }
    }
    void Add(const SectionProperties& section, const std::string& margin) {
        Line(margin,
             fmt::format("SECTION {} {}x{} {} {},{},{},{} {} {} {} #{} cols {} {} {} {} {}", section.start,
                         section.pageWidth, section.pageHeight, section.landscape, section.topMargin,
                         section.rightMargin, section.bottomMargin, section.leftMargin,
                         section.headerDistance, section.footerDistance, section.gutter,
                         Number(section.pageNumberStart), section.columns, section.columnSpacing,
                         section.protectedForForms, section.titlePage, Extra(section.extra)));
        for (const auto& [width, space] : section.unequalColumns)
            Line(margin, fmt::format("{}+{}", width, space));
        for (std::size_t pages = 0; pages < 3; ++pages) {
            AddStory(section.headers[pages], fmt::format("{}header {}: ", margin, pages));
            AddStory(section.footers[pages], fmt::format("{}footer {}: ", margin, pages));
        }
    }
    std::string Take() { return std::move(out_); }

 private:
    void Line(const std::string& margin, const std::string& text) { out_ += margin + text + "\n"; }
    void AddStory(const std::unique_ptr<Story>& story, const std::string& margin) {
        if (story) Add(story->blocks, margin);
    }
    void Add(const Paragraph& paragraph, const std::string& margin) {
        Line(margin, "P " + Describe(document_.paraFormats[paragraph.format]) + " mark " +
                         Describe(document_.charFormats[paragraph.markFormat]));
        Line(margin, "  " + Content(paragraph));
        if (paragraph.section) Add(*paragraph.section, margin);
    }
    std::string Content(const Paragraph& paragraph) {
        std::string content;
        std::size_t at = 0, object = 0;
        std::optional<FormatId> look;
        for (const Span& span : paragraph.spans) {
            if (look != span.format) content += "{" + Describe(document_.charFormats[span.format]) + "}";
            look = span.format;
            for (const std::size_t end = at + span.length; at < end; ++at) {
                AddAnchors(paragraph, at, content);
                const char c = paragraph.text[at];
                content += c == character::kObject ? std::visit(ObjectDump(), paragraph.objects.at(object++))
                           : static_cast<unsigned char>(c) < 0x20 ? Visible({&c, 1})
                                                                  : std::string(1, c);
            }
        }
        AddAnchors(paragraph, at, content);
        return content;
    }
    void AddAnchors(const Paragraph& paragraph, std::size_t offset, std::string& content) {
        for (const Anchor& anchor : paragraph.anchors) {
            if (anchor.isStart && !anchor.name.empty()) names_[anchor.id] = anchor.name;
            if (anchor.offset == offset) content += (anchor.isStart ? "<+" : "<-") + names_[anchor.id] + ">";
        }
    }
    void Add(const Table& table, const std::string& margin) {
        Line(margin, fmt::format("TABLE {} {} {} {}", fmt::join(table.grid, ","), table.style,
                                 Lines(table.borders), Extra(table.extra)));
        for (const TableRow& row : table.rows) {
            Line(margin, fmt::format(" ROW {} {} {}", Number(row.height), row.heightRule, Extra(row.extra)));
            for (const TableCell& cell : row.cells) {
                Line(margin,
                     fmt::format("  CELL {} {} {} {} {} {}", cell.span, static_cast<int>(cell.vertical),
                                 Number(cell.fill), Number(cell.verticalAlignment), Lines(cell.borders),
                                 Extra(cell.extra)));
                Add(cell.blocks, margin + "    ");
            }
        }
    }
    static std::string Lines(const Borders& borders) {
        std::string text;
        for (const auto& line : borders) text += line ? std::to_string(line->style) : "-";
        return text;
    }

    const Document& document_;
    std::string out_;
    std::map<int, std::string> names_;
};

void CheckParagraph(const Document& document, const Paragraph& paragraph, std::string& faults) {
    std::size_t length = 0;
    for (const Span& span : paragraph.spans) {
        if (span.length == 0) faults += "an empty span; ";
        if (span.format >= document.charFormats.size()) faults += "an unknown format; ";
        length += span.length;
    }
    if (length != paragraph.text.size())
        faults += "spans do not add up in '" + Visible(paragraph.text) + "'; ";
    const auto objects = std::ranges::count(paragraph.text, character::kObject);
    if (objects != std::ssize(paragraph.objects))
        faults += "objects do not match '" + Visible(paragraph.text) + "'; ";
    if (paragraph.text.find('\r') != std::string::npos) faults += "a paragraph end in a text; ";
    for (const Anchor& anchor : paragraph.anchors) {
        if (anchor.offset > paragraph.text.size()) faults += "a bookmark beyond the text; ";
    }
}

void CheckBlocks(const Document& document, const Blocks& blocks, std::string& faults) {
    if (blocks.empty() || !std::holds_alternative<Paragraph>(blocks.back()))
        faults += "blocks without an end; ";
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block))
            CheckParagraph(document, *paragraph, faults);
        const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
        if (!table) continue;
        if ((*table)->rows.empty()) faults += "a table without rows; ";
        for (const TableRow& row : (*table)->rows) {
            for (const TableCell& cell : row.cells) CheckBlocks(document, cell.blocks, faults);
        }
    }
}

}  // namespace

std::string Describe(const CharFormat& format) {
    return fmt::format("{}/{}/{}/{}/{}/{}/{}{}", format.style, format.font, Flag(format.bold),
                       Flag(format.italic), Number(format.halfPoints), Number(format.underline),
                       Flag(format.superscript), Extra(format.extra));
}

std::string Describe(const ParaFormat& format) {
    std::string tabs;
    for (const TabStop& tab : format.tabs)
        tabs += fmt::format("{}{}{},", tab.position, tab.alignment, tab.leader);
    return fmt::format("{} list {}.{} tabs {} space {} {} line {} {} ind {} {} {} jc {} {}", format.style,
                       Number(format.numId), format.listLevel, tabs, Number(format.spaceBefore),
                       Number(format.spaceAfter), Number(format.line), static_cast<int>(format.lineRule),
                       Number(format.leftIndent), Number(format.rightIndent), Number(format.firstLine),
                       Number(format.alignment), Extra(format.extra));
}

std::string Dump(const Document& document, const Blocks& blocks) {
    Dumper dumper(document);
    dumper.Add(blocks, "");
    return dumper.Take();
}

std::string Dump(const Document& document) {
    Dumper dumper(document);
    dumper.Add(document.body, "");
    dumper.Add(document.lastSection, "");
    return dumper.Take() + fmt::format("tab {} protection {} even {}\n", document.defaultTabStop,
                                       document.protection, document.evenAndOddHeaders);
}

std::string Text(const Blocks& blocks) {
    std::string text;
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
            text += Visible(paragraph->text) + (paragraph->section ? "=\n" : "\n");
        }
        const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
        if (!table) continue;
        for (const TableRow& row : (*table)->rows) {
            for (const TableCell& cell : row.cells) text += "[" + Text(cell.blocks) + "]";
            text += "\n";
        }
    }
    return text;
}

std::string Faults(const Document& document) {
    std::string faults;
    CheckBlocks(document, document.body, faults);
    const auto checkStories = [&](const SectionProperties& section) {
        for (const auto* stories : {&section.headers, &section.footers}) {
            for (const auto& story : *stories) {
                if (story) CheckBlocks(document, story->blocks, faults);
            }
        }
    };
    checkStories(document.lastSection);
    for (const Block& block : document.body) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) checkStories(*paragraph->section);
    }
    return faults;
}

std::string BareDocx::Bytes() const {
    std::string declarations;
    for (const xml::NamespaceName& name : xml::kNamespaces)
        declarations += fmt::format(" {}=\"{}\"", name.declaration, name.uri);
    const auto root = [&](const char* tag, const std::string& content) {
        return fmt::format("<w:{0}{1} mc:Ignorable=\"w14 w15\">{2}</w:{0}>", tag, declarations, content);
    };
    const std::string base(xml::kOfficeRelationships);
    const auto link = [&](const char* id, const char* type, const char* target) {
        return fmt::format(R"(<Relationship Id="{}" Type="{}/{}" Target="{}"/>)", id, base, type, target);
    };
    const auto links = [](const std::string& all) {
        return R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)" +
               all + "</Relationships>";
    };
    Parts parts;
    parts["[Content_Types].xml"] =
        R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
        R"(<Default Extension="rels" )"
        R"(ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
        R"(<Default Extension="xml" ContentType="application/xml"/>)"
        R"(<Default Extension="png" ContentType="image/png"/></Types>)";
    parts["_rels/.rels"] = links(link("rId1", "officeDocument", "word/document.xml"));
    parts["word/document.xml"] = root("document", "<w:body>" + body + "</w:body>");
    std::string own = relationships;
    if (!styles.empty()) own += link("rIdA", "styles", "styles.xml");
    if (!numbering.empty()) own += link("rIdB", "numbering", "numbering.xml");
    if (!settings.empty()) own += link("rIdC", "settings", "settings.xml");
    if (!styles.empty()) parts["word/styles.xml"] = root("styles", styles);
    if (!numbering.empty()) parts["word/numbering.xml"] = root("numbering", numbering);
    if (!settings.empty()) parts["word/settings.xml"] = root("settings", settings);
    if (!extraPartName.empty()) parts[extraPartName] = extraPart;
    parts["word/_rels/document.xml.rels"] = links(own);
    return Zip(parts);
}

std::unique_ptr<Document> BareDocx::Open() const {
    return read::OpenDocxBytes(Bytes(), "form.docx");
}

std::unique_ptr<Document> OpenBody(std::string_view body) {
    return BareDocx{std::string(body)}.Open();
}

}  // namespace quillmark::word::docx::test
