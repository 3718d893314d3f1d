#include <fmt/format.h>

#include <algorithm>

#include "word/docx/read/formats.h"
#include "word/docx/read/review.h"
#include "word/docx/read/story.h"

/// Runs and what stands between them in a paragraph.
namespace quillmark::word::docx::read {

namespace {

// clang-format off
constexpr std::string_view kTransparent[] = {
    "w:customXml", "w:smartTag", "w:dir", "w:bdo",
};
/// Children of a run that the engine does not edit. The hyphens among them are no letters: a font may lack
/// the characters of these meanings.
constexpr std::string_view kRawChildren[] = {
    "w:drawing", "w:pict", "w:object", "mc:AlternateContent", "w:ruby", "w:sym", "w:ptab", "w:pgNum",
    "w:noBreakHyphen", "w:softHyphen", "w:footnoteReference", "w:endnoteReference", "w:footnoteRef",
    "w:endnoteRef", "w:separator", "w:continuationSeparator", "w:dayShort", "w:dayLong", "w:monthShort",
    "w:monthLong", "w:yearShort", "w:yearLong",
};
// clang-format on

template <std::size_t N>
bool IsAmong(const std::string_view (&names)[N], std::string_view name) {
    return std::ranges::find(names, name) != std::end(names);
}

/// The attribute holds for all that is within its element.
bool KeepsSpace(pugi::xml_node node) {
    for (; node; node = node.parent()) {
        if (const pugi::xml_attribute space = node.attribute("xml:space")) {
            return std::string_view(space.value()) == "preserve";
        }
    }
    return false;
}

/// White space at the ends counts only where the file says so; line ends and tabs in a text are blanks.
std::string TextOf(pugi::xml_node node) {
    std::string text;
    for (const pugi::xml_node child : node.children()) text += child.value();
    std::ranges::replace_if(
        text, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    const bool hasSpace = text.starts_with(' ') || text.ends_with(' ');
    if (!hasSpace || KeepsSpace(node)) return text;
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

char BreakOf(pugi::xml_node node) {
    const std::string_view type = xml::Attribute(node, "w:type");
    if (type == "page") return character::kPageBreak;
    return type == "column" ? character::kColumnBreak : character::kLineBreak;
}

/// A text as a field's instruction quotes it.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

}  // namespace

FormatId StoryReader::FormatOf(pugi::xml_node runProperties) {
    if (!runProperties.first_child()) return 0;
    return part_.context.document.charFormats.Intern(ReadCharFormat(part_, runProperties));
}

FormatId StoryReader::FirstFormat(pugi::xml_node content) {
    return FormatOf(content.child("w:r").child("w:rPr"));
}

void StoryReader::ReadInlines(pugi::xml_node parent) {
    GrowingParagraph& growing = growing_;
    for (const pugi::xml_node child : parent.children()) {
        const std::string_view name = child.name();
        if (name == "w:r") {
            ReadRun(child);
        } else if (name == "w:hyperlink") {
            ReadHyperlink(child);
        } else if (name == "w:fldSimple") {
            WrapInField(std::string(xml::Attribute(child, "w:instr")), child);
        } else if (IsAroundText(name)) {
            ReadAround(child);
        } else if (IsDeletion(name)) {
            ReadAlone(DeletionOf(part_, child), growing.paragraph.anchors, growing.paragraph.text.size());
        } else if (IsCommentMark(name)) {
            ReadAlone(part_.Keep(child), growing.paragraph.anchors, growing.paragraph.text.size());
        } else if (IsAmong(kTransparent, name)) {
            ReadInlines(child);
        } else if (name == "w:bookmarkStart" || name == "w:bookmarkEnd") {
            ReadBookmark(child, growing.paragraph.anchors, growing.paragraph.text.size());
        } else if (name == "m:oMath" || name == "m:oMathPara") {
            if (std::string xml = part_.Keep(child); !xml.empty())
                growing.Object(RawInline{std::move(xml)}, 0);
        }
    }
}

void StoryReader::ReadAround(pugi::xml_node element) {
    std::string shell = ShellOf(part_, element);
    const int id = part_.context.document.nextBookmarkId++;
    const auto put = [&](bool isStart, std::string xml) {
        if (shell.empty()) return;
        growing_.paragraph.anchors.push_back(
            {growing_.paragraph.text.size(), isStart, id, {}, Anchor::Kind::Around, std::move(xml)});
    };
    put(true, shell);
    ReadInlines(ContentOf(element));
    put(false, {});
}

void StoryReader::ReadRun(pugi::xml_node run) {
    const FormatId format = FormatOf(run.child("w:rPr"));
    for (const pugi::xml_node child : run.children()) {
        if (child.type() == pugi::node_element) ReadRunChild(run, child, format);
    }
}

void StoryReader::ReadRunChild(pugi::xml_node run, pugi::xml_node child, FormatId format) {
    const std::string_view name = child.name();
    if (name == "w:t") {
        growing_.Text(TextOf(child), format);
    } else if (name == "w:tab") {
        growing_.Text({&character::kTab, 1}, format);
    } else if (name == "w:br" || name == "w:cr") {
        const char mark = BreakOf(child);
        growing_.Text({&mark, 1}, format);
    } else if (name == "w:fldChar") {
        ReadFieldMark(child, format);
    } else if (name == "w:instrText") {
        growing_.Object(FieldInstruction{child.text().get()}, format);
    } else if (IsCommentMark(name)) {
        ReadAlone(InRun(run, child), growing_.paragraph.anchors, growing_.paragraph.text.size());
    } else if (IsAmong(kRawChildren, name)) {
        auto picture = name == "w:drawing" ? ReadPlainPicture(part_, child) : std::nullopt;
        if (picture) growing_.Object(std::move(*picture), format);
        std::string raw = picture ? std::string() : InRun(run, child);
        if (!raw.empty()) growing_.Object(RawInline{std::move(raw)}, format);
    }
}

/// The child in a run of its own, with the run's look.
std::string StoryReader::InRun(pugi::xml_node run, pugi::xml_node child) const {
    const std::string xml = part_.Keep(child);
    if (xml.empty()) return {};
    const pugi::xml_node properties = run.child("w:rPr");
    const std::string look = properties ? part_.Keep(properties) : std::string();
    return fmt::format("<w:r>{}{}</w:r>", look, xml);
}

void StoryReader::ReadFieldMark(pugi::xml_node mark, FormatId format) {
    const std::string_view type = xml::Attribute(mark, "w:fldCharType");
    if (type == "begin") {
        const pugi::xml_node data = mark.child("w:ffData");
        const bool dirty = xml::IsOnText(xml::Attribute(mark, "w:dirty"), false);
        growing_.Object(FieldBegin{data ? part_.Keep(data) : std::string(), dirty}, format);
    }
    if (type == "separate") growing_.Object(FieldSeparator{}, format);
    if (type == "end") growing_.Object(FieldEnd{}, format);
}

void StoryReader::WrapInField(const std::string& instruction, pugi::xml_node content) {
    const FormatId format = FirstFormat(content);
    growing_.Object(FieldBegin{}, format);
    growing_.Object(FieldInstruction{instruction}, format);
    growing_.Object(FieldSeparator{}, format);
    ReadInlines(content);
    growing_.Object(FieldEnd{}, format);
}

void StoryReader::ReadHyperlink(pugi::xml_node link) {
    const PackageLink* target = part_.context.package.FindById(part_.name, xml::Attribute(link, "r:id"));
    const std::string_view anchor = xml::Attribute(link, "w:anchor");
    const std::string_view tip = xml::Attribute(link, "w:tooltip");
    std::string instruction = " HYPERLINK ";
    if (target && !target->target.empty()) instruction += Quoted(target->target) + " ";
    if (!anchor.empty()) instruction += "\\l " + Quoted(anchor) + " ";
    if (!tip.empty()) instruction += "\\o " + Quoted(tip) + " ";
    const bool leads = target || !anchor.empty();
    if (leads && link.first_child()) WrapInField(instruction, link);
    if (!leads) ReadInlines(link);
}

}  // namespace quillmark::word::docx::read
