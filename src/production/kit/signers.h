#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// Who signs an instrument, as values that every family's signature block and acknowledgment is typed from.
namespace quillmark {

/// One party that signs, in person or by another.
struct Signer {
    std::string name;
    std::string attorneyInFact;  ///< who signs for the party; empty when it signs in person
};

/// The parties of one side, in the order of the page.
struct Signers {
    std::string role;             ///< behind each name, such as "Grantor"
    std::vector<Signer> parties;  ///< one or two
    std::string agent;            ///< "Ann Poe, President", who signs for an entity; empty for people
};

/// Which seller acts by power of attorney, and the wording that follows from it. A principal who is neither
/// seller leaves `PoaSeller` at 0, and the instrument is then signed by the sellers themselves.
struct SellersByPower {
    int PoaSeller = 0;             ///< 0 none, 1 or 2: that seller is the principal
    std::string PrincipalPlace;    ///< " of ...", and by whom and by what power the principal acts
    std::string OtherSellerName;   ///< the seller who is not the principal
    std::string OtherSellerPlace;  ///< " of ..."
};
SellersByPower FindSellersByPower(const JobValues& job);

/// The sellers as they sign: two, an entity by its agent, or one; the principal of a power by the attorney in
/// fact.
Signers SellerSigners(const JobValues& job, std::string_view role);
/// The first or the second seller alone, as each signs a paper that every seller gets.
Signers OneSellersSigner(const JobValues& job, int number, std::string_view role);
/// What stands behind the name of a seller who may be a fiduciary: the capacity of one, otherwise `role`.
std::string SellerRole(const JobValues& job, std::string_view role);
/// The first seller alone and in person, as a fiduciary signs.
Signers FiduciarySigner(const JobValues& job, std::string_view role);
Signers BuyerSigners(const JobValues& job, std::string_view role);

/// The signature block: two side by side, an entity by its agent, one at the signature tab, which has to be
/// set. It begins with the space above the rules and ends below the last name.
void TypeSignatures(Typist& type, const Signers& signers);

}  // namespace quillmark
