#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "text/RunTimeError.h"

namespace verdalis::testing {

/// The text of the RunTimeError that `action` throws. It is a failure of the test when there is none, or one
/// of another number.
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
