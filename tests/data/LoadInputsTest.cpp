#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "data/SavedInputs.h"
#include "tests/data/PlainTarget.h"
#include "tests/data/SameInputs.h"
#include "tests/data/SampleInputs.h"
#include "tests/data/SampleValues.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis {
namespace {

using testing::contentOf;
using testing::PlainTarget;
using testing::sampleCorn;
using testing::sampleGeneral;
using testing::sampleInputs;
using testing::samplePlant;
using testing::TemporaryFolder;
using Events = std::vector<std::string>;

const std::string sampleHead = sampleGeneral + samplePlant;

bool load(const std::string& bytes, PlainTarget& target) {
  const TemporaryFolder folder;
  return loadInputs(folder.write("inputs.txt", bytes), target);
}

/// Replaces a part of a text, which must exist.
std::string with(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

/// The sample block, with another crop name.
std::string blockOf(const std::string& name) {
  return with(sampleCorn, "Corn", name);
}

TEST(LoadInputs, ReadsTheSampleLineByLine) {
  PlainTarget target({"Corn", "Fallow"});
  ASSERT_TRUE(load(sampleInputs, target));
  EXPECT_EQ(contentOf(target.general), contentOf(testing::generalOfSample()));
  EXPECT_EQ(contentOf(target.plant), contentOf(testing::plantOfSample()));
  EXPECT_EQ(contentOf(*target.rows[0]), contentOf(*testing::cornOfSample()));
  EXPECT_EQ(contentOf(*target.rows[1]), contentOf(*testing::fallowOfSample()));
}

TEST(LoadInputs, SetsTheControlsInOrderAndRefreshesLast) {
  PlainTarget target({"Corn", "Fallow"});
  ASSERT_TRUE(load(sampleInputs, target));
  EXPECT_EQ(target.events,
            (Events{"txtAnnRain=17", "txtEff=85", "split 3", "txtArea=125.5", "txtMax=14.25", "txtGPM=650",
                    "txtEstHours=1800", "txtLift=180", "txtPSI=30", "cboFuelType=Natural Gas", "txtCost=5.1",
                    "txtLaborPerHour=12", "txtRepairsPerAcre=0.33", "refresh"}));
}

TEST(LoadInputs, ShowsPlantValuesAsGeneralNumberText) {
  PlainTarget target;
  ASSERT_TRUE(load(with(with(sampleHead, "650\r\n", "0650.50\r\n"), "1800", "1e15 h"), target));
  EXPECT_TRUE(target.has("txtGPM=650.5"));
  EXPECT_TRUE(target.has("txtEstHours=1E+15"));
}

TEST(LoadInputs, AMissingFileChangesNothing) {
  const TemporaryFolder folder;
  PlainTarget target({"Corn"});
  target.general.totalAcres = "7";
  target.rows[0]->price = 3;
  const std::string before = contentOf(target);
  EXPECT_FALSE(loadInputs(folder / "inputs.txt", target));
  EXPECT_FALSE(loadInputs(folder.path(), target));
  EXPECT_EQ(contentOf(target), before);
  EXPECT_TRUE(target.events.empty());
}

TEST(LoadInputs, AnEmptyFileChangesNothing) {
  PlainTarget target({"Corn"});
  EXPECT_FALSE(load("", target));
  EXPECT_TRUE(target.events.empty());
}

TEST(LoadInputs, AcceptsAllThreeLineEnds) {
  PlainTarget expected({"Corn", "Fallow"});
  ASSERT_TRUE(load(sampleInputs, expected));
  for (const char lineEnd : {'\n', '\r'}) {
    std::string bytes = sampleInputs;
    bytes.erase(std::remove(bytes.begin(), bytes.end(), lineEnd == '\n' ? '\r' : '\n'), bytes.end());
    PlainTarget target({"Corn", "Fallow"});
    EXPECT_TRUE(load(bytes, target));
    EXPECT_EQ(contentOf(target), contentOf(expected));
  }
}

TEST(LoadInputs, ACommaEndsAValue) {
  PlainTarget target({"Corn"});
  std::string bytes = sampleHead + sampleCorn;
  for (std::size_t at = bytes.find("\r\n"); at + 2 < bytes.size(); at = bytes.find("\r\n", at))
    bytes.replace(at, 2, ",");
  ASSERT_TRUE(load(bytes, target));
  EXPECT_EQ(contentOf(*target.rows[0]), contentOf(*testing::cornOfSample()));
  EXPECT_EQ(contentOf(target.plant), contentOf(testing::plantOfSample()));
}

TEST(LoadInputs, AThousandsCommaShiftsTheFollowingValues) {
  PlainTarget target;
  ASSERT_TRUE(load(
      "3\r\n1,200\r\n14\r\n85\r\n650\r\n180\r\n30\r\n12\r\n0\r\n0\r\n60\r\n5\r\n7\r\nTrue\r\nDiesel\r\n9\r\n",
      target));
  EXPECT_EQ(target.general.totalAcres, "1");
  EXPECT_EQ(target.general.waterAllocation, "200");
  EXPECT_EQ(target.general.irrigEff, "14");
  EXPECT_EQ(target.general.annualRain, "85");
  EXPECT_EQ(target.plant.GPM, 650);
}

TEST(LoadInputs, DropsLeadingBlanksAndKeepsTrailingOnes) {
  PlainTarget target({"Corn", "Wheat "});
  ASSERT_TRUE(load("  3\r\n \t125\r\n14 \r\n85\r\n17\r\n" + with(samplePlant, "Natural", "   Natural") +
                       "  Corn\r\n  7\r\n" + sampleCorn.substr(sampleCorn.find("205")) +
                       with(sampleCorn, "Corn", "Wheat "),
                   target));
  EXPECT_EQ(target.general.splitIndex, "3");
  EXPECT_EQ(target.general.totalAcres, "125");
  EXPECT_EQ(target.general.waterAllocation, "14 ");
  EXPECT_EQ(target.plant.FuelType, "Natural Gas");
  EXPECT_EQ(target.rows[0]->price, 7);
  EXPECT_EQ(target.rows[1]->price, 4.6);
}

TEST(LoadInputs, AnEmptyLineClearsAnOptionalNumber) {
  PlainTarget target({"Corn"});
  target.rows[0]->inputCosts.HarvestFlatRate = 9;
  ASSERT_TRUE(load(sampleHead + with(sampleCorn, "0.5\r\n", "\r\n"), target));
  EXPECT_TRUE(target.rows[0]->inputCosts.HarvestFlatRate.isEmpty());
  EXPECT_FALSE(target.rows[0]->inputCosts.HarvestHauling.isEmpty());
  EXPECT_EQ(static_cast<double>(target.rows[0]->inputCosts.AlfalfaSwathing), 9.1);
}

TEST(LoadInputs, ATextThatIsNotANumberIsReadAs0) {
  PlainTarget target({"Corn"});
  ASSERT_TRUE(load(sampleHead + with(with(sampleCorn, "0.5\r\n", "x\r\n"), "4.6", ""), target));
  EXPECT_FALSE(target.rows[0]->inputCosts.HarvestFlatRate.isEmpty());
  EXPECT_EQ(static_cast<double>(target.rows[0]->inputCosts.HarvestFlatRate), 0);
  EXPECT_EQ(target.rows[0]->price, 0);
}

TEST(LoadInputs, OnlyTheWordTrueInAnyCaseIsTrue) {
  for (const auto& [word, expected] : {std::pair{"True", true},
                                       {"true", true},
                                       {"TRUE", true},
                                       {"tRuE", true},
                                       {"False", false},
                                       {"", false},
                                       {"1", false},
                                       {"-1", false},
                                       {"True ", false},
                                       {"Yes", false},
                                       {"#TRUE#", false}}) {
    PlainTarget target({"Corn"});
    target.plant.active = !expected;
    target.rows[0]->inputCosts.NOptimal = !expected;
    ASSERT_TRUE(
        load(sampleGeneral + with(samplePlant, "True", word) + with(sampleCorn, "True", word), target));
    EXPECT_EQ(target.plant.active, expected) << word;
    EXPECT_EQ(target.rows[0]->inputCosts.NOptimal, expected) << word;
  }
}

TEST(LoadInputs, EachBooleanIsReadFromItsOwnLine) {
  const std::string block = with(with(with(sampleCorn, "True", "?"), "False", "?"), "True", "?");
  for (int on = 0; on < 3; ++on) {
    std::string bytes = block;
    for (int i = 0; i < 3; ++i)
      bytes = with(bytes, "?", i == on ? "True" : "False");
    PlainTarget target({"Corn"});
    ASSERT_TRUE(load(sampleHead + bytes, target));
    EXPECT_EQ(target.rows[0]->inputCosts.NOptimal, on == 0);
    EXPECT_EQ(target.rows[0]->inputCosts.POptimal, on == 1);
    EXPECT_EQ(target.rows[0]->inputCosts.SeedOptimal, on == 2);
  }
}

TEST(LoadInputs, AnEmptyFirstLineSelectsNoSplit) {
  PlainTarget target({"Corn"});
  ASSERT_TRUE(load(with(sampleHead, "3\r\n", "\r\n") + sampleCorn, target));
  EXPECT_EQ(target.general.splitIndex, "");
  EXPECT_TRUE(target.has("no split"));
  EXPECT_TRUE(target.has("txtArea=125.5"));
  EXPECT_EQ(target.rows[0]->price, 4.6);
}

TEST(LoadInputs, EverySplitCanBeSelected) {
  for (const char* index : {"0", "1", "2", "3", "4", "5"}) {
    PlainTarget target;
    ASSERT_TRUE(load(with(sampleHead, "3\r\n", std::string(index) + "\r\n"), target));
    EXPECT_TRUE(target.has(std::string("split ") + index));
  }
}

// Rainfall and efficiency are set before the split; nothing is set after it.
TEST(LoadInputs, AnUnknownSplitStopsLoading) {
  for (const char* index : {"6", "-1", "x", "32768", "1e400", "True"}) {
    PlainTarget target({"Corn"});
    EXPECT_FALSE(load(with(sampleInputs, "3\r\n", std::string(index) + "\r\n"), target)) << index;
    EXPECT_EQ(target.events, (Events{"txtAnnRain=17", "txtEff=85"})) << index;
    EXPECT_EQ(target.general.splitIndex, index);
    EXPECT_EQ(contentOf(target.plant), contentOf(testing::plantOfSample())) << "has been read by then";
    EXPECT_EQ(target.rows[0]->price, 0);
  }
}

TEST(LoadInputs, EnablesTrendsIfTheFileHasTheKeyword) {
  for (const std::string& bytes :
       {sampleHead + "batch_enabled\r\n", sampleInputs + "batch_enabled\r\n", sampleInputs + "batch_enabled",
        sampleHead + "batch_enabled\r\n" + sampleCorn}) {
    PlainTarget target({"Corn", "Fallow"});
    EXPECT_TRUE(load(bytes, target));
    EXPECT_TRUE(target.has("trends"));
    EXPECT_EQ(target.events.back(), "refresh");
  }
}

TEST(LoadInputs, OtherWordsDoNotEnableTrends) {
  for (const char* word : {"Batch_Enabled", "batch_enabled ", "batch", "True", ""}) {
    PlainTarget target({"Corn"});
    EXPECT_TRUE(load(sampleHead + word + "\r\n", target)) << word;
    EXPECT_FALSE(target.has("trends")) << word;
  }
}

TEST(LoadInputs, SkipsTheBlockOfACropWithoutARow) {
  PlainTarget target({"Corn"});
  ASSERT_TRUE(
      load(sampleHead + blockOf("Gone") + sampleCorn + blockOf("Gone too") + "batch_enabled\r\n", target));
  EXPECT_EQ(contentOf(*target.rows[0]), contentOf(*testing::cornOfSample()));
  EXPECT_TRUE(target.has("trends"));
}

TEST(LoadInputs, ACropWithoutABlockKeepsItsValues) {
  PlainTarget target({"Wheat", "Corn", "Soybeans"});
  target.rows[0]->price = 6;
  target.rows[2]->inputCosts.HarvestFlatRate = 0.25;
  ASSERT_TRUE(load(sampleHead + sampleCorn, target));
  EXPECT_EQ(target.rows[0]->price, 6);
  EXPECT_EQ(target.rows[1]->price, 4.6);
  EXPECT_EQ(static_cast<double>(target.rows[2]->inputCosts.HarvestFlatRate), 0.25);
}

TEST(LoadInputs, BlocksMayBeInAnyOrder) {
  PlainTarget target({"Wheat", "Corn"});
  ASSERT_TRUE(load(sampleHead + with(sampleCorn, "4.6", "1") + with(blockOf("Wheat"), "4.6", "2"), target));
  EXPECT_EQ(target.rows[0]->price, 2);
  EXPECT_EQ(target.rows[1]->price, 1);
}

TEST(LoadInputs, MatchesNamesExactlyAndCaseSensitively) {
  PlainTarget target({"corn", "Corn ", "Cor", "Corn2"});
  ASSERT_TRUE(load(sampleHead + sampleCorn, target));
  for (const auto& crop : target.rows)
    EXPECT_EQ(crop->price, 0) << crop->cropType;
}

// A name with a comma is split and not found, so its values are skipped.
TEST(LoadInputs, ANameWithACommaLosesItsBlock) {
  PlainTarget target({"Corn, white", "Fallow"});
  ASSERT_TRUE(load(sampleHead + blockOf("Corn, white") + with(blockOf("Fallow"), "4.6", "9"), target));
  EXPECT_EQ(target.rows[0]->price, 0);
  EXPECT_EQ(target.rows[1]->price, 9);
}

TEST(LoadInputs, ANameEqualToASkippedValueTakesTheFollowingValues) {
  PlainTarget target({"205", "Wheat"});
  // After the value 205 its own block has 31 values left; the name "Wheat" and its price complete the 33.
  ASSERT_TRUE(load(sampleHead + blockOf("Gone") + with(blockOf("Wheat"), "205", "206"), target));
  const Crop& number = *target.rows[0];
  EXPECT_EQ(number.price, 0.44);
  EXPECT_EQ(number.maxYield, 100);
  EXPECT_EQ(number.inputCosts.NitrogenCost, 0) << "of the word True";
  EXPECT_EQ(static_cast<double>(number.inputCosts.AlfalfaStand), 5.12);
  EXPECT_EQ(number.inputCosts.MiscCost, 0) << "of the word Wheat";
  EXPECT_EQ(number.inputCosts.FertilizerApplication, 4.6);
  EXPECT_EQ(target.rows[1]->price, 0) << "its name has been taken for a number";
}

TEST(LoadInputs, TwoCropsOfTheSameNameGetOneBlockEach) {
  PlainTarget target({"Corn", "Wheat", "Corn"});
  ASSERT_TRUE(load(sampleHead + with(sampleCorn, "4.6", "1") + with(blockOf("Wheat"), "4.6", "2") +
                       with(sampleCorn, "4.6", "3"),
                   target));
  EXPECT_EQ(target.rows[0]->price, 1);
  EXPECT_EQ(target.rows[1]->price, 2);
  EXPECT_EQ(target.rows[2]->price, 3);
}

TEST(LoadInputs, AnExtraBlockOfANameGoesToItsFirstCrop) {
  PlainTarget target({"Corn"});
  ASSERT_TRUE(load(sampleHead + sampleCorn + with(sampleCorn, "4.6", "9"), target));
  EXPECT_EQ(target.rows[0]->price, 9);
}

TEST(LoadInputs, SkipsARowWithoutACrop) {
  PlainTarget target({"", "Corn"});
  target.rows[0] = nullptr;
  ASSERT_TRUE(load(sampleHead + "\r\n" + sampleCorn, target));
  EXPECT_EQ(target.rows[1]->price, 4.6);
}

TEST(LoadInputs, ANumberThatIsTooLargeStopsLoading) {
  PlainTarget target({"Corn", "Wheat"});
  EXPECT_FALSE(load(sampleHead + with(sampleCorn, "20.01", "1e400") + blockOf("Wheat"), target));
  EXPECT_EQ(target.rows[0]->price, 4.6);
  EXPECT_EQ(target.rows[0]->inputCosts.SeedRate, 29000);
  EXPECT_EQ(target.rows[0]->inputCosts.Herbicide, 0);
  EXPECT_EQ(target.rows[1]->price, 0);
  EXPECT_FALSE(target.has("refresh"));
  EXPECT_TRUE(target.has("txtGPM=650"));
}

TEST(LoadInputs, APlantNumberThatIsTooLargeSetsNoControl) {
  PlainTarget target({"Corn"});
  target.plant.cost = 7;
  EXPECT_FALSE(load(with(sampleInputs, "5.1\r\n", "-1e400\r\n"), target));
  EXPECT_TRUE(target.events.empty());
  EXPECT_EQ(target.general.totalAcres, "125.5");
  EXPECT_EQ(target.plant.NPC, 61.7);
  EXPECT_EQ(target.plant.cost, 7);
}

TEST(LoadInputs, ANumberThatIsTooLargeIsAllowedInASkippedBlock) {
  PlainTarget target({"Corn"});
  EXPECT_TRUE(load(sampleHead + with(blockOf("Gone"), "20.01", "1e400") + sampleCorn, target));
  EXPECT_EQ(target.rows[0]->price, 4.6);
}

TEST(LoadInputs, ReadsUtf8WithAndWithoutAByteOrderMarkAndWindows1252) {
  for (const std::string& bytes :
       {sampleHead + blockOf("Ma\xC3\xAFs"), "\xEF\xBB\xBF" + sampleHead + blockOf("Ma\xC3\xAFs"),
        sampleHead + blockOf("Ma\xEFs")}) {
    PlainTarget target({"Ma\xC3\xAFs"});
    EXPECT_TRUE(load(bytes, target));
    EXPECT_EQ(target.general.splitIndex, "3");
    EXPECT_EQ(target.rows[0]->price, 4.6);
  }
}

TEST(LoadInputs, SkipsManyMegabytesOfValues) {
  PlainTarget target({"Corn", "Wheat"});
  std::string bytes = sampleHead;
  for (int i = 0; i < 1'000'000; ++i)
    bytes += "7\r\n";
  EXPECT_TRUE(load(bytes + std::string(1'000'000, ',') + std::string(1'000'000, ' ') + sampleCorn, target));
  EXPECT_EQ(target.rows[0]->price, 4.6);
}

}  // namespace
}  // namespace verdalis
