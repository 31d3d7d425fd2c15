#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "data/home.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// A program in bin/, with installed crops in share/ and the user's data in data/.
class Home : public ::testing::Test {
 protected:
  Home() {
    std::filesystem::create_directories(folder_ / "bin");
    folder_.write("share/crops/corn.txt", "corn");
    folder_.write("share/crops/soils/corn.txt", "soil");
    std::filesystem::create_directories(folder_ / "share/crops/custom");
  }

  [[nodiscard]] HomePlaces places() const {
    return {folder_ / "bin", folder_ / "user" / "data", {folder_ / "none", folder_ / "share" / "crops"}};
  }

  TemporaryFolder folder_{"home"};
};

}  // namespace verdalis::testing
