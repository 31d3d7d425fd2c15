#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "model/FirstUse.h"
#include "model/YieldTable.h"
#include "model/inputCosts.h"

namespace verdalis {

/// Yield tables of one soil: "yield" (absolute) first, "relative" second; or none.
using SoilTables = std::vector<std::pair<std::string, SharedYieldTable>>;

/// How a yield is looked up in the yield table of a crop.
struct YieldReading {
  double depth = 0;       ///< Net irrigation, inches, capped at the top of the table
  int rain = 0;           ///< Column: whole inches of annual rain
  int lo = 0;             ///< Lower row: whole inches, rounded up slightly
  int hi = 0;             ///< The row above it, or the top
  double atLo = 0;        ///< Cell of `lo`
  double atHi = 0;        ///< Cell of `hi`
  double between = 0;     ///< Interpolated between both cells at `depth`
  bool absolute = false;  ///< Whether cells are yields, not fractions of the maximum yield
  double scale = 0;       ///< normalFactor for absolute cells, otherwise maxYield
  double Yield = 0;       ///< Yield units per acre
};

/// A candidate crop: name, units, price, expected yield at full irrigation, production costs, and yield
/// table. The yield table is the only source of the search for how the crop responds to water.
class Crop {
 public:
  std::string cropType;   ///< Name, exactly as in the crop file
  std::string cropUnits;  ///< Unit text of the crop file, such as "bu.,bushels"
  std::array<std::string, 2>
      cropUnitsArray;    ///< The two words of cropUnits: short singular, plural. "ton" marks a forage crop
  double price = 0;      ///< $ per yield unit
  double inputCost = 0;  ///< Stored and copied, but not used by any calculation
  double maxYield = 0;   ///< Yield units per acre at full irrigation
  SharedYieldTable yieldTable;  ///< Empty for Fallow. Replaced as a whole, never edited in place
  double normalFactor = 0;      ///< Factor that scales an absolute table to maxYield; see setNormal()
  verdalis::inputCosts inputCosts;
  double Yield = 0;     ///< Result of the last setYield(), yield units per acre
  bool Custom = false;  ///< Whether it was read from the custom crop folder
  FirstUse<SoilTables> soil_ulysses;
  FirstUse<SoilTables> soil_valent;
  FirstUse<SoilTables> soil_valentine;
  std::string soilName;  ///< Current soil texture

  [[nodiscard]] const std::string& priceUnits() const { return cropUnitsArray[0]; }
  [[nodiscard]] bool isForage() const { return cropUnitsArray[0] == "ton"; }

  /// Yield with its unit per acre, such as "184.4 bu./ac".
  [[nodiscard]] std::string yieldToString() const;

  /// Stores a copy of the table.
  void setYieldTable(const YieldTable& table);

  /// Yield for a seasonal net irrigation and an annual rainfall, in yield units per acre; 0 for Fallow.
  /// \param Depth in inches; capped at the top of the table.
  /// \param annualRain in inches; rounded to the nearest whole inch, halves to even.
  /// \throws RunTimeError (subscript) without a table or outside of it; (overflow)
  [[nodiscard]] double yieldAt(double Depth, double annualRain) const;

  /// The steps of yieldAt(). Not for Fallow, which yields nothing whatever its table.
  /// \throws RunTimeError as yieldAt()
  [[nodiscard]] YieldReading readYield(double Depth, double annualRain) const;

  /// Sets Yield to yieldAt(). A Depth above the table is lowered to the top of the table, in the caller's
  /// variable too.
  /// \throws RunTimeError as yieldAt()
  void setYield(double& Depth, double annualRain);

  /// Sets normalFactor to `expectedYield` / the table's yield at full irrigation and this rainfall. If that
  /// fails, normalFactor is unchanged and no error is reported.
  void setNormal(double expectedYield, double annualRain);

  /// Maximum irrigation of the table, inches; 0 without a table.
  [[nodiscard]] double getMaxIrrigation() const;

  /// A copy with its own production costs. It shares the yield table and the three soil collections.
  [[nodiscard]] Crop Copy() const;

  /// The 34 lines of the crop in the saved inputs file, separated by CR LF.
  [[nodiscard]] std::string writeData() const;
};

}  // namespace verdalis
