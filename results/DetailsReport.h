#pragma once

#include "controls/services.h"
#include "model/Field.h"

namespace verdalis {

/// Writes the report of the details of one field and does not end the document. The field does not change.
/// \throws RunTimeError (divisionByZero, overflow) for a figure that cannot be calculated; the lines before
/// it are already written
void writeDetailsReport(PageSurface& page, const Field& field, const ClockTime& time);

}  // namespace verdalis
