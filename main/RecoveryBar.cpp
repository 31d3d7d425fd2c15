#include "main/RecoveryBar.h"

#include <utility>

namespace verdalis {

RecoveryBar::RecoveryBar(Frame& window) : Frame(window, "recoveryBar") {
  cmdRestore.onClick.connect([this] { answer(&Offer::onRestore); });
  cmdDiscardRecovery.onClick.connect([this] { answer(&Offer::onDiscard); });
  refresh();
}

void RecoveryBar::offer(std::string text, std::function<void()> onRestore, std::function<void()> onDiscard) {
  offers_.push_back({std::move(text), std::move(onRestore), std::move(onDiscard)});
  refresh();
}

void RecoveryBar::answer(std::function<void()> Offer::*operation) {
  if (offers_.empty()) return;
  const Offer answered = offers_.front();
  offers_.pop_front();
  refresh();
  try {
    if (answered.*operation) (answered.*operation)();
  } catch (...) {
    offers_.push_front(answered);
    refresh();
    throw;
  }
}

void RecoveryBar::refresh() {
  const bool shown = standing();
  const bool changes = shown != visible();
  lblRecovery.setCaption(shown ? offers_.front().text : "");
  lblRecovery.setVisible(shown);
  lblRecoveryCount.setCaption(offers_.size() > 1 ? "1 of " + std::to_string(offers_.size()) : "");
  lblRecoveryCount.setVisible(offers_.size() > 1);
  cmdRestore.setVisible(shown);
  cmdDiscardRecovery.setVisible(shown);
  // The other bar goes before this one comes, and comes after this one has gone.
  if (changes && shown) onStandingChange();
  setVisible(shown);
  if (changes && !shown) onStandingChange();
}

}  // namespace verdalis
