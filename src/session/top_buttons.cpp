#include "core/text_conversions.h"
#include "selection/relevant_fields.h"
#include "session/main_screen.h"

namespace quillmark {

namespace {

constexpr int kSellerLawfirm = 2;
constexpr int kBuyerAttyEmail = 18;

}  // namespace

void MainScreen::Templates() {
    screen_.ScreenMode = screen_mode::kPresets;
    screen_.cmdOpen = {"SAVE", " save settings ", false, true};
    for (OptionButton& option : screen_.options) option = {true, true, option.tooltip};
    OpenBrowser(true);
}

/// With the buyer's attorney's address at hand, the button writes to it.
void MainScreen::ShowExit() {
    if (screen_.job.IsFilled(kBuyerAttyEmail))
        screen_.cmdExit = {"EMAIL", " email buyer attorney ", true, true};
    else
        screen_.cmdExit = {"EXIT", " shutdown Quillmark ", true, true};
}

void MainScreen::Mail() {
    Job& job = screen_.job;
    if (!job.IsFilled(kSellerLawfirm)) AddFields("D(2)_D(3)_D(4)_D(5)_D(6)_D(7)", screen_, office_);
    std::string body = "Greetings Attorney " + job.D(3012) + ",\r\n\r\n\r\n\r\nRespectfully Yours,\r\n\r\n";
    for (const int n : {3, 2, 1004, 6, 7}) body += job.D(n) + "\r\n";
    machine_.shell.Open("mailto:" + job.D(kBuyerAttyEmail) + "?Subject=" + job.D(1070) + ", " + job.D(1072) +
                        "&Body=" + EncodeForMail(body));
}

}  // namespace quillmark
