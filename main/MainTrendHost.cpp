#include "main/MainTrendHost.h"

#include <utility>

#include "main/frmMain.h"

namespace verdalis {

MainTrendHost::MainTrendHost(frmMain& window, SecondaryWindows& windows, EventPumpService& eventPump,
                             std::filesystem::path home)
    : window_(window), windows_(windows), eventPump_(eventPump), home_(std::move(home)) {}

std::size_t MainTrendHost::rowCount() const {
  return window_.pneMain.cr.size();
}

std::shared_ptr<Crop> MainTrendHost::rowCrop(std::size_t row) const {
  return row < rowCount() ? window_.pneMain.cr[row]->Crop : nullptr;
}

void MainTrendHost::setPrice(std::size_t row, double price) {
  window_.pneMain.cr.at(row)->setPrice(price);
}

void MainTrendHost::setMaxYield(std::size_t row, double yield) {
  window_.pneMain.cr.at(row)->setMaxYield(yield);
}

IrrigationCosts& MainTrendHost::tempIrrigationCosts() {
  return *window_.tempIrrigationCosts;
}

std::string MainTrendHost::txtEff() const {
  return window_.pneMain.txtEff.text();
}

void MainTrendHost::setTxtEff(const std::string& text) {
  window_.pneMain.txtEff.setText(text);
}

void MainTrendHost::setTxtAnnRain(const std::string& text) {
  window_.pneMain.txtAnnRain.setText(text);
}

std::string MainTrendHost::txtArraySize() const {
  return window_.pneMain.txtArraySize.text();
}

BestMix MainTrendHost::RunScenario(const std::string& statusText) {
  return window_.RunScenario(statusText);
}

RunHooks& MainTrendHost::hooks() {
  if (!hooks_ || listener_ != window_.runListener) {
    listener_ = window_.runListener;
    hooks_ = std::make_unique<ProgressHooks>(windows_.updating(), eventPump_, listener_);
  }
  return *hooks_;
}

bool MainTrendHost::isActive(std::size_t row) const {
  return row < rowCount() && window_.pneMain.cr[row]->isActive();
}

std::shared_ptr<Crop> MainTrendHost::findCropByName(const std::string& name) const {
  return window_.pneMain.findCropByName(name);
}

bool MainTrendHost::ready() const {
  return window_.pneMain.ready();
}

bool MainTrendHost::trendEnabled() const {
  return window_.TrendEnabled;
}

void MainTrendHost::saveInputs() {
  window_.saveInputs();
}

void MainTrendHost::loadInputs() {
  // If the file of saved inputs is cut off, the values before the cut are used.
  static_cast<void>(window_.loadInputs());
}

void MainTrendHost::SetMainInfo(const std::string& text) {
  window_.SetMainInfo(text);
}

void MainTrendHost::showPane(Frame& pane) {
  window_.showPane(pane);
}

void MainTrendHost::backToMain() {
  window_.showPane(window_.pneMain);
  window_.SetMainInfo(window_.strMainInfo);
}

void MainTrendHost::backToResults() {
  window_.showPane(window_.pneResults);
}

}  // namespace verdalis
