#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include "bench/engine/BenchFarm.h"
#include "engine/FieldCalculator.h"
#include "selfcheck/PlainEvaluator.h"
#include "tests/reference/PlainEnumeration.h"
#include "tests/reference/TablePricing.h"

namespace verdalis::bench {
namespace {

constexpr std::size_t twoFields = 0;
constexpr std::size_t fourFields = 4;

/// Peak memory use of the program so far, MB. To measure one case, run it alone (--benchmark_filter).
double peakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void report(benchmark::State& state, const BenchFarm& farm) {
  state.counters["candidates"] = farm.candidates();
  state.counters["peakMB"] = peakMegabytes();
  state.counters["candidates/s"] =
      benchmark::Counter(farm.candidates(), benchmark::Counter::kIsIterationInvariantRate);
}

/// Enumerates the splits and searches, as a run does.
void search(benchmark::State& state, std::int16_t factor, std::size_t crops, std::int16_t size,
            CropList list) {
  BenchFarm farm(fourFields, factor, crops, size, list);
  ProgramState program;
  RunHooks hooks;
  while (state.KeepRunning()) {
    farm.makeSplits();
    benchmark::DoNotOptimize(evaluateCombinations(farm.inputs(), program, hooks));
  }
  report(state, farm);
}

void plainLoop(benchmark::State& state, std::size_t division, std::int16_t factor, std::size_t crops,
               std::int16_t size) {
  BenchFarm farm(division, factor, crops, size);
  ProgramState program;
  RunHooks hooks;
  while (state.KeepRunning())
    benchmark::DoNotOptimize(reference::evaluatePlainly(farm.inputs(), program, hooks));
  report(state, farm);
}

void tablePricing(benchmark::State& state, std::int16_t factor, std::size_t crops, CropList list) {
  BenchFarm farm(fourFields, factor, crops, 100, list);
  while (state.KeepRunning())
    benchmark::DoNotOptimize(reference::priceAllByTables(farm.inputs()));
  report(state, farm);
}

#define SEARCH(label, ...) BENCHMARK_CAPTURE(search, label, __VA_ARGS__)->Unit(benchmark::kMillisecond)

SEARCH(6_crops_factor_10, 10, 6, 100, CropList::ordinary);
SEARCH(10_crops_factor_20, 20, 10, 100, CropList::ordinary);
SEARCH(10_crops_factor_99, 99, 10, 100, CropList::ordinary);
SEARCH(59_crops_factor_99, 99, 59, 100, CropList::ordinary);
SEARCH(59_crops_factor_99_prices_0_01_apart, 99, 59, 100, CropList::cents);
SEARCH(59_crops_factor_99_prices_1e_9_apart, 99, 59, 100, CropList::billionths);
SEARCH(59_crops_factor_99_prices_1_ulp_apart, 99, 59, 100, CropList::lastPlace);
SEARCH(59_crops_factor_99_twins, 99, 59, 100, CropList::twins);
SEARCH(59_crops_factor_99_500_places, 99, 59, 500, CropList::ordinary);

// Cases without effective bounds, compared with pricing everything from tables.
SEARCH(10_crops_factor_20_equal_gains, 20, 10, 100, CropList::equalGains);
SEARCH(24_crops_factor_20_equal_gains, 20, 24, 100, CropList::equalGains);
SEARCH(59_crops_factor_5_equal_gains, 5, 59, 100, CropList::equalGains);
SEARCH(10_crops_factor_20_equal_gains_pumped, 20, 10, 100, CropList::equalGainsPumped);
SEARCH(59_crops_factor_5_equal_gains_pumped, 5, 59, 100, CropList::equalGainsPumped);

BENCHMARK_CAPTURE(tablePricing, 6_crops_factor_10, 10, 6, CropList::ordinary)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 10_crops_factor_20, 20, 10, CropList::ordinary)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 10_crops_factor_99, 99, 10, CropList::ordinary)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 10_crops_factor_20_equal_gains, 20, 10, CropList::equalGains)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 24_crops_factor_20_equal_gains, 20, 24, CropList::equalGains)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 10_crops_factor_20_equal_gains_pumped, 20, 10, CropList::equalGainsPumped)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 59_crops_factor_5_equal_gains_pumped, 5, 59, CropList::equalGainsPumped)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tablePricing, 59_crops_factor_5_equal_gains, 5, 59, CropList::equalGains)
    ->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(plainLoop, 6_crops_factor_10, fourFields, 10, 6, 100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainLoop, two_fields_6_crops_factor_10, twoFields, 10, 6, 100)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainLoop, 10_crops_factor_20, fourFields, 20, 10, 100)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

void waterSplits(benchmark::State& state) {
  ProgramState program;
  program.FineFactor = 99;
  while (state.KeepRunning())
    benchmark::DoNotOptimize(makeWaterSplits(4, 1020, 100, program));
}
BENCHMARK(waterSplits)->Unit(benchmark::kMillisecond);

void waterSplitsByStack(benchmark::State& state) {
  while (state.KeepRunning())
    benchmark::DoNotOptimize(reference::waterSplits(4, 99));
}
BENCHMARK(waterSplitsByStack)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace verdalis::bench
