#pragma once

#include <optional>
#include <vector>

#include "controls/inputs.h"
#include "explore/FarmInput.h"

namespace verdalis {

/// A list of inputs to choose from.
class InputChoice {
 public:
  explicit InputChoice(ComboBox& box) : box_(box) {}

  /// Fills the list. The chosen input stays chosen if it is still there, or else `preferred` is.
  void fill(const std::vector<FarmInput>& inputs, std::size_t preferred);

  /// The chosen input; nothing if none is.
  [[nodiscard]] std::optional<FarmInput> input() const;

 private:
  ComboBox& box_;
  std::vector<FarmInput> inputs_;
};

}  // namespace verdalis
