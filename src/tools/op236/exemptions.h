#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

/// The grounds on which a conveyance is exempt from the real estate conveyance tax: C.G.S. Sec. 12-498(a) by
/// their numbers, and those of Conn. Agencies Regs. Sec. 12-494-2 as 2b, 2c and 2d.
namespace quillmark::op236 {

struct Exemption {
    std::string_view code;
    std::string_view text;
};

/// In the order of the return's instructions.
std::span<const Exemption> Exemptions();
/// The number of a code's entry, from 0; -1 for no such code.
int LineOfCode(std::string_view code);
/// "[01]  Deeds which ...".
std::string ShownLine(const Exemption& exemption);

inline bool IsOfTheRegulations(std::string_view code) {
    return code == "2b" || code == "2c" || code == "2d";
}

}  // namespace quillmark::op236
