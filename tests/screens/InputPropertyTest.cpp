#include <rapidcheck.h>

#include <string>

#include "tests/screens/InputFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(InputTest, NoTypedTextThrows) {
  rc::check([this](const std::string& text, double limit) {
    static_cast<void>(messagesFor(text, limit));
    RC_ASSERT(box.text() == text || box.text() == "7");
  });
}

}  // namespace
}  // namespace verdalis::testing
