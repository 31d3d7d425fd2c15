#include "platform/paperLocale.h"

#include <cstdlib>

namespace verdalis {

std::string paperLocale() {
  for (const char* const name : {"LC_ALL", "LC_PAPER", "LANG"}) {
    const char* const locale = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets it
    if (locale != nullptr && *locale != '\0') return locale;
  }
  return {};
}

}  // namespace verdalis
