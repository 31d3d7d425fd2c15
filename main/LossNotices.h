#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "document/DocumentKeeper.h"
#include "main/NoticeBar.h"

namespace verdalis {

/// Offers back what a step of the program replaces or clears as a whole: default values, a cleared page, crop
/// rows that are read again, the saved inputs at the end of a trend, a removed option.
class LossNotices {
 public:
  LossNotices(Desk& desk, DocumentKeeper& keeper, NoticeBar& notices);

  /// A step of the document by this control is offered back. `text` tells what is gone; nothing is told if it
  /// is empty.
  using Text = std::function<std::string(const UndoStep&)>;
  void watch(const Control& control, Text text);

  /// The same for removed options, whatever has removed them.
  void watchSavedOptions();

  /// The texts on a page are offered back after an action of this control that has replaced some. They belong
  /// to the page, not to the document.
  void watchPage(const Control& control, Frame& page, const std::string& text);

  /// How to undo and show a step, for a loss that is the last step.
  std::function<void()> undo;

 private:
  struct Page {
    Frame* page;
    std::string text;
  };
  using Texts = std::vector<std::pair<Control*, std::string>>;

  void acted();
  void step(const UndoStep& step);
  void offer(const std::string& text, const UndoStep& step);
  void restore(const UndoStep& step);

  DocumentKeeper& keeper_;
  NoticeBar& notices_;
  std::vector<std::pair<const Control*, Text>> watched_;
  std::vector<std::pair<const Control*, Page>> pages_;
  bool watchesSaved_ = false;
  const Control* actor_ = nullptr;  ///< Only compared, never used
  Texts before_;                    ///< On the page of the action that is under way
};

/// What a step has taken away, put back into the present document: of all that the step has changed, the
/// values of before. What was changed otherwise since stays.
[[nodiscard]] FarmDocument withLossRestored(const FarmDocument& present, const UndoStep& step);

/// Number of crops for which the step has replaced something that was entered.
[[nodiscard]] std::size_t cropsReplaced(const UndoStep& step);

/// Whether the step has replaced an irrigation plant that was entered.
[[nodiscard]] bool plantReplaced(const UndoStep& step);

}  // namespace verdalis
