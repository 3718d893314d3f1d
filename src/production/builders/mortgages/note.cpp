#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/mortgages/passages_mortgage.h"
#include "production/builders/text_bodies.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kDateTab = 1;
/// The signatures stand in the right half, on the default tab stops.
constexpr std::uint16_t kSignatureTabs = 14;
constexpr std::uint16_t kOriginalTabs = 22;

void TypeHeading(Typist& type, bool isBalloon) {
    type.Align(word::AlignCentre);
    if (isBalloon) {
        type.Font("Arial", 10);
        type.TypeBold(
            "THIS LOAN IS PAYABLE IN FULL AT MATURITY. YOU MUST REPAY THE ENTIRE PRINCIPAL THAT IS THEN UNPAID, "
            "WITH INTEREST. BEYOND WHAT THE BALLOON RIDER GIVES YOU, THE LENDER HAS NO DUTY TO REFINANCE THE LOAN "
            "AT THAT TIME. YOU WILL HAVE TO PAY FROM OTHER MEANS OR FIND A LENDER WILLING TO LEND YOU THE MONEY, AND "
            "MAY HAVE TO PAY THE CLOSING COSTS OF A NEW LOAN, EVEN IF YOU OBTAIN IT FROM THIS LENDER.",
            RepeatReturn(2));
    }
    type.Font("Arial", 11);
    type.As(word::Role::Title, [&] {
        type.TypeBold(isBalloon ? "BALLOON NOTE" : "PROMISSORY NOTE", "\r(FIXED RATE)",
                      RepeatReturn(isBalloon ? 2 : 3));
    });
    type.Align(word::AlignLeft);
    type.FontSize(10);
}

void TypeDateAndPlace(const JobValues& job, Typist& type) {
    type.AtTab(kDateTab, [&] {
        type.TypeBold("DATED:");
        type.Text("\t", job[DocumentDate], "\r");
        type.TypeBold("AT:");
        type.Text("\t", job[TownOfExecution], ", Connecticut\r");
        type.TypeBold("PROPERTY:");
        type.Text("\t", job.Property(), RepeatReturn(2));
    });
}

void TypeSeal(Typist& type, std::string_view name, int returns) {
    const std::string tabs = RepeatTab(kSignatureTabs);
    type.Text(tabs, RepeatUnderscore(42), "  (Seal)\r", tabs, name,
              RepeatReturn(static_cast<std::uint16_t>(returns)));
}

void TypeExecution(const JobValues& job, Typist& type) {
    type.Text("WITNESS THE HAND(S) AND SEAL(S) OF THE UNDERSIGNED.", RepeatReturn(5));
    TypeSeal(type, job[Buyer1Name], job.Has(TwoBuyers) ? 4 : 2);
    if (job.Has(TwoBuyers)) TypeSeal(type, job[Buyer2Name], 2);
    type.Text(RepeatTab(kOriginalTabs), "[Sign Original Only]", RepeatReturn(3));
}

void TypeFormLine(Typist& type, bool isBalloon) {
    type.Align(word::AlignCentre);
    type.Font("Arial", 9);
    type.Text(isBalloon
                  ? "MULTISTATE BALLOON NOTE (Fixed Rate)--Single Family--Freddie Mac UNIFORM INSTRUMENT "
                    "Form 3290   1/01"
                  : "MULTISTATE FIXED RATE NOTE--Single Family--Fannie Mae/Freddie Mac UNIFORM "
                    "INSTRUMENT    Form 3200   1/01",
              "\r");
    type.Align(word::AlignLeft);
}

}  // namespace

/// The fixed-rate note; with the tag "BLN" the balloon note and its rider.
void TypeFixedRateNote(const JobValues& job, Typist& type, const Variant& variant) {
    const bool isBalloon = variant.tag == "BLN";

    TypeHeading(type, isBalloon);
    TypeDateAndPlace(job, type);
    TypeBody("mortgages/note.txt", job, type);
    type.As(word::Role::Signature, [&] { TypeExecution(job, type); });
    TypeFormLine(type, isBalloon);

    if (isBalloon) TypeBalloonRider(job, type);
}

}  // namespace quillmark
