#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "core/options.h"
#include "core/text_conversions.h"
#include "desk.h"
#include "entry/filter_keys.h"
#include "support/scratch.h"

/// The rules of entry as tables that a lawyer can read: typed_values.txt, typed_keys.txt,
/// typed_questions.txt.
namespace quillmark::test {
namespace {

struct TableLine {
    int number = 0;                  ///< in its file
    std::vector<std::string> cells;  ///< a single one, without its brackets, begins a new job
    bool beginsJob = false;
};

std::string Cell(std::string text) {
    text = Trimmed(text);
    for (std::size_t at; (at = text.find("␣")) != text.npos;)
        text.replace(at, std::string_view("␣").size(), " ");
    return text;
}

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);) parts.push_back(Cell(part));
    return parts;
}

std::vector<TableLine> ReadTable(const std::string& file) {
    std::istringstream in(ReadBytes(SourceFolder() / "tests/entry" / file));
    std::vector<TableLine> lines;
    int number = 0;
    for (std::string text; std::getline(in, text);) {
        ++number;
        if (text.empty() || text.starts_with('#')) continue;
        if (text.starts_with('['))
            lines.push_back({number, {text.substr(1, text.size() - 2)}, true});
        else
            lines.push_back({number, Split(text, '|'), false});
        if (text.ends_with("|")) lines.back().cells.emplace_back();
    }
    EXPECT_GT(lines.size(), 10u) << file;
    return lines;
}

class TypedTables : public Desk {
 protected:
    void BeginJob(const std::string& title) {
        hand = {};
        AttachSmartFields(hand.job);
        templateBeingSet = title.find("template") != title.npos;
        if (title.find("SMS") != title.npos) hand.List2.push_back({"Payoff Letter / SMS"});
        for (int option = 1; option <= kOptions; ++option)
            if (title.find(OptionCaption(option)) != title.npos && option != OneSeller && option != OneBuyer)
                TurnOn(option, hand.job);
        if (const auto value = title.find(" = "); value != title.npos)
            hand.job.SetField(std::stoi(title.substr(value - 3)), title.substr(value + 3));
        List({86, 88, 99, 100, 117, 118, 170, 171, 173, 175, 177, 182, 193, 194, 196});
    }

    /// The text that the editor shows after the keys.
    std::string Shown(int n, std::string_view keys) const {
        EditorText editor;
        for (std::size_t at = 0; at < keys.size();) {
            std::size_t end = at + 1;
            while (end < keys.size() && (keys[end] & 0xC0) == 0x80) ++end;
            const std::string_view key = keys[at] == '<' ? kBackspace : keys.substr(at, end - at);
            editor = TypeKey(editor, key, {n, hand.job, templateBeingSet}, FieldMarker(n), true).editor;
            at = end;
        }
        return editor.text;
    }

    /// "Question -> Yes; ..." as boxes show it.
    std::string AskedOf(const std::string& typed, int n, const std::string& expected) {
        ScriptedDialogs::Answers answers;
        for (const std::string& part : Split(expected, ';'))
            answers.emplace_back(part.substr(part.rfind(' ') + 1));
        Answer(answers);
        Enter(n, typed == "(clear)" ? "" : typed);
        std::string asked;
        for (const auto& box : dialogs.TakeShown()) {
            std::string text = box.text;
            std::replace(text.begin(), text.end(), '\n', '/');
            asked += (asked.empty() ? "" : "; ") + text + " -> " + box.answer.value_or("");
        }
        return asked;
    }

    bool templateBeingSet = false;
};

TEST_F(TypedTables, ValuesBecomeWhatTheTableSays) {
    for (const TableLine& line : ReadTable("typed_values.txt")) {
        SCOPED_TRACE("typed_values.txt, line " + std::to_string(line.number));
        if (line.beginsJob) {
            BeginJob(line.cells[0]);
            continue;
        }
        ASSERT_EQ(line.cells.size(), 3u);
        const int n = std::stoi(line.cells[0]);
        if (line.cells[1] == "(clear)")
            hand.job.ClearField(n);
        else if (!line.cells[1].empty())
            hand.job.SetField(n, line.cells[1]);
        EXPECT_EQ(hand.job.D(n), line.cells[2]);
    }
}

TEST_F(TypedTables, KeysShowWhatTheTableSays) {
    for (const TableLine& line : ReadTable("typed_keys.txt")) {
        SCOPED_TRACE("typed_keys.txt, line " + std::to_string(line.number));
        if (line.beginsJob) {
            BeginJob(line.cells[0]);
            continue;
        }
        ASSERT_EQ(line.cells.size(), 3u);
        EXPECT_EQ(Shown(std::stoi(line.cells[0]), line.cells[1]), line.cells[2]);
    }
}

TEST_F(TypedTables, QuestionsComeAsTheTableSays) {
    for (const TableLine& line : ReadTable("typed_questions.txt")) {
        SCOPED_TRACE("typed_questions.txt, line " + std::to_string(line.number));
        if (line.beginsJob) {
            BeginJob(line.cells[0]);
            continue;
        }
        ASSERT_EQ(line.cells.size(), 4u);
        const int n = std::stoi(line.cells[0]);
        EXPECT_EQ(AskedOf(line.cells[1], n, line.cells[2]), line.cells[2]);
        EXPECT_EQ(hand.job.D(n), line.cells[3]);
    }
}

}  // namespace
}  // namespace quillmark::test
