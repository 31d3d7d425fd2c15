#pragma once

#include "text/RunTimeError.h"

namespace verdalis {

/// Carries out a step of a display routine. Where it fails, what it would have shown keeps its old state, and
/// the routine goes on with its next step.
template <class Step>
void passOver(Step&& step) {
  try {
    step();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): the old state stays on show
  }
}

}  // namespace verdalis
