#pragma once

#include <deque>
#include <functional>
#include <string>

#include "controls/Event.h"
#include "controls/displays.h"

namespace verdalis {

/// The bar that offers recovery copies, one after another in the order of the offers. It blocks nothing and
/// never takes the focus by itself. An offer goes only by one of its two buttons. While one stands, the bar
/// of the notices is set aside.
class RecoveryBar : public Frame {
 public:
  explicit RecoveryBar(Frame& window);

  Label lblRecovery{*this, "lblRecovery"};
  Label lblRecoveryCount{*this, "lblRecoveryCount"};  ///< Such as "1 of 3"; invisible for a single offer
  Button cmdRestore{*this, "cmdRestore", "Restore"};
  Button cmdDiscardRecovery{*this, "cmdDiscardRecovery", "Discard"};

  /// Adds an offer behind the others. A button takes the offer away and runs its operation. If that throws,
  /// the offer stays, in front of the others.
  /// \param text what is offered: the farm, with date and time
  void offer(std::string text, std::function<void()> onRestore, std::function<void()> onDiscard);

  /// Whether an offer stands.
  [[nodiscard]] bool standing() const { return !offers_.empty(); }

  Event<> onStandingChange;  ///< The first offer has come, or the last one has gone

 private:
  struct Offer {
    std::string text;
    std::function<void()> onRestore;
    std::function<void()> onDiscard;
  };

  void answer(std::function<void()> Offer::*operation);
  void refresh();

  std::deque<Offer> offers_;
};

}  // namespace verdalis
