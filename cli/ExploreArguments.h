#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "engine/Farm.h"
#include "explore/FarmInput.h"
#include "explore/inputs.h"

namespace verdalis {

/// The most points of one result.
inline constexpr std::size_t mostPoints = 100000;

/// The farm of the request as numbers.
/// \throws Refusal for what an evaluation of it would refuse, RunTimeError for numbers that make no farm
[[nodiscard]] Farm exploredFarm(const FarmRequest& request, Messages& messages);

/// The name of an input with its unit, for a table.
[[nodiscard]] std::string inputTitle(const FarmInput& input);

/// Reads the name of an input, in any case, and of a crop as elsewhere: exactly, else ignoring case where
/// only one chosen crop fits. `option` begins the message, such as "--input".
/// \throws Refusal for any other name, and for a crop that is not chosen or has no such figure
[[nodiscard]] FarmInput readInput(const std::string& option, const std::string& text, const Farm& farm);

/// A plain number. \throws Refusal for any other text
[[nodiscard]] double readNumber(const std::string& option, const std::string& text);

/// Values evenly from `from` to `to`.
struct ValueRange {
  double from = 0;
  double to = 0;
  std::size_t count = 0;

  [[nodiscard]] std::vector<double> values() const;
};

/// Reads the texts of a range with a number of values: the first value below the last, two values or more
/// and not more than there may be points. The options name them in messages.
/// \throws Refusal for any other texts
[[nodiscard]] ValueRange readRange(const std::string& fromOption, const std::string& from,
                                   const std::string& toOption, const std::string& to,
                                   const std::string& countOption, const std::string& count);

/// An input with the values that it is to take.
struct InputRange {
  FarmInput input;
  ValueRange range;
};

/// Reads INPUT=FROM:TO:N. The values are accepted ones.
/// \throws Refusal for any other text
[[nodiscard]] InputRange readInputRange(const std::string& option, const std::string& text, const Farm& farm);

/// What the main window takes for an input.
[[nodiscard]] InputBounds inputBounds(const FarmInput& input, const Farm& farm);

/// \throws Refusal for a value that the main window would refuse for the input, and for water whose volume
/// rounds to nothing. `option` begins the message.
/// \throws RunTimeError (overflow) for water that is too much to count
void requireAccepted(const std::string& option, const FarmInput& input, double value, const Farm& farm);

}  // namespace verdalis
