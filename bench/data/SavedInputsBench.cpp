#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/data/Source.h"
#include "data/FileReader.h"
#include "data/SavedInputs.h"
#include "tests/data/PlainTarget.h"
#include "tests/support/TemporaryFolder.h"

// The saved inputs of the example farm. Each run saves them first; a trend loads them at its end.

namespace {

namespace fs = std::filesystem;
using verdalis::bench::source;
using verdalis::testing::PlainTarget;

const fs::path example = source / "examples/high-plains/inputs.txt";

/// A home folder with the stock crops, and a target with a row for each of them.
class ExampleFarm {
 public:
  ExampleFarm() {
    fs::copy(source / "crops", home / "crops", fs::copy_options::recursive);
    verdalis::FileReader reader(home.path());
    reader.Initialize();
    crops = reader.cropCollection;
    target.rows = crops.NewEnum();
  }

  verdalis::testing::TemporaryFolder home{"bench"};
  verdalis::CropScenario crops;
  PlainTarget target;
};

void loadInputs(benchmark::State& state) {
  ExampleFarm farm;
  while (state.KeepRunning()) {
    farm.target.events.clear();
    if (!verdalis::loadInputs(example, farm.target)) state.SkipWithError("the example was not read");
  }
}
BENCHMARK(loadInputs)->Unit(benchmark::kMicrosecond);

// Most of this is disk time: the file is flushed before it replaces the old one.
void saveInputs(benchmark::State& state) {
  ExampleFarm farm;
  if (!verdalis::loadInputs(example, farm.target)) state.SkipWithError("the example was not read");
  while (state.KeepRunning()) {
    if (!verdalis::saveInputs(farm.home / "inputs.txt", farm.target.general, farm.target.plant, farm.crops,
                              true)) {
      state.SkipWithError("the file was not written");
    }
  }
}
BENCHMARK(saveInputs)->Unit(benchmark::kMicrosecond);

}  // namespace
