#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Messages.h"
#include "cli/TerminalServices.h"
#include "engine/Farm.h"
#include "engine/RunHooks.h"
#include "main/Program.h"
#include "screens/wishText.h"
#include "trend/TrendHost.h"
#include "trend/runTrend.h"

namespace verdalis {

/// The running program without a window, into whose controls a farm is typed. What the program warns of goes
/// to standard error; a range test that fails becomes a Refusal; a run-time error goes on to the caller. It
/// writes no saved inputs.
class TypedFarm {
 public:
  /// Starts the program past the welcome window. A crop library that cannot be read is told, and there are
  /// no crops then.
  TypedFarm(ProgramFiles files, Messages& messages);

  /// The button "Load Default Values".
  void loadDefaultValues() { mainPane().Command7.click(); }

  /// Types a text into a control of the main window, on whatever pane, and leaves it. A check box and an
  /// option button take True, False, 1 and 0. A field whose text takes no part in a run until it is applied
  /// is told.
  /// \throws Refusal for a control that is not there, cannot be typed into or does not accept the text.
  void type(const std::string& name, const std::string& text);

  /// The control that type() would type into. \throws Refusal when it is not there or hidden
  [[nodiscard]] Control& control(const std::string& name);

  /// What is to be told of a control whose text takes no part in a run until it is applied.
  [[nodiscard]] std::optional<std::string> noticeOf(const Control& control, const std::string& name);

  /// The row of a crop: by its exact name, else ignoring case; with several the last.
  [[nodiscard]] std::optional<std::size_t> findRow(std::string_view name);

  /// The names of the rows' crops.
  [[nodiscard]] std::vector<std::string> cropNames();

  /// Types into a crop row, ticked or not, and leaves the field.
  /// \throws Refusal for a text that fails the test of its field, and for a row without such a field.
  void typePrice(std::size_t row, const std::string& text);
  void typeMaxYield(std::size_t row, const std::string& text);

  void tick(std::size_t row);
  void chooseLandSplit(std::size_t index) { mainPane().Option1[index]->click(); }
  void tickNoSplit();

  /// What a wish can be about. \throws RunTimeError (invalidCall) when no land split is chosen
  [[nodiscard]] WishContext wishContext();

  /// \throws std::invalid_argument for one wish too many
  void makeWish(const Wish& wish) { addWish(mainPane().wishes, wish); }

  void keepMixes() { mainPane().mixes = true; }

  [[nodiscard]] MainPane& mainPane() { return main().pneMain; }
  [[nodiscard]] const CropScenario& library() { return main().cropFiles.cropCollection; }
  [[nodiscard]] const IrrigationCosts& plant() { return *main().tempIrrigationCosts; }
  [[nodiscard]] ScenarioInputs inputs() { return mainPane().scenarioInputs(); }

  /// The farm as numbers; nothing of it is shared with the program.
  /// \throws RunTimeError for a text that is no number
  [[nodiscard]] Farm farm();

  /// Holds what was found last.
  [[nodiscard]] const ResultPrinter& printer() { return main().thePrinter; }
  [[nodiscard]] ProgramState& state() { return program_.state; }

  /// Whether the saved inputs were read to their end.
  [[nodiscard]] bool inputsLoaded() { return main().inputsLoaded(); }

  /// Presses the button that starts the evaluation. `progress` hears how far it is. \returns the options of
  /// the results screen, placeholders included; nothing after a cancel.
  /// \throws Refusal when something is missing, RunTimeError
  [[nodiscard]] std::optional<std::vector<Results::Option>> evaluate(RunHooks& progress);

  /// The inputs as a trend writes its values into them. They keep what is written last.
  [[nodiscard]] TrendHost& trendHost() { return main().trendHost; }

  /// Runs a trend. `progress` hears how far it is. \returns nothing after a cancel. \throws RunTimeError
  [[nodiscard]] std::optional<TrendOutcome> runTrend(const TrendRequest& request, RunHooks& progress);

 private:
  [[nodiscard]] frmMain& main() { return program_.main(); }
  void typeInto(Control& control, const std::string& name, const std::string& text);
  void refuseIfTold();

  Messages& messages_;
  TerminalServices platform_;
  Services services_;
  Program program_;
};

}  // namespace verdalis
