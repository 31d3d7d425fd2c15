#pragma once

#include <string>

#include "handout/Handout.h"

namespace verdalis {

/// Writes a workbook with a sheet for each section, as an .xlsx file. Numbers are numbers with all their
/// digits, under a display format; texts are texts, whatever they begin with.
/// \returns the bytes of the file
/// \throws RunTimeError (fileNotFound) if it cannot be made
[[nodiscard]] std::string writeWorkbook(const Handout& handout);

}  // namespace verdalis
