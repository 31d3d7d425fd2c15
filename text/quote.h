#pragma once

#include <string>
#include <string_view>

namespace verdalis {

/// The text as valid UTF-8, with a blank for each control character: one could move a terminal's cursor or
/// change what it shows.
[[nodiscard]] std::string printable(std::string text);

/// Whether a spreadsheet would take the text for a formula: after any blanks, which it passes over, there is
/// an = + - or @.
[[nodiscard]] bool beginsLikeFormula(std::string_view text);

/// Puts a text in double quotation marks for a message: on one line, in UTF-8, and cut after 40 characters,
/// with "..." added, if it is longer.
[[nodiscard]] std::string quoteForMessage(std::string_view text);

}  // namespace verdalis
