#pragma once

#include <string>
#include <vector>

#include "results/PageLayout.h"

namespace verdalis {

/// Draws a PDF file with `pages` pages and the given texts in their order. The fonts are embedded.
/// \param title shown by PDF readers instead of the file name.
/// \returns the bytes of the file.
/// \throws RunTimeError (fileNotFound) if it cannot be drawn
[[nodiscard]] std::string drawPdf(const std::vector<PlacedText>& texts, int pages, const Paper& paper,
                                  const std::string& title);

}  // namespace verdalis
