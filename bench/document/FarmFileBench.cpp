#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "document/documentKeys.h"
#include "document/farmText.h"

// A farm file with 100 saved options of four fields, each found under its own inputs with six chosen crops.
// Writing and reading it together must stay within 30 ms: it is saved a second after each change.

namespace verdalis::bench {
namespace {

template <class Owner>
void fill(std::span<const DocumentKey<Owner>> keys, Owner& owner, double next) {
  struct Fill {
    double& next;
    void operator()(double& member) const { member = next += 1.37; }
    void operator()(Number& member) const { member = next += 1; }
    void operator()(bool& member) const { member = true; }
    void operator()(std::string& member) const { member = "Natural Gas"; }
  };
  for (const DocumentKey<Owner>& each : keys)
    each.field.visit(owner, Fill{next});
}

FarmInputs inputsOf(int option) {
  FarmInputs inputs;
  inputs.farm = {std::to_string(100 + option), "14", "17", "85", "Silt Loam", "", 3, false, false, {}};
  fill(plantKeys(), inputs.plant.plant, option);
  for (const std::string name : {"Alfalfa", "Corn", "Grain Sorghum", "Soybeans", "Sunflower", "Wheat"}) {
    DocumentCrop crop;
    crop.name = name;
    crop.chosen = true;
    crop.price = "6.52";
    crop.maxYield = "220";
    fill(costKeys(), crop.costs, option / 7.0);
    inputs.crops.add(std::move(crop));
  }
  inputs.options.keep = "100";
  return inputs;
}

FarmDocument documentToSave() {
  FarmDocument document;
  document.inputs = inputsOf(0);
  for (int i = 0; i < 100; ++i) {
    SavedOption saved;
    saved.name = "Option " + std::to_string(i);
    saved.costs = 51234.5 + i;
    saved.inputs = inputsOf(i);
    for (int k = 1; k <= 4; ++k) {
      SavedOptionField field;
      field.crop = "Corn";
      field.soil = "Silt Loam";
      field.units = "bu.";
      for (double* figure : {&field.acres, &field.depth, &field.rain, &field.price, &field.maxYield,
                             &field.normalFactor, &field.yield, &field.costs, &field.returns}) {
        *figure = 1234.5 * k / (i + 7);
      }
      saved.fields.push_back(field);
    }
    document.saved.add(std::move(saved));
  }
  return document;
}

void writeFarmFile(benchmark::State& state) {
  const FarmDocument document = documentToSave();
  while (state.KeepRunning())
    benchmark::DoNotOptimize(writeFarm(document));
}
BENCHMARK(writeFarmFile)->Unit(benchmark::kMillisecond);

void readFarmFile(benchmark::State& state) {
  const std::string text = writeFarm(documentToSave());
  while (state.KeepRunning())
    benchmark::DoNotOptimize(readFarm(text));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(readFarmFile)->Unit(benchmark::kMillisecond);

void writeAndReadFarmFile(benchmark::State& state) {
  const FarmDocument document = documentToSave();
  while (state.KeepRunning())
    benchmark::DoNotOptimize(readFarm(writeFarm(document)));
}
BENCHMARK(writeAndReadFarmFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace verdalis::bench
