#pragma once

#include "controls/services.h"
#include "model/Field.h"

namespace verdalis {

/// The paper form of the details of one field, from its title to its last line; the document is left open.
/// The field stays as it is. \throws RunTimeError (divisionByZero, overflow) for a figure that cannot be
/// calculated; what stands before it is written by then
void writeDetailsReport(PageSurface& page, const Field& field, const ClockTime& time);

}  // namespace verdalis
