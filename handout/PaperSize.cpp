#include "handout/PaperSize.h"

#include <algorithm>
#include <array>

#include "platform/paperLocale.h"

namespace verdalis {
namespace {

/// The countries that write on Letter.
constexpr std::array<std::string_view, 18> letterCountries{"US", "CA", "MX", "PR", "CL", "CO",
                                                           "CR", "DO", "GT", "HN", "NI", "PA",
                                                           "PH", "SV", "VE", "BO", "GU", "VI"};

}  // namespace

PaperSize paperOfLocale(std::string_view locale) {
  const std::size_t line = locale.find('_');
  if (line == std::string_view::npos) return PaperSize::letter;
  const std::string_view country = locale.substr(line + 1, 2);
  const bool letter =
      std::find(letterCountries.begin(), letterCountries.end(), country) != letterCountries.end();
  return letter ? PaperSize::letter : PaperSize::a4;
}

PaperSize usualPaper() {
  return paperOfLocale(paperLocale());
}

}  // namespace verdalis
