#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "model/FirstUse.h"
#include "model/YieldTable.h"
#include "model/inputCosts.h"

namespace verdalis {

/// The tables of one soil: "yield" (absolute) first, "relative" second, or nothing.
using SoilTables = std::vector<std::pair<std::string, SharedYieldTable>>;

/// How a yield is read from the yield table of a crop.
struct YieldReading {
  double depth = 0;       ///< Net inches that count: at most the table's top
  int rain = 0;           ///< Column: whole inches of annual rain
  int lo = 0;             ///< Row that is read first: whole inches, with a small rounding up
  int hi = 0;             ///< The row above it, or the top
  double atLo = 0;        ///< Cell of `lo`
  double atHi = 0;        ///< Cell of `hi`
  double between = 0;     ///< At `depth`, on the straight line through both cells
  bool absolute = false;  ///< The cells are yields; else fractions of the maximum yield
  double scale = 0;       ///< normalFactor of absolute cells, else maxYield
  double Yield = 0;       ///< Yield units per acre
};

/// One candidate crop: name, units, price, the yield expected at full water, production costs, and the yield
/// table from which everything that the search learns about water is read.
class Crop {
 public:
  std::string cropType;   ///< Name, exactly as in the crop file
  std::string cropUnits;  ///< Unit text of the crop file, such as "bu.,bushels"
  std::array<std::string, 2>
      cropUnitsArray;           ///< Its two words: short singular, plural. "ton" marks a forage crop
  double price = 0;             ///< $ per yield unit
  double inputCost = 0;         ///< Kept and copied; no calculation reads it
  double maxYield = 0;          ///< Yield units per acre at full irrigation
  SharedYieldTable yieldTable;  ///< None for Fallow. Replaced as a whole, never edited in place
  double normalFactor = 0;      ///< Scale from an absolute table to maxYield; see setNormal()
  verdalis::inputCosts inputCosts;
  double Yield = 0;     ///< Result of the last setYield(), yield units per acre
  bool Custom = false;  ///< Read from the folder of custom crops
  FirstUse<SoilTables> soil_ulysses;
  FirstUse<SoilTables> soil_valent;
  FirstUse<SoilTables> soil_valentine;
  std::string soilName;  ///< Soil texture in force

  [[nodiscard]] const std::string& priceUnits() const { return cropUnitsArray[0]; }
  [[nodiscard]] bool isForage() const { return cropUnitsArray[0] == "ton"; }

  /// Yield with its unit per acre, such as "184.4 bu./ac".
  [[nodiscard]] std::string yieldToString() const;

  /// Stores a copy of the table.
  void setYieldTable(const YieldTable& table);

  /// The yield, units per acre, of a seasonal net irrigation `Depth` (inches; above the table its top counts)
  /// and `annualRain` (inches, read from the nearest whole inch, halves to even). 0 for Fallow.
  /// \throws RunTimeError (subscript) without a table, or outside it; (overflow)
  [[nodiscard]] double yieldAt(double Depth, double annualRain) const;

  /// How yieldAt() comes to its yield. Not for Fallow, which yields nothing whatever its table.
  /// \throws RunTimeError as yieldAt()
  [[nodiscard]] YieldReading readYield(double Depth, double annualRain) const;

  /// Sets Yield to yieldAt(). A Depth above the table is set to the table's top, in the caller's variable
  /// too. \throws RunTimeError as yieldAt()
  void setYield(double& Depth, double annualRain);

  /// Sets normalFactor to `expectedYield` / the table's yield at full irrigation and this rain. Where that
  /// fails, normalFactor keeps its value and nothing is reported.
  void setNormal(double expectedYield, double annualRain);

  /// Upper bound of the table's irrigation, inches; 0 without a table.
  [[nodiscard]] double getMaxIrrigation() const;

  /// A copy with production costs of its own. It shares the yield table and the three soil collections.
  [[nodiscard]] Crop Copy() const;

  /// The crop's 34 lines of the saved inputs file, CR LF between them.
  [[nodiscard]] std::string writeData() const;
};

}  // namespace verdalis
