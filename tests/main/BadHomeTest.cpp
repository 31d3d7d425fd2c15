#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

#include "data/readFile.h"
#include "tests/main/BadHome.h"

// Damaged home folders: whatever they contain, the start finishes and the main pane can be used.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

std::string noise(std::size_t size) {
  std::mt19937_64 random(7);
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i + 8 <= size; i += 8) {
    const std::uint64_t word = random();
    for (std::size_t k = 0; k < 8; ++k)
      bytes[i + k] = static_cast<char>(word >> (8 * k));
  }
  return bytes;
}

/// Lines of a few characters, mostly digits.
std::string shortLines(std::size_t size) {
  static const std::string alphabet = "0123456789.-eE\r\n\n, x";
  std::string bytes = noise(size);
  for (char& byte : bytes)
    byte = alphabet[static_cast<unsigned char>(byte) % alphabet.size()];
  return bytes;
}

constexpr std::size_t huge = 100'000'000;  // more than a file may have
constexpr std::size_t large = 60'000'000;  // less

static_assert(large < maxFileSize && maxFileSize < huge);

TEST_F(BadHome, SavedInputsOf100MegabytesAreNotRead) {
  saveInputs(noise(huge));
  expectUsable();
  EXPECT_FALSE(running.program->main().inputsLoaded());
  EXPECT_EQ(running.program->main().pneMain.txtEff.text(), "85");
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

TEST_F(BadHome, SavedInputsOf100MegabytesOfLinesAreNotRead) {
  saveInputs(shortLines(huge));
  expectUsable();
  EXPECT_FALSE(running.program->main().inputsLoaded());
  EXPECT_EQ(running.program->main().pneMain.txtEff.text(), "85");
}

TEST_F(BadHome, LargeNoiseIsRead) {
  saveInputs(noise(large));
  expectUsable();
}

TEST_F(BadHome, LargeNoiseOfLinesIsRead) {
  saveInputs(shortLines(large));
  expectUsable();
}

TEST_F(BadHome, OneLineOfDigitsIsRead) {
  saveInputs(std::string(large, '7'));
  expectUsable();
  EXPECT_FALSE(running.program->main().inputsLoaded());
}

TEST_F(BadHome, AFolderInPlaceOfTheSavedInputsDoesNotStopARun) {
  fs::create_directory(running.home() / "inputs.txt");
  running.start();
  running.typeFarm();
  running.press("Command1");
  EXPECT_EQ(running.program->main().panes.top().name(), "pneResults");
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

TEST_F(BadHome, AFileInPlaceOfTheCropsIsReported) {
  fs::remove_all(crops());
  running.folder.write("crops", "CROP=Corn");
  expectToldAndUsable(crops().string());
}

TEST_F(BadHome, AnEmptyFolderOfCropsIsAccepted) {
  fs::remove_all(crops());
  fs::create_directory(crops());
  expectUsable();
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

TEST_F(BadHome, FilesThatAreNoCropsAreSkipped) {
  running.folder.write("crops/0.txt", noise(100'000));
  running.folder.write("crops/1.txt", "CROP=Half a crop\r\n\r\nUNITS=");
  running.folder.write("crops/custom/2.txt", "");
  running.folder.write("crops/custom/3.txt", std::string(1'000'000, '='));
  running.folder.write("crops/soils/corn.txt", noise(100'000));
  expectUsable();
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
  EXPECT_TRUE(running.program->main().pneMain.findCropByName("corn"));
}

TEST_F(BadHome, ALongNameIsShownInItsRowAndAVeryLongOneIsTold) {
  const auto write = [&](const std::string& file, const std::string& name) {
    const std::string unit(127, 'u');
    running.folder.write(
        "crops/custom/" + file,
        "CROP=" + name + "\r\n\r\nUNITS=" + unit + "," + unit +
            "\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1\r\n\r\nYIELD_VALUES=1,2,3,4\r\n");
  };
  const std::string longest(255, 'n');
  const std::string tooLong(50'000, 'm');
  write("long.txt", longest);
  write("too long.txt", tooLong);
  expectUsable();
  const frmMain& main = running.program->main();
  EXPECT_TRUE(main.pneMain.findCropByName(longest));
  EXPECT_FALSE(main.pneMain.findCropByName(tooLong));
  ASSERT_FALSE(main.notices.all().empty());
  EXPECT_NE(main.notices.all()[0].text.find("The name of the crop has more than 255 characters."),
            std::string::npos);
}

}  // namespace
}  // namespace verdalis::testing
