#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// Connecticut's 169 towns, their counties, villages and ZIP codes. Tables current as of July 1, 2021.

/// "Hartford" for "new britain"; empty for an unknown town. Case and surrounding blanks do not matter.
std::string_view CountyOfTown(std::string_view town);

/// The town of a town, village or district name. An ambiguous name is settled by the ZIP code that ends
/// `propertyCityLine`, whatever the name's source; empty if unknown. "X's Y" also finds "xs y".
std::string_view TownOfPlace(std::string_view place, std::string_view propertyCityLine);

/// The town of a five-digit ZIP code; empty if unknown.
std::string_view TownOfZip(std::string_view zip);

/// The first month of the town's tax year: three towns begin on October 1, all others on July 1.
enum class FiscalYear { July, October };
FiscalYear FiscalYearOf(std::string_view town);

/// How the town's property tax falls due.
enum class TaxSchedule { Annual, QuarterlyInArrears, SemiAnnualInArrears, Quarterly, SemiAnnual };
TaxSchedule TaxScheduleOf(std::string_view town);

/// The class of the municipal part of the conveyance tax: C.G.S. Sec. 12-494.
enum class ConveyanceRate { Targeted, Stamford, Ordinary };
ConveyanceRate ConveyanceRateOf(std::string_view town);

}  // namespace quillmark
