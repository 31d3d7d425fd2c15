#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "screens/RunScenario.h"
#include "tests/support/Run.h"
#include "text/encoding.h"
#include "trend/TrendHost.h"

namespace verdalis::testing {

/// A fake main window: a farm with its live inputs, a saved copy of them, and a log of the calls.
class FakeTrendHost : public TrendHost {
 public:
  explicit FakeTrendHost(ProgramState& state) : state_(state) {
    inputs.txtAnnRain = "16";
    inputs.txtEff = "80";
    inputs.txtArraySize = "10";
    inputs.Option1.at(0) = true;
    inputs.txtArea = "100";
    inputs.txtMax = "12";
    getVolume(inputs);
  }

  ScenarioInputs inputs;
  CropScenario library;
  IrrigationCosts plant;
  Recorder recorder;
  std::vector<std::string> log;       ///< save, load, and the panes shown
  std::vector<std::string> statuses;  ///< Of the runs
  std::vector<std::string> efficiencies;
  std::string mainInfo;
  bool isReady = true;
  bool isTrendEnabled = false;
  std::function<void()> onRun = [] {};                ///< At the start of a run
  std::function<BestMix(const std::string&)> result;  ///< In place of a real run

  /// Adds a crop with a ticked row.
  Crop& add(const Crop& crop, bool ticked = true) {
    auto shared = std::make_shared<Crop>(crop);
    library.Add(shared);
    inputs.cr.push_back({ticked, generalText(crop.price), generalText(crop.maxYield)});
    return *shared;
  }

  std::size_t rowCount() const override { return library.NewEnum().size(); }
  std::shared_ptr<Crop> rowCrop(std::size_t row) const override { return library.NewEnum().at(row); }
  void setPrice(std::size_t row, double price) override {
    inputs.cr.at(row).txtPrice = generalText(price);
    rowCrop(row)->price = price;
  }
  void setMaxYield(std::size_t row, double yield) override {
    inputs.cr.at(row).txtMaxYield = generalText(yield);
    rowCrop(row)->maxYield = yield;
  }
  IrrigationCosts& tempIrrigationCosts() override { return plant; }
  std::string txtEff() const override { return inputs.txtEff; }
  void setTxtEff(const std::string& text) override { inputs.txtEff = text; }
  void setTxtAnnRain(const std::string& text) override { inputs.txtAnnRain = text; }
  std::string txtArraySize() const override { return inputs.txtArraySize; }

  BestMix RunScenario(const std::string& statusText) override {
    statuses.push_back(statusText);
    onRun();
    if (result) return result(statusText);
    return verdalis::RunScenario(inputs, library, std::shared_ptr<IrrigationCosts>(&plant, [](auto*) {}),
                                 state_, recorder, statusText);
  }
  RunHooks& hooks() override { return recorder; }

  bool isActive(std::size_t row) const override { return inputs.cr.at(row).isActive; }
  std::shared_ptr<Crop> findCropByName(const std::string& name) const override {
    std::shared_ptr<Crop> found;
    for (const auto& crop : library) {
      if (lowerCase(crop->cropType) == lowerCase(name)) found = crop;
    }
    return found;
  }
  bool ready() const override { return isReady; }
  bool trendEnabled() const override { return isTrendEnabled; }

  void saveInputs() override {
    log.emplace_back("save");
    saved_ = Saved{inputs, plant, {}};
    for (const auto& crop : library)
      saved_->crops.push_back(crop->Copy());
  }
  void loadInputs() override {
    log.emplace_back("load");
    if (!saved_) return;
    inputs = saved_->inputs;
    plant = saved_->plant;
    for (std::size_t i = 0; i < saved_->crops.size(); ++i) {
      // The file holds prices, yields and costs, but nothing about trends.
      const bool useBatch = rowCrop(i)->inputCosts.UseBatch;
      const double batchCosts = rowCrop(i)->inputCosts.BatchGeneralCosts;
      rowCrop(i)->price = saved_->crops[i].price;
      rowCrop(i)->maxYield = saved_->crops[i].maxYield;
      rowCrop(i)->inputCosts.UseBatch = useBatch;
      rowCrop(i)->inputCosts.BatchGeneralCosts = batchCosts;
    }
  }

  void SetMainInfo(const std::string& text) override { mainInfo = text; }
  void showPane(Frame& pane) override { log.push_back(pane.name()); }
  void backToMain() override {
    log.emplace_back("pneMain");
    mainInfo = "home";
  }
  void backToResults() override { log.emplace_back("pneResults"); }
  std::filesystem::path home() const override { return "/home/farm"; }

  /// The calls since the last take().
  std::vector<std::string> take() { return std::exchange(log, {}); }

 private:
  struct Saved {
    ScenarioInputs inputs;
    IrrigationCosts plant;
    std::vector<Crop> crops;
  };

  ProgramState& state_;
  std::optional<Saved> saved_;
};

}  // namespace verdalis::testing
