#include "production/kit/text_reader.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <utility>

namespace quillmark {

using namespace text;

namespace {

constexpr std::string_view kPassageLine = "@passage ";
constexpr int kDeepest = 4;  ///< of named texts within one another

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == '\r')) text.remove_suffix(1);
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return text;
}

/// The first line of a text, which goes on behind it.
std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

/// How deep an item this line begins, with the mark taken off it; a paragraph for other lines.
int TakeLevel(std::string_view& line) {
    static constexpr std::array<std::pair<std::string_view, int>, 4> kMarks = {
        {{"# ", 1}, {"## ", 2}, {"### ", 3}, {"+ ", BeginBlock::kMore}}};
    for (const auto& [mark, level] : kMarks) {
        if (!line.starts_with(mark)) continue;
        line.remove_prefix(mark.size());
        return level;
    }
    return BeginBlock::kParagraph;
}

bool BeginsItem(std::string_view line) {
    return TakeLevel(line) != BeginBlock::kParagraph;
}

struct OptionCaption {
    std::string_view caption;
    Option option;
};
constexpr auto kOptionCaptions = std::to_array<OptionCaption>({
    {"1 Seller", OneSeller},
    {"2 Sellers", TwoSellers},
    {"Person", Person},
    {"Entity", Entity},
    {"1 Buyer", OneBuyer},
    {"2 Buyers", TwoBuyers},
    {"1 Payoff", OnePayoff},
    {"2 Payoffs", TwoPayoffs},
    {"Condo", Condo},
    {"Commercial", Commercial},
    {"Letterhead", Letterhead},
    {"Land / Multi-Fam", LandMultiFamily},
    {"P.O.A.", PowerOfAttorney},
    {"Estate / Trust", EstateTrust},
});

}  // namespace

std::vector<NamedText> FindNamedTexts(std::span<const TextSource> sources) {
    std::vector<NamedText> found;
    for (const TextSource& source : sources) {
        std::string_view rest = source.text;
        bool isInCondition = false;
        NamedText* open = nullptr;
        for (int line = 1; !rest.empty(); ++line) {
            const char* const begin = rest.data();
            const std::string_view content = TakeLine(rest);
            if (!open && content.starts_with(kPassageLine)) {
                found.push_back(
                    {Trimmed(content.substr(kPassageLine.size())), source.file, line + 1, rest.substr(0, 0)});
                open = &found.back();
            } else if (open && content.starts_with("@if ")) {
                isInCondition = true;
            } else if (open && Trimmed(content) == "@end") {
                if (!isInCondition) {
                    open->text = {open->text.data(), static_cast<std::size_t>(begin - open->text.data())};
                    open = nullptr;
                }
                isInCondition = false;
            }
        }
    }
    return found;
}

TextReader::TextReader(Passages passages, std::span<const TextSource> family, std::vector<Step>& steps,
                       std::vector<std::string>& errors, std::vector<std::string>& namedTexts)
    : passages_(passages),
      named_(FindNamedTexts(family)),
      steps_(steps),
      errors_(errors),
      namedTexts_(namedTexts) {}

void TextReader::Read(const TextSource& source) {
    ReadLines(source.file, 1, source.text);
    MarkOutlines();
}

void TextReader::ReadLines(std::string_view file, int firstLine, std::string_view text) {
    const auto outerFile = std::exchange(file_, file);
    const auto outerLine = std::exchange(line_, firstLine);
    const auto outerCondition = std::exchange(condition_, std::nullopt);
    bool isInNamedText = false, isInItsCondition = false;
    for (; !text.empty(); ++line_) {
        const std::string_view line = TakeLine(text);
        std::string_view behind = text;
        const std::string_view next = TakeLine(behind);
        if (isInNamedText) {
            if (line.starts_with("@if ")) isInItsCondition = true;
            if (Trimmed(line) == "@end" && !std::exchange(isInItsCondition, false)) isInNamedText = false;
        } else if (line.starts_with(kPassageLine)) {
            CloseBlock();
            isInNamedText = true;
        } else {
            ReadLine(line, next);
        }
    }
    CloseBlock();
    if (isInNamedText) Fail("a named text without its @end");
    if (condition_) {
        line_ = condition_->line;
        Fail("a condition without its @end");
    }
    file_ = outerFile;
    line_ = outerLine;
    condition_ = outerCondition;
}

void TextReader::Fail(const std::string& what) {
    errors_.push_back(fmt::format("{}:{}: {}", file_, line_, what));
}

void TextReader::ReadLine(std::string_view line, std::string_view next) {
    while (line.ends_with(' ')) line.remove_suffix(1);
    if (line.empty()) {
        CloseBlock();
    } else if (line.front() == '%') {
        return;
    } else if (line.front() == '@') {
        ReadDirective(line, next);
    } else if (!ReadLonePassage(line, next)) {
        ReadWords(line);
    }
}

// ---- Lines that begin with @ ----

void TextReader::ReadDirective(std::string_view line, std::string_view next) {
    const std::size_t blank = line.find(' ');
    const std::string_view word = line.substr(1, blank == std::string_view::npos ? blank : blank - 1);
    const std::string_view rest = blank == std::string_view::npos ? "" : Trimmed(line.substr(blank));
    if (word == "if") return BeginCondition(rest, next);
    if (word == "else") return ElseCondition();
    if (word == "end") return EndCondition();
    CloseBlock();
    if (word == "page") {
        steps_.push_back(Page{});
    } else if (word == "font") {
        ReadFont(rest);
    } else if (word == "align") {
        ReadAlignment(rest);
    } else if (word == "tabs") {
        ReadTabs(rest);
    } else if (word == "indents") {
        if (const auto inches = ReadNumber(rest)) steps_.push_back(Indented{*inches});
    } else if (word == "space" && rest.starts_with("after ")) {
        if (const auto points = ReadNumber(rest.substr(6))) steps_.push_back(Spaced{*points});
    } else {
        Fail(fmt::format("no line begins with \"@{}\"", word));
    }
}

std::optional<If> TextReader::ReadCondition(std::string_view condition) {
    If step;
    if (condition.starts_with("not ")) {
        step.holds = false;
        condition = Trimmed(condition.substr(4));
    }
    if (condition.starts_with('[')) {
        step.number = FieldOfMarker(condition);
        if (step.number == 0) {
            Fail(fmt::format("no field has the marker {}", condition));
            return std::nullopt;
        }
        return step;
    }
    for (const auto& [caption, option] : kOptionCaptions) {
        if (caption != condition) continue;
        step.isOption = true;
        step.number = option;
        return step;
    }
    Fail(fmt::format("\"{}\" is neither an option nor a field", condition));
    return std::nullopt;
}

void TextReader::BeginCondition(std::string_view condition, std::string_view next) {
    if (condition_) Fail("a condition within another one");
    // What follows within the same lines belongs to the block in hand, unless an item begins there.
    if (Trimmed(next).empty() || BeginsItem(next)) CloseBlock();
    FlushWords();
    condition_ = OpenCondition{block_.has_value(), false, line_};
    steps_.push_back(ReadCondition(condition).value_or(If{}));
}

void TextReader::ElseCondition() {
    if (!condition_) return Fail("@else without its @if");
    if (condition_->hasElse) Fail("a second @else");
    condition_->hasElse = true;
    if (!condition_->isInBlock) CloseBlock();
    FlushWords();
    steps_.push_back(Else{});
}

void TextReader::EndCondition() {
    if (!condition_) return Fail("@end without its @if");
    if (!condition_->isInBlock) CloseBlock();
    FlushWords();
    steps_.push_back(End{});
    condition_.reset();
}

void TextReader::ReadFont(std::string_view rest) {
    const std::size_t blank = rest.rfind(' ');
    if (blank == std::string_view::npos) return Fail("a font has a name and a size");
    const auto points = ReadNumber(rest.substr(blank + 1));
    if (points) steps_.push_back(Type{std::string(Trimmed(rest.substr(0, blank))), *points});
}

void TextReader::ReadAlignment(std::string_view rest) {
    static constexpr std::array<std::pair<std::string_view, word::Alignment>, 4> kAlignments = {
        {{"left", word::AlignLeft},
         {"centre", word::AlignCentre},
         {"right", word::AlignRight},
         {"justified", word::AlignJustified}}};
    for (const auto& [name, alignment] : kAlignments) {
        if (name == rest) return steps_.push_back(Aligned{alignment});
    }
    Fail(fmt::format("no alignment is called \"{}\"", rest));
}

void TextReader::ReadTabs(std::string_view rest) {
    Tabs tabs;
    while (!rest.empty() && rest != "none") {
        const std::size_t blank = rest.find(' ');
        const auto inches = ReadNumber(rest.substr(0, blank));
        if (!inches) return;
        tabs.inches.push_back(*inches);
        rest = blank == std::string_view::npos ? "" : Trimmed(rest.substr(blank));
    }
    steps_.push_back(std::move(tabs));
}

std::optional<double> TextReader::ReadNumber(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc{} && end == text.data() + text.size() && number >= 0) return number;
    Fail(fmt::format("\"{}\" is no number", text));
    return std::nullopt;
}

// ---- Blocks ----

void TextReader::OpenBlock(int level) {
    block_ = steps_.size();
    joins_ = false;
    steps_.push_back(BeginBlock{level, false});
}

void TextReader::CloseBlock() {
    if (!block_) return;
    FlushWords();
    if (condition_ && condition_->isInBlock) {
        Fail("a condition begun within a block ends with it");
        steps_.push_back(End{});
        condition_.reset();
    }
    if (bold_ || italic_ || underline_ != word::UnderlineNone)
        Fail("a bold, italic or underlined passage is not closed");
    bold_ = italic_ = false;
    underline_ = word::UnderlineNone;
    const bool isPassage = steps_.size() == *block_ + 2 && std::holds_alternative<Call>(steps_.back());
    steps_.push_back(EndBlock{isPassage});
    block_.reset();
}

// A list is an outline when one of its items is deeper than the first level, so that is known at its end
// only.
void TextReader::MarkOutlines() {
    std::vector<BeginBlock*> list;
    bool isOutline = false;
    int level = 0;
    const auto endList = [&] {
        for (BeginBlock* const block : list) block->outline = isOutline;
        list.clear();
        isOutline = false;
        level = 0;
    };
    for (Step& step : steps_) {
        auto* const block = std::get_if<BeginBlock>(&step);
        if (std::holds_alternative<Page>(step) || std::holds_alternative<Indented>(step) ||
            (block && block->level == BeginBlock::kParagraph)) {
            endList();
        } else if (block && block->level > 0) {
            if (block->level > level + 1)
                errors_.push_back(fmt::format("{}: an item without the level above it", file_));
            level = block->level;
            isOutline = isOutline || level > 1;
            list.push_back(block);
        }
    }
    endList();
}

bool TextReader::ReadLonePassage(std::string_view line, std::string_view next) {
    if (block_ || !line.starts_with('{') || line.find('}') != line.size() - 1) return false;
    if (!Trimmed(next).empty() && !next.starts_with('@')) return false;
    const NamedText* const text = FindNamedText(line.substr(1, line.size() - 2));
    if (!text) return false;
    namedTexts_.emplace_back(text->name);
    if (++depth_ > kDeepest) {
        Fail(fmt::format("the text \"{}\" holds itself", text->name));
    } else {
        ReadLines(text->file, text->firstLine, text->text);
    }
    --depth_;
    return true;
}

const NamedText* TextReader::FindNamedText(std::string_view name) const {
    for (const NamedText& text : named_)
        if (text.name == name) return &text;
    return nullptr;
}

const Passage* TextReader::FindPassage(std::string_view name) const {
    for (const Passages list : {passages_, CommonPassages()}) {
        for (const Passage& passage : list)
            if (passage.name == name) return &passage;
    }
    return nullptr;
}

}  // namespace quillmark
