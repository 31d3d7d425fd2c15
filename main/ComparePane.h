#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/Grid.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "handout/Handout.h"
#include "main/Comparison.h"

namespace verdalis {

/// Chosen saved options side by side: which has the best net return, and which inputs and fields make the
/// difference. Row 0 of the grid contains the names of the options, column 0 the heads of the rows.
class ComparePane : public Frame {
 public:
  using SavedOptions = SharedList<SavedOption>;

  /// `saved` returns the saved options in order.
  ComparePane(Frame& window, Services& services, std::function<const SavedOptions&()> saved);

  Label lblCompare{*this, "lblCompare"};              ///< The line above the grid
  std::vector<std::unique_ptr<CheckBox>> chkCompare;  ///< One for each saved option
  Grid fgCompare{*this, "fgCompare", 1, 1};
  Button cmdCopy{*this, "cmdCopy", "Copy"};
  Button cmdExport{*this, "cmdExport", "Export..."};
  Button cmdBack{*this, "cmdBack", "Back"};

  /// Options that are ticked when the pane is opened: the latest ones.
  static constexpr std::size_t mostTicked = 6;

  /// Ticks the latest options, shows the comparison and raises onShowPane.
  void open();

  /// Shows the saved options of now. Ticks of options that are still saved stay; new ones are ticked.
  void refresh();

  /// Makes the option whose figures were not worked out when it was saved.
  OptionToPrice optionToPrice;

  /// Whether a row of the grid starts a section. Its column 1 may contain a note on the section.
  [[nodiscard]] bool isSection(int row) const;

  /// The comparison for a report or a workbook.
  [[nodiscard]] HandoutSection section() const;

  /// cmdExport
  Event<> onExport;

  /// The pane must be shown, even if it already is.
  Event<> onShowPane;

  Event<> onBack;

  /// There are other check boxes than before.
  Event<> onBoxesChanged;

 private:
  void setBoxes(const SavedOptions& options, const std::vector<bool>& ticked);
  void compare();
  void showRows(const std::vector<ComparedOption>& options, const Comparison& comparison);
  [[nodiscard]] std::string nameOf(std::size_t index) const;

  Services& services_;
  std::function<const SavedOptions&()> saved_;
  SavedOptions options_;            ///< Those of the check boxes
  std::vector<bool> sections_;      ///< By row of the grid
  std::vector<std::string> names_;  ///< Of the options in the grid
  Comparison comparison_;           ///< What the grid shows
  bool setting_ = false;            ///< The check boxes are being set; the comparison follows at the end
};

/// The cells of a grid for a spreadsheet: tabs between columns, a line for each row.
[[nodiscard]] std::string tabSeparated(const Grid& grid);

}  // namespace verdalis
