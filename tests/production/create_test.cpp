#include "production/run/create.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "core/fields.h"
#include "platform/paths.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using namespace std::chrono;

class Creating : public ::testing::Test {
 protected:
    Creating() {
        job.name = "Hollis";
        order.DocumentNames = {"Deed / Warranty", "Schedule A"};
        order.today = 2025y / April / 6;
        order.startWord = [this] { return desk.Started(); };
    }

    void Run() {
        CreateRun run(job, order);
        run.Run(TextOf(folder / "Hollis_QMF.docx"));
        notices = run.CreateNotices();
    }

    /// Where the line stands in the trace; fails when it is not there.
    std::size_t Place(const std::string& line) const {
        const auto found = std::ranges::find(trace, line);
        EXPECT_NE(found, trace.end()) << line;
        return static_cast<std::size_t>(found - trace.begin());
    }

    Job job = SampleDeal();
    CreateOrder order;
    EngineDesk desk{EngineDesk::Bare{}};
    const std::vector<std::string>& trace = desk.operations;
    std::string notices;
    ScratchFolder folder;
};

TEST_F(Creating, StepsComeInOrder) {
    desk.session.WordApp.Options.CheckGrammarAsYouType = false;
    desk.operations.clear();
    Run();
    const std::vector<std::string> steps = {
        "Application.Options.CheckSpellingAsYouType = False",
        "Documents.Add",
        "Range(1).InsertBreak 2",
        "ActiveDocument.Sections(1).Footers(1).LinkToPrevious = False",
        "ActiveDocument.Protect 2, True",
        "ActiveDocument.Sections(1).ProtectedForForms = False",
        "ActiveDocument.Sections(2).ProtectedForForms = False",
        "Selection.GoTo 3, 1",
        "ActiveDocument.SaveAs \"" + TextOf(folder / "Hollis_QMF.docx") + "\"",
        "Application.Options.CheckSpellingAsYouType = True",
        "Application.Visible = True",
    };
    for (std::size_t i = 1; i < steps.size(); ++i)
        EXPECT_LT(Place(steps[i - 1]), Place(steps[i])) << steps[i];
    EXPECT_THAT(trace, Not(Contains(HasSubstr("CheckGrammarAsYouType ="))));
    EXPECT_EQ(std::ranges::count(trace, "Range(1).InsertBreak 2"), 1) << "none before the first";
}

TEST_F(Creating, ProgressGoesFromAQuarterToTheEnd) {
    std::vector<double> values;
    order.onProgress = [&](const CreateProgress& progress) {
        EXPECT_EQ(progress.documents, 2u);
        EXPECT_LE(progress.value, progress.maximum);
        values.push_back(progress.value);
    };
    Run();
    EXPECT_THAT(values, ElementsAre(0.25, 0.5, 1, 1.5, 2, 2));
}

TEST_F(Creating, AFailureRestoresWordAndTheJobAndTellsTheNumber) {
    desk.session.WordApp.Options.CheckGrammarAsYouType = true;
    desk.operations.clear();
    desk.Refuse("ActiveDocument.Sections", 4605);
    try {
        Run();
        FAIL() << "the refusal was lost";
    } catch (const CreateError& failure) {
        EXPECT_EQ(failure.number(), 4605);
        EXPECT_EQ(failure.Message(), "CREATE error 4605");
        EXPECT_THAT(failure.what(), HasSubstr("ActiveDocument.Sections"));
    }
    EXPECT_LT(Place("Application.Options.CheckGrammarAsYouType = True"), trace.size());
    EXPECT_THAT(trace.back(), HasSubstr("Quit"));
    EXPECT_THAT(trace, Not(Contains(HasSubstr("SaveAs"))));
    EXPECT_EQ(job.D(field::ClosingTime), "[closing time]");
}

TEST_F(Creating, AnUnknownEntryStopsBeforeWordStarts) {
    order.DocumentNames.push_back("Deed / Waranty");
    EXPECT_THROW(Run(), CreateError);
    EXPECT_TRUE(trace.empty());
}

TEST_F(Creating, AWordThatCannotStartIsReportedAsSuch) {
    order.startWord = []() -> word::StartedWordProcessor { throw word::AutomationError(429, "no object"); };
    try {
        Run();
        FAIL() << "no failure";
    } catch (const CreateError& failure) {
        EXPECT_EQ(failure.Message(), "Full-Version MS Word required");
    }
}

TEST_F(Creating, DeedsAddTheirNotices) {
    Run();
    EXPECT_EQ(notices, "C");
}

}  // namespace
}  // namespace quillmark::test
