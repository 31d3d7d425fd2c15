#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/Grid.h"
#include "controls/displays.h"
#include "controls/services.h"
#include "handout/Handout.h"
#include "model/Field.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The cells of a grid as comma-separated lines that end with CR LF. Texts are not quoted, so an amount such
/// as
/// "$1,234 /acre" becomes two fields. This is intended.
[[nodiscard]] std::string commaSeparated(const Grid& grid);

/// The table of the options saved for comparison, with a column for each field. Clicking a column removes an
/// option, and Delete the one whose field stands there; the table can be saved as a comma-separated file.
class SummaryPane : public Frame {
 public:
  using SavedOptions = std::vector<std::shared_ptr<FieldCollection>>;

  /// What the pane needs from the rest of the program.
  struct Outside {
    std::function<std::string()> annualRain;  ///< The text of the rainfall field
    /// Writes a complete file.
    /// \throws RunTimeError
    std::function<void(const std::filesystem::path&, std::string_view)> writeFile;
  };

  /// `summaryResults` are the saved options in order. The pane removes options from it.
  SummaryPane(Frame& container, Services& services, SavedOptions& summaryResults, Outside outside);

  Label Label59{*this, "Label59(1)"};  ///< The line above the grid
  Grid fgsummary{*this, "fgsummary", 12, 2};
  Button cmdExcelSave{*this, "cmdExcelSave", "Save table to CSV"};
  Button cmdCompare{*this, "cmdCompare", "Compare"};      ///< Visible while there are saved options
  Button cmdWorkbook{*this, "cmdWorkbook", "Export..."};  ///< Visible while there are saved options
  Button cmdCancel{*this, "cmdCancel(2)", "Back"};

  /// The action of the menu entry "Summary Table": builds the table from the saved options and raises
  /// onShowPane. It uses the current rainfall and efficiency, not those from when the options were saved.
  /// \throws RunTimeError for a figure that cannot be calculated; the table then ends at that field
  void showSummary();

  /// The columns of an option in the grid.
  struct Columns {
    int first = 0;
    int last = 0;
  };
  [[nodiscard]] Columns columnsOf(std::size_t option) const;

  /// The option whose field stands in a column, by its place from 0; nothing for a column without one.
  [[nodiscard]] std::optional<std::size_t> optionAt(int column) const;

  [[nodiscard]] std::size_t options() const { return summaryResults_.size(); }

  /// An option in words, such as "Saved Option #2: Corn 94, Wheat 31".
  [[nodiscard]] std::string describe(std::size_t option) const;

  /// The saved options for a report or a workbook.
  /// \param rows the most rows; nothing for all
  [[nodiscard]] HandoutSection section(std::optional<std::size_t> rows = std::nullopt) const;

  /// The option that the pane asks about; nothing while it does not ask.
  [[nodiscard]] std::optional<std::size_t> asksAbout() const { return asksAbout_; }

  /// asksAbout() has changed.
  Event<> onAsk;

  /// The pane must be shown, even if it already is.
  Event<> onShowPane;

  Event<> onBack;

  /// cmdWorkbook
  Event<> onExport;

  /// The user wants to see the saved options side by side.
  Event<> onCompare;

 private:
  void build();
  void addOption(const FieldCollection& option, int number, int& column);
  void addField(Field& field, int column);
  void removeClicked();
  void removeAtCursor();
  [[nodiscard]] std::optional<std::size_t> removedByClick() const;
  [[nodiscard]] bool askToRemove(std::optional<std::size_t> option);
  void remove(std::size_t option);
  void saveTable();

  Services& services_;
  SavedOptions& summaryResults_;
  Outside outside_;
  std::optional<std::size_t> asksAbout_;
};

}  // namespace verdalis
