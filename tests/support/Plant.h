#pragma once

#include "model/EfficiencyFraction.h"
#include "model/IrrigationCosts.h"

namespace verdalis::testing {

/// The pumping plant set by "Load Default Values".
inline IrrigationCosts defaultPlant() {
  IrrigationCosts plant;
  plant.GPM = 750;
  plant.Lift = 120;
  plant.PSI = 35;
  plant.RepairsPerAcreInch = 0.33;
  plant.cost = 5.1;
  plant.LaborPerHour = 10;
  plant.FuelType = "Natural Gas";
  plant.dblEstHours = 1800;
  plant.NPC = 61.7;
  plant.active = true;
  return plant;
}

/// Sets the irrigation efficiency during a test.
class ScopedEfficiency {
 public:
  explicit ScopedEfficiency(double fraction) : before_(EfficiencyFraction) { EfficiencyFraction = fraction; }
  ~ScopedEfficiency() { EfficiencyFraction = before_; }
  ScopedEfficiency(const ScopedEfficiency&) = delete;
  ScopedEfficiency& operator=(const ScopedEfficiency&) = delete;

 private:
  double before_;
};

}  // namespace verdalis::testing
