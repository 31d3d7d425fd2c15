#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/data/CropLibrary.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// A home folder with a stock crop, a custom crop and a soils file.
class SavingCrops : public ::testing::Test {
 protected:
  using Names = std::vector<std::string>;

  SavingCrops() {
    library_.stock("corn.txt", smallCrop("Corn"));
    library_.custom("mine.txt", smallCrop("Mine"));
    library_.soils("corn.txt", "");
  }

  [[nodiscard]] const std::filesystem::path& home() const { return library_.home(); }
  [[nodiscard]] const TemporaryFolder& folder() const { return library_.folder(); }

  /// Fails unless the crops are those of the constructor and nothing else is in their folders.
  void expectNoOtherFile() const {
    EXPECT_EQ(library_.names(), (Names{"Corn", "Fallow", "Mine"}));
    EXPECT_EQ(folder().names("crops"), (Names{"corn.txt", "custom", "soils"}));
    EXPECT_EQ(folder().names("crops/custom"), Names{"mine.txt"});
    EXPECT_EQ(folder().names("crops/soils"), Names{"corn.txt"});
  }

  CropLibrary library_;
  const Names cropFiles_{"crops/corn.txt", "crops/custom/mine.txt", "crops/soils/corn.txt"};
};

}  // namespace verdalis::testing
