#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "controls/Table.h"

// A table with as many records as a run can keep options: what a click on a heading or a filter takes,
// without the painting.

namespace {

using namespace verdalis;

constexpr std::size_t mostOptions = 32767;

struct Filled {
  explicit Filled(bool keys) {
    std::mt19937 random(1);
    for (std::size_t i = 0; i < mostOptions; ++i)
      money.push_back(static_cast<double>(random() % 100000));
    Table::Contents contents;
    contents.records = mostOptions;
    contents.cell = [this](std::size_t record, std::size_t) {
      return Table::Cell{std::to_string(money[record]), {}, false};
    };
    if (keys) {
      contents.before = [this](std::size_t a, std::size_t b, std::size_t) { return money[a] < money[b]; };
    }
    table.setContents({{"Farm"}}, std::move(contents));
  }

  std::vector<double> money;
  Desk desk;
  Window window{desk, "frmMain"};
  Table table{window, "tblOptions"};
};

/// A click on a heading; every third one ends the sorting.
void tableSort(benchmark::State& state) {
  Filled filled(state.range(0) != 0);
  filled.window.open();
  for (auto _ : state) {
    filled.table.clickHeading(0);
    state.PauseTiming();
    while (filled.table.sortColumn())
      filled.table.clickHeading(0);
    state.ResumeTiming();
  }
}
BENCHMARK(tableSort)->ArgName("keys")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void tableFilter(benchmark::State& state) {
  Filled filled(true);
  for (auto _ : state)
    filled.table.setFilter([&](std::size_t record) { return filled.money[record] > 50000; });
}
BENCHMARK(tableFilter)->Unit(benchmark::kMillisecond);

void tableFill(benchmark::State& state) {
  for (auto _ : state) {
    const Filled filled(true);
    benchmark::DoNotOptimize(filled.table.places());
  }
}
BENCHMARK(tableFill)->Unit(benchmark::kMillisecond);

}  // namespace
