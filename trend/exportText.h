#pragma once

#include <string>
#include <string_view>

#include "controls/services.h"

namespace verdalis {

// What both spreadsheet exports have in common: the lines of an HTML page that a spreadsheet program opens.

/// Appends a line with its end, CR LF.
void addLine(std::string& text, std::string_view line);

/// The lines in front of the tables. The date names the worksheet.
void addHead(std::string& text, const ClockTime& today);

/// The lines behind the tables.
void addTail(std::string& text);

/// Acres of all fields of an option.
[[nodiscard]] double acresOf(const class FieldCollection& option);

}  // namespace verdalis
