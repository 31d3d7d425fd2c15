#pragma once

#include <string>

#include "handout/Handout.h"

namespace verdalis {

/// Writes a workbook with a sheet for each section, as an .xlsx file. Numbers are numbers under a display
/// format, and read back as the same 64-bit floats, also those that a chart keeps of its sheet; texts are
/// texts, whatever they begin with. Only the ends of an axis are written with 16 digits.
///
/// The same handout gives the same bytes within a second: the file tells when it was made.
/// \returns the bytes of the file
/// \throws RunTimeError (fileNotFound) if it cannot be made, (overflow) for more rows than a sheet has
[[nodiscard]] std::string writeWorkbook(const Handout& handout);

}  // namespace verdalis
