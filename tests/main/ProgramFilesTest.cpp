#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/main/RunningProgram.h"

// A program that is not an ordinary session: it uses another file of saved inputs, writes nothing, and
// reports the progress of runs to a listener.

namespace verdalis::testing {
namespace {

TEST(ProgramFilesTest, AHomeFolderGivesAllDefaults) {
  const ProgramFiles files(std::filesystem::path("/farm"));
  EXPECT_EQ(files.home, "/farm");
  EXPECT_EQ(files.inputs, "/farm/inputs.txt");
  EXPECT_TRUE(files.savesInputs);
}

TEST(ProgramFilesTest, OtherSavedInputsReplaceThoseOfTheHome) {
  RunningProgram running;
  running.folder.write("inputs.txt", "0\r\n77\r\n");
  ProgramFiles files(running.home());
  files.inputs = VERDALIS_SOURCE_DIR "/examples/high-plains/inputs.txt";
  files.savesInputs = false;
  running.program = std::make_unique<Program>(running.services, files);
  running.program->start();
  frmMain& main = running.program->main();
  EXPECT_TRUE(main.inputsLoaded());
  EXPECT_EQ(main.pneMain.txtArea.text(), "125");
  running.typeFarm();
  running.press("Command1");
  EXPECT_EQ(main.panes.top().name(), "pneResults");
  EXPECT_EQ(running.folder.read("inputs.txt"), "0\r\n77\r\n");
}

TEST(ProgramFilesTest, CutOffSavedInputsAreReported) {
  RunningProgram running;
  EXPECT_FALSE(running.start().inputsLoaded()) << "there are none";
  running.folder.write("inputs.txt", "0\r\n77\r\n");
  EXPECT_FALSE(running.start().inputsLoaded());
  std::filesystem::copy_file(VERDALIS_SOURCE_DIR "/examples/high-plains/inputs.txt",
                             running.home() / "inputs.txt",
                             std::filesystem::copy_options::overwrite_existing);
  EXPECT_TRUE(running.start().inputsLoaded());
}

/// Records the calls.
class Listener : public RunHooks {
 public:
  std::vector<std::string> heard;
  int updates = 0;
  int pumps = 0;

  void showProgress(const std::string& title) override { heard.push_back("show " + title); }
  void setProgress(double steps, const std::string& description) override {
    heard.push_back("steps " + std::to_string(static_cast<int>(steps)) + description);
  }
  void update() override { ++updates; }
  void pumpEvents() override { ++pumps; }
  void closeProgress() override { heard.emplace_back("close"); }
};

TEST(RunListener, ReceivesTheProgressOfTheProgressWindow) {
  RunningProgram running;
  frmMain& main = running.start();
  Listener listener;
  main.runListener = &listener;
  running.typeFarm();
  running.press("Command1");
  EXPECT_EQ(listener.heard,
            (std::vector<std::string>{"show Evaluating Possible Combinations", "steps 11", "close"}));
  EXPECT_EQ(listener.updates, 11);
  EXPECT_EQ(listener.pumps, running.fakes.eventPump.pumps);
  main.runListener = nullptr;
  running.press("theResults.Command1");
  running.press("Command1");
  EXPECT_EQ(listener.updates, 11);
}

/// The bar never shows the end of the previous run at the start of the next.
TEST(ProgressWindow, StartsEachRunAt0) {
  RunningProgram running;
  running.start();
  running.typeFarm();
  running.press("Command1");
  running.press("theResults.Command1");
  frmUpdating& progress = running.program->windows.updating();
  std::vector<double> values;
  progress.ProgressBar.onStateChange.connect([&] {
    if (progress.isOpen()) values.push_back(progress.ProgressBar.value());
  });
  running.press("Command1");
  ASSERT_FALSE(values.empty());
  EXPECT_EQ(values.front(), 0);
  EXPECT_EQ(values.back(), 11);
}

}  // namespace
}  // namespace verdalis::testing
