#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

#include "data/writeFile.h"
#include "tests/data/Failure.h"
#include "tests/data/PlainUser.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

/// Requires that a file cannot be written, and that the error names it.
inline void expectNotWritten(const std::filesystem::path& path) {
  const auto text = failureOf(ErrorNumber::fileNotFound, [&] { writeFile(path, "new"); });
  EXPECT_NE(text.find(path.string()), std::string::npos) << text;
}

/// Whether writing fails and keeps the old text, as a user who is subject to permissions.
inline std::optional<bool> staysAsItWas(const TemporaryFolder& folder, const std::filesystem::path& file) {
  return asPlainUser([&] {
    try {
      writeFile(file, "new");
    } catch (const RunTimeError& error) {
      return error.number() == ErrorNumber::fileNotFound && folder.read(file) == "old" &&
             folder.names(file.parent_path()).size() == 1;
    }
    return false;
  });
}

}  // namespace verdalis::testing
