#include "main/GoMenu.h"

#include <initializer_list>

#include "main/frmMain.h"

namespace verdalis {
namespace {

std::shared_ptr<FieldCollection> firstOf(const Results& results) {
  return results.FieldCollection.empty() ? nullptr : results.FieldCollection.front();
}

const Results& trendResults(const frmMain& window) {
  return window.trends.pneBatchSetup1.theBatchResults.theResults;
}

}  // namespace

GoMenu::GoMenu(frmMain& window, ProgramState& state, SecondaryWindows& windows)
    : window_(window), state_(state) {
  const auto connect = [this](MenuEntry& entry, void (GoMenu::*go)()) {
    entry.onClick.connect([this, go] {
      if (!window_.isRunning()) (this->*go)();
    });
  };
  connect(window.menus.mnuGoMain, &GoMenu::goMain);
  connect(window.menus.mnuGoResults, &GoMenu::goResults);
  connect(window.menus.mnuGoTrend, &GoMenu::goTrend);
  connect(window.menus.mnuGoSummary, &GoMenu::goSummary);
  connect(window.menus.mnuGoCompare, &GoMenu::goCompare);
  windows.onCreated.connect([this](Window& created) {
    auto* const progress = dynamic_cast<frmUpdating*>(&created);
    if (progress == nullptr) return;
    progress->onStateChange.connect([this, progress] {
      running_ = progress->isOpen();
      refresh();
    });
  });
  window.desk().onActed.connect([this] {
    running_ = false;  // a run that has failed leaves its window open
    refresh();
  });
}

void GoMenu::forgetResults() {
  formerResult_ = firstOf(window_.theResults);
  formerTrend_ = firstOf(trendResults(window_));
  refresh();
}

void GoMenu::goMain() {
  endTrend();
  window_.showMainPane();
}

void GoMenu::goResults() {
  endTrend();
  state_.TrendMode = false;  // otherwise "Back" would lead to the setup of a trend
  window_.SetMainInfo(window_.strMainInfo);
  window_.showPane(window_.pneResults);
  window_.menus.mnuPrint.setEnabled(true);
}

void GoMenu::goTrend() {
  if (!window_.farmControls.isTrying()) {
    state_.TrendMode = false;
    atTrendResults_ = true;
  }
  window_.showPane(window_.trends.pneBatchSetup1);
}

void GoMenu::goSummary() {
  window_.pneSummary.showSummary();
}

void GoMenu::goCompare() {
  window_.pneCompare.open();
}

/// Puts the saved inputs back in place of the values that a trend tries, as its own "Back" does.
void GoMenu::endTrend() {
  if (window_.farmControls.isTrying()) window_.trends.pneBatchSetup0.endTrend();
}

void GoMenu::refresh() {
  if (window_.panes.history().empty()) return;
  const Frame& top = window_.panes.top();
  if (&top != &window_.trends.pneBatchSetup1 && &top != &window_.pneDetails) atTrendResults_ = false;
  const auto isOf = [](const Option& first, const Option& former) { return first && first != former; };
  MainMenus& menus = window_.menus;
  menus.mnuGoMain.setEnabled(!running_);
  menus.mnuGoResults.setEnabled(!running_ && isOf(firstOf(window_.theResults), formerResult_));
  menus.mnuGoTrend.setEnabled(!running_ && isOf(firstOf(trendResults(window_)), formerTrend_));
  menus.mnuGoSummary.setEnabled(!running_ && !window_.summaryResults.empty());
  menus.mnuGoCompare.setEnabled(!running_ && !window_.summaryResults.empty());
  const bool explores = !running_ && !window_.farmControls.isTrying();
  for (MenuEntry* entry : std::initializer_list<MenuEntry*>{
           &menus.mnuMixes, &menus.mnuWater, &menus.mnuSwitch, &menus.mnuSeasons, &menus.mnuInputs,
           &menus.mnuMap, &menus.mnuLive}) {
    entry->setEnabled(explores);
  }
}

}  // namespace verdalis
