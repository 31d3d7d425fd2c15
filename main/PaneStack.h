#pragma once

#include <string_view>
#include <vector>

#include "controls/Control.h"

namespace verdalis {

/// The panes of the main window and the history of those that were shown.
class PaneStack {
 public:
  /// Declares a frame to be a pane. Elements of an array of panes share the name in front of the index.
  void addPane(Frame& pane);

  /// Pushes the pane on the history, makes it visible and hides the others. Elements of the same array are
  /// not hidden: showing one leaves the visibility of its sister as it was.
  void showPane(Frame& pane);

  /// The pane below the top of the history. The history never shrinks, and that is meant: every pane ever
  /// shown stays in it. Before a second pane has been shown, the one on top.
  [[nodiscard]] Frame& popPane() const;

  /// The pane shown last.
  [[nodiscard]] Frame& top() const { return *paneStack_.back(); }

  /// Every pane ever shown, in order.
  [[nodiscard]] const std::vector<Frame*>& history() const { return paneStack_; }

  [[nodiscard]] const std::vector<Frame*>& panes() const { return panes_; }

 private:
  std::vector<Frame*> panes_;
  std::vector<Frame*> paneStack_;
};

}  // namespace verdalis
