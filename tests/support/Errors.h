#pragma once

#include <gtest/gtest.h>

#include <string>

#include "text/RunTimeError.h"

namespace verdalis::testing {

/// The text of the run-time error that `action` must end in; it fails the test when there is none, or one of
/// another number.
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
