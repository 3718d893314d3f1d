#include "tools/op236/exemptions.h"

#include <algorithm>

namespace quillmark::op236 {

namespace {

// The wording is that of the statute's own list and of the regulation.
constexpr auto kExemptions = std::to_array<Exemption>({
    {"01",
     "Deeds which this state is prohibited from taxing under the Constitution or laws of the "
     "United States"},
    {"02", "Deeds which secure a debt or other obligation"},
    {"03",
     "Deeds to which this state or any of its political subdivisions or its or their respective "
     "agencies is a party"},
    {"04", "Tax deeds"},
    {"05",
     "Deeds of release of property which is security for a debt or other obligation (NOT to "
     "include deeds in lieu of foreclosure)"},
    {"06", "Deeds of partition (other than a decree of the Superior Court under section 52-495)"},
    {"07", "Deeds made pursuant to mergers of corporations"},
    {"08",
     "Deeds made by a subsidiary corporation to its parent corporation for no consideration other "
     "than the cancellation or surrender of the subsidiary's stock"},
    {"09", "Deeds made pursuant to a decree of the Superior Court under section 46b-81, 49-24 or 52-495"},
    {"10",
     "Conveyances of residential property which occur not later than six months after the date on "
     "which the property was previously conveyed to the transferor if the transferor is (A) an "
     "employer which acquired the property from an employee pursuant to an employee relocation "
     "plan, or (B) an entity in the business of purchasing and selling residential property of "
     "employees who are being relocated pursuant to such a plan"},
    {"11",
     "Deeds between affiliated corporations, provided both of such corporations are exempt from "
     "taxation pursuant to paragraph (2), (3) or (25) of section 501(c) of the Internal Revenue "
     "Code of 1986, or any subsequent corresponding internal revenue code of the United States, as "
     "from time to time amended"},
    {"12",
     "Deeds of the principal residence of any living person approved for assistance under section "
     "12-129b or 12-170aa for the current assessment year of the municipality in which such person "
     "resides or to any such transfer which occurs within fifteen months of the completion of any "
     "municipal assessment year for which such person qualified for such assistance"},
    {"13",
     "Deeds of property located in an area designated as an enterprise zone in accordance with "
     "section 32-70"},
    {"14",
     "Deeds made by a corporation which is exempt from taxation pursuant to paragraph (3) of "
     "section 501(c) of the Internal Revenue Code of 1986, or any subsequent corresponding "
     "internal revenue code of the United States, as from time to time amended, to any corporation "
     "which is exempt from taxation pursuant to said paragraph (3) of said Section 501(c)"},
    {"15",
     "Deeds conveying property in connection with the reorganization of a mutual savings bank or "
     "mutual savings and loan association under sections 36a-192 to 36a-198, as provided in C.G.S. "
     "36a-199"},
    {"16",
     "Deeds made to any nonprofit organization which is organized for the purpose of holding "
     "undeveloped land in trust for conservation or recreation purposes"},
    {"17", "Deeds between spouses for consideration of $2,000 or more"},
    {"18",
     "Deeds of property located in an entertainment district designated under section 32-76 or "
     "established under section 2 of public act 93-311"},
    {"19",
     "Land transfers made to a water company, as defined in section 16-1, provided the land is "
     "classified as class I or class II land, as defined in section 25-37c, after such transfer"},
    {"20",
     "Transfers or conveyances to effectuate a mere change of identity or form of ownership or "
     "organization, where there is no change in beneficial ownership"},
    {"21", "Deeds in lieu of foreclosure that convey the transferor's principal residence"},
    {"22",
     "Any instrument transferring a transferor's principal residence where the gross purchase "
     "price is insufficient to pay the sum of (A) mortgages encumbering the property transferred, "
     "and (B) any real property taxes and municipal utility or other charges for which the "
     "municipality may place a lien on the property and which have priority over the mortgages "
     "encumbering the property transferred"},
    {"2b",
     "C.S.A. § 12-494-2(b) Exemption: Conveyances which would otherwise be subject to the tax but "
     "which are, by virtue of federal law, exempt from the tax."},
    {"2c", "C.S.A. § 12-494-2(c) Exemption: Transactions which are not conveyances."},
    {"2d",
     "C.S.A. § 12-494-2(d) Exemption: Conveyances which are not subject to the tax and, thus, "
     "cannot, strictly speaking, be exempt from the tax."},
});

}  // namespace

std::span<const Exemption> Exemptions() {
    return kExemptions;
}

int LineOfCode(std::string_view code) {
    const auto found = std::ranges::find(kExemptions, code, &Exemption::code);
    return found == kExemptions.end() ? -1 : static_cast<int>(found - kExemptions.begin());
}

std::string ShownLine(const Exemption& exemption) {
    return "[" + std::string(exemption.code) + "]  " + std::string(exemption.text);
}

}  // namespace quillmark::op236
