#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/displays.h"
#include "controls/services.h"
#include "data/FileReader.h"
#include "data/GeneralInputs.h"
#include "engine/BestMix.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "main/MainMenus.h"
#include "main/MainTrendHost.h"
#include "main/PaneStack.h"
#include "main/ProgramFiles.h"
#include "main/SecondaryWindows.h"
#include "results/Details.h"
#include "results/ResultPrinter.h"
#include "results/Results.h"
#include "results/SummaryPane.h"
#include "screens/CustomCropPane.h"
#include "screens/InputCostsPane.h"
#include "screens/IrrigCostsPane.h"
#include "screens/MainPane.h"
#include "trend/TrendScreens.h"

namespace verdalis {

/// The main window: owns the panes and the state of the running program, listens to the panes, and moves
/// things between them.
class frmMain : public Window {
 public:
  frmMain(Desk& desk, Services& services, ProgramState& state, SecondaryWindows& windows, ProgramFiles files);

  FileReader cropFiles;  ///< The crop library
  std::shared_ptr<IrrigationCosts> tempIrrigationCosts = std::make_shared<IrrigationCosts>();
  GeneralInputs generalInputs;  ///< As last saved or loaded
  std::string strMainInfo;      ///< The text of the information band on the main pane

  bool TrendEnabled = false;      ///< Trend processing is on; saved with the inputs
  bool TrendNoticeShown = false;  ///< The notice about trend processing is not shown again

  Label lblMainInfo{*this, "lblMainInfo"};
  MainMenus menus{*this};
  MainPane pneMain;
  InputCostsPane pneInputCosts;
  IrrigCostsPane pneIrrigCosts;
  Frame pneResults{*this, "pneResults"};
  Results theResults;
  Frame pneDetails{*this, "pneDetails"};
  Details theDetails;
  SummaryPane::SavedOptions summaryResults;  ///< Saved options
  SummaryPane pneSummary;
  CustomCropPane pneCustomCrop;
  ResultPrinter thePrinter;  ///< Of the options of the last run and the field last shown

  MainTrendHost trendHost;
  TrendScreens trends;  ///< pneBatchSetup(0) and (1)

  PaneStack panes;

  /// Before anything of the window is used: the first time, the library and the saved inputs are read and the
  /// main pane is shown.
  void touch();

  /// Reads the crop library anew and makes a row for each crop.
  /// \throws RunTimeError when there are more crops than rows have room; the rows are there by then.
  void loadCropRows();

  void saveInputs();

  /// Puts the saved inputs into the controls, the rows and the plant.
  /// \returns whether they were read to their end; what stands before a fault is in force.
  bool loadInputs();

  /// Whether the saved inputs were read to their end when the window was loaded.
  [[nodiscard]] bool inputsLoaded() const { return inputsLoaded_; }

  /// Is told of the progress of each run too, beside the progress window; none when nobody else listens. It
  /// must outlive the runs.
  RunHooks* runListener = nullptr;

  /// One evaluation of what stands on the screens. `description` is the second line of the progress window.
  [[nodiscard]] BestMix RunScenario(const std::string& description);

  /// Turns trend processing on or off. The first time it is turned on, a notice says what that means; it
  /// comes before the window is touched.
  void EnableBatch(bool on);

  /// Shows a text in the information band; strMainInfo stays.
  void SetMainInfo(const std::string& text) { lblMainInfo.setCaption(text); }

  void showPane(Frame& pane) { panes.showPane(pane); }

  /// The pane below the top of the history, which never shrinks.
  [[nodiscard]] Frame& popPane() const { return panes.popPane(); }

  /// Cancels what runs and closes all windows.
  void exit();

 private:
  void load();
  void wireMenus();
  void wirePanes();
  void wireResults();
  void wireOptions(Results& results);
  void wirePrinting();
  void Command1_Click();
  void Command7_Click();
  void goBack();
  void goHome();
  void cmdHelp_Click(int index);

  Services& services_;
  ProgramState& state_;
  SecondaryWindows& windows_;
  ProgramFiles files_;
  bool loaded_ = false;
  bool inputsLoaded_ = false;
};

}  // namespace verdalis
