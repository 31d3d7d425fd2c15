#pragma once

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include "handout/layOutPages.h"
#include "tests/charts/drawings.h"

namespace verdalis::testing {

/// What is wrong with a page: parts outside of the margins, or texts on each other; empty if nothing is.
inline std::string faultOfPage(const Drawing& page, const TextMeasure& measure) {
  Drawing inside = page;
  for (DrawnPart& part : inside.parts) {
    const auto move = [](Place& place) {
      place.x -= pageMargin;
      place.y -= pageMargin;
    };
    if (auto* line = std::get_if<DrawnLine>(&part))
      std::for_each(line->points.begin(), line->points.end(), move);
    if (auto* area = std::get_if<DrawnArea>(&part))
      std::for_each(area->corners.begin(), area->corners.end(), move);
    if (auto* text = std::get_if<DrawnText>(&part)) move(text->at);
  }
  inside.width -= 2 * pageMargin;
  inside.height -= 2 * pageMargin;
  return faultOf(inside, measure);
}

/// All letters of the texts of pages, without blanks.
inline std::string lettersOf(const std::string& text) {
  std::string letters;
  for (const char byte : text) {
    if (static_cast<unsigned char>(byte) > ' ') letters += byte;
  }
  return letters;
}

inline std::string lettersOf(const std::vector<Drawing>& pages) {
  std::string letters;
  for (const Drawing& page : pages) {
    for (const DrawnText& text : textsOf(page))
      letters += lettersOf(text.text);
  }
  return letters;
}

}  // namespace verdalis::testing
