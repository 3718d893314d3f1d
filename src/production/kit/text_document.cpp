#include "production/kit/text_document.h"

#include <algorithm>

#include "production/kit/text_reader.h"

namespace quillmark {

using namespace text;

namespace {

std::string ValueOf(const JobValues& job, const Value& value) {
    const auto field = static_cast<Field>(value.number);
    switch (value.form) {
        case Form::Value:
            return job.Numbered(value.number);
        case Form::OneLine:
            return job.OneLine(field);
        case Form::TwoLines:
            return job.TwoLines(field);
        case Form::Address:
            return job.Address(*FindParty(field));
        case Form::Town:
            return job.Town(field);
        case Form::County:
            return field == field::TownOfExecution ? job.CountyOfExecution() : job.CountyOfProperty();
        case Form::Words:
            return job.Words(field);
        case Form::Day:
            return job.OrdinalDay(field);
        case Form::Month:
            return job.Month(field);
        case Form::Year:
            return job.Year(field);
        case Form::Date:
            return job.DayMonthYear(field);
        case Form::FirstName:
            return job.FirstName(field);
        case Form::LastName:
            return job.LastName(field);
    }
    return {};
}

/// Carries out the steps. Typing is put off until the format changes, so that a run of words is one
/// operation.
class Typing {
 public:
    Typing(const JobValues& job, Typist& type) : job_(job), type_(type), before_(type.indents()) {}

    void Run(const std::vector<Step>& steps) {
        for (const Step& step : steps) {
            if (IsSkipped(step)) continue;
            std::visit([&](const auto& present) { Do(present); }, step);
        }
        Finish();
    }

 private:
    // Conditions: `branches_` tells of each open one whether its present branch is taken.
    bool IsSkipped(const Step& step) const {
        if (std::holds_alternative<If>(step) || std::holds_alternative<Else>(step) ||
            std::holds_alternative<End>(step)) {
            return false;
        }
        return !IsTaken();
    }
    bool IsTaken() const { return std::find(branches_.begin(), branches_.end(), false) == branches_.end(); }
    void Do(const If& condition) {
        const bool isSo = condition.isOption ? job_.Has(static_cast<Option>(condition.number))
                                             : job_.IsFilled(static_cast<Field>(condition.number));
        branches_.push_back(isSo == condition.holds);
    }
    void Do(const Else&) { branches_.back() = !branches_.back(); }
    void Do(const End&) { branches_.pop_back(); }

    // Blocks. One begins with its first words, so that one whose words are all left out is none.
    void Do(const BeginBlock& block) {
        block_ = block;
        hasBegun_ = false;
        endsItself_ = false;
    }
    void Do(const EndBlock& end) {
        if (!hasBegun_) return;
        hasBegun_ = false;
        if (block_.level != BeginBlock::kParagraph) {
            // What ends the item is typed with its last words, when it is known what follows.
            itemIsOpen_ = last_ != '\r';
            if (wanted_ != present_) Flush();
            return;
        }
        if (!end.isPassage && !endsItself_ && last_ != '\r') Append("\r\r");
        Flush();
    }
    void Begin() {
        if (hasBegun_) return;
        hasBegun_ = true;
        if (block_.level == BeginBlock::kMore) {
            if (itemIsOpen_) words_ += "\v\v";
            itemIsOpen_ = false;
        } else if (block_.level == BeginBlock::kParagraph) {
            CloseList();
        } else {
            BeginItem();
        }
        SetRole();
        last_ = '\r';
    }
    /// Bold over the page stands a heading; the document's name is the first of them.
    void SetRole() {
        const bool isHeading = alignment_ == word::AlignCentre && wanted_.bold;
        const word::Role heading = hasTitle_ ? word::Role::Heading : word::Role::Title;
        const word::Role role = isHeading ? heading : word::Role::Body;
        hasTitle_ = hasTitle_ || isHeading;
        if (role == role_) return;
        Flush();
        type_.Role(role);
        role_ = role;
    }
    void BeginItem() {
        CloseItem();
        if (level_ == 0) {
            block_.outline ? type_.BeginOutline() : type_.BeginList();
            level_ = 1;
        }
        for (; level_ < block_.level; ++level_) type_.ListIn();
        for (; level_ > block_.level; --level_) type_.ListOut();
    }
    void CloseItem() {
        if (itemIsOpen_) words_ += "\v\r";
        itemIsOpen_ = false;
        TypeWords();
    }
    void CloseList() {
        CloseItem();
        if (level_ == 0) return;
        for (; level_ > 1; --level_) type_.ListOut();
        type_.EndList();
        level_ = 0;
    }

    // Words.
    void Append(std::string_view words) {
        if (wanted_ != present_) Flush();
        words_ += words;
        if (!words.empty()) last_ = words.back();
    }
    void TypeWords() {
        if (!words_.empty()) type_.Text(words_);
        words_.clear();
    }
    void Flush() {
        TypeWords();
        if (wanted_ != present_) Apply();
    }
    void Apply() {
        if (wanted_.bold != present_.bold) type_.Bold(wanted_.bold);
        if (wanted_.italic != present_.italic) type_.Italic(wanted_.italic);
        if (wanted_.underline != present_.underline) type_.Underline(wanted_.underline);
        present_ = wanted_;
    }
    void Do(const Words& step) {
        Begin();
        Append(step.words);
    }
    void Do(const Join&) {
        if (hasBegun_ && last_ != '\r' && last_ != '\v' && last_ != '\t') Append(" ");
    }
    void Do(const NoEnd&) { endsItself_ = true; }
    void Do(const Value& value) {
        Begin();
        Append(ValueOf(job_, value));
    }
    void Do(const Bold& mark) { wanted_.bold = mark.on; }
    void Do(const Italic& mark) { wanted_.italic = mark.on; }
    void Do(const Underlined& mark) { wanted_.underline = mark.kind; }
    void Do(const Box&) {
        Begin();
        Flush();
        type_.CheckBox(false);
        last_ = kUnknown;
    }
    void Do(const Call& passage) {
        Begin();
        Flush();
        passage.type(job_, type_);
        last_ = kUnknown;
    }

    // The page.
    void Do(const Page&) {
        CloseList();
        type_.PageBreak();
    }
    void Do(const text::Type& font) {
        CloseItem();
        type_.Font(font.name, font.points);
    }
    void Do(const Aligned& step) {
        CloseItem();
        type_.Align(step.alignment);
        alignment_ = step.alignment;
    }
    void Do(const Indented& step) {
        CloseList();
        type_.Indents(step.inches);
    }
    void Do(const Tabs& step) {
        CloseItem();
        for (const double stop : tabs_) type_.WordSel.Paragraphs.TabStops.Clear(word::InchesToPoints(stop));
        for (const double stop : step.inches)
            type_.WordSel.Paragraphs.TabStops.Add(word::InchesToPoints(stop));
        tabs_ = step.inches;
    }
    void Do(const Spaced& step) {
        CloseItem();
        type_.SpaceAfter(step.points);
        isSpaced_ = step.points != 0;
    }
    void Finish() {
        CloseList();
        Do(Tabs{});
        if (isSpaced_) Do(Spaced{});
        if (role_ != word::Role::Body) type_.Role(word::Role::Body);
        type_.Align(word::AlignLeft);
        type_.Indents(before_);
    }

    struct Characters {
        bool bold = false, italic = false;
        word::Underline underline = word::UnderlineNone;
        bool operator==(const Characters&) const = default;
    };

    static constexpr char kUnknown = '\0';  ///< what a passage typed last

    const JobValues& job_;
    Typist& type_;
    const double before_;  ///< the indents of the document that this text is the body of
    std::vector<bool> branches_;
    BeginBlock block_;
    bool hasBegun_ = false;
    bool endsItself_ = false;
    bool itemIsOpen_ = false;  ///< the blank line and the return of the last item are yet to be typed
    int level_ = 0;            ///< of the list in hand; 0 for none
    std::string words_;        ///< yet to be typed, in the present format
    char last_ = '\r';         ///< the last character of the block, '\r' before the first one
    Characters wanted_, present_;
    word::Alignment alignment_ = word::AlignLeft;
    word::Role role_ = word::Role::Body;
    bool hasTitle_ = false;
    std::vector<double> tabs_;
    bool isSpaced_ = false;
};

}  // namespace

TextDocument::TextDocument(const TextSource& source, Passages passages, std::span<const TextSource> family) {
    TextReader reader(passages, family, steps_, errors_, namedTexts_);
    reader.Read(source);
}

void TextDocument::Type(const JobValues& job, Typist& type) const {
    Typing(job, type).Run(steps_);
}

}  // namespace quillmark
