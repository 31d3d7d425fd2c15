#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/BestMix.h"
#include "model/FieldCollection.h"
#include "trend/BatchProcess.h"

namespace verdalis {

/// The options of a fixed trend in the order of the values: of the first process alone, or of the first
/// (rows) and the second (columns). Counted from 0.
class TrendOptionArray {
 public:
  using Option = BestMix::Option;

  TrendOptionArray() = default;

  /// Room for one option for each value, or for each pair of values.
  explicit TrendOptionArray(std::size_t rows) : dimensions_(1), rows_(rows), entries_(rows) {}
  TrendOptionArray(std::size_t rows, std::size_t columns)
      : dimensions_(2), rows_(rows), columns_(columns), entries_(rows * columns) {}

  /// 0 before the first fixed trend, else 1 or 2.
  [[nodiscard]] int dimensions() const { return dimensions_; }
  [[nodiscard]] std::size_t rows() const { return rows_; }
  [[nodiscard]] std::size_t columns() const { return columns_; }

  void set(std::size_t i, std::size_t j, Option option);

  /// An entry; with one dimension `j` takes no part.
  /// \throws RunTimeError (subscript) where there is none.
  [[nodiscard]] const Option& at(std::size_t i, std::size_t j) const;

 private:
  [[nodiscard]] std::size_t place(std::size_t i, std::size_t j) const;

  int dimensions_ = 0;
  std::size_t rows_ = 0;
  std::size_t columns_ = 1;
  std::vector<Option> entries_;
};

/// The trend processes that are being defined, and what the last trend has left.
struct TrendState {
  /// The option chosen for a fixed trend; without fields for a variable trend.
  BestMix::Option SelectedOption = std::make_shared<FieldCollection>();

  std::vector<BatchProcess> ProcessCollection;  ///< In the order of their list
  std::int16_t CurrentProcess = 0;              ///< The process that the pane shows, from 0
  std::int16_t MaximumBatches = 2;              ///< Most processes

  std::vector<BestMix> BatchCollection;         ///< One ranking for each value; one alone after a fixed trend
  std::vector<TrendValue> TrendValues;          ///< Of the last variable trend
  verdalis::TrendOptionArray TrendOptionArray;  ///< Of the last fixed trend
  std::string TrendVariableName;                ///< Label of the variable that a value was last put into
  std::string TrendVariableCrop;                ///< The crop with it; empty where it belongs to no crop
};

}  // namespace verdalis
