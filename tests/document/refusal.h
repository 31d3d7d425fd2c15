#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "document/farmText.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

/// What readFarm() says about a text; nothing if it reads it.
inline std::optional<std::string> refusal(std::string_view text) {
  try {
    static_cast<void>(readFarm(text));
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::invalidCall);
    return error.what();
  }
  return std::nullopt;
}

}  // namespace verdalis::testing
