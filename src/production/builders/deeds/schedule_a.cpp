#include <string>
#include <string_view>

#include "core/field_registry.h"
#include "core/text_conversions.h"
#include "production/kit/field_pictures.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"

namespace quillmark {

using namespace field;

namespace {

/// One paragraph to each line of the field, without the blank lines and indents between them, so that each
/// becomes one numbered exception.
std::string ExceptionParagraphs(std::string_view text) {
    std::string paragraphs;
    for (char c : text) {
        if (c == '\n') c = '\r';
        const bool isSpacing = c == '\r' || c == ' ';
        if (isSpacing && paragraphs.ends_with('\r')) continue;
        paragraphs += c;
    }
    if (!paragraphs.ends_with('\r')) paragraphs += '\r';
    return paragraphs;
}

void TypeDescription(const JobValues& job, Typist& type) {
    if (const std::string& picture = job.Picture(SchedADescription); IsReadablePicture(picture)) {
        type.Picture(picture, DescriptionOfPicture(job));
    } else if (!picture.empty()) {
        type.Text(FieldMarker(SchedADescription));
    } else {
        type.Align(word::AlignJustified);
        type.Text(job[SchedADescription]);
    }
    type.Text(RepeatReturn(3));
}

}  // namespace

void TypeScheduleA(const JobValues& job, Typist& type) {
    type.Indents(kDeedIndent);
    type.Align(word::AlignCentre);
    type.Font("Arial", 11);
    type.As(word::Role::Title, [&] {
        type.Text("\r");
        type.Underline(word::UnderlineSingle);
        type.TypeBold("SCHEDULE \"A\"");
        type.Underline(word::UnderlineNone);
        type.Text(RepeatReturn(3));
    });
    type.FontSize(10);

    TypeDescription(job, type);

    type.Align(word::AlignLeft);
    type.As(word::Role::Heading, [&] {
        type.Underline(word::UnderlineSingle);
        type.TypeBold("Subject to");
        type.Underline(word::UnderlineNone);
        type.Text(":", RepeatReturn(2));
    });

    type.Align(word::AlignJustified);
    type.BeginList();
    type.SpaceAfter(10);
    type.Text(ExceptionParagraphs(job[SchedAEncumbrances]));
    type.WordSel.ListFormat().RemoveNumbers();
    type.SpaceAfter(0);
    type.Text("\r");
    type.Indents(0);
}

}  // namespace quillmark
