#include "word/docx/check/content.h"

#include <fmt/format.h>

#include <algorithm>
#include <unordered_map>

#include "word/docx/xml/namespaces.h"
#include "word/docx/xml/text_codes.h"

namespace quillmark::word::docx::check {

namespace {

constexpr int kDeepest = 200;
constexpr int kLargestHalfPoints = 2 * 1638;
constexpr std::size_t kLongestBookmarkName = 40;
constexpr std::size_t kLongestFieldName = 20;

bool MayHoldText(std::string_view element) {
    constexpr std::string_view kHolders[] = {"w:t", "w:delText", "w:instrText", "w:delInstrText",
                                             "w:fldData"};
    return !element.starts_with("w:") || std::ranges::find(kHolders, element) != std::end(kHolders);
}

/// The children of a name, also those that a content control or the like wraps.
void Collect(std::vector<pugi::xml_node>& found, const pugi::xml_node& parent, std::string_view name) {
    for (const pugi::xml_node child : parent.children()) {
        const std::string_view tag = child.name();
        if (tag == name) found.push_back(child);
        if (tag == "w:sdt" || tag == "w:sdtContent" || tag == "w:customXml") Collect(found, child, name);
    }
}

std::vector<pugi::xml_node> Unwrapped(const pugi::xml_node& parent, std::string_view name) {
    std::vector<pugi::xml_node> found;
    Collect(found, parent, name);
    return found;
}

/// Whether the last block is a paragraph.
bool EndsWithParagraph(const pugi::xml_node& story) {
    for (pugi::xml_node last = story.last_child(); last; last = last.previous_sibling()) {
        const std::string_view tag = last.name();
        if (tag == "w:p") return true;
        if (tag == "w:sdt") return EndsWithParagraph(last.child("w:sdtContent"));
        if (tag == "w:tbl" || tag == "w:altChunk") return false;
    }
    return false;
}

int ValueOf(const pugi::xml_node& node, int otherwise) {
    return node.attribute("w:val").as_int(otherwise);
}

class ContentCheck {
 public:
    ContentCheck(PackageFindings& findings, std::string_view part, const std::set<std::string>& relations)
        : findings_(findings), part_(part), relations_(relations) {}

    void Run(const pugi::xml_node& root) {
        Visit(root, 1);
        if (openFields_ > 0) Report("a field has no end");
        for (const std::string& id : openBookmarks_) Report(fmt::format("the bookmark {} has no end", id));
    }

 private:
    using Rule = void (ContentCheck::*)(const pugi::xml_node&);

    void Report(std::string_view sentence) { findings_.Add(part_, sentence); }

    void Visit(const pugi::xml_node& node, int depth) {
        if (depth > kDeepest) return Report("the elements are nested too deeply");
        const std::size_t outerPrefixes = prefixes_.size();
        CheckNames(node);
        const auto rule = Rules().find(node.name());
        if (rule != Rules().end()) (this->*rule->second)(node);
        for (const pugi::xml_node child : node.children()) {
            if (child.type() == pugi::node_element) Visit(child, depth + 1);
            if (child.type() == pugi::node_pcdata) CheckText(node, child);
        }
        prefixes_.resize(outerPrefixes);
    }

    void CheckNames(const pugi::xml_node& node) {
        constexpr std::string_view kDeclaration = "xmlns:";
        for (const pugi::xml_attribute attribute : node.attributes()) {
            const std::string_view name = attribute.name();
            if (name.starts_with(kDeclaration)) prefixes_.push_back(name.substr(kDeclaration.size()));
        }
        CheckPrefix(node.name());
        for (const pugi::xml_attribute attribute : node.attributes()) {
            const std::string_view prefix = xml::PrefixOf(attribute.name());
            CheckPrefix(attribute.name());
            if (prefix == "r" && !relations_.contains(attribute.value())) {
                Report(fmt::format("{} names the relationship {}, which is not there", node.name(),
                                   attribute.value()));
            }
        }
    }

    void CheckPrefix(std::string_view name) {
        const std::string_view prefix = xml::PrefixOf(name);
        if (prefix.empty() || prefix == "xml" || prefix == "xmlns") return;
        if (std::ranges::find(prefixes_, prefix) != prefixes_.end()) return;
        Report(fmt::format("the prefix of {} is not declared", name));
    }

    void CheckText(const pugi::xml_node& parent, const pugi::xml_node& text) {
        const std::string_view value = text.value();
        const bool isBlank = value.find_first_not_of(" \t\r\n") == std::string_view::npos;
        if (!isBlank && !MayHoldText(parent.name())) {
            Report(fmt::format("{} holds the stray text \"{}\"", parent.name(), value));
        }
        if (std::string_view(parent.name()) == "w:t" &&
            value.find_first_of("\t\r\n") != std::string_view::npos) {
            Report(fmt::format("the text \"{}\" holds a raw tab or line end", value));
        }
    }

    void CheckStyle(const pugi::xml_node& node) {
        const std::string_view tag = node.name();
        const std::string_view type = tag == "w:pStyle"   ? "paragraph"
                                      : tag == "w:rStyle" ? "character"
                                                          : "table";
        const std::string id = node.attribute("w:val").value();
        const auto found = findings_.styleTypes.find(id);
        if (found == findings_.styleTypes.end() || found->second != type) {
            Report(fmt::format("{} names the {} style {}, which is not there", tag, type, id));
        }
    }

    void CheckListNumber(const pugi::xml_node& node) {
        const std::string number = node.attribute("w:val").value();
        if (number != "0" && !findings_.lists.contains(number)) {
            Report(fmt::format("a paragraph is in the list {}, which is not there", number));
        }
    }

    void CheckBookmarkStart(const pugi::xml_node& node) {
        const std::string id = node.attribute("w:id").value();
        const std::string name = node.attribute("w:name").value();
        if (!findings_.bookmarkIds.insert(id).second)
            Report(fmt::format("the bookmark id {} is there twice", id));
        if (!findings_.bookmarkNames.insert(xml::SmallLetters(name)).second) {
            Report(fmt::format("the bookmark name {} is there twice", name));
        }
        if (name.empty() || name.size() > kLongestBookmarkName) {
            Report(fmt::format("the bookmark name \"{}\" is empty or too long", name));
        }
        openBookmarks_.insert(id);
    }

    void CheckBookmarkEnd(const pugi::xml_node& node) {
        const std::string id = node.attribute("w:id").value();
        if (openBookmarks_.erase(id) == 0) Report(fmt::format("the bookmark end {} has no start", id));
    }

    void CheckComment(const pugi::xml_node& node) {
        const std::string id = node.attribute("w:id").value();
        if (!findings_.comments.contains(id))
            Report(fmt::format("{} names the comment {}, which is not there", node.name(), id));
    }

    void CheckDeletion(const pugi::xml_node& node) {
        for (const pugi::xml_node child : node.children()) {
            if (std::string_view(child.name()) == "w:t") Report("deleted text is told as text that stands");
            CheckDeletion(child);
        }
    }

    void CheckField(const pugi::xml_node& node) {
        const std::string_view type = node.attribute("w:fldCharType").value();
        if (type == "begin") ++openFields_;
        if (type == "begin") return;
        if (openFields_ == 0)
            return Report(fmt::format("a field has the mark \"{}\" without a beginning", type));
        if (type == "end") --openFields_;
    }

    void CheckFormField(const pugi::xml_node& node) {
        const std::string name = node.child("w:name").attribute("w:val").value();
        if (name.size() > kLongestFieldName) Report(fmt::format("the form field name {} is too long", name));
        if (!name.empty() && !findings_.fieldNames.insert(xml::SmallLetters(name)).second) {
            Report(fmt::format("the form field name {} is there twice", name));
        }
    }

    void CheckDrawing(const pugi::xml_node& node) {
        const std::string id = node.attribute("id").value();
        if (!findings_.drawings.insert(id).second)
            Report(fmt::format("the drawing id {} is there twice", id));
    }

    void CheckSize(const pugi::xml_node& node) {
        if (ValueOf(node, 0) <= kLargestHalfPoints) return;
        Report(fmt::format("the font size of {} half-points is more than a font can have", ValueOf(node, 0)));
    }

    void CheckSection(const pugi::xml_node& node) {
        std::set<std::string> references;
        for (const pugi::xml_node child : node.children()) {
            const std::string_view tag = child.name();
            if (tag != "w:headerReference" && tag != "w:footerReference") continue;
            const std::string reference =
                fmt::format("{} {}", tag, child.attribute("w:type").as_string("default"));
            if (!references.insert(reference).second)
                Report(fmt::format("a section has {} twice", reference));
        }
    }

    void CheckTable(const pugi::xml_node& node) {
        const std::vector<pugi::xml_node> rows = Unwrapped(node, "w:tr");
        if (rows.empty()) Report("a table has no rows");
        const auto columns = node.child("w:tblGrid").children("w:gridCol");
        const auto grid = std::distance(columns.begin(), columns.end());
        for (const pugi::xml_node& row : rows) CheckRow(row, grid);
    }

    void CheckRow(const pugi::xml_node& row, std::ptrdiff_t grid) {
        const pugi::xml_node properties = row.child("w:trPr");
        std::int64_t width =
            ValueOf(properties.child("w:gridBefore"), 0) + ValueOf(properties.child("w:gridAfter"), 0);
        const std::vector<pugi::xml_node> cells = Unwrapped(row, "w:tc");
        for (const pugi::xml_node& cell : cells)
            width += ValueOf(cell.child("w:tcPr").child("w:gridSpan"), 1);
        if (cells.empty()) Report("a row of a table has no cells");
        if (width > grid) Report(fmt::format("a row covers {} columns of a table that has {}", width, grid));
    }

    void CheckCell(const pugi::xml_node& node) {
        if (!EndsWithParagraph(node)) Report("a cell of a table does not end with a paragraph");
    }

    void CheckStory(const pugi::xml_node& node) {
        if (!EndsWithParagraph(node)) Report("the text does not end with a paragraph");
    }

    static const std::unordered_map<std::string_view, Rule>& Rules() {
        // clang-format off
        static const std::unordered_map<std::string_view, Rule> rules = {
            {"w:pStyle",        &ContentCheck::CheckStyle},
            {"w:rStyle",        &ContentCheck::CheckStyle},
            {"w:tblStyle",      &ContentCheck::CheckStyle},
            {"w:numId",         &ContentCheck::CheckListNumber},
            {"w:bookmarkStart", &ContentCheck::CheckBookmarkStart},
            {"w:bookmarkEnd",   &ContentCheck::CheckBookmarkEnd},
            {"w:fldChar",       &ContentCheck::CheckField},
            {"w:del",           &ContentCheck::CheckDeletion},
            {"w:commentReference",  &ContentCheck::CheckComment},
            {"w:commentRangeStart", &ContentCheck::CheckComment},
            {"w:commentRangeEnd",   &ContentCheck::CheckComment},
            {"w:ffData",        &ContentCheck::CheckFormField},
            {"wp:docPr",        &ContentCheck::CheckDrawing},
            {"w:sz",            &ContentCheck::CheckSize},
            {"w:szCs",          &ContentCheck::CheckSize},
            {"w:sectPr",        &ContentCheck::CheckSection},
            {"w:tbl",           &ContentCheck::CheckTable},
            {"w:tc",            &ContentCheck::CheckCell},
            {"w:body",          &ContentCheck::CheckStory},
            {"w:hdr",           &ContentCheck::CheckStory},
            {"w:ftr",           &ContentCheck::CheckStory},
        };
        // clang-format on
        return rules;
    }

    PackageFindings& findings_;
    std::string_view part_;
    const std::set<std::string>& relations_;
    std::vector<std::string_view> prefixes_;
    std::set<std::string> openBookmarks_;
    int openFields_ = 0;
};

}  // namespace

void PackageFindings::Add(std::string_view part, std::string_view sentence) {
    sentences.push_back(fmt::format("{}: {}.", part, sentence));
}

void CheckStyles(PackageFindings& findings, std::string_view part, const pugi::xml_node& root) {
    for (const pugi::xml_node style : root.children("w:style")) {
        const std::string id = style.attribute("w:styleId").value();
        const bool isNew = findings.styleTypes.emplace(id, style.attribute("w:type").value()).second;
        if (!isNew) findings.Add(part, fmt::format("the style {} is there twice", id));
    }
    for (const pugi::xml_node style : root.children("w:style")) {
        for (const char* link : {"w:basedOn", "w:next", "w:link"}) {
            const pugi::xml_node named = style.child(link);
            const std::string id = named.attribute("w:val").value();
            if (!named || findings.styleTypes.contains(id)) continue;
            findings.Add(part, fmt::format("{} of a style names the style {}, which is not there", link, id));
        }
    }
}

void CheckLists(PackageFindings& findings, std::string_view part, const pugi::xml_node& root) {
    std::set<std::string> definitions;
    for (const pugi::xml_node definition : root.children("w:abstractNum")) {
        const std::string id = definition.attribute("w:abstractNumId").value();
        if (!definitions.insert(id).second)
            findings.Add(part, fmt::format("the list definition {} is there twice", id));
    }
    for (const pugi::xml_node list : root.children("w:num")) {
        const std::string number = list.attribute("w:numId").value();
        const std::string definition = list.child("w:abstractNumId").attribute("w:val").value();
        if (!findings.lists.insert(number).second)
            findings.Add(part, fmt::format("the list {} is there twice", number));
        if (!definitions.contains(definition)) {
            findings.Add(part, fmt::format("the list {} has no definition {}", number, definition));
        }
    }
}

void CheckComments(PackageFindings& findings, std::string_view part, const pugi::xml_node& root) {
    for (const pugi::xml_node comment : root.children("w:comment")) {
        const std::string id = comment.attribute("w:id").value();
        if (!findings.comments.insert(id).second)
            findings.Add(part, fmt::format("the comment {} is there twice", id));
    }
}

void CheckContent(PackageFindings& findings, std::string_view part, const pugi::xml_node& root,
                  const std::set<std::string>& relations) {
    ContentCheck(findings, part, relations).Run(root);
}

}  // namespace quillmark::word::docx::check
