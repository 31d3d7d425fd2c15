#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "model/CropKind.h"
#include "model/FieldCollection.h"
#include "model/PricedField.h"
#include "tests/support/Crops.h"
#include "tests/support/PlainFarm.h"
#include "tests/support/Plant.h"
#include "tests/support/RandomFarm.h"

// Random farms, compared exactly with a second version of the same formulas.

namespace verdalis::testing {
namespace {

struct Drawn {
  FieldCollection farm;
  double efficiency = 1;
};

Drawn drawFarm(std::uint64_t seed) {
  RandomFarm draw(seed);
  Drawn drawn;
  drawn.efficiency = (1 + draw.below(100)) / 100.0;
  const double rain = 11 + draw.below(5) / 2.0;
  const int fields = 1 + draw.below(4);
  for (int i = 0; i < fields; ++i) {
    auto field = std::make_shared<Field>();
    field->acres = draw.below(400) / 4.0;
    field->Depth = draw.chance(20) ? 0 : draw.below(2000) / 100.0;
    field->annualRain = rain;
    field->theCrop = std::make_shared<Crop>(draw.crop());
    field->irrigCosts = std::make_shared<IrrigationCosts>(draw.plant());
    drawn.farm.Add(std::move(field));
  }
  return drawn;
}

/// Sets the yields, as the evaluator does before it prices a farm.
void lookUp(FieldCollection& farm) {
  for (const auto& field : farm)
    (void)yieldAt(*field->theCrop, field->Depth, field->annualRain);
}

RC_GTEST_PROP(FarmProfit, EqualsTheSumOfTheSimpleFormulas, (std::uint64_t seed)) {
  Drawn drawn = drawFarm(seed);
  const ScopedEfficiency efficiency(drawn.efficiency);
  lookUp(drawn.farm);
  double costs = 0;
  double returns = 0;
  for (const auto& field : drawn.farm) {
    RC_ASSERT(field->theCrop->Yield == plainYield(*field->theCrop, field->Depth, field->annualRain));
    const double fieldCosts =
        plainCosts(*field->theCrop, *field->irrigCosts, field->acres, field->Depth, drawn.efficiency);
    const double fieldReturn = plainReturn(*field->theCrop, field->acres);
    costs += fieldCosts;
    returns += fieldReturn;
    Field priced = field->Copy();
    RC_ASSERT(priced.getCosts() == fieldCosts);
    RC_ASSERT(priced.getReturn() == fieldReturn);
    RC_ASSERT(priced.getProfit() == fieldReturn - fieldCosts);
  }
  RC_ASSERT(drawn.farm.getProfit() == returns - costs);
}

RC_GTEST_PROP(PricedField, EqualsTheResultsOfTheOperationsOfAField, (std::uint64_t seed)) {
  const Drawn drawn = drawFarm(seed);
  for (const auto& source : drawn.farm) {
    const Crop before = source->theCrop->Copy();
    const double hoursBefore = source->irrigCosts->hours;
    const PricedField priced = priceField({source->acres, source->Depth, source->annualRain},
                                          *source->theCrop, *source->irrigCosts, drawn.efficiency);

    const Crop& after = *source->theCrop;  // pricing changes neither the crop nor the plant
    RC_ASSERT(after.Yield == before.Yield);
    RC_ASSERT(after.writeData() == before.writeData());
    RC_ASSERT(after.inputCosts.NPerAcre == before.inputCosts.NPerAcre);
    RC_ASSERT(after.inputCosts.PPerAcre == before.inputCosts.PPerAcre);
    RC_ASSERT(source->irrigCosts->hours == hoursBefore);

    Field field = source->Copy();
    (void)yieldAt(*field.theCrop, field.Depth, field.annualRain);
    RC_ASSERT(priced.Yield == field.theCrop->Yield);
    RC_ASSERT(priced.costs == field.getCosts(drawn.efficiency));
    RC_ASSERT(priced.returns == field.getReturn());
    RC_ASSERT(priced.profit() == field.getProfit(drawn.efficiency));
    RC_ASSERT(priced.production.cost == field.Copy().getProductionCosts(drawn.efficiency));
    const inputCosts& left = field.theCrop->inputCosts;
    RC_ASSERT(priced.production.nitrogen == left.NPerAcre);
    RC_ASSERT(priced.production.phosphorus == left.PPerAcre);
    RC_ASSERT(priced.production.seedRate == left.SeedRate);
    RC_ASSERT(priced.production.stand.text() == left.AlfalfaStand.text());
    RC_ASSERT(priced.irrigation.hours == field.irrigCosts->hours);
  }
}

RC_GTEST_PROP(PricedField, IsTheSumOfItsParts, (std::uint64_t seed)) {
  const Drawn drawn = drawFarm(seed);
  for (const auto& source : drawn.farm) {
    const Crop& crop = *source->theCrop;
    CostParts parts;
    const PricedField priced = priceField({source->acres, source->Depth, source->annualRain}, crop,
                                          *source->irrigCosts, drawn.efficiency, &parts);
    if (!crop.inputCosts.UseBatch) RC_ASSERT(parts.production.sum() == priced.production.cost);
    const PumpingParts& pumping = parts.irrigation;
    if (!source->irrigCosts->UseBatch)
      RC_ASSERT(pumping.labor + pumping.fuel + pumping.repairs == priced.irrigation.cost);
    RC_ASSERT(priced.sales + crop.inputCosts.getReturns(source->acres) == priced.returns);
    RC_ASSERT(priced.irrigation.cost + priced.production.cost == priced.costs);
    if (cropKind(crop.cropType) == CropKind::fallow) continue;
    const YieldReading reading = crop.readYield(source->Depth, source->annualRain);
    RC_ASSERT(reading.between * reading.scale == priced.Yield);
    RC_ASSERT(crop.yieldTable->cell(reading.lo, reading.rain) == reading.atLo);
    RC_ASSERT(crop.yieldTable->cell(reading.hi, reading.rain) == reading.atHi);
  }
}

RC_GTEST_PROP(FarmCopy, PricesLikeItsSourceToTheLastBit, (std::uint64_t seed)) {
  Drawn drawn = drawFarm(seed);
  const ScopedEfficiency efficiency(drawn.efficiency);
  lookUp(drawn.farm);
  FieldCollection before = drawn.farm.Copy();
  const double profit = drawn.farm.getProfit();
  FieldCollection after = drawn.farm.Copy();
  RC_ASSERT(before.getProfit() == profit);
  RC_ASSERT(after.getProfit() == profit);
  RC_ASSERT(after.toString() == drawn.farm.toString());
}

RC_GTEST_PROP(FarmCopy, IsNotAffectedByChangesToItsSource, (std::uint64_t seed)) {
  Drawn drawn = drawFarm(seed);
  const ScopedEfficiency efficiency(drawn.efficiency);
  lookUp(drawn.farm);
  FieldCollection copy = drawn.farm.Copy();
  FieldCollection untouched = drawn.farm.Copy();
  RandomFarm draw(seed + 1);
  for (const auto& field : drawn.farm) {
    field->acres += 1;
    field->Depth += 1;
    *field->irrigCosts = draw.plant();
    *field->theCrop = draw.crop();
    field->TotalCost = 1;
  }
  drawn.farm.mCol.front()->makeFallow();
  drawn.farm.AddBatchDescription("Crop Price", 1, {"$", ""});
  RC_ASSERT(copy.getProfit() == untouched.getProfit());
  RC_ASSERT(copy.toString() == untouched.toString());
  RC_ASSERT(copy.theVariable.empty());
}

RC_GTEST_PROP(FarmReset, GivesTheProfitOfANewFarm, (std::uint64_t seed)) {
  Drawn drawn = drawFarm(seed);
  const ScopedEfficiency efficiency(drawn.efficiency);
  lookUp(drawn.farm);
  FieldCollection fresh = drawn.farm.Copy();
  for (const auto& field : drawn.farm) {
    field->theCrop->inputCosts.UseBatch = true;
    field->theCrop->inputCosts.BatchGeneralCosts = 12;
    field->irrigCosts->UseBatch = true;
    field->irrigCosts->BatchIrrigationCosts = 3;
  }
  (void)drawn.farm.getProfit();
  drawn.farm.ResetBatch();
  drawn.farm.TotalCost = 0;
  RC_ASSERT(drawn.farm.getProfit() == fresh.getProfit());
}

}  // namespace
}  // namespace verdalis::testing
