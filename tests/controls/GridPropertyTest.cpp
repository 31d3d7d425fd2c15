#include <rapidcheck.h>

#include <string>

#include "tests/controls/GridFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(Grids, ResizingToAnySizeKeepsTheCellsThatFit) {
  rc::check([this] {
    const int rows = *rc::gen::inRange(1, 8);
    const int columns = *rc::gen::inRange(1, 8);
    grid.setSize(5, 5);
    for (int i = 0; i < 25; ++i)
      grid.setCell(i / 5, i % 5, std::to_string(i));
    grid.setSize(rows, columns);
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < columns; ++column) {
        const std::string expected = row < 5 && column < 5 ? std::to_string(row * 5 + column) : "";
        RC_ASSERT(grid.cell(row, column) == expected);
      }
    }
  });
}

}  // namespace
}  // namespace verdalis::testing
