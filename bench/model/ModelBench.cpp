#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "model/EfficiencyFraction.h"
#include "model/Field.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"

namespace verdalis::bench {
namespace {

constexpr double rain = 16;

/// Depths (net inches) as in water splits, including some above the top of the table.
std::vector<double> someDepths() {
  std::vector<double> depths;
  depths.reserve(64);
  for (int i = 0; i < 64; ++i)
    depths.push_back(i * 0.617);
  return depths;
}

Crop preparedCorn() {
  Crop crop = testing::cornCrop();
  crop.setNormal(crop.maxYield, rain);
  return crop;
}

void setYield(benchmark::State& state) {
  Crop crop = preparedCorn();
  const std::vector<double> depths = someDepths();
  std::size_t next = 0;
  while (state.KeepRunning()) {
    double depth = depths[next++ % depths.size()];
    crop.setYield(depth, rain);
    benchmark::DoNotOptimize(crop.Yield);
  }
}
BENCHMARK(setYield);

void productionCosts(benchmark::State& state) {
  EfficiencyFraction = 0.85;
  Crop crop = preparedCorn();
  const std::vector<double> depths = someDepths();
  std::size_t next = 0;
  while (state.KeepRunning()) {
    double grossDepth = depths[next++ % depths.size()] / EfficiencyFraction;
    benchmark::DoNotOptimize(crop.inputCosts.getCosts(25, 184.4, crop, grossDepth));
  }
}
BENCHMARK(productionCosts);

void irrigationCosts(benchmark::State& state) {
  EfficiencyFraction = 0.85;
  IrrigationCosts plant = testing::defaultPlant();
  const std::vector<double> depths = someDepths();
  std::size_t next = 0;
  while (state.KeepRunning())
    benchmark::DoNotOptimize(plant.getCosts(depths[next++ % depths.size()], 25));
}
BENCHMARK(irrigationCosts);

/// Production and irrigation costs, without the cache of the field.
void fieldCosts(benchmark::State& state) {
  EfficiencyFraction = 0.85;
  Field field;
  field.acres = 25;
  *field.theCrop = preparedCorn();
  *field.irrigCosts = testing::defaultPlant();
  const std::vector<double> depths = someDepths();
  std::size_t next = 0;
  while (state.KeepRunning()) {
    field.Depth = depths[next++ % depths.size()];
    field.TotalCost = 0;
    benchmark::DoNotOptimize(field.getCosts());
  }
}
BENCHMARK(fieldCosts);

}  // namespace
}  // namespace verdalis::bench
