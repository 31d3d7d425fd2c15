#pragma once

#include <iosfwd>

#include "questions/switchTexts.h"

namespace verdalis {

/// Writes the best plan for each range of values.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeSwitchTable(std::ostream& out, const SwitchAnswer& answer);

}  // namespace verdalis
