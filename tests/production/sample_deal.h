#pragma once

#include "production/kit/production.h"

/// Jobs to type documents of, told as a closing is: who sells what to whom.
namespace quillmark::test {

/// One person sells a house to one buyer; every field that the recorded documents read is filled.
Job SampleDeal();
/// A couple sells to a couple, and every field has a value that can be told from every other one's; what the
/// parties and papers are not there for is filled too.
Job FullDeal();
/// A job as it is before the first entry, with its derived values.
Job UnfilledDeal();

/// Documents of this job in an office with the settings of the first start, where every question gets its
/// default answer.
Production From(const Job& job);

// Changes to such a job.
void SellersAtOneAddress(Job& job);  ///< Walter and June Hollis of 14 Chestnut Lane
void SellersApart(Job& job);         ///< the same couple, June in Guilford
void BuyersAtOneAddress(Job& job);   ///< Priya and Omar Castellan of 8 Harbor View
void BuyersApart(Job& job);
void SellerIsEntity(Job& job);
void SellerIsFiduciary(Job& job, std::string_view capacity);
/// The principal acts by this attorney in fact.
void SellsByPower(Job& job, std::string_view principal, std::string_view attorney);

}  // namespace quillmark::test
