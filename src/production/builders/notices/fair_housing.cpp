#include "core/text_conversions.h"
#include "production/kit/pictures.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

void TypeHeading(Typist& type, std::string_view heading) {
    type.TypeBold(heading);
    type.Text("\r\r");
}

void TypeRights(Typist& type) {
    TypeHeading(type, "WHOM THE LAW PROTECTS");
    type.Text(
        "Connecticut forbids anyone who sells, rents, finances or brokers housing to treat a person worse because "
        "of:\r\r");
    type.BulletedList({
        "race, color, national origin or ancestry;",
        "creed or religion;",
        "sex, gender identity or expression, or sexual orientation;",
        "age or marital status;",
        "children in the family, or a pregnancy;",
        "a physical, mental, intellectual or learning disability;",
        "a lawful source of income, such as housing assistance, Social Security, support or alimony;",
        "status as a veteran, or as a victim of domestic violence.",
    });
}

void TypeDuties(Typist& type) {
    TypeHeading(type, "WHAT AN OWNER MAY NOT DO");
    type.Text("For any of these reasons, the owner of a dwelling may not:\r\r");
    type.BulletedList({
        "refuse to rent, sell, show or negotiate, or say falsely that nothing is available;",
        "ask for a higher rent, a larger deposit or other terms, or give lesser services;",
        "steer people to or from a building, a floor or a neighborhood;",
        "advertise a preference or a limit;",
        "refuse rent that a program pays, or ask for a job where other income is enough;",
        "harass, or take revenge on someone who asserts these rights.",
    });
    TypeHeading(type, "TENANTS WITH DISABILITIES");
    type.Text("An owner must also allow what a disability makes necessary:\r\r");
    type.BulletedList({
        "changes of rules and practices that are reasonable, such as an assistance animal where pets are barred;",
        "reasonable alterations of the dwelling at the tenant's expense.",
    });
}

void TypeWhereToTurn(Typist& type) {
    TypeHeading(type, "WHERE TO TURN");
    type.Text(
        "Commission on Human Rights and Opportunities, Housing Discrimination Unit, 450 Columbus Boulevard, "
        "Hartford, CT 06103: (860) 541-3403, or (800) 477-5737 within Connecticut; TDD (860) 541-3459. Complaints "
        "must be filed in time: ask early.\r\r");
    type.Text("U.S. Department of Housing and Urban Development: (800) 669-9777.\r");
}

/// Whoever buys has the notice in hand and signs for it.
void TypeReceipt(const JobValues& job, Typist& type) {
    type.Text(
        "\rReceived by the buyer of residential property of two or more units, as Public Act 16-16 requires, this ",
        job.DayMonthYear(DocumentDate), ":\r");
    type.AtTab(kSignatureTab, [&] { TypeSignatures(type, BuyerSigners(job, "Buyer")); });
}

}  // namespace

/// The notice of fair housing law for buyers of multi-family property; C.G.S. Sec. 46a-64c, 46a-81e.
void TypeFairHousingNotice(const JobValues& job, Typist& type) {
    type.Indents(0);
    type.Align(word::AlignCentre);
    type.Font("Arial", 10);
    AddPicture(type, "notices/fair_housing.png");
    type.FontSize(14);
    type.TypeBold("\rFAIR HOUSING IS THE LAW IN CONNECTICUT");
    type.FontSize(10);
    type.Text("\rNotice to buyers of property that is rented or can be rented to two or more families\r\r");

    type.Align(word::AlignLeft);
    type.Columns(2, 0.4, [&] {
        TypeRights(type);
        TypeDuties(type);
        TypeWhereToTurn(type);
    });
    TypeReceipt(job, type);
    type.Indents(0);
}

}  // namespace quillmark
