#pragma once

#include <string>

#include "handout/Handout.h"

namespace verdalis {

/// Writes a workbook with a sheet for each section, as an .xlsx file. Numbers are numbers with all that the
/// file keeps of them, under a display format; texts are texts, whatever they begin with.
///
/// The library writes 16 significant digits. A number that needs 17 to read back as the same 64-bit float
/// comes back as the neighbour that those 16 digits stand for; spreadsheet programs show 15.
/// \returns the bytes of the file
/// \throws RunTimeError (fileNotFound) if it cannot be made, (overflow) for more rows than a sheet has
[[nodiscard]] std::string writeWorkbook(const Handout& handout);

}  // namespace verdalis
