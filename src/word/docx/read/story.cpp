#include "word/docx/read/story.h"

#include <algorithm>

#include "word/docx/model/pieces.h"
#include "word/docx/read/fields.h"
#include "word/docx/read/formats.h"
#include "word/docx/read/review.h"

namespace quillmark::word::docx::read {

namespace {

/// Containers that only say something about the blocks in them.
constexpr std::string_view kTransparent[] = {"w:customXml", "w:smartTag", "w:ins", "w:moveTo"};
constexpr std::size_t kLongestBookmarkName = 40;
/// Where the author typed last: of no use to anyone else.
constexpr std::string_view kLastEditBookmark = "_GoBack";

bool IsTransparent(std::string_view name) {
    return std::ranges::find(kTransparent, name) != std::end(kTransparent);
}

/// Null for a block that has none.
Frames* FramesOf(Block& block) {
    if (auto* paragraph = std::get_if<Paragraph>(&block)) return &paragraph->frames;
    auto* table = std::get_if<std::unique_ptr<Table>>(&block);
    return table ? &(*table)->frames : nullptr;
}

template <class Function>
void ForParagraphs(Blocks& blocks, const Function& function) {
    for (Block& block : blocks) {
        if (auto* paragraph = std::get_if<Paragraph>(&block)) function(*paragraph);
        const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
        if (!table) continue;
        for (TableRow& row : (*table)->rows) {
            for (TableCell& cell : row.cells) ForParagraphs(cell.blocks, function);
        }
    }
}

}  // namespace

Blocks StoryReader::Read(pugi::xml_node container) {
    Blocks blocks = ReadContainer(container);
    const auto isOpen = [&](const Anchor& anchor) {
        return anchor.kind == Anchor::Kind::Bookmark && !closedBookmarks_.contains(anchor.id);
    };
    ForParagraphs(blocks, [&](Paragraph& paragraph) {
        std::erase_if(paragraph.anchors, isOpen);
        CollapseFormFields(paragraph);
    });
    return blocks;
}

Blocks StoryReader::ReadContainer(pugi::xml_node container) {
    Blocks blocks;
    ReadBlocks(container, blocks);
    if (blocks.empty() || !std::holds_alternative<Paragraph>(blocks.back())) blocks.emplace_back(Paragraph{});
    Paragraph& last = std::get<Paragraph>(blocks.back());
    for (Anchor& anchor : std::exchange(pendingAnchors_, {})) {
        anchor.offset = last.text.size();
        last.anchors.push_back(std::move(anchor));
    }
    BalanceFields(blocks);
    return blocks;
}

void StoryReader::ReadBlocks(pugi::xml_node parent, Blocks& blocks) {
    for (const pugi::xml_node child : parent.children()) {
        const std::string_view name = child.name();
        if (name == "w:p") {
            ReadParagraph(child, blocks);
        } else if (name == "w:tbl") {
            if (auto table = ReadTable(child)) blocks.emplace_back(std::move(table));
        } else if (name == "w:sdt") {
            ReadControl(child, blocks);
        } else if (IsTransparent(name)) {
            ReadBlocks(child, blocks);
        } else if (name == "w:bookmarkStart" || name == "w:bookmarkEnd") {
            ReadBookmark(child, pendingAnchors_, 0);
        } else if (IsCommentMark(name)) {
            ReadAlone(part_.Keep(child), pendingAnchors_, 0);
        } else if (name == "w:altChunk") {
            if (std::string xml = part_.Keep(child); !xml.empty())
                blocks.emplace_back(RawBlock{std::move(xml)});
        }
    }
}

void StoryReader::ReadControl(pugi::xml_node control, Blocks& blocks) {
    const auto before = blocks.empty() ? blocks.end() : std::prev(blocks.end());
    ReadBlocks(ContentOf(control), blocks);
    const auto begin = before == blocks.end() ? blocks.begin() : std::next(before);
    if (begin == blocks.end()) return;
    Frames* first = FramesOf(*begin);
    Frames* last = FramesOf(blocks.back());
    if (first && last) Frame(control, *first, *last);
}

void StoryReader::Frame(pugi::xml_node control, Frames& first, Frames& last) {
    std::string shell = ShellOf(part_, control);
    if (shell.empty()) return;
    first.opens.insert(first.opens.begin(), std::move(shell));
    ++last.closes;
}

void StoryReader::ReadAlone(std::string xml, std::vector<Anchor>& anchors, std::size_t offset) {
    if (xml.empty()) return;
    const int id = part_.context.document.nextBookmarkId++;
    anchors.push_back({offset, true, id, {}, Anchor::Kind::Alone, std::move(xml)});
}

void StoryReader::ReadParagraph(pugi::xml_node node, Blocks& blocks) {
    const pugi::xml_node properties = node.child("w:pPr");
    growing_ = {};
    growing_.paragraph.anchors = std::exchange(pendingAnchors_, {});
    ReadInlines(node);
    Document& document = part_.context.document;
    growing_.paragraph.format = document.paraFormats.Intern(ReadParaFormat(part_, properties));
    growing_.paragraph.markFormat = FormatOf(properties.child("w:rPr"));
    const pugi::xml_node section = properties.child("w:sectPr");
    if (section && readSection_ && tableDepth_ == 0) {
        growing_.paragraph.section = std::make_unique<SectionProperties>(readSection_(section));
    }
    blocks.emplace_back(std::move(growing_.paragraph));
}

void StoryReader::ReadBookmark(pugi::xml_node node, std::vector<Anchor>& anchors, std::size_t offset) {
    const int fileId = xml::NumberAttribute(node, "w:id").value_or(0);
    const bool isStart = xml::IsNamed(node, "w:bookmarkStart");
    Anchor anchor{offset, isStart, 0, isStart ? std::string(xml::Attribute(node, "w:name")) : std::string()};
    const auto open = openBookmarks_.find(fileId);
    if (isStart) {
        const bool fits = !anchor.name.empty() && anchor.name.size() <= kLongestBookmarkName;
        if (!fits || anchor.name == kLastEditBookmark || open != openBookmarks_.end()) return;
        anchor.id = part_.context.document.nextBookmarkId++;
        openBookmarks_.emplace(fileId, anchor.id);
    } else {
        if (open == openBookmarks_.end()) return;
        anchor.id = open->second;
        closedBookmarks_.insert(anchor.id);
        openBookmarks_.erase(open);
    }
    anchors.push_back(std::move(anchor));
}

}  // namespace quillmark::word::docx::read
