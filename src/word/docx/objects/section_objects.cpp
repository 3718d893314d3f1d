#include "word/docx/objects/section_objects.h"

#include <algorithm>

#include "word/docx/objects/section_footers.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr double kWidestPage = 1584;

struct Paper {
    int number;  ///< the model's
    int width;   ///< twips, upright
    int height;
};

// clang-format off
constexpr Paper kPapers[] = {
    {PaperLetter, 12240, 15840},
    {PaperLegal,  12240, 20160},
};
// clang-format on

constexpr int kCustomPaper = 41;
constexpr int kMostColumns = 45;

int PaperOf(const SectionProperties& section) {
    const auto [width, height] = std::minmax(section.pageWidth, section.pageHeight);
    for (const Paper& paper : kPapers)
        if (paper.width == width && paper.height == height) return paper.number;
    return kCustomPaper;
}

int TextWidth(const SectionProperties& section) {
    return section.pageWidth - section.leftMargin - section.rightMargin - section.gutter;
}

/// What all sections agree on.
template <class Read>
Value CommonOf(SectionTarget& target, const Read& read) {
    const std::vector<SectionProperties*> sections = target.TargetSections();
    Value common = read(*sections.front());
    const bool isMixed = std::any_of(sections.begin(), sections.end(),
                                     [&](SectionProperties* section) { return read(*section) != common; });
    return isMixed ? Whole(kUndefined) : common;
}

template <class Change>
void ChangeSections(SectionTarget& target, const Change& change) {
    for (SectionProperties* section : target.TargetSections()) change(*section);
    target.document().Changed();
}

}  // namespace

int ColumnWidth(const SectionProperties& section) {
    return (TextWidth(section) - (section.columns - 1) * section.columnSpacing) /
           std::max(section.columns, 1);
}

int TextHeight(const SectionProperties& section) {
    return section.pageHeight - section.topMargin - section.bottomMargin;
}

// ---- Columns ----

const MemberTable<TextColumnsObject>& TextColumnsObject::Members() {
    static const MemberTable<TextColumnsObject> members = {
        {"SetCount", nullptr, nullptr,
         [](TextColumnsObject& columns, Arguments arguments) {
             columns.SetCount(arguments);
             return Value();
         }},
        {"Count",
         [](TextColumnsObject& columns, Arguments) {
             return CommonOf(columns.target_, [](const SectionProperties& s) { return Whole(s.columns); });
         }},
        {"Width",
         [](TextColumnsObject& columns, Arguments) {
             return CommonOf(columns.target_,
                             [](const SectionProperties& s) { return PointsOf(ColumnWidth(s)); });
         },
         [](TextColumnsObject& columns, const Value& value) { columns.SetWidth(value); }},
        {"Spacing",
         [](TextColumnsObject& columns, Arguments) {
             return CommonOf(columns.target_,
                             [](const SectionProperties& s) { return PointsOf(s.columnSpacing); });
         },
         [](TextColumnsObject& columns, const Value& value) { columns.SetSpacing(value); }},
    };
    return members;
}

void TextColumnsObject::SetCount(Arguments arguments) {
    const int count = WholeWithin(ArgumentReader(arguments, {"NumColumns"})["NumColumns"], 1, kMostColumns);
    ChangeSections(target_, [&](SectionProperties& section) {
        section.columns = count;
        section.unequalColumns.clear();
    });
}

void TextColumnsObject::SetWidth(const Value& value) {
    const int width = TwipsOf(value, 36, kWidestPage);
    for (SectionProperties* section : target_.TargetSections())
        if (width * section->columns > TextWidth(*section))
            throw AutomationError(error::kBadValue, "The columns are wider than the page's text");
    ChangeSections(target_, [&](SectionProperties& section) {
        section.unequalColumns.clear();
        if (section.columns > 1)
            section.columnSpacing = (TextWidth(section) - section.columns * width) / (section.columns - 1);
    });
}

void TextColumnsObject::SetSpacing(const Value& value) {
    const int spacing = TwipsOf(value, 0, kWidestPage);
    for (SectionProperties* section : target_.TargetSections())
        if (spacing * (section->columns - 1) >= TextWidth(*section))
            throw AutomationError(error::kBadValue, "The spaces leave no room for the columns");
    ChangeSections(target_, [&](SectionProperties& section) {
        section.unequalColumns.clear();
        section.columnSpacing = spacing;
    });
}

// ---- Page set-up ----

template <int SectionProperties::*member>
Member<PageSetupObject> PageSetupObject::Distance(std::string_view name) {
    return {name,
            [](PageSetupObject& page, Arguments) {
                return CommonOf(page.target_, [](const SectionProperties& s) { return PointsOf(s.*member); });
            },
            [](PageSetupObject& page, const Value& value) {
                const int twips = TwipsOf(value, 0, kWidestPage);
                ChangeSections(page.target_, [&](SectionProperties& section) { section.*member = twips; });
            }};
}

const MemberTable<PageSetupObject>& PageSetupObject::Members() {
    static const MemberTable<PageSetupObject> members = {
        Distance<&SectionProperties::leftMargin>("LeftMargin"),
        Distance<&SectionProperties::rightMargin>("RightMargin"),
        Distance<&SectionProperties::topMargin>("TopMargin"),
        Distance<&SectionProperties::bottomMargin>("BottomMargin"),
        Distance<&SectionProperties::headerDistance>("HeaderDistance"),
        Distance<&SectionProperties::footerDistance>("FooterDistance"),
        {"SectionStart",
         [](PageSetupObject& page, Arguments) {
             return CommonOf(page.target_, [](const SectionProperties& s) { return Whole(s.start); });
         },
         [](PageSetupObject& page, const Value& value) {
             const int start = WholeWithin(value, 0, 4);
             ChangeSections(page.target_, [&](SectionProperties& section) { section.start = start; });
         }},
        {"PaperSize",
         [](PageSetupObject& page, Arguments) {
             return CommonOf(page.target_, [](const SectionProperties& s) { return Whole(PaperOf(s)); });
         },
         [](PageSetupObject& page, const Value& value) { page.SetPaperSize(value); }},
        {"TextColumns",
         [](PageSetupObject& page, Arguments) { return Value(page.target_.Keep(page.columns_)); }},
    };
    return members;
}

void PageSetupObject::SetPaperSize(const Value& value) {
    const int number = WholeOf(value);
    const auto paper = std::find_if(std::begin(kPapers), std::end(kPapers),
                                    [&](const Paper& other) { return other.number == number; });
    if (paper == std::end(kPapers)) throw AutomationError(error::kBadValue, "No such paper size");
    ChangeSections(target_, [&](SectionProperties& section) {
        section.pageWidth = section.landscape ? paper->height : paper->width;
        section.pageHeight = section.landscape ? paper->width : paper->height;
    });
}

// ---- Sections ----

const MemberTable<SectionsObject>& SectionsObject::Members() {
    static const MemberTable<SectionsObject> members = {
        {"Count",
         [](SectionsObject& sections, Arguments) {
             return Whole(static_cast<int>(sections.document_.editor().Sections().size()));
         }},
        {"Item", [](SectionsObject& sections, Arguments arguments) { return sections.Item(arguments); }},
    };
    return members;
}

Value SectionsObject::Item(Arguments arguments) {
    const int index = WholeOf(ArgumentReader(arguments, {"Index"})["Index"]);
    const auto& sections = document_.editor().Sections();
    if (index < 1 || index > static_cast<int>(sections.size())) RefuseElement();
    return ObjectPtr(std::make_shared<SectionObject>(document_.Self(), *sections[index - 1]));
}

struct SectionObject::Parts {
    explicit Parts(SectionObject& section) : pageSetup(section), footers(section) {}
    PageSetupObject pageSetup;
    FootersObject footers;
};

SectionObject::SectionObject(std::shared_ptr<OpenDocument> document, SectionProperties& section)
    : document_(std::move(document)), section_(&section), index_(0), parts_(std::make_unique<Parts>(*this)) {
    Index();
}

SectionObject::~SectionObject() = default;

std::size_t SectionObject::Index() const {
    const auto& sections = document_->editor().Sections();
    if (index_ < sections.size() && sections[index_] == section_) return index_;
    const auto found = std::find(sections.begin(), sections.end(), section_);
    if (found == sections.end()) throw AutomationError(error::kObjectDeleted, "Object has been deleted.");
    return index_ = static_cast<std::size_t>(found - sections.begin());
}

void SectionObject::CheckAlive() const {
    document_->CheckAlive();
    Index();
}

const MemberTable<SectionObject>& SectionObject::Members() {
    static const MemberTable<SectionObject> members = {
        {"PageSetup",
         [](SectionObject& section, Arguments) { return Value(section.Share(section.parts_->pageSetup)); }},
        {"Footers",
         [](SectionObject& section, Arguments index) {
             return CollectionOrItem(section.Share(section.parts_->footers), index);
         }},
        {"ProtectedForForms",
         [](SectionObject& section, Arguments) { return Value(section.section_->protectedForForms); },
         [](SectionObject& section, const Value& value) {
             section.section_->protectedForForms = FlagOf(value);
             section.document_->Changed();
         }},
    };
    return members;
}

}  // namespace quillmark::word::docx::objects
