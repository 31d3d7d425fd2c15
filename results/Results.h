#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "model/FieldCollection.h"
#include "results/AllOptions.h"
#include "results/ResultHolder.h"

namespace verdalis {

/// The heading of the pane that shows the options of a run.
inline constexpr const char* resultsHeading = "Evaluation Results";

/// The column headings of the results screen.
struct ResultColumns {
  static constexpr const char* land = "Land Split";
  static constexpr const char* crop = "Crop";
  static constexpr const char* yield = "Yield";
  static constexpr const char* irrigation = "Irrigation";  ///< Above the next three
  static constexpr const char* gross = "Gross";
  static constexpr const char* net = "Net";
  static constexpr const char* irrigationUnit = "(inches)";
  static constexpr const char* costs = "Total Operating Costs**";
  static constexpr const char* returns = "Total Returns";
  static constexpr const char* netReturn = "*Net Return";  ///< Also beside lblTotalProfit
};

/// The notes below the rows.
inline constexpr std::array<const char*, 2> resultNotes{
    "**Includes irrigation costs", "*Net returns to land, management, and irrigation equipment"};

/// The results screen: shows the options kept by a run, one at a time, with a row for each field, and below
/// it all of them in a table. It raises
/// events for the user's requests to compare, print, run a trend or go back.
class Results : public Frame {
 public:
  using Option = std::shared_ptr<verdalis::FieldCollection>;

  /// Target of "Back".
  enum class BackTo { main, trendSetup };

  /// A variable that a trend process varies, with the row of its crop (from 0).
  struct TrendedVariable {
    double cropIndex = 0;
    std::int16_t VariableIndex = 0;
  };

  /// Whether `variables` contains the variable. For the variables of a crop (0 to 2), the row must match too.
  [[nodiscard]] static bool isTrended(const std::vector<TrendedVariable>& variables,
                                      std::int16_t variableIndex, std::int16_t cropRowIndex);

  /// `name` is the name of this instance, such as "theResults".
  Results(Frame& container, const std::string& name, Services& services, const ProgramState& state);

  std::vector<Option> FieldCollection;  ///< The options of loadResults(), placeholders included
  std::int16_t currentRecord = 0;       ///< The shown option, from 1; 0 before the first is shown

  Label lblCounter{*this, "lblCounter", "Option 1"};
  Label lblOf{*this, "lblOf"};  ///< How many options there are, behind the counter
  Button cmdPrevious{*this, "cmdPrevious", "<<"};
  Button cmdAdvance{*this, "cmdAdvance", ">>"};
  std::array<ResultHolder, 4> rh{{{*this, "rh(0)"}, {*this, "rh(1)"}, {*this, "rh(2)"}, {*this, "rh(3)"}}};
  Label lblTotalProfit{*this, "lblTotalProfit"};
  Label lblFarmProfit{*this, "lblFarmProfit"};  ///< The same for the whole farm
  Label lblSinceLast{*this, "lblSinceLast"};    ///< What has changed since the run before
  Label lblOutdated{*this, "lblOutdated"};      ///< Whether inputs have changed since the run
  AllOptions all;
  Button cmdSaveResult{*this, "cmdSaveResult", "Compare this option"};
  Button Command2{*this, "Command2", "Print Results"};
  Button cmdExport{*this, "cmdExport", "Export..."};  ///< A workbook
  Button Command1{*this, "Command1", "Back"};

  Frame batchDisplay{*this, "batchDisplay"};
  Button cmdBatchThis{batchDisplay, "cmdBatchThis", "Run a Fixed Trend on this Option"};
  Button cmdHelp{batchDisplay, "cmdHelp", "?"};

  Frame pnlBatchedVariables{*this, "pnlBatchedVariables"};
  std::array<Label, 2> lblBatchDescriptions{
      {{pnlBatchedVariables, "lblBatchDescriptions(0)"}, {pnlBatchedVariables, "lblBatchDescriptions(1)"}}};
  Button cmdExcel{pnlBatchedVariables, "cmdExcel", "Export the Trend Results to MS Excel"};
  Button cmdHelp2{pnlBatchedVariables, "cmdHelp2", "?"};
  Button cmdHelp3{pnlBatchedVariables, "cmdHelp3", "?"};

  /// The user requests the details of a field. The field is the row's copy.
  Event<const std::shared_ptr<Field>&> onDetails;

  /// The user saves the option for comparison. It is the option itself, not a copy.
  Event<const Option&> onSaveOption;

  /// The user requests a fixed trend on the option.
  Event<const Option&> onBatchThis;

  Event<BackTo> onBack;
  Event<> onPrint;
  Event<> onExcel;
  Event<> onExport;                       ///< cmdExport
  Event<const std::string&> onHelpTopic;  ///< The help topic

  /// A help note: its text, its title, and the height of its window in layout units.
  Event<const std::string&, const std::string&, int> onHelpNote;

  /// What the table of all options tells about the run of the next options; set it before loadResults().
  std::optional<double> plansCompared;  ///< Number of plans
  std::optional<Farm> evaluatedFarm;    ///< For the best plan of each mix; nothing if that is not offered

  /// Returns the variables of the currently defined trend processes, in order.
  std::function<std::vector<TrendedVariable>()> trendedVariables;

  /// Returns an option of a fixed trend by the indices of its values: (i) for one variable, (i, j) for two.
  std::function<Option(std::int16_t i, std::int16_t j)> trendOption;

  /// Takes the options of a run, shared with the caller, and shows the first. If no option has fields, the
  /// rows do not change.
  void loadResults(const std::vector<Option>& options);

  /// Shows or hides the button for a fixed trend. A click on it shows it again, so the owner calls this
  /// before each loadResults().
  void EnableBatch(bool on);

  /// Shows or hides the values with which a fixed trend made the option.
  void ShowBatchedVariables(bool on);

  /// Shows the next (direction 1) or previous (-1) option; at the ends nothing happens. A step that fails
  /// leaves its controls unchanged. (`switch` alone is a keyword.)
  void switchTo(std::int16_t direction);

  /// Shows an option by its number, from 1, as a step with the buttons does. Another number shows nothing.
  void showOption(std::int16_t number);

  /// Does nothing.
  static void toCollection(const std::vector<Option>& /*options*/) {}

  /// The number of the shown option, from 1.
  [[nodiscard]] std::int16_t getOption() const { return currentRecord; }

  /// Net return of an option (from 1), $ for the whole farm.
  /// \throws RunTimeError (subscript) if there is no such option, (overflow)
  [[nodiscard]] double getTotalProfit(std::int16_t option) const;

  /// Whether a trend process varies the variable. For the variables of a crop (0 to 2), the row must match
  /// too.
  [[nodiscard]] bool CheckVariable(std::int16_t variableIndex, std::int16_t cropRowIndex) const;

  /// An option of a fixed trend, see trendOption; nullptr if trendOption is not set.
  [[nodiscard]] Option GetSortedBatchArrayField(std::int16_t i, std::int16_t j) const;

 private:
  [[nodiscard]] const Option& option(std::int16_t number) const;
  void describeTrend();
  void showRows(double& totalAcres);
  void connect();
  void page(std::int16_t direction);
  void listOptions();
  void saveResult();
  void batchThis();

  Services& services_;
  const ProgramState& state_;
  std::int16_t maxOption_ = 0;  ///< Number of options that have fields; paging stops there
};

}  // namespace verdalis
