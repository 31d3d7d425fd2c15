#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/data/Source.h"
#include "data/FileReader.h"
#include "data/SavedInputs.h"
#include "tests/data/PlainTarget.h"
#include "tests/support/TemporaryFolder.h"

// The saved inputs of the example farm. They are saved before every run, and a trend loads them at its end.

namespace {

namespace fs = std::filesystem;
using verdalis::bench::source;
using verdalis::testing::PlainTarget;

const fs::path example = source / "examples/high-plains/inputs.txt";

/// A home folder with the stock crops, and a target that has a row for each.
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

// Nearly all of this is the disk: the file is flushed before it takes the place of the old one.
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
