#include "platform/scratchFile.h"

#include <string>

#include "platform/windows/system.h"

namespace verdalis {

std::FILE* openScratchFile() {
  // The C library would put it into the root of the drive, where users may not write.
  std::wstring folder(MAX_PATH + 1, L'\0');
  std::wstring name(MAX_PATH + 1, L'\0');
  if (GetTempPathW(MAX_PATH, folder.data()) == 0 ||
      GetTempFileNameW(folder.c_str(), L"vds", 0, name.data()) == 0) {
    return nullptr;
  }
  return _wfopen(name.c_str(), L"w+bTD");
}

}  // namespace verdalis
