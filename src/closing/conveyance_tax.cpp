#include "closing/conveyance_tax.h"

#include "closing/closing_figures.h"
#include "core/places.h"

namespace quillmark {

namespace {

/// Stamford's lower rate ends below a million. What lies above the last whole dollar before it bears the
/// higher one; the tax on that dollar and all below it is 999,999 at 0.35%.
constexpr double kStamfordThreshold = 1'000'000;
constexpr double kStamfordLowerPart = 999'999;
constexpr double kStamfordLowerTax = 3'499.9965;

double DwellingTax(double salePrice) {
    if (salePrice > 2'500'000) return (salePrice - 2'500'000) * 0.0225 + 27'250;
    if (salePrice > 800'000) return (salePrice - 800'000) * 0.0125 + 6'000;
    return salePrice * 0.0075;
}

ConveyanceTax StamfordTax(double salePrice) {
    if (salePrice < kStamfordThreshold) return {RoundCents(salePrice * 0.0035), " .35% - "};
    return {RoundCents((salePrice - kStamfordLowerPart) * 0.005 + kStamfordLowerTax), " 0.5% - "};
}

}  // namespace

ConveyanceTax MunicipalConveyanceTax(double salePrice, std::string_view town) {
    switch (ConveyanceRateOf(town)) {
        case ConveyanceRate::Targeted:
            return {RoundCents(salePrice * 0.005), " 0.5% - "};
        case ConveyanceRate::Stamford:
            return StamfordTax(salePrice);
        case ConveyanceRate::Ordinary:
            break;
    }
    return {RoundCents(salePrice * 0.0025), " - "};
}

ConveyanceTax StateConveyanceTax(double salePrice, bool commercial, bool landOrMultiFamily) {
    if (commercial) return {RoundCents(salePrice * 0.0125), " 1.25% - "};
    if (landOrMultiFamily) return {RoundCents(salePrice * 0.0075), " 0.75% - "};
    return {RoundCents(DwellingTax(salePrice)), " - "};
}

}  // namespace quillmark
