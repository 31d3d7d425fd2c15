#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "tests/main/RunningProgram.h"

// What a user waits for on the screens: a key press with all its effects, and the start, with the stock crops
// and the saved farm of the example.

namespace {

using verdalis::TextBox;
using verdalis::testing::RunningProgram;

void addExample(const RunningProgram& running) {
  std::filesystem::copy(VERDALIS_SOURCE_DIR "/examples/high-plains/inputs.txt",
                        running.home() / "inputs.txt");
}

/// Corn's row is active and its cost pane is open.
void openExample(RunningProgram& running) {
  addExample(running);
  running.start();
  running.control<verdalis::CheckBox>("cr(1).chkCrop").click();
  running.press("cr(1).cmdInputCosts");
}

void keyPress(benchmark::State& state, const char* name, const std::string& text) {
  RunningProgram running;
  openExample(running);
  auto& box = running.control<TextBox>(name);
  const std::string other = text + "5";
  bool odd = false;
  while (state.KeepRunning()) {
    odd = !odd;
    box.type(odd ? other : text);
  }
  if (!running.fakes.messageBox.log.empty()) state.SkipWithError("a message came up");
}

BENCHMARK_CAPTURE(keyPress, txtArea, "txtArea", "12")->Unit(benchmark::kMicrosecond);
// Includes the test against the capacity of the plant.
BENCHMARK_CAPTURE(keyPress, txtMax, "txtMax", "1")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyPress, txtPrice, "cr(1).txtPrice", "4.2")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyPress, txtMaxYield, "cr(1).txtMaxYield", "20")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyPress, txtTillage, "txtTillage", "31.2")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyPress, txtNitrogenApplied, "txtNitrogenApplied", "15")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyPress, txtGPM, "txtGPM", "65")->Unit(benchmark::kMicrosecond);

/// From program start to a main pane that accepts input.
void start(benchmark::State& state) {
  RunningProgram running;
  addExample(running);
  while (state.KeepRunning())
    running.start();
  if (running.program->main().pneMain.txtArea.text() != "125") state.SkipWithError("the farm was not read");
}
BENCHMARK(start)->Unit(benchmark::kMillisecond);

/// The run button with the example's three crops, from saving to the first displayed option.
void generateOutput(benchmark::State& state) {
  RunningProgram running;
  addExample(running);
  running.start();
  for (const char* row : {"cr(1).chkCrop", "cr(2).chkCrop", "cr(5).chkCrop"})
    running.control<verdalis::CheckBox>(row).click();
  while (state.KeepRunning()) {
    running.press("Command1");
    running.press("theResults.Command1");
  }
  if (!running.fakes.messageBox.log.empty()) state.SkipWithError("a message came up");
}
BENCHMARK(generateOutput)->Unit(benchmark::kMillisecond);

}  // namespace
