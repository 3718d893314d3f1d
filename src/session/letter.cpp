#include "session/letter.h"

#include "core/fields.h"
#include "core/text_conversions.h"
#include "selection/relevant_fields.h"

namespace quillmark {

void MailBuyersAttorney(ScreenState& screen, const FirmContext& firm, Shell& shell) {
    using namespace field;
    constexpr int kLetterHead[] = {SellerLawfirm,          SellerAtty,     SellerAttyAddr1, SellerAttyAddr2,
                                   SellerAttyCityStateZip, SellerAttyPhone};
    constexpr int kSignature[] = {SellerAtty, SellerLawfirm, Part(1, SellerAttyAddr1), SellerAttyCityStateZip,
                                  SellerAttyPhone};
    Job& job = screen.job;
    if (!job.IsFilled(SellerLawfirm)) AddFields(kLetterHead, screen, firm);
    std::string body =
        "Greetings Attorney " + job.D(Part(3, BuyerAtty)) + ",\r\n\r\n\r\n\r\nRespectfully Yours,\r\n\r\n";
    for (const int n : kSignature) body += job.D(n) + "\r\n";
    shell.Open("mailto:" + job.D(BuyerAttyEmail) + "?Subject=" + job.D(Part(1, PropertyAddress1)) + ", " +
               job.D(Part(1, PropertyCityStateZip)) + "&Body=" + EncodeForMail(body));
}

}  // namespace quillmark
