#include "tests/data/AnotherProgram.h"

#include "data/RecoveryFolder.h"
#include "data/SavingFolder.h"
#include "data/writeFile.h"
#include "platform/LockFile.h"
#include "platform/paths.h"

namespace verdalis::testing {

bool perform(Deed deed, const std::filesystem::path& path, const std::string& text) try {
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
  }
  return false;
} catch (...) {
  return false;
}

}  // namespace verdalis::testing
