#include "word/docx/objects/section_footers.h"

#include "word/docx/model/default_styles.h"
#include "word/docx/model/style_look.h"
#include "word/docx/objects/range.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr int kMostPages = 32766;

/// The three footers in the model's order, with their story types.
struct FooterKind {
    Pages pages;
    int storyType;
};
// clang-format off
constexpr FooterKind kFooters[] = {
    {Pages::Primary, PrimaryFooterStory},
    {Pages::First,   FirstPageFooterStory},
    {Pages::Even,    EvenPagesFooterStory},
};
// clang-format on

}  // namespace

// ---- The collection ----

const MemberTable<FootersObject>& FootersObject::Members() {
    static const MemberTable<FootersObject> members = {
        {"Count", [](FootersObject&, Arguments) { return Whole(std::size(kFooters)); }},
        {"Item", [](FootersObject& footers, Arguments arguments) { return footers.Item(arguments); }},
    };
    return members;
}

Value FootersObject::Item(Arguments arguments) {
    const int index = WholeOf(ArgumentReader(arguments, {"Index"})["Index"]);
    if (index < 1 || index > static_cast<int>(std::size(kFooters))) RefuseElement();
    auto section = std::static_pointer_cast<SectionObject>(section_.shared_from_this());
    return ObjectPtr(std::make_shared<FooterObject>(std::move(section), kFooters[index - 1].pages));
}

// ---- Page numbers ----

class FooterObject::PageNumbers final : public LateBound<PageNumbers> {
 public:
    static constexpr const char* kName = "PageNumbers";
    static const MemberTable<PageNumbers>& Members();

    explicit PageNumbers(SectionObject& section) : section_(section) {}
    void CheckAlive() const { section_.CheckAlive(); }

 private:
    void Start(std::optional<int> number) {
        section_.properties().pageNumberStart = number;
        section_.document().Changed();
    }

    SectionObject& section_;
};

const MemberTable<FooterObject::PageNumbers>& FooterObject::PageNumbers::Members() {
    static const MemberTable<PageNumbers> members = {
        {"RestartNumberingAtSection",
         [](PageNumbers& numbers, Arguments) {
             return Value(numbers.section_.properties().pageNumberStart.has_value());
         },
         [](PageNumbers& numbers, const Value& value) {
             const auto start = numbers.section_.properties().pageNumberStart;
             numbers.Start(FlagOf(value) ? std::optional(start.value_or(1)) : std::nullopt);
         }},
        {"StartingNumber",
         [](PageNumbers& numbers, Arguments) {
             return Whole(numbers.section_.properties().pageNumberStart.value_or(0));
         },
         [](PageNumbers& numbers, const Value& value) { numbers.Start(WholeWithin(value, 0, kMostPages)); }},
    };
    return members;
}

// ---- One footer ----

FooterObject::FooterObject(std::shared_ptr<SectionObject> section, Pages pages)
    : section_(std::move(section)), pages_(pages), pageNumbers_(std::make_unique<PageNumbers>(*section_)) {}

FooterObject::~FooterObject() = default;

const MemberTable<FooterObject>& FooterObject::Members() {
    static const MemberTable<FooterObject> members = {
        {"LinkToPrevious", [](FooterObject& footer, Arguments) { return Value(footer.IsLinked()); },
         [](FooterObject& footer, const Value& value) { footer.Link(FlagOf(value)); }},
        {"PageNumbers",
         [](FooterObject& footer, Arguments) { return Value(footer.Share(*footer.pageNumbers_)); }},
        {"Range", [](FooterObject& footer, Arguments) { return footer.Range(); }},
    };
    return members;
}

std::unique_ptr<Story>& FooterObject::Own() const {
    return section_->properties().footers[static_cast<std::size_t>(pages_)];
}

std::unique_ptr<Story> FooterObject::EmptyStory() const {
    Document& document = section_->document().model();
    Paragraph paragraph;
    if (FindStyle(document, kFooterStyle)) {
        ParaFormat format;
        format.style = FindStyle(document, kFooterStyle)->id;
        paragraph.format = document.paraFormats.Intern(format);
    }
    auto story = std::make_unique<Story>();
    story->blocks.emplace_back(std::move(paragraph));
    return story;
}

Story& FooterObject::Shown() const {
    const auto& sections = section_->document().editor().Sections();
    const auto kind = static_cast<std::size_t>(pages_);
    for (std::size_t i = section_->Index() + 1; i-- > 0;)
        if (sections[i]->footers[kind]) return *sections[i]->footers[kind];
    sections.front()->footers[kind] = EmptyStory();
    return *sections.front()->footers[kind];
}

Value FooterObject::Range() {
    const int storyType = kFooters[static_cast<std::size_t>(pages_)].storyType;
    return ObjectPtr(RangeOver(section_->document(), Shown().blocks, RangeObject::Extent::Story, storyType));
}

bool FooterObject::IsLinked() const {
    return section_->Index() > 0 && !Own();
}

void FooterObject::Link(bool on) {
    OpenDocument& document = section_->document();
    if (on == IsLinked() || section_->Index() == 0) return;
    if (on) {
        document.editor().Abandon(Own()->blocks, edit::Editor::StartOf(document.model().body));
        Own() = nullptr;
    } else {
        auto copy = std::make_unique<Story>();
        copy->blocks = CopyBlocks(Shown().blocks);
        Own() = std::move(copy);
    }
    document.Changed();
}

}  // namespace quillmark::word::docx::objects
