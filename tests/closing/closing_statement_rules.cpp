#include "closing_statement_rules.h"

#include <algorithm>

namespace quillmark::test {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

// What the rules say of towns and dates

struct Date {
    int month, day, year;  // year: from the proration date's
};
/// A proration date from `first` to `last`; the date that counts for an unpaid tax, and for a paid one.
struct PeriodRow {
    Date first, last, unpaid, paid;
};
struct TownClass {
    std::vector<std::string> towns;
    bool arrears;  // all days are counted up to the proration date
    std::vector<PeriodRow> periods;
};

// clang-format off
const std::vector<TownClass>& TownClasses() {
    static const std::vector<TownClass> classes = {
        {{"Berlin", "bloomfield", "Bolton", "Warren", "Windsor"}, false,
            {{{7,  1, -1}, { 6, 30, 0}, { 7, 1, -1}, { 6, 30,  0}},
             {{7,  1,  0}, { 6, 30, 1}, { 7, 1,  0}, { 6, 30,  1}}}},
        {{"Meriden"}, true,
            {{{ 7, 1, 0}, { 9, 30, 0}, {10, 1, -1}, { 1,  1,  0}},
             {{10, 1, 0}, {12, 31, 0}, { 1, 1,  0}, { 4,  1,  0}},
             {{ 1, 1, 0}, { 3, 31, 0}, { 4, 1, -1}, { 7,  1, -1}},
             {{ 4, 1, 0}, { 6, 30, 0}, { 7, 1, -1}, {10,  1, -1}}}},
        {{"Beacon Falls", "Wallingford"}, true,
            {{{7, 1, 0}, {12, 31, 0}, {10, 1, -1}, { 4,  1,  0}},
             {{1, 1, 0}, { 6, 30, 0}, { 4, 1, -1}, {10,  1, -1}}}},
        {{"Andover", "Bethel", "Danbury", "Fairfield", "killingly", "Salisbury", "Westport"}, false,
            {{{ 7, 1, 0}, { 9, 30, 0}, { 7, 1, 0}, { 9, 30, 0}},
             {{10, 1, 0}, {12, 31, 0}, {10, 1, 0}, {12, 31, 0}},
             {{ 1, 1, 0}, { 3, 31, 0}, { 1, 1, 0}, { 3, 31, 0}},
             {{ 4, 1, 0}, { 6, 30, 0}, { 4, 1, 0}, { 6, 30, 0}}}},
        {{"Avon", "Hartford", "Stamford", "Stamford", " norwalk ", "Greenwich", "Windsor Locks", ""}, false,
            {{{7, 1, 0}, {12, 31, 0}, {7, 1, 0}, {12, 31, 0}},
             {{1, 1, 0}, { 6, 30, 0}, {1, 1, 0}, { 6, 30, 0}}}},
    };
    return classes;
}
// clang-format on

const std::vector<std::string> kTargeted = {"bloomfield", "Hartford", "Meriden", " norwalk "};
const std::vector<std::string> kOctober = {"Beacon Falls", "Meriden", "Wallingford"};

bool Has(const std::vector<std::string>& list, const std::string& name) {
    return std::find(list.begin(), list.end(), name) != list.end();
}

// The second computation

sys_days DayOf(int month, int day, int year) {
    return sys_days(year_month_day(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                   std::chrono::day(static_cast<unsigned>(day))));
}

int DaysBetween(sys_days from, sys_days to) {
    return static_cast<int>((to - from).count());
}

Cents Positive(Cents amount) {
    return amount > 0 ? amount : 0;
}

/// amount * factor / divisor to the nearest whole number, halves upwards.
Cents Share(Cents amount, Cents factor, Cents divisor) {
    return (2 * amount * factor + divisor) / (2 * divisor);
}

char LetterOf(const Tagged& value) {
    return value.tag.empty() ? ' ' : value.tag.back();
}

bool Hyphen(const Tagged& value) {
    return value.tag.find('-') != std::string::npos;
}

/// Only a hyphen makes an amount of these.
Cents Hyphened(const Tagged& value) {
    return Hyphen(value) ? Positive(value.amount) : 0;
}

Calendar CalendarOf(const Deal& deal) {
    Calendar calendar;
    if (!deal.date) return calendar;
    const sys_days date(*deal.date);
    const int y = static_cast<int>(deal.date->year());
    const int m = static_cast<int>(static_cast<unsigned>(deal.date->month()));
    calendar.dayOfMonth = static_cast<int>(static_cast<unsigned>(deal.date->day()));
    calendar.month = DaysBetween(DayOf(m, 1, y), m == 12 ? DayOf(1, 1, y + 1) : DayOf(m + 1, 1, y));
    const int start = Has(kOctober, deal.town) ? 10 : 7;
    calendar.taxYear = m < start ? DaysBetween(DayOf(start, 1, y - 1), DayOf(start, 1, y))
                                 : DaysBetween(DayOf(start, 1, y), DayOf(start, 1, y + 1));
    if (!deal.leapYears) calendar.taxYear = 365;
    const auto at = [y](const Date& mark) { return DayOf(mark.month, mark.day, y + mark.year); };
    for (const TownClass& townClass : TownClasses()) {
        if (!Has(townClass.towns, deal.town)) continue;
        for (const PeriodRow& row : townClass.periods) {
            if (date < at(row.first) || date > at(row.last)) continue;
            calendar.unpaidDate = at(row.unpaid);
            calendar.paidDate = at(row.paid);
            calendar.unpaid = DaysBetween(at(row.unpaid), date);
            calendar.paid =
                townClass.arrears ? DaysBetween(at(row.paid), date) : DaysBetween(date, at(row.paid)) + 1;
            break;
        }
    }
    return calendar;
}

Cents MunicipalOf(const Deal& deal) {
    const Cents price = Positive(deal.price);
    if (Has(kTargeted, deal.town)) return Share(price, 50, 10000);
    if (deal.town != "Stamford") return Share(price, 25, 10000);
    const Cents lower = 99'999'900;
    if (price < 100'000'000) return Share(price, 35, 10000);
    return Share((price - lower) * 50 + lower * 35, 1, 10000);
}

Cents StateOf(const Deal& deal) {
    constexpr Cents kLowest = 80'000'000;
    const Cents price = Positive(deal.price);
    if (deal.commercial) return Share(price, 125, 10000);
    if (deal.land || price <= kLowest) return Share(price, 75, 10000);
    const Cents middle = std::min<Cents>(price, 250'000'000) - kLowest;
    return Share(kLowest * 75 + middle * 125 + (price - kLowest - middle) * 225, 1, 10000);
}

/// One payoff field; what is behind it in the same field decides.
Cents ReleaseFeeOf(const Tagged& payoff) {
    if (LetterOf(payoff) == 'R') return 4000;
    if (payoff.tag.find('=') != std::string::npos) return 19900;
    return LetterOf(payoff) == 'T' ? 10000 : 0;
}

/// The lines that the proration date divides, and both totals.
struct Credits {
    Cents taxSeller = 0, taxBuyer = 0, sewerSeller = 0, sewerBuyer = 0;
    Cents commonSeller = 0, commonBuyer = 0, rentSeller = 0, rentBuyer = 0;
    Cents seller = 0, buyer = 0;
};

void CreditTaxes(const Deal& deal, const Calendar& calendar, Credits& credits) {
    const bool arrears = Has(kOctober, deal.town);
    const auto prorated = [&](const Tagged& annual) {
        const int days = LetterOf(annual) == 'U' ? calendar.unpaid : calendar.paid;
        return deal.date ? Share(Hyphened(annual), days, calendar.taxYear) : 0;
    };
    (arrears || LetterOf(deal.tax) == 'U' ? credits.taxBuyer : credits.taxSeller) = prorated(deal.tax);

    const bool net = deal.sewer.tag.find('=') != std::string::npos;
    const char letter = LetterOf(deal.sewer);
    const Cents sewer = net ? Positive(deal.sewer.amount) : prorated(deal.sewer);
    if (letter == 'P' && (net || !arrears)) credits.sewerSeller = sewer;
    if (letter == 'U' || (arrears && Hyphen(deal.sewer))) credits.sewerBuyer = sewer;
}

void CreditMonth(const Deal& deal, const Calendar& calendar, Credits& credits) {
    const auto part = [&](const Tagged& monthly, int days) {
        return deal.date ? Share(Hyphened(monthly), days, calendar.month) : 0;
    };
    const int before = calendar.dayOfMonth - 1;
    const int after = calendar.month - before;
    if (LetterOf(deal.common) == 'U')
        credits.commonBuyer = part(deal.common, before);
    else
        credits.commonSeller = part(deal.common, after);
    if (LetterOf(deal.rent) == 'U') credits.rentSeller = part(deal.rent, before);
    if (LetterOf(deal.rent) == 'P') credits.rentBuyer = part(deal.rent, after);
}

Credits CreditsOf(const Deal& deal, const Calendar& calendar) {
    Credits credits;
    CreditTaxes(deal, calendar, credits);
    CreditMonth(deal, calendar, credits);
    credits.seller = Positive(deal.price) + credits.taxSeller + credits.sewerSeller + Positive(deal.oil) +
                     credits.commonSeller + credits.rentSeller;
    credits.buyer = credits.taxBuyer + credits.sewerBuyer + credits.commonBuyer + credits.rentBuyer;
    for (const Cents credit :
         {deal.binder, deal.contract, deal.water, deal.security, deal.closingCost, deal.repair, deal.smoke})
        credits.buyer += Positive(credit);
    for (const Tagged& other : deal.adjustments)
        (LetterOf(other) == 'P' ? credits.seller : credits.buyer) += Positive(other.amount);
    return credits;
}

double Dollars(Cents cents) {
    return static_cast<double>(cents) / 100;
}

double Daily(Cents amount, int days) {
    return days > 0 ? Dollars(amount) / days : 0;
}

Figures CreditFigures(const Deal& deal, const Calendar& calendar, const Credits& credits) {
    const Cents sewer =
        deal.sewer.tag.find_first_of("-=") == std::string::npos ? 0 : Positive(deal.sewer.amount);
    return {
        {"SalePrice", Dollars(Positive(deal.price))},
        {"TotalDeposits", Dollars(Positive(deal.binder) + Positive(deal.contract))},
        {"TaxPerDay", Daily(Hyphened(deal.tax), calendar.taxYear)},
        {"SewerPerDay", Daily(sewer, calendar.taxYear)},
        {"CommonPerDay", Daily(Hyphened(deal.common), calendar.month)},
        {"RentPerDay", Daily(Hyphened(deal.rent), calendar.month)},
        {"DaysInTaxYear", calendar.taxYear},
        {"DaysInMonth", calendar.month},
        {"TaxCreditSeller", Dollars(credits.taxSeller)},
        {"SewerCreditSeller", Dollars(credits.sewerSeller)},
        {"CommonCreditSeller", Dollars(credits.commonSeller)},
        {"RentCreditSeller", Dollars(credits.rentSeller)},
        {"TaxCreditBuyer", Dollars(credits.taxBuyer)},
        {"SewerCreditBuyer", Dollars(credits.sewerBuyer)},
        {"CommonCreditBuyer", Dollars(credits.commonBuyer)},
        {"RentCreditBuyer", Dollars(credits.rentBuyer)},
        {"TotalCreditsSeller", Dollars(credits.seller)},
        {"TotalCreditsBuyer", Dollars(credits.buyer)},
    };
}

}  // namespace

Expected ByTheRules(const Deal& deal) {
    const Calendar calendar = CalendarOf(deal);
    const Credits credits = CreditsOf(deal, calendar);
    const Cents cash = credits.seller - credits.buyer;
    const Cents payoffs =
        Positive(deal.payoff1.amount) + (deal.twoPayoffs ? Positive(deal.payoff2.amount) : 0);
    const bool applied = LetterOf(deal.commission1) == 'B' || LetterOf(deal.commission2) == 'B';
    const Cents kept = applied ? Positive(deal.binder) : 0;
    const Cents funds = cash + Positive(deal.binder) + Positive(deal.contract) - kept;
    const Cents commissions = Positive(deal.commission1.amount) + Positive(deal.commission2.amount);
    const Cents commission = commissions > 0 || deal.secondRealtor ? commissions - kept : 0;
    const bool asks = deal.taxExempt || cash < payoffs;
    const Cents municipal = asks && deal.municipalExempt ? 0 : MunicipalOf(deal);
    const Cents state = asks && deal.stateExempt ? 0 : StateOf(deal);
    const Cents release = ReleaseFeeOf(deal.payoff1) + ReleaseFeeOf(deal.payoff2);
    Cents spent = payoffs + commission + municipal + state + release;
    for (const Cents amount : {deal.fee, deal.recording, deal.courier}) spent += Positive(amount);
    for (const Tagged& other : deal.disbursements) spent += Positive(other.amount);

    Figures figures = CreditFigures(deal, calendar, credits);
    figures["CashToClose"] = Dollars(cash);
    figures["BalanceOfCash"] = Dollars(cash - payoffs);
    figures["FundsTotal"] = Dollars(funds);
    figures["CommissionTotal"] = Dollars(commission);
    figures["ReleaseFees"] = Dollars(release);
    figures["MunicipalTax"] = Dollars(municipal);
    figures["StateTax"] = Dollars(state);
    figures["TotalDisbursements"] = Dollars(spent);
    figures["NetResult"] = Dollars(funds - spent);
    return {std::move(figures), asks, calendar};
}

std::vector<std::vector<std::string>> SampleTowns() {
    std::vector<std::vector<std::string>> samples;
    for (const TownClass& townClass : TownClasses()) samples.push_back(townClass.towns);
    return samples;
}

}  // namespace quillmark::test
