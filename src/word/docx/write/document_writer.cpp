#include "word/docx/write/document_writer.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

#include "platform/atomic_file.h"
#include "word/docx/write/fixed_parts.h"
#include "word/docx/write/review_ids.h"
#include "word/docx/write/section.h"
#include "word/docx/write/story.h"
#include "word/docx/xml/names.h"
#include "word/seam/automation.h"

namespace quillmark::word::docx::write {

namespace {

constexpr std::string_view kMainPart = "word/document.xml";
constexpr std::string_view kCoreRelationship =
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
constexpr std::string_view kCoreContentType = "application/vnd.openxmlformats-package.core-properties+xml";
constexpr std::string_view kApplicationContentType =
    "application/vnd.openxmlformats-officedocument.extended-properties+xml";

void OpenMainStory(xml::XmlWriter& xml) {
    xml.Declaration();
    xml.Open("w:document");
    for (const xml::NamespaceName& space : xml::kNamespaces) xml.Attribute(space.declaration, space.uri);
    xml.Attribute("mc:Ignorable", xml::kIgnorable);
}

/// A header or footer around its content. There may be many of them, so each declares what it uses and no
/// more.
std::string SmallStory(std::string_view tag, const std::string& content) {
    const auto uses = [&](std::string_view prefix) {
        return content.find(fmt::format("{}:", prefix)) != std::string::npos;
    };
    const bool hasExtensions = std::ranges::any_of(xml::kIgnorablePrefixes, uses);
    xml::XmlWriter xml;
    xml.Declaration();
    xml.Open(tag);
    for (const xml::NamespaceName& space : xml::kNamespaces) {
        const std::string_view prefix = space.declaration.substr(std::string_view("xmlns:").size());
        if (hasExtensions || uses(prefix)) xml.Attribute(space.declaration, space.uri);
    }
    if (hasExtensions) xml.Attribute("mc:Ignorable", xml::kIgnorable);
    xml.Raw(content);
    xml.Close();
    return xml.Take();
}

bool IsEmpty(const Story& story) {
    if (story.blocks.size() != 1) return false;
    const auto* paragraph = std::get_if<Paragraph>(&story.blocks.front());
    return paragraph && paragraph->text.empty() && paragraph->anchors.empty();
}

/// Room for the text, its escapes and a run around every span, so that the buffer seldom grows.
std::size_t ExpectedSize(const Blocks& blocks) {
    constexpr std::size_t kPerBlock = 256, kPerSpan = 192;
    std::size_t size = kPerBlock;
    for (const Block& block : blocks) {
        size += kPerBlock;
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph) size += paragraph->text.size() + paragraph->spans.size() * kPerSpan;
    }
    return size;
}

std::string ContentType(std::string_view kind) {
    return fmt::format("{}{}+xml", xml::kWordContentType, kind);
}

class PackageWriter {
 public:
    explicit PackageWriter(const Document& document)
        : document_(document),
          state_(document),
          main_(state_.parts.Reserve(kMainPart), document.relations),
          package_("", noForeignIds_) {}

    std::string Write() {
        package_.Add(xml::relationship::kMain, main_.source());
        std::string body = WriteBody();
        AddImplicitRelations();
        AddFixedParts();
        AddPropertyParts();
        state_.parts.Put(main_.source(), std::string(xml::kMainContentType), std::move(body), main_);
        return state_.parts.Zip(package_);
    }

 private:
    std::string WriteBody() {
        xml::XmlWriter xml(ExpectedSize(document_.body));
        OpenMainStory(xml);
        xml.Open("w:body");
        StoryWriter story(state_, main_, xml);
        story.Write(document_.body, [this](const SectionProperties& section) { return Section(section); });
        xml.Raw(Section(document_.lastSection));
        xml.Close();
        xml.Close();
        std::string part = xml.Take();
        NumberReviews(part, nextReview_);
        return part;
    }

    std::string Section(const SectionProperties& section) {
        std::vector<StoryReference> references;
        for (const Pages pages : {Pages::Even, Pages::Primary, Pages::First}) {
            AddStory(references, section, true, pages);
            AddStory(references, section, false, pages);
        }
        std::string xml = SectionProperty(section, before_, references);
        before_ = &section;
        return xml;
    }

    /// An empty story that no page shows is not worth a part, unless it hides one of a section before it.
    bool IsNeeded(const SectionProperties& section, const Story& story, bool isHeader, Pages pages) const {
        if (pages == Pages::Primary || !IsEmpty(story)) return true;
        if (hasText_[isHeader][static_cast<std::size_t>(pages)]) return true;
        return pages == Pages::First ? section.titlePage : document_.evenAndOddHeaders;
    }

    void AddStory(std::vector<StoryReference>& references, const SectionProperties& section, bool isHeader,
                  Pages pages) {
        const auto index = static_cast<std::size_t>(pages);
        const auto& story = isHeader ? section.headers[index] : section.footers[index];
        if (!story || !IsNeeded(section, *story, isHeader, pages)) return;
        hasText_[isHeader][index] = hasText_[isHeader][index] || !IsEmpty(*story);
        const std::string_view kind = isHeader ? xml::relationship::kHeader : xml::relationship::kFooter;
        const std::string name =
            state_.parts.Reserve(fmt::format("word/{}{}.xml", kind, ++storyCount_[isHeader]));
        PartRelations relations(name, document_.relations);
        xml::XmlWriter content;
        StoryWriter(state_, relations, content).Write(story->blocks);
        std::string part = SmallStory(isHeader ? "w:hdr" : "w:ftr", content.Take());
        NumberReviews(part, nextReview_);
        state_.parts.Put(name, ContentType(kind), std::move(part), relations);
        references.push_back({isHeader, pages, main_.Add(kind, name)});
    }

    /// Relationships that no raw XML names lead to parts that a document has once, such as its footnotes.
    void AddImplicitRelations() {
        for (const auto& [id, relation] : document_.relations) {
            if (state_.usedRelations.contains(id)) continue;
            const std::string target = relation.external ? relation.target : state_.parts.Foreign(relation);
            main_.AddAs(id, relation.type, target, relation.external);
        }
    }

    void AddFixed(std::string_view kind, std::string_view name, std::string xml) {
        const std::string part = state_.parts.Reserve(name);
        main_.Add(kind, part);
        state_.parts.Put(part, ContentType(kind), std::move(xml));
    }

    void AddFixedParts() {
        AddFixed(xml::relationship::kStyles, "word/styles.xml", StylesPart(document_, state_.plan.Styles()));
        AddFixed(xml::relationship::kSettings, "word/settings.xml", SettingsPart(document_));
        if (!document_.lists.empty()) {
            AddFixed(xml::relationship::kNumbering, "word/numbering.xml", NumberingPart(document_));
        }
        AddFixed(xml::relationship::kFonts, "word/fontTable.xml", FontsPart(document_));
    }

    void AddPropertyParts() {
        const std::string core = state_.parts.Reserve("docProps/core.xml");
        package_.Add(kCoreRelationship, core);
        state_.parts.Put(core, std::string(kCoreContentType), CorePropertiesPart(document_.properties));
        const std::string application = state_.parts.Reserve("docProps/app.xml");
        package_.Add("extended-properties", application);
        state_.parts.Put(application, std::string(kApplicationContentType), ApplicationPropertiesPart());
    }

    const Document& document_;
    const std::map<std::string, Relation> noForeignIds_;
    PackageState state_;
    PartRelations main_;
    PartRelations package_;
    const SectionProperties* before_ = nullptr;
    int storyCount_[2] = {};
    int nextReview_ = 1;
    bool hasText_[2][3] = {};
};

int NumberOf(FileError::Kind kind) {
    switch (kind) {
        case FileError::Kind::NotFound:
            return error::kPathNotFound;
        case FileError::Kind::DiskFull:
            return error::kDiskFull;
        default:
            return error::kPermissionDenied;
    }
}

}  // namespace

std::string WriteDocx(const Document& document) {
    try {
        return PackageWriter(document).Write();
    } catch (const std::length_error& tooLarge) {
        throw AutomationError(error::kBadValue,
                              fmt::format("The document cannot be saved: {}.", tooLarge.what()));
    }
}

void SaveDocx(const Document& document, const std::filesystem::path& file) {
    const std::string bytes = WriteDocx(document);
    try {
        ReplaceFile(file, bytes);
    } catch (const FileError& failure) {
        throw AutomationError(NumberOf(failure.kind), failure.what());
    }
}

}  // namespace quillmark::word::docx::write
