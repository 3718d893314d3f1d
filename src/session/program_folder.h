#pragma once

#include <filesystem>

#include "platform/machine.h"

namespace quillmark {

/// Whether the program has kept its files here: settings, firm defaults, packages, clients or the window's
/// place.
bool HoldsOffice(const std::filesystem::path& folder);

/// The program folder of a run that was given none:
/// 1. the current folder, if an office is kept there;
/// 2. the folder of the program's own file, if an office or a "data" folder stands beside it (a copy of the
///    program that is carried around with its data);
/// 3. the folder "Quillmark" in the user's own data, which need not exist yet.
/// A folder that the user may not write is passed over. Throws MachineError if the user has no data folder.
std::filesystem::path DefaultProgramFolder(const std::filesystem::path& current,
                                           const std::filesystem::path& programFile, Shell& shell);

}  // namespace quillmark
