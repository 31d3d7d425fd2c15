#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "results/AllOptions.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"
#include "tests/support/FakeServices.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

class AllOptionsTest : public ::testing::Test {
 protected:
  AllOptionsTest() {
    window.open();
    all.onShowOption.connect([this](std::int16_t number) { asked.push_back(number); });
  }

  static std::shared_ptr<Field> field(const std::string& crop, double acres, double depth, double profit) {
    return plainField(acres, profit + 50, 50, depth, crop);
  }

  /// Two mixes near each other, a mirror image, and an option that is far behind.
  void loadUsual() {
    all.load({optionOf({field("Corn", 50, 8.5, 400), field("Corn", 50, 17, 300)}),
              optionOf({field("Corn", 50, 17, 300), field("Corn", 50, 8.5, 400)}),
              optionOf({field("Wheat", 50, 0, 300), field("Corn", 50, 17, 397)}),
              optionOf({field("Oats", 50, 0, 100), field("Wheat", 50, 0, 90)})},
             {4224, false});
  }

  [[nodiscard]] std::vector<std::string> line(std::size_t place) const {
    std::vector<std::string> texts;
    for (std::size_t column = 0; column < all.tblOptions.columns().size(); ++column)
      texts.push_back(all.tblOptions.cell(all.tblOptions.record(place), column).text);
    return texts;
  }

  [[nodiscard]] std::vector<std::string> column(std::size_t number) const {
    std::vector<std::string> texts;
    for (std::size_t place = 0; place < all.tblOptions.places(); ++place)
      texts.push_back(line(place)[number]);
    return texts;
  }

  [[nodiscard]] std::vector<std::string> heads() const {
    std::vector<std::string> texts;
    for (const Table::Column& one : all.tblOptions.columns())
      texts.push_back(one.heading);
    return texts;
  }

  ScopedEfficiency efficiency{0.85};
  FakeServices fake;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  AllOptions all{window, fake.services};
  std::vector<std::int16_t> asked;
};

TEST_F(AllOptionsTest, StartsEmpty) {
  EXPECT_EQ(all.tblOptions.places(), 0U);
  EXPECT_EQ(all.cboWith.text(), "any crop");
  EXPECT_EQ(all.lblOptionsNote.caption(), "");
  EXPECT_FALSE(all.chkFold.visible());
}

TEST_F(AllOptionsTest, ALineTellsCropsWaterAndMoney) {
  loadUsual();
  EXPECT_THAT(heads(), ElementsAre("Rank", "Crops and acres", "50 ac, gross in.", "50 ac", "$/acre", "Farm",
                                   "Behind the best"));
  EXPECT_THAT(line(0), ElementsAre("1", "Corn 100", "10.0", "20.0", "$350", "$35,000", "best"));
  EXPECT_THAT(line(1),
              ElementsAre("3", "Corn 50, Wheat 50", "0.0", "20.0", "$349", "$34,850", "-$150 (0.4 %)"));
  EXPECT_EQ(all.tblOptions.cell(0, 2).bar, 0.5);
  EXPECT_EQ(all.tblOptions.cell(0, 3).bar, 1);
  EXPECT_EQ(all.tblOptions.cell(0, 6).bar, 0);
  EXPECT_EQ(all.tblOptions.cell(3, 6).bar, 1);
}

TEST_F(AllOptionsTest, MirrorImagesAreFoldedUntilTheUserUnfoldsThem) {
  loadUsual();
  EXPECT_TRUE(all.chkFold.visible());
  EXPECT_THAT(column(0), ElementsAre("1", "3", "4"));
  all.chkFold.click();
  EXPECT_THAT(column(0), ElementsAre("1", "2", "3", "4"));
  all.load({optionEarning(2), optionOf({plainField(10, 60, 50, 0, "Corn")})}, {});
  EXPECT_FALSE(all.chkFold.visible());
  EXPECT_THAT(column(0), ElementsAre("1", "2"));
}

TEST_F(AllOptionsTest, TheBandMarksAndFiltersWhatIsAsGoodAsTheBest) {
  loadUsual();
  EXPECT_TRUE(all.tblOptions.isMarked(0));
  EXPECT_TRUE(all.tblOptions.isMarked(2));
  EXPECT_FALSE(all.tblOptions.isMarked(3));
  all.chkWithin.click();
  EXPECT_THAT(column(0), ElementsAre("1", "3"));
  all.txtWithin.type("0.2");
  EXPECT_THAT(column(0), ElementsAre("1"));
  EXPECT_FALSE(all.tblOptions.isMarked(2));
  all.txtWithin.type("75");
  EXPECT_THAT(column(0), ElementsAre("1", "3", "4"));
}

TEST_F(AllOptionsTest, ATextThatIsNoPercentageMarksOnlyTheBest) {
  loadUsual();
  for (const char* text : {"", "x", "-3", "101", "1e400"}) {
    all.txtWithin.type(text);
    EXPECT_TRUE(all.tblOptions.isMarked(0)) << text;
    EXPECT_FALSE(all.tblOptions.isMarked(2)) << text;
  }
}

TEST_F(AllOptionsTest, TellsInWordsHowManyMixesAreAsGood) {
  loadUsual();
  EXPECT_EQ(all.lblOptionsNote.caption(),
            "Two mixes are as good as the best within 1 % ($350). 4,224 plans compared.");
  all.txtWithin.type("0.2");
  EXPECT_EQ(all.lblOptionsNote.caption(),
            "No other mix is as good as the best within 0.2 % ($70). 4,224 plans compared.");
  all.txtWithin.type("75");
  EXPECT_EQ(all.lblOptionsNote.caption(),
            "Of the options kept, three mixes are as good as the best within 75 % ($26,250). 4,224 plans "
            "compared.");
  all.load({optionEarning(2)}, {1, false});
  EXPECT_EQ(all.lblOptionsNote.caption(),
            "Of the options kept, no other mix is as good as the best within 75 % ($15). 1 plan compared.");
}

TEST_F(AllOptionsTest, ListsTheOptionsWithACrop) {
  loadUsual();
  EXPECT_THAT(all.cboWith.items(), ElementsAre("any crop", "Corn", "Wheat", "Oats"));
  all.cboWith.pick(2);
  EXPECT_THAT(column(0), ElementsAre("3", "4"));
  all.cboWith.pick(1);
  EXPECT_THAT(column(0), ElementsAre("1", "3"));
  all.cboWith.pick(0);
  EXPECT_THAT(column(0), ElementsAre("1", "3", "4"));
  all.cboWith.pick(3);
  loadUsual();
  EXPECT_EQ(all.cboWith.text(), "any crop");
  EXPECT_THAT(column(0), ElementsAre("1", "3", "4"));
}

TEST_F(AllOptionsTest, SaysSoIfNothingIsListed) {
  loadUsual();
  all.cboWith.pick(3);
  all.chkWithin.click();
  EXPECT_EQ(all.tblOptions.places(), 0U);
  EXPECT_TRUE(all.lblOptionsNote.caption().starts_with("No option is like that."));
}

TEST_F(AllOptionsTest, EachColumnSortsByWhatItTells) {
  loadUsual();
  const auto sorted = [this](std::size_t number) {
    all.tblOptions.clickHeading(number);
    const std::vector<std::string> ranks = column(0);
    all.tblOptions.clickHeading(number);
    all.tblOptions.clickHeading(number);
    return ranks;
  };
  EXPECT_THAT(sorted(0), ElementsAre("1", "3", "4"));
  EXPECT_THAT(sorted(1), ElementsAre("1", "3", "4"));
  EXPECT_THAT(sorted(2), ElementsAre("3", "4", "1"));
  EXPECT_THAT(sorted(4), ElementsAre("4", "3", "1"));
  EXPECT_THAT(sorted(5), ElementsAre("4", "3", "1"));
  EXPECT_THAT(sorted(6), ElementsAre("1", "3", "4"));
}

TEST_F(AllOptionsTest, AChosenRowIsAskedForByItsNumber) {
  loadUsual();
  all.tblOptions.choose(1);
  EXPECT_THAT(asked, ElementsAre(3));
}

TEST_F(AllOptionsTest, TheOptionOnShowIsTheCurrentRow) {
  loadUsual();
  all.setCurrent(4);
  EXPECT_EQ(all.tblOptions.current(), 3U);
  all.setCurrent(2);
  EXPECT_EQ(all.tblOptions.current(), 0U) << "the line that stands for its mirror image";
  all.chkFold.click();
  EXPECT_EQ(all.tblOptions.current(), 1U);
  all.chkFold.click();
  EXPECT_EQ(all.tblOptions.current(), 0U);
  all.cboWith.pick(3);
  EXPECT_EQ(all.tblOptions.current(), std::nullopt);
  all.cboWith.pick(0);
  EXPECT_EQ(all.tblOptions.current(), 0U);
  all.setCurrent(0);
  EXPECT_EQ(all.tblOptions.current(), std::nullopt);
  all.setCurrent(99);
  EXPECT_EQ(all.tblOptions.current(), std::nullopt);
  EXPECT_TRUE(asked.empty());
}

TEST_F(AllOptionsTest, AnUndividedOptionTellsThatItsWaterIsForTheWholeFarm) {
  all.load({optionOf({field("Corn", 62.5, 8.5, 400), field("Corn", 37.5, 17, 300)}),
            optionOf({field("Corn", 100, 8.5, 300)})},
           {});
  EXPECT_EQ(heads()[2], "62.5 ac, gross in.");
  EXPECT_EQ(heads()[3], "37.5 ac");
  EXPECT_EQ(line(1)[2], "10.0, whole farm");
  EXPECT_EQ(line(1)[3], "");
}

TEST_F(AllOptionsTest, WhatCannotBeWorkedOutIsADash) {
  all.load({optionEarning(5), optionOf({plainField(10, std::numeric_limits<double>::max(), 0)}),
            optionOf({plainField(0, 60, 50)})},
           {});
  EXPECT_THAT(line(1), ElementsAre("2", "Millet 10", "0.0", "-", "-", "-"));
  EXPECT_THAT(line(2), ElementsAre("3", "Millet 0", "0.0", "-", "$0", "-$50 (100.0 %)"));
  all.tblOptions.clickHeading(3);
  EXPECT_EQ(column(0).back(), "1");
}

TEST_F(AllOptionsTest, ALossHasItsSignBeforeTheDollarSign) {
  all.load({optionEarning(-12), optionEarning(-12.004)}, {});
  EXPECT_EQ(line(0)[3], "-$12");
  EXPECT_EQ(line(0)[4], "-$120");
  EXPECT_EQ(line(1)[5], "under $1 (0.0 %)");
}

TEST_F(AllOptionsTest, OptionsOfATrendTellTheirValuesAndHaveNoBand) {
  auto first = optionEarning(10);
  first->AddBatchDescription("Crop Price - Corn", 5.5, {"$", "/ bu."});
  auto second = optionEarning(20);
  second->AddBatchDescription("Crop Price - Corn", 6.5, {"$", "/ bu."});
  all.load({first, second}, {std::nullopt, true});
  EXPECT_EQ(heads()[0], "Option");
  EXPECT_EQ(heads()[2], "Crop Price - Corn");
  EXPECT_EQ(line(0)[2], "$5.50 / bu.");
  EXPECT_EQ(line(1).back(), "highest");
  EXPECT_FALSE(all.tblOptions.isMarked(1));
  EXPECT_FALSE(all.chkWithin.visible());
  EXPECT_FALSE(all.chkFold.visible());
  EXPECT_EQ(all.lblOptionsNote.caption(), "");
  all.tblOptions.clickHeading(2);
  all.tblOptions.clickHeading(2);
  EXPECT_THAT(column(0), ElementsAre("2", "1"));
}

TEST_F(AllOptionsTest, CopiesTheLinesOnShow) {
  loadUsual();
  all.cboWith.pick(3);
  all.cmdCopyOptions.click();
  EXPECT_EQ(fake.clipboard.contents,
            "Rank\tCrops and acres\t50 ac, gross in.\t50 ac\t$/acre\tFarm\tBehind the best\n"
            "4\tOats 50, Wheat 50\t0.0\t0.0\t$95\t$9,500\t-$25,500 (72.9 %)\n");
}

TEST_F(AllOptionsTest, NewOptionsReplaceTheOldOnes) {
  loadUsual();
  all.tblOptions.clickHeading(4);
  all.chkWithin.click();
  all.load({}, {});
  EXPECT_EQ(all.tblOptions.places(), 0U);
  EXPECT_EQ(all.lblOptionsNote.caption(), "");
  all.load({optionEarning(1)}, {});
  EXPECT_EQ(all.tblOptions.places(), 1U);
  EXPECT_FALSE(all.chkWithin.checked());
}

}  // namespace
}  // namespace verdalis
