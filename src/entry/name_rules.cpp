#include "entry/name_rules.h"

#include <algorithm>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/rule_helpers.h"

namespace quillmark::rules {

namespace {

/// The markers of the given and the last name, which begin as the field's marker does.
std::string NameMarker(int n, std::string_view which) {
    std::string marker(FieldMarker(n));
    marker.replace(marker.rfind("name]"), std::string::npos, std::string(which) + " name]");
    return marker;
}

void SetName(Job& job, int n, const PersonName& name) {
    SetPart(job, 3, n, name.last, NameMarker(n, "last"));
    SetPart(job, 2, n, name.given, NameMarker(n, "first"));
}

void SetPersonName(Job& job, int n) {
    SetName(job, n, SplitPersonName(job.D(n), SuffixList::Party));
}

void JoinNames(Job& job, int first, int second, bool both) {
    const std::string name = job.D(first);
    job.SetDerived(1, first, both ? name + " and " + job.D(second) : name);
}

/// An entity's name stays whole; only a name that is nothing but a suffix is taken for one.
PersonName EntityName(std::string_view fullName) {
    constexpr std::string_view kSuffixes = "Jr.Sr.III";
    const std::string_view whole = Trimmed(fullName);
    if (kSuffixes.find(whole) != kSuffixes.npos) return {};
    return {std::string(whole), {}};
}

}  // namespace

void BuyerAttorney(Job& job, int n) {
    SetPart(job, 3, n, SplitPersonName(job.D(n), SuffixList::Attorney).last, "[buyer atty last name]");
}

void SellerOne(Job& job, int n) {
    if (job.optConf(Person)) {
        SetPersonName(job, n);
    } else {
        SetName(job, n, EntityName(job.D(n)));
    }
    JoinNames(job, field::Seller1Name, field::Seller2Name, job.optConf(TwoSellers));
}

void SellerTwo(Job& job, int n) {
    SetPersonName(job, n);
    if (job.optConf(TwoSellers)) JoinNames(job, field::Seller1Name, field::Seller2Name, true);
}

void Buyer(Job& job, int n) {
    SetPersonName(job, n);
    if (n == field::Buyer1Name || job.optConf(TwoBuyers))
        JoinNames(job, field::Buyer1Name, field::Buyer2Name, job.optConf(TwoBuyers));
}

void Realtors(Job& job, int) {
    JoinNames(job, field::Realtor1Name, field::Realtor2Name, job.IsFilled(field::Realtor2Name));
}

void OriginalTrustee(Job& job, int n) {
    const std::string trimmed(Trimmed(job.D(n)));
    Reshape(job, n, trimmed);
}

void SellerAttorney(Job& job, std::string_view choices) {
    // The second derived value holds the name that the juris number belongs to, so that a second run keeps
    // the number.
    const std::string value = job.D(field::SellerAtty);
    if (const auto slash = value.find('/'); slash != value.npos) {
        const std::string name(RightTrimmed(std::string_view(value).substr(0, slash)));
        job.SetField(field::SellerAtty, name);
        const std::string_view number = LeftTrimmed(std::string_view(value).substr(slash + 1));
        job.SetDerived(1, field::SellerAtty, number);
        job.SetDerived(2, field::SellerAtty, number.empty() ? std::string() : name);
    } else if (job.D(field::Part(2, field::SellerAtty)) != value) {
        job.SetDerived(1, field::SellerAtty, "");
        job.SetDerived(2, field::SellerAtty, "");
    }
    job.txtField(field::SellerAtty).tag = std::to_string(PlaceInChoices(choices, job.D(field::SellerAtty)));
}

int PlaceInChoices(std::string_view choices, std::string_view value) {
    const auto place = value.empty() ? choices.npos : choices.find(value);
    if (place == choices.npos) return 0;
    return static_cast<int>(
        std::count(choices.begin(), choices.begin() + static_cast<std::ptrdiff_t>(place), ';'));
}

}  // namespace quillmark::rules
