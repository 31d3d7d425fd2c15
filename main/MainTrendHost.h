#pragma once

#include "screens/frmUpdating.h"
#include "trend/TrendHost.h"

namespace verdalis {

class frmMain;
class SecondaryWindows;

/// Gives the trends access to the main window.
class MainTrendHost : public TrendHost {
 public:
  MainTrendHost(frmMain& window, SecondaryWindows& windows, EventPumpService& eventPump,
                std::filesystem::path home);

  [[nodiscard]] std::size_t rowCount() const override;
  [[nodiscard]] std::shared_ptr<Crop> rowCrop(std::size_t row) const override;
  void setPrice(std::size_t row, double price) override;
  void setMaxYield(std::size_t row, double yield) override;
  IrrigationCosts& tempIrrigationCosts() override;
  [[nodiscard]] std::string txtEff() const override;
  void setTxtEff(const std::string& text) override;
  void setTxtAnnRain(const std::string& text) override;
  [[nodiscard]] std::string txtArraySize() const override;
  BestMix RunScenario(const std::string& statusText) override;
  RunHooks& hooks() override;
  [[nodiscard]] bool isActive(std::size_t row) const override;
  [[nodiscard]] std::shared_ptr<Crop> findCropByName(const std::string& name) const override;
  [[nodiscard]] bool ready() const override;
  [[nodiscard]] bool trendEnabled() const override;
  void saveInputs() override;
  void loadInputs() override;
  void SetMainInfo(const std::string& text) override;
  void showPane(Frame& pane) override;
  void backToMain() override;
  void backToResults() override;
  [[nodiscard]] std::filesystem::path home() const override { return home_; }

 private:
  frmMain& window_;
  SecondaryWindows& windows_;
  EventPumpService& eventPump_;
  std::filesystem::path home_;
  std::unique_ptr<ProgressHooks> hooks_;
  RunHooks* listener_ = nullptr;  ///< The listener of hooks_
};

}  // namespace verdalis
