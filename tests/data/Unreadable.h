#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/readFile.h"
#include "tests/data/Failure.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

/// Requires that a file cannot be read, and that the error names it.
inline void expectUnreadable(const std::filesystem::path& path) {
  const auto text = failureOf(ErrorNumber::fileNotFound, [&] { static_cast<void>(readFile(path)); });
  EXPECT_NE(text.find(path.string()), std::string::npos) << text;
}

}  // namespace verdalis::testing
