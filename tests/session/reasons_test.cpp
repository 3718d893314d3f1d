#include "session/state/reasons.h"

#include <gmock/gmock.h>

#include "session/office_fixture.h"
#include "session/state/buttons.h"

namespace quillmark {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class Reasons : public test::OfficeTest {
 protected:
    std::string Why(std::string_view control) const { return WhyDisabled(control, State()); }

    /// Every grey control has a reason, and no other has one.
    void ExpectReasonsForAllThatIsGrey() const {
        const auto check = [&](const std::string& control, bool enabled) {
            EXPECT_EQ(enabled, Why(control).empty()) << control << ": " << Why(control);
        };
        for (const NamedButton& button : Buttons())
            check(std::string(button.name), (State().*button.button).enabled);
        for (int n = 1; n <= kOptions; ++n) check("optConf" + std::to_string(n), State().ButtonOf(n).enabled);
        for (std::size_t g = 1; g <= 6; ++g) check("lblJump" + std::to_string(g), State().lblJump(g).enabled);
        check("List1", State().List1Enabled);
        check("List2", State().List2Enabled);
        check("txtJobName", State().txtJobName.enabled);
    }
};

TEST_F(Reasons, FollowTheStagesOfAJob) {
    Start();
    ExpectReasonsForAllThatIsGrey();
    EXPECT_THAT(Why("cmdCreate"), HasSubstr("Choose documents first"));
    EXPECT_THAT(Why("optConf1"), HasSubstr("Choose documents first"));
    screen->TypeName("Reed");
    EXPECT_THAT(Why("cmdOpen"), HasSubstr("RESET"));
    EXPECT_THAT(Why("cmdCustom"), HasSubstr("RESET"));
    screen->EnterName();
    screen->PickDocument("Deed / Warranty");
    ExpectReasonsForAllThatIsGrey();
    EXPECT_THAT(Why("optConf9"), HasSubstr("No document")) << "no deed asks for a condominium";
    screen->ClickOption(Entity);
    EXPECT_EQ(Why("optConf2"), "Not together with Entity.");
    screen->EnterField(21, "Reed LLC", EntryWay::Type);
    ExpectReasonsForAllThatIsGrey();
    EXPECT_THAT(Why("List1"), HasSubstr("closes with the first option or field"));
    screen->Click("cmdOpen");
    EXPECT_THAT(Why("cmdOpen"), HasSubstr("saved"));
}

TEST_F(Reasons, OfTheSettings) {
    Start();
    screen->TypeName("DEFAULTS");
    screen->EnterName();
    ExpectReasonsForAllThatIsGrey();
    EXPECT_THAT(Why("cmdCreate"), HasSubstr("RESET"));
}

}  // namespace
}  // namespace quillmark
