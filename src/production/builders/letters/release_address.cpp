#include "production/builders/letters/release_address.h"

namespace quillmark {

ReleaseGoesTo ReleaseOfTransmittal(const Production& production, const Variant& variant) {
    if (production.Makes("Closing Letter / New Haven Bar")) return ReleaseGoesTo::BuyersAttorney;
    return variant.tag == "SMS" ? ReleaseGoesTo::TrackingService : ReleaseGoesTo::SellersAttorney;
}

ReleaseGoesTo ReleaseOfRun(const Production& production) {
    const bool tracked =
        production.Makes("Mortgage Payoff Transmittal / SMS") || production.Makes("SMS Cover Letter");
    return ReleaseOfTransmittal(production, Variant{tracked ? "SMS" : ""});
}

}  // namespace quillmark
