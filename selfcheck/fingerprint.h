#pragma once

#include <cstdint>
#include <vector>

#include "engine/BestMix.h"

namespace verdalis {

/// The fingerprint of no answers.
constexpr std::uint64_t noFingerprint = 0xcbf29ce484222325;

/// Adds the answers to a fingerprint: of each option its net return, and of each field its acres, crop,
/// depth, yield, costs and returns, every number to the last bit. Any other bit gives another fingerprint,
/// except by a chance of one in 2^64. \param efficiency irrigation efficiency as a fraction.
[[nodiscard]] std::uint64_t addToFingerprint(std::uint64_t fingerprint,
                                             const std::vector<BestMix::Option>& options, double efficiency);

}  // namespace verdalis
