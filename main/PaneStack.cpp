#include "main/PaneStack.h"

namespace verdalis {
namespace {

std::string_view arrayName(const Frame& pane) {
  const std::string_view name = pane.name();
  return name.substr(0, name.find('('));
}

}  // namespace

void PaneStack::addPane(Frame& pane) {
  pane.setVisible(false);
  panes_.push_back(&pane);
}

void PaneStack::showPane(Frame& pane) {
  if (passing_) paneStack_.pop_back();
  // Returning from a passing pane is not a new visit of the pane below it.
  const bool returns = passing_ && !paneStack_.empty() && paneStack_.back() == &pane;
  passing_ = false;
  if (!returns) paneStack_.push_back(&pane);
  bringForward(pane);
}

void PaneStack::showPassing(Frame& pane) {
  if (passing_) paneStack_.pop_back();
  passing_ = true;
  paneStack_.push_back(&pane);
  bringForward(pane);
}

void PaneStack::bringForward(Frame& pane) {
  pane.setVisible(true);
  for (Frame* other : panes_) {
    other->setCovered(other != &pane);
    if (arrayName(*other) != arrayName(pane)) other->setVisible(false);
  }
}

Frame& PaneStack::popPane() const {
  return paneStack_.size() < 2 ? *paneStack_.back() : *paneStack_[paneStack_.size() - 2];
}

}  // namespace verdalis
