#include "selfcheck/OptionBytes.h"

#include <bit>
#include <cstdint>
#include <initializer_list>

namespace verdalis::reference {
namespace {

class Bytes {
 public:
  void add(std::uint64_t bits) {
    for (int shift = 0; shift < 64; shift += 8)
      text_.push_back(static_cast<char>((bits >> shift) & 0xFFU));
  }
  void add(std::initializer_list<double> values) {
    for (const double value : values)
      add(std::bit_cast<std::uint64_t>(value));
  }
  void add(std::initializer_list<bool> flags) {
    for (const bool flag : flags)
      text_.push_back(flag ? 'T' : 'F');
  }
  void add(const std::string& text) {
    add(text.size());
    text_ += text;
  }
  void add(std::initializer_list<const Number*> numbers) {
    for (const Number* number : numbers) {
      add({number->isEmpty()});
      add({static_cast<double>(*number)});
    }
  }
  [[nodiscard]] std::string take() { return std::move(text_); }

 private:
  std::string text_;
};

void addCosts(Bytes& bytes, const inputCosts& c) {
  bytes.add({c.NitrogenCost, c.NitrogenApplied, c.PCost, c.PApplied, c.SeedCost, c.SeedRate, c.Herbicide,
             c.Insecticide, c.Tillage, c.Planting, c.FertilizerApplication, c.HerbicideApplication,
             c.InsecticideApplication, c.AlfalfaFlat, c.Returns, c.MiscCost, c.NPerAcre, c.PPerAcre,
             c.BatchGeneralCosts});
  bytes.add({c.NOptimal, c.POptimal, c.SeedOptimal, c.UseBatch});
  bytes.add({&c.HarvestBasePerAcre, &c.HarvestExceedBu, &c.HarvestExceedRate, &c.HarvestHauling,
             &c.HarvestFlatRate, &c.AlfalfaSwathing, &c.AlfalfaSwathingNum, &c.AlfalfaRaking,
             &c.AlfalfaRakingNum, &c.AlfalfaBaling, &c.AlfalfaBalingNum, &c.AlfalfaPerTon, &c.AlfalfaStand});
  bytes.add(c.theString);
}

void addCrop(Bytes& bytes, const Crop& crop) {
  for (const std::string* text : {&crop.cropType, &crop.cropUnits, &crop.soilName})
    bytes.add(*text);
  for (const std::string& unit : crop.cropUnitsArray)
    bytes.add(unit);
  bytes.add({crop.price, crop.inputCost, crop.maxYield, crop.normalFactor, crop.Yield});
  bytes.add({crop.Custom});
  bytes.add(
      std::bit_cast<std::uintptr_t>(crop.yieldTable.get()));  // the table is shared by all copies of the crop
  addCosts(bytes, crop.inputCosts);
}

void addPlant(Bytes& bytes, const IrrigationCosts& plant) {
  bytes.add({plant.GPM, plant.Lift, plant.PSI, plant.LaborPerHour, plant.FixedPerAcre,
             plant.RepairsPerAcreInch, plant.NPC, plant.cost, plant.dblEstHours, plant.dblMaxInches,
             plant.hours, plant.BatchIrrigationCosts});
  bytes.add({plant.active, plant.UseBatch});
  bytes.add(plant.FuelType);
}

}  // namespace

std::string optionBytes(const FieldCollection& option) {
  Bytes bytes;
  bytes.add({option.isNothing, option.isNew});
  bytes.add({option.TotalCost});
  bytes.add(option.theVariable.size() + option.theValue.size() + option.theUnits.size());
  for (const auto& field : option) {
    bytes.add({field->acres, field->Depth, field->annualRain, field->TotalCost, field->TotalReturn});
    addCrop(bytes, *field->theCrop);
    addPlant(bytes, *field->irrigCosts);
  }
  return bytes.take();
}

}  // namespace verdalis::reference
