#include "word/docx/objects/paragraphs.h"

#include <algorithm>

#include "word/docx/edit/stretch.h"
#include "word/docx/model/style_look.h"
#include "word/docx/objects/open_document.h"

namespace quillmark::word::docx::objects {
namespace {

using ParaMember = std::optional<int> ParaFormat::*;

constexpr double kLongestDistance = 1584;

/// The value that all paragraphs of the text share, completed by their lists and styles.
std::optional<int> Common(TextTarget& target, ParaMember member) {
    std::optional<int> common;
    bool isMixed = false;
    const Document& document = target.document().model();
    target.ForEachParagraph([&](Paragraph& paragraph) {
        const int value = *(EffectiveParagraph(document, document.paraFormats[paragraph.format]).*member);
        isMixed = isMixed || (common && *common != value);
        common = value;
    });
    return isMixed ? std::nullopt : common;
}

template <class Change>
void ChangeAll(TextTarget& target, const Change& change) {
    target.RequireEditable();
    OpenDocument& document = target.document();
    target.ForEachParagraph(
        [&](Paragraph& paragraph) { edit::ChangeParagraph(document.model(), paragraph, change); });
    document.Changed();
}

Value PointsOrUndefined(const std::optional<int>& twips) {
    return twips ? PointsOf(*twips) : Whole(kUndefined);
}

template <class T, ParaMember member, int least>
Member<T> Distance(std::string_view name) {
    return {name, [](T& owner, Arguments) { return PointsOrUndefined(Common(owner.target(), member)); },
            [](T& owner, const Value& value) {
                const int twips = TwipsOf(value, least, kLongestDistance);
                ChangeAll(owner.target(), [&](ParaFormat& format) { format.*member = twips; });
            }};
}

TabStop StopOf(const ArgumentReader& reader) {
    static constexpr const char* kAlignments[] = {"left", "center", "right", "decimal", "bar"};
    static constexpr const char* kLeaders[] = {"", "dot", "hyphen", "underscore", "heavy", "middleDot"};
    TabStop stop;
    stop.position = TwipsOf(reader["Position"], -kLongestDistance, kLongestDistance);
    if (const Value* alignment = reader.Find("Alignment"))
        stop.alignment = kAlignments[WholeWithin(*alignment, 0, 4)];
    if (const Value* leader = reader.Find("Leader")) stop.leader = kLeaders[WholeWithin(*leader, 0, 5)];
    return stop;
}

void EraseStop(ParaFormat& format, int position) {
    std::erase_if(format.tabs, [&](const TabStop& stop) { return stop.position == position; });
}

void PutStop(ParaFormat& format, TabStop stop) {
    EraseStop(format, stop.position);
    const auto place = std::find_if(format.tabs.begin(), format.tabs.end(),
                                    [&](const TabStop& other) { return other.position > stop.position; });
    format.tabs.insert(place, std::move(stop));
}

void TakeStop(const Document& document, ParaFormat& format, int position) {
    EraseStop(format, position);
    if (StyleHasTabStop(document, format, position)) PutStop(format, {position, "clear", ""});
}

/// The stops of the text's first paragraph, those of its style included.
std::vector<TabStop> StopsOf(TextTarget& target) {
    std::optional<std::vector<TabStop>> stops;
    const Document& document = target.document().model();
    target.ForEachParagraph([&](Paragraph& paragraph) {
        if (!stops) stops = EffectiveParagraph(document, document.paraFormats[paragraph.format]).tabs;
    });
    return stops.value_or(std::vector<TabStop>());
}

/// One stop, known by its position.
class TabStopObject final : public LateBound<TabStopObject> {
 public:
    static constexpr const char* kName = "TabStop";
    static const MemberTable<TabStopObject>& Members() {
        static const MemberTable<TabStopObject> members = {
            {"Position", [](TabStopObject& stop, Arguments) { return PointsOf(stop.position_); }},
            {"Clear", nullptr, nullptr,
             [](TabStopObject& stop, Arguments arguments) {
                 ExpectNoArguments(arguments);
                 stop.Clear();
                 return Value();
             }},
        };
        return members;
    }

    TabStopObject(TextTarget& target, ObjectPtr owner, int position)
        : target_(target), owner_(std::move(owner)), position_(position) {}
    void CheckAlive() const { target_.document().CheckAlive(); }

 private:
    void Clear() {
        const Document& document = target_.document().model();
        ChangeAll(target_, [&](ParaFormat& format) { TakeStop(document, format, position_); });
    }

    TextTarget& target_;
    ObjectPtr owner_;
    int position_;
};

}  // namespace

void SetLineSpacing(ParaFormat& format, int twips) {
    format.line = twips;
    if (twips > 0) return;
    format.line = 240;
    format.lineRule = LineRule::Auto;
}

// ---- ParagraphFormat ----

const MemberTable<ParagraphFormatObject>& ParagraphFormatObject::Members() {
    static const MemberTable<ParagraphFormatObject> members = {
        {"Alignment",
         [](ParagraphFormatObject& format, Arguments) {
             return Whole(Common(format.target_, &ParaFormat::alignment).value_or(kUndefined));
         },
         [](ParagraphFormatObject& owner, const Value& value) {
             const int alignment = WholeWithin(value, AlignLeft, AlignJustified);
             ChangeAll(owner.target_, [&](ParaFormat& format) { format.alignment = alignment; });
         }},
        Distance<ParagraphFormatObject, &ParaFormat::spaceAfter, 0>("SpaceAfter"),
    };
    return members;
}

void ParagraphFormatObject::CheckAlive() const {
    target_.document().CheckAlive();
}

// ---- Paragraphs ----

const MemberTable<ParagraphsObject>& ParagraphsObject::Members() {
    static const MemberTable<ParagraphsObject> members = {
        Distance<ParagraphsObject, &ParaFormat::spaceBefore, 0>("SpaceBefore"),
        Distance<ParagraphsObject, &ParaFormat::spaceAfter, 0>("SpaceAfter"),
        Distance<ParagraphsObject, &ParaFormat::leftIndent, -1584>("LeftIndent"),
        Distance<ParagraphsObject, &ParaFormat::rightIndent, -1584>("RightIndent"),
        {"LineSpacing",
         [](ParagraphsObject& paragraphs, Arguments) {
             return PointsOrUndefined(Common(paragraphs.target_, &ParaFormat::line));
         },
         [](ParagraphsObject& paragraphs, const Value& value) {
             const int twips = TwipsOf(value, 0, kLongestDistance);
             const Document& document = paragraphs.target_.document().model();
             ChangeAll(paragraphs.target_, [&](ParaFormat& format) {
                 if (!format.line) format.lineRule = EffectiveParagraph(document, format).lineRule;
                 SetLineSpacing(format, twips);
             });
         }},
        {"TabStops",
         [](ParagraphsObject& paragraphs, Arguments index) {
             return CollectionOrItem(paragraphs.target_.Keep(paragraphs.tabStops_), index);
         }},
        {"Indent", nullptr, nullptr,
         [](ParagraphsObject& paragraphs, Arguments arguments) {
             ExpectNoArguments(arguments);
             paragraphs.MoveIndent(1);
             return Value();
         }},
        {"Outdent", nullptr, nullptr,
         [](ParagraphsObject& paragraphs, Arguments arguments) {
             ExpectNoArguments(arguments);
             paragraphs.MoveIndent(-1);
             return Value();
         }},
    };
    return members;
}

void ParagraphsObject::CheckAlive() const {
    target_.document().CheckAlive();
}

void ParagraphsObject::MoveIndent(int direction) {
    const Document& document = target_.document().model();
    const int step = std::max(document.defaultTabStop, 1);
    ChangeAll(target_, [&](ParaFormat& format) {
        const int left = std::max(*EffectiveParagraph(document, format).leftIndent, 0);
        const int stops = direction > 0 ? left / step + 1 : (left + step - 1) / step - 1;
        format.leftIndent = std::max(stops, 0) * step;
    });
}

// ---- TabStops ----

const MemberTable<TabStopsObject>& TabStopsObject::Members() {
    static const MemberTable<TabStopsObject> members = {
        {"Add", nullptr, nullptr,
         [](TabStopsObject& stops, Arguments arguments) {
             stops.Add(arguments);
             return Value();
         }},
        {"ClearAll", nullptr, nullptr,
         [](TabStopsObject& stops, Arguments arguments) {
             ExpectNoArguments(arguments);
             stops.ClearAll();
             return Value();
         }},
        {"Item", [](TabStopsObject& stops, Arguments arguments) { return stops.Item(arguments); }},
        {"Count", [](TabStopsObject& stops, Arguments) { return stops.Count(); }},
    };
    return members;
}

void TabStopsObject::CheckAlive() const {
    target_.document().CheckAlive();
}

void TabStopsObject::Add(Arguments arguments) {
    const TabStop stop = StopOf(ArgumentReader(arguments, {"Position", "Alignment", "Leader"}));
    ChangeAll(target_, [&](ParaFormat& format) { PutStop(format, stop); });
}

Value TabStopsObject::Item(Arguments arguments) {
    const Value& index = ArgumentReader(arguments, {"Index"})["Index"];
    const int position = TwipsOf(index, -kLongestDistance, kLongestDistance);
    const std::vector<TabStop> stops = StopsOf(target_);
    const auto here = [&](const TabStop& stop) { return stop.position == position; };
    const auto give = [&](int place) {
        return Value(ObjectPtr(std::make_shared<TabStopObject>(target_, target_.Keep(*this), place)));
    };
    if (std::any_of(stops.begin(), stops.end(), here)) return give(position);
    const double number = NumberOf(index);
    if (number < 1 || number > static_cast<double>(stops.size()) || number != std::floor(number))
        RefuseElement();
    return give(stops[static_cast<std::size_t>(number) - 1].position);
}

void TabStopsObject::ClearAll() {
    const Document& document = target_.document().model();
    ChangeAll(target_, [&](ParaFormat& format) {
        for (const TabStop& stop : EffectiveParagraph(document, format).tabs)
            TakeStop(document, format, stop.position);
    });
}

Value TabStopsObject::Count() {
    return Whole(static_cast<int>(StopsOf(target_).size()));
}

}  // namespace quillmark::word::docx::objects
