#include "xlsx/library.h"

#include "text/RunTimeError.h"

namespace verdalis {

std::string libraryPath(const std::filesystem::path& path) {
  return path.string();
}

void failToMake(std::string_view reason) {
  const std::string stop = reason.ends_with('.') ? "" : ".";
  throw RunTimeError(ErrorNumber::fileNotFound, "The workbook cannot be made: " + std::string(reason) + stop +
                                                    " Check that the disk has room.");
}

}  // namespace verdalis
