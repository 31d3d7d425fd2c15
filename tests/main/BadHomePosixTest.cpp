#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "tests/data/OrdinaryUser.h"
#include "tests/main/BadHome.h"

// Damaged home folders with pipes, links, and what the user may not read.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(BadHome, PipesDoNotBlockTheStart) {
  ASSERT_EQ(::mkfifo((running.home() / "inputs.txt").c_str(), 0600), 0);
  ASSERT_EQ(::mkfifo((crops() / "a.txt").c_str(), 0600), 0);
  fs::create_directories(crops() / "soils");
  ASSERT_EQ(::mkfifo((crops() / "soils" / "corn.txt").c_str(), 0600), 0);
  expectUsable();
  running.typeFarm();
  running.press("Command1");
  EXPECT_EQ(running.program->main().panes.top().name(), "pneResults");
}

TEST_F(BadHome, ALinkToItselfInPlaceOfTheCropsIsReported) {
  fs::remove_all(crops());
  fs::create_symlink(crops(), crops());
  expectToldAndUsable(crops().string());
}

TEST_F(BadHome, UnreadableCropsAreReported) {
  openToAll(running.folder);
  fs::permissions(crops(), fs::perms::none);
  const auto told = asOrdinaryUser([&] {
    frmMain& main = running.start();
    return main.isOpen() && running.fakes.messageBox.log.size() == 1 &&
           running.fakes.messageBox.log[0].text.find("Permission denied") != std::string::npos;
  });
  if (!told) GTEST_SKIP() << "there is no ordinary user to be";
  EXPECT_TRUE(*told);
}

TEST_F(BadHome, InaccessibleSavedInputsDoNotStopTheProgram) {
  saveInputs("0\r\n77\r\n");
  openToAll(running.folder);
  fs::permissions(running.home() / "inputs.txt", fs::perms::none);
  fs::permissions(running.home(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                      fs::perms::others_exec);
  const auto ran = asOrdinaryUser([&] {
    frmMain& main = running.start();
    if (!main.pneMain.txtArea.text().empty()) return false;
    running.typeFarm();
    running.press("Command1");
    return main.panes.top().name() == "pneResults" && running.fakes.messageBox.log.empty();
  });
  fs::permissions(running.home(), fs::perms::all);
  if (!ran) GTEST_SKIP() << "there is no ordinary user to be";
  EXPECT_TRUE(*ran);
}

}  // namespace
}  // namespace verdalis::testing
