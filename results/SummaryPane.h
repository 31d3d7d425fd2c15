#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/Grid.h"
#include "controls/displays.h"
#include "controls/services.h"
#include "model/Field.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The cells of a grid as comma-separated lines, each ended by CR LF. Texts stand as they are, without
/// quotation: an amount such as "$1,234 /acre" makes two fields of it, and that is meant.
[[nodiscard]] std::string commaSeparated(const Grid& grid);

/// The table of the options that were saved for comparison: a column for each field, which can be removed by
/// clicking and saved as a comma-separated file.
class SummaryPane : public Frame {
 public:
  using SavedOptions = std::vector<std::shared_ptr<FieldCollection>>;

  /// What the pane needs of the rest of the program.
  struct Outside {
    std::function<std::string()> annualRain;  ///< The text of the rainfall field
    /// Writes a file whole. \throws RunTimeError
    std::function<void(const std::filesystem::path&, std::string_view)> writeFile;
  };

  /// `summaryResults` are the saved options in order; removing takes them out of it.
  SummaryPane(Frame& container, Services& services, SavedOptions& summaryResults, Outside outside);

  Label Label59{*this, "Label59(1)"};  ///< The line above the grid
  Grid fgsummary{*this, "fgsummary", 12, 2};
  Button cmdExcelSave{*this, "cmdExcelSave", "Save table to CSV"};
  Button cmdCancel{*this, "cmdCancel(2)", "Back"};

  /// What the menu entry "Summary Table" does: builds the table from the options as they are now and asks for
  /// the pane to be shown. The rainfall and the efficiency are those of now too, not those of the saving.
  /// \throws RunTimeError for a figure that cannot be calculated; the table then ends at that field.
  void showSummary();

  /// The pane is to be shown, even if it is the one on show.
  Event<> onShowPane;

  Event<> onBack;

 private:
  void build();
  void addOption(const FieldCollection& option, int number, int& column);
  void addField(Field& field, int column);
  void removeClicked();
  void saveTable();

  Services& services_;
  SavedOptions& summaryResults_;
  Outside outside_;
};

}  // namespace verdalis
