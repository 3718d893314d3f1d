#include "word/docx/write/story.h"

#include <algorithm>

#include "word/docx/xml/text_codes.h"

namespace quillmark::word::docx::write {

namespace {

/// The first character at or after `from` that is no plain text.
std::size_t FindControl(std::string_view text, std::size_t from) {
    constexpr unsigned char kFirstPlain = 0x20;
    for (std::size_t at = from; at < text.size(); ++at) {
        if (static_cast<unsigned char>(text[at]) < kFirstPlain) return at;
    }
    return std::string_view::npos;
}

struct Range {
    std::size_t start = 0;
    std::size_t end = 0;
};

/// The value of the next drawing's id in raw XML.
std::optional<Range> FindDrawingId(std::string_view xml, std::size_t from) {
    constexpr std::string_view kId = " id=";
    for (std::size_t at = xml.find(":docPr ", from); at != std::string_view::npos;
         at = xml.find(":docPr ", at + 1)) {
        const std::size_t id = xml.find(kId, at);
        const std::size_t start = id + kId.size() + 1;
        if (id > xml.find('>', at) || start >= xml.size()) continue;
        const std::size_t end = xml.find(xml[start - 1], start);
        if (end != std::string_view::npos) return Range{start, end};
    }
    return std::nullopt;
}

constexpr std::string_view kPlainControl = "<w:sdt><w:sdtContent/></w:sdt>";

struct ElementTags {
    std::string opening;
    std::string_view closing;
};

/// What begins and ends an element whose XML holds no text.
ElementTags TagsOf(std::string_view xml) {
    constexpr std::string_view kControl = "<w:sdt", kEmptyContent = "<w:sdtContent/></w:sdt>";
    constexpr std::string_view kEnd = "/>";
    if (xml.starts_with(kControl) && xml.ends_with(kEmptyContent)) {
        xml.remove_suffix(kEmptyContent.size());
        return {std::string(xml) + "<w:sdtContent>", "</w:sdtContent></w:sdt>"};
    }
    if (!xml.ends_with(kEnd)) return {};
    xml.remove_suffix(kEnd.size());
    return {std::string(xml) + ">", "</w:ins>"};
}

}  // namespace

std::string_view FormatCache::Run(const StyleUse& use, FormatId format) {
    const auto style = static_cast<std::size_t>(use.style - StyleUse::kAsItIs);
    if (style >= runs_.size()) runs_.resize(style + 1);
    if (format >= runs_[style].size()) runs_[style].resize(document_.charFormats.size());
    std::optional<std::string>& properties = runs_[style][format];
    if (!properties) properties = plan_.RunProperties(use, format);
    return *properties;
}

std::size_t FormatCache::HashOfKey::operator()(const Key& key) const {
    const std::uint64_t formats = std::uint64_t{key.format} << 32 | key.markFormat;
    const auto flags = static_cast<std::uint64_t>(key.use.keepNext) << 2 |
                       static_cast<std::uint64_t>(key.use.keepLines) << 1 | key.use.isGap;
    return std::hash<std::uint64_t>()(formats ^ (static_cast<std::uint64_t>(key.use.style) << 20) ^
                                      flags << 60);
}

std::string_view FormatCache::Paragraph(const StyleUse& use, FormatId format, FormatId markFormat) {
    const auto [place, isNew] = paragraphs_.try_emplace(Key{use, format, markFormat});
    if (isNew) place->second = plan_.ParagraphProperties(use, format, Run(use, markFormat), {});
    return place->second;
}

void StoryWriter::Write(const Blocks& blocks, const SectionElement& section) {
    int depth = 0;
    for (const Block& block : blocks) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
        const Frames* frames = paragraph ? &paragraph->frames : table ? &(*table)->frames : nullptr;
        if (frames) OpenFrames(*frames, depth);
        if (paragraph) WriteParagraph(*paragraph, section);
        if (table) WriteTable(**table);
        if (const auto* raw = std::get_if<RawBlock>(&block)) WriteRaw(raw->xml);
        if (frames) CloseFrames(frames->closes, depth);
    }
    CloseFrames(depth, depth);
    const auto* last = blocks.empty() ? nullptr : std::get_if<Paragraph>(&blocks.back());
    if (!last || (last->section && section)) xml_.Empty("w:p");
}

void StoryWriter::UseRelation(const std::string& id, const Relation& relation) {
    state_.usedRelations.insert(id);
    if (relations_.Has(id)) return;
    const std::string target = relation.external ? relation.target : state_.parts.Foreign(relation);
    relations_.AddAs(id, relation.type, target, relation.external);
}

void StoryWriter::WriteRaw(std::string_view xml) {
    const auto& known = state_.document.relations;
    for (std::size_t start = xml.find('"'); start != std::string_view::npos && !known.empty();) {
        const std::size_t end = xml.find('"', start + 1);
        if (end == std::string_view::npos) break;
        const auto found = known.find(std::string(xml.substr(start + 1, end - start - 1)));
        if (found != known.end()) UseRelation(found->first, found->second);
        start = xml.find('"', end + 1);
    }
    std::size_t done = 0;
    while (const std::optional<Range> id = FindDrawingId(xml, done)) {
        xml_.Raw(xml.substr(done, id->start - done));
        xml_.Raw(std::to_string(state_.nextDrawing++));
        done = id->end;
    }
    xml_.Raw(xml.substr(done));
}

void StoryWriter::WriteParagraph(const Paragraph& paragraph, const SectionElement& section) {
    use_ = state_.plan.UseOf(paragraph);
    xml_.Open("w:p");
    if (paragraph.section && section) {
        xml_.Raw(state_.plan.ParagraphProperties(use_, paragraph.format,
                                                 state_.formats.Run(use_, paragraph.markFormat),
                                                 section(*paragraph.section)));
    } else {
        xml_.Raw(state_.formats.Paragraph(use_, paragraph.format, paragraph.markFormat));
    }
    WriteContent(paragraph);
    xml_.Close();
}

void StoryWriter::WriteContent(const Paragraph& paragraph) {
    objects_ = &paragraph.objects;
    nextObject_ = 0;
    auto anchor = paragraph.anchors.begin();
    const auto writeAnchorsUpTo = [&](std::size_t offset) {
        for (; anchor != paragraph.anchors.end() && anchor->offset <= offset; ++anchor) WriteAnchor(*anchor);
    };
    const std::string_view text = paragraph.text;
    std::size_t at = 0;
    for (const Span& span : paragraph.spans) {
        for (const std::size_t end = at + span.length; at < end;) {
            writeAnchorsUpTo(at);
            const bool anchorInside = anchor != paragraph.anchors.end() && anchor->offset < end;
            const std::size_t stop = anchorInside ? anchor->offset : end;
            WriteCharacters(text.substr(at, stop - at), span.format);
            at = stop;
        }
    }
    writeAnchorsUpTo(std::string_view::npos);
    if (!around_.empty()) CloseAround(around_.front().first);
}

void StoryWriter::WriteCharacters(std::string_view text, FormatId format) {
    for (std::size_t done = 0; done < text.size();) {
        const std::size_t control = FindControl(text, done);
        const std::string_view plain = text.substr(done, control - done);
        if (!plain.empty()) {
            OpenRun(format);
            xml_.Open("w:t");
            xml_.Attribute("xml:space", "preserve");
            xml_.Text(plain);
            xml_.Close();
        }
        if (control == std::string_view::npos) break;
        WriteSpecial(text[control], format);
        done = control + 1;
    }
    CloseRun();
}

void StoryWriter::WriteSpecial(char special, FormatId format) {
    if (special == character::kObject) {
        if (!objects_ || nextObject_ >= objects_->size()) return;
        const InlineObject& object = (*objects_)[nextObject_++];
        if (!std::holds_alternative<Picture>(object)) CloseRun();
        std::visit([&](const auto& alternative) { WriteObject(alternative, format); }, object);
        return;
    }
    OpenRun(format);
    switch (special) {
        case character::kTab:
            return xml_.Empty("w:tab");
        case character::kPageBreak:
            return WriteBreak("page");
        case character::kColumnBreak:
            return WriteBreak("column");
        case character::kLineBreak:
        case '\n':
        case '\r':
            return xml_.Empty("w:br");
        default:
            return;  // no character of a document
    }
}

void StoryWriter::WriteBreak(std::string_view type) {
    xml_.Open("w:br");
    xml_.Attribute("w:type", type);
    xml_.Close();
}

void StoryWriter::WriteAnchor(const Anchor& anchor) {
    if (anchor.kind == Anchor::Kind::Alone) return WriteRaw(anchor.xml);
    if (anchor.kind == Anchor::Kind::Around)
        return anchor.isStart ? OpenAround(anchor) : CloseAround(anchor.id);
    if (anchor.isStart && !TakeBookmarkName(anchor.name)) state_.droppedBookmarks.insert(anchor.id);
    if (state_.droppedBookmarks.contains(anchor.id)) return;
    if (anchor.isStart) WriteBookmarkStart(anchor.id, anchor.name);
    if (!anchor.isStart) WriteBookmarkEnd(anchor.id);
}

void StoryWriter::OpenAround(const Anchor& anchor) {
    const ElementTags tags = TagsOf(anchor.xml);
    WriteRaw(tags.opening);
    around_.emplace_back(anchor.id, tags.closing);
}

/// Closes what stands inside too: an element ends with the paragraph, and with one around it.
void StoryWriter::CloseAround(int id) {
    const auto wanted = std::ranges::find(around_, id, &std::pair<int, std::string_view>::first);
    for (auto left = around_.end() - wanted; left > 0; --left) {
        xml_.Raw(around_.back().second);
        around_.pop_back();
    }
}

void StoryWriter::OpenFrames(const Frames& frames, int& depth) {
    for (const std::string& control : frames.opens) {
        const std::string_view xml = control.empty() ? kPlainControl : std::string_view(control);
        WriteRaw(TagsOf(xml).opening);
        ++depth;
    }
}

void StoryWriter::CloseFrames(int closes, int& depth) {
    for (; closes > 0 && depth > 0; --closes, --depth) xml_.Raw(TagsOf(kPlainControl).closing);
}

bool StoryWriter::TakeBookmarkName(std::string_view name) {
    return state_.bookmarkNames.insert(xml::SmallLetters(name)).second;
}

void StoryWriter::WriteBookmarkStart(int id, std::string_view name) {
    xml_.Open("w:bookmarkStart");
    xml_.Attribute("w:id", id);
    xml_.Attribute("w:name", name);
    xml_.Close();
}

void StoryWriter::WriteBookmarkEnd(int id) {
    xml_.Open("w:bookmarkEnd");
    xml_.Attribute("w:id", id);
    xml_.Close();
}

void StoryWriter::OpenRun(FormatId format) {
    if (inRun_) return;
    xml_.Open("w:r");
    xml_.Raw(state_.formats.Run(use_, format));
    inRun_ = true;
}

void StoryWriter::CloseRun() {
    if (inRun_) xml_.Close();
    inRun_ = false;
}

}  // namespace quillmark::word::docx::write
