#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "engine/Split.h"
#include "model/CropScenario.h"

namespace verdalis::reference {

/// A last-in-first-out stack of splits. Stores and returns copies. Pop() and Top() need an entry.
class Stack {
 public:
  [[nodiscard]] std::size_t Count() const { return entries_.size(); }
  Split Pop() {
    Split top = entries_.back();
    entries_.pop_back();
    return top;
  }
  void Push(const Split& split) { entries_.push_back(split); }
  [[nodiscard]] Split Top() const { return entries_.back(); }

 private:
  std::vector<Split> entries_;
};

/// A last-in-first-out stack of crop scenarios. Push() moves the entry from the caller.
class CStack {
 public:
  [[nodiscard]] std::size_t Count() const { return entries_.size(); }
  CropScenario Pop() {
    CropScenario top = std::move(entries_.back());
    entries_.pop_back();
    return top;
  }
  void Push(CropScenario& scenario) { entries_.push_back(std::exchange(scenario, {})); }

  /// nullptr if the stack is empty.
  [[nodiscard]] const CropScenario* Top() const { return entries_.empty() ? nullptr : &entries_.back(); }

 private:
  std::vector<CropScenario> entries_;
};

}  // namespace verdalis::reference
