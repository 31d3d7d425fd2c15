#pragma once

#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/displays.h"

namespace verdalis {

/// Shows a label while the inputs of a page are others than when the page was opened, because they take
/// effect only when they are applied.
class UnappliedMark {
 public:
  /// Both must outlive this object.
  UnappliedMark(Frame& page, Label& label);

  /// The inputs of now are those that are in force.
  void opened();

 private:
  void refresh();

  Frame& page_;
  Label& label_;
  std::vector<std::string> inForce_;
  Connection acts_;
};

}  // namespace verdalis
