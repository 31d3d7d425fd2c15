#include "text/version.h"

namespace verdalis {

// Both numbers are macros defined by the build.
const std::string& versionNumber() {
  static const std::string number = VERDALIS_VERSION;
  return number;
}

const std::string& buildNumber() {
  static const std::string number = VERDALIS_BUILD;
  return number;
}

std::string versionText() {
  return versionNumber() + " build " + buildNumber();
}

}  // namespace verdalis
