#include "production/reading.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>

#include "word/docx/model/style_look.h"
#include "word/seam/automation.h"

namespace quillmark::test {

namespace docx = word::docx;

namespace {

struct ObjectText {
    std::string operator()(const docx::FormFieldData& field) const {
        if (field.isCheckBox) return field.checked ? "{x}" : "{ }";
        return "{" + field.result + "}";
    }
    std::string operator()(const docx::Picture& picture) const { return "{" + picture.description + "}"; }
    template <class Other>
    std::string operator()(const Other&) const {
        return "{?}";
    }
};

/// The text of a paragraph, each object by its own, in runs of one format.
std::vector<std::pair<docx::FormatId, std::string>> RunsOf(const docx::Paragraph& paragraph) {
    std::vector<std::pair<docx::FormatId, std::string>> runs;
    std::size_t at = 0, object = 0;
    for (const docx::Span& span : paragraph.spans) {
        std::string& run = runs.emplace_back(span.format, "").second;
        for (const std::size_t end = at + span.length; at < end; ++at) {
            const char c = paragraph.text[at];
            run += c == docx::character::kObject ? std::visit(ObjectText{}, paragraph.objects.at(object++))
                                                 : std::string(1, c);
        }
    }
    return runs;
}

std::string CharactersOf(const docx::Paragraph& paragraph) {
    std::string text;
    for (const auto& [format, run] : RunsOf(paragraph)) text += run;
    return text;
}

std::string CharactersOf(const docx::TableCell& cell, char between) {
    std::string text;
    for (const docx::Block& block : cell.blocks)
        text +=
            (text.empty() ? "" : std::string(1, between)) + CharactersOf(std::get<docx::Paragraph>(block));
    return text;
}

const docx::Table* TableIn(const docx::Block& block) {
    const auto* table = std::get_if<std::unique_ptr<docx::Table>>(&block);
    return table ? table->get() : nullptr;
}

std::string Visible(const std::string& text) {
    std::string visible;
    for (const char c : text) {
        if (c == docx::character::kTab)
            visible += "→";
        else if (c == docx::character::kLineBreak)
            visible += "↵";
        else if (c == docx::character::kPageBreak)
            visible += "‹page›";
        else
            visible += c;
    }
    return visible;
}

class Reader {
 public:
    explicit Reader(const docx::Document& document) : document_(document) {
        for (const docx::Block& block : document.body) {
            const auto* paragraph = std::get_if<docx::Paragraph>(&block);
            if (paragraph && paragraph->section) sections_.push_back(paragraph->section.get());
        }
        sections_.push_back(&document.lastSection);
    }

    std::string Read() {
        for (const docx::Block& block : document_.body) {
            if (const docx::Table* table = TableIn(block)) Add(*table);
            if (const auto* paragraph = std::get_if<docx::Paragraph>(&block)) Add(*paragraph);
        }
        return std::move(reading_);
    }

 private:
    void Add(const docx::Table& table) {
        for (const docx::TableRow& row : table.rows) {
            reading_ += "|";
            for (const docx::TableCell& cell : row.cells) reading_ += " " + CharactersOf(cell, '/') + " |";
            reading_ += '\n';
        }
    }

    void Add(const docx::Paragraph& paragraph) {
        const docx::ParaFormat& direct = document_.paraFormats[paragraph.format];
        const std::string format = FormatLine(docx::EffectiveParagraph(document_, direct));
        if (format != format_) reading_ += format + '\n';
        format_ = format;
        reading_ += NumberOf(direct);
        for (const auto& [look, text] : RunsOf(paragraph)) AddRun(direct, look, text);
        reading_ += '\n';
        if (paragraph.section) ++section_;
    }

    void AddRun(const docx::ParaFormat& direct, docx::FormatId id, const std::string& text) {
        const docx::CharFormat look = docx::EffectiveFont(document_, direct, document_.charFormats[id]);
        const std::string font = fmt::format("‹{} {:g}›", look.font, *look.halfPoints / 2.0);
        if (font != font_) reading_ += font;
        font_ = font;
        std::string marked = Visible(text);
        if (look.underline == word::UnderlineDouble) marked = "=" + marked + "=";
        if (look.underline != 0) marked = "=" + marked + "=";
        if (*look.superscript) marked = "^" + marked + "^";
        if (*look.italic) marked = "~" + marked + "~";
        if (*look.bold) marked = "*" + marked + "*";
        reading_ += marked;
    }

    std::string FormatLine(const docx::ParaFormat& format) const {
        static const char* const kAlignments[] = {"left", "centred", "right", "justified"};
        constexpr double kTwips = 20;
        std::string line = fmt::format("[{}, indents {:g} and {:g}", kAlignments[*format.alignment],
                                       *format.leftIndent / kTwips, *format.rightIndent / kTwips);
        for (const docx::TabStop& tab : format.tabs)
            line += fmt::format(", tab stop {:g}", tab.position / kTwips);
        if (*format.spaceAfter != 0) line += fmt::format(", space after {:g}", *format.spaceAfter / kTwips);
        if (const int columns = sections_[section_]->columns; columns != 1)
            line += fmt::format(", {} columns", columns);
        if (*format.line != 240) line += fmt::format(", lines of {:g}", *format.line / kTwips);
        return line + "]";
    }

    /// As the list counts: 1., a., i., or a dot.
    std::string NumberOf(const docx::ParaFormat& format) {
        static const char* const kRoman[] = {"i", "ii", "iii", "iv", "v", "vi", "vii", "viii", "ix", "x"};
        const int list = format.numId.value_or(0);
        if (list == 0) return {};
        const auto level = static_cast<std::size_t>(format.listLevel);
        const docx::ListInstance& instance = document_.lists.at(static_cast<std::size_t>(list - 1));
        const docx::ListLevelFormat& number =
            document_.abstractLists.at(static_cast<std::size_t>(instance.abstractIndex)).levels.at(level);
        if (number.numberFormat == "bullet") return "• ";
        std::array<int, 9>& counts = counts_[list];
        const int count = ++counts.at(level);
        std::fill(counts.begin() + static_cast<std::ptrdiff_t>(level) + 1, counts.end(), 0);
        const std::string shown = number.numberFormat == "lowerLetter"
                                      ? std::string(1, static_cast<char>('a' + count - 1))
                                  : number.numberFormat == "lowerRoman" ? kRoman[(count - 1) % 10]
                                                                        : fmt::format("{}", count);
        return std::string(3 * level, ' ') + shown + ". ";
    }

    const docx::Document& document_;
    std::vector<const docx::SectionProperties*> sections_;
    std::size_t section_ = 0;
    std::string reading_, format_, font_;
    std::map<int, std::array<int, 9>> counts_;
};

}  // namespace

std::string CharactersOf(const docx::Document& document) {
    std::string text;
    for (const docx::Block& block : document.body) {
        if (const auto* paragraph = std::get_if<docx::Paragraph>(&block))
            text += CharactersOf(*paragraph) + '\n';
        if (const docx::Table* table = TableIn(block))
            for (const docx::TableRow& row : table->rows)
                for (const docx::TableCell& cell : row.cells) text += CharactersOf(cell, '\r') + '\n';
    }
    return text;
}

std::string ReadingOf(const docx::Document& document) {
    return Reader(document).Read();
}

}  // namespace quillmark::test
