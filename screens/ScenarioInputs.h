#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/Wish.h"

namespace verdalis {

/// The state of each button of the group "Land Split:".
using LandSplitButtons = std::array<bool, 6>;

/// The inputs of a run from one crop row. Row i belongs to crop i of the library.
struct CropRowInput {
  bool isActive = false;    ///< The row is ticked
  std::string txtPrice;     ///< $ per yield unit
  std::string txtMaxYield;  ///< Yield units per acre

  /// The leading number of the text; 0 if there is none.
  [[nodiscard]] double getPrice() const;
  [[nodiscard]] double getMaxYield() const;
};

/// The inputs of a run: the texts of the main pane's controls when the run starts. There is no other input
/// model: each text is converted to a number where it is used.
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
  std::vector<Wish> wishes;               ///< Wishes that every plan must meet
  bool mixes = false;                     ///< Keep only the best plan of each mix
};

/// Whether all inputs that a run needs are entered: the acres, the inches, the resulting volume, a numeric
/// rainfall, and at least one ticked crop.
[[nodiscard]] bool ready(const ScenarioInputs& inputs);

/// Gross volume for total acres and gross inches, acre-inches, as a whole number; empty if it rounds to 0.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string volumeText(const std::string& txtArea, const std::string& txtMax);

/// Updates lblVolume from the acres and the inches. The run reads this text, so it works with the volume
/// rounded to a whole number. A volume that rounds to 0 gives an empty text.
/// \throws RunTimeError (overflow)
void getVolume(ScenarioInputs& inputs);

}  // namespace verdalis
