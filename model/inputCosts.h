#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "model/EfficiencyFraction.h"
#include "model/Number.h"

namespace verdalis {

class Crop;

/// What makes up the production costs of a field, dollars, in the order in which it is added up. Seed,
/// tillage and planting are spread over the life of the stand.
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
    double total = nitrogen;
    for (const double part :
         {phosphorus, seed, herbicide, insecticide, tillage, planting, fertilizerApplication,
          herbicideApplication, insecticideApplication, harvest, misc}) {
      total += part;
    }
    return total;
  }
};

/// What growing a crop on a field costs, and the rates behind it.
struct ProductionCosts {
  double cost = 0;        ///< Dollars for the field
  double nitrogen = 0;    ///< lb per acre
  double phosphorus = 0;  ///< lb per acre
  double seedRate = 0;    ///< Seeds per acre, or lb per acre
  Number stand;           ///< Life of stand, years
  ProductionParts parts;  ///< Nothing where a trend has replaced them all
};

/// The seed of a field, not yet spread over the life of the stand.
struct SeedCosts {
  double cost = 0;  ///< Dollars for the field
  double rate = 0;  ///< Seeds per acre, or lb per acre
};

/// What it costs to grow one acre of one crop, and the dollars that makes for a field of a given size, yield
/// and water. With the optimal switches on, nitrogen and phosphorus follow the yield that is reached and the
/// seeding rate follows the net irrigation.
class inputCosts {
 public:
  double NitrogenCost = 0;            ///< $ per lb
  double NitrogenApplied = 0;         ///< lb per acre, used while NOptimal is off
  bool NOptimal = false;              ///< Nitrogen by yield
  double PCost = 0;                   ///< $ per lb
  double PApplied = 0;                ///< lb per acre, used while POptimal is off
  bool POptimal = false;              ///< Phosphorus by yield
  double SeedCost = 0;                ///< $ per 1,000 seeds; $ per lb for Grain Sorghum, Wheat and Alfalfa
  double SeedRate = 0;                ///< Seeds per acre, or lb per acre. Overwritten while SeedOptimal is on
  bool SeedOptimal = false;           ///< Seeding rate by net irrigation
  double Herbicide = 0;               ///< $ per acre, material
  double Insecticide = 0;             ///< $ per acre, material
  double Tillage = 0;                 ///< $ per acre, operation
  double Planting = 0;                ///< $ per acre, operation
  double FertilizerApplication = 0;   ///< $ per acre, operation
  double HerbicideApplication = 0;    ///< $ per acre, operation
  double InsecticideApplication = 0;  ///< $ per acre, operation
  Number HarvestBasePerAcre;          ///< $ per acre, custom harvest base charge
  Number HarvestExceedBu;             ///< Yield units per acre above which the extra charge runs
  Number HarvestExceedRate;           ///< $ per yield unit ($ per 100 lb for Sunflower)
  Number HarvestHauling;              ///< $ per yield unit ($ per 100 lb for Sunflower)
  Number
      HarvestFlatRate;  ///< $ per yield unit ($ per 100 lb for Sunflower); above 0 it replaces the other four
  Number AlfalfaSwathing;     ///< $ per acre and operation
  Number AlfalfaSwathingNum;  ///< Operations per season
  Number AlfalfaRaking;       ///< $ per acre and operation
  Number AlfalfaRakingNum;    ///< Operations per season
  Number AlfalfaBaling;       ///< $ per bale
  Number AlfalfaBalingNum;    ///< Bales per acre
  Number AlfalfaPerTon;       ///< $ per ton; above 0 it replaces the three operations
  Number AlfalfaStand;        ///< Life of stand, years. 0 or empty becomes 1 when first costed
  double AlfalfaFlat = 0;     ///< Reserved: no screen, file or formula touches it, and Copy() leaves it out
  double Returns = 0;         ///< $ per acre, other income of the land
  double MiscCost = 0;        ///< $ per acre
  std::string theString;      ///< Returned by toString(); nothing sets it
  double NPerAcre = 0;        ///< Result: lb of nitrogen per acre of the last getCosts()
  double PPerAcre = 0;        ///< Result: lb of phosphorus per acre of the last getCosts()
  bool UseBatch = false;      ///< A trend has replaced the production costs by BatchGeneralCosts
  double BatchGeneralCosts = 0;  ///< $ per acre

  /// Production costs of a field: `acres` is its size, `yield` is per acre, `grossDepth` in inches,
  /// `efficiency` a fraction. Rates that take no part are those that stand here.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] ProductionCosts price(double acres, double yield, const Crop& crop, double grossDepth,
                                      double efficiency) const;

  /// The cost of price(), dollars. NPerAcre, PPerAcre, SeedRate and AlfalfaStand take its rates; `grossDepth`
  /// comes back multiplied by the efficiency, except with UseBatch.
  /// \throws RunTimeError (overflow)
  double getCosts(double acres, double yield, const Crop& crop, double& grossDepth,
                  double efficiency = EfficiencyFraction);

  /// Other income of a field, dollars.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getReturns(double acres) const;

  /// Harvest cost of a field, dollars. The extra charge has no floor: a yield below HarvestExceedBu lowers
  /// the cost, and that is meant. \throws RunTimeError (overflow)
  [[nodiscard]] double getHarvestCost(double acres, double yield, std::string_view cropType) const;

  /// Seed of a field; with SeedOptimal the rate follows the net depth (inches).
  /// \throws RunTimeError (overflow)
  [[nodiscard]] SeedCosts priceSeed(double acres, std::string_view cropType, double netDepth) const;

  /// The cost of priceSeed(), dollars. `yield` takes no part. `grossDepth` comes back as net inches, and
  /// SeedRate takes the rate.
  /// \throws RunTimeError (overflow)
  double getSeedCost(double acres, double yield, std::string_view cropType, double& grossDepth,
                     double efficiency = EfficiencyFraction);

  [[nodiscard]] std::string toString() const { return theString; }
  [[nodiscard]] inputCosts Copy() const;

  /// The 31 lines of the saved inputs file, CR LF between them.
  [[nodiscard]] std::string writeData() const;
};

}  // namespace verdalis
