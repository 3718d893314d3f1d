#pragma once

#include <bitset>
#include <string_view>

#include "core/job.h"

/// The fifteen options: captions, groups, and how one excludes another.
namespace quillmark {

/// Options by number, entry 0 unused.
using OptionSet = std::bitset<kOptions + 1>;

/// "1 Seller" for 1; empty for a number that is no option.
std::string_view OptionCaption(int n);
/// What the option's button tells when it is pointed at. Those of "P.O.A." and "Estate / Trust" change with
/// the number of sellers.
std::string_view OptionTooltip(int n, const Job& job);
bool IsOption(int n);

/// Sets the option and clears the others of its group.
void TurnOn(int n, Job& job);
/// Clears every option of the group that n belongs to.
void TurnGroupOff(int n, Job& job);
/// Whether none of the group need be set: payoffs, property type and seller capacity.
bool GroupMayBeOff(int n);

/// The options that can be excluded by another one.
inline constexpr Option kExcludable[] = {TwoSellers, Entity, PowerOfAttorney, EstateTrust};
/// Whether what is set leaves no room for this option: an entity or an estate sells alone, an entity acts by
/// its agents and not by a power, and so on.
bool IsExcluded(int n, const Job& job);
/// The option that excludes this one; 0 if none does.
int ExcludedBy(int n, const Job& job);

}  // namespace quillmark
