#include <rapidcheck.h>

#include <string>

#include "screens/CustomGrid.h"
#include "tests/screens/CustomCropPaste.h"

namespace verdalis::testing {
namespace {

TEST_F(CustomCropPaste, RestoresTheDataOfACopy) {
  EXPECT_TRUE(rc::check("a table comes back as it was copied", [this] {
    const auto cell = rc::gen::map(rc::gen::inRange(0, 100000), [](int n) {
      return n % 7 == 0 ? std::string() : std::to_string(n / 10) + "." + std::to_string(n % 10);
    });
    const auto cells = *rc::gen::container<Strings>(4, cell);
    fillCustomGrid(grid(), cells);
    const Strings before{rowOf(1)[1] + "|" + rowOf(1)[2], rowOf(2)[1] + "|" + rowOf(2)[2]};
    std::string data = cells[0] + "\t" + cells[1] + "\r\n" + cells[2] + "\t" + cells[3];
    // An empty field at the very end of a text is a field too.
    RC_ASSERT(pasted("9\t9\n9\t9") == (Strings{"9|9", "9|9"}));
    RC_ASSERT(pasted(data) == before);
  }));
}

}  // namespace
}  // namespace verdalis::testing
