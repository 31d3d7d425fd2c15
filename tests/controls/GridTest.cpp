#include <limits>

#include "tests/controls/GridFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(Grids, OnlyCellsInsideTheGridHoldTexts) {
  grid.setCell(2, 1, "a");
  EXPECT_EQ(grid.cell(2, 1), "a");
  EXPECT_EQ(take().size(), 1U);
  grid.setCell(2, 1, "a");
  EXPECT_TRUE(take().empty());
  constexpr int far = std::numeric_limits<int>::max();
  for (const auto& [row, column] :
       std::vector<std::pair<int, int>>{{3, 0}, {0, 2}, {-1, 0}, {0, -1}, {far, far}, {-far, 0}}) {
    grid.setCell(row, column, "x");
    grid.setColor(row, column, 0x008000);
    EXPECT_EQ(grid.cell(row, column), "");
    EXPECT_EQ(grid.color(row, column), std::nullopt);
  }
  EXPECT_TRUE(take().empty());
}

TEST_F(Grids, ResizingKeepsTheCellsThatFit) {
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 2; ++column)
      grid.setCell(row, column, std::to_string(row) + std::to_string(column));
  }
  grid.setColor(1, 1, 0xFF0000);
  grid.setCurrent(2, 1);
  grid.setSize(2, 3);
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_EQ(grid.columns(), 3);
  EXPECT_EQ(grid.cell(1, 1), "11");
  EXPECT_EQ(grid.cell(1, 0), "10");
  EXPECT_EQ(grid.cell(0, 2), "");
  EXPECT_EQ(grid.color(1, 1), 0xFF0000U);
  EXPECT_EQ(grid.row(), 1);
  EXPECT_EQ(grid.column(), 1);
  grid.setSize(3, 2);
  EXPECT_EQ(grid.cell(2, 0), "");
  grid.setSize(0, -5);
  EXPECT_EQ(grid.rows(), 1);
  EXPECT_EQ(grid.columns(), 1);
  EXPECT_EQ(grid.cell(0, 0), "00");
  static_cast<void>(take());
  grid.setSize(1, 1);
  EXPECT_TRUE(take().empty());
}

TEST_F(Grids, ACellHasAColour) {
  EXPECT_EQ(grid.color(0, 0), std::nullopt);
  grid.setColor(0, 0, 0x008000);
  EXPECT_EQ(grid.color(0, 0), 0x008000U);
  grid.setColor(0, 0, std::nullopt);
  EXPECT_EQ(grid.color(0, 0), std::nullopt);
}

TEST_F(Grids, ClearRemovesTextsAndColours) {
  grid.setCell(1, 1, "a");
  grid.setColor(1, 1, 1);
  grid.clear();
  EXPECT_EQ(grid.cell(1, 1), "");
  EXPECT_EQ(grid.color(1, 1), std::nullopt);
  EXPECT_EQ(grid.rows(), 3);
}

TEST_F(Grids, TheCurrentCellStaysInsideTheGrid) {
  grid.setCurrent(9, -3);
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.column(), 0);
}

TEST_F(Grids, ABatchNotifiesTheViewOnceAtItsEnd) {
  {
    const Grid::Batch outer(grid);
    {
      const Grid::Batch inner(grid);
      grid.setCell(0, 0, "a");
    }
    grid.setCell(0, 1, "b");
    EXPECT_TRUE(take().empty());
  }
  EXPECT_EQ(take(), Log{"watcher"});
}

TEST_F(Grids, AClickedCellBecomesTheCurrentOne) {
  grid.onClick.connect(
      [this] { log.push_back(std::to_string(grid.row()) + "," + std::to_string(grid.column())); });
  grid.clickCell(2, 1);
  EXPECT_EQ(take(), (Log{"watcher", "2,1"}));
  EXPECT_EQ(desk.focus(), &grid);
  grid.clickCell(3, 0);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(grid.row(), 2);
}

TEST_F(Grids, CharactersAndKeysRaiseTheirEvents) {
  Connection characters =
      grid.onCharacter.connectScoped([this](const std::string& character) { log.push_back(character); });
  Connection keys = grid.onKey.connectScoped(
      [this](GridKey key) { log.push_back("key " + std::to_string(static_cast<int>(key))); });
  grid.typeCharacter("5");
  grid.typeCharacter("\xC3\xA9");
  grid.pressKey(GridKey::enter);
  grid.pressKey(GridKey::cut);
  EXPECT_EQ(take(), (Log{"5", "\xC3\xA9", "key 0", "key 5"}));
  characters = Connection();
  keys = Connection();
  grid.typeCharacter("5");
  grid.pressKey(GridKey::paste);
  EXPECT_TRUE(take().empty());
}

}  // namespace
}  // namespace verdalis::testing
