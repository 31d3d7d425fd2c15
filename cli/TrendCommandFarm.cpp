#include "cli/TrendCommandFarm.h"

#include <utility>

#include "cli/home.h"

namespace verdalis {
namespace {

ProgramFiles filesOf(const FarmRequest& request) {
  ProgramFiles files(request.home ? std::filesystem::path(*request.home) : homeFolder(homePlaces()));
  if (request.inputs) files.inputs = *request.inputs;
  files.savesInputs = false;
  return files;
}

}  // namespace

TrendFarm::TrendFarm(const FarmRequest& request, TypedFarm& typed)
    : messages_(untold_),
      platform_(messages_),
      services_(platform_.services()),
      program_(services_, filesOf(request)) {
  program_.start();
  // From here on a run-time error ends the command.
  program_.desk.onRunTimeError = nullptr;
  host_ = &main().trendHost;
  if (request.defaults) main().pneMain.Command7.click();
  take(typed.inputs());
  program_.state.FineFactor = typed.state().FineFactor;
  static_cast<void>(platform_.takeRefusal());  // the texts have been accepted where they were typed
}

void TrendFarm::take(const ScenarioInputs& inputs) {
  MainPane& pane = main().pneMain;
  pane.txtArea.setText(inputs.txtArea);
  pane.txtMax.setText(inputs.txtMax);
  pane.lblVolume.setCaption(inputs.lblVolume);
  pane.txtAnnRain.setText(inputs.txtAnnRain);
  pane.txtEff.setText(inputs.txtEff);
  pane.txtSoil.setText(inputs.currentSoil);
  pane.currentSoil = inputs.currentSoil;
  pane.txtArraySize.setText(inputs.txtArraySize);
  if (pane.chkNoSplit.checked() != inputs.chkNoSplit) pane.chkNoSplit.click();
  for (std::size_t i = 0; i < inputs.Option1.size(); ++i) {
    if (inputs.Option1.at(i)) pane.Option1[i]->click();
  }
  for (std::size_t i = 0; i < inputs.cr.size() && i < pane.cr.size(); ++i) {
    CropRecord& record = *pane.cr[i];
    record.txtPrice.setText(inputs.cr[i].txtPrice);
    record.txtMaxYield.setText(inputs.cr[i].txtMaxYield);
    if (record.isActive() != inputs.cr[i].isActive) record.chkCrop.click();
  }
}

void TrendFarm::listen(RunHooks& progress) {
  progress_ = &progress;
  main().runListener = &progress;
}

const std::vector<Results::Option>& TrendFarm::evaluate() {
  main().pneMain.Command1.click();
  if (const std::optional<std::string> refusal = platform_.takeRefusal()) throw Refusal(*refusal);
  if (state().CancelRequested) throw Cancelled();
  return main().theResults.FieldCollection;
}

std::shared_ptr<Crop> TrendFarm::firstTickedCrop() {
  for (std::size_t row = 0; row < rowCount(); ++row) {
    if (host().isActive(row)) return rowCrop(row);
  }
  return nullptr;
}

bool TrendFarm::isTrended(std::int16_t variable, const std::string& cropType) {
  return main().trends.pneBatchSetup1.theBatchResults.theResults.CheckVariable(
      variable, static_cast<std::int16_t>(GetCropIndex(*this, cropType).row));
}

BestMix TrendFarm::RunScenario(const std::string& statusText) {
  BestMix best = host().RunScenario(statusText);
  runs_.push_back(describeRun({}, state(), 0));
  return best;
}

}  // namespace verdalis
