#include "screens/frmUpdating.h"

namespace verdalis {

frmUpdating::frmUpdating(Desk& desk, ProgramState& state) : Window(desk, "frmUpdating"), state_(state) {
  Command1.onClick.connect([&state] { state.CancelRequested = true; });
  // Closing the window by its frame cancels the run; a closed window could no longer stop it.
  onCloseByUser = [&state] { state.CancelRequested = true; };
}

void frmUpdating::setTitle(const std::string& text) {
  lblTitle0.setCaption(text);
  // Shown without being activated, so the main window stays usable.
  setVisible(true);
}

void frmUpdating::setMax(double steps) {
  ProgressBar.setValue(0);  // first, so that the end of the run before does not show against the new maximum
  ProgressBar.setMaximum(steps);
}

void frmUpdating::Update() {
  ProgressBar.setValue(ProgressBar.value() + 1);
}

void setTopMost(frmUpdating& window, bool flag) {
  window.topMost = flag;
}

void ProgressHooks::showProgress(const std::string& title) {
  window_.setTitle(title);
  if (listener_ != nullptr) listener_->showProgress(title);
}

void ProgressHooks::setProgress(double steps, const std::string& description) {
  window_.setMax(steps);
  window_.lblTitle1.setCaption(description);
  if (listener_ != nullptr) listener_->setProgress(steps, description);
}

void ProgressHooks::update() {
  window_.Update();
  if (listener_ != nullptr) listener_->update();
}

void ProgressHooks::pumpEvents() {
  eventPump_.pump();
  if (listener_ != nullptr) listener_->pumpEvents();
}

void ProgressHooks::closeProgress() {
  window_.close();
  if (listener_ != nullptr) listener_->closeProgress();
}

}  // namespace verdalis
