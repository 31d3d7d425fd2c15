#pragma once

#include <string>
#include <string_view>

#include "model/EfficiencyFraction.h"
#include "model/Number.h"

namespace verdalis {

class Crop;

/// Parts of the production costs of a field, dollars, in the order in which they are added. Seed, tillage and
/// planting are spread over the life of the stand.
struct ProductionParts {
  double nitrogen = 0;
  double phosphorus = 0;
  double seed = 0;
  double herbicide = 0;
  double insecticide = 0;
  double tillage = 0;
  double planting = 0;
  double fertilizerApplication = 0;
  double herbicideApplication = 0;
  double insecticideApplication = 0;
  double harvest = 0;
  double misc = 0;

  [[nodiscard]] double sum() const {
    return nitrogen + phosphorus + seed + herbicide + insecticide + tillage + planting +
           fertilizerApplication + herbicideApplication + insecticideApplication + harvest + misc;
  }
};

/// Production costs of a field, and the rates behind them.
struct ProductionCosts {
  double cost = 0;        ///< Dollars for the field
  double nitrogen = 0;    ///< lb per acre
  double phosphorus = 0;  ///< lb per acre
  double seedRate = 0;    ///< Seeds per acre, or lb per acre
  Number stand;           ///< Life of stand, years
};

/// Seed of a field, not yet spread over the life of the stand.
struct SeedCosts {
  double cost = 0;  ///< Dollars for the field
  double rate = 0;  ///< Seeds per acre, or lb per acre
};

/// Production costs of one crop per acre, and the resulting dollars for a field of given size, yield and
/// water. With the optimal switches on, nitrogen and phosphorus follow the yield, and the seeding rate
/// follows the net irrigation.
class inputCosts {
 public:
  double NitrogenCost = 0;            ///< $ per lb
  double NitrogenApplied = 0;         ///< lb per acre, used if NOptimal is off
  bool NOptimal = false;              ///< Nitrogen follows the yield
  double PCost = 0;                   ///< $ per lb
  double PApplied = 0;                ///< lb per acre, used if POptimal is off
  bool POptimal = false;              ///< Phosphorus follows the yield
  double SeedCost = 0;                ///< $ per 1,000 seeds; $ per lb for Grain Sorghum, Wheat and Alfalfa
  double SeedRate = 0;                ///< Seeds per acre, or lb per acre. Overwritten if SeedOptimal is on
  bool SeedOptimal = false;           ///< Seeding rate follows the net irrigation
  double Herbicide = 0;               ///< $ per acre, material
  double Insecticide = 0;             ///< $ per acre, material
  double Tillage = 0;                 ///< $ per acre, operation
  double Planting = 0;                ///< $ per acre, operation
  double FertilizerApplication = 0;   ///< $ per acre, operation
  double HerbicideApplication = 0;    ///< $ per acre, operation
  double InsecticideApplication = 0;  ///< $ per acre, operation
  Number HarvestBasePerAcre;          ///< $ per acre, custom harvest base charge
  Number HarvestExceedBu;             ///< Yield units per acre above which the extra charge applies
  Number HarvestExceedRate;           ///< $ per yield unit ($ per 100 lb for Sunflower)
  Number HarvestHauling;              ///< $ per yield unit ($ per 100 lb for Sunflower)
  Number HarvestFlatRate;     ///< $ per yield unit ($ per 100 lb for Sunflower); if above 0 it replaces the
                              ///< other four
  Number AlfalfaSwathing;     ///< $ per acre and operation
  Number AlfalfaSwathingNum;  ///< Operations per season
  Number AlfalfaRaking;       ///< $ per acre and operation
  Number AlfalfaRakingNum;    ///< Operations per season
  Number AlfalfaBaling;       ///< $ per bale
  Number AlfalfaBalingNum;    ///< Bales per acre
  Number AlfalfaPerTon;       ///< $ per ton; if above 0 it replaces the three operations
  Number AlfalfaStand;        ///< Life of stand, years. 0 or empty is set to 1 by the first getCosts()
  double AlfalfaFlat = 0;     ///< Reserved: not used by any screen, file or formula; Copy() leaves it out
  double Returns = 0;         ///< $ per acre, other income from the land
  double MiscCost = 0;        ///< $ per acre
  std::string theString;      ///< Returned by toString(); never set
  double NPerAcre = 0;        ///< Result: nitrogen from the last getCosts(), lb per acre
  double PPerAcre = 0;        ///< Result: phosphorus from the last getCosts(), lb per acre
  bool UseBatch = false;      ///< A trend replaces the production costs with BatchGeneralCosts
  double BatchGeneralCosts = 0;  ///< $ per acre

  /// Production costs of a field. Rates that are not computed are taken from this object.
  /// \param yield per acre.
  /// \param grossDepth gross irrigation, inches.
  /// \param efficiency as a fraction.
  /// \param parts gets the parts of the costs, if it is given; unchanged if a trend replaces the costs.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] ProductionCosts price(double acres, double yield, const Crop& crop, double grossDepth,
                                      double efficiency, ProductionParts* parts = nullptr) const;

  /// The cost from price(), dollars. Stores the rates in NPerAcre, PPerAcre, SeedRate and AlfalfaStand.
  /// \param grossDepth multiplied by the efficiency on return, except with UseBatch.
  /// \throws RunTimeError (overflow)
  double getCosts(double acres, double yield, const Crop& crop, double& grossDepth,
                  double efficiency = EfficiencyFraction);

  /// Other income from a field, dollars.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getReturns(double acres) const;

  /// Harvest cost of a field, dollars. The extra charge has no lower limit: a yield below HarvestExceedBu
  /// reduces the cost. This is intended.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getHarvestCost(double acres, double yield, std::string_view cropType) const;

  /// Seed of a field. With SeedOptimal the rate follows the net depth (inches).
  /// \throws RunTimeError (overflow)
  [[nodiscard]] SeedCosts priceSeed(double acres, std::string_view cropType, double netDepth) const;

  /// The cost from priceSeed(), dollars. Stores the rate in SeedRate. `yield` is not used.
  /// \param grossDepth converted to net inches on return.
  /// \throws RunTimeError (overflow)
  double getSeedCost(double acres, double yield, std::string_view cropType, double& grossDepth,
                     double efficiency = EfficiencyFraction);

  [[nodiscard]] std::string toString() const { return theString; }
  [[nodiscard]] inputCosts Copy() const;

  /// The 31 lines of the costs in the saved inputs file, separated by CR LF.
  [[nodiscard]] std::string writeData() const;
};

}  // namespace verdalis
