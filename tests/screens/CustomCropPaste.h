#pragma once

#include <string>

#include "tests/screens/CustomCropFixture.h"

namespace verdalis::testing {

/// The editor with a grid of 2 rows and 2 columns of data, to paste into.
class CustomCropPaste : public CustomCropEditor {
 protected:
  CustomCropPaste() {
    makeSmallest();
    list(3).pick(1);
    pane.cmdCustomGrid0.click();
  }

  /// The data cells after pasting, one text per row.
  Strings pasted(const std::string& text) {
    fakes.clipboard.contents = text;
    pane.cmdCustomGrid4.click();
    return {grid().cell(1, 1) + "|" + grid().cell(1, 2), grid().cell(2, 1) + "|" + grid().cell(2, 2)};
  }
};

}  // namespace verdalis::testing
