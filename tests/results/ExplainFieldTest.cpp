#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <set>

#include "model/CropKind.h"
#include "results/explainField.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"
#include "tests/support/RandomFarm.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Steps = std::vector<ExplainedStep>;

const ExplainedStep* find(const Steps& steps, const std::string& what) {
  const auto found =
      std::find_if(steps.begin(), steps.end(), [&](const ExplainedStep& step) { return step.what == what; });
  return found == steps.end() ? nullptr : &*found;
}

double valueOf(const Steps& steps, const std::string& what) {
  const ExplainedStep* const step = find(steps, what);
  EXPECT_NE(step, nullptr) << what;
  return step == nullptr ? 0 : step->value;
}

std::string lineOf(const Steps& steps, const std::string& what) {
  const ExplainedStep* const step = find(steps, what);
  return step == nullptr ? "" : step->what + ": " + step->shown + " = " + step->formula;
}

/// The sum of the dollars of the steps from the one behind `after` to the one before `end`.
double dollarsBetween(const Steps& steps, const std::string& after, const std::string& end) {
  double sum = 0;
  bool counts = false;
  for (const ExplainedStep& step : steps) {
    if (step.what == end) break;
    if (counts && step.unit == "$") sum += step.value;
    if (step.what == after) counts = true;
  }
  return sum;
}

struct Drawn {
  FieldCollection option;
  double efficiency = 1;
};

/// Fields of all kinds: dry ones, such with more water than their table has, with figures of a trend.
Drawn draw(std::uint64_t seed) {
  RandomFarm random(seed);
  Drawn drawn;
  drawn.efficiency = (1 + random.below(100)) / 100.0;
  const double rain = 11 + random.below(5) / 2.0;
  const int fields = 1 + random.below(4);
  for (int i = 0; i < fields; ++i) {
    auto field = std::make_shared<Field>();
    field->acres = (1 + random.below(400)) / 4.0;
    field->Depth = random.chance(20) ? 0 : random.below(2000) / 100.0;
    field->annualRain = rain;
    field->theCrop = std::make_shared<Crop>(random.crop());
    field->irrigCosts = std::make_shared<IrrigationCosts>(random.plant());
    if (random.chance(10)) {
      field->theCrop->inputCosts.UseBatch = true;
      field->theCrop->inputCosts.BatchGeneralCosts = random.amount(300);
    }
    if (random.chance(10)) {
      field->irrigCosts->UseBatch = true;
      field->irrigCosts->BatchIrrigationCosts = random.amount(10);
    }
    double depth = field->Depth;
    field->theCrop->setYield(depth, rain);
    drawn.option.Add(std::move(field));
  }
  return drawn;
}

TEST(ExplainField, AddsUpToTheProfit) {
  for (std::uint64_t seed = 0; seed < 1000; ++seed) {
    SCOPED_TRACE(seed);
    const Drawn drawn = draw(seed);
    FieldCollection priced = drawn.option.Copy();
    const double profit = priced.getProfit(drawn.efficiency);
    for (long number = 1; number <= drawn.option.Count(); ++number) {
      const Steps steps = explainField(drawn.option, static_cast<std::size_t>(number), drawn.efficiency);
      Field& field = *priced.Item(number);
      const inputCosts& costs = field.theCrop->inputCosts;
      EXPECT_EQ(valueOf(steps, "Net irrigation"), field.Depth);
      EXPECT_EQ(valueOf(steps, "Gross irrigation"), field.Depth / drawn.efficiency);
      EXPECT_EQ(valueOf(steps, "Yield"), field.theCrop->Yield);
      const double production = valueOf(steps, "Production costs");
      if (!costs.UseBatch) {
        EXPECT_EQ(dollarsBetween(steps, "Yield", "Production costs"), production);
      }
      const double irrigation = valueOf(steps, "Irrigation costs");
      if (find(steps, "Fuel cost") != nullptr) {
        EXPECT_EQ(dollarsBetween(steps, "Production costs", "Irrigation costs"), irrigation);
      }
      EXPECT_EQ(valueOf(steps, "Total costs"), irrigation + production);
      EXPECT_EQ(valueOf(steps, "Total returns"), valueOf(steps, "Sales") + valueOf(steps, "Misc. returns"));
      EXPECT_EQ(valueOf(steps, "Net return of the field"),
                valueOf(steps, "Total returns") - valueOf(steps, "Total costs"));
      EXPECT_EQ(valueOf(steps, "Net return of the field"), field.getProfit(drawn.efficiency));
      EXPECT_EQ(steps.back().what, "Net return of the option");
      EXPECT_EQ(steps.back().value, profit);
      std::set<std::string> names;
      for (const ExplainedStep& step : steps) {
        EXPECT_NE(step.formula, "") << step.what;
        EXPECT_NE(step.shown, "") << step.what;
        EXPECT_TRUE(names.insert(step.what).second) << step.what;
      }
    }
  }
}

TEST(ExplainField, LeavesTheOptionAsItWas) {
  const Drawn drawn = draw(3);
  const Crop& crop = *drawn.option.Item(1)->theCrop;
  const std::string before = crop.writeData();
  static_cast<void>(explainField(drawn.option, 1, drawn.efficiency));
  EXPECT_EQ(crop.writeData(), before);
  EXPECT_EQ(drawn.option.TotalCost, 0);
}

TEST(ExplainField, ReadsTheCellsOfTheTable) {
  const Option option = optionOf({stockField(cornCrop(), 50, 11.9, 16.5)});
  const Steps steps = explainField(*option, 1, 0.85);
  EXPECT_EQ(lineOf(steps, "Gross irrigation"),
            "Gross irrigation: 14.0'' = the field's water 700.0 acre-inches / 50 acres");
  EXPECT_EQ(lineOf(steps, "Net irrigation"),
            "Net irrigation: 11.9'' = gross irrigation 14.0'' x efficiency 85.0 %");
  EXPECT_EQ(valueOf(steps, "Rain in the yield table"), 16);
  const YieldTable table = cornTable();
  EXPECT_EQ(valueOf(steps, "Yield table at 11'' of irrigation"), table.cell(11, 16));
  EXPECT_EQ(valueOf(steps, "Yield table at 12'' of irrigation"), table.cell(12, 16));
  EXPECT_EQ(lineOf(steps, "Share of the table's yields"),
            "Share of the table's yields: 1.048 = maximum yield 220.0 bu./ac / the table's yield at full "
            "irrigation 210.0 bu./ac");
  EXPECT_EQ(find(steps, "Yield")->unit, "bu./ac");
}

TEST(ExplainField, TellsARowThatIsRoundedUpAndTheTopOfTheTable) {
  const Steps up = explainField(*optionOf({stockField(cornCrop(), 50, 5.97)}), 1, 0.85);
  EXPECT_THAT(lineOf(up, "Yield table at 6'' of irrigation"), HasSubstr("less than a tenth away"));
  EXPECT_NE(find(up, "Yield table at 7'' of irrigation"), nullptr);
  const Steps top = explainField(*optionOf({stockField(cornCrop(), 50, 30)}), 1, 0.85);
  EXPECT_EQ(valueOf(top, "Net irrigation"), 30);
  EXPECT_EQ(valueOf(top, "Irrigation in the yield table"), 24);
  EXPECT_THAT(lineOf(top, "Yield by the table"), HasSubstr("the top of the table"));
}

TEST(ExplainField, TellsAFractionOfTheMaximumYield) {
  Crop crop = namedCrop("Millet");
  crop.setYieldTable(tableOf(16, {{0.5}, {0.75}}));
  crop.maxYield = 80;
  auto field = stockField(crop, 50, 0.5);
  const Steps steps = explainField(*optionOf({field}), 1, 0.85);
  EXPECT_EQ(lineOf(steps, "Yield table at 0'' of irrigation"),
            "Yield table at 0'' of irrigation: 0.500 of the maximum yield = the cell for Silt Loam");
  EXPECT_EQ(lineOf(steps, "Yield"),
            "Yield: 50.0 bu./ac = yield by the table 0.625 x maximum yield 80.0 bu./ac");
}

TEST(ExplainField, TellsCostsWithTheirRates) {
  const Steps steps = explainField(*optionOf({stockField(cornCrop(), 50, 12)}), 1, 0.85);
  EXPECT_EQ(lineOf(steps, "Herbicide cost"), "Herbicide cost: $1,500.00 = $30.00 /acre x 50 acres");
  EXPECT_THAT(lineOf(steps, "Nitrogen applied"), HasSubstr("x 1.35 lb for each bu."));
  EXPECT_THAT(lineOf(steps, "Nitrogen cost"), HasSubstr("lb/ac x $0.44/lb x 50 acres ($"));
  EXPECT_EQ(lineOf(steps, "Seeds planting rate"),
            "Seeds planting rate: 26,000 seeds/acre = the rate for net irrigation 12.0''");
  EXPECT_THAT(lineOf(steps, "Harvesting costs"),
              HasSubstr("(base charge $28.58 + extra $0.214 per bu. x (yield "));
  EXPECT_THAT(lineOf(steps, "Pumping hours"), HasSubstr("x 50 acres / (750 GPM / 450)"));
}

TEST(ExplainField, SpreadsTheStandOfAlfalfaOverItsLife) {
  Crop crop = alfalfaCrop();
  const Steps perTon = explainField(*optionOf({stockField(crop, 50, 12)}), 1, 0.85);
  EXPECT_EQ(lineOf(perTon, "Tillage cost"),
            "Tillage cost: $521.00 = $31.26 /acre x 50 acres / life of stand 3 years ($10.42 /acre)");
  EXPECT_THAT(lineOf(perTon, "Seed cost"), HasSubstr(" / life of stand 3 years ("));
  EXPECT_THAT(lineOf(perTon, "Harvesting costs"), HasSubstr("x $35 per ton x 50 acres"));
  crop.inputCosts.AlfalfaPerTon = 0;
  crop.inputCosts.AlfalfaSwathing = 9;
  crop.inputCosts.AlfalfaSwathingNum = 4;
  crop.inputCosts.AlfalfaStand = 0;
  const Steps operations = explainField(*optionOf({stockField(crop, 50, 12)}), 1, 0.85);
  EXPECT_THAT(lineOf(operations, "Harvesting costs"),
              HasSubstr("(swathing $9 x 4 + raking $0 x 0 + baling $0 x 0) x 50 acres ($36.00 /acre)"));
  EXPECT_THAT(lineOf(operations, "Tillage cost"), HasSubstr("life of stand 1 year "));
}

TEST(ExplainField, TellsOfSunflowerByTheHundredPounds) {
  Crop crop = stockCrop("Sunflower", tableOf(16, {{1000}, {2000}}));
  const Steps steps = explainField(*optionOf({stockField(crop, 50, 1)}), 1, 0.85);
  EXPECT_THAT(lineOf(steps, "Harvesting costs"),
              HasSubstr(" per 100 lb x (yield 3,500.0 lb/ac - 1300) / 100"));
  crop.inputCosts.HarvestFlatRate = 2;
  const Steps flat = explainField(*optionOf({stockField(crop, 50, 1)}), 1, 0.85);
  EXPECT_THAT(lineOf(flat, "Harvesting costs"),
              HasSubstr("yield 3,500.0 lb/ac / 100 x flat rate $2 per 100 lb x 50 acres"));
}

TEST(ExplainField, TellsThatFallowHasNoWaterAndNoYield) {
  const Steps steps = explainField(*optionOf({stockField(fallowCrop(), 50, 0)}), 1, 0.85);
  EXPECT_EQ(lineOf(steps, "Gross irrigation"), "Gross irrigation: 0.0'' = Fallow gets no water");
  EXPECT_EQ(lineOf(steps, "Yield"), "Yield: 0.0 = Fallow yields nothing");
  EXPECT_EQ(find(steps, "Rain in the yield table"), nullptr);
  EXPECT_EQ(valueOf(steps, "Production costs"), 50 * (8 + 25 + 5.26));
}

TEST(ExplainField, TellsWhyIrrigationCostsNothing) {
  const auto why = [](const std::shared_ptr<Field>& field) {
    const Steps steps = explainField(*optionOf({field}), 1, 0.85);
    EXPECT_EQ(find(steps, "Pumping hours"), nullptr);
    return lineOf(steps, "Irrigation costs");
  };
  EXPECT_THAT(why(stockField(cornCrop(), 50, 0)), HasSubstr("without water there is nothing to pump"));
  const auto idle = stockField(cornCrop(), 50, 12);
  idle->irrigCosts->active = false;
  EXPECT_THAT(why(idle), HasSubstr("no irrigation costs have been applied"));
  const auto broken = stockField(cornCrop(), 50, 12);
  broken->irrigCosts->GPM = 0;
  EXPECT_THAT(why(broken), HasSubstr("no discharge rate or no fuel performance"));
}

TEST(ExplainField, TellsTheFiguresOfATrend) {
  const auto field = stockField(cornCrop(), 50, 10);
  field->theCrop->inputCosts.UseBatch = true;
  field->theCrop->inputCosts.BatchGeneralCosts = 200;
  field->irrigCosts->UseBatch = true;
  field->irrigCosts->BatchIrrigationCosts = 3;
  const Steps steps = explainField(*optionOf({field}), 1, 0.85);
  EXPECT_EQ(lineOf(steps, "Production costs"),
            "Production costs: $10,000.00 = general production costs of the trend $200 /acre x 50 acres "
            "($200.00 /acre)");
  EXPECT_EQ(
      lineOf(steps, "Irrigation costs"),
      "Irrigation costs: $1,500.00 = irrigation costs of the trend $3 /acre-inch x net irrigation 10.0'' x "
      "50 acres ($30.00 /acre)");
  EXPECT_EQ(find(steps, "Nitrogen cost"), nullptr);
}

TEST(ExplainField, EndsWithTheWholeOption) {
  const Option option = optionOf({plainField(10, 0, 5), plainField(30, 0, 1)});
  for (const auto& field : *option) {
    field->theCrop->setYieldTable(tableOf(16, {{0.5}}));
    field->theCrop->inputCosts.Returns = 8;
  }
  EXPECT_EQ(lineOf(explainField(*option, 2, 0.85), "Net return of the option"),
            "Net return of the option: $240.00 = returns of all fields $320.00 - costs of all fields $80.00; "
            "field 1 $30.00, field 2 $210.00 ($6 /acre)");
  EXPECT_NE(errorText(ErrorNumber::subscript, [&] { (void)explainField(*option, 3, 0.85); }), "");
}

}  // namespace
}  // namespace verdalis
