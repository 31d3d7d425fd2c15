#pragma once

#include <filesystem>
#include <string>

#include "data/farmFile.h"
#include "tests/data/Failure.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

/// \returns why a farm cannot be read; fails if it can be.
inline std::string readFailure(const std::filesystem::path& path) {
  return failureOf(ErrorNumber::fileNotFound, [&] { static_cast<void>(readFarmFile(path)); });
}

/// \returns why a farm cannot be written; fails if it can be.
inline std::string writeFailure(const std::filesystem::path& path) {
  return failureOf(ErrorNumber::fileNotFound, [&] { writeFarmFile(path, "new"); });
}

}  // namespace verdalis::testing
