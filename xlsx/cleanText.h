#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

/// A text that a workbook may hold: valid UTF-8, with a blank in place of each character that XML forbids,
/// and at most 32,767 characters as spreadsheet programs count them.
[[nodiscard]] std::string cleanText(std::string_view text);

/// How many characters a text has on screen, about.
[[nodiscard]] std::size_t widthOf(std::string_view text);

/// Breaks a text at blanks into lines of about this many characters.
[[nodiscard]] std::vector<std::string> brokenIntoLines(const std::string& text, std::size_t width);

/// Makes the names of sheets: at most 31 characters, none of []:*?/\, no apostrophe at the ends, none empty,
/// and none that differs from another one by the case of letters only.
class SheetNames {
 public:
  [[nodiscard]] std::string nameFor(std::string_view title);

 private:
  std::set<std::string> taken_;
};

}  // namespace verdalis
