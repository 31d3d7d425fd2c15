#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "engine/BestMix.h"
#include "engine/RunHooks.h"
#include "model/CropScenario.h"
#include "screens/RunScenario.h"
#include "screens/ScenarioInputs.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"
#include "text/numbers.h"

namespace verdalis::testing {

/// Run hooks that record the calls and let a test act during them.
class Recorder : public RunHooks {
 public:
  std::vector<std::string> titles;
  std::vector<double> steps;
  std::vector<std::string> descriptions;
  int updates = 0;
  int pumps = 0;
  int closed = 0;
  std::function<void(int)> onPump = [](int) {};    ///< Gets the number of the call, from 1
  std::function<void(int)> onUpdate = [](int) {};  ///< Gets the number of the call, from 1
  std::function<void()> onShow = [] {};
  std::function<void()> onClose = [] {};

  void showProgress(const std::string& title) override {
    titles.push_back(title);
    onShow();
  }
  void setProgress(double count, const std::string& description) override {
    steps.push_back(count);
    descriptions.push_back(description);
  }
  void update() override { onUpdate(++updates); }
  void pumpEvents() override { onPump(++pumps); }
  void closeProgress() override {
    ++closed;
    onClose();
  }
};

/// All inputs of a run, as the window would hold them.
struct FarmRun {
  ScenarioInputs inputs;
  CropScenario library;
  std::shared_ptr<IrrigationCosts> plant = std::make_shared<IrrigationCosts>(defaultPlant());
  ProgramState state;
  Recorder hooks;

  /// Adds a crop to the library, with a ticked row that shows its price and yield.
  Crop& add(const Crop& crop) {
    auto shared = std::make_shared<Crop>(crop);
    library.Add(shared);
    inputs.cr.push_back({true, generalText(crop.price), generalText(crop.maxYield)});
    return *shared;
  }

  /// Selects a land split.
  void divide(std::size_t index) {
    inputs.Option1 = {};
    inputs.Option1.at(index) = true;
  }

  /// Sets acres and inches; the volume follows.
  void water(const std::string& acres, const std::string& inches) {
    inputs.txtArea = acres;
    inputs.txtMax = inches;
    getVolume(inputs);
  }

  BestMix run(const std::string& description = {}) {
    return RunScenario(inputs, library, plant, state, hooks, description);
  }
};

/// 100 acres, 12 inches of water, 16 inches of rain, 85 % efficiency, "50 - 50", no crop yet.
inline std::unique_ptr<FarmRun> typicalFarm() {
  auto farm = std::make_unique<FarmRun>();
  farm->inputs.txtAnnRain = "16";
  farm->divide(0);
  farm->water("100", "12");
  return farm;
}

/// The typical farm with Corn and Wheat.
inline std::unique_ptr<FarmRun> cornAndWheatFarm() {
  auto farm = typicalFarm();
  farm->add(cornCrop());
  farm->add(wheatCrop());
  return farm;
}

/// A crop that earns `perAcre` dollars per acre whatever its water. Its yield is 2 units per acre.
inline Crop steadyCrop(const std::string& cropType, double perAcre) {
  Crop crop = namedCrop(cropType);
  crop.maxYield = 2;
  crop.setYieldTable(tableOf(11, {std::vector<double>(11, 2)}));
  crop.inputCosts.Returns = perAcre;
  return crop;
}

/// The options of a ranking, best first, including duplicates but not placeholders. The ranking is unchanged.
inline std::vector<BestMix::Option> optionsOf(const BestMix& best) {
  BestMix copy = best.Copy();
  std::vector<BestMix::Option> options;
  for (const auto& option : copy.returnCollection(false)) {
    if (!option->isNew) options.push_back(option);
  }
  return options;
}

/// The contents of an option, every number with all its digits.
inline std::string describe(FieldCollection& option) {
  std::string text;
  for (const auto& field : option) {
    text += field->theCrop->cropType + " " + generalText(field->acres) + " ac " + generalText(field->Depth) +
            " in " + generalText(field->theCrop->Yield) + " yield; ";
  }
  return text + "$" + generalText(option.getProfit());
}

inline std::vector<std::string> describe(const BestMix& best) {
  std::vector<std::string> lines;
  for (const auto& option : optionsOf(best))
    lines.push_back(describe(*option));
  return lines;
}

/// The crops of an option in field order, such as "Corn, Wheat".
inline std::string cropsOf(const FieldCollection& option) {
  std::string text;
  for (const auto& field : option)
    text += (text.empty() ? "" : ", ") + field->theCrop->cropType;
  return text;
}

}  // namespace verdalis::testing
