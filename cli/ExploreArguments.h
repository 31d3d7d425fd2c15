#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "document/FarmDocument.h"
#include "engine/Farm.h"
#include "explore/FarmInput.h"
#include "explore/seasons.h"
#include "handout/Handout.h"
#include "model/CropScenario.h"
#include "questions/values.h"

namespace verdalis {

/// A farm that questions are asked about.
struct ExploredFarm {
  Farm farm;
  std::vector<Season> seasons;  ///< Of its farm file
  FarmDocument document;        ///< As it was entered
  CropScenario library;
  Handout handout;  ///< Of a workbook, with the inputs
};

/// The farm of the request as numbers.
/// \throws Refusal if `evaluate` would refuse it
/// \throws RunTimeError for numbers that give no valid farm
[[nodiscard]] ExploredFarm exploredFarm(const FarmRequest& request, Messages& messages);

/// The name of an input with its unit, for a table.
[[nodiscard]] std::string inputTitle(const FarmInput& input);

/// Reads the name of an input, ignoring case. A crop is matched exactly, or ignoring case if only one chosen
/// crop fits. `option`, such as "--input", begins the message.
/// \throws Refusal for any other name, and for a crop that is not chosen or does not have the input
[[nodiscard]] FarmInput readInput(const std::string& option, const std::string& text, const Farm& farm);

/// Reads a plain number. The option begins the message.
/// \throws Refusal for any other text
[[nodiscard]] double readNumber(const std::string& option, const std::string& text);

/// Reads the texts of a range and of its number of values. The first value must be below the last, and the
/// number from 2 to the maximum number of points. Messages name the options.
/// \throws Refusal for any other texts
[[nodiscard]] ValueRange readRange(const std::string& fromOption, const std::string& from,
                                   const std::string& toOption, const std::string& to,
                                   const std::string& countOption, const std::string& count);

/// An input and the range of its values.
struct InputRange {
  FarmInput input;
  ValueRange range;
};

/// Reads INPUT=FROM:TO:N. The main window must accept the values for the input.
/// \throws Refusal, which begins with the option and the whole text, for any other text
[[nodiscard]] InputRange readInputRange(const std::string& option, const std::string& text, const Farm& farm);

/// Checks a value of an input. The option and its text begin the message.
/// \throws Refusal for a value that the main window would refuse, and for water whose volume rounds to 0
/// \throws RunTimeError (overflow) if the volume of water is too large
void requireAccepted(const std::string& option, const std::string& text, const FarmInput& input, double value,
                     const Farm& farm);

}  // namespace verdalis
