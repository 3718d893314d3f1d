#pragma once

#include <string>
#include <string_view>

#include "core/fields.h"
#include "tools/op236/return_values.h"
#include "tools/window/filled_values.h"

/// What the fillable form and the one of paper are put together from.
namespace quillmark::op236 {

// Derived values of a job.
inline constexpr int kTown = 1000 + field::PropertyCityStateZip;
inline constexpr int kPropertyLine = 1000 + field::PropertyAddress1;
inline constexpr int kJurisNumber = 1000 + field::SellerAtty;
inline constexpr int kSellerNames = 1000 + field::Seller1Name;
inline constexpr int kBuyerNames = 1000 + field::Buyer1Name;

struct CityLine {
    std::string city;
    std::string state;
    std::string zip;
};
/// "Branford, CT 06405" in its parts; a line without a comma has none.
CityLine SplitCityLine(std::string_view line);

/// "Hollis, Walter B."; the name as it stands where it has no given name, as a company's.
std::string LastNameFirst(const FilledValues& value, int name);
/// The same of a name that is no field: "Roe, John, Jr.".
std::string LastNameFirst(std::string_view name);
/// "00-0000000".
bool IsEntityNumber(std::string_view taxId);

bool IsFiduciaryInstrument(int instrument);
/// Whether the seller's tax number is an employer's.
bool IsEntitySeller(const FilledValues& value, const ReturnEntries& entries);
/// "F", "S", "B" for both returns, "N" for neither.
std::string_view GiftTaxLetter(const ReturnEntries& entries);

}  // namespace quillmark::op236
