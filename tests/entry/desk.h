#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "entry/field_listing.h"
#include "entry/note_cells.h"
#include "entry/questions.h"
#include "entry/smart_fields.h"
#include "platform/dialogs.h"
#include "selection/field_rows.h"
#include "selection/firm_context.h"

namespace quillmark::test {

/// A job under way with its grid and the person before it. A box that was not expected fails the test.
class Desk : public ::testing::Test {
 protected:
    Desk() { AttachSmartFields(hand.job); }

    void List(std::initializer_list<int> fields) {
        for (const int n : fields) hand.job.txtField(n).relevant = true;
        RebuildRows(hand);
    }
    void Answer(ScriptedDialogs::Answers answers) { dialogs.SetAnswers(std::move(answers)); }

    /// Commits an entry as from the grid, asking its questions; the value that the field then has.
    std::string Enter(int n, std::string_view text) {
        std::vector<bool> answers;
        for (;;) {
            const QuestionStep step = NextQuestion(n, text, answers, hand);
            if (!step.question) {
                UpdateListing(n, text, hand, {.tag = step.tag});
                break;
            }
            answers.push_back(dialogs.Confirm(step.question->title, step.question->text));
        }
        EXPECT_EQ(dialogs.AnswersLeft(), 0u) << "field " << n << ": a question did not come";
        return hand.job.D(n);
    }
    std::string Click(int n, int column) {
        ShowFieldNotes(n, *FindRow(n, hand), column, hand);
        return hand.job.D(n);
    }
    const GridRow& Row(int n) { return *FindRow(n, hand); }
    std::size_t BoxesShown() { return dialogs.TakeShown().size(); }

    Settings settings;
    Folders folders;
    FirmDefaults firmDefaults;
    FixedClock clock{std::chrono::year(2026) / 3 / 9};
    ScriptedDialogs dialogs{{}, ScriptedDialogs::WhenUnanswered::Fail};
    FirmContext firm{settings, folders, firmDefaults, clock};
    JobInHand hand;
};

}  // namespace quillmark::test
