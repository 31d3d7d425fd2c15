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

/// The fixed texts of the trend setup that have no control.
struct BatchSetupTexts {
  static constexpr const char* trends = "Trends:";  ///< Beside cboBatches
  static constexpr const char* crop = "Crop:";
  static constexpr const char* variable = "Select the variable you wish to process:";
  static constexpr const char* cropColumn = "Variables that depend on the crop";  ///< Above variables 0 to 2
  static constexpr const char* farmColumn = "Variables for all crops";            ///< Above variables 3 to 5
  static constexpr const char* costsNote = "*Total production costs do not include cost of irrigation";
  static constexpr const char* minimum = "Minimum Value:";
  static constexpr const char* maximum = "Maximum Value:";
  static constexpr const char* steps = "Steps:";
  /// Beside the three ways to enter the values.
  static constexpr std::array<const char*, 3> ways{
      "Let VDL automatically determine the variables to use in the trend process.  Enter a minimum value, "
      "maximum value, and number of steps.",
      "Get values from a comma-delimited text file by pressing the 'Select file...' button and browsing to "
      "the file of your choice.",
      "Type in values to be used in the trend process.  Separate the values by a comma."};
};

/// The pane that defines trend processes: one for a variable trend, up to two for a fixed trend on the
/// selected option. The trend is fixed if the selected option has fields.
class BatchSetupPane : public Frame {
 public:
  BatchSetupPane(Frame& window, Services& services, ProgramState& state, TrendState& trend, TrendHost& host);

  Label lblgeneric16{*this, "lblgeneric(16)"};  ///< Instructions
  Frame frmBatches{*this, "frmBatches"};        ///< Shown for a fixed trend
  ComboBox cboBatches{frmBatches, "cboBatches", ComboBox::Style::list};
  Button cmdAddBatchProcess{frmBatches, "cmdAddBatchProcess", "Add a trend process"};
  Button cmdDeleteBatch{frmBatches, "cmdDeleteBatch", "Delete this process"};
  /// Allows free text because a process may have a crop that is not in the list.
  ComboBox cboCrops{*this, "cboCrops", ComboBox::Style::freeText};
  Label lblCropHint{*this, "lblCropHint"};  ///< The problem with the crop for this trend; empty if none
  OptionGroup batchVariables;
  std::vector<std::unique_ptr<OptionButton>> optBatchVariable;
  std::vector<std::unique_ptr<Image>> check;    ///< Ticks beside the variables of the other process
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
  Label lblBatchPreview{*this, "lblBatchPreview"};  ///< The values to run, or what is wrong with them
  Button cmdBatchIt{*this, "cmdBatchIt", "Generate Trend Output"};
  Button Command10{*this, "Command10", "Back"};
  HelpButtons cmdHelp{*this, {25, 26}};

  Event<> onRun;  ///< cmdBatchIt
  Event<int> onHelp;

  /// Opens the pane for a fixed or a variable trend, depending on the selected option. Refuses a variable
  /// trend with incomplete inputs.
  /// \throws RunTimeError
  void ShowBatchScreen();

  /// Ends the trend that is set up or shown, and reads the saved inputs back. No other pane is shown.
  void endTrend();

  /// Reads the pane into a new process. Without `validate` the range, the file and the list may be empty.
  /// \returns nothing if the values are refused, or the variable belongs to a crop and no row has a crop of
  /// that name; a message has been shown then.
  /// \throws RunTimeError for numbers that are too large
  [[nodiscard]] std::optional<BatchProcess> GetBatchProcess(const std::string& cropName, bool validate);

  /// Whether the pane contains a valid process. Shows a message if not.
  [[nodiscard]] bool CheckCurrentProcess();

  /// Adds a blank process and shows it.
  /// \returns whether it is shown.
  bool AddBatchProcess();

  /// Shows a process, from 0. If there are several, first saves the pane to the process that it shows.
  /// \returns false if the pane cannot be read; nothing changes then.
  bool LoadBatchProcess(std::int16_t index);

  /// Replaces all processes and says which of them the pane shows, from 0. Its fields are set by the caller.
  void putProcesses(std::vector<BatchProcess> processes, std::int16_t shown);

  /// Clears the pane.
  /// \returns true.
  bool ClearBatchData();

  void RefreshBatchButtons();

  /// Shows the unit of a variable for the crop in cboCrops beside minimum and maximum.
  /// \returns the unit; "(units)" if it depends on a crop that does not exist.
  std::string SetVariableLabels(double variableIndex);

  /// The index of the selected button of a group; also 0 if none is selected.
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
  void tickOthers(std::size_t shown);
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
