#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "text/RunTimeError.h"

namespace verdalis::testing {

/// Requires that `action` throws a RunTimeError with this number.
/// \returns the text of the error.
inline std::string failureOf(ErrorNumber number, const std::function<void()>& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(static_cast<int>(error.number()), static_cast<int>(number)) << error.what();
    return error.what();
  }
  ADD_FAILURE() << "no RunTimeError";
  return {};
}

}  // namespace verdalis::testing
