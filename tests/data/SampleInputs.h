#pragma once

#include <string>

namespace verdalis::testing {

// A valid saved inputs file, line by line. No number occurs twice, so that exchanged lines are noticed.

/// Lines 1 to 5: the land split, then acres, water, efficiency and rain.
inline const std::string sampleGeneral = "3\r\n125.5\r\n14.25\r\n85\r\n17\r\n";

/// Lines 6 to 16, the pumping plant: GPM, Lift, PSI, LaborPerHour, FixedPerAcre, RepairsPerAcreInch, NPC,
/// cost, active, FuelType, dblEstHours.
inline const std::string samplePlant =
    "650\r\n180\r\n30\r\n12\r\n8.75\r\n0.33\r\n61.7\r\n5.1\r\nTrue\r\nNatural Gas\r\n1800\r\n";

/// The 34 lines of "Corn".
inline const std::string sampleCorn =
    "Corn\r\n"
    "4.6\r\n"    // price
    "205\r\n"    // maxYield
    "0.44\r\n"   // NitrogenCost
    "100\r\n"    // NitrogenApplied
    "True\r\n"   // NOptimal
    "0.8\r\n"    // PCost
    "40\r\n"     // PApplied
    "False\r\n"  // POptimal
    "2.89\r\n"   // SeedCost
    "29000\r\n"  // SeedRate
    "True\r\n"   // SeedOptimal
    "20.01\r\n"  // Herbicide
    "7.45\r\n"   // Insecticide
    "31.26\r\n"  // Tillage
    "14.36\r\n"  // Planting
    "5.26\r\n"   // HerbicideApplication
    "5.24\r\n"   // InsecticideApplication
    "10\r\n"     // Returns
    "28.58\r\n"  // HarvestBasePerAcre
    "74\r\n"     // HarvestExceedBu
    "0.214\r\n"  // HarvestExceedRate
    "0.197\r\n"  // HarvestHauling
    "0.5\r\n"    // HarvestFlatRate
    "9.1\r\n"    // AlfalfaSwathing
    "4\r\n"      // AlfalfaSwathingNum
    "9.2\r\n"    // AlfalfaRaking
    "2\r\n"      // AlfalfaRakingNum
    "0.95\r\n"   // AlfalfaBaling
    "13.5\r\n"   // AlfalfaBalingNum
    "35\r\n"     // AlfalfaPerTon
    "6\r\n"      // AlfalfaStand
    "18\r\n"     // MiscCost
    "5.12\r\n";  // FertilizerApplication, apart from the other operations

/// The 34 lines of "Fallow": numbers of 0, and empty lines for numbers that were never set.
inline const std::string sampleFallow =
    "Fallow\r\n0\r\n0\r\n0\r\n0\r\nFalse\r\n0\r\n0\r\nTrue\r\n0\r\n0\r\nFalse\r\n"
    "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
    "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
    "0\r\n0\r\n";

inline const std::string sampleInputs = sampleGeneral + samplePlant + sampleCorn + sampleFallow;

}  // namespace verdalis::testing
