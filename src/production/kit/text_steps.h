#pragma once

#include <string>
#include <variant>
#include <vector>

#include "production/kit/job_values.h"
#include "production/kit/text_passages.h"

/// What a text document does, one step after the other, as its text was read (docs/text-documents.md).
namespace quillmark::text {

/// The forms in which a field's value can stand in a text.
enum class Form {
    Value,
    OneLine,
    TwoLines,
    Address,
    Town,
    County,
    Words,
    Day,
    Month,
    Year,
    Date,
    FirstName,
    LastName
};

// Conditions. What stands between `If` and `End` happens only when it holds, or behind `Else` when not.
struct If {
    bool isOption = false;
    int number = 0;  ///< of the option, or of the field that is to be filled
    bool holds = true;
};
struct Else {};
struct End {};

// A block and what stands in it.
struct BeginBlock {
    static constexpr int kParagraph = 0;
    static constexpr int kMore = -1;  ///< one more paragraph within the list item before it
    int level = kParagraph;           ///< 1 to 3 for a list item
    bool outline = false;             ///< its list has deeper levels
};
struct EndBlock {
    bool isPassage = false;  ///< it holds one passage and nothing else, which brings its own end
};
struct Words {
    std::string words;
};
struct Join {};   ///< the blank between two lines of the source
struct NoEnd {};  ///< the block ends without a return of its own
struct Bold {
    bool on = false;
};
struct Italic {
    bool on = false;
};
struct Underlined {
    word::Underline kind = word::UnderlineNone;
};
struct Box {};
struct Value {
    Form form = Form::Value;
    int number = 0;  ///< of the field; of a derived value k*1000+n
};
struct Call {
    void (*type)(const JobValues& job, Typist& type) = nullptr;
};

// What holds from there on.
struct Page {};
struct Type {
    std::string name;
    double points = 10;
};
struct Aligned {
    word::Alignment alignment = word::AlignLeft;
};
struct Indented {
    double inches = 0;
};
struct Tabs {
    std::vector<double> inches;
};
struct Spaced {
    double points = 0;
};

using Step = std::variant<If, Else, End, BeginBlock, EndBlock, Words, Join, NoEnd, Bold, Italic, Underlined,
                          Box, Value, Call, Page, Type, Aligned, Indented, Tabs, Spaced>;

}  // namespace quillmark::text
