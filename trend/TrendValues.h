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

/// The values of a trend process as they were read, or why they are refused.
struct TrendReading {
  std::vector<TrendValue> values;
  std::optional<Message> refusal;
};

/// Most values that a process may have. A trend of more could not be run with a single option for each.
inline constexpr std::size_t mostTrendValues = 1'000'000;

/// Most bytes of a file of trend values: a million values with all their digits have room.
inline constexpr std::uintmax_t mostTrendFileBytes = 32U << 20U;

/// A minimum, a maximum and a number of values, as typed. The leading number of each text counts.
struct TrendRange {
  std::string minimum;
  std::string maximum;
  std::string steps;
};

/// Values evenly spread from the minimum to the maximum. `validate` demands a maximum above the minimum (and
/// other than 0, even above a negative minimum: meant); fewer than two values are refused in any case.
/// \throws RunTimeError (overflow) for numbers that are too large
[[nodiscard]] TrendReading readRange(const TrendRange& range, bool validate = true);

/// The values of a comma-delimited file, as texts. The lines are joined with nothing between them: the end
/// of a line parts no values, and that is the format. A file that cannot be read counts as empty, which
/// `validate` refuses. An entry that is no number is refused in any case.
[[nodiscard]] TrendReading readValuesFile(const std::filesystem::path& file, bool validate = true);

/// The numbers of a list with commas, as texts. Other entries are dropped without a word; a list without any
/// number is refused. `validate` gives the empty list a refusal of its own.
[[nodiscard]] TrendReading readValuesList(const std::string& list, bool validate = true);

/// Why these values cannot be run as annual rainfall, if they cannot.
/// \throws RunTimeError for a value that is no number
[[nodiscard]] std::optional<Message> refuseRain(const std::vector<TrendValue>& values);

/// Why a fixed trend over lists of these lengths is too large, if it is. Without a second list its length is
/// 1.
[[nodiscard]] std::optional<Message> refuseFixedTrend(std::size_t first, std::size_t second);

/// Why a variable trend is too large, if it is: all options of all its runs are kept.
[[nodiscard]] std::optional<Message> refuseVariableTrend(std::size_t values, double optionsToKeep);

/// The values as a line of text; of a long list only the first ones.
[[nodiscard]] std::string describeValues(const std::vector<TrendValue>& values);

}  // namespace verdalis
