#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/results/PlainPaper.h"

// The positions of texts on paper.

namespace verdalis {
namespace {

using testing::card;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::PlainMetrics;
using ::testing::SizeIs;

class PageLayoutTest : public ::testing::Test {
 protected:
  PageLayoutTest() { page.setFontSize(10); }

  PlainMetrics metrics;
  PageLayout page{metrics, card};

  struct Place {
    int page;
    double x;
    double y;
    std::string text;
    bool operator==(const Place& other) const {
      return page == other.page && std::abs(x - other.x) < 1e-9 && std::abs(y - other.y) < 1e-9 &&
             text == other.text;
    }
    friend std::ostream& operator<<(std::ostream& out, const Place& place) {
      return out << place.page << " " << place.x << " " << place.y << " " << place.text;
    }
  };

  /// All texts after the end of the document.
  std::vector<Place> places() {
    page.endDocument();
    std::vector<Place> places;
    for (const PlacedText& text : page.texts())
      places.push_back({text.page, text.x, text.y, text.text});
    return places;
  }
};

TEST_F(PageLayoutTest, TextsFollowEachOtherAndLinesStartAtTheLeft) {
  page.print("ab");
  page.printLine("cd");
  page.printLine("ef");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "ab"}, Place{0, 20, 13, "cd"}, Place{0, 10, 25, "ef"}));
}

TEST_F(PageLayoutTest, StopsAreInTwentiethsOfAPoint) {
  page.setCurrentX(0);
  page.print("ab");
  page.setCurrentX(600);
  page.printLine("cd");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "ab"}, Place{0, 40, 13, "cd"}));
}

TEST_F(PageLayoutTest, ATextAtAPassedStopStartsAfterThePreviousText) {
  page.print("abcdefgh");  // ends at 40
  page.setCurrentX(600);   // 30
  page.print("x");
  page.setCurrentX(1200);
  page.printLine("y");
  EXPECT_THAT(places(),
              ElementsAre(Place{0, 10, 13, "abcdefgh"}, Place{0, 55, 13, "x"}, Place{0, 70, 13, "y"}));
}

TEST_F(PageLayoutTest, EachTextHasTheFontSetBeforeIt) {
  page.setBold(true);
  page.print("a");
  page.setBold(false);
  page.setItalic(true);
  page.setUnderline(true);
  page.setFontSize(8);
  page.printLine("b");
  page.endDocument();
  ASSERT_THAT(page.texts(), SizeIs(2));
  EXPECT_EQ(page.texts()[0].font, (PageFont{10, true, false, false}));
  EXPECT_EQ(page.texts()[1].font, (PageFont{8, false, true, true}));
}

TEST_F(PageLayoutTest, ALineIsAsHighAsItsLargestTextAndHasOneBaseline) {
  page.print("a");
  page.setFontSize(20);
  page.print("B");
  page.setFontSize(10);
  page.printLine("c");
  page.printLine("d");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 21, "a"}, Place{0, 15, 21, "B"}, Place{0, 25, 21, "c"},
                                    Place{0, 10, 37, "d"}));
}

TEST_F(PageLayoutTest, EmptyLinesAreAsHighAsTheFont) {
  page.printLine("a");
  page.setFontSize(20);
  page.printLine("");
  page.setFontSize(10);
  page.printLine("b");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "a"}, Place{0, 10, 49, "b"}));
}

TEST_F(PageLayoutTest, AnUnfinishedLineIsPrinted) {
  page.print("a");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "a"}));
}

TEST_F(PageLayoutTest, ATextAsWideAsTheLineKeepsItsSize) {
  page.printLine(std::string(20, '*'));
  page.endDocument();
  ASSERT_THAT(page.texts(), SizeIs(1));
  EXPECT_EQ(page.texts()[0].font.size, 10);
}

TEST_F(PageLayoutTest, ATextSlightlyTooWideIsSetSmaller) {
  page.printLine(std::string(22, '*'));
  page.endDocument();
  ASSERT_THAT(page.texts(), SizeIs(1));
  EXPECT_DOUBLE_EQ(page.texts()[0].font.size, 10.0 * 20 / 22);
  EXPECT_THAT(page.texts()[0].text, SizeIs(22));
}

TEST_F(PageLayoutTest, AWiderTextIsBrokenAtASpace) {
  page.printLine("the quick brown fox jumps over it");
  page.printLine("x");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "the quick brown fox"},
                                    Place{0, 10, 25, "jumps over it"}, Place{0, 10, 37, "x"}));
}

TEST_F(PageLayoutTest, ALongValueContinuesBelowItsLabel) {
  page.print("Crops: ");
  page.print("Corn, Grain Sorghum, Wheat");
  page.printLine("!");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "Crops: "}, Place{0, 45, 13, "Corn, Grain"},
                                    Place{0, 10, 25, "Sorghum, Wheat"}, Place{0, 80, 25, "!"}));
}

TEST_F(PageLayoutTest, AWordThatDoesNotFitMovesToTheNextLine) {
  page.print("0123456789");
  page.setCurrentX(1200);
  page.printLine("abcdefghijklm nop");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "0123456789"}, Place{0, 10, 25, "abcdefghijklm nop"}));
}

TEST_F(PageLayoutTest, AWordWiderThanALineIsBrokenBetweenCharacters) {
  std::string word;
  for (int i = 0; i < 45; ++i)
    word += "\u20AC";
  page.printLine(word);
  const auto all = places();
  ASSERT_THAT(all, SizeIs(3));
  EXPECT_EQ(all[0].text.size(), 60U);
  EXPECT_EQ(all[2].text.size(), 15U);
  EXPECT_EQ(all[0].text + all[1].text + all[2].text, word);
}

TEST_F(PageLayoutTest, AStopOutsideThePaperCutsNothing) {
  page.setCurrentX(100000);
  page.printLine("abc");
  page.setCurrentX(-100);
  page.printLine("d");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "abc"}, Place{0, 10, 25, "d"}));
}

TEST_F(PageLayoutTest, LinesContinueOnFurtherPages) {
  for (int i = 1; i <= 12; ++i)
    page.printLine("line " + std::to_string(i));
  const auto all = places();
  ASSERT_THAT(all, SizeIs(12));
  EXPECT_EQ(all[4], (Place{0, 10, 61, "line 5"}));
  EXPECT_EQ(all[5], (Place{1, 10, 13, "line 6"}));
  EXPECT_EQ(all[11], (Place{2, 10, 25, "line 12"}));
  EXPECT_EQ(page.pages(), 3);
}

TEST_F(PageLayoutTest, ABrokenTextContinuesOnTheNextPage) {
  for (int i = 0; i < 4; ++i)
    page.printLine("x");
  page.printLine("the quick brown fox jumps over it");
  const auto all = places();
  EXPECT_EQ(all[4], (Place{0, 10, 61, "the quick brown fox"}));
  EXPECT_EQ(all[5], (Place{1, 10, 13, "jumps over it"}));
}

TEST_F(PageLayoutTest, EmptyLinesStartNoPage) {
  page.printLine("a");
  for (int i = 0; i < 50; ++i)
    page.printLine("");
  page.endDocument();
  EXPECT_EQ(page.pages(), 1);
  page.printLine("b");
  EXPECT_EQ(page.pages(), 2);
  EXPECT_EQ(page.texts().back().y, 13);
}

TEST_F(PageLayoutTest, AnEmptyDocumentIsAnEmptyPage) {
  EXPECT_THAT(places(), IsEmpty());
  EXPECT_EQ(page.pages(), 1);
}

TEST_F(PageLayoutTest, ATextHigherThanThePageHasAPageOfItsOwn) {
  page.printLine("a");
  page.setFontSize(100);
  page.printLine("b");
  page.setFontSize(10);
  page.printLine("c");
  page.endDocument();
  EXPECT_EQ(page.texts()[1].page, 1);
  EXPECT_EQ(page.texts()[2].page, 2);
}

TEST_F(PageLayoutTest, ControlCharactersArePrintedAsSpaces) {
  page.printLine("a\nb\tc\r");
  EXPECT_THAT(places(), ElementsAre(Place{0, 10, 13, "a b c "}));
}

TEST_F(PageLayoutTest, TheEndIsReportedOnce) {
  int ends = 0;
  page.onEnd = [&](const PageLayout& layout) {
    ++ends;
    EXPECT_THAT(layout.texts(), SizeIs(1));
  };
  page.print("a");
  EXPECT_EQ(ends, 0);
  page.endDocument();
  EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace verdalis
