#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/RecoveryFolder.h"
#include "data/farmFile.h"
#include "tests/data/AnotherProgram.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// A state folder, and what is in it.
class Recovery : public ::testing::Test {
 protected:
  using Names = std::vector<std::string>;
  using Texts = std::vector<std::string>;

  [[nodiscard]] std::filesystem::path state() const { return folder_ / "state"; }

  /// The names in the state folder; none if it does not exist.
  [[nodiscard]] Names names() const {
    return std::filesystem::exists(state()) ? folder_.names("state") : Names{};
  }

  [[nodiscard]] Names namesWith(const std::string& extension) const {
    Names found;
    for (const std::string& name : names()) {
      if (std::filesystem::path(name).extension() == extension) found.push_back(name);
    }
    return found;
  }

  /// The contents of all copies, orphans or not, by name.
  [[nodiscard]] Texts copies() const {
    Texts texts;
    for (const std::string& name : namesWith(".verdalis"))
      texts.push_back(folder_.read("state/" + name));
    return texts;
  }

  /// The contents of the orphans, oldest first.
  [[nodiscard]] Texts orphanTexts() const {
    Texts texts;
    for (const OrphanCopy& orphan : RecoveryFolder(state()).orphans())
      texts.push_back(readFarmFile(orphan.path).text);
    return texts;
  }

  /// Writes a copy in another program, which is killed then.
  void leaveOrphan(const std::string& text) const {
    EXPECT_FALSE(anotherProgram(Deed::writeCopyAndBeKilled, state(), text));
  }

  /// The only orphan.
  static OrphanCopy onlyOrphan(RecoveryFolder& recovery) {
    const auto orphans = recovery.orphans();
    EXPECT_EQ(orphans.size(), 1U);
    return orphans.empty() ? OrphanCopy{} : orphans.front();
  }

  /// Fails unless a file or folder has these permissions, where there are such.
  static void expectMode(const std::filesystem::path& path, unsigned mode) {
    if (hasPosixFiles) {
      EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(path).permissions()), mode);
    }
  }

  TemporaryFolder folder_;
};

}  // namespace verdalis::testing
