#pragma once

#include "controls/Grid.h"
#include "tests/controls/Fixture.h"

namespace verdalis::testing {

/// A grid of 3 rows and 2 columns; the log tells when its view is notified.
class Grids : public ControlsFixture {
 protected:
  Grids() { grid.onStateChange.connect(writes("watcher")); }

  Grid grid{window, "grdCustom", 3, 2};
};

}  // namespace verdalis::testing
