#include "document/UndoHistory.h"

#include <cassert>
#include <utility>

namespace verdalis {

void UndoHistory::add(UndoStep step) {
  assert(step.before && step.after);
  steps_.resize(next_);
  steps_.push_back(std::move(step));
  if (steps_.size() > mostSteps) steps_.pop_front();
  next_ = steps_.size();
}

const UndoStep* UndoHistory::toUndo() const {
  return next_ == 0 ? nullptr : &steps_[next_ - 1];
}

const UndoStep* UndoHistory::toRedo() const {
  return next_ == steps_.size() ? nullptr : &steps_[next_];
}

void UndoHistory::replacePresent(const SharedDocument& document) {
  if (next_ > 0) steps_[next_ - 1].after = document;
  if (next_ < steps_.size()) steps_[next_].before = document;
}

void UndoHistory::clear() {
  steps_.clear();
  next_ = 0;
}

}  // namespace verdalis
