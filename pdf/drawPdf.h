#pragma once

#include <string>
#include <vector>

#include "results/PageLayout.h"

namespace verdalis {

/// The bytes of a PDF file of `pages` pages with these texts, in their order, and with the fonts that it
/// needs. `title` is shown by readers in place of the name of the file.
/// \throws RunTimeError (fileNotFound) when it cannot be drawn
[[nodiscard]] std::string drawPdf(const std::vector<PlacedText>& texts, int pages, const Paper& paper,
                                  const std::string& title);

}  // namespace verdalis
