#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <string>

#include "tests/results/PlainPaper.h"

namespace verdalis {
namespace {

using testing::card;
using testing::PlainMetrics;

std::string withoutBlanks(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
  return text;
}

TEST(PageLayout, NoTextIsCutOffOrOverlapsAnother) {
  rc::check([] {
    const PlainMetrics metrics;
    PageLayout page(metrics, card);
    page.setFontSize(10);
    std::string printed;
    for (int step = *rc::gen::inRange(0, 60); step > 0; --step) {
      switch (*rc::gen::inRange(0, 4)) {
        case 0:
          page.setFontSize(*rc::gen::inRange(1, 24));
          break;
        case 1:
          page.setCurrentX(*rc::gen::inRange(-100, 3000));
          break;
        default:
          const std::string text =
              *rc::gen::container<std::string>(rc::gen::elementOf(std::string("abcdefg      ")));
          printed += text;
          *rc::gen::arbitrary<bool>() ? page.print(text) : page.printLine(text);
      }
    }
    page.endDocument();
    std::string placed;
    for (std::size_t i = 0; i < page.texts().size(); ++i) {
      const PlacedText& text = page.texts()[i];
      placed += text.text;
      const double right = text.x + metrics.width(text.text, text.font);
      RC_ASSERT(text.x >= card.sideMargin);
      RC_ASSERT(right <= card.width - card.sideMargin + 1e-9);
      RC_ASSERT(text.y <= card.height - card.endMargin);
      RC_ASSERT(text.page < page.pages());
      if (i == 0) continue;
      const PlacedText& before = page.texts()[i - 1];
      RC_ASSERT(text.page >= before.page);
      if (text.page == before.page && text.y == before.y) {
        RC_ASSERT(text.x >= before.x + metrics.width(before.text, before.font) - 1e-9);
      } else if (text.page == before.page) {
        RC_ASSERT(text.y > before.y);
      }
    }
    RC_ASSERT(withoutBlanks(placed) == withoutBlanks(printed));
  });
}

}  // namespace
}  // namespace verdalis
