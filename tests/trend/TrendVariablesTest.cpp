#include <gmock/gmock.h>

#include "tests/support/Errors.h"
#include "tests/trend/TrendTest.h"
#include "trend/TrendVariables.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

class TrendVariablesTest : public TrendTest {
 protected:
  std::string caption(int variable) { return trendVariable(variable).unitCaption(&corn()); }
};

TEST_F(TrendVariablesTest, DescribesEachVariable) {
  const std::vector<const char*> captions{"Price per Unit",   "Total Production Costs*",
                                          "Maximum Yield",    "Irrigation System Efficiency",
                                          "Irrigation Costs", "Effective Annual Rainfall"};
  const std::vector<const char*> labels{"Crop Price",       "General Production Costs",
                                        "Maximum Yield",    "Irrigation System Efficiency",
                                        "Irrigation Costs", "Annual Rainfall"};
  for (int i = 0; i < 6; ++i) {
    const auto index = static_cast<std::size_t>(i);
    EXPECT_STREQ(trendVariable(i).caption, captions[index]);
    EXPECT_STREQ(trendVariable(i).label, labels[index]);
    EXPECT_STREQ(trendVariable(i).fixedLabel, i == 1 ? "General Product Costs" : labels[index]);
    EXPECT_EQ(trendVariable(i).ofCrop, i < 3);
  }
}

TEST_F(TrendVariablesTest, HasAUnitCaptionForEachVariable) {
  EXPECT_EQ(caption(0), "($ / bu.)");
  EXPECT_EQ(caption(1), "($ / ac)");
  EXPECT_EQ(caption(2), "(bushels / acre)");
  EXPECT_EQ(caption(3), "(%)");
  EXPECT_EQ(caption(4), "($ / ac-in)");
  EXPECT_EQ(caption(5), "(inches)");
}

TEST_F(TrendVariablesTest, HasUnitsForEachVariable) {
  EXPECT_THAT(GetVariableUnits(host, 0, 0), ElementsAre("$", "/ bu."));
  EXPECT_THAT(GetVariableUnits(host, 0, 1), ElementsAre("$", "/ sack"));
  EXPECT_THAT(GetVariableUnits(host, 1, 0), ElementsAre("$", "/ ac"));
  EXPECT_THAT(GetVariableUnits(host, 2, 0), ElementsAre("", "bushels / acre"));
  EXPECT_THAT(GetVariableUnits(host, 3, 99), ElementsAre("", "%"));
  EXPECT_THAT(GetVariableUnits(host, 4, 99), ElementsAre("$", "/ ac-in"));
  EXPECT_THAT(GetVariableUnits(host, 5, 99), ElementsAre("", "inches"));
}

TEST_F(TrendVariablesTest, AMissingVariableOrCropIsARunTimeError) {
  errorText(ErrorNumber::subscript, [&] { (void)GetVariableUnits(host, 0, 3); });
  errorText(ErrorNumber::subscript, [&] { (void)GetVariableUnits(host, 0, -1); });
  errorText(ErrorNumber::subscript, [] { (void)trendVariable(6); });
  errorText(ErrorNumber::subscript, [] { (void)trendVariable(-1); });
}

TEST_F(TrendVariablesTest, FindsTheRowOfTheFirstCropWithExactlyTheName) {
  host.add(roundCrop("Corn", "x,y", 1, 1, 1));
  EXPECT_TRUE(GetCropIndex(host, "Corn").found);
  EXPECT_EQ(GetCropIndex(host, "Corn").row, 0U);
  EXPECT_EQ(GetCropIndex(host, "Wheat").row, 2U);
  EXPECT_FALSE(GetCropIndex(host, "wheat").found);
  EXPECT_FALSE(GetCropIndex(host, "Rye").found);
  EXPECT_EQ(GetCropIndex(host, "Rye").row, 0U);
}

TEST(BatchProcessTest, StartsBlank) {
  const BatchProcess process;
  EXPECT_EQ(process.cropIndex, 0);
  EXPECT_EQ(process.VariableIndex, 0);
  EXPECT_EQ(process.variables_type, 0);
  EXPECT_EQ(process.variables_min + process.variables_max + process.variables_steps +
                process.variables_manual + process.inputfilename,
            "");
  EXPECT_TRUE(process.GetValueArray().empty());
}

TEST(BatchProcessTest, CopyAndChangeCopyAllExceptContentString) {
  BatchProcess process;
  process.cropIndex = 2;
  process.VariableIndex = 5;
  process.ContentString = "own";
  process.variables_type = 1;
  process.variables_min = "a";
  process.variables_max = "b";
  process.variables_steps = "c";
  process.variables_manual = "d";
  process.inputfilename = "e";
  process.SetValueArray({1.0, std::string("2")});

  BatchProcess changed;
  changed.ContentString = "kept";
  changed.Change(process);
  EXPECT_EQ(changed.ContentString, "kept");
  const BatchProcess copy = process.Copy();
  EXPECT_EQ(copy.ContentString, "");
  for (const BatchProcess& other : {copy, changed}) {
    EXPECT_EQ(other.cropIndex, 2);
    EXPECT_EQ(other.VariableIndex, 5);
    EXPECT_EQ(other.variables_type, 1);
    EXPECT_EQ(other.variables_min, "a");
    EXPECT_EQ(other.variables_max, "b");
    EXPECT_EQ(other.variables_steps, "c");
    EXPECT_EQ(other.variables_manual, "d");
    EXPECT_EQ(other.inputfilename, "e");
    EXPECT_EQ(other.GetValueArray(), process.GetValueArray());
  }
}

TEST(BatchProcessTest, ValuesAreConvertedToNumbersWhenUsed) {
  EXPECT_EQ(numberOf(2.5), 2.5);
  EXPECT_EQ(numberOf(std::string("1e3")), 1000);
  errorText(ErrorNumber::typeMismatch, [] { (void)numberOf(std::string("x")); });
}

}  // namespace
}  // namespace verdalis
