#include "core/fields.h"
#include "core/text_conversions.h"
#include "selection/relevant_fields.h"
#include "session/main_screen.h"

namespace quillmark {

namespace {}  // namespace

void MainScreen::Templates() {
    screen_.ScreenMode = screen_mode::kPresets;
    screen_.cmdOpen = {"SAVE", " save settings ", false, true};
    for (OptionButton& option : screen_.options) option = {true, true, option.tooltip};
    OpenBrowser(true);
}

/// With the buyer's attorney's address at hand, the button writes to it.
void MainScreen::ShowExit() {
    if (screen_.job.IsFilled(field::BuyerAttyEmail))
        screen_.cmdExit = {"EMAIL", " email buyer attorney ", true, true};
    else
        screen_.cmdExit = {"EXIT", " shutdown Quillmark ", true, true};
}

void MainScreen::Mail() {
    using namespace field;
    constexpr int kLetterHead[] = {SellerLawfirm,          SellerAtty,     SellerAttyAddr1, SellerAttyAddr2,
                                   SellerAttyCityStateZip, SellerAttyPhone};
    constexpr int kOneLineAddress = Part(1, SellerAttyAddr1);
    Job& job = screen_.job;
    if (!job.IsFilled(SellerLawfirm)) AddFields(kLetterHead, screen_, office_);
    std::string body =
        "Greetings Attorney " + job.D(Part(3, BuyerAtty)) + ",\r\n\r\n\r\n\r\nRespectfully Yours,\r\n\r\n";
    for (const int n : {int{SellerAtty}, int{SellerLawfirm}, kOneLineAddress, int{SellerAttyCityStateZip},
                        int{SellerAttyPhone}})
        body += job.D(n) + "\r\n";
    machine_.shell.Open("mailto:" + job.D(BuyerAttyEmail) + "?Subject=" + job.D(Part(1, PropertyAddress1)) +
                        ", " + job.D(Part(1, PropertyCityStateZip)) + "&Body=" + EncodeForMail(body));
}

}  // namespace quillmark
