#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/HelpButtons.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "model/IrrigationCosts.h"
#include "screens/CropRecord.h"
#include "screens/FieldTable.h"
#include "screens/ScenarioInputs.h"
#include "screens/fieldHints.h"

namespace verdalis {

/// The pane of the main inputs: the farm and its water, the land split, the crop rows, and the button that
/// starts the evaluation.
class MainPane : public Frame {
 public:
  MainPane(Frame& window, Services& services, std::shared_ptr<IrrigationCosts> tempIrrigationCosts);

  TextBox txtArea{*this, "txtArea"};
  TextBox txtMax{*this, "txtMax"};
  Label lblVolume{*this, "lblVolume"};
  ComboBox txtAnnRain{*this,
                      "txtAnnRain",
                      ComboBox::Style::freeText,
                      {"11", "12", "13", "14", "15", "16", "17", "18", "19", "20", "21"}};
  TextBox txtEff{*this, "txtEff"};
  ComboBox txtSoil{
      *this, "txtSoil", ComboBox::Style::freeText, {"Silt Loam", "Fine Sand", "Loamy Sand"}, "Silt Loam"};
  OptionGroup landSplits;
  std::vector<std::unique_ptr<OptionButton>> Option1;
  static constexpr const char* noSplitCaption = "Evaluate no land split scenario";
  CheckBox chkNoSplit{*this, "chkNoSplit", noSplitCaption};
  CheckBox Check1{*this, "Check1", "Turn land splits with negative returns into fallow"};
  Button Command8{*this, "Command8", "Enter Irrigation Information"};
  Button Command7{*this, "Command7", "Load Default Values"};
  Frame cropBox{*this, "cropBox"};
  Frame cropFrameHolder{cropBox, "cropFrameHolder"};
  Frame cropFrame{cropFrameHolder, "cropFrame"};
  ScrollBar cropScroll{cropBox, "cropScroll"};
  std::vector<std::unique_ptr<CropRecord>> cr;  ///< Element 0 always exists and survives reloads
  Button Command1{*this, "Command1", "Generate Output"};
  Label lblNumber{*this, "lblNumber"};
  Button cmdStatus{*this, "cmdStatus", ""};   ///< What is missing for a run; a click leads to the field
  Label lblFarmHint{*this, "lblFarmHint"};    ///< What is odd about the fields of the farm
  Label lblCropsHint{*this, "lblCropsHint"};  ///< What is odd about the crop rows
  static constexpr const char* keepCaption = "Options to keep";
  TextBox txtArraySize{*this, "txtArraySize", "100"};
  TextBox txtSize{*this, "txtSize"};                           ///< Without effect
  Button cmdReturn{*this, "cmdReturn", "Largest Return ($)"};  ///< Without effect
  Frame pnlBatchInstructions{*this, "pnlBatchInstructions"};
  HelpButtons cmdHelp{*this, {0, 1, 2, 3, 4, 5, 6, 9, 10, 28, 29}};

  std::string currentSoil;       ///< Always the text of txtSoil
  bool FallowNegatives = false;  ///< Follows Check1; deliberately without effect
  int cropFrameTop = 0;          ///< Layout units; 0 or less

  std::vector<Wish> wishes;  ///< Wishes that every plan of a run must meet
  bool mixes = false;        ///< Whether a run keeps only the best plan of each mix of crops

  /// The fields of the farm in display order, with their texts and tests, and the land split as "Option1".
  [[nodiscard]] static std::span<const FieldRow> fields();

  /// The state of the land split buttons, as a run reads it.
  [[nodiscard]] LandSplitButtons landSplitButtons() const;

  /// The current inputs of a run.
  [[nodiscard]] ScenarioInputs scenarioInputs() const;

  /// Whether all inputs that a run needs are entered.
  [[nodiscard]] bool ready() const;

  /// What is odd about the fields as they stand, before any message box tells it.
  [[nodiscard]] const std::vector<FieldHint>& hints() const { return hints_; }

  /// Updates cmdStatus and the hints. `factor` is the irrigation iteration factor.
  void showHints(std::int16_t factor);

  /// The fields that have changed since the last run, with what they were then.
  [[nodiscard]] const std::vector<FieldHint>& changes() const { return changes_; }
  void setChanges(std::vector<FieldHint> changes);

  /// What is usual for a field, as far as the program knows, such as "Yields are known from 11 to 21 inches
  /// of rain."; empty if it knows nothing. Worked out anew with each call.
  [[nodiscard]] std::string rangeOf(const Control& field) const;

  /// The hints or the changes are others than before.
  Event<> onHints;

  /// Updates lblVolume.
  /// \returns always 0.
  double getVolume();

  /// Removes all rows except element 0.
  void unloadRows();

  /// The row at an index. An index beyond the last row adds one row at the end.
  CropRecord& row(std::size_t index);

  /// Adjusts the crop frame and the scroll bar to the number of rows.
  /// \throws RunTimeError (overflow) for more than 59 rows
  void InitializeCropFrame();

  /// The crop of the last row with this name, ignoring case; nullptr if there is none.
  [[nodiscard]] std::shared_ptr<Crop> findCropByName(const std::string& name) const;

  /// Tells that the irrigation is above what the plant can pump. Shows a message box if it is not set.
  std::function<void(const Message&)> tellCapacity;

  Event<> onRun;         ///< Command1
  Event<> onIrrigation;  ///< Command8
  Event<> onDefaults;    ///< Command7
  Event<CropRecord&> onInputCosts;
  Event<int> onHelp;

  /// The rows have been created again.
  Event<> onRowsChanged;

 private:
  void warnOfCapacity();
  void showStatus(std::int16_t factor);
  [[nodiscard]] std::vector<FieldHint> farmHints() const;
  [[nodiscard]] std::vector<FieldHint> cropHints() const;
  void goToMissing();

  Services& services_;
  std::shared_ptr<IrrigationCosts> tempIrrigationCosts_;
  std::vector<FieldHint> hints_;
  std::vector<FieldHint> changes_;
  std::optional<MissingInput> missing_;

  /// The number of water splits, which takes milliseconds to count for a high factor.
  struct CountedSplits {
    std::int16_t fields = 0;
    std::int16_t factor = 0;
    std::optional<std::size_t> count;
  } counted_;
};

/// The message that refuses a text as the irrigation efficiency; nothing for one that passes.
[[nodiscard]] std::optional<std::string> efficiencyFault(const std::string& text);

/// What is told of an irrigation, as its texts stand on the pane, that is above what the plant can pump in a
/// season; nothing where it is not, or where the plant's capacity is not known.
/// \throws RunTimeError (overflow)
[[nodiscard]] std::optional<Message> capacityWarning(const IrrigationCosts& plant, const std::string& txtArea,
                                                     const std::string& txtMax);

/// The line over the button of the irrigation costs.
inline constexpr const char* irrigationHeading = "Irrigation Costs and Capacity";

/// The column headings of the crop rows, with "&&" for "&" as in captions, and their "?" buttons.
struct CropColumn {
  const char* caption;
  int helpIndex;
};
inline constexpr std::array<CropColumn, 3> cropColumns{
    {{"Price per unit:", 10}, {"Input Costs && Returns", 28}, {"Maximum Yield / Acre:", 9}}};

/// The visible height of the crop list and the height of one row, in layout units.
inline constexpr int cropFrameHolderHeight = 4410;
inline constexpr int cropRowHeight = 550;

/// The lines on the panel for trends, and the line below it.
inline constexpr std::array<const char*, 3> batchInstructions{
    "*Fixed batch starts after 'Generate Output'",
    "*Variable irrigation batch can be initiated through the 'Tools' menu above",
    "*Enable Batch Processing by Selecting 'Enable Batch Processing' from the Tools menu"};

}  // namespace verdalis
