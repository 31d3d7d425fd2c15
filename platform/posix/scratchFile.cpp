#include "platform/scratchFile.h"

namespace verdalis {

std::FILE* openScratchFile() {
  return std::tmpfile();
}

}  // namespace verdalis
