#pragma once

#include <gtest/gtest.h>

#include <string>

#include "text/RunTimeError.h"

namespace verdalis::testing {

/// Requires that `action` throws a RunTimeError with this number.
/// \returns the text of the error.
template <class Action>
std::string errorText(ErrorNumber number, Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), number) << error.what();
    return error.what();
  }
  ADD_FAILURE() << "no run-time error";
  return {};
}

}  // namespace verdalis::testing
