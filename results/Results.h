#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "model/FieldCollection.h"
#include "results/ResultHolder.h"

namespace verdalis {

/// The heading of the pane that shows the options of a run.
inline constexpr const char* resultsHeading = "Evaluation Results";

/// The captions over the rows of the results screen.
struct ResultColumns {
  static constexpr const char* land = "Land Split";
  static constexpr const char* crop = "Crop";
  static constexpr const char* yield = "Yield";
  static constexpr const char* irrigation = "Irrigation";  ///< Over the next three
  static constexpr const char* gross = "Gross";
  static constexpr const char* net = "Net";
  static constexpr const char* irrigationUnit = "(inches)";
  static constexpr const char* costs = "Total Operating Costs**";
  static constexpr const char* returns = "Total Returns";
  static constexpr const char* netReturn = "*Net Return";  ///< Stands beside lblTotalProfit once more
};

/// The notes below the rows.
inline constexpr std::array<const char*, 2> resultNotes{
    "**Includes irrigation costs", "*Net returns to land, management, and irrigation equipment"};

/// The results screen: pages through the options that a run has kept, one at a time, with a row for each
/// field, and takes the requests to compare, print, rerun or leave.
class Results : public Frame {
 public:
  using Option = std::shared_ptr<verdalis::FieldCollection>;

  /// Where "Back" leads.
  enum class BackTo { main, trendSetup };

  /// A variable that a trend process goes through, with the row of its crop (from 0).
  struct TrendedVariable {
    double cropIndex = 0;
    std::int16_t VariableIndex = 0;
  };

  /// Whether one of the variables is the one given; of the variables of a crop (0 to 2), with the crop of
  /// that row.
  [[nodiscard]] static bool isTrended(const std::vector<TrendedVariable>& variables,
                                      std::int16_t variableIndex, std::int16_t cropRowIndex);

  /// `name` is that of this instance, such as "theResults".
  Results(Frame& container, const std::string& name, Services& services, const ProgramState& state);

  std::vector<Option> FieldCollection;  ///< The options of loadResults(), placeholders included
  std::int16_t currentRecord = 0;       ///< The option on show, from 1; 0 before the first is shown

  Label lblCounter{*this, "lblCounter", "Option 1"};
  Button cmdPrevious{*this, "cmdPrevious", "<<"};
  Button cmdAdvance{*this, "cmdAdvance", ">>"};
  std::array<ResultHolder, 4> rh{{{*this, "rh(0)"}, {*this, "rh(1)"}, {*this, "rh(2)"}, {*this, "rh(3)"}}};
  Label lblTotalProfit{*this, "lblTotalProfit"};
  Button cmdSaveResult{*this, "cmdSaveResult", "Compare this option"};
  Button Command2{*this, "Command2", "Print Results"};
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

  /// The details of a field of the option are asked for. The field is the row's copy.
  Event<const std::shared_ptr<Field>&> onDetails;

  /// The option, this very object, is to be kept for comparison.
  Event<const Option&> onSaveOption;

  /// A fixed trend on the option is asked for.
  Event<const Option&> onBatchThis;

  Event<BackTo> onBack;
  Event<> onPrint;
  Event<> onExcel;
  Event<const std::string&> onHelpTopic;  ///< Gets the topic

  /// A note: its text, its title, and the height of its window in layout units.
  Event<const std::string&, const std::string&, int> onHelpNote;

  /// The variables of the trend processes as they are defined at the moment, in order.
  std::function<std::vector<TrendedVariable>()> trendedVariables;

  /// An entry of the options of a fixed trend in the order of their values: (i) when one variable was
  /// trended, (i, j) with two.
  std::function<Option(std::int16_t i, std::int16_t j)> trendOption;

  /// Takes the options of a run, shared with the caller, and shows the first. Without any option that has
  /// fields the rows stay as they were.
  void loadResults(const std::vector<Option>& options);

  /// Shows or hides the request for a fixed trend. A request made turns it on, so the owner calls this before
  /// each loadResults().
  void EnableBatch(bool on);

  /// Shows or hides what a fixed trend did to make the option.
  void ShowBatchedVariables(bool on);

  /// Shows the next option (direction 1) or the one before (-1); at the ends nothing happens. (The plain word
  /// "switch" belongs to the language.) A step that fails leaves what it would have shown as it was.
  void switchTo(std::int16_t direction);

  /// Does nothing.
  static void toCollection(const std::vector<Option>& /*options*/) {}

  /// The number of the option on show.
  [[nodiscard]] std::int16_t getOption() const { return currentRecord; }

  /// Net return of an option, from 1, in dollars for the farm.
  /// \throws RunTimeError (subscript) when there is no such option, (overflow)
  [[nodiscard]] double getTotalProfit(std::int16_t option) const;

  /// Whether a trend process goes through the variable; for the variables of a crop (0 to 2) also with the
  /// crop of that row.
  [[nodiscard]] bool CheckVariable(std::int16_t variableIndex, std::int16_t cropRowIndex) const;

  /// An entry of the options of a fixed trend, see trendOption; nothing before there is one.
  [[nodiscard]] Option GetSortedBatchArrayField(std::int16_t i, std::int16_t j) const;

 private:
  [[nodiscard]] const Option& option(std::int16_t number) const;
  void describeTrend();
  void showRows(double& totalAcres);
  void connect();
  void page(std::int16_t direction);
  void saveResult();
  void batchThis();

  Services& services_;
  const ProgramState& state_;
  std::int16_t maxOption_ = 0;  ///< The options that have fields; paging stops there
};

}  // namespace verdalis
