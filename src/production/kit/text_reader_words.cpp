#include <fmt/format.h>

#include <array>

#include "core/field_registry.h"
#include "core/job.h"
#include "production/kit/text_reader.h"

namespace quillmark {

using namespace text;

namespace {

/// Characters of a text that stand for what a keyboard has no sign for.
struct Sign {
    std::string_view sign;
    std::string_view typed;
};
constexpr auto kSigns = std::to_array<Sign>({{"→", "\t"}, {"↵", "\v"}, {"¶", "\r"}});
constexpr std::string_view kBox = "☐";
constexpr std::string_view kNoEnd = "¬";

/// A form that a derived value gives: which part of the field it is, and how that part's marker ends.
struct FormName {
    std::string_view name;
    Form form;
    int part = 0;
    std::string_view marker = {};
};
constexpr auto kForms = std::to_array<FormName>({
    {"one line", Form::OneLine, 1, "addr 2]"},
    {"two lines", Form::TwoLines, 1, "addr 2]"},
    {"address", Form::Address},
    {"town", Form::Town, 1, "city]"},
    {"county", Form::County},
    {"words", Form::Words, 1, "words]"},
    {"day", Form::Day, 2, "day]"},
    {"month", Form::Month, 1, "month]"},
    {"year", Form::Year, 3, "year]"},
    {"date", Form::Date, 3, "year]"},
    {"first name", Form::FirstName, 2, "first name]"},
    {"last name", Form::LastName, 3, "last name]"},
});

int NumberOfMarker(std::string_view marker) {
    if (const int field = FieldOfMarker(marker)) return field;
    for (const DerivedField& derived : DerivedFields())
        if (derived.marker == marker) return derived.number;
    return 0;
}

bool HasForm(const FormName& form, int field) {
    if (form.form == Form::Address) return FindParty(static_cast<Field>(field)) != nullptr;
    if (form.form == Form::County)
        return field == field::PropertyCityStateZip || field == field::TownOfExecution;
    static const Job blank;
    return blank.D(form.part * 1000 + field).ends_with(form.marker);
}

}  // namespace

void TextReader::FlushWords() {
    if (!words_.empty()) steps_.push_back(Words{words_});
    words_.clear();
}

void TextReader::ReadWords(std::string_view line) {
    std::string_view rest = line;
    int level = BeginBlock::kParagraph;
    for (const std::string_view mark : {"# ", "## ", "### ", "+ "}) {
        if (!rest.starts_with(mark)) continue;
        CloseBlock();
        level = mark == "+ " ? BeginBlock::kMore : static_cast<int>(mark.size()) - 1;
        rest.remove_prefix(mark.size());
        break;
    }
    if (!block_) {
        OpenBlock(level);
    } else if (joins_) {
        FlushWords();
        steps_.push_back(Join{});
    }
    joins_ = true;
    for (std::size_t at = 0; at < rest.size();) at = ReadMark(rest, at);
    FlushWords();
}

std::size_t TextReader::ReadMark(std::string_view line, std::size_t at) {
    const std::string_view rest = line.substr(at);
    for (const auto& [sign, typed] : kSigns) {
        if (!rest.starts_with(sign)) continue;
        words_ += typed;
        return at + sign.size();
    }
    if (rest.starts_with(kBox)) {
        FlushWords();
        steps_.push_back(Box{});
        return at + kBox.size();
    }
    if (rest.starts_with(kNoEnd)) {
        FlushWords();
        steps_.push_back(NoEnd{});
        return at + kNoEnd.size();
    }
    const auto toggleUnderline = [&](word::Underline kind) {
        underline_ = underline_ == kind ? word::UnderlineNone : kind;
        steps_.push_back(Underlined{underline_});
    };
    switch (rest.front()) {
        case '\\':
            if (rest.size() == 1) {
                joins_ = false;
            } else {
                words_ += rest[1];
            }
            return at + 2;
        case '*':
            FlushWords();
            bold_ = !bold_;
            steps_.push_back(Bold{bold_});
            return at + 1;
        case '~':
            FlushWords();
            italic_ = !italic_;
            steps_.push_back(Italic{italic_});
            return at + 1;
        case '=':
            FlushWords();
            if (rest.starts_with("==")) {
                toggleUnderline(word::UnderlineDouble);
                return at + 2;
            }
            toggleUnderline(word::UnderlineSingle);
            return at + 1;
        case '[':
            return ReadField(line, at);
        case '{':
            return ReadBraces(line, at);
        default:
            words_ += rest.front();
            return at + 1;
    }
}

std::size_t TextReader::ReadField(std::string_view line, std::size_t at) {
    const std::size_t end = line.find(']', at);
    if (end == std::string_view::npos) {
        Fail("a marker is not closed");
        return line.size();
    }
    const std::string_view marker = line.substr(at, end + 1 - at);
    const int number = NumberOfMarker(marker);
    if (number == 0) Fail(fmt::format("no field has the marker {}", marker));
    FlushWords();
    steps_.push_back(Value{Form::Value, number});
    return end + 1;
}

std::size_t TextReader::ReadBraces(std::string_view line, std::size_t at) {
    const std::size_t end = line.find('}', at);
    if (end == std::string_view::npos) {
        Fail("a passage is not closed");
        return line.size();
    }
    const std::string_view name = line.substr(at + 1, end - at - 1);
    FlushWords();
    const std::size_t of = name.find(" of [");
    if (of != std::string_view::npos && name.ends_with(']')) {
        ReadForm(name.substr(0, of), name.substr(of + 4));
    } else if (const Passage* const passage = FindPassage(name)) {
        steps_.push_back(Call{passage->type});
    } else if (FindNamedText(name)) {
        Fail(fmt::format("the text \"{}\" stands in a block of its own", name));
    } else {
        Fail(fmt::format("no passage is called \"{}\"", name));
    }
    return end + 1;
}

void TextReader::ReadForm(std::string_view form, std::string_view marker) {
    const int field = FieldOfMarker(marker);
    if (field == 0) return Fail(fmt::format("no field has the marker {}", marker));
    for (const FormName& known : kForms) {
        if (known.name != form) continue;
        if (!HasForm(known, field)) break;
        steps_.push_back(Value{known.form, field});
        return;
    }
    Fail(fmt::format("{} has no form \"{}\"", marker, form));
}

}  // namespace quillmark
