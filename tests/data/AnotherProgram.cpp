#include "tests/data/AnotherProgram.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>

#include "data/RecentFarms.h"
#include "data/RecoveryFolder.h"
#include "data/SavingFolder.h"
#include "data/farmFile.h"
#include "data/listFiles.h"
#include "data/writeFile.h"
#include "platform/LockFile.h"
#include "platform/paths.h"
#include "tests/data/FarmVersions.h"
#include "tests/support/PosixFiles.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

bool saveOften(const fs::path& home, const std::string& file) {
  constexpr int rounds = 40;
  for (int i = 0; i < rounds; ++i) {
    FileReplacement replacement(home / file);
    replacement.write(file);
    clearLeftovers(home);
    std::vector<fs::path> crops;
    for (const auto& entry : fs::directory_iterator(home / "crops/custom")) {
      const fs::path name = entry.path().filename();
      // Windows tells only by a file without contents whether there can be one.
      if (hasPosixFiles || !isHidden(name)) crops.push_back(name);
    }
    if (crops != std::vector<fs::path>{"mine.txt"}) return false;
    replacement.keep();
  }
  return true;
}

bool saveFarmOften(const fs::path& file, int version) {
  constexpr int rounds = 50;
  for (int round = 0; round < rounds; ++round) {
    writeFarmFile(file, versionOfText(version));
    if (!isWhole(readFarmFile(file).text)) return false;
  }
  return true;
}

bool addFarmsOften(const fs::path& state, const std::string& folder) {
  constexpr int rounds = 60;
  const RecentFarms recent(state);
  for (int i = 0; i < rounds; ++i) {
    recent.add(fs::path(folder) / std::to_string(i));
    const auto farms = recent.list();
    const bool whole =
        !farms.empty() && farms.size() <= 9 &&
        std::all_of(farms.begin(), farms.end(), [](const fs::path& farm) {
          return farm.parent_path() == fs::absolute("/one") || farm.parent_path() == fs::absolute("/two");
        });
    if (!whole) return false;
  }
  return true;
}

bool restoreAll(const fs::path& state, const std::string& program) {
  RecoveryFolder recovery(state);
  for (const OrphanCopy& orphan : recovery.orphans()) {
    if (!recovery.claim(orphan)) continue;
    const std::string text = readFarmFile(orphan.path).text;
    const fs::path restored = state.parent_path() / "restored";
    fs::create_directories(restored);
    std::ofstream(restored / (program + " " + text), std::ios::binary) << text;
    recovery.adopt(orphan);
    recovery.write(text);
  }
  recovery.remove();
  return true;
}

bool countLocked(const fs::path& folder) {
  for (int done = 0; done < countRounds;) {
    const LockFile lock(folder / "a.lock");
    if (!lock.isHeld()) continue;
    int count = 0;
    std::ifstream(folder / "counter") >> count;
    std::ofstream(folder / "counter") << count + 1;
    ++done;
  }
  return true;
}

}  // namespace

bool perform(Deed deed, const fs::path& path, const std::string& text) try {
  switch (deed) {
    case Deed::replaceAndBeKilled: {
      FileReplacement replacement(path);
      replacement.write(text);
      beKilled();
    }
    case Deed::writeCopyAndBeKilled: {
      RecoveryFolder recovery(path);
      recovery.write(text);
      beKilled();
    }
    case Deed::removeCopyAndBeKilled: {
      RecoveryFolder recovery(path);
      recovery.write("x");
      recovery.remove();
      beKilled();
    }
    case Deed::lockAndBeKilled: {
      const LockFile lock(path);
      beKilled();
    }
    case Deed::findLockHeld:
      return !LockFile(path).isHeld() && isHeldByAnyone(path);
    case Deed::findNoOrphans: {
      RecoveryFolder recovery(path);
      return recovery.orphans().empty() && !recovery.claim({pathOf(text), {}});
    }
    case Deed::clearLeftovers:
      clearLeftovers(path);
      return true;
    case Deed::saveOften:
      return saveOften(path, text);
    case Deed::saveFarmOften:
      return saveFarmOften(path, std::stoi(text));
    case Deed::addFarmsOften:
      return addFarmsOften(path, text);
    case Deed::restoreAll:
      return restoreAll(path, text);
    case Deed::countLocked:
      return countLocked(path);
  }
  return false;
} catch (const std::exception& error) {
  std::cerr << "The other program: " << error.what() << std::endl;
  return false;
}

bool anotherProgram(Deed deed, const fs::path& path, const std::string& text) {
  return severalPrograms(deed, path, {text});
}

}  // namespace verdalis::testing
