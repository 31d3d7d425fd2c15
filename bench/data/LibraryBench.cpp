#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/data/Source.h"
#include "data/FileReader.h"
#include "tests/support/TemporaryFolder.h"

// Program start: reads the six stock crops.

namespace {

namespace fs = std::filesystem;

void loadLibrary(benchmark::State& state) {
  const verdalis::testing::TemporaryFolder home("bench");
  fs::copy(verdalis::bench::source / "crops", home / "crops", fs::copy_options::recursive);
  verdalis::FileReader reader(home.path());
  while (state.KeepRunning()) {
    reader.Initialize();
    benchmark::DoNotOptimize(reader.cropCollection);
  }
  if (reader.cropCollection.Count() != 7) state.SkipWithError("not all stock crops were read");
}
BENCHMARK(loadLibrary)->Unit(benchmark::kMicrosecond);

}  // namespace
