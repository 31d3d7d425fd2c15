#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <vector>

#include "results/OptionRows.h"

// The table of all options, for as many options as a run can keep: priced options of four fields.

namespace {

using namespace verdalis;

constexpr std::size_t mostOptions = 32767;

std::vector<OptionRows::Option> pricedOptions() {
  static constexpr std::array<const char*, 4> crops{"Corn", "Grain Sorghum", "Soybeans", "Wheat"};
  std::vector<OptionRows::Option> options;
  for (std::size_t i = 0; i < mostOptions; ++i) {
    auto option = std::make_shared<FieldCollection>();
    for (std::size_t k = 0; k < 4; ++k) {
      auto field = std::make_shared<Field>();
      field->acres = 31.25;
      field->Depth = static_cast<double>((i >> (2 * k)) % 11);
      field->theCrop->cropType = crops[(i >> k) % crops.size()];
      field->theCrop->Yield = 100;
      field->theCrop->price = 4;
      field->TotalCost = 5000;
      option->Add(field);
    }
    option->TotalCost = 20000;
    options.push_back(option);
  }
  return options;
}

void readOptionRows(benchmark::State& state) {
  const std::vector<OptionRows::Option> options = pricedOptions();
  for (auto _ : state) {
    const OptionRows rows(options, 0.85);
    benchmark::DoNotOptimize(rows.size());
  }
}
BENCHMARK(readOptionRows)->Unit(benchmark::kMillisecond);

}  // namespace
