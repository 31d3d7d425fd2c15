#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string_view>

#include "main/Comparison.h"
#include "model/LandDivision.h"
#include "screens/InputCostsTable.h"
#include "screens/IrrigCostsPane.h"
#include "screens/MainPane.h"
#include "screens/frmOptions.h"
#include "screens/wishText.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The value of an input.
struct Value {
  std::string text;  ///< As it is shown
  std::string key;   ///< The same for values that have the same effect
};

using Reading = std::optional<Value>;  ///< Nothing if the option does not have the input
using Reader = std::function<Reading(const SavedOption&)>;

Value value(const std::string& text) {
  return {text.empty() ? noValue : text, text};
}

Value value(double number) {
  return value(generalText(number));
}

/// A text that a person has typed. "6.50" is the same number as "6.5"; a number ends at a comma.
Value typed(const std::string& text) {
  const bool number = isNumeric(text) && text.find(',') == std::string::npos;
  return {text.empty() ? noValue : text, number ? generalText(toDouble(text)) : text};
}

Value yesOrNo(bool on) {
  return value(on ? "yes" : "no");
}

/// Collects the rows of the inputs that differ.
class Differences {
 public:
  explicit Differences(const std::vector<ComparedOption>& options) : options_(options) {}

  /// Whether an option that does not have the input differs from those that have it.
  enum class Absence { differs, isIgnored };

  void add(const std::string& head, Absence absence, const Reader& read) {
    std::vector<Reading> readings;
    for (const ComparedOption& option : options_)
      readings.push_back(read(*option.saved));
    const Reading* first = nullptr;
    bool differ = false;
    for (const Reading& reading : readings) {
      if (!reading && absence == Absence::isIgnored) continue;
      if (first == nullptr) first = &reading;
      differ =
          differ || reading.has_value() != first->has_value() || (reading && reading->key != (*first)->key);
    }
    if (!differ) return;
    ComparisonRow row{head, {}};
    for (const Reading& reading : readings)
      row.cells.push_back(reading ? reading->text : noValue);
    rows_.push_back(std::move(row));
  }

  void add(const std::string& head, const Reader& read) { add(head, Absence::differs, read); }

  [[nodiscard]] const std::vector<ComparedOption>& options() const { return options_; }
  [[nodiscard]] std::vector<ComparisonRow> take() { return std::move(rows_); }

 private:
  const std::vector<ComparedOption>& options_;
  std::vector<ComparisonRow> rows_;
};

/// A label with its unit in brackets, unless it names the unit itself. What is counted "per" something is
/// money.
std::string headOf(std::string_view label, std::string_view unit) {
  std::string head = captionHead(label);
  if (unit.empty() || head.find(unit) != std::string::npos) return head;
  return head + (unit.front() == '/' ? " ($ " : " (") + std::string(unit) + ")";
}

void addFarm(Differences& differences) {
  using Text = std::pair<const char*, std::string DocumentFarm::*>;
  static constexpr std::array<Text, 5> texts{{{"txtArea", &DocumentFarm::txtArea},
                                              {"txtMax", &DocumentFarm::txtMax},
                                              {"txtAnnRain", &DocumentFarm::txtAnnRain},
                                              {"txtEff", &DocumentFarm::txtEff},
                                              {"txtSoil", &DocumentFarm::txtSoil}}};
  for (const auto& [control, text] : texts) {
    differences.add(inputHead(control),
                    [member = text](const SavedOption& saved) { return typed(saved.inputs.farm.*member); });
  }
  differences.add(inputHead("Option1"), [](const SavedOption& saved) -> Reading {
    const std::optional<std::size_t>& split = saved.inputs.farm.split;
    if (!split || *split >= landDivisions().size()) return std::nullopt;
    return value(captionHead(landDivisions().at(*split).caption));
  });
  differences.add(MainPane::noSplitCaption,
                  [](const SavedOption& saved) { return yesOrNo(saved.inputs.farm.noSplit); });
}

Value wishesOf(const SavedOption& saved) {
  std::vector<std::string> texts;
  for (const DocumentWish& wish : saved.inputs.wishes)
    texts.push_back(wishText(wish.wish));
  const auto joined = [](const std::vector<std::string>& parts) {
    std::string all;
    for (const std::string& part : parts)
      all += (all.empty() ? "" : "; ") + part;
    return all;
  };
  Value wishes = value(joined(texts));
  std::sort(texts.begin(), texts.end());  // their order has no effect
  wishes.key = joined(texts);
  return wishes;
}

void addOptions(Differences& differences) {
  differences.add(MainPane::keepCaption,
                  [](const SavedOption& saved) { return typed(saved.inputs.options.keep); });
  differences.add(frmOptions::factorCaption, [](const SavedOption& saved) {
    return value(static_cast<double>(saved.inputs.options.factor));
  });
  differences.add("Only the best option of each mix of crops",
                  [](const SavedOption& saved) { return yesOrNo(saved.inputs.options.mixes); });
  differences.add("Wishes", wishesOf);
}

/// A text that is no fuel leaves the plant its former performance.
Value fuelOf(const IrrigationCosts& plant) {
  Value fuel = value(plant.FuelType);
  if (fuelPerformance(plant.FuelType) != plant.NPC) {
    fuel.text += " (performance " + generalText(plant.NPC) + ")";
    fuel.key = fuel.text;
  }
  return fuel;
}

void addPlant(Differences& differences) {
  const std::string title(IrrigCostsPane::title);
  differences.add(title + ": Applied",
                  [](const SavedOption& saved) { return yesOrNo(saved.inputs.plant.plant.active); });
  for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
    const std::string_view unit = field.row.unit.empty() ? field.row.unitHint : field.row.unit;
    differences.add(title + ": " + headOf(field.row.label, unit),
                    [member = field.value](const SavedOption& saved) {
                      const IrrigationCosts& plant = saved.inputs.plant.plant;
                      return member == nullptr ? fuelOf(plant) : value(plant.*member);
                    });
  }
}

const DocumentCrop* cropNamed(const std::string& name, const SavedOption& saved) {
  for (const auto& crop : saved.inputs.crops) {
    if (crop->name == name) return crop.get();
  }
  return nullptr;
}

/// The crops of all options, in order of first appearance.
std::vector<std::string> cropNames(const std::vector<ComparedOption>& options) {
  std::vector<std::string> names;
  for (const ComparedOption& option : options) {
    for (const auto& crop : option.saved->inputs.crops) {
      if (std::find(names.begin(), names.end(), crop->name) == names.end()) names.push_back(crop->name);
    }
  }
  return names;
}

std::string costHead(const InputCostsField& field) {
  std::string head;
  if (field.row.group == harvestGroup || field.row.group == forageHarvestGroup) {
    // "Flat rate:" alone does not tell of what.
    head = std::string(InputCostsPane::groups()[static_cast<std::size_t>(field.row.group)].heading) + ", ";
  }
  std::string label = captionHead(field.row.label);
  if (!field.row.column.empty()) label += ", " + std::string(field.row.column);
  const bool perUnit = field.row.unit.empty() && field.unitControl != nullptr && field.shown == Shown::money;
  return head + headOf(label, perUnit ? "/ unit" : field.row.unit);
}

Value costOf(const InputCostsField& field, const inputCosts& costs) {
  if (field.optimalFlag != nullptr && costs.*field.optimalFlag) return value("optimal");
  const double number = field.figure.value(costs);
  // Without a life of stand, pricing stores one year.
  if (field.figure == CostField(&inputCosts::AlfalfaStand) && number == 0) return value(1);
  return value(number);
}

Value amount(const std::string& text, const std::optional<double>& inForce) {
  return inForce ? value(*inForce) : typed(text);
}

void addCrops(Differences& differences) {
  for (const std::string& name : cropNames(differences.options())) {
    const auto add = [&](const std::string& head, Differences::Absence absence,
                         const std::function<Value(const DocumentCrop&)>& read) {
      differences.add(name + ": " + head, absence, [&](const SavedOption& saved) -> Reading {
        const DocumentCrop* crop = cropNamed(name, saved);
        return crop == nullptr ? Reading() : read(*crop);
      });
    };
    using enum Differences::Absence;
    add("Chosen", differs, [](const DocumentCrop& crop) { return yesOrNo(crop.chosen); });
    add(captionHead(cropColumns[0].caption), isIgnored,
        [](const DocumentCrop& crop) { return amount(crop.price, crop.priceInForce); });
    add(captionHead(cropColumns[2].caption), isIgnored,
        [](const DocumentCrop& crop) { return amount(crop.maxYield, crop.maxYieldInForce); });
    for (const InputCostsField& field : InputCostsPane::fields()) {
      add(costHead(field), isIgnored,
          [&field](const DocumentCrop& crop) { return costOf(field, crop.costs); });
    }
  }
}

void addTrends(Differences& differences) {
  std::vector<std::string> variables;
  for (const ComparedOption& option : differences.options()) {
    for (const SavedOptionTrend& trend : option.saved->trend) {
      if (std::find(variables.begin(), variables.end(), trend.variable) == variables.end())
        variables.push_back(trend.variable);
    }
  }
  for (const std::string& variable : variables) {
    differences.add("Trend: " + variable, [&](const SavedOption& saved) -> Reading {
      for (const SavedOptionTrend& trend : saved.trend) {
        if (trend.variable != variable) continue;
        return value(trend.before + generalText(trend.value) + (trend.after.empty() ? "" : " ") +
                     trend.after);
      }
      return std::nullopt;
    });
  }
}

}  // namespace

std::string captionHead(std::string_view caption) {
  const std::size_t end = caption.find_last_not_of(": ");
  return shownCaption(caption.substr(0, end == std::string_view::npos ? 0 : end + 1));
}

std::string inputHead(std::string_view control) {
  const auto fields = MainPane::fields();
  const auto row = std::find_if(fields.begin(), fields.end(),
                                [&](const FieldRow& field) { return field.control == control; });
  return captionHead(row->label);
}

std::vector<ComparisonRow> differingInputs(const std::vector<ComparedOption>& options) {
  Differences differences(options);
  addFarm(differences);
  addOptions(differences);
  addPlant(differences);
  addCrops(differences);
  addTrends(differences);
  return differences.take();
}

}  // namespace verdalis
