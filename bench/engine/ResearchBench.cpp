#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "bench/engine/BenchFarm.h"
#include "engine/Farm.h"
#include "engine/evaluateScenario.h"
#include "model/PricedField.h"

// Steps that a question repeats thousands of times: pricing one field, and finding the best plan after a
// price change.

namespace verdalis::bench {
namespace {

/// 125 acres as 50 - 25 - 25, 14 gross inches, 16 inches of rain, 4 crops, factor 10.
Farm exampleFarm() {
  Farm farm;
  farm.acres = 125;
  farm.division = landDivision(3);
  farm.efficiency = 85;
  farm.plant = testing::defaultPlant();
  const std::vector<Crop> stock = stockCrops();
  for (const std::size_t crop : {1U, 2U, 4U, 5U})
    farm.crops.Add(std::make_shared<Crop>(stock[crop]));
  farm.factor = 10;
  farm.size = 1;
  farm.takeWater(14);
  farm.takeRain(16);
  return farm;
}

void priceOne(benchmark::State& state) {
  const Scenario scenario = scenarioOf(exampleFarm());
  double depth = 0;
  while (state.KeepRunning()) {
    depth = depth < 12 ? depth + 0.1 : 0;
    benchmark::DoNotOptimize(priceField({62.5, depth, scenario.rain}, *scenario.combinations.crops()[1],
                                        scenario.plant, scenario.efficiency));
  }
}

void searchAgain(benchmark::State& state) {
  Farm farm = exampleFarm();
  ProgramState program;
  RunHooks hooks;
  double price = 4;
  while (state.KeepRunning()) {
    price = price < 8 ? price + 0.001 : 4;
    farm.crops.Item(2)->price = price;
    benchmark::DoNotOptimize(evaluateScenario(scenarioOf(farm), program, hooks));
  }
  state.counters["searches/s"] = benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
}

void makeScenario(benchmark::State& state) {
  const Farm farm = exampleFarm();
  while (state.KeepRunning())
    benchmark::DoNotOptimize(scenarioOf(farm));
}

BENCHMARK(priceOne)->Name("research/price_one_field")->Unit(benchmark::kNanosecond);
BENCHMARK(makeScenario)->Name("research/make_scenario")->Unit(benchmark::kMicrosecond);
BENCHMARK(searchAgain)->Name("research/search_with_one_price_changed")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace verdalis::bench
