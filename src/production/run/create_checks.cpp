#include "production/run/create_checks.h"

#include <algorithm>

#include "core/fields.h"
#include "core/places.h"
#include "core/text_conversions.h"

namespace quillmark {

namespace {

constexpr int kTownOfProperty = 1000 + field::PropertyCityStateZip;

constexpr std::string_view kTenancies[] = {"joint tenants wros", "tenants in common", "joint tenants"};

bool IsSet(const Job& job, int n) {
    return job.txtField(n).relevant && job.D(n) != FieldMarker(n);
}

bool TownIsUnknown(const Job& job) {
    const int n = field::PropertyCityStateZip;
    return IsSet(job, n) && !job.D(n).empty() && CountyOfTown(job.D(kTownOfProperty)).empty();
}

bool TenancyIsImproper(const Job& job) {
    return IsSet(job, field::TenancyType) &&
           std::ranges::find(kTenancies, Lowered(job.D(field::TenancyType))) == std::end(kTenancies);
}

bool PrincipalIsNoSeller(const Job& job) {
    if (!IsSet(job, field::PrincipalOfPower) || job.D(field::Seller1Name).empty()) return false;
    const std::string& principal = job.D(field::PrincipalOfPower);
    return principal != job.D(field::Seller1Name) && principal != job.D(field::Seller2Name);
}

bool ProrationDateIsNone(const Job& job) {
    return job.txtField(field::ProrationDate).relevant && !ReadDate(job.D(field::ProrationDate));
}

MessageDialog Box(std::string text) {
    return {"  ALERT", std::move(text), {DialogButton::OK}, DialogButton::OK, DialogIcon::Stop};
}

}  // namespace

std::optional<MessageDialog> WhyNotCreate(const Job& job) {
    if (TownIsUnknown(job)) {
        MessageDialog box =
            Box("The City/Town/District in the property address is not recognized.\n\n"
                "Please check spelling or use parent municipality, \n"
                "and be sure to follow name with a Comma.");
        box.title = "  TOWN/DISTRICT NAME NOT RECOGNIZED";
        return box;
    }
    if (TenancyIsImproper(job))
        return Box(
            "The 'Tenancy Type' field has an improper value,\n"
            "Please correct (by selecting one) and try again.");
    if (PrincipalIsNoSeller(job))
        return Box(
            "The 'Principal of Power' field does not match Seller's name,\n"
            "Please correct and try again.");
    if (ProrationDateIsNone(job))
        return Box(
            "The 'Proration Date' field is empty or contains invalid data,\n"
            "Please correct and try again.");
    return std::nullopt;
}

}  // namespace quillmark
