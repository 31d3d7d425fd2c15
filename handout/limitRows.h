#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "handout/Handout.h"

namespace verdalis {

/// Cuts the tables of a section to their first rows; nothing keeps all. A paragraph then says so, such as
/// "The first 12 of 200 options.".
/// \param what the rows, such as "options"
void limitRows(HandoutSection& section, std::optional<std::size_t> most, std::string_view what);

}  // namespace verdalis
