#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/Wish.h"

namespace verdalis {

/// Which button of the group "Land Split:" is on.
using LandSplitButtons = std::array<bool, 6>;

/// What a run needs of one crop row. Its place in the list is that of its crop in the library.
struct CropRowInput {
  bool isActive = false;    ///< The row is ticked
  std::string txtPrice;     ///< $ per yield unit
  std::string txtMaxYield;  ///< Yield units per acre

  /// The leading number of the text; 0 without one.
  [[nodiscard]] double getPrice() const;
  [[nodiscard]] double getMaxYield() const;
};

/// The inputs of a run: the texts of the main pane's controls at the moment of the run. There is no other
/// input model, so the texts mean what the conversions at their use make of them.
struct ScenarioInputs {
  std::string txtArea;                    ///< Total acres
  std::string txtMax;                     ///< Gross irrigation, inches
  std::string lblVolume;                  ///< Gross volume, acre-inches, as getVolume() shows it
  std::string txtAnnRain;                 ///< Annual rainfall, inches
  std::string txtEff = "85";              ///< Irrigation efficiency, percent
  std::string currentSoil = "Silt Loam";  ///< Text of the soil control
  LandSplitButtons Option1{};             ///< Land division
  std::vector<CropRowInput> cr;           ///< Crop rows
  bool chkNoSplit = false;                ///< Also evaluate each crop on the undivided farm
  std::string txtArraySize = "100";       ///< Options to keep
  std::vector<Wish> wishes;               ///< What every plan must meet
  bool mixes = false;                     ///< Keep the best plan of each mix of crops alone
};

/// Whether everything that a run needs is there: the acres, the inches, the volume that follows from them, a
/// rainfall that is a number, and at least one ticked crop.
[[nodiscard]] bool ready(const ScenarioInputs& inputs);

/// Refreshes lblVolume from the acres and the inches. The run reads this text, so the volume's rounding to a
/// whole number is part of the result; a volume that rounds to 0 is an empty text. \throws RunTimeError
/// (overflow)
void getVolume(ScenarioInputs& inputs);

}  // namespace verdalis
