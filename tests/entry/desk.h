#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "entry/note_cells.h"
#include "entry/questions.h"
#include "entry/smart_fields.h"
#include "selection/field_rows.h"

namespace quillmark::test {

/// A job under way with its grid and the person before it. A box that was not expected fails the test.
class Desk : public ::testing::Test {
 protected:
    Desk() { AttachSmartFields(screen.job); }

    void List(std::initializer_list<int> fields) {
        for (const int n : fields) screen.job.txtField(n).relevant = true;
        RebuildRows(screen);
    }
    void Answer(ScriptedDialogs::Answers answers) { dialogs.SetAnswers(std::move(answers)); }

    /// Commits an entry as from the grid; the value that the field then has.
    std::string Enter(int n, std::string_view text, EntryPoint from = {}) {
        UpdateListing(n, text, screen, office, FieldQuestions(screen, office, from));
        EXPECT_EQ(dialogs.AnswersLeft(), 0u) << "field " << n << ": a question did not come";
        return screen.job.D(n);
    }
    std::string Click(int n, int column) {
        ShowFieldNotes(n, *FindRow(n, screen), column, screen);
        return screen.job.D(n);
    }
    const GridRow& Row(int n) { return *FindRow(n, screen); }
    std::size_t BoxesShown() { return dialogs.TakeShown().size(); }

    Settings settings;
    Folders folders;
    FirmDefaults firmDefaults;
    FixedClock clock{std::chrono::year(2026) / 3 / 9};
    ScriptedDialogs dialogs{{}, ScriptedDialogs::WhenUnanswered::Fail};
    Office office{settings, folders, firmDefaults, clock, dialogs};
    SelectionState screen;
};

}  // namespace quillmark::test
