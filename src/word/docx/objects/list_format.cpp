#include "word/docx/objects/list_format.h"

#include <algorithm>

#include "word/docx/edit/stretch.h"
#include "word/docx/model/style_look.h"
#include "word/docx/objects/list_templates.h"
#include "word/docx/objects/open_document.h"

namespace quillmark::word::docx::objects {
namespace {

/// The list definition that a numId leads to, or none.
std::optional<int> AbstractOf(const Document& document, const ParaFormat& format) {
    const int numId = format.numId.value_or(0);
    if (numId < 1 || numId > static_cast<int>(document.lists.size())) return std::nullopt;
    return document.lists[numId - 1].abstractIndex;
}

/// Drops what was set directly, so that the list's own indents show.
void DropIndents(ParaFormat& format) {
    format.leftIndent.reset();
    format.firstLine.reset();
}

int NewList(Document& document, int abstractIndex) {
    const bool wasUsed =
        std::any_of(document.lists.begin(), document.lists.end(),
                    [&](const ListInstance& list) { return list.abstractIndex == abstractIndex; });
    document.lists.push_back({abstractIndex, wasUsed, {}});
    return static_cast<int>(document.lists.size());
}

void MakeItem(ParaFormat& format, int numId) {
    format.numId = numId;
    format.listLevel = 0;
    DropIndents(format);
}

}  // namespace

void RemoveFromList(Document& document, Paragraph& paragraph) {
    edit::ChangeParagraph(document, paragraph, [&](ParaFormat& format) {
        if (format.numId.value_or(0) != 0) DropIndents(format);
        format.listLevel = 0;
        format.numId.reset();
        if (!StyleHasNumbering(document, format)) return;
        format.numId = 0;
        format.leftIndent = 0;
        format.firstLine = 0;
    });
}

// ---- ListFormat ----

const MemberTable<ListFormatObject>& ListFormatObject::Members() {
    static const MemberTable<ListFormatObject> members = {
        {"ApplyListTemplate", nullptr, nullptr,
         [](ListFormatObject& list, Arguments arguments) {
             list.ApplyListTemplate(arguments);
             return Value();
         }},
        {"ApplyBulletDefault", nullptr, nullptr,
         [](ListFormatObject& list, Arguments) {
             list.ApplyBulletDefault();
             return Value();
         }},
        {"RemoveNumbers", nullptr, nullptr,
         [](ListFormatObject& list, Arguments) {
             list.RemoveNumbers();
             return Value();
         }},
        {"ListIndent", nullptr, nullptr,
         [](ListFormatObject& list, Arguments arguments) {
             ExpectNoArguments(arguments);
             list.MoveLevel(1);
             return Value();
         }},
        {"ListOutdent", nullptr, nullptr,
         [](ListFormatObject& list, Arguments arguments) {
             ExpectNoArguments(arguments);
             list.MoveLevel(-1);
             return Value();
         }},
    };
    return members;
}

void ListFormatObject::CheckAlive() const {
    target_.document().CheckAlive();
}

void ListFormatObject::ApplyListTemplate(Arguments arguments) {
    const ArgumentReader reader(arguments,
                                {"ListTemplate", "ContinuePreviousList", "ApplyTo", "DefaultListBehavior"});
    const auto list = ObjectOf<ListTemplateObject>(reader["ListTemplate"]);
    if (&list->document() != &target_.document())
        throw AutomationError(error::kBadValue, "The list template belongs to another document");
    target_.RequireEditable();
    Document& document = target_.document().model();
    int numId = 0;
    target_.ForEachParagraph([&](Paragraph& paragraph) {
        if (AbstractOf(document, document.paraFormats[paragraph.format]) == list->abstractIndex()) return;
        if (numId == 0) numId = NewList(document, list->abstractIndex());
        edit::ChangeParagraph(document, paragraph, [&](ParaFormat& format) { MakeItem(format, numId); });
    });
    target_.document().Changed();
}

int ListFormatObject::BulletList() {
    Document& document = target_.document().model();
    for (std::size_t i = 0; i < document.lists.size(); ++i)
        if (IsBulletedList(document.abstractLists[document.lists[i].abstractIndex]))
            return static_cast<int>(i) + 1;
    document.abstractLists.push_back(BulletedList());
    return NewList(document, static_cast<int>(document.abstractLists.size()) - 1);
}

void ListFormatObject::ApplyBulletDefault() {
    target_.RequireEditable();
    Document& document = target_.document().model();
    const int numId = BulletList();
    bool allBulleted = true;
    target_.ForEachParagraph([&](Paragraph& paragraph) {
        allBulleted = allBulleted && document.paraFormats[paragraph.format].numId == numId;
    });
    if (allBulleted) return RemoveNumbers();
    target_.ForEachParagraph([&](Paragraph& paragraph) {
        edit::ChangeParagraph(document, paragraph, [&](ParaFormat& format) { MakeItem(format, numId); });
    });
    target_.document().Changed();
}

void ListFormatObject::RemoveNumbers() {
    target_.RequireEditable();
    Document& document = target_.document().model();
    target_.ForEachParagraph([&](Paragraph& paragraph) { RemoveFromList(document, paragraph); });
    target_.document().Changed();
}

void ListFormatObject::MoveLevel(int by) {
    target_.RequireEditable();
    Document& document = target_.document().model();
    target_.ForEachParagraph([&](Paragraph& paragraph) {
        const auto abstract = AbstractOf(document, document.paraFormats[paragraph.format]);
        if (!abstract) return;
        const auto& levels = document.abstractLists[*abstract].levels;
        const int last = levels.empty() ? kListLevels - 1 : static_cast<int>(levels.size()) - 1;
        edit::ChangeParagraph(document, paragraph, [&](ParaFormat& format) {
            const int level = std::clamp(format.listLevel + by, 0, last);
            if (level == format.listLevel) return;
            format.listLevel = level;
            DropIndents(format);
        });
    });
    target_.document().Changed();
}

}  // namespace quillmark::word::docx::objects
