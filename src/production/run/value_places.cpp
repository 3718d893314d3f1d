#include "production/run/value_places.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/field_registry.h"
#include "core/fields.h"
#include "platform/code_points.h"
#include "production/kit/job_values.h"

namespace quillmark {

namespace {

constexpr char32_t kFirstSign = 0xE000;
constexpr int kTownOfProperty = 1000 + field::PropertyCityStateZip;  ///< whose taxes are looked up

/// Fields whose values builders calculate with or compare with words of their own.
bool IsLookedInto(int n) {
    using namespace field;
    static constexpr Field kFields[] = {
        SellerLawfirm,     SellerAtty,        BuyerLawfirm,        BuyerAtty,          NamesOfMembers,
        NamesOfDirectors,  SellerAttysFee,    SalePriceNumeric,    BinderDeposit,      ContractDeposit,
        ClosingDate,       ProrationDate,     Realtor1Commission,  Realtor2Commission, Payoff1Amount,
        Payoff2Amount,     NoteFirstPymtDate, SmokeDetectorCredit, TenancyType,        FiduciaryType,
        BuyerTitleInsurCo, Payoff1Method,     Payoff2Method,       Payoff1LoanNumber,  Payoff2LoanNumber,
    };
    constexpr std::pair<int, int> kAmounts[] = {{170, 185}, {193, 196}, {212, 213}};
    return std::ranges::find(kFields, n) != std::end(kFields) ||
           std::ranges::any_of(kAmounts, [n](auto range) { return n >= range.first && n <= range.second; });
}

/// Fields that builders compare with each other: one person, or one house, in two roles.
constexpr std::pair<Field, Field> kCompared[] = {
    {field::PrincipalOfPower, field::Seller1Name},
    {field::PrincipalOfPower, field::Seller2Name},
    {field::AttyInFact, field::Seller1Name},
    {field::AttyInFact, field::Seller2Name},
    {field::Seller2Addr1, field::Seller1Addr1},
    {field::Seller2Addr2, field::Seller1Addr2},
    {field::Buyer2Addr1, field::Buyer1Addr1},
    {field::Buyer2Addr2, field::Buyer1Addr2},
    {field::Seller2CityStateZip, field::Seller1CityStateZip},
    {field::Buyer2CityStateZip, field::Buyer1CityStateZip},
};

/// The field whose sign stands for this one's value: of two equal values that are compared, the first.
int SignOf(const Job& job, int n) {
    for (const auto& [field, other] : kCompared)
        if (n == field && job.D(n) == job.D(other)) return other;
    return n;
}

bool IsLetterOrDigit(char32_t c) {
    return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z') ||
           (c >= 0xC0 && c <= 0x17F && c != 0xD7 && c != 0xF7);
}

char32_t Small(char32_t c) {
    const bool latin = (c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    return latin ? c + 0x20 : c;
}

std::u32string Small(std::u32string_view text) {
    std::u32string small(text);
    for (char32_t& c : small) c = Small(c);
    return small;
}

bool IsSign(char32_t c) {
    return c > kFirstSign && c <= kFirstSign + kFields;
}

bool IsCounterpart(char32_t c, char32_t sign) {
    return c == sign || IsSign(sign);
}

int FieldOfSign(char32_t c) {
    return static_cast<int>(c - kFirstSign);
}

std::string Signed(const Job& job, std::string_view value, int field) {
    const int n = SignOf(job, field);
    std::u32string text = CodePoints(value);
    for (char32_t& c : text)
        if (IsLetterOrDigit(c)) c = kFirstSign + static_cast<char32_t>(n);
    return Utf8Of(text);
}

/// A derived value that joins two values keeps whose part is whose.
std::string SignedPart(const Job& job, int n, const std::string& part) {
    static constexpr std::pair<Field, Field> kJoined[] = {{field::Seller1Name, field::Seller2Name},
                                                          {field::Buyer1Name, field::Buyer2Name},
                                                          {field::Realtor1Name, field::Realtor2Name}};
    const auto both = [&](int first, int second, std::string_view joint) -> std::string {
        if (part != job.D(first) + std::string(joint) + job.D(second)) return {};
        return Signed(job, job.D(first), first) + std::string(joint) +
               (job.IsFilled(second) ? Signed(job, job.D(second), second) : job.D(second));
    };
    for (const auto& [first, second] : kJoined)
        if (n == first)
            if (const std::string joined = both(first, second, " and "); !joined.empty()) return joined;
    const auto addresses = AddressFields();
    if (std::ranges::find(addresses, n) != addresses.end())
        if (const std::string joined = both(n, n + 1, ", "); !joined.empty()) return joined;
    return Signed(job, part, n);
}

/// What each field can have put into a text, in small letters.
class Texts {
 public:
    explicit Texts(const Job& job) {
        for (int n = 1; n <= kFields; ++n) {
            Add(n, job.D(n), job.IsFilled(n));
            for (int k = 1; k <= 4; ++k) {
                const std::string& part = job.D(k * 1000 + n);
                Add(n, part, !part.starts_with('['));
            }
        }
    }

    /// The field's text that holds the words, and how far into it; null where none does.
    const std::u32string* Holding(int n, std::u32string_view words, std::size_t& offset) const {
        const auto [begin, end] = values_.equal_range(n);
        for (auto value = begin; value != end; ++value) {
            offset = value->second.find(words);
            if (offset != std::u32string::npos) return &value->second;
        }
        return nullptr;
    }
    const std::multimap<int, std::u32string>& Values() const { return values_; }

 private:
    void Add(int n, const std::string& text, bool isFilled) {
        if (isFilled && !text.empty()) values_.emplace(n, Small(CodePoints(text)));
    }

    std::multimap<int, std::u32string> values_;  ///< the value itself first
};

/// Calls `take` with the place of each marker in a text of small letters, and its field.
template <class Take>
void ForEachMarker(const OpenMarkers& markers, const std::u32string& text, Take take) {
    constexpr std::size_t kLongest = 60;
    for (std::size_t at = text.find(U'['); at != text.npos; at = text.find(U'[', at + 1)) {
        const std::size_t end = text.find_first_of(U"[]\r", at + 1);
        if (end == text.npos || text[end] != U']' || end - at > kLongest) continue;
        if (const auto n = markers.FieldOf(text.substr(at, end + 1 - at))) take(*n, at, end + 1 - at);
    }
}

class Finder {
 public:
    Finder(const Job& job, std::u32string_view text)
        : job_(job), texts_(job), text_(Small(text)), taken_(text.size(), false) {}

    void TakeSigns(std::u32string_view signs) {
        for (std::size_t at = 0; at < signs.size(); ++at)
            if (IsSign(signs[at]) && !taken_[at]) TakeRun(signs, at);
    }
    void TakeMarkers() {
        ForEachMarker(OpenMarkers(job_), text_,
                      [this](int n, std::size_t at, std::size_t length) { Take(n, at, length, true); });
    }
    /// Whole words that nothing has taken yet, everywhere those that have no signs.
    void Search(std::size_t begin, std::size_t end) {
        for (const auto& [n, value] : texts_.Values()) {
            if (value.size() < kShortest) continue;
            const bool everywhere = IsLookedInto(n) || n == field::PropertyCityStateZip;
            everywhere ? SearchFor(n, value, 0, text_.size()) : SearchFor(n, value, begin, end);
        }
    }

    std::vector<ValuePlace> Places() {
        std::ranges::sort(places_, {}, &ValuePlace::at);
        return std::move(places_);
    }

 private:
    static constexpr std::size_t kShortest = 3;  ///< a shorter text stands in too many places by chance

    /// The stretch that begins at this sign: on over punctuation as long as it is the value's own.
    void TakeRun(std::u32string_view signs, std::size_t at) {
        const int n = FieldOfSign(signs[at]);
        std::size_t end = at;
        std::size_t offset = 0;
        const std::u32string* value = nullptr;
        for (std::size_t next = at; next < signs.size();) {
            while (next < signs.size() && signs[next] == signs[at]) ++next;
            const auto* holder = texts_.Holding(n, Part(at, next), offset);
            if (!holder && value) break;
            value = holder;
            end = next;
            while (next < signs.size() && !IsSign(signs[next]) && !IsLetterOrDigit(signs[next]) &&
                   signs[next] != U'\r')
                ++next;
            if (next >= signs.size() || signs[next] != signs[at]) break;
        }
        if (value) Widen(*value, at, end);
        Take(n, at, end - at, false);
    }
    /// To the whole value where it stands there as a whole, brackets and full stops included.
    void Widen(const std::u32string& value, std::size_t& at, std::size_t& end) const {
        const std::size_t offset = value.find(Part(at, end));
        if (offset == value.npos || offset > at) return;
        const std::size_t begin = at - offset;
        if (Part(begin, begin + value.size()) != value || !IsFree(begin, value.size())) return;
        at = begin;
        end = begin + value.size();
    }
    void SearchFor(int n, const std::u32string& value, std::size_t from, std::size_t to) {
        for (std::size_t at = text_.find(value, from); at < to; at = text_.find(value, at + 1)) {
            const std::size_t end = at + value.size();
            const bool begins = at == 0 || !IsLetterOrDigit(text_[at - 1]) || !IsLetterOrDigit(value.front());
            const bool ends =
                end == text_.size() || !IsLetterOrDigit(text_[end]) || !IsLetterOrDigit(value.back());
            if (begins && ends && IsFree(at, value.size())) Take(n, at, value.size(), false);
        }
    }

    std::u32string_view Part(std::size_t begin, std::size_t end) const {
        return std::u32string_view(text_).substr(begin, end - begin);
    }
    bool IsFree(std::size_t at, std::size_t length) const {
        return at + length <= taken_.size() &&
               std::none_of(taken_.begin() + static_cast<std::ptrdiff_t>(at),
                            taken_.begin() + static_cast<std::ptrdiff_t>(at + length),
                            [](bool taken) { return taken; });
    }
    void Take(int n, std::size_t at, std::size_t length, bool isOpen) {
        if (!IsFree(at, length)) return;
        std::fill_n(taken_.begin() + static_cast<std::ptrdiff_t>(at), length, true);
        places_.push_back({n, at, length, isOpen});
    }

    const Job& job_;
    const Texts texts_;
    const std::u32string text_;  ///< in small letters
    std::vector<bool> taken_;
    std::vector<ValuePlace> places_;
};

}  // namespace

Job WithSigns(const Job& job) {
    Job copy = job;
    for (int n = 1; n <= kFields; ++n) {
        if (!job.IsFilled(n) || job.D(n) == kImageLiteral) continue;
        if (!IsLookedInto(n)) copy.SetValue(n, Signed(job, job.D(n), n));
        for (int k = 1; k <= 4; ++k) {
            const std::string& part = job.D(k * 1000 + n);
            if (part.empty() || part.starts_with('[') || k * 1000 + n == kTownOfProperty) continue;
            copy.SetDerived(k, n, SignedPart(job, n, part));
        }
    }
    return copy;
}

bool Correspond(std::u32string_view text, std::u32string_view signs) {
    return text.size() == signs.size() && std::ranges::equal(text, signs, IsCounterpart);
}

std::vector<ValuePlace> FindValues(const Job& job, std::u32string_view text, std::u32string_view signs) {
    // Where a document took another turn for the signs, what stands before and behind the turn still
    // corresponds.
    const std::size_t shared = std::min(text.size(), signs.size());
    const auto first = std::mismatch(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(shared),
                                     signs.begin(), IsCounterpart);
    const auto before = static_cast<std::size_t>(first.first - text.begin());
    const auto last =
        std::mismatch(text.rbegin(), text.rbegin() + static_cast<std::ptrdiff_t>(shared - before),
                      signs.rbegin(), IsCounterpart);
    const auto behind = static_cast<std::size_t>(last.first - text.rbegin());
    std::u32string known(text);
    known.replace(0, before, signs.substr(0, before));
    known.replace(text.size() - behind, behind, signs.substr(signs.size() - behind));
    Finder finder(job, text);
    finder.TakeSigns(known);
    finder.TakeMarkers();
    finder.Search(before, text.size() - behind);
    return finder.Places();
}

OpenMarkers::OpenMarkers(const Job& job) {
    const auto add = [this](std::string_view text, int n) {
        if (text.size() > 2 && text.starts_with('[')) markers_.emplace(Small(CodePoints(text)), n);
    };
    for (int n = 1; n <= kFields; ++n) {
        add(FieldMarker(n), n);
        for (int k = 0; k <= 4; ++k) {
            const bool isOpen = k > 0 || !job.IsFilled(n);
            if (isOpen) add(job.D(k * 1000 + n), n);
        }
    }
    for (const DerivedField& derived : DerivedFields()) add(derived.marker, derived.number % 1000);
    for (const int n : AddressFields()) {
        const std::string_view marker = FieldMarker(n);
        const std::string label(marker.substr(0, marker.size() - 1));
        for (const char* behind : {", addr 2]", " - addr 2]"}) add(label + behind, n);
    }
    for (const auto& [marker, value] : job.userFields) add(marker, 0);
}

std::optional<int> OpenMarkers::FieldOf(const std::u32string& marker) const {
    const auto found = markers_.find(marker);
    return found == markers_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<ValuePlace> OpenMarkers::In(std::u32string_view text) const {
    std::vector<ValuePlace> places;
    if (text.find(U'[') == text.npos) return places;
    ForEachMarker(*this, Small(text), [&](int n, std::size_t at, std::size_t length) {
        places.push_back({n, at, length, true});
    });
    return places;
}

}  // namespace quillmark
