#include "word/docx/write/closer_lines.h"

#include <algorithm>
#include <cmath>

#include "word/docx/write/style_looks.h"
#include "word/seam/letter_widths.h"

namespace quillmark::word::docx::write {

namespace {

constexpr double kTwips = 20;
constexpr double kWholeLine = 240;
/// Half a point of a line of twelve; five of them still leave the letters of two lines apart, and a statement
/// with every line that there is on its page.
constexpr int kStep = 10;
constexpr int kMostSteps = 5;
/// What the reckoning may be wrong by.
constexpr double kMargin = 6;
/// A line with letters of two faces reaches higher and lower than one of either, by so much for Times and a
/// typewriter face.
constexpr double kMixedFaces = 1.08;

/// Where a tab at this place leads to, all in points.
double NextStop(const ParaFormat& format, double defaultStop, double at) {
    for (const TabStop& stop : format.tabs)
        if (stop.alignment != "clear" && stop.position / kTwips > at) return stop.position / kTwips;
    return (std::floor(at / defaultStop) + 1) * defaultStop;
}

}  // namespace

CharFormat PageMeasure::LettersOf(FormatId format) const {
    return Completed(document_.charFormats[format], letters_);
}

double PageMeasure::LineHeightOf(const Paragraph& paragraph) const {
    double highest = 0;
    bool isMixed = false;
    std::string face;
    const auto add = [&](FormatId format) {
        const CharFormat letters = LettersOf(format);
        isMixed = isMixed || (!face.empty() && face != letters.font);
        face = letters.font;
        highest = std::max(highest, LineHeight(letters.font, *letters.halfPoints / 2.0));
    };
    for (const Span& span : paragraph.spans) add(span.format);
    if (paragraph.spans.empty()) add(paragraph.markFormat);
    return isMixed ? highest * kMixedFaces : highest;
}

int PageMeasure::LinesOf(const Paragraph& paragraph, const ParaFormat& format, double right) const {
    const double left = *format.leftIndent / kTwips;
    const double defaultStop = std::max(document_.defaultTabStop / kTwips, 1.0);
    int lines = 1;
    double x = left;
    std::size_t at = 0;
    for (const Span& span : paragraph.spans) {
        const CharFormat letters = LettersOf(span.format);
        for (const std::size_t end = at + span.length; at < end; ++at) {
            const char c = paragraph.text[at];
            if (c == character::kLineBreak) {
                ++lines;
                x = left;
            } else if (c == character::kTab) {
                x = NextStop(format, defaultStop, x);
            } else {
                x += WidthOf({&c, 1}, letters.font, *letters.halfPoints / 2.0, *letters.bold);
            }
            if (x <= right) continue;
            ++lines;
            x = left;
        }
    }
    return lines;
}

void PageMeasure::Add(const Paragraph& paragraph, const SectionProperties& section) {
    const ParaFormat format = Completed(document_.paraFormats[paragraph.format], look_);
    const double width = (section.pageWidth - section.leftMargin - section.rightMargin) / kTwips;
    const double lines = LinesOf(paragraph, format, width - *format.rightIndent / kTwips);
    const double single = lines * LineHeightOf(paragraph);
    height_ += (*format.spaceBefore + *format.spaceAfter) / kTwips;
    if (format.lineRule == LineRule::Auto) {
        height_ += single * *format.line / kWholeLine;
        perStep_ += single / kWholeLine;
    } else {
        height_ += lines * *format.line / kTwips;
    }
}

int PageMeasure::CloserBy(const SectionProperties& section) const {
    const double page = (section.pageHeight - section.topMargin - section.bottomMargin) / kTwips - kMargin;
    for (int step = 0; step <= kMostSteps; ++step)
        if (height_ - step * kStep * perStep_ <= page) return step * kStep;
    return 0;
}

ParaFormat Closer(ParaFormat format, int by) {
    if (by > 0 && format.line && format.lineRule == LineRule::Auto) format.line = *format.line - by;
    return format;
}

}  // namespace quillmark::word::docx::write
