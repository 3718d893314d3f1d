#pragma once

#include "core/job.h"

/// Smart rules of amounts: words, shown forms, tags, tax identifiers.
namespace quillmark::rules {

/// Fields 76 and 89: part 1 is the amount in words; the value takes its shown form.
void AmountInWords(Job& job, int n);
/// An amount, alone or with a one-letter tag behind "-" or "=": "1000 - paid" becomes "$1,000.00 - D", the
/// last letter typed being the one that counts. A mark that stands first is a minus sign.
void Money(Job& job, int n);
/// As Money; "poc" (paid outside closing) becomes "POC".
void MoneyOrPoc(Job& job, int n);
/// An amount and a free description: "450 - Title search" becomes "$450.00 - Title search".
void Disbursement(Job& job, int n);
/// Fields 193 to 196: a description behind "-", a tag letter behind "=".
void OtherAdjustment(Job& job, int n);
/// Nine digits become "000-00-0000", for an entity "00-0000000".
void SellerTaxId(Job& job, int n);
/// A buyer is always a person here.
void BuyerTaxId(Job& job, int n);

}  // namespace quillmark::rules
