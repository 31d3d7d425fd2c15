#include "model/IrrigationCosts.h"

#include <cmath>

#include "model/Fuel.h"
#include "model/checked.h"
#include "model/savedFields.h"

namespace verdalis {
namespace {

/// The value of a step, or 0 if it failed (overflow or division by zero).
double stepOrZero(double value) {
  return std::isfinite(value) ? value : 0;
}

}  // namespace

std::optional<double> fuelPerformance(std::string_view fuelType) {
  if (const Fuel* const fuel = findFuel(fuelType)) return fuel->performance;
  return std::nullopt;
}

PumpingCosts IrrigationCosts::price(double Depth, double acres, double efficiency) const {
  // The trend's cost applies to the net depth.
  if (UseBatch) return {stepOrZero(BatchIrrigationCosts * acres * Depth), hours};
  if (!(Depth > 0 && active) || GPM <= 0 || NPC <= 0) return {0, hours};

  const double gross = stepOrZero(Depth / efficiency);
  const double waterHorsepower = stepOrZero((PSI * feetPerPsi + Lift) * GPM / gallonFeetPerHorsepower);
  const double pumpingHours = gross * acres / (GPM / gpmPerAcreInchHour);
  const double hoursUsed = std::isfinite(pumpingHours) ? pumpingHours : hours;
  const double fuel = stepOrZero((waterHorsepower / NPC) * hoursUsed * cost);
  // Labour is half an hour per acre and season, whatever the depth.
  return {stepOrZero(acres * 0.5 * LaborPerHour + fuel + acres * RepairsPerAcreInch * gross), hoursUsed};
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
