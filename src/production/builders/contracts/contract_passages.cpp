#include "production/builders/contracts/contract_passages.h"

#include <array>
#include <string>
#include <string_view>

#include "core/text_conversions.h"
#include "platform/code_page.h"

namespace quillmark {

using namespace field;

namespace {

// ---- Values that the clauses name ----

/// The capacity in which a fiduciary sells: a testamentary trustee is called a trustee.
std::string FiduciaryTitle(const JobValues& job) {
    constexpr std::string_view kTestamentary = "Testamentary ";
    std::string title = job[FiduciaryType];
    if (const auto at = title.find(kTestamentary); at != title.npos) title.erase(at, kTestamentary.size());
    return title;
}

void TypeFiduciaryTitle(const JobValues& job, Typist& type) {
    type.Text(FiduciaryTitle(job));
}

void TypeBrokers(const JobValues& job, Typist& type) {
    type.TypeBold(job.BrokerNames());
}

/// Where an attorney is reached. One who practises alone has no firm, or one of the same name.
struct Office {
    Field attorney, firm, addr1, cityStateZip, phone, fax;
};
constexpr Office kOfSeller = {SellerAtty,      SellerLawfirm, SellerAttyAddr1, SellerAttyCityStateZip,
                              SellerAttyPhone, SellerAttyFax};
constexpr Office kOfBuyer = {BuyerAtty,      BuyerLawfirm, BuyerAttyAddr1, BuyerAttyCityStateZip,
                             BuyerAttyPhone, BuyerAttyFax};

void TypeAttorney(const JobValues& job, Typist& type, const Office& office) {
    type.Text(job[office.attorney], ", ");
    if (job[office.firm] != job[office.attorney]) type.Text(job[office.firm], ", ");
    type.Text(job.OneLine(office.addr1), ", ", job[office.cityStateZip], "; telephone ", job[office.phone],
              ", facsimile ", job[office.fax]);
}

/// How the buyers hold the title. The form is made before every buyer has said so, and then a line stays to
/// be written in.
void TypeTenancy(const JobValues& job, Typist& type) {
    constexpr std::uint16_t kBlank = 24;
    type.TypeBold(job.IsFilled(TenancyType) ? job[TenancyType] : RepeatUnderscore(kBlank));
}

/// A place to write in after the document is made.
void TypeBlank(const JobValues&, Typist& type) {
    type.TextField(std::string(30, ' '));
}

// ---- The price table ----

/// How wide a figure is, in quarters of the type size: in the type of the contracts a digit and the dollar
/// sign are half as wide as the size, a blank, a comma and a point a quarter.
std::size_t WidthOf(std::string_view figure) {
    std::size_t width = 0;
    for (const char c : figure) width += (c >= '0' && c <= '9') || c == '$' || c == '-' ? 2 : 1;
    return width;
}

/// The lines of the price and their sum, the figures one below the other. What is unfilled counts as nothing
/// and shows its marker. A binder has been paid before; its line stands only when there is one.
class PriceTable {
 public:
    PriceTable(const JobValues& job, Typist& type) : job_(job), type_(type) {
        const double price = AmountOf(job[SalePriceNumeric]);
        const double deposits = AmountOf(job[BinderDeposit]) + AmountOf(job[ContractDeposit]);
        BalanceDue_ = ShownAmount(DecimalText(price - deposits, 2));
        PriceTotal_ = "$ " + ShownAmount(DecimalText(price, 2)).substr(1);
    }

    void Type() {
        type_.Text("a.\tBefore or upon the signing of this Agreement, receipt of which is hereby\v");
        Line("\tacknowledged subject to collection,", 13, job_[ContractDeposit]);
        if (AmountOf(job_[BinderDeposit]) != 0)
            Line("\tAs a binder already paid, receipt of which is acknowledged,", 7, job_[BinderDeposit]);
        type_.Text("b.\tUpon the delivery of the deed hereunder, by certified check or cashier's check\v");
        Line("\tor by wire transfer of federal funds,", 13, BalanceDue_);
        type_.Text(RepeatTab(20), RepeatUnderscore(20), "\v", std::string(114, ' '));
        type_.TypeBold("TOTAL:");
        type_.Text(RepeatTab(3), PriceTotal_);
    }

 private:
    void Line(std::string_view words, std::uint16_t tabs, const std::string& amount) {
        const std::string figure = ShownAmount(amount);
        const std::size_t room = WidthOf(PriceTotal_), width = WidthOf(figure);
        const std::size_t blanks = figure.starts_with('[') || width > room ? 0 : room - width;
        type_.Text(words, RepeatTab(tabs, static_cast<std::uint16_t>(blanks)), figure, "\v");
    }

    const JobValues& job_;
    Typist& type_;
    std::string BalanceDue_;
    std::string PriceTotal_;
};

void TypePriceTable(const JobValues& job, Typist& type) {
    PriceTable(job, type).Type();
}

// ---- The signature page ----

/// Where the party signs, in inches; the witness signs at the left of it.
constexpr double kPartyTab = 3.625;

void TypeRules(Typist& type, std::string_view role) {
    type.Text(RepeatUnderscore(42), "(L.S.)\t", SignatureRule(), role, "\r");
}

/// Who signs, with the identification number that the tax return of the sale asks for.
void TypePerson(Typist& type, std::string_view role, std::string_view witness, std::string_view name,
                std::string_view taxId) {
    TypeRules(type, role);
    type.Text(witness, "\t", name, "\r\tTax ID#  ", taxId);
}

/// An entity by its agent.
void TypeEntity(const JobValues& job, Typist& type, std::string_view suffix) {
    type.Text("\t", UpperCase(job[Seller1Name]), RepeatReturn(3));
    TypeRules(type, "");
    type.Text(job[Witness1], "\t", job[Seller1Agent], ", ", job[Seller1AgentTitle], ", Seller\r");
    type.Text("\t", job[Seller1Name], suffix, "\r\tTax ID#  ", job[Seller1TaxId]);
}

/// Behind the name of the seller who acts by an attorney in fact.
std::string SellerPoaSuffix(const JobValues& job, Field seller) {
    if (!job.Has(PowerOfAttorney) || job[PrincipalOfPower] != job[seller]) return {};
    return ", by " + job[AttyInFact] + " as Attorney in Fact";
}

void TypeSellers(const JobValues& job, Typist& type) {
    const std::string SellerPoaSuffix1 = SellerPoaSuffix(job, Seller1Name);
    if (job.Has(Entity)) return TypeEntity(job, type, SellerPoaSuffix1);
    const std::string capacity = job.Has(EstateTrust) ? ", " + FiduciaryTitle(job) : std::string();
    TypePerson(type, " Seller", job[Witness1], job[Seller1Name] + capacity + SellerPoaSuffix1,
               job[Seller1TaxId]);
    if (!job.Has(TwoSellers)) return;
    const std::string SellerPoaSuffix2 = SellerPoaSuffix(job, Seller2Name);
    type.Text(RepeatReturn(4));
    TypePerson(type, " Seller", job[Witness2], job[Seller2Name] + capacity + SellerPoaSuffix2,
               job[Seller2TaxId]);
}

void TypeBuyers(const JobValues& job, Typist& type, std::string_view role) {
    TypePerson(type, role, job[Witness1], job[Buyer1Name], job[Buyer1TaxId]);
    if (!job.Has(TwoBuyers)) return;
    type.Text(RepeatReturn(4));
    TypePerson(type, role, job[Witness2], job[Buyer2Name], job[Buyer2TaxId]);
}

void TypeSignatures(const JobValues& job, Typist& type, std::string_view buyersRole) {
    type.AtTab(kPartyTab, [&] {
        type.As(word::Role::Signature, [&] {
            TypeSellers(job, type);
            type.Text(RepeatReturn(4));
            TypeBuyers(job, type, buyersRole);
            type.Text(RepeatReturn(3));
        });
    });
}

// ---- The notice of fair housing ----

/// Whether the sale is one of rental property of several families, which Public Act 16-16 gives a notice: the
/// person has said so, or the run makes the notice too.
bool AttachesFairHousingNotice(const JobValues& job) {
    return job.Tag(PropertyAddress1) == "M" || job.Makes("CHRO Fair Housing Notice");
}

/// As a line of the list of attachments.
void TypeFairHousingAttachment(const JobValues& job, Typist& type) {
    if (!AttachesFairHousingNotice(job)) return;
    type.CheckBox(true);
    type.Text("  CHRO FAIR HOUSING NOTICE\v");
}

/// As a paragraph, where the form has no such list.
void TypeFairHousingNotice(const JobValues& job, Typist& type) {
    if (!AttachesFairHousingNotice(job)) return;
    type.Text(
        "Attached to this Agreement and made a part hereof is the CHRO Fair Housing Notice, which Public Act "
        "16-16 prescribes for the sale of multi-family rental property.\r\r");
}

}  // namespace

Passages ContractPassages() {
    // clang-format off
    static constexpr auto kPassages = std::to_array<Passage>({
        {"fiduciary title",         TypeFiduciaryTitle},
        {"brokers",                 TypeBrokers},
        {"tenancy",                 TypeTenancy},
        {"attorney of seller", [](const JobValues& job, Typist& type) { TypeAttorney(job, type, kOfSeller); }},
        {"attorney of buyer", [](const JobValues& job, Typist& type) { TypeAttorney(job, type, kOfBuyer); }},
        {"blank",                   TypeBlank},
        {"price table",             TypePriceTable},
        {"signatures of seller and purchaser", [](const JobValues& job, Typist& type) {
            TypeSignatures(job, type, " Purchaser");
        }},
        {"signatures of seller and buyer", [](const JobValues& job, Typist& type) {
            TypeSignatures(job, type, " Buyer");
        }},
        {"fair housing attachment", TypeFairHousingAttachment},
        {"fair housing notice",     TypeFairHousingNotice},
    });
    // clang-format on
    return kPassages;
}

}  // namespace quillmark
