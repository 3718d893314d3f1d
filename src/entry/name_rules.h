#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/job.h"

/// Smart rules of names: attorneys, sellers, buyers, realtors, the original trustee.
namespace quillmark::rules {

/// Field 12: part 3 is the last name.
void BuyerAttorney(Job& job, int n);
/// Field 21: parts 3 and 2 are last and given name of a person, the whole name and nothing for an entity;
/// part 1 joins the sellers.
void SellerOne(Job& job, int n);
/// Field 28: parts 3 and 2; with two sellers also the joined names of field 21.
void SellerTwo(Job& job, int n);
/// Fields 59 and 64: parts 3 and 2; the joined names of field 59.
void Buyer(Job& job, int n);
/// Fields 85 and 87: part 1 of field 85 joins the agencies.
void Realtors(Job& job, int n);
/// Field 204: blanks at both ends go.
void OriginalTrustee(Job& job, int n);
/// Field 3: "name/juris number" keeps the name and puts the number into part 1; a name that comes without
/// one drops the number of the name before it. The tag is the name's place in `choices`.
void SellerAttorney(Job& job, std::string_view choices);

/// The number of ";" in front of the value in the list; 0 if it is not there.
int PlaceInChoices(std::string_view choices, std::string_view value);

}  // namespace quillmark::rules
