#include "word/docx/objects/list_templates.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace quillmark::word::docx::objects {
namespace {

constexpr int kIndentStep = 360;

/// Number formats by the model's numbers; a gap has no number style there.
// clang-format off
struct NumberFormatName {
    int number;
    const char* name;
};
constexpr NumberFormatName kNumberFormats[] = {
    {NumberArabic,          "decimal"},
    {1,                     "upperRoman"},
    {NumberLowercaseRoman,  "lowerRoman"},
    {3,                     "upperLetter"},
    {NumberLowercaseLetter, "lowerLetter"},
    {23,                    "bullet"},
};
constexpr const char* kBullets[] = {"\u2022", "\u25E6", "\u25AA"};
// clang-format on

ListLevelFormat LevelAt(int level) {
    ListLevelFormat format;
    format.text = fmt::format("%{}.", level + 1);
    format.leftIndent = kIndentStep * (level + 1);
    format.firstLine = -kIndentStep;
    return format;
}

}  // namespace

AbstractList NumberedList(int levels) {
    AbstractList list;
    for (int level = 0; level < levels; ++level) list.levels.push_back(LevelAt(level));
    return list;
}

AbstractList BulletedList() {
    AbstractList list = NumberedList(kListLevels);
    for (int level = 0; level < kListLevels; ++level) {
        list.levels[level].numberFormat = "bullet";
        list.levels[level].text = kBullets[level % std::size(kBullets)];
    }
    return list;
}

bool IsBulletedList(const AbstractList& list) {
    return !list.levels.empty() && list.xml.empty() && list.levels.front().text == kBullets[0];
}

// ---- List templates ----

/// One level of a template.
class ListLevelObject final : public LateBound<ListLevelObject> {
 public:
    static constexpr const char* kName = "ListLevel";
    static const MemberTable<ListLevelObject>& Members();

    ListLevelObject(std::shared_ptr<ListTemplateObject> list, int level)
        : list_(std::move(list)), level_(level) {}
    void CheckAlive() const { list_->CheckAlive(); }

 private:
    ListLevelFormat& Format() {
        return list_->document().model().abstractLists[list_->abstractIndex()].levels[level_];
    }
    Value NumberStyle() {
        for (const NumberFormatName& format : kNumberFormats)
            if (Format().numberFormat == format.name) return Whole(format.number);
        return Whole(kUndefined);
    }
    void SetNumberStyle(const Value& value) {
        const int number = WholeOf(value);
        const auto format =
            std::find_if(std::begin(kNumberFormats), std::end(kNumberFormats),
                         [&](const NumberFormatName& other) { return other.number == number; });
        if (format == std::end(kNumberFormats))
            throw AutomationError(error::kBadValue, "No such number style");
        Format().numberFormat = format->name;
        list_->document().Changed();
    }

    std::shared_ptr<ListTemplateObject> list_;
    int level_;
};

const MemberTable<ListLevelObject>& ListLevelObject::Members() {
    static const MemberTable<ListLevelObject> members = {
        {"NumberStyle", [](ListLevelObject& level, Arguments) { return level.NumberStyle(); },
         [](ListLevelObject& level, const Value& value) { level.SetNumberStyle(value); }},
        {"NumberFormat", [](ListLevelObject& level, Arguments) { return Value(level.Format().text); },
         [](ListLevelObject& level, const Value& value) {
             level.Format().text = StringOf(value);
             level.list_->document().Changed();
         }},
    };
    return members;
}

class ListTemplateObject::Levels final : public LateBound<Levels> {
 public:
    static constexpr const char* kName = "ListLevels";
    static const MemberTable<Levels>& Members() {
        static const MemberTable<Levels> members = {
            {"Count", [](Levels& levels, Arguments) { return Whole(levels.Count()); }},
            {"Item", [](Levels& levels, Arguments arguments) { return levels.Item(arguments); }},
        };
        return members;
    }

    explicit Levels(ListTemplateObject& list) : list_(list) {}
    void CheckAlive() const { list_.CheckAlive(); }

 private:
    int Count() const {
        return static_cast<int>(list_.document_->model().abstractLists[list_.abstractIndex_].levels.size());
    }
    Value Item(Arguments arguments) {
        const int index = WholeOf(ArgumentReader(arguments, {"Index"})["Index"]);
        if (index < 1 || index > Count()) RefuseElement();
        auto list = std::static_pointer_cast<ListTemplateObject>(list_.shared_from_this());
        return ObjectPtr(std::make_shared<ListLevelObject>(std::move(list), index - 1));
    }

    ListTemplateObject& list_;
};

ListTemplateObject::ListTemplateObject(std::shared_ptr<OpenDocument> document, int abstractIndex)
    : document_(std::move(document)),
      abstractIndex_(abstractIndex),
      levels_(std::make_unique<Levels>(*this)) {}

ListTemplateObject::~ListTemplateObject() = default;

void ListTemplateObject::CheckAlive() const {
    document_->CheckAlive();
}

const MemberTable<ListTemplateObject>& ListTemplateObject::Members() {
    static const MemberTable<ListTemplateObject> members = {
        {"ListLevels", [](ListTemplateObject& list,
                          Arguments index) { return CollectionOrItem(list.Share(*list.levels_), index); }},
    };
    return members;
}

const MemberTable<ListTemplatesObject>& ListTemplatesObject::Members() {
    static const MemberTable<ListTemplatesObject> members = {
        {"Add", nullptr, nullptr,
         [](ListTemplatesObject& templates, Arguments arguments) { return templates.Add(arguments); }},
        {"Item",
         [](ListTemplatesObject& templates, Arguments arguments) { return templates.Item(arguments); }},
        {"Count",
         [](ListTemplatesObject& templates, Arguments) {
             return Whole(static_cast<int>(templates.document_.model().abstractLists.size()));
         }},
    };
    return members;
}

Value ListTemplatesObject::Add(Arguments arguments) {
    const bool isOutline =
        ArgumentReader(arguments, {"OutlineNumbered", "Name"}).Flag("OutlineNumbered", false);
    auto& lists = document_.model().abstractLists;
    lists.push_back(NumberedList(isOutline ? kListLevels : 1));
    document_.Changed();
    return Template(static_cast<int>(lists.size()) - 1);
}

Value ListTemplatesObject::Item(Arguments arguments) {
    const int index = WholeOf(ArgumentReader(arguments, {"Index"})["Index"]);
    if (index < 1 || index > static_cast<int>(document_.model().abstractLists.size())) RefuseElement();
    return Template(index - 1);
}

Value ListTemplatesObject::Template(int abstractIndex) {
    return ObjectPtr(std::make_shared<ListTemplateObject>(document_.Self(), abstractIndex));
}

}  // namespace quillmark::word::docx::objects
