#pragma once

#include <string>
#include <vector>

#include "model/FieldCollection.h"

namespace verdalis {

/// One field of an option, as reported.
struct FieldResult {
  double acres = 0;
  std::string crop;
  double netDepth = 0;    ///< Inches
  double grossDepth = 0;  ///< Inches, with the efficiency of the run
  double yield = 0;       ///< Units per acre
  std::string yieldUnit;  ///< Such as "bu."; empty for Fallow
  double price = 0;       ///< $ per unit
  double maxYield = 0;    ///< Units per acre
  std::string soil;
  double costs = 0;       ///< Dollars for the field, including irrigation
  double returns = 0;     ///< Dollars for the field
  double production = 0;  ///< Dollars for the field, without irrigation
  double irrigation = 0;  ///< Dollars for the field
  double hours = 0;       ///< Pumping hours; a dry field shows the previous hours of its plant

  [[nodiscard]] double profit() const { return returns - costs; }
};

/// One option of a ranking, as reported. Amounts are dollars for the farm.
struct OptionResult {
  double profit = 0;
  double costs = 0;
  double returns = 0;
  double netVolume = 0;  ///< Acre-inches
  std::vector<FieldResult> fields;

  /// Acres of all fields.
  [[nodiscard]] double acres() const;
};

/// Describes an option. `efficiency` is the efficiency of its run, as a fraction.
/// \throws RunTimeError if pricing fails
[[nodiscard]] OptionResult describeOption(FieldCollection& option, double efficiency);

}  // namespace verdalis
