#pragma once

#include <string>
#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// What the statutory-form deeds share, in the order of the page.
namespace quillmark {

/// Which seller acts by power of attorney, and the wording that follows from it. A principal who is neither
/// seller leaves `PoaSeller` at 0, and the deed is then signed by the sellers themselves.
struct SellersByPower {
    int PoaSeller = 0;             ///< 0 none, 1 or 2: that seller is the principal
    std::string PrincipalPlace;    ///< " of ...", and by whom and by what power the principal acts
    std::string OtherSellerName;   ///< the seller who is not the principal
    std::string OtherSellerPlace;  ///< " of ..."
};
SellersByPower FindSellersByPower(const JobValues& job);

/// The words that open every deed, up to the grantor.
void TypeDeedOpening(Typist& type);
/// The sellers as grantors, by power of attorney or in person.
void TypeGrantors(const JobValues& job, Typist& type, const SellersByPower& power);
/// The one grantor of a fiduciary deed with the address; the capacity follows it.
void TypeFiduciary(const JobValues& job, Typist& type);
/// The price in words and figures; `grant` is "grant" or "grants".
void TypeConsideration(const JobValues& job, Typist& type, std::string_view grant);
/// ", with `covenants`, all that certain real property ..." to the end of the paragraph.
void TypePremises(const JobValues& job, Typist& type, std::string_view covenants);
/// "Said Premises are conveyed subject to:" with the three usual items.
void TypeUsualEncumbrances(Typist& type);

/// The signature block of sellers: two, an entity, or one person.
void TypeGrantorSignatures(const JobValues& job, Typist& type, const SellersByPower& power);
/// The signature block of the one grantor of a fiduciary deed, or of a person who sells alone.
void TypeGrantorSignature(const JobValues& job, Typist& type);
/// The acknowledgment of sellers, of an entity's agent, or of the attorney in fact.
void TypeGrantorAcknowledgment(const JobValues& job, Typist& type, const SellersByPower& power);

/// From "IN WITNESS WHEREOF" to the foot of a deed that sellers give.
void TypeSellersExecution(const JobValues& job, Typist& type, const SellersByPower& power);
/// The same of a deed that a fiduciary gives.
void TypeFiduciaryExecution(const JobValues& job, Typist& type);

}  // namespace quillmark
