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

/// The options of a fixed trend in the order of the values: rows are the values of the first process, columns
/// those of the second, if there is one. Counted from 0.
class TrendOptionArray {
 public:
  using Option = BestMix::Option;

  TrendOptionArray() = default;

  /// Creates an array with room for an option per value, or per pair of values.
  explicit TrendOptionArray(std::size_t rows) : dimensions_(1), rows_(rows), entries_(rows) {}
  TrendOptionArray(std::size_t rows, std::size_t columns)
      : dimensions_(2), rows_(rows), columns_(columns), entries_(rows * columns) {}

  /// 0 before the first fixed trend, else 1 or 2.
  [[nodiscard]] int dimensions() const { return dimensions_; }
  [[nodiscard]] std::size_t rows() const { return rows_; }
  [[nodiscard]] std::size_t columns() const { return columns_; }

  void set(std::size_t i, std::size_t j, Option option);

  /// An option. `j` is ignored if there is only one dimension.
  /// \throws RunTimeError (subscript) if there is no such option
  [[nodiscard]] const Option& at(std::size_t i, std::size_t j) const;

 private:
  [[nodiscard]] std::size_t place(std::size_t i, std::size_t j) const;

  int dimensions_ = 0;
  std::size_t rows_ = 0;
  std::size_t columns_ = 1;
  std::vector<Option> entries_;
};

/// The currently defined trend processes and the outcome of the last trend.
struct TrendState {
  /// The option chosen for a fixed trend; without fields for a variable trend.
  BestMix::Option SelectedOption = std::make_shared<FieldCollection>();

  std::vector<BatchProcess> ProcessCollection;  ///< In list order
  std::int16_t CurrentProcess = 0;              ///< The process shown by the pane, from 0
  std::int16_t MaximumBatches = 2;              ///< Highest number of processes

  std::vector<BestMix> BatchCollection;         ///< One ranking per value; only one after a fixed trend
  std::vector<TrendValue> TrendValues;          ///< Of the last variable trend
  verdalis::TrendOptionArray TrendOptionArray;  ///< Of the last fixed trend
  std::string TrendVariableName;                ///< Label of the variable that was last set
  std::string TrendVariableCrop;                ///< Its crop; empty for a variable of the whole farm
};

}  // namespace verdalis
