#include "platform/dialogs.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

const MessageDialog kOverwrite = {"  ALERT",
                                  "About to overwrite an existing file, data will be lost.",
                                  {DialogButton::OK, DialogButton::Cancel},
                                  DialogButton::Cancel,
                                  DialogIcon::Warning};

TEST(ScriptedDialogs, AnswersInOrderAndRecordsEveryBox) {
    ScriptedDialogs dialogs({"yes", "Jones", std::nullopt, "OK"});
    EXPECT_TRUE(dialogs.Confirm("  ALERT", "Save them now ???", DialogButton::No));
    EXPECT_EQ(dialogs.Ask({" RE-NAME ...", "ENTER A NEW NAME FOR THIS FILE", "Smith"}), "Jones");
    EXPECT_EQ(dialogs.Ask({"", "", "Smith"}), std::nullopt);
    EXPECT_EQ(dialogs.Show(kOverwrite), DialogButton::OK);
    EXPECT_EQ(dialogs.AnswersLeft(), 0u);

    const auto shown = dialogs.TakeShown();
    ASSERT_EQ(shown.size(), 4u);
    EXPECT_EQ(shown[0].answer, "Yes");
    EXPECT_EQ(shown[0].defaultAnswer, "No");
    EXPECT_EQ(shown[1].kind, ScriptedDialogs::Record::Kind::Input);
    EXPECT_EQ(shown[1].defaultAnswer, "Smith");
    EXPECT_EQ(shown[2].answer, std::nullopt);
    EXPECT_EQ(shown[3].icon, DialogIcon::Warning);
    EXPECT_TRUE(dialogs.Shown().empty());
}

TEST(ScriptedDialogs, WithoutAnswersTakesWhatTheBoxProposes) {
    ScriptedDialogs dialogs;
    EXPECT_EQ(dialogs.Show(kOverwrite), DialogButton::Cancel);
    EXPECT_EQ(dialogs.Ask({"", "", "Smith"}), "Smith");
}

TEST(ScriptedDialogs, AnAlertLeavesTheAnswerToTheNextQuestion) {
    ScriptedDialogs dialogs({"No"});
    dialogs.Tell(" FYI", "A deed was added.");
    EXPECT_FALSE(dialogs.Confirm("", "Go on?"));
}

TEST(ScriptedDialogs, AnAnswerWithoutAButtonIsAnError) {
    ScriptedDialogs dialogs({"Maybe"});
    EXPECT_THROW(dialogs.Show(kOverwrite), DialogError);
    ScriptedDialogs cancelled({std::nullopt});
    EXPECT_EQ(cancelled.Show(kOverwrite), DialogButton::Cancel);
}

TEST(ScriptedDialogs, AStrictListFailsAtABoxThatWasNotExpected) {
    ScriptedDialogs dialogs({"OK"}, ScriptedDialogs::WhenUnanswered::Fail);
    dialogs.Tell("", "expected");
    EXPECT_THROW(dialogs.Tell("", "unexpected"), DialogError);
    EXPECT_THROW(dialogs.Ask({}), DialogError);
}

}  // namespace
}  // namespace quillmark
