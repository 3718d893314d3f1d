#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "session/state/screen_state.h"

namespace quillmark {

/// Whether a text holds every word of what is sought, in any order and case. Nothing sought is held by all.
bool HoldsWords(std::string_view text, std::string_view sought);

/// The rows of the grid whose marker, description or value holds every word of what is sought, in the order
/// of the grid; none for nothing sought.
std::vector<std::size_t> RowsHolding(std::string_view sought, const ScreenState& screen);

}  // namespace quillmark
