#pragma once

#include "tests/cli/BatchFarms.h"

namespace verdalis::testing {

/// One field of Plain on 100 acres: 50 of 100 bushels at $2, with 10 gross inches.
inline const Args plain{"--split", "5", "--crop", "Plain", "--price", "Plain=2", "--max-yield", "Plain=100"};

}  // namespace verdalis::testing
