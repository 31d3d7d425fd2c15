#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/Messages.h"
#include "cli/TerminalServices.h"
#include "document/FarmDocument.h"
#include "engine/Farm.h"
#include "engine/RunHooks.h"
#include "main/Program.h"
#include "screens/wishText.h"
#include "trend/TrendHost.h"
#include "trend/runTrend.h"

namespace verdalis {

/// The running program without a window. The farm is entered in its controls. Warnings of the program are
/// written to standard error, a failed range test becomes a Refusal, and run-time errors are passed on. The
/// inputs are not saved.
class TypedFarm {
 public:
  /// Starts the program after the welcome window. If the crop library cannot be read, this is reported, and
  /// there are no crops.
  TypedFarm(ProgramFiles files, Messages& messages);

  /// Puts a farm in place of the present one. Custom crops that it brings are used, but the library is not
  /// written. What the user should know, such as a crop that is missing, is reported.
  void open(const FarmDocument& document);

  /// The rows that the farm of open() has ticked.
  [[nodiscard]] const std::vector<std::size_t>& farmRows() const { return farmRows_; }

  /// The farm with everything that was entered. Parts that have no control are those of open().
  [[nodiscard]] const FarmDocument& document();

  /// Clicks "Load Default Values".
  void loadDefaultValues() { mainPane().Command7.click(); }

  /// Types a text into a control on any pane of the main window and leaves the control. Check boxes and
  /// option buttons accept True, False, 1 and 0. Reports a field whose text has no effect on a run until it
  /// is applied.
  /// \throws Refusal for a control that does not exist, takes no input or does not accept the text
  void type(const std::string& name, const std::string& text);

  /// The control that type() uses.
  /// \throws Refusal if it does not exist or is hidden
  [[nodiscard]] Control& control(const std::string& name);

  /// The notice for a control whose text has no effect on a run until it is applied.
  [[nodiscard]] std::optional<std::string> noticeOf(const Control& control, const std::string& name);

  /// The row of a crop: its exact name, else ignoring case; the last of several.
  [[nodiscard]] std::optional<std::size_t> findRow(std::string_view name);

  /// The crop names of the rows.
  [[nodiscard]] std::vector<std::string> cropNames();

  /// Types into the field of a crop row, ticked or not, and leaves the field.
  /// \throws Refusal for a text that fails the range test, and for a row without the field
  void typePrice(std::size_t row, const std::string& text);
  void typeMaxYield(std::size_t row, const std::string& text);

  void tick(std::size_t row);
  void chooseLandSplit(std::size_t index) { mainPane().Option1[index]->click(); }
  void tickNoSplit();

  /// The crops and fields for wishes.
  /// \throws RunTimeError (invalidCall) if no land split is chosen
  [[nodiscard]] WishContext wishContext();

  void makeWishes(std::vector<Wish> wishes) { mainPane().wishes = std::move(wishes); }

  void keepMixes() { mainPane().mixes = true; }

  [[nodiscard]] MainPane& mainPane() { return main().pneMain; }
  [[nodiscard]] const CropScenario& library() { return main().cropFiles.cropCollection; }
  [[nodiscard]] const IrrigationCosts& plant() { return *main().tempIrrigationCosts; }
  [[nodiscard]] ScenarioInputs inputs() { return mainPane().scenarioInputs(); }

  /// A copy of the farm as numbers. It shares nothing with the program.
  /// \throws RunTimeError for a text that is not a number
  [[nodiscard]] Farm farm();

  /// Holds the results of the last run.
  [[nodiscard]] const ResultPrinter& printer() { return main().thePrinter; }
  [[nodiscard]] ProgramState& state() { return program_.state; }

  /// Whether the saved inputs were read completely.
  [[nodiscard]] bool inputsLoaded() { return main().inputsLoaded(); }

  /// Clicks the button that starts the evaluation. `progress` receives the progress.
  /// \returns the options of the results screen, including placeholders; nothing after a cancel.
  /// \throws Refusal if an input is missing
  /// \throws RunTimeError
  [[nodiscard]] std::optional<std::vector<Results::Option>> evaluate(RunHooks& progress);

  /// The inputs that a trend changes. They keep the last values of the trend.
  [[nodiscard]] TrendHost& trendHost() { return main().trendHost; }

  /// Runs a trend. `progress` receives the progress.
  /// \returns nothing after a cancel.
  /// \throws RunTimeError
  [[nodiscard]] std::optional<TrendOutcome> runTrend(const TrendRequest& request, RunHooks& progress);

 private:
  [[nodiscard]] frmMain& main() { return program_.main(); }
  void typeInto(Control& control, const std::string& name, const std::string& text);
  void refuseIfTold();

  Messages& messages_;
  TerminalServices platform_;
  Services services_;
  Program program_;
  std::vector<std::size_t> farmRows_;
};

}  // namespace verdalis
