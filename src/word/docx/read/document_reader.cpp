#include "word/docx/read/document_reader.h"

#include <fmt/format.h>

#include "word/docx/read/context.h"
#include "word/docx/read/formats.h"
#include "word/docx/read/review.h"
#include "word/docx/read/story.h"
#include "word/docx/read/styles.h"
#include "word/docx/read/theme.h"
#include "word/docx/xml/names.h"
#include "word/docx/zip/zip_reader.h"
#include "word/seam/automation.h"

namespace quillmark::word::docx::read {

namespace {

/// Opens one document, part by part.
class DocumentReader {
 public:
    DocumentReader(Package& package, Document& document) : package_(package), context_(package, document) {}

    void Read();

 private:
    std::unique_ptr<xml::XmlTree> PartOfType(std::string_view type);
    std::unique_ptr<xml::XmlTree> TextPart(const std::string& name);
    void ReadCommentNumbers();
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

std::unique_ptr<xml::XmlTree> DocumentReader::PartOfType(std::string_view type) {
    const PackageLink* link = package_.FindByType(context_.mainPart, type);
    return link && package_.Has(link->target) ? TextPart(link->target) : nullptr;
}

std::unique_ptr<xml::XmlTree> DocumentReader::TextPart(const std::string& name) {
    auto tree = package_.Xml(name);
    theme_.Resolve(tree->root());
    return tree;
}

void DocumentReader::Read() {
    const PackageLink* main = package_.FindByType("", xml::relationship::kMain);
    if (!main || !package_.Has(main->target)) package_.Refuse("holds no document");
    context_.mainPart = main->target;
    ReadTheme();
    if (const auto settings = PartOfType(xml::relationship::kSettings)) ReadSettings(context_, *settings);
    if (const auto numbering = PartOfType(xml::relationship::kNumbering)) ReadNumbering(context_, *numbering);
    const auto styles = PartOfType(xml::relationship::kStyles);
    styles ? ReadStyles(context_, *styles) : UseBuiltInStyles(context_);
    ReadCommentNumbers();
    ReadBody();
    if (context_.usesNotes) {
        KeepNotes("footnotes");
        KeepNotes("endnotes");
    }
    if (context_.usesComments) KeepNotes("comments");
    if (context_.usesTheme) KeepPart("theme");
}

void DocumentReader::ReadCommentNumbers() {
    const auto comments = PartOfType("comments");
    if (!comments) return;
    for (const pugi::xml_node comment : comments->root().children("w:comment"))
        context_.comments.insert(xml::NumberAttribute(comment, "w:id").value_or(-1));
}

void DocumentReader::ReadTheme() {
    const PackageLink* link = package_.FindByType(context_.mainPart, "theme");
    if (link && package_.Has(link->target)) theme_ = Theme(package_.Xml(link->target)->root());
}

void DocumentReader::ReadBody() {
    const auto tree = TextPart(context_.mainPart);
    const pugi::xml_node body = tree->root().child("w:body");
    if (!xml::IsNamed(tree->root(), "w:document") || !body) package_.Refuse("is no text document");
    const ReadPart part{context_, *tree, context_.mainPart};
    StoryReader reader(part, [&](pugi::xml_node properties) { return ReadSection(part, properties); });
    context_.document.body = reader.Read(body);
    context_.document.lastSection = ReadSection(part, body.child("w:sectPr"));
}

SectionProperties DocumentReader::ReadSection(const ReadPart& part, pugi::xml_node properties) {
    SectionProperties section = ReadSectionFormat(part, properties);
    for (const pugi::xml_node reference : properties.children()) {
        const bool isHeader = xml::IsNamed(reference, "w:headerReference");
        if (!isHeader && !xml::IsNamed(reference, "w:footerReference")) continue;
        const std::string_view type = xml::Attribute(reference, "w:type");
        const Pages pages = type == "first" ? Pages::First : type == "even" ? Pages::Even : Pages::Primary;
        auto& stories = isHeader ? section.headers : section.footers;
        stories[static_cast<std::size_t>(pages)] = ReadStory(part, reference);
    }
    return section;
}

std::unique_ptr<Story> DocumentReader::ReadStory(const ReadPart& part, pugi::xml_node reference) {
    const PackageLink* link = package_.FindById(part.name, xml::Attribute(reference, "r:id"));
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

/// Comments on notes are not kept.
void RemoveCommentMarks(pugi::xml_node element) {
    for (pugi::xml_node child = element.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        IsCommentMark(child.name()) ? (void)element.remove_child(child) : RemoveCommentMarks(child);
        child = next;
    }
}

/// Notes stay a part of their own, with its names put in order.
void DocumentReader::KeepNotes(std::string_view type) {
    const PackageLink* link = package_.FindByType(context_.mainPart, type);
    const auto id = link ? context_.relations.Take(context_.mainPart, link->id) : std::nullopt;
    if (!id) return;
    const auto tree = TextPart(link->target);
    RenumberLists(context_, tree->root());
    RemoveCommentMarks(tree->root());
    context_.document.relations.at(*id).bytes = tree->Part();
}

}  // namespace

std::unique_ptr<Document> OpenDocxBytes(std::string bytes, const std::string& fileName) {
    zip::ZipReader zip(std::move(bytes), fileName);
    Package package(zip);
    auto document = std::make_unique<Document>();
    DocumentReader(package, *document).Read();
    return document;
}

std::unique_ptr<Document> OpenDocx(const std::filesystem::path& file) {
    return OpenDocxBytes(zip::ReadWholeFile(file), file.string());
}

}  // namespace quillmark::word::docx::read
