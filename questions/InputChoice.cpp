#include "questions/InputChoice.h"

#include <algorithm>

#include "questions/inputTexts.h"

namespace verdalis {

void InputChoice::fill(const std::vector<FarmInput>& inputs, std::size_t preferred) {
  const std::optional<FarmInput> before = input();
  if (inputs == inputs_ && before) return;
  inputs_ = inputs;
  box_.clear();
  for (const FarmInput& each : inputs_)
    box_.addItem(inputLabel(each));
  auto index = static_cast<std::ptrdiff_t>(preferred);
  const auto same = before ? std::find(inputs_.begin(), inputs_.end(), *before) : inputs_.end();
  if (same != inputs_.end()) index = same - inputs_.begin();
  if (!inputs_.empty()) box_.setIndex(static_cast<int>(index));
}

std::optional<FarmInput> InputChoice::input() const {
  const int index = box_.index();
  if (index < 0 || static_cast<std::size_t>(index) >= inputs_.size()) return std::nullopt;
  return inputs_[static_cast<std::size_t>(index)];
}

}  // namespace verdalis
