#include "production/recording_word.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace quillmark::test {

using word::Argument;
using word::Arguments;
using word::AutomationError;
using word::ObjectPtr;
using word::Value;

class RecordingWord::Node : public word::Object {
 public:
    Node(RecordingWord& word, std::string path) : word_(word), path_(std::move(path)) {}
    using word::Object::Call;
    using word::Object::Get;
    Value Get(std::string_view member, Arguments arguments) override {
        return word_.Get(path_, std::string(member), arguments);
    }
    void Put(std::string_view member, const Value& value) override {
        word_.Put(path_ + "." + std::string(member), value);
    }
    Value Call(std::string_view member, Arguments arguments) override {
        return word_.Call(path_, std::string(member), arguments);
    }
    const std::string& path() const { return path_; }

 private:
    RecordingWord& word_;
    std::string path_;
};

namespace {

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '\r':
                escaped += "\\r";
                break;
            case '\t':
                escaped += "\\t";
                break;
            case '\v':
                escaped += "\\v";
                break;
            case '"':
                escaped += "\\\"";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

double Number(const Value& value) {
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
    return std::get<double>(value);
}

/// The last member of a path, behind "Selection.Font." for instance; empty for another path.
std::string MemberBehind(const std::string& prefix, const std::string& path) {
    return path.starts_with(prefix) ? path.substr(prefix.size()) : std::string();
}

}  // namespace

RecordingWord::RecordingWord() : paragraphs_(1) {
    SetValue("Version", std::string("16.0"));
    SetValue("Application.Options.CheckSpellingAsYouType", false);
    SetValue("Application.Options.CheckGrammarAsYouType", false);
}

ObjectPtr RecordingWord::Application() {
    return std::make_shared<Node>(*this, "Application");
}

Value RecordingWord::Child(const std::string& path) {
    if (const auto found = refused_.find(path); found != refused_.end()) {
        throw AutomationError(found->second, path);
    }
    return ObjectPtr(std::make_shared<Node>(*this, path));
}

static std::string Shown(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return fmt::format("{}", *whole);
    if (const auto* real = std::get_if<double>(&value)) return fmt::format("{:g}", *real);
    if (const auto* text = std::get_if<std::string>(&value)) return fmt::format("\"{}\"", Escaped(*text));
    return "";
}

Value RecordingWord::Get(const std::string& path, const std::string& member, Arguments arguments) {
    if (member == "Item") return Child(path + "(" + Shown(arguments.front().value) + ")");
    const bool isTop = path == "Application" && member != "Options" && member != "Documents";
    const std::string full = isTop ? member : path + "." + member;
    const auto value = values_.find(full);
    if (value == values_.end()) return Child(full);
    operations_.push_back(full + " -> " + Shown(value->second));
    return value->second;
}

void RecordingWord::Put(const std::string& path, const Value& value) {
    operations_.push_back(path + " = " + Shown(value));
    values_[path] = value;
    Paragraph& paragraph = paragraphs_.back();
    const std::string font = MemberBehind("Selection.Font.", path);
    if (font == "Name") characters_.font = std::get<std::string>(value);
    if (font == "Size") characters_.size = Number(value);
    if (font == "Bold") characters_.bold = std::get<bool>(value);
    if (font == "Italic") characters_.italic = std::get<bool>(value);
    if (font == "Underline") characters_.underline = static_cast<int>(Number(value));
    if (path == "Selection.ParagraphFormat.Alignment") paragraph.alignment = static_cast<int>(Number(value));
    if (path == "Selection.ParagraphFormat.SpaceAfter") paragraph.spaceAfter = Number(value);
    if (path == "Selection.Paragraphs.SpaceAfter") paragraph.spaceAfter = Number(value);
    if (path == "Selection.Paragraphs.LineSpacing") paragraph.lineSpacing = Number(value);
    if (path.ends_with(".Result")) TypeText("{" + std::get<std::string>(value) + "}");
    if (path.ends_with(".CheckBox.Value")) TypeText(std::get<bool>(value) ? "{x}" : "{ }");
    if (path == "Selection.Paragraphs.LeftIndent") paragraph.left = Number(value);
    if (path == "Selection.Paragraphs.RightIndent") paragraph.right = Number(value);
}

Value RecordingWord::Call(const std::string& path, const std::string& member, Arguments arguments) {
    const std::string full = path + "." + member;
    std::string line = full;
    for (const Argument& argument : arguments) {
        line += &argument == arguments.data() ? " " : ", ";
        if (!argument.name.empty()) line += std::string(argument.name) + ":=";
        const auto* object = std::get_if<ObjectPtr>(&argument.value);
        line += object ? static_cast<const Node&>(**object).path() : Shown(argument.value);
    }
    operations_.push_back(line);

    Paragraph& paragraph = paragraphs_.back();
    if (full == "Selection.TypeText") {
        TypeText(std::get<std::string>(arguments.front().value));
    } else if (full == "Selection.TypeBackspace") {
        paragraph.runs.back().second.pop_back();
    } else if (full == "Selection.InsertBreak" &&
               arguments.front().value == Value(static_cast<std::int32_t>(word::PageBreak))) {
        TypeText("\f");
    } else if (full == "Selection.Paste") {
        TypeText("{" + clipboard_->picture() + "}");
    } else if (full == "Selection.Paragraphs.TabStops.Add") {
        paragraph.tabs.insert(Number(arguments.front().value));
    } else if (full.starts_with("Selection.Paragraphs.TabStops(") && member == "Clear") {
        ClearTab(path);
    } else if (full == "Selection.Range.ListFormat.ApplyListTemplate") {
        paragraph.list = static_cast<const Node&>(*std::get<ObjectPtr>(arguments.front().value)).path();
        paragraph.left = 18;
    } else if (full == "Selection.Range.ListFormat.RemoveNumbers") {
        paragraph.list.clear();
        paragraph.level = 1;
        paragraph.left = 0;
    } else if (full == "Selection.Range.ListFormat.ListIndent") {
        ++paragraph.level;
    } else if (full == "Selection.Range.ListFormat.ListOutdent") {
        --paragraph.level;
    }
    if (member != "Add" || path.ends_with("TabStops")) return {};
    if (path == "Application.Documents") return Child("ActiveDocument");
    return Child(fmt::format("{}({})", path, ++added_[path]));
}

void RecordingWord::ClearTab(const std::string& path) {
    const double position = std::stod(path.substr(path.find('(') + 1));
    if (paragraphs_.back().tabs.erase(position) == 0) {
        throw AutomationError(word::error::kNoSuchElement, path);
    }
}

void RecordingWord::TypeText(const std::string& text) {
    for (const char c : text) {
        auto& runs = paragraphs_.back().runs;
        if (c == '\r') {
            Paragraph next = paragraphs_.back();
            next.runs.clear();
            paragraphs_.push_back(std::move(next));
        } else if (!runs.empty() && runs.back().first == characters_) {
            runs.back().second += c;
        } else {
            runs.emplace_back(characters_, std::string(1, c));
        }
    }
}

bool RecordingWord::Paragraph::HasFormatOf(const Paragraph& other) const {
    return alignment == other.alignment && left == other.left && right == other.right &&
           spaceAfter == other.spaceAfter && lineSpacing == other.lineSpacing && tabs == other.tabs;
}

std::string RecordingWord::Text() const {
    std::string text;
    for (const Paragraph& paragraph : paragraphs_) {
        for (const auto& run : paragraph.runs) text += run.second;
        text += '\n';
    }
    return text;
}

namespace {

std::string FormatLine(const RecordingWord::Paragraph& paragraph) {
    static const char* const kAlignments[] = {"left", "centred", "right", "justified"};
    std::string line = fmt::format("[{}, indents {:g} and {:g}", kAlignments[paragraph.alignment],
                                   paragraph.left, paragraph.right);
    for (const double tab : paragraph.tabs) line += fmt::format(", tab stop {:g}", tab);
    if (paragraph.spaceAfter != 0) line += fmt::format(", space after {:g}", paragraph.spaceAfter);
    if (paragraph.lineSpacing != 12) line += fmt::format(", lines of {:g}", paragraph.lineSpacing);
    return line + "]\n";
}

std::string Visible(const std::string& text) {
    std::string visible;
    for (const char c : text) {
        if (c == '\t')
            visible += "→";
        else if (c == '\v')
            visible += "↵";
        else if (c == '\f')
            visible += "‹page›";
        else
            visible += c;
    }
    return visible;
}

std::string Marked(const RecordingWord::Characters& look, const std::string& text) {
    std::string marked = Visible(text);
    if (look.underline == word::UnderlineDouble) marked = "=" + marked + "=";
    if (look.underline != 0) marked = "=" + marked + "=";
    if (look.italic) marked = "~" + marked + "~";
    if (look.bold) marked = "*" + marked + "*";
    return marked;
}

/// The numbers of list items as the outline counts them: 1., a., i.
class ListNumbers {
 public:
    std::string Next(const RecordingWord::Paragraph& paragraph) {
        if (paragraph.list.empty()) {
            counts_ = {};
            return {};
        }
        const auto level = static_cast<std::size_t>(paragraph.level - 1);
        const int count = ++counts_.at(level);
        std::fill(counts_.begin() + paragraph.level, counts_.end(), 0);
        static const char* const kRoman[] = {"i", "ii", "iii", "iv", "v", "vi", "vii", "viii", "ix", "x"};
        const std::string number = level == 0   ? fmt::format("{}", count)
                                   : level == 1 ? std::string(1, static_cast<char>('a' + count - 1))
                                                : std::string(kRoman[(count - 1) % 10]);
        return std::string(3 * level, ' ') + number + ". ";
    }

 private:
    std::array<int, 3> counts_ = {};
};

}  // namespace

std::string RecordingWord::Reading() const {
    std::string reading;
    const Paragraph* before = nullptr;
    std::string font;
    ListNumbers numbers;
    for (const Paragraph& paragraph : paragraphs_) {
        if (!before || !paragraph.HasFormatOf(*before)) reading += FormatLine(paragraph);
        before = &paragraph;
        reading += numbers.Next(paragraph);
        for (const auto& [look, text] : paragraph.runs) {
            const std::string runFont = fmt::format("‹{} {:g}›", look.font, look.size);
            if (runFont != font) reading += runFont;
            font = runFont;
            reading += Marked(look, text);
        }
        reading += '\n';
    }
    return reading;
}

}  // namespace quillmark::test
