#include <fmt/format.h>

#include "closing/closing_figures.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "tools/op236/return_parts.h"

/// The return on the two-part form of paper, which a dot-matrix printer fills.
namespace quillmark::op236 {

using namespace field;

namespace {

constexpr double kSize = 12, kAmountSize = 10, kSmallSize = 8;
constexpr double kLowerTier = 800'000;

/// A figure as the statements show it: "##,###,##0.00" at the right of 14 columns.
std::string Figure(double dollars) {
    std::string shown = ShownAmount(DecimalText(dollars, 2));
    std::erase(shown, '$');
    return fmt::format("{:>14}", shown);
}

class Paper {
 public:
    Paper(const Job& job, const ReturnEntries& entries, const Clock& clock, double vertical,
          double horizontal)
        : job_(job),
          value_(job),
          entries_(entries),
          clock_(clock),
          vertical_(vertical),
          horizontal_(horizontal) {}

    std::vector<PageItem> Items() {
        Sellers();
        Particulars();
        Buyer();
        Conveyance();
        Consideration();
        Signature();
        return std::move(items_);
    }

    void Put(double across, double down, std::string text, double size = kSize) {
        if (!text.empty())
            items_.push_back(
                {across + horizontal_, down + vertical_, std::move(text), "Lucida Console", size, true});
    }

 private:
    void Sellers();
    void Particulars();
    void Buyer();
    void Conveyance();
    void Consideration();
    void Dwelling(double price);
    void Signature();

    /// A line of the form with the consideration and its tax.
    void Taxed(double down, double consideration, double rate) {
        const double tax = RoundCents(consideration * rate);
        Put(4.34375, down, Figure(consideration), kAmountSize);
        Put(6.84375, down, Figure(tax), kAmountSize);
        total_ += tax;
    }

    const Job& job_;
    const FilledValues value_;
    const ReturnEntries& entries_;
    const Clock& clock_;
    const double vertical_, horizontal_;
    double total_ = 0;
    std::vector<PageItem> items_;
};

void Paper::Sellers() {
    Put(0.59375, 2.28125, value_[kTown]);
    Put(2.71875, 2.28125, value_[kPropertyLine]);
    Put(0.59375, 2.71875, LastNameFirst(value_, Seller1Name));
    Put(5.71875, 2.71875, value_[Seller1TaxId]);
    if (!value_[Seller1TaxId].empty())
        Put(7.796875, IsEntitySeller(value_, entries_) ? 2.71875 : 2.5625, "X");
    Put(0.59375, 3.15625, entries_.seller1.street);
    Put(4.46875, 3.15625, entries_.seller1.cityLine);
    if (!value_.Has(TwoSellers)) return;
    Put(0.59375, 3.5625, LastNameFirst(value_, Seller2Name));
    Put(5.71875, 3.5625, value_[Seller2TaxId]);
    if (!value_[Seller2TaxId].empty()) Put(7.796875, 3.4375, "X");
    Put(0.59375, 4.0, entries_.seller2.street);
    Put(4.46875, 4.0, entries_.seller2.cityLine);
}

void Paper::Particulars() {
    constexpr double kLine = 4.53125;
    Put(NeedsScheduleA(job_, entries_) ? 0.578125 : 0.984375, kLine, "X");
    Put(NeedsScheduleB(job_, entries_) ? 2.96875 : 3.40625, kLine, "X");
    switch (GiftTaxLetter(entries_).front()) {
        case 'F':
            return Put(4.53125, kLine, "X");
        case 'S':
            return Put(5.46875, kLine, "X");
        case 'B':
            return Put(6.328125, kLine, "X");
        default:
            return Put(6.90625, kLine, "X");
    }
}

void Paper::Buyer() {
    const bool isEntity = IsEntityNumber(value_[Buyer1TaxId]);
    Put(0.59375, 4.96875, isEntity ? value_[Buyer1Name] : LastNameFirst(value_, Buyer1Name));
    Put(5.71875, 4.96875, value_[Buyer1TaxId]);
    if (!value_[Buyer1TaxId].empty()) Put(7.796875, isEntity ? 4.984375 : 4.828125, "X");
    Put(0.59375, 5.40625, entries_.buyer1.street);
    Put(4.46875, 5.40625, entries_.buyer1.cityLine);
}

void Paper::Conveyance() {
    const std::string& closing = value_[ClosingDate];
    if (const auto date = closing.empty() ? clock_.Today() : ReadDate(closing))
        Put(0.59375, 5.8125,
            fmt::format("{:02}/{:02}/{:02}", static_cast<unsigned>(date->month()),
                        static_cast<unsigned>(date->day()), static_cast<int>(date->year()) % 100));
    constexpr double kLine = 5.796875;
    switch (entries_.instrument) {
        case kWarrantyDeed:
            return Put(3.65625, kLine, "X");
        case kQuitclaimDeed:
            return Put(4.453125, kLine, "X");
        case kEasement:
            return Put(5.34375, kLine, "X");
        default:
            Put(6.265625, kLine, "X");
    }
    if (entries_.instrument >= 0)
        Put(6.84375, 5.78125, std::string(kInstruments.at(static_cast<std::size_t>(entries_.instrument))),
            kSmallSize);
}

void Paper::Consideration() {
    const double price = SalePriceOf(job_);
    if (price < kLeastTaxedPrice) return Put(1.09375, 6.25, "X");
    if (!entries_.code.empty()) {
        Put(1.09375, 6.4375, "X");
        return Put(7.53125, 6.40625, entries_.code);
    }
    if (value_.Has(Commercial))
        Taxed(8.0625, price, 0.0125);
    else if (value_.Has(LandMultiFamily))
        Taxed(entries_.otherThanDwelling ? 7.875 : 7.125, price, 0.0075);
    else
        Dwelling(price);
    Put(6.84375, 8.453125, Figure(total_), kAmountSize);
}

void Paper::Dwelling(double price) {
    Put(4.34375, 7.3125, Figure(price), kAmountSize);
    Taxed(7.5, std::min(price, kLowerTier), 0.0075);
    if (price > kLowerTier) Taxed(7.6875, price - kLowerTier, 0.0125);
}

void Paper::Signature() {
    const std::string& dated = value_[DocumentDate];
    if (const auto date = dated.empty() ? clock_.Today() : ReadDate(dated))
        Put(6.84375, 9.71875,
            fmt::format("{} {:02}, {}", MonthName(static_cast<unsigned>(date->month())).substr(0, 3),
                        static_cast<unsigned>(date->day()), static_cast<int>(date->year())));
    Put(0.46875, 10.1875, value_.Attorney());
    Put(6.71875, 10.1875, value_[SellerAttyPhone]);
}

}  // namespace

std::vector<PageItem> PaperItems(const Job& job, const ReturnEntries& entries, const Clock& clock,
                                 double vertical, double horizontal) {
    return Paper(job, entries, clock, vertical, horizontal).Items();
}

PageItem TestItem(double vertical, double horizontal) {
    return {3.65625 + horizontal, 5.796875 + vertical, "X", "Lucida Console", kSize, true};
}

}  // namespace quillmark::op236
