#pragma once

#include <memory>

#include "engine/ProgramState.h"
#include "model/FieldCollection.h"

namespace verdalis {

class SecondaryWindows;
class frmMain;

/// The menu Go: leads from any page to each page that has something to show. Its entries and those of the
/// menu Explore can be used only while they lead somewhere: not during a run, and those of Explore not while
/// a trend tries values.
class GoMenu {
 public:
  GoMenu(frmMain& window, ProgramState& state, SecondaryWindows& windows);

  /// Another farm has been put into the window: the results of the former one are not offered any more.
  void forgetResults();

  /// Whether the results of a trend are on show, or a field of theirs, that were opened from this menu. No
  /// trend is under way then.
  [[nodiscard]] bool isAtTrendResults() const { return atTrendResults_; }

 private:
  using Option = std::shared_ptr<FieldCollection>;

  void goMain();
  void goResults();
  void goTrend();
  void goSummary();
  void goCompare();
  void endTrend();
  void refresh();

  frmMain& window_;
  ProgramState& state_;
  Option formerResult_;  ///< The first option of the former farm; nullptr if there is none
  Option formerTrend_;
  bool atTrendResults_ = false;
  bool running_ = false;  ///< The progress window of a run is open
};

}  // namespace verdalis
