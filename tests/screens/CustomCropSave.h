#pragma once

#include <string>

#include "tests/screens/CustomCropFixture.h"

namespace verdalis::testing {

/// The open editor, with crops to save.
class CustomCropSave : public CustomCropEditor {
 protected:
  CustomCropSave() { pane.open(); }

  /// A crop that can be saved: 11 and 12 inches, no irrigation.
  void enterCrop(const std::string& name) {
    makeSmallest();
    pane.txtCustom.type(name);
    grid().setCell(1, 1, "1.5");
    grid().setCell(1, 2, "2");
  }

  void save() { pane.cmdCustomGrid2.click(); }

  /// One saved crop is selected.
  void selectSaved() {
    writeCrop("oats.txt", "Oats");
    pane.open();
    list(0).pick(1);
  }

  [[nodiscard]] Strings files() const { return home.names("custom"); }
};

}  // namespace verdalis::testing
