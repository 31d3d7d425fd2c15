#pragma once

#include <string_view>
#include <vector>

#include "controls/Control.h"

namespace verdalis {

/// The panes of the main window and the history of shown panes.
class PaneStack {
 public:
  /// Adds a frame as a pane. Panes of the same array have the same name before the index.
  void addPane(Frame& pane);

  /// Pushes a pane on the history, makes it visible and hides the others. The visibility of other panes of
  /// the same array does not change.
  void showPane(Frame& pane);

  /// Shows a pane that leaves the history when another pane is shown, so that "Back" on the pane below it
  /// does not return to it.
  void showPassing(Frame& pane);

  /// The pane below the top of the history, or the top one if only one pane has been shown. Does not remove a
  /// pane: except for a passing pane, the history never shrinks. This is intended.
  [[nodiscard]] Frame& popPane() const;

  /// The pane that was shown last.
  [[nodiscard]] Frame& top() const { return *paneStack_.back(); }

  /// All panes shown so far, in order. Of the passing panes, only the one that is still shown.
  [[nodiscard]] const std::vector<Frame*>& history() const { return paneStack_; }

  [[nodiscard]] const std::vector<Frame*>& panes() const { return panes_; }

 private:
  void bringForward(Frame& pane);

  std::vector<Frame*> panes_;
  std::vector<Frame*> paneStack_;
  bool passing_ = false;  ///< The top of the history is a passing pane
};

}  // namespace verdalis
