#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/HelpButtons.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "trend/BatchProcess.h"
#include "trend/TrendHost.h"
#include "trend/TrendState.h"
#include "trend/TrendValues.h"

namespace verdalis {

/// The fixed texts of the trend setup that belong to no control of their own.
struct BatchSetupTexts {
  static constexpr const char* trends = "Trends:";  ///< Beside cboBatches
  static constexpr const char* crop = "Crop:";
  static constexpr const char* variable = "Select the variable you wish to process:";
  static constexpr const char* cropColumn = "Variables that depend on the crop";  ///< Over 0 to 2
  static constexpr const char* farmColumn = "Variables for all crops";            ///< Over 3 to 5
  static constexpr const char* costsNote = "*Total production costs do not include cost of irrigation";
  static constexpr const char* minimum = "Minimum Value:";
  static constexpr const char* maximum = "Maximum Value:";
  static constexpr const char* steps = "Steps:";
  /// Beside the three ways to give the values.
  static constexpr std::array<const char*, 3> ways{
      "Let VDL automatically determine the variables to use in the trend process.  Enter a minimum value, "
      "maximum value, and number of steps.",
      "Get values from a comma-delimited text file by pressing the 'Select file...' button and browsing to "
      "the file of your choice.",
      "Type in values to be used in the trend process.  Separate the values by a comma."};
};

/// The pane that defines trend processes: one for a variable trend, up to two for a fixed trend on the
/// selected option. Which kind it is, the selected option decides: with fields the trend is fixed.
class BatchSetupPane : public Frame {
 public:
  BatchSetupPane(Frame& window, Services& services, ProgramState& state, TrendState& trend, TrendHost& host);

  Label lblgeneric16{*this, "lblgeneric(16)"};  ///< What to do here
  Frame frmBatches{*this, "frmBatches"};        ///< Shown for a fixed trend
  ComboBox cboBatches{frmBatches, "cboBatches", ComboBox::Style::list};
  Button cmdAddBatchProcess{frmBatches, "cmdAddBatchProcess", "Add a trend process"};
  Button cmdDeleteBatch{frmBatches, "cmdDeleteBatch", "Delete this process"};
  /// With free text, because a process may have a crop that its list does not hold.
  ComboBox cboCrops{*this, "cboCrops", ComboBox::Style::freeText};
  Label lblCropHint{*this, "lblCropHint"};  ///< What is wrong with the crop for this trend; else empty
  OptionGroup batchVariables;
  std::vector<std::unique_ptr<OptionButton>> optBatchVariable;
  std::vector<std::unique_ptr<Image>> check;    ///< Shown beside the variables of the other process
  Label lblgeneric20{*this, "lblgeneric(20)"};  ///< Unit of the crop's price
  Label lblgeneric22{*this, "lblgeneric(22)"};  ///< Unit of the crop's yield
  Label lblgeneric5{*this, "lblgeneric(5)", "Determine Trend Process:"};
  OptionGroup batchOptions;
  std::vector<std::unique_ptr<OptionButton>> optBatchOption;                      ///< By TrendValuesKind
  std::array<TextBox, 2> txtBatchMinimum{{{*this, "txtBatchMinimum(0)", "5"},     // the minimum
                                          {*this, "txtBatchMinimum(1)", "13"}}};  // the maximum
  Label lblgeneric24{*this, "lblgeneric(24)", "(units)"};                         ///< Of the minimum
  Label lblgeneric25{*this, "lblgeneric(25)", "(units)"};                         ///< Of the maximum
  ComboBox cboBatchSteps{
      *this, "cboBatchSteps", ComboBox::Style::freeText, {"2", "3", "4", "5", "6", "7", "8", "9", "10"}, "2"};
  Button cmdOpenBatch{*this, "cmdOpenBatch(1)", "Select file..."};
  Label lblBatchFile{*this, "lblBatchFile", "-"};
  TextBox txtBatchList{*this, "txtBatchList"};
  Label lblBatchPreview{*this, "lblBatchPreview"};  ///< The values that would be run, or what is wrong
  Button cmdBatchIt{*this, "cmdBatchIt", "Generate Trend Output"};
  Button Command10{*this, "Command10", "Back"};
  HelpButtons cmdHelp{*this, {25, 26}};

  Event<> onRun;  ///< cmdBatchIt
  Event<int> onHelp;

  /// Opens the pane for the kind of trend that the selected option decides. A variable trend whose inputs are
  /// not complete is refused. \throws RunTimeError
  void ShowBatchScreen();

  /// Reads the pane into a new process. Nothing when its values are refused; the user has been told by then.
  /// A variable of a crop is also refused when no row has a crop of that name. Without `validate` the range,
  /// the file and the list may be empty. \throws RunTimeError for numbers that are too large
  [[nodiscard]] std::optional<BatchProcess> GetBatchProcess(const std::string& cropName, bool validate);

  /// Whether the pane reads as a valid process; if not, the user has been told.
  [[nodiscard]] bool CheckCurrentProcess();

  /// Adds a blank process and shows it. \returns whether it is shown.
  bool AddBatchProcess();

  /// Shows a process, from 0; where there are several, the pane is first saved to the one it shows.
  /// \returns false, with all as it was, when the pane cannot be read.
  bool LoadBatchProcess(std::int16_t index);

  /// Empties the pane. \returns true.
  bool ClearBatchData();

  void RefreshBatchButtons();

  /// Shows the unit of a variable for the crop in cboCrops beside minimum and maximum, and returns it;
  /// "(units)" where it depends on a crop that is not there.
  std::string SetVariableLabels(double variableIndex);

  /// The selected button of an array; 0 also when none is.
  [[nodiscard]] static std::int16_t getSelectedIndex(const OptionGroup& buttons);

  void tell(const Message& message);

 private:
  void makeControls();
  void wire();
  void wireProcesses();
  void openFixed();
  [[nodiscard]] bool openVariable();
  [[nodiscard]] TrendReading readValues(bool validate) const;
  [[nodiscard]] std::optional<Message> refuseCrop(const std::string& cropName) const;
  void showProcess(const BatchProcess& process);
  void fillProcessList();
  void selectProcess(int index);
  void switchProcess();
  void deleteProcess();
  void chooseFile();
  void showCropUnits();
  void showCropHint();
  void showPreview();
  void goBack();

  Services& services_;
  ProgramState& state_;
  TrendState& trend_;
  TrendHost& host_;
};

}  // namespace verdalis
