#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "controls/services.h"
#include "trend/BatchProcess.h"

namespace verdalis {

/// The values read for a trend process, or the reason why they are refused.
struct TrendReading {
  std::vector<TrendValue> values;
  std::optional<Message> refusal;
};

/// Highest number of values of a process. A trend with more could not run even if it kept one option per
/// value.
inline constexpr std::size_t mostTrendValues = 1'000'000;

/// Largest file of trend values, in bytes: enough for a million values with all their digits.
inline constexpr std::uintmax_t mostTrendFileBytes = 32U << 20U;

/// A minimum, a maximum and a number of values, as typed. The leading number of each text is used.
struct TrendRange {
  std::string minimum;
  std::string maximum;
  std::string steps;
};

/// Values evenly spread from the minimum to the maximum. With `validate`, the maximum must be above the
/// minimum and must not be 0, even if the minimum is negative; this is intended. Fewer than two values are
/// always refused.
/// \throws RunTimeError (overflow) for numbers that are too large
[[nodiscard]] TrendReading readRange(const TrendRange& range, bool validate = true);

/// The values of a comma-delimited file, as texts. In this format a line end does not separate values: lines
/// are joined without anything between them. A file that cannot be read counts as empty, which is refused
/// with `validate`. An entry that is not a number is always refused.
[[nodiscard]] TrendReading readValuesFile(const std::filesystem::path& file, bool validate = true);

/// The numbers of a comma-separated list, as texts. Other entries are ignored without a message; a list
/// without any number is refused. With `validate`, an empty list has a separate refusal.
[[nodiscard]] TrendReading readValuesList(const std::string& list, bool validate = true);

/// The reason why these values cannot be used as annual rainfall; nothing if they can.
/// \throws RunTimeError for a value that is not a number
[[nodiscard]] std::optional<Message> refuseRain(const std::vector<TrendValue>& values);

/// The refusal of a fixed trend with too many combinations of two lists of values; nothing if it is not too
/// large. Pass 1 as the length of a missing second list.
[[nodiscard]] std::optional<Message> refuseFixedTrend(std::size_t first, std::size_t second);

/// How many options of all its runs a variable trend can have: those that are kept in memory, about 3 kB
/// each, and those that are written while it runs.
inline constexpr double mostOptionsKept = 150'000;
inline constexpr double mostOptionsWritten = 1'000'000;

/// The refusal of a variable trend with more options in all its runs than `most`; nothing if it is not too
/// large.
[[nodiscard]] std::optional<Message> refuseVariableTrend(std::size_t values, double optionsToKeep,
                                                         double most = mostOptionsKept);

/// The values as one line of text; of a long list only the first values.
[[nodiscard]] std::string describeValues(const std::vector<TrendValue>& values);

}  // namespace verdalis
