#include "word/docx/document_reader.h"

#include <fmt/format.h>

#include "word/automation.h"
#include "word/docx/parts_names.h"
#include "word/docx/reader_context.h"
#include "word/docx/reader_formats.h"
#include "word/docx/reader_story.h"
#include "word/docx/reader_styles.h"
#include "word/docx/reader_theme.h"
#include "word/docx/zip_reader.h"

namespace quillmark::word::docx {

namespace {

/// Opens one document, part by part.
class DocumentReader {
 public:
    DocumentReader(Package& package, Document& document) : package_(package), context_(package, document) {}

    void Read();

 private:
    std::unique_ptr<XmlTree> PartOfType(std::string_view type);
    std::unique_ptr<XmlTree> TextPart(const std::string& name);
    void ReadTheme();
    void ReadBody();
    SectionProperties ReadSection(const ReadPart& part, pugi::xml_node properties);
    std::unique_ptr<Story> ReadStory(const ReadPart& part, pugi::xml_node reference);
    void KeepPart(std::string_view type);
    void KeepNotes(std::string_view type);

    Package& package_;
    ReadContext context_;
    Theme theme_;
};

std::unique_ptr<XmlTree> DocumentReader::PartOfType(std::string_view type) {
    const PackageLink* link = package_.FindByType(context_.mainPart, type);
    return link && package_.Has(link->target) ? TextPart(link->target) : nullptr;
}

std::unique_ptr<XmlTree> DocumentReader::TextPart(const std::string& name) {
    auto tree = package_.Xml(name);
    theme_.Resolve(tree->root());
    return tree;
}

void DocumentReader::Read() {
    const PackageLink* main = package_.FindByType("", relationship::kMain);
    if (!main || !package_.Has(main->target)) package_.Refuse("holds no document");
    context_.mainPart = main->target;
    ReadTheme();
    if (const auto settings = PartOfType(relationship::kSettings)) ReadSettings(context_, *settings);
    if (const auto numbering = PartOfType(relationship::kNumbering)) ReadNumbering(context_, *numbering);
    const auto styles = PartOfType(relationship::kStyles);
    styles ? ReadStyles(context_, *styles) : UseBuiltInStyles(context_);
    ReadBody();
    if (context_.usesNotes) {
        KeepNotes("footnotes");
        KeepNotes("endnotes");
    }
    if (context_.usesTheme) KeepPart("theme");
}

void DocumentReader::ReadTheme() {
    const PackageLink* link = package_.FindByType(context_.mainPart, "theme");
    if (link && package_.Has(link->target)) theme_ = Theme(package_.Xml(link->target)->root());
}

void DocumentReader::ReadBody() {
    const auto tree = TextPart(context_.mainPart);
    const pugi::xml_node body = tree->root().child("w:body");
    if (!IsNamed(tree->root(), "w:document") || !body) package_.Refuse("is no text document");
    const ReadPart part{context_, *tree, context_.mainPart};
    StoryReader reader(part, [&](pugi::xml_node properties) { return ReadSection(part, properties); });
    context_.document.body = reader.Read(body);
    context_.document.lastSection = ReadSection(part, body.child("w:sectPr"));
}

SectionProperties DocumentReader::ReadSection(const ReadPart& part, pugi::xml_node properties) {
    SectionProperties section = ReadSectionFormat(part, properties);
    for (const pugi::xml_node reference : properties.children()) {
        const bool isHeader = IsNamed(reference, "w:headerReference");
        if (!isHeader && !IsNamed(reference, "w:footerReference")) continue;
        const std::string_view type = Attribute(reference, "w:type");
        const Pages pages = type == "first" ? Pages::First : type == "even" ? Pages::Even : Pages::Primary;
        auto& stories = isHeader ? section.headers : section.footers;
        stories[static_cast<std::size_t>(pages)] = ReadStory(part, reference);
    }
    return section;
}

std::unique_ptr<Story> DocumentReader::ReadStory(const ReadPart& part, pugi::xml_node reference) {
    const PackageLink* link = package_.FindById(part.name, Attribute(reference, "r:id"));
    if (!link || link->external || !package_.Has(link->target)) return nullptr;
    const auto tree = TextPart(link->target);
    auto story = std::make_unique<Story>();
    story->blocks = StoryReader({context_, *tree, link->target}).Read(tree->root());
    return story;
}

void DocumentReader::KeepPart(std::string_view type) {
    if (const PackageLink* link = package_.FindByType(context_.mainPart, type)) {
        context_.relations.Take(context_.mainPart, link->id);
    }
}

/// Notes stay a part of their own, with its names put in order.
void DocumentReader::KeepNotes(std::string_view type) {
    const PackageLink* link = package_.FindByType(context_.mainPart, type);
    const auto id = link ? context_.relations.Take(context_.mainPart, link->id) : std::nullopt;
    if (!id) return;
    const auto tree = TextPart(link->target);
    RenumberLists(context_, tree->root());
    context_.document.relations.at(*id).bytes = tree->Part();
}

}  // namespace

std::unique_ptr<Document> OpenDocxBytes(std::string bytes, const std::string& fileName) {
    ZipReader zip(std::move(bytes), fileName);
    Package package(zip);
    auto document = std::make_unique<Document>();
    DocumentReader(package, *document).Read();
    return document;
}

std::unique_ptr<Document> OpenDocx(const std::filesystem::path& file) {
    return OpenDocxBytes(ReadWholeFile(file), file.string());
}

}  // namespace quillmark::word::docx
