#include "model/IrrigationCosts.h"

#include <cmath>

#include "model/Fuel.h"
#include "model/checked.h"
#include "model/savedFields.h"

namespace verdalis {
namespace {

/// The value of a step, or 0 if it failed (overflow or division by zero).
double stepOrZero(double value) {
  // As good as certain, so that the compiler makes it a jump: the next step would wait for a selected value.
  return __builtin_expect_with_probability(std::isfinite(value), 1, 1) ? value : 0;
}

}  // namespace

std::optional<double> fuelPerformance(std::string_view fuelType) {
  if (const Fuel* const fuel = findFuel(fuelType)) return fuel->performance;
  return std::nullopt;
}

PumpingCosts IrrigationCosts::price(double Depth, double acres, double efficiency,
                                    PumpingParts* partsFound) const {
  // The trend's cost applies to the net depth.
  if (UseBatch) return {stepOrZero(BatchIrrigationCosts * acres * Depth), hours};
  if (!pumps(Depth)) return {0, hours};

  const double gross = stepOrZero(Depth / efficiency);
  PumpingParts parts;
  parts.waterHorsepower = stepOrZero((PSI * feetPerPsi + Lift) * GPM / gallonFeetPerHorsepower);
  const double pumpingHours = gross * acres / (GPM / gpmPerAcreInchHour);
  const double hoursUsed = std::isfinite(pumpingHours) ? pumpingHours : hours;
  parts.fuel = stepOrZero((parts.waterHorsepower / NPC) * hoursUsed * cost);
  parts.labor = acres * laborHoursPerAcre * LaborPerHour;
  parts.repairs = acres * RepairsPerAcreInch * gross;
  if (partsFound != nullptr) *partsFound = parts;
  return {stepOrZero(parts.labor + parts.fuel + parts.repairs), hoursUsed};
}

double IrrigationCosts::getCosts(double Depth, double acres, double efficiency) {
  const PumpingCosts priced = price(Depth, acres, efficiency);
  hours = priced.hours;
  return priced.cost;
}

double IrrigationCosts::getMaxInches(double acres) const {
  if (acres == 0) return 0;
  return checked((GPM * 60 * dblEstHours / acres) * (1 / gallonsPerAcreInch), "The pumping capacity");
}

std::string IrrigationCosts::writeData() const {
  return savedLines(plantFields(), *this);
}

}  // namespace verdalis
