#include <rapidcheck.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/screens/InputCostsFixture.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

using InputCostsTyping = InputCostsFixture;

TEST_F(InputCostsTyping, NoTypedTextThrows) {
  rc::check([this](const std::vector<std::string>& texts) {
    desk.onRunTimeError = [](const RunTimeError&) {};
    pane.open(alfalfa());
    std::size_t next = 0;
    for (const std::string& name : boxNames()) {
      if (texts.empty()) break;
      box(name).type(texts[next++ % texts.size()]);
    }
    pane.Command6.click();
    pane.Command13.click();
    for (const std::string& name : boxNames())
      RC_ASSERT(text(name).empty());
  });
}

}  // namespace
}  // namespace verdalis::testing
