#include <fmt/format.h>

#include <random>

#include "core/field_registry.h"
#include "selection/option_tags.h"
#include "session/grid/editor_texts.h"
#include "session/office_fixture.h"

namespace quillmark {
namespace {

using test::OfficeTest;
using Texts = std::vector<std::string>;

constexpr int kDocumentDate = 1;
constexpr int kTextsPerField = 6;

// clang-format off
const Texts kPieces = {
    "Anna", " ", "Abbott", "1000", "$1,000.00", "0", " - ", "-", "=", " = ", "p", "U", "R", "Title search", "\"", ";", ",",
    "Guilford, CT 06437", "Cos Cob, CT", "3/5/2025", "soon", "_", "/", " (E)", " (M)", "é", "ß", "\r\n", "[x]",
    "2035550100", "123456789", "poc", "%", "Jr.", "June 1st", "(None)", "  ", "412345", "and", "12 Elm St", "99.999",
};
// clang-format on

/// Every value and derived value of a job, and what the holders say.
Texts ValuesOf(const Job& job) {
    Texts values;
    for (int n = 1; n <= kFields; ++n) {
        values.push_back(fmt::format("{}: {}", n, job.txtField(n).text));
        for (int k = 0; k <= 4; ++k)
            values.push_back(fmt::format("{}: {}", k * 1000 + n, job.D(k * 1000 + n)));
    }
    return values;
}

/// A job of which every field has a value and, when it is edited, a row.
class Ways : public OfficeTest {
 protected:
    static constexpr std::string_view kJob = "Full";

    Ways() : random_(20260309) {
        full_.JobDocuments = "Deed / Warranty:";
        for (int n = 2; n <= kFields; ++n)
            if (IsSavedField(n)) full_.SetField(n, SomeValue(n));
    }

    static bool IsSavedField(int n) { return n > kDocumentDate && FieldMarker(n).size() > 2; }

    /// One about which nothing is asked.
    static std::string_view SomeValue(int n) {
        if (TagFamilyOf(n) == TagFamily::LoanNumber) return "V (M)";
        return n == 79 ? "April 6, 2026" : "V";
    }

    void OpenWith(int n, std::string_view value) {
        Job job = full_;
        if (n > kDocumentDate) job.SetField(n, value);
        test::WriteBytes(JobFile(kJob), JobFileRecords(job));
        dialogs.SetAnswers({"No"});
        screen->Click("cmdReset");
        dialogs.SetAnswers({});
        screen->LoadJob(kJob, false);
        screen->Click("cmdOpen");
    }

    std::string RandomText() {
        std::string text;
        const auto pieces = 1 + random_() % 4;
        for (std::size_t i = 0; i < pieces; ++i) text += kPieces[random_() % kPieces.size()];
        return text;
    }

    /// The values after the text came to the emptied field in a way.
    Texts After(int n, std::string_view text, EntryWay way) {
        screen->EnterField(n, "", EntryWay::Paste);
        dialogs.TakeShown();
        dialogs.SetAnswers(answers_);
        screen->EnterField(n, text, way);
        return ValuesOf(State().job);
    }
    /// As a file keeps it: the attorney with his number.
    std::string StoredForm(int n) const {
        const Job& job = State().job;
        return n == 3 && !job.D(1003).empty() ? job.D(3) + "/" + job.D(1003) : job.D(n);
    }
    Texts AfterLoading(int n, std::string_view text) {
        OpenWith(n, text);
        return ValuesOf(State().job);
    }
    void UnlockAll() {
        for (int n = 1; n <= kFields; ++n)
            if (State().job.txtField(n).locked) {
                dialogs.SetAnswers({"Yes"});
                screen->UnlockRow(n);
            }
    }

    static void ExpectSame(const Texts& expected, const Texts& values, const std::string& what) {
        for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(expected[i], values[i]) << what;
    }

    Job full_;
    std::mt19937 random_;
    ScriptedDialogs::Answers answers_;
};

TEST_F(Ways, AValueIsTheSameWhateverWayItCame) {
    Start();
    OpenWith(0, "");
    UnlockAll();
    std::vector<std::tuple<int, std::string, Texts>> toLoad;
    for (int n = 1; n <= kFields && !HasFailure(); ++n) {
        if (n != kDocumentDate && !IsSavedField(n)) continue;
        for (int i = 0; i < kTextsPerField; ++i) {
            const std::string text = RandomText();
            answers_.assign(2, random_() % 2 ? "Yes" : "No");
            const std::string what = fmt::format("field {}, \"{}\", {}", n, text, *answers_[0]);
            const Texts pasted = After(n, text, EntryWay::Paste);
            const bool wasAsked = !dialogs.Shown().empty();
            const std::string stored = StoredForm(n);
            // An attorney's field without a value takes the firm's default when a job is opened.
            if (n < 10 && !State().job.IsFilled(n)) continue;
            if (TagFamilyOf(n) == TagFamily::None || !wasAsked)
                toLoad.emplace_back(n, IsBlockField(n) ? WithLineEnds(text, "\r\n") : PastedLine(text),
                                    pasted);
            toLoad.emplace_back(n, stored, pasted);
            ExpectSame(pasted, After(n, stored, EntryWay::Paste), what + ", its stored form pasted");
            Job again = State().job;
            again.RunChangeRule(n);
            ExpectSame(pasted, ValuesOf(again), what + ", its rule run again");
            if (IsPickedOnly(n)) continue;
            const std::string shown = screen->TypeInEditor(n, text);
            const Texts typed = After(n, text, EntryWay::Type);
            ExpectSame(typed, After(n, shown, EntryWay::Paste), what + ", typed");
        }
        After(n, SomeValue(n), EntryWay::Paste);
    }
    for (const auto& [n, text, values] : toLoad) {
        const bool isInFiles = n != kDocumentDate && !text.empty() && text.find('"') == text.npos;
        if (!isInFiles || text == FieldMarker(n)) continue;
        ExpectSame(values, AfterLoading(n, text), fmt::format("field {}, \"{}\" loaded", n, text));
        if (HasFailure()) break;
    }
}

TEST_F(Ways, APickIsTheSameAsItsTextPasted) {
    Start();
    OpenWith(0, "");
    UnlockAll();
    int picked = 0;
    for (int n = 2; n <= kFields; ++n) {
        if (!IsSavedField(n)) continue;
        for (int row = 0; row < static_cast<int>(State().grid.size()); ++row)
            if (State().grid[static_cast<std::size_t>(row)].n == n) screen->ClickGrid(row, 1);
        const Texts lines = screen->Editor().Combo1.lines;
        screen->KeyInEditor(EditorKey::Escape);
        for (const std::string& line : lines) {
            const Texts pasted = After(n, line, EntryWay::Paste);
            ExpectSame(pasted, After(n, line, EntryWay::Pick), fmt::format("field {}, \"{}\"", n, line));
            ++picked;
        }
        if (!lines.empty()) After(n, SomeValue(n), EntryWay::Paste);
    }
    EXPECT_GT(picked, 20);
}

}  // namespace
}  // namespace quillmark
