#include <rapidcheck.h>

#include <string>

#include "tests/screens/IrrigCostsFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(IrrigCosts, NoTypedTextThrows) {
  pane.showDefaults();
  rc::check([this](const std::string& text) {
    for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
      if (field.box != nullptr) (pane.*field.box).type(text);
    }
    pane.cboFuelType.pick(0);
    RC_ASSERT(pane.lblICosts.caption().starts_with("$"));
    pane.showDefaults();
  });
}

}  // namespace
}  // namespace verdalis::testing
