#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

#include "document/describeChange.h"

namespace verdalis {

/// Documents are shared, and never changed.
using SharedDocument = std::shared_ptr<const FarmDocument>;

/// A change that can be undone: the document before and after it.
struct UndoStep {
  std::string name;
  ChangePlace place = ChangePlace::main;
  std::string crop;  ///< For ChangePlace::costs
  SharedDocument before;
  SharedDocument after;
};

/// The changes of a document, of which the last ones may be undone.
class UndoHistory {
 public:
  /// The oldest steps beyond this number are forgotten. A step costs a few kilobytes.
  static constexpr std::size_t mostSteps = 5000;

  /// Adds a step. Steps that are undone are forgotten.
  void add(UndoStep step);

  /// The step that undo goes back from; nullptr if there is none. Likewise for redo.
  [[nodiscard]] const UndoStep* toUndo() const;
  [[nodiscard]] const UndoStep* toRedo() const;

  /// Move between the steps. Their step must exist.
  void undone() { --next_; }
  void redone() { ++next_; }

  /// Something that nobody entered has changed in the present document: the steps at it lead to and from
  /// `document` from now on.
  void replacePresent(const SharedDocument& document);

  void clear();

  /// Number of steps, undone ones included.
  [[nodiscard]] std::size_t size() const { return steps_.size(); }

 private:
  std::deque<UndoStep> steps_;
  std::size_t next_ = 0;  ///< Of the step to redo
};

}  // namespace verdalis
