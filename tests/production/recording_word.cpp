#include "production/recording_word.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "platform/paths.h"
#include "support/scratch.h"
#include "word/docx/objects/picture_size.h"

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
    if (font == "Superscript") characters_.superscript = std::get<bool>(value);
    if (font == "Italic") characters_.italic = std::get<bool>(value);
    if (font == "Underline") characters_.underline = static_cast<int>(Number(value));
    if (path == "Selection.ParagraphFormat.Alignment") paragraph.alignment = static_cast<int>(Number(value));
    if (path == "Selection.ParagraphFormat.SpaceAfter") paragraph.spaceAfter = Number(value);
    if (path == "Selection.Paragraphs.SpaceAfter") paragraph.spaceAfter = Number(value);
    if (path == "Selection.Paragraphs.LineSpacing") paragraph.lineSpacing = Number(value);
    if (path.ends_with(".Result")) TypeText("{" + std::get<std::string>(value) + "}");
    constexpr std::string_view kTick = ".CheckBox.Value";
    if (path.ends_with(kTick))
        TypeAt(fieldRanges_[path.substr(0, path.size() - kTick.size())],
               std::get<bool>(value) ? "{x}" : "{ }");
    if (path.ends_with(").Range.Text")) TypeAt(path.substr(0, path.size() - 5), std::get<std::string>(value));
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
    } else if (full == "Selection.InsertBreak") {
        // A section break ends the paragraph that it stands in.
        TypeText(arguments.front().value == Value(static_cast<std::int32_t>(word::PageBreak)) ? "\f" : "\r");
    } else if (full == "Selection.PageSetup.TextColumns.SetCount") {
        paragraph.columns = static_cast<int>(Number(arguments.front().value));
    } else if (member == "AddPicture") {
        const std::string bytes = ReadBytes(PathOf(std::get<std::string>(arguments.front().value)));
        const auto* range = arguments.size() > 1 ? std::get_if<ObjectPtr>(&arguments[1].value) : nullptr;
        TypeAt(range ? static_cast<const Node&>(**range).path() : "Selection.Range",
               "{" + word::docx::objects::ReadPictureSize(bytes).description + "}");
    } else if (full == "Selection.Paste") {
        TypeText("{" + clipboard_->description() + "}");
    } else if (full == "Selection.Paragraphs.TabStops.Add") {
        paragraph.tabs.insert(Number(arguments.front().value));
    } else if (full.starts_with("Selection.Paragraphs.TabStops(") && member == "Clear") {
        ClearTab(path);
    } else if (full == "Selection.Range.ListFormat.ApplyListTemplate") {
        paragraph.list = static_cast<const Node&>(*std::get<ObjectPtr>(arguments.front().value)).path();
        paragraph.left = 18;
    } else if (full == "Selection.Range.ListFormat.ApplyBulletDefault") {
        paragraph.list = "bullets";
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
    if (member == "Merge")
        MergeCells(path, static_cast<const Node&>(*std::get<ObjectPtr>(arguments.front().value)).path());
    if (member == "Cell")
        return Child(
            fmt::format("{}.Cell({}, {})", path, Shown(arguments[0].value), Shown(arguments[1].value)));
    if (member != "Add" || path.ends_with("TabStops")) return {};
    if (path == "Application.Documents") return Child("ActiveDocument");
    const std::string added = fmt::format("{}({})", path, ++added_[path]);
    if (path == "ActiveDocument.FormFields")
        fieldRanges_[added] = static_cast<const Node&>(*std::get<ObjectPtr>(arguments.front().value)).path();
    if (path == "ActiveDocument.Tables")
        AddTable(added, static_cast<int>(Number(arguments[1].value)),
                 static_cast<int>(Number(arguments[2].value)));
    return Child(added);
}

void RecordingWord::ClearTab(const std::string& path) {
    const double position = std::stod(path.substr(path.find('(') + 1));
    if (paragraphs_.back().tabs.erase(position) == 0) {
        throw AutomationError(word::error::kNoSuchElement, path);
    }
}

// A table stands in front of the empty paragraph that it was added to, which is the one before the paragraph
// in hand.
void RecordingWord::AddTable(const std::string& path, int rows, int columns) {
    tables_.push_back({path, paragraphs_.size() - 2, {}});
    tables_.back().cells.resize(static_cast<std::size_t>(rows),
                                std::vector<std::string>(static_cast<std::size_t>(columns)));
}

std::vector<std::vector<std::string>> RecordingWord::RowsBefore(const Paragraph& paragraph) const {
    for (const Table& table : tables_) {
        if (&paragraphs_[table.before] == &paragraph) return table.cells;
    }
    return {};
}

RecordingWord::CellPlace RecordingWord::FindCell(const std::string& range) {
    for (Table& table : tables_) {
        const std::string cell = table.path + ".Cell(";
        if (!range.starts_with(cell)) continue;
        const std::size_t row = std::stoul(range.substr(cell.size()));
        const std::size_t column = std::stoul(range.substr(range.find(", ", cell.size()) + 2));
        return {&table.cells.at(row - 1), column - 1};
    }
    return {};
}

void RecordingWord::TypeAt(const std::string& range, const std::string& text) {
    if (const CellPlace cell = FindCell(range); cell.row) {
        cell.row->at(cell.column) = text;
    } else {
        TypeText(text);
    }
}

void RecordingWord::MergeCells(const std::string& first, const std::string& last) {
    const CellPlace from = FindCell(first);
    from.row->erase(from.row->begin() + static_cast<std::ptrdiff_t>(from.column) + 1,
                    from.row->begin() + static_cast<std::ptrdiff_t>(FindCell(last).column) + 1);
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
           spaceAfter == other.spaceAfter && lineSpacing == other.lineSpacing && tabs == other.tabs &&
           columns == other.columns;
}

std::string RecordingWord::Text() const {
    std::string text;
    for (const Paragraph& paragraph : paragraphs_) {
        for (const auto& row : RowsBefore(paragraph)) {
            for (const std::string& cell : row) text += cell + '\n';
        }
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
    if (paragraph.columns != 1) line += fmt::format(", {} columns", paragraph.columns);
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
    if (look.superscript) marked = "^" + marked + "^";
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

std::string TableLines(const std::vector<std::vector<std::string>>& cells) {
    std::string lines;
    for (const auto& row : cells) {
        lines += "|";
        for (std::string cell : row) {
            std::ranges::replace(cell, '\r', '/');
            lines += " " + cell + " |";
        }
        lines += '\n';
    }
    return lines;
}

}  // namespace

std::string RecordingWord::Reading() const {
    std::string reading;
    const Paragraph* before = nullptr;
    std::string font;
    ListNumbers numbers;
    for (const Paragraph& paragraph : paragraphs_) {
        reading += TableLines(RowsBefore(paragraph));
        if (!before || !paragraph.HasFormatOf(*before)) reading += FormatLine(paragraph);
        before = &paragraph;
        if (paragraph.list == "bullets") {
            reading += "• ";
        } else {
            reading += numbers.Next(paragraph);
        }
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
