#include "cli/BatchRow.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/FarmOptions.h"
#include "model/LandDivision.h"
#include "screens/CropRecord.h"
#include "screens/IrrigCostsPane.h"
#include "screens/MainPane.h"
#include "screens/readScenario.h"
#include "screens/wishText.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

using Kind = BatchColumnKind;

void refuseIf(const std::optional<std::string>& fault) {
  if (fault) throw Refusal(*fault);
}

/// The texts of a cell, separated by ";", without the blanks around them.
std::vector<std::string> listOf(std::string_view cell) {
  std::vector<std::string> texts;
  while (!cell.empty()) {
    const std::size_t end = std::min(cell.find(';'), cell.size());
    std::string_view text = cell.substr(0, end);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    if (!text.empty()) texts.emplace_back(text);
    cell.remove_prefix(std::min(end + 1, cell.size()));
  }
  return texts;
}

/// Applies the cells of a row.
class RowTyping {
 public:
  explicit RowTyping(const BatchBase& base)
      : base_(base),
        inputs_(base.inputs),
        factor_(base.factor),
        plant_(base.plant),
        farmCrops_(base.farmCrops),
        ticked_(base.crops),
        wishes_(base.wishes) {}

  void type(const BatchColumn& column, const std::string& text) {
    try {
      set(column, text);
    } catch (const Refusal& refusal) {
      throw Refusal(column.title + " " + quoteForMessage(text) + ": " + refusal.what());
    }
  }

  BatchFarm finish() {
    for (const std::size_t row : ticked_)
      inputs_.cr.at(row).isActive = true;
    requireReady(inputs_);
    takeWishes();
    return {readFarm(inputs_, base_.library, plant_, factor_), std::move(warnings_)};
  }

 private:
  void set(const BatchColumn& column, const std::string& text) {
    switch (column.kind) {
      case Kind::name:
      case Kind::textWithoutEffect:
        return;
      case Kind::area:
        inputs_.txtArea = text;
        getVolume(inputs_);
        return;
      case Kind::inches:
        setInches(text);
        return;
      case Kind::rain:
        inputs_.txtAnnRain = text;
        return;
      case Kind::efficiency:
        refuseIf(efficiencyFault(text));
        inputs_.txtEff = text;
        return;
      case Kind::soil:
        inputs_.currentSoil = text;
        return;
      case Kind::landSplitButton:
        pressButton(column.index, text);
        return;
      case Kind::noSplitBox:
        inputs_.chkNoSplit = onOrOff(text);
        return;
      case Kind::optionsToKeep:
        inputs_.txtArraySize = text;
        return;
      case Kind::switchWithoutEffect:
        static_cast<void>(onOrOff(text));
        return;
      case Kind::tick:
        inputs_.cr.at(column.index).isActive = onOrOff(text);
        std::erase(farmCrops_, column.index);
        return;
      default:
        setOption(column, text);
    }
  }

  /// Sets a column that corresponds to an option of the command line.
  void setOption(const BatchColumn& column, const std::string& text) {
    switch (column.kind) {
      case Kind::price:
        refuseIf(priceFault(*cropOf(column.index), text));
        inputs_.cr.at(column.index).txtPrice = text;
        return;
      case Kind::maxYield:
        refuseIf(maxYieldFault(*cropOf(column.index), text));
        inputs_.cr.at(column.index).txtMaxYield = text;
        return;
      case Kind::split:
        chooseSplit(landSplitIndex(text));
        return;
      case Kind::crops:
        chooseCrops(text);
        return;
      case Kind::noSplit:
        if (text != "True" && text != "False") throw Refusal("Please enter True or False");
        inputs_.chkNoSplit = text == "True";
        return;
      case Kind::keep:
        requireKept(text);
        inputs_.txtArraySize = text;
        return;
      case Kind::factor:
        setFactor(text);
        return;
      case Kind::fuel:
        refuseIf(fuelCostFault(base_.plant.FuelType, text));
        requireNumber(text);
        plant_.cost = Val(text);
        return;
      default:
        inputs_.wishes.clear();
        wishes_ = listOf(text);
    }
  }

  [[nodiscard]] const std::shared_ptr<Crop>& cropOf(std::size_t row) const {
    return base_.library.Item(static_cast<long>(row) + 1);
  }

  void setInches(const std::string& text) {
    const bool isNew = text != inputs_.txtMax;
    inputs_.txtMax = text;
    getVolume(inputs_);
    if (!isNew) return;
    if (const auto warning = capacityWarning(plant_, inputs_.txtArea, text))
      warnings_.push_back(warning->title + ": " + warning->text);
  }

  void setFactor(const std::string& text) {
    const FineFactorEntry entry = requireFactor(text);
    if (entry.message) warnings_.push_back(entry.message->title + ": " + entry.message->text);
    factor_ = *entry.factor;
  }

  void pressButton(std::size_t index, const std::string& text) {
    if (onOrOff(text)) {
      chooseSplit(index);
    } else if (inputs_.Option1.at(index)) {
      throw Refusal("An option button is turned off by turning on another one.");
    }
  }

  void chooseSplit(std::size_t index) {
    inputs_.Option1 = {};
    inputs_.Option1.at(index) = true;
  }

  void chooseCrops(const std::string& text) {
    for (const std::size_t row : farmCrops_)
      inputs_.cr.at(row).isActive = false;
    ticked_.clear();
    for (const std::string& name : listOf(text)) {
      const std::optional<std::size_t> row = findCrop(base_.names, name);
      if (!row) throw Refusal(unknownCrop(base_.names, name));
      ticked_.push_back(*row);
    }
  }

  /// Reads the wishes of the row. They depend on its crops and land split.
  void takeWishes() {
    if (inputs_.wishes.empty() && wishes_.empty()) return;
    WishContext context{base_.names, {}, 0};
    for (std::size_t row = 0; row < inputs_.cr.size() && row < base_.names.size(); ++row) {
      if (inputs_.cr[row].isActive) context.chosen.push_back(base_.names[row]);
    }
    context.fields = getLandSplit(inputs_.Option1).getSplits().size();
    requireFitting(inputs_.wishes, context);
    inputs_.wishes = readWishes("wish", wishes_, context, std::move(inputs_.wishes));
  }

  const BatchBase& base_;
  ScenarioInputs inputs_;
  std::int16_t factor_;
  IrrigationCosts plant_;
  std::vector<std::size_t> farmCrops_;  ///< Without those that a cell has set
  std::vector<std::size_t> ticked_;
  std::vector<std::string> wishes_;
  std::vector<std::string> warnings_;
};

}  // namespace

BatchFarm makeBatchFarm(const BatchBase& base, const std::vector<BatchColumn>& columns,
                        const std::vector<std::string>& cells) {
  RowTyping typing(base);
  for (const BatchColumn& column : columns) {
    const std::string& text = cells.at(column.position);
    if (!text.empty()) typing.type(column, text);
  }
  return typing.finish();
}

}  // namespace verdalis
