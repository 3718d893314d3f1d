#include <array>

#include "core/text_conversions.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kValueTab = 1.25;
constexpr int kRuleLength = 84;
constexpr int kNoteLines = 9;

void TypeRequests(Typist& type) {
    static constexpr auto kRequests =
        std::to_array<std::string_view>({" URGENT      ", " FOR REVIEW      ", " PLEASE COMMENT      ",
                                         " PLEASE REPLY      ", " PLEASE RECYCLE"});
    type.FontSize(9);
    for (const std::string_view request : kRequests) {
        type.CheckBox(false);
        type.Text(request);
    }
    type.Text("\r\r");
    type.FontSize(10);
}

void TypeRows(const JobValues& job, Typist& type) {
    const auto row = [&](std::string_view label, std::string_view value, std::string_view behind = {}) {
        type.TypeBold(label);
        type.Text("\t", value, behind, "\r", RepeatUnderscore(kRuleLength), "\r");
    };
    type.AtTab(kValueTab, [&] {
        row("TO:", job[BuyerAtty]);
        row("FIRM:", job[BuyerLawfirm]);
        row("FAX:", job[BuyerAttyFax]);
        row("PHONE:", job[BuyerAttyPhone]);
        row("FROM:", job[SellerAtty]);
        row("FAX:", job[SellerAttyFax]);
        row("PHONE:", job[SellerAttyPhone]);
        row("DATE:", job[DocumentDate]);
        row("PAGES:", RepeatUnderscore(6), " (including cover)");
        row("RE:", job.SellerNames() + " to " + job.BuyerNames());
        row("PROPERTY:", job.Property());
    });
}

}  // namespace

void TypeFaxCover(const JobValues& job, Typist& type) {
    type.Indents(0.375);
    type.Align(word::AlignCentre);
    type.Font("Arial", 16);
    type.TypeBold(job[SellerLawfirm]);
    type.FontSize(12);
    type.Text("\rFAX\r\r");
    TypeRequests(type);

    type.Align(word::AlignLeft);
    type.Spaced(4, [&] { TypeRows(job, type); });
    type.Text("\r");
    type.TypeBold("NOTES / COMMENTS:");
    type.Text("\r");
    for (int line = 0; line < kNoteLines; ++line) type.Text("\r", RepeatUnderscore(kRuleLength), "\r");

    type.FontSize(8);
    type.Text(
        "\rThis message is meant for the addressee alone and may be privileged between attorney and client.  Whoever "
        "receives it by mistake is asked to call the sender at once, to make no use or copy of it, and to destroy "
        "it.\r");
    type.Indents(0);
}

}  // namespace quillmark
