#pragma once

#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/signers.h"
#include "production/kit/typing.h"

/// The sellers as letters and undertakings name them, by name and capacity and without their addresses.
namespace quillmark {

/// "Walter B. Hollis and June Hollis, acting herein by Nora Feld, his/her attorney in fact ...", or a
/// fiduciary's capacity.
void TypeSellersInCapacity(const JobValues& job, Typist& type);

/// The sellers as they sign such a paper: each as "Seller", a fiduciary in the fiduciary's capacity.
Signers SigningSellers(const JobValues& job);

/// "his/her", "its" for an entity, "their" for two.
std::string_view SellersPossessive(const JobValues& job);

/// The parties in a sentence, by their number.
inline std::string_view SellerWord(const JobValues& job) {
    return job.Has(TwoSellers) ? "Sellers" : "Seller";
}
inline std::string_view BuyerWord(const JobValues& job) {
    return job.Has(TwoBuyers) ? "Buyers" : "Buyer";
}

}  // namespace quillmark
