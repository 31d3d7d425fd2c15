#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/FarmDocument.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// A saved option as it is compared with others.
struct ComparedOption {
  std::string name;  ///< Its heading
  SharedList<SavedOption>::Item saved;
};

/// A row of a comparison.
struct ComparisonRow {
  std::string head;
  std::vector<std::string> cells;  ///< One for each option; at the start of a section one note, or none
  bool section = false;            ///< Starts a section
  std::string unit = {};           ///< Of `numbers`, such as "$/acre"

  /// The numbers that the cells tell, with all their digits; empty for a row of texts.
  std::vector<std::optional<double>> numbers = {};
};

/// Saved options side by side: their net returns, the inputs that differ, and their fields.
struct Comparison {
  std::vector<ComparisonRow> rows;
  std::size_t netReturnRows = 0;  ///< The first rows, which tell the net returns
  std::vector<bool> best;         ///< For each option, whether none has a better net return
};

/// Returns the option as the panes show it, made from its saved figures. It is not changed.
using OptionToPrice = std::function<FieldCollection&(const SavedOption&)>;

/// Compares options. Figures are those with which an option was saved. One that was not worked out then is
/// worked out from `toPrice`, with the irrigation efficiency of the option's own inputs; without `toPrice` it
/// counts as 0. A figure that cannot be worked out is shown as a dash.
///
/// Options whose net returns differ by less than half a dollar are equally good.
[[nodiscard]] Comparison compareOptions(const std::vector<ComparedOption>& options,
                                        const OptionToPrice& toPrice);

/// Shown in place of a value that an option does not have.
inline constexpr const char* noValue = "-";

/// A caption of a pane as the head of a row: without its colon.
[[nodiscard]] std::string captionHead(std::string_view caption);

/// The head of the row of a field at the top of the main pane, by the name of its control.
[[nodiscard]] std::string inputHead(std::string_view control);

/// A row for each input that is not the same for all options. An input of a crop is compared between the
/// options that have the crop, and is a dash for the others.
[[nodiscard]] std::vector<ComparisonRow> differingInputs(const std::vector<ComparedOption>& options);

}  // namespace verdalis
