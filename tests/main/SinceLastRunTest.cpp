#include <gtest/gtest.h>

#include "main/SinceLastRun.h"
#include "tests/main/RunningProgram.h"
#include "tests/support/SavedOptions.h"

namespace verdalis::testing {
namespace {

TEST(ChangesInWords, TellWhatAGrowerChanged) {
  const FarmInputs before = savedInputs();
  EXPECT_EQ(changesInWords(before, before), "");
  FarmInputs after = before;
  after.farm.txtMax = "11";
  EXPECT_EQ(changesInWords(before, after), "water 12 to 11 in");
  after.farm.txtMax = "12.0";
  EXPECT_EQ(changesInWords(before, after), "");
  after.farm.txtAnnRain = "14";
  after.farm.txtArea = "125";
  after.farm.txtEff = "85";
  EXPECT_EQ(changesInWords(before, after), "land 100 to 125 acres, rain 16 to 14 in, efficiency 80 to 85 %");
}

TEST(ChangesInWords, TellPricesAndYieldsOfCrops) {
  const FarmInputs before = savedInputs();
  FarmInputs after = before;
  after.crops = {};
  DocumentCrop corn = savedCrop("Corn", "5.25");
  corn.maxYield = "210";
  after.crops.add(corn);
  after.crops.add(savedCrop("Wheat", "7"));
  EXPECT_EQ(changesInWords(before, after), "Corn $6.50 to $5.25, Corn yield 220 to 210");
}

TEST(ChangesInWords, TellCropsThatAreAddedAndLeftOut) {
  FarmInputs before = savedInputs();
  FarmInputs after = before;
  after.crops = {};
  after.crops.add(savedCrop("Corn", "6.5"));
  EXPECT_EQ(changesInWords(before, after), "Wheat left out");
  EXPECT_EQ(changesInWords(after, before), "Wheat added");
}

TEST(ChangesInWords, ACropThatIsNotChosenHasNoEffect) {
  FarmInputs before = savedInputs();
  DocumentCrop oats = savedCrop("Oats", "3");
  oats.chosen = false;
  before.crops.add(oats);
  EXPECT_EQ(changesInWords(before, savedInputs()), "");
}

TEST(ChangesInWords, OfManyChangesTheFirstAreTold) {
  const FarmInputs before = savedInputs();
  FarmInputs after = before;
  after.farm.txtArea = "90";
  after.farm.txtMax = "11";
  after.farm.txtAnnRain = "14";
  after.farm.txtEff = "85";
  after.farm.noSplit = true;
  EXPECT_EQ(changesInWords(before, after),
            "land 100 to 90 acres, water 12 to 11 in, rain 16 to 14 in and 2 more");
}

class SinceTheLastRun : public ::testing::Test {
 protected:
  RunningProgram running;
  frmMain& main = running.start();

  [[nodiscard]] const Label& told() const { return main.theResults.lblSinceLast; }
  [[nodiscard]] const Label& outdated() const { return main.theResults.lblOutdated; }

  [[nodiscard]] std::string perAcre() const {
    const std::string text = main.theResults.lblTotalProfit.caption();
    return text.substr(0, text.find(' '));
  }
};

TEST_F(SinceTheLastRun, TheFirstRunHasNoneBeforeIt) {
  running.typeFarm();
  running.press("Command1");
  EXPECT_FALSE(told().visible());
  EXPECT_FALSE(outdated().visible());
}

TEST_F(SinceTheLastRun, TheNextRunTellsWhatChanged) {
  running.typeFarm();
  running.press("Command1");
  const std::string first = perAcre();
  running.press("theResults.Command1");
  running.control<TextBox>("txtMax").type("11");
  running.press("Command1");
  EXPECT_TRUE(told().visible());
  EXPECT_TRUE(told().caption().starts_with("Since the last run: water 12 to 11 in: " + first + " to " +
                                           perAcre() + " /acre (-$"))
      << told().caption();
  running.press("theResults.Command1");
  running.press("Command1");
  EXPECT_EQ(told().caption(), "");
  EXPECT_FALSE(told().visible());
}

TEST_F(SinceTheLastRun, ChangedInputsAreToldWhenThePageIsShownAgain) {
  running.typeFarm();
  running.press("Command1");
  running.press("theResults.Command1");
  main.showPane(main.pneResults);
  EXPECT_FALSE(outdated().visible()) << "nothing was changed";
  running.press("theResults.Command1");
  running.control<TextBox>("txtMax").type("11");
  main.showPane(main.pneResults);
  EXPECT_EQ(outdated().caption(), "Inputs have changed since this run.");
  EXPECT_TRUE(outdated().isShown());
  running.press("theResults.Command1");
  running.control<TextBox>("txtMax").type("12");
  main.showPane(main.pneResults);
  EXPECT_FALSE(outdated().visible());
}

TEST_F(SinceTheLastRun, AnotherFarmHasNoRunBeforeIt) {
  running.typeFarm();
  running.press("Command1");
  running.fakes.messageBox.answers = {MessageAnswer::no};  // do not save
  running.choose("mnuNew");
  running.typeFarm();
  running.control<TextBox>("txtMax").type("11");
  running.press("Command1");
  EXPECT_FALSE(told().visible());
}

}  // namespace
}  // namespace verdalis::testing
