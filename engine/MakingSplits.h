#pragma once

#include <array>
#include <cstdint>

#include "engine/ProgramState.h"
#include "engine/Split.h"
#include "engine/SplitCollection.h"

namespace verdalis {

/// Percentages of a land split, by its index in landDivisions().
/// \throws RunTimeError (subscript) if there is no such index
[[nodiscard]] Split landDivision(std::size_t index);

/// Each percentage x as (x / 100) * acres.
/// \throws RunTimeError (overflow)
[[nodiscard]] Split percentToAcres(const Split& landSplit, double acres);

/// Each percentage x as (x / 100) * netVolume, in acre-inches.
/// \throws RunTimeError (overflow)
[[nodiscard]] Split percentToVolume(double netVolume, const Split& split);

/// All water splits over n fields for the iteration factor of `state`, in acre-inches, in descending order of
/// the first share, then the second and so on. Adds to state.splitCounter. `acres` is not used.
/// \throws RunTimeError (divisionByZero) for a factor of 0, (invalidCall) for a negative factor, (overflow)
[[nodiscard]] SplitCollection makeWaterSplits(std::int16_t n, double netVolume, double acres,
                                              ProgramState& state);

/// Each water split in net inches: value k divided by the acres of field k.
/// \throws RunTimeError (divisionByZero) for a field of 0 acres, (overflow)
[[nodiscard]] SplitCollection volumesToDepths(SplitCollection water, const Split& landSplit);

}  // namespace verdalis
