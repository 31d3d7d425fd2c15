#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "model/Crop.h"
#include "model/IrrigationCosts.h"
#include "tests/support/Crops.h"

namespace verdalis::testing {

/// Random crops and plants from a seed. Few distinct values are used, so that equal profits are common. The
/// results are the same on every machine.
class RandomFarm {
 public:
  explicit RandomFarm(std::uint64_t seed) : engine_(seed) {}

  /// An integer from 0 to n - 1.
  int below(int n) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(n)); }
  bool chance(int percent) { return below(100) < percent; }

  /// An amount from 0 to `most` with two decimals; often 0.
  double amount(int most) { return chance(25) ? 0 : below(most * 100 + 1) / 100.0; }

  /// An amount, or an empty number.
  Number optionalAmount(int most) { return chance(30) ? Number() : Number(amount(most)); }

  /// A table of 1 to 12 rows for 11 to 13 inches of rain: absolute, relative, or mixed.
  YieldTable table() {
    YieldTable result(below(12), 11, 13);
    const int kind = below(3);
    for (int water = 0; water <= result.maxIrrigation(); ++water) {
      for (int rain = 11; rain <= 13; ++rain) {
        const bool relative = kind == 0 || (kind == 2 && chance(50));
        result.setCell(water, rain, relative ? below(5) / 4.0 : below(200));
      }
    }
    return result;
  }

  inputCosts costs() {
    inputCosts c;
    c.NitrogenCost = amount(2);
    c.NitrogenApplied = amount(200);
    c.NOptimal = chance(50);
    c.PCost = amount(2);
    c.PApplied = amount(100);
    c.POptimal = chance(50);
    c.SeedCost = amount(5);
    c.SeedRate = below(40) * 1000;
    c.SeedOptimal = chance(60);
    for (double inputCosts::*field :
         {&inputCosts::Herbicide, &inputCosts::Insecticide, &inputCosts::Tillage, &inputCosts::Planting,
          &inputCosts::FertilizerApplication, &inputCosts::HerbicideApplication,
          &inputCosts::InsecticideApplication, &inputCosts::Returns, &inputCosts::MiscCost}) {
      c.*field = amount(40);
    }
    for (Number inputCosts::*field :
         {&inputCosts::HarvestBasePerAcre, &inputCosts::HarvestExceedBu, &inputCosts::HarvestExceedRate,
          &inputCosts::HarvestHauling, &inputCosts::AlfalfaSwathing, &inputCosts::AlfalfaSwathingNum,
          &inputCosts::AlfalfaRaking, &inputCosts::AlfalfaRakingNum, &inputCosts::AlfalfaBaling,
          &inputCosts::AlfalfaBalingNum}) {
      c.*field = optionalAmount(30);
    }
    if (chance(30)) c.HarvestFlatRate = amount(3);
    if (chance(50)) c.AlfalfaPerTon = amount(40);
    if (chance(70)) c.AlfalfaStand = below(6);
    return c;
  }

  Crop crop() {
    static const std::array<const char*, 9> names{
        "Corn", "Wheat", "Grain Sorghum", "Sunflower", "Alfalfa", "Soybeans", "Fallow", "Oats", "Clover"};
    const std::string name = names.at(static_cast<std::size_t>(below(9)));
    if (name == "Fallow") {
      Crop fallow = namedCrop(name, "");
      fallow.inputCosts = costs();
      return fallow;
    }
    Crop result =
        namedCrop(name, name == "Alfalfa" || name == "Clover" || chance(10) ? "ton,tons" : "bu.,bushels");
    result.price = amount(10);
    result.maxYield = below(250);
    result.normalFactor = amount(2);
    result.inputCosts = costs();
    result.setYieldTable(table());
    return result;
  }

  IrrigationCosts plant() {
    IrrigationCosts result;
    result.GPM = chance(10) ? 0 : below(2000);
    result.Lift = below(500);
    result.PSI = below(80);
    result.LaborPerHour = amount(20);
    result.FixedPerAcre = amount(20);
    result.RepairsPerAcreInch = amount(2);
    static const std::array<double, 5> figures{12.5, 61.7, 6.89, 0.885, 0};
    result.NPC = figures.at(static_cast<std::size_t>(below(5)));
    result.cost = amount(6);
    result.active = chance(85);
    result.hours = amount(100);
    return result;
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace verdalis::testing
