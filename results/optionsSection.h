#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "handout/Handout.h"
#include "model/FieldCollection.h"

namespace verdalis {

// The options of a run for reports and workbooks. Nothing is stored in an option. What cannot be worked out
// is left empty.

/// Options as a run lists them.
struct ListedOptions {
  std::vector<std::shared_ptr<FieldCollection>> options;  ///< Each with fields
  std::vector<std::size_t> numbers;                       ///< By option, from 1; 0 for one without a rank
  double efficiency = 0;                                  ///< Of the run, as a fraction
  bool trend = false;  ///< A trend made the options, each under inputs of its own

  /// Options that are numbered in their order; those without fields are left out.
  [[nodiscard]] static ListedOptions inOrder(const std::vector<std::shared_ptr<FieldCollection>>& options,
                                             double efficiency, bool trend = false);
};

/// A row for each option: its crops, the gross inches of its fields, its net return, and how far it is behind
/// the best.
/// \param rows the most rows; nothing for all
[[nodiscard]] HandoutSection optionsSection(const ListedOptions& list,
                                            std::optional<std::size_t> rows = std::nullopt);

/// A row for each field of each option, with all that is known of it.
[[nodiscard]] HandoutSection optionFieldsSection(const ListedOptions& list);

/// The columns of optionFieldsSection().
[[nodiscard]] std::vector<HandoutColumn> optionFieldsColumns();

/// Adds the rows of an option, each with `front` before its cells.
void addOptionFields(HandoutTable& table, std::size_t number, const FieldCollection& option,
                     double efficiency, const std::vector<HandoutCell>& front = {});

}  // namespace verdalis
