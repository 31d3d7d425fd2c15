#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

#include "tests/handout/pages.h"

namespace verdalis {
namespace {

using testing::faultOfPage;
using testing::hasText;
using testing::lettersOf;
using testing::PlainMeasure;
using testing::textsOf;

const NumberStyle money{"$", "", 2, true, false};

std::vector<Drawing> pagesOf(HandoutTable table, PaperSize paper = PaperSize::letter) {
  const PlainMeasure measure;
  return layOutPages({"Irrigation plan",
                      "North farm",
                      "Ann Lee, adviser",
                      "November 3, 2026",
                      {{"Options", {}, {}, {std::move(table)}}}},
                     paper, measure);
}

const DrawnText* find(const Drawing& page, const std::string& wanted) {
  for (const DrawnPart& part : page.parts) {
    const auto* const text = std::get_if<DrawnText>(&part);
    if (text != nullptr && text->text == wanted) return text;
  }
  return nullptr;
}

/// Where a text ends.
double rightOf(const DrawnText& text) {
  return placeOf(text, PlainMeasure()).right;
}

TEST(Pages, EachPageHasAHeadAndAFoot) {
  HandoutTable table{"", {{"Option", "", true, {}}}, {}};
  for (int i = 0; i < 120; ++i)
    table.rows.push_back({{static_cast<double>(i)}, false});
  const auto pages = pagesOf(table, PaperSize::a4);
  ASSERT_EQ(pages.size(), 3U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_NEAR(pages[i].width, 595.28, 0.01);
    for (const char* text :
         {"Irrigation plan", "North farm", "Ann Lee, adviser", "November 3, 2026", "Verdalis"})
      EXPECT_TRUE(hasText(pages[i], text)) << text << " on page " << i;
    EXPECT_TRUE(hasText(pages[i], "Page " + std::to_string(i + 1) + " of 3"));
    EXPECT_TRUE(hasText(pages[i], "Option")) << "the head of the table";
  }
}

TEST(Pages, NumbersStandWithTheirPointsBelowEachOther) {
  const NumberStyle exact{"", "", 0, true, true};
  const auto pages = pagesOf({"",
                              {{"Input", "", false, {}}, {"Value", "", true, exact}},
                              {{{std::string("Acres"), 125.0}, false},
                               {{std::string("Rain"), 17.25}, false},
                               {{std::string("Soil"), std::string("Silt Loam")}, false}}});
  const DrawnText* const whole = find(pages[0], "125");
  const DrawnText* const part = find(pages[0], "17.25");
  ASSERT_TRUE(whole != nullptr && part != nullptr);
  EXPECT_NEAR(rightOf(*whole),
              rightOf({part->at, part->anchor, part->size, part->bold, {}, "17.25"}) -
                  PlainMeasure().width(".25", part->size, false),
              1e-6);
  EXPECT_EQ(find(pages[0], "Silt Loam")->anchor, Anchor::end);
}

TEST(Pages, AWideTableGetsASmallerFontThenGroupsOfColumns) {
  const auto wide = [](std::size_t columns) {
    HandoutTable table{"Wide", {{"Option", "", false, {}}}, {{{std::string("First")}, false}}};
    for (std::size_t i = 0; i < columns; ++i) {
      table.columns.push_back({"Heading" + std::to_string(i), "$", true, money});
      table.rows[0].cells.emplace_back(1000.0 + static_cast<double>(i));
    }
    return table;
  };
  const auto usual = pagesOf(wide(4));
  EXPECT_EQ(find(usual[0], "$1,000.00")->size, 9);
  const auto smaller = pagesOf(wide(9));
  EXPECT_LT(find(smaller[0], "$1,000.00")->size, 9);
  const auto groups = pagesOf(wide(30));
  EXPECT_EQ(find(groups[0], "$1,000.00")->size, 7);
  std::size_t firsts = 0;
  for (const DrawnText& text : textsOf(groups[0])) {
    if (text.text == "First") ++firsts;
  }
  EXPECT_GE(firsts, 3U) << "the first column stands in each group";
  EXPECT_NE(lettersOf(groups).find("$1,029.00"), std::string::npos);
  EXPECT_TRUE(hasText(groups[0], "Wide (further columns)"));
}

TEST(Pages, ALongTextIsBrokenAtBlanks) {
  const PlainMeasure measure;
  std::string text;
  for (int i = 0; i < 60; ++i)
    text += "plan" + std::to_string(i) + " ";
  const auto pages = layOutPages({"T", "", "", "", {{"Notes", {text}, {}, {}}}}, PaperSize::letter, measure);
  std::size_t lines = 0;
  for (const DrawnText& line : textsOf(pages[0])) {
    if (!line.text.starts_with("plan")) continue;
    ++lines;
    EXPECT_NE(line.text.back(), ' ');
  }
  EXPECT_GT(lines, 3U);
  EXPECT_NE(lettersOf(pages).find("plan58plan59"), std::string::npos);
}

TEST(Pages, AnEmptySectionIsLeftOutAndAnEmptyTableHasItsHead) {
  const PlainMeasure measure;
  const auto pages = layOutPages(
      {"",
       "",
       "",
       "",
       {{"Empty", {}, {}, {}}, {"Table", {}, {}, {{"None yet", {{"Option", "", true, {}}}, {}}}}}},
      PaperSize::letter, measure);
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_FALSE(hasText(pages[0], "Empty"));
  EXPECT_TRUE(hasText(pages[0], "None yet"));
  EXPECT_TRUE(hasText(pages[0], "Option"));
}

TEST(Pages, AHandoutWithoutAnythingIsOnePage) {
  const PlainMeasure measure;
  const auto pages = layOutPages({}, PaperSize::letter, measure);
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(faultOfPage(pages[0], measure), "");
}

TEST(Pages, VeryLongTablesAndTextsAreLaidOut) {
  const PlainMeasure measure;
  HandoutTable table{
      "Long", {{"Option", "", true, {}}, {"Net return", "$", true, money}, {"Crops", "", false, {}}}, {}};
  for (int i = 0; i < 32767; ++i)
    table.rows.push_back({{static_cast<double>(i), 1e5 - i, std::string("Corn 94, Wheat 31")}, i % 9 == 0});
  table.rows[5].cells[2] = std::string(10000, 'w');
  table.rows[6].cells[1] = std::numeric_limits<double>::infinity();
  table.rows[7].cells[1] = std::nan("");
  table.rows[8].cells[1] = -1e308;
  const Handout handout{std::string(10000, 'T'),
                        std::string(10000, 'F'),
                        std::string(10000, 'L'),
                        std::string(10000, 'D'),
                        {{std::string(10000, 'S'), {std::string(10000, 'P')}, {}, {table}}}};
  const auto pages = layOutPages(handout, PaperSize::letter, measure);
  EXPECT_GT(pages.size(), 600U);
  for (const Drawing& page : pages)
    ASSERT_EQ(faultOfPage(page, measure), "");
  EXPECT_TRUE(lettersOf(pages).find("32,766") == std::string::npos);
  EXPECT_TRUE(hasText(pages.back(), "32766"));
  const std::string letters = lettersOf(pages);
  EXPECT_GE(std::count(letters.begin(), letters.end(), 'w'), 10000);
  EXPECT_EQ(std::count(letters.begin(), letters.end(), 'P') >= 10000, true);
}

TEST(Pages, AChartStaysAChart) {
  const PlainMeasure measure;
  Chart chart{
      "Value of water", {}, LineChart{{}, {}, {{"", {{1, 2, {}}, {3, 4, {}}}, true, true}}, {}, {}, {}}, {}};
  const auto pages = layOutPages({"T", "", "", "", {{"Water", {}, {chart}, {}}}}, PaperSize::a4, measure);
  EXPECT_TRUE(hasText(pages[0], "Value of water"));
  EXPECT_FALSE(testing::linesOf(pages[0], Ink::series).empty());
  EXPECT_EQ(faultOfPage(pages[0], measure), "");
}

TEST(PaperSize, FollowsTheCountryOfTheLocale) {
  for (const char* locale : {"en_US.UTF-8", "fr_CA", "es_MX.UTF-8", "C", "C.UTF-8", "POSIX", ""})
    EXPECT_EQ(paperOfLocale(locale), PaperSize::letter) << locale;
  for (const char* locale : {"de_DE.UTF-8", "en_GB", "es_ES@euro", "pt_BR.UTF-8"})
    EXPECT_EQ(paperOfLocale(locale), PaperSize::a4) << locale;
}

}  // namespace
}  // namespace verdalis
