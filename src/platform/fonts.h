#pragma once

#include <set>
#include <string>

namespace quillmark {

/// The families of the fonts on this computer, in small letters; empty where nobody can tell.
std::set<std::string> InstalledFonts();

}  // namespace quillmark
