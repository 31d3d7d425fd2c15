#pragma once

#include <memory>

#include "data/GeneralInputs.h"
#include "model/Crop.h"
#include "model/IrrigationCosts.h"

namespace verdalis::testing {

// The objects that correspond to the file in SampleInputs.h.

inline GeneralInputs generalOfSample() {
  return {.splitIndex = "3",
          .totalAcres = "125.5",
          .waterAllocation = "14.25",
          .irrigEff = "85",
          .annualRain = "17"};
}

inline IrrigationCosts plantOfSample() {
  IrrigationCosts plant;
  plant.GPM = 650;
  plant.Lift = 180;
  plant.PSI = 30;
  plant.LaborPerHour = 12;
  plant.FixedPerAcre = 8.75;
  plant.RepairsPerAcreInch = 0.33;
  plant.NPC = 61.7;
  plant.cost = 5.1;
  plant.active = true;
  plant.FuelType = "Natural Gas";
  plant.dblEstHours = 1800;
  return plant;
}

inline std::shared_ptr<Crop> cornOfSample() {
  auto corn = std::make_shared<Crop>();
  corn->cropType = "Corn";
  corn->price = 4.6;
  corn->maxYield = 205;
  inputCosts& costs = corn->inputCosts;
  costs.NitrogenCost = 0.44;
  costs.NitrogenApplied = 100;
  costs.NOptimal = true;
  costs.PCost = 0.8;
  costs.PApplied = 40;
  costs.POptimal = false;
  costs.SeedCost = 2.89;
  costs.SeedRate = 29000;
  costs.SeedOptimal = true;
  costs.Herbicide = 20.01;
  costs.Insecticide = 7.45;
  costs.Tillage = 31.26;
  costs.Planting = 14.36;
  costs.HerbicideApplication = 5.26;
  costs.InsecticideApplication = 5.24;
  costs.Returns = 10;
  costs.HarvestBasePerAcre = 28.58;
  costs.HarvestExceedBu = 74;
  costs.HarvestExceedRate = 0.214;
  costs.HarvestHauling = 0.197;
  costs.HarvestFlatRate = 0.5;
  costs.AlfalfaSwathing = 9.1;
  costs.AlfalfaSwathingNum = 4;
  costs.AlfalfaRaking = 9.2;
  costs.AlfalfaRakingNum = 2;
  costs.AlfalfaBaling = 0.95;
  costs.AlfalfaBalingNum = 13.5;
  costs.AlfalfaPerTon = 35;
  costs.AlfalfaStand = 6;
  costs.MiscCost = 18;
  costs.FertilizerApplication = 5.12;
  return corn;
}

inline std::shared_ptr<Crop> fallowOfSample() {
  auto fallow = std::make_shared<Crop>();
  fallow->cropType = "Fallow";
  fallow->inputCosts.POptimal = true;
  return fallow;
}

}  // namespace verdalis::testing
