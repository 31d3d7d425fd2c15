#include "selfcheck/RandomFarm.h"

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "engine/MakingSplits.h"
#include "model/LandDivision.h"
#include "text/powersOfTen.h"

namespace verdalis::reference {
namespace {

constexpr std::array<const char*, 10> cropNames{"Corn",          "Wheat",    "Alfalfa", "Sunflower",
                                                "Grain Sorghum", "Soybeans", "Fallow",  "Millet",
                                                "Sugar beet",    "corn"};
constexpr std::array<std::int16_t, 9> factors{1, 3, 6, 7, 12, 30, 99, 10, 20};

constexpr double rise = std::numeric_limits<double>::infinity();

}  // namespace

std::string_view name(FarmKind kind) {
  constexpr std::array<std::string_view, static_cast<std::size_t>(FarmKind::count)> names{
      "ordinary",       "manyCrops",         "highFactor",   "twinCrops",     "neighbourPrices",
      "neighbourCosts", "zeroPrices",        "fallowOnly",   "losses",        "wholeDollars",
      "equalGains",     "equalGainsNoPlant", "linearYields", "fewCandidates", "faulty"};
  return names.at(static_cast<std::size_t>(kind));
}

class RandomFarm::Maker {
 public:
  Maker(RandomFarm& farm, FarmKind kind, std::uint64_t seed, double mostCandidates)
      : farm_(farm),
        kind_(kind),
        mostCandidates_(mostCandidates),
        random_(seed * static_cast<std::uint64_t>(FarmKind::count) + static_cast<std::uint64_t>(kind)) {}

  void make() {
    makePlant();
    makeLand();
    makeCrops();
    farm_.combinations_ = std::make_unique<CropCombinations>(farm_.crops_, farm_.landSplit_.Count());
    constexpr std::array<std::int16_t, 6> sizes{1, 100, 500, 2, 10, 30};
    farm_.size_ = kind_ == FarmKind::fewCandidates ? std::int16_t{500} : sizes.at(below(sizes.size()));
  }

 private:
  // The library's distributions may give other numbers elsewhere, as may its pow(); these are the same
  // everywhere, because basic arithmetic is.
  std::size_t below(std::size_t end) { return static_cast<std::size_t>(random_() % end); }
  bool chance(double p) { return between(0, 1) < p; }
  double between(double low, double high) {
    return low + (high - low) * (static_cast<double>(random_() >> 11U) * 0x1p-53);
  }

  void makePlant() {
    farm_.rain_ = static_cast<double>(11 + below(11));
    if (chance(0.2)) farm_.rain_ += 0.5;
    farm_.efficiency_ = chance(0.5) ? 0.85 : between(0.3, 1);
    IrrigationCosts& plant = farm_.plant_;
    plant.active = kind_ != FarmKind::equalGainsNoPlant && kind_ != FarmKind::wholeDollars && chance(0.8);
    plant.GPM = between(200, 1200);
    plant.Lift = between(0, 300);
    plant.PSI = between(0, 60);
    plant.LaborPerHour = chance(0.3) ? 0 : between(0, 30);
    plant.RepairsPerAcreInch = chance(0.3) ? 0 : 0.33;
    plant.NPC = 61.7;
    plant.cost = between(0, 8);
    plant.UseBatch = kind_ == FarmKind::ordinary && chance(0.05);
    plant.BatchIrrigationCosts = 2.5;
  }

  void makeLand() {
    std::size_t division = below(landDivisions().size());
    ProgramState state;
    state.FineFactor = factors.at(below(factors.size()));
    if (kind_ == FarmKind::highFactor) {
      division = below(2);
      state.FineFactor = 99;
    } else if (kind_ == FarmKind::manyCrops) {
      state.FineFactor = chance(0.5) ? 1 : 3;
    }
    if (landDivisions().at(division).percentages.size() == 4 && state.FineFactor > 30) state.FineFactor = 12;
    farm_.acres_ = chance(0.5) ? 100 : std::round(between(1, 5000) * 10) / 10;
    farm_.landSplit_ = percentToAcres(landDivision(division), farm_.acres_);
    farm_.netVolume_ = chance(0.05) ? 0 : std::round(farm_.acres_ * between(0, 25)) * farm_.efficiency_;
    farm_.depths_ = volumesToDepths(
        makeWaterSplits(farm_.landSplit_.Count(), farm_.netVolume_, farm_.acres_, state), farm_.landSplit_);
  }

  std::size_t cropCount() {
    std::size_t most = 59;
    const double splits = static_cast<double>(std::max(farm_.depths_.Count(), 1L));
    const auto candidates = [&] {
      double product = splits;
      for (std::int16_t field = 0; field < farm_.landSplit_.Count(); ++field)
        product *= static_cast<double>(most);
      return product;
    };
    while (most > 1 && candidates() > mostCandidates_)
      --most;
    if (kind_ == FarmKind::fewCandidates) most = std::min<std::size_t>(most, 3);
    if (kind_ == FarmKind::manyCrops || chance(0.5)) return most;
    return 1 + below(most);
  }

  void makeCrops() {
    const std::size_t count = cropCount();
    const Crop base = makeCrop();
    for (std::size_t i = 0; i < count; ++i) {
      auto crop = std::make_shared<Crop>(isAlike() ? base.Copy() : makeCrop());
      vary(*crop, i);
      farm_.crops_.Add(std::move(crop));
    }
  }

  /// Whether all crops of the farm are variants of one crop.
  [[nodiscard]] bool isAlike() const {
    return kind_ == FarmKind::neighbourPrices || kind_ == FarmKind::neighbourCosts ||
           kind_ == FarmKind::equalGains || kind_ == FarmKind::equalGainsNoPlant;
  }

  YieldTable makeTable() {
    const int top = static_cast<int>(3 + below(22));
    YieldTable table(top, 11, 22);
    const bool isFlat = kind_ == FarmKind::equalGainsNoPlant || chance(0.05);
    const bool isRelative = chance(0.3);
    for (int rain = 11; rain <= 22; ++rain) {
      const double full = isRelative ? 1 : between(20, 250);
      const double dry = isFlat ? 1 : between(-0.2, 0.9);
      const double bend = kind_ == FarmKind::linearYields ? 1 : between(0.4, 1.4);
      for (int water = 0; water <= top; ++water) {
        const double watered = static_cast<double>(water) / top;
        const double share = dry + (1 - dry) * (watered + (1 - bend) * watered * (1 - watered));
        const double yield = std::max(0.0, full * share);
        table.setCell(water, rain, kind_ == FarmKind::wholeDollars ? std::round(yield) + 2 : yield);
      }
    }
    return table;
  }

  Crop makeCrop() {
    Crop crop;
    crop.cropType = kind_ == FarmKind::fallowOnly ? "Fallow" : cropNames.at(below(cropNames.size()));
    crop.cropUnitsArray = {chance(0.15) ? "ton" : "bu.", "bushels"};
    crop.setYieldTable(makeTable());
    crop.maxYield = between(50, 250);
    crop.price = between(0.5, 12);
    crop.setNormal(crop.maxYield, farm_.rain_);
    inputCosts& costs = crop.inputCosts;
    costs.NOptimal = chance(0.5);
    costs.POptimal = chance(0.5);
    costs.SeedOptimal = chance(0.7);
    costs.NitrogenCost = 0.44;
    costs.PCost = 0.8;
    costs.NitrogenApplied = between(0, 100);
    costs.SeedCost = between(0, 4);
    costs.SeedRate = between(0, 30000);
    costs.Tillage = between(0, 40);
    costs.Herbicide = between(0, 30);
    costs.MiscCost = kind_ == FarmKind::losses ? 4000 : between(0, 200);
    costs.Returns = chance(0.3) ? between(0, 50) : 0;
    costs.HarvestBasePerAcre = 28.58;
    costs.HarvestExceedBu = 74;
    costs.HarvestExceedRate = 0.214;
    if (chance(0.2)) costs.HarvestFlatRate = 0.5;
    if (kind_ == FarmKind::wholeDollars) makeWhole(crop);
    if (kind_ == FarmKind::equalGains || kind_ == FarmKind::equalGainsNoPlant) crop.cropType = "Millet";
    return crop;
  }

  static void makeWhole(Crop& crop) {
    crop.cropType = "Millet";
    crop.cropUnitsArray = {"bu.", "bushels"};
    crop.price = std::round(crop.price);
    crop.normalFactor = 1;
    const double misc = std::round(crop.inputCosts.MiscCost / 50) * 50;
    crop.inputCosts = {};
    crop.inputCosts.MiscCost = misc;
  }

  void vary(Crop& crop, std::size_t number) {
    switch (kind_) {
      case FarmKind::twinCrops:
        if (number > 0 && chance(0.6)) {
          crop = farm_.crops_.Item(static_cast<long>(1 + below(number)))->Copy();
          if (chance(0.3)) crop.soilName = "twin";
        }
        break;
      case FarmKind::neighbourPrices:
        for (std::size_t i = 0; i < number / 2; ++i)
          crop.price = std::nextafter(crop.price, rise);
        break;
      case FarmKind::neighbourCosts:
        for (std::size_t i = 0; i < number; ++i) {
          crop.inputCosts.MiscCost = std::nextafter(crop.inputCosts.MiscCost, rise);
        }
        if (chance(0.5)) crop.price = std::nextafter(crop.price, rise);
        break;
      case FarmKind::zeroPrices:
        crop.price = 0;
        if (chance(0.7)) crop.inputCosts = {};
        break;
      case FarmKind::equalGains:
      case FarmKind::equalGainsNoPlant: {
        const double extra = between(0, 300);
        crop.inputCosts.Returns += extra;
        crop.inputCosts.MiscCost += extra;
        break;
      }
      case FarmKind::faulty:
        if (chance(0.3)) spoil(crop);
        break;
      default:
        break;
    }
  }

  /// Makes a crop faulty: unrealistic numbers, whose sums may overflow, or no table.
  void spoil(Crop& crop) {
    const auto huge = [&] {
      // One draw after the other: the compiler chooses the order within an expression.
      const double power = powerOfTen(300 + static_cast<int>(below(8)));
      const double size = power * between(1, 10);
      return chance(0.5) ? size : -size;
    };
    switch (below(6)) {
      case 0:
        crop.yieldTable.reset();
        break;
      case 1:
        crop.price = huge();
        break;
      case 2:
        crop.inputCosts.MiscCost = huge();
        break;
      case 3:
        crop.inputCosts.Returns = huge();
        crop.inputCosts.MiscCost = huge();
        break;
      case 4:
        crop.inputCosts.SeedCost = huge();
        break;
      default:
        crop.setYieldTable(YieldTable(12, 11, static_cast<int>(11 + below(11))));
        break;
    }
  }

  RandomFarm& farm_;
  FarmKind kind_;
  double mostCandidates_;
  std::mt19937_64 random_;
};

RandomFarm::RandomFarm(FarmKind kind, std::uint64_t seed, double mostCandidates) {
  Maker(*this, kind, seed, mostCandidates).make();
}

}  // namespace verdalis::reference
