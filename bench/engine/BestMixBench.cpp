#include <benchmark/benchmark.h>

#include <memory>
#include <utility>

#include "engine/BestMix.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"

namespace verdalis::bench {
namespace {

/// Four fields of Corn with costs that give a known profit.
FieldCollection candidateOf(double profit) {
  FieldCollection candidate;
  for (int i = 0; i < 4; ++i) {
    auto field = std::make_shared<Field>();
    field->theCrop = std::make_shared<Crop>(testing::cornCrop());
    field->irrigCosts = std::make_shared<IrrigationCosts>(testing::defaultPlant());
    field->TotalCost = 1;
    field->TotalReturn = 1 + profit / 4;
    candidate.Add(std::move(field));
  }
  return candidate;
}

/// A full ranking of 100 places. Each kept copy calculates its return from a crop without yield and earns -4.
BestMix fullMix() {
  BestMix best;
  best.setSize(100);
  FieldCollection candidate = candidateOf(0);
  for (int i = 0; i < 100; ++i)
    best.submit(candidate);
  return best;
}

void submitRejected(benchmark::State& state) {
  BestMix best = fullMix();
  FieldCollection candidate = candidateOf(-100);
  while (state.KeepRunning())
    best.submit(candidate);
}
BENCHMARK(submitRejected);

/// Every candidate moves from the last place to the first.
void submitToTheTop(benchmark::State& state) {
  BestMix best = fullMix();
  FieldCollection candidate = candidateOf(0);
  while (state.KeepRunning())
    best.submit(candidate);
}
BENCHMARK(submitToTheTop);

}  // namespace
}  // namespace verdalis::bench
