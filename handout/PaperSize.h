#pragma once

#include <string_view>

namespace verdalis {

/// The sheets that a report is laid out for.
enum class PaperSize { a4, letter };

/// Width and height of an upright sheet, points.
struct Sheet {
  double width = 0;
  double height = 0;
};

[[nodiscard]] constexpr Sheet sheetOf(PaperSize paper) {
  return paper == PaperSize::a4 ? Sheet{595.28, 841.89} : Sheet{612, 792};
}

/// The usual sheet of a locale such as "de_DE.UTF-8", by its country. Letter without a country, as in "C".
[[nodiscard]] PaperSize paperOfLocale(std::string_view locale);

/// The usual sheet where the program runs, by the environment: LC_ALL, LC_PAPER or LANG.
[[nodiscard]] PaperSize usualPaper();

}  // namespace verdalis
