#include "tools/op236/return_values.h"

#include <fmt/format.h>

#include <algorithm>

#include "closing/closing_figures.h"
#include "core/fields.h"
#include "core/people.h"
#include "core/text_conversions.h"
#include "tools/op236/exemptions.h"
#include "tools/op236/return_parts.h"
#include "tools/window/filled_values.h"

namespace quillmark::op236 {

using namespace field;

namespace {

/// The catalogue's names of the instruments; a mortgage deed has several that begin so.
constexpr std::array<std::string_view, 9> kEntries = {"Deed / Administrator",
                                                      "Deed / Conservator",
                                                      "Deed / Easement",
                                                      "Deed / Executor",
                                                      "Mortgage Deed",
                                                      "Deed / Quitclaim",
                                                      "Deed / Testamentary Trustee",
                                                      "Deed / Trustee",
                                                      "Deed / Warranty"};

bool IsEntry(std::string_view entry, std::size_t instrument) {
    return instrument == kMortgageDeed ? entry.starts_with(kEntries[instrument])
                                       : entry == kEntries[instrument];
}

std::string_view InstrumentLetter(int instrument) {
    switch (instrument) {
        case kWarrantyDeed:
            return "W";
        case kQuitclaimDeed:
            return "Q";
        case kEasement:
            return "E";
        default:
            return "O";
    }
}

/// "415000", "415000.50", "415000.1255".
std::string PlainPrice(double price) {
    constexpr std::size_t kCents = 2;
    std::string text = DecimalText(price, 4);
    const std::size_t point = text.find('.');
    while (text.ends_with('0') && text.size() > point + 1 + kCents) text.pop_back();
    return text.ends_with(".00") ? text.substr(0, point) : text;
}

/// Puts the values together, section by section from the top of the return.
class Return {
 public:
    Return(const Job& job, const ReturnEntries& entries, const Clock& clock)
        : job_(job), value_(job), entries_(entries), clock_(clock) {}

    std::vector<FieldValue> Values() {
        Property();
        Sellers();
        Particulars();
        Buyer();
        Conveyance();
        Consideration();
        Signature();
        if (NeedsScheduleA(job_, entries_)) ScheduleA();
        if (NeedsScheduleB(job_, entries_)) ScheduleB();
        return std::move(values_);
    }

 private:
    void Property();
    void Sellers();
    void Particulars();
    void Buyer();
    void Conveyance();
    void Consideration();
    void Signature();
    void ScheduleA();
    void ScheduleB();
    void SecondBuyer();

    void Put(std::string_view field, std::string_view text) {
        if (!text.empty()) values_.push_back({std::string(field), std::string(text)});
    }
    void Tick(std::string_view field) { values_.push_back({std::string(field), {}, true}); }
    void PutCity(std::string_view cityLine, std::string_view city, std::string_view state,
                 std::string_view zip) {
        const CityLine parts = SplitCityLine(cityLine);
        Put(city, parts.city);
        Put(state, parts.state);
        Put(zip, parts.zip);
    }
    void PutClosingDate(std::string_view month, std::string_view day, std::string_view year) {
        const auto date =
            ReadDate(value_[ClosingDate].empty() ? LongDate(clock_.Today()) : value_[ClosingDate]);
        if (!date) return;
        Put(month, fmt::format("{:02}", static_cast<unsigned>(date->month())));
        Put(day, fmt::format("{:02}", static_cast<unsigned>(date->day())));
        Put(year, fmt::format("{:04}", static_cast<int>(date->year())));
    }

    const Job& job_;
    const FilledValues value_;
    const ReturnEntries& entries_;
    const Clock& clock_;
    std::vector<FieldValue> values_;
};

void Return::Property() {
    Put("Town", value_[kTown]);
    Put("LocProp", value_[kPropertyLine]);
}

void Return::Sellers() {
    Put("Grantor1.0", LastNameFirst(value_, Seller1Name));
    Put("TID.0", value_[Seller1TaxId]);
    if (!value_[Seller1TaxId].empty()) Put("TID1", IsEntitySeller(value_, entries_) ? "FID" : "SSN");
    Put("Grantoradd.0.0", entries_.seller1.street);
    PutCity(entries_.seller1.cityLine, "city.0.0", "ST.0.0", "zip2.0.0");
    if (!value_.Has(TwoSellers)) return;
    Put("Grantor2", LastNameFirst(value_, Seller2Name));
    Put("TID2", value_[Seller2TaxId]);
    if (!value_[Seller2TaxId].empty()) Put("Tidfein1", "SSN");
    Put("Grantoradd.1", entries_.seller2.street);
    PutCity(entries_.seller2.cityLine, "city.1", "ST.1", "zip2.1");
}

void Return::Particulars() {
    if (NeedsScheduleA(job_, entries_)) Tick("Check Box16");
    Put("Return", GiftTaxLetter(entries_));
    if (NeedsScheduleB(job_, entries_)) Tick("Check Box22");
}

void Return::Buyer() {
    const bool isEntity = IsEntityNumber(value_[Buyer1TaxId]);
    Put("Grantor1.1", isEntity ? value_[Buyer1Name] : LastNameFirst(value_, Buyer1Name));
    Put("TID.1", value_[Buyer1TaxId]);
    if (!value_[Buyer1TaxId].empty()) Put("Tidfein2", isEntity ? "FID" : "SSN");
    Put("Grantoradd.0.1", entries_.buyer1.street);
    PutCity(entries_.buyer1.cityLine, "city.0.1", "ST.0.1", "zip.0.1");
}

void Return::Conveyance() {
    PutClosingDate("Text3.0", "Text3.1", "Text3.2");
    Put("Instr", InstrumentLetter(entries_.instrument));
}

void Return::Consideration() {
    const double price = SalePriceOf(job_);
    if (price < kLeastTaxedPrice) return Tick("Check Box31");
    if (IsOfTheRegulations(entries_.code)) {
        Tick("Check Box28");
        Put("Text29", std::string("2(") + entries_.code.back() + ")");
        return Put("Text30", "C.S.A. §12-494-2");
    }
    if (!entries_.code.empty()) {
        Tick("Check Box28");
        Put("Text29", entries_.code);
        return Put("Text30", entries_.citation);
    }
    if (value_.Has(Commercial)) return Put("Text32.5.0", PlainPrice(price));
    if (value_.Has(LandMultiFamily))
        return Put(entries_.otherThanDwelling ? "Text32.4.0" : "Text32.0.0", PlainPrice(price));
    Put("Text32.1.0", PlainPrice(price));
}

void Return::Signature() {
    switch (entries_.signer) {
        case Signer::Grantor:
            Tick("Check Box33");
            Put("Text36", value_[Seller1Name]);
            break;
        case Signer::Attorney:
            Tick("Check Box34");
            Put("Text36", value_.Attorney());
            break;
        case Signer::Agent:
            Tick("Check Box35");
            if (value_.Has(Entity) || value_.Has(PowerOfAttorney)) Put("Text36", value_[Seller1Agent]);
            break;
    }
    Put("Text37", value_[DocumentDate].empty() ? LongDate(clock_.Today()) : value_[DocumentDate]);
    Put("Text38", value_.Attorney());
    Put("Text39", value_[kJurisNumber]);
    Put("Text40", value_[SellerAttyPhone]);
}

void Return::ScheduleA() {
    Put("SchATown", value_[kTown]);
    PutClosingDate("SchA.m", "SchA.d", "SchA.y");
    Put("SchALocProp", value_[kPropertyLine]);
    Put("SchAName of grantor as shown on the deed", value_[kSellerNames]);
    if (value_[NamesOfMembers].empty()) return;
    int field = 4;
    for (const std::string& member : PeopleIn(value_[NamesOfMembers])) {
        Put(fmt::format("SchAfill_{}", field), LastNameFirst(member));
        field += 3;
    }
}

void Return::ScheduleB() {
    Put("SchBTown", value_[kTown]);
    PutClosingDate("SchB.m", "SchB.d", "SchB.y");
    Put("SchBLocProp", value_[kPropertyLine]);
    Put("SchBName of grantee as shown on the deed", value_[kBuyerNames]);
    if (value_.Has(TwoBuyers)) SecondBuyer();
}

void Return::SecondBuyer() {
    Put("SchBfill_4", LastNameFirst(value_, Buyer2Name));
    Put("SchBText42.0", value_[Buyer2TaxId]);
    Tick("SchbTax1");
    const PostalAddress& address = entries_.buyer2LivesWithBuyer1 ? entries_.buyer1 : entries_.buyer2;
    Put("SchBAddress after conveyance", address.street);
    PutCity(address.cityLine, "SchBCity1.2.0", "SchBST1.2.0", "SchBZip1.2.0");
}

}  // namespace

int InstrumentOf(const std::vector<std::string>& jobList) {
    for (std::size_t instrument = 0; instrument < kEntries.size(); ++instrument) {
        const auto isIt = [&](const std::string& entry) { return IsEntry(entry, instrument); };
        if (std::ranges::any_of(jobList, isIt)) return static_cast<int>(instrument);
    }
    return -1;
}

double SalePriceOf(const Job& job) {
    return job.IsFilled(SalePriceNumeric) ? AmountOf(job.D(SalePriceNumeric)) : 0;
}

bool NeedsScheduleA(const Job& job, const ReturnEntries& entries) {
    return IsFiduciaryInstrument(entries.instrument) || job.optConf(EstateTrust) || job.optConf(Entity);
}

bool NeedsScheduleB(const Job& job, const ReturnEntries& entries) {
    return entries.buyerIsEntity || job.optConf(TwoBuyers);
}

std::vector<FieldValue> FormValues(const Job& job, const ReturnEntries& entries, const Clock& clock) {
    return Return(job, entries, clock).Values();
}

}  // namespace quillmark::op236
