#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/writeFile.h"
#include "tests/data/Failure.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

/// Requires that a file cannot be written, and that the error names it.
inline void expectNotWritten(const std::filesystem::path& path) {
  const auto text = failureOf(ErrorNumber::fileNotFound, [&] { writeFile(path, "new"); });
  EXPECT_NE(text.find(path.string()), std::string::npos) << text;
}

}  // namespace verdalis::testing
