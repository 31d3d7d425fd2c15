#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "tests/handout/AnyHandout.h"
#include "tests/handout/pages.h"

namespace verdalis {
namespace {

using testing::anyHandout;
using testing::faultOfPage;
using testing::lettersOf;
using testing::PlainMeasure;

PaperSize anyPaper() {
  return *rc::gen::element(PaperSize::a4, PaperSize::letter);
}

RC_GTEST_PROP(Pages, NothingLeavesTheMarginsAndNoTextIsOnAnother, ()) {
  const Handout handout = anyHandout();
  const PlainMeasure measure;
  const auto pages = layOutPages(handout, anyPaper(), measure);
  RC_ASSERT(!pages.empty());
  for (const Drawing& page : pages)
    RC_ASSERT(faultOfPage(page, measure) == std::string());
}

/// A text that no chart and no head contains.
std::string marked(std::size_t number) {
  return "cell-" + std::to_string(number) + "-" + std::string(number % 7 * 9, 'x') + "-end";
}

RC_GTEST_PROP(Pages, EveryCellIsOnSomePage, ()) {
  HandoutTable table = testing::anyTable();
  std::vector<std::string> expected;
  for (HandoutRow& row : table.rows) {
    for (std::size_t column = 0; column < std::min(row.cells.size(), table.columns.size()); ++column) {
      if (!std::holds_alternative<std::string>(row.cells[column])) continue;
      expected.push_back(marked(expected.size()));
      row.cells[column] = expected.back();
    }
  }
  const PlainMeasure measure;
  const std::string letters =
      lettersOf(layOutPages({"Title", "", "", "", {{"Section", {}, {}, {table}}}}, anyPaper(), measure));
  for (const std::string& text : expected)
    RC_ASSERT(letters.find(text) != std::string::npos);
}

/// Whether a text is the heading of a section.
bool isHeading(const DrawnText& text) {
  return text.size == 14 && text.bold;
}

RC_GTEST_PROP(Pages, NoHeadingStandsAtTheEndOfAPage, ()) {
  const Handout handout = anyHandout();
  const PlainMeasure measure;
  for (const Drawing& page : layOutPages(handout, anyPaper(), measure)) {
    // The last two parts are the foot.
    RC_ASSERT(page.parts.size() >= 2U);
    for (std::size_t i = 0; i + 2 < page.parts.size(); ++i) {
      const auto* const text = std::get_if<DrawnText>(&page.parts[i]);
      if (text != nullptr && isHeading(*text)) RC_ASSERT(i + 3 < page.parts.size());
    }
  }
}

RC_GTEST_PROP(Pages, EachPageIsNumbered, ()) {
  const PlainMeasure measure;
  const auto pages = layOutPages(anyHandout(), anyPaper(), measure);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::string number = "Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size());
    RC_ASSERT(testing::hasText(pages[i], number));
  }
}

}  // namespace
}  // namespace verdalis
