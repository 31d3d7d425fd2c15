#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "data/SavingFolder.h"
#include "data/writeFile.h"
#include "tests/data/AnotherProgram.h"
#include "tests/data/CropLibrary.h"
#include "tests/data/SavingCrops.h"
#include "tests/support/PosixFiles.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

TEST_F(SavingCrops, HappensOutsideTheFoldersOfCrops) {
  for (const std::string& file : cropFiles_) {
    FileReplacement replacement(home() / file);
    replacement.write("new");
    expectNoOtherFile();
    EXPECT_EQ(folder().names(".saving").size(), 1U) << file;
  }
  EXPECT_EQ(folder().names(), Names{"crops"}) << "nothing is left";
}

TEST_F(SavingCrops, ReplacesTheFile) {
  for (const std::string& file : cropFiles_) {
    writeFile(home() / file, "new");
    EXPECT_EQ(folder().read(file), "new");
  }
  writeFile(home() / "crops/custom/yours.txt", "yours");
  EXPECT_EQ(folder().read("crops/custom/yours.txt"), "yours");
  EXPECT_EQ(folder().names("crops/custom"), (Names{"mine.txt", "yours.txt"}));
  EXPECT_EQ(folder().names(), Names{"crops"});
}

TEST_F(SavingCrops, AcceptsARelativePath) {
  const fs::path before = fs::current_path();
  fs::current_path(home() / "crops/custom");
  auto replacement = std::make_unique<FileReplacement>("mine.txt");
  expectNoOtherFile();
  replacement->write("new");
  replacement->keep();
  replacement.reset();
  fs::current_path(before);
  EXPECT_EQ(folder().read("crops/custom/mine.txt"), "new");
  EXPECT_EQ(folder().names(), Names{"crops"});
}

TEST_F(SavingCrops, SeveralAtATimeShareTheFolder) {
  auto first = std::make_unique<FileReplacement>(home() / "crops/corn.txt");
  auto second = std::make_unique<FileReplacement>(home() / "crops/custom/mine.txt");
  first->write("one");
  second->write("two");
  EXPECT_EQ(folder().names(".saving").size(), 2U);
  first->keep();
  EXPECT_EQ(folder().names(".saving").size(), 1U);
  second->keep();
  EXPECT_EQ(folder().read("crops/corn.txt"), "one");
  EXPECT_EQ(folder().read("crops/custom/mine.txt"), "two");
  EXPECT_EQ(folder().names(), Names{"crops"});
}

TEST_F(SavingCrops, IsBesideTheFileIfTheHiddenFolderCannotBeUsed) {
  std::vector<std::function<void()>> obstacles{[&] { folder().write(".saving", "a file"); }};
  if (hasPosixFiles) {
    obstacles.emplace_back([&] { fs::create_symlink("/tmp", home() / ".saving"); });
    obstacles.emplace_back([&] { fs::create_symlink("nowhere", home() / ".saving"); });
  }
  for (const auto& putInTheWay : obstacles) {
    fs::remove(home() / ".saving");
    putInTheWay();
    FileReplacement replacement(home() / "crops/custom/mine.txt");
    replacement.write(smallCrop("Mine"));
    EXPECT_EQ(folder().names("crops/custom").size(), 2U);
    EXPECT_EQ(library_.names(), (Names{"Corn", "Fallow", "Mine"})) << "it is no crop file there either";
    replacement.keep();
    expectNoOtherFile();
  }
}

TEST_F(SavingCrops, AKilledProgramLeavesTheOldFileAndNoCropFile) {
  for (const std::string& file : cropFiles_) {
    const std::string old = folder().read(file);
    EXPECT_FALSE(anotherProgram(Deed::replaceAndBeKilled, home() / file, "new"));
    EXPECT_EQ(folder().read(file), old);
    expectNoOtherFile();
  }
  EXPECT_EQ(folder().names(".saving").size(), cropFiles_.size());
  writeFile(home() / "crops/custom/mine.txt", "new");
  EXPECT_EQ(folder().read("crops/custom/mine.txt"), "new");
  clearLeftovers(home());
  EXPECT_EQ(folder().names(), Names{"crops"});
}

TEST_F(SavingCrops, TheNextExportClearsWhatAKilledOneLeft) {
  folder().write("export/plan.csv", "old");
  EXPECT_FALSE(anotherProgram(Deed::replaceAndBeKilled, home() / "export/plan.csv", "new"));
  EXPECT_FALSE(anotherProgram(Deed::replaceAndBeKilled, home() / "export/new.csv", "new"));
  EXPECT_EQ(folder().read("export/plan.csv"), "old");
  EXPECT_FALSE(fs::exists(home() / "export/new.csv"));
  writeFile(home() / "export/plan.csv", "new");
  EXPECT_EQ(folder().names("export"), Names{"plan.csv"});
}

TEST_F(SavingCrops, LeftoversOfAnyPlaceAreCleared) {
  for (const char* place : {"", ".saving", "crops", "crops/custom"})
    folder().write(fs::path(place) / ".saving-a1B2c3", "half");
  folder().write("inputs.txt", "my farm");
  EXPECT_FALSE(anotherProgram(Deed::replaceAndBeKilled, home() / "inputs.txt", "new"));
  clearLeftovers(home());
  EXPECT_EQ(folder().names(), (Names{"crops", "inputs.txt"}));
  EXPECT_EQ(folder().read("inputs.txt"), "my farm");
  expectNoOtherFile();
}

TEST_F(SavingCrops, FilesThatAreBeingWrittenAreNotCleared) {
  FileReplacement crop(home() / "crops/custom/mine.txt");
  FileReplacement inputs(home() / "inputs.txt");
  crop.write("new crop");
  inputs.write("new inputs");
  EXPECT_TRUE(anotherProgram(Deed::clearLeftovers, home()));
  clearLeftovers(home());
  writeFile(home() / "another.txt", "");  // clears this folder as well
  crop.keep();
  inputs.keep();
  EXPECT_EQ(folder().read("crops/custom/mine.txt"), "new crop");
  EXPECT_EQ(folder().read("inputs.txt"), "new inputs");
}

TEST(ClearLeftovers, OfAMissingHomeFolderDoesNothing) {
  const TemporaryFolder folder;
  clearLeftovers(folder / "missing");
  clearLeftovers(folder.write("file", "x"));
  EXPECT_EQ(folder.names(), Names{"file"});
}

// The one that ends first removes the folder while the other one is about to use it.
TEST_F(SavingCrops, ManyProcessesDoNotDisturbEachOther) {
  EXPECT_TRUE(severalPrograms(Deed::saveOften, home(), {"crops/corn.txt", "crops/custom/mine.txt"}));
  EXPECT_EQ(folder().read("crops/corn.txt"), "crops/corn.txt");
  EXPECT_EQ(folder().read("crops/custom/mine.txt"), "crops/custom/mine.txt");
  EXPECT_EQ(folder().names("crops"), (Names{"corn.txt", "custom", "soils"}));
  EXPECT_EQ(folder().names("crops/custom"), Names{"mine.txt"});
  EXPECT_EQ(folder().names(), Names{"crops"});
}

}  // namespace
}  // namespace verdalis::testing
