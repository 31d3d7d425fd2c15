#pragma once

#include "text/RunTimeError.h"

namespace verdalis {

/// Runs a step of a display routine. If the step fails, its controls keep their old state, and the routine
/// continues with the next step.
template <class Step>
void passOver(Step&& step) {
  try {
    step();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): the old state is kept
  }
}

}  // namespace verdalis
