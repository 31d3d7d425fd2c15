#include "data/StockGrids.h"
#include "screens/CustomGrid.h"
#include "tests/screens/CustomCropPaste.h"

namespace verdalis::testing {
namespace {

using CustomCropGrid = CustomCropEditor;

TEST_F(CustomCropGrid, TheSmallestGridHasTwoRowsAndThreeColumns) {
  makeSmallest();
  EXPECT_EQ(grid().rows(), 2);
  EXPECT_EQ(rowOf(0), (Strings{"", "11 in.", "12 in."}));
  EXPECT_EQ(rowOf(1), (Strings{"0 in.", "", ""}));
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(CustomCropGrid, TheLargestGridHas33RowsAnd24ColumnsOfData) {
  list(1).pick(0);
  list(2).pick(20);
  list(3).pick(32);
  pane.cmdCustomGrid0.click();
  EXPECT_EQ(grid().rows(), 34);
  EXPECT_EQ(grid().columns(), 25);
  EXPECT_EQ(grid().cell(0, 24), "32 in.");
  EXPECT_EQ(grid().cell(33, 0), "32 in.");
}

TEST_F(CustomCropGrid, ResizingKeepsTheCellsThatFit) {
  makeSmallest();
  grid().setCell(1, 1, "a");
  grid().setCell(1, 2, "b");
  list(2).pick(3);
  list(3).pick(2);
  pane.cmdCustomGrid0.click();
  EXPECT_EQ(rowOf(1), (Strings{"0 in.", "a", "b", "", "", ""}));
  makeSmallest();
  EXPECT_EQ(rowOf(1), (Strings{"0 in.", "a", "b"}));
}

TEST_F(CustomCropGrid, ChangingTheListsDoesNotResizeTheGrid) {
  makeSmallest();
  list(2).pick(5);
  EXPECT_EQ(grid().columns(), 3);
}

TEST_F(CustomCropGrid, TypingChangesTheCurrentCell) {
  makeSmallest();
  grid().clickCell(1, 2);
  for (const char* character : {"1", "2", ".", "x", " ", "é", "🌽"})
    grid().typeCharacter(character);
  grid().typeCharacter("\t");
  grid().typeCharacter("");
  EXPECT_EQ(grid().cell(1, 2), "12.x é🌽");
  grid().clickCell(0, 1);
  grid().typeCharacter("!");
  EXPECT_EQ(grid().cell(0, 1), "11 in.!");
  EXPECT_FALSE(pane.customAltered);
}

TEST_F(CustomCropGrid, BackspaceRemovesTheLastCharacter) {
  makeSmallest();
  grid().clickCell(1, 1);
  const auto after = [&](const std::string& text) {
    grid().setCell(1, 1, text);
    grid().pressKey(GridKey::backspace);
    return grid().cell(1, 1);
  };
  EXPECT_EQ(after("12"), "1");
  EXPECT_EQ(after("1"), "");
  EXPECT_EQ(after(""), "");
  EXPECT_EQ(after("  "), "  ");
  EXPECT_EQ(after("1 "), "1");
  EXPECT_EQ(after("a🌽"), "a");
  EXPECT_EQ(after("\x80\x80"), "");
}

TEST_F(CustomCropGrid, ReturnMovesRightThenDownThenUp) {
  makeSmallest();
  list(3).pick(1);
  pane.cmdCustomGrid0.click();
  std::vector<std::pair<int, int>> cells;
  grid().clickCell(1, 1);
  for (int i = 0; i < 6; ++i) {
    grid().pressKey(GridKey::enter);
    cells.emplace_back(grid().row(), grid().column());
  }
  EXPECT_EQ(cells, (std::vector<std::pair<int, int>>{{1, 2}, {2, 0}, {2, 1}, {2, 2}, {1, 0}, {1, 1}}));
}

TEST_F(CustomCropGrid, CopyCutPasteAndDeleteActOnTheCurrentCell) {
  makeSmallest();
  grid().clickCell(1, 1);
  grid().setCell(1, 1, "5");
  grid().pressKey(GridKey::copy);
  EXPECT_EQ(fakes.clipboard.log, (Strings{"clear", "set 5"}));
  EXPECT_EQ(grid().cell(1, 1), "5");
  grid().setCell(1, 1, "6");
  grid().pressKey(GridKey::cut);
  EXPECT_EQ(fakes.clipboard.contents, "6");
  EXPECT_EQ(grid().cell(1, 1), "");
  grid().clickCell(1, 2);
  grid().setCell(1, 2, "old");
  grid().pressKey(GridKey::paste);
  EXPECT_EQ(grid().cell(1, 2), "6");
  grid().pressKey(GridKey::erase);
  EXPECT_EQ(grid().cell(1, 2), "");
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(CustomCropGrid, CopyingTheGridIncludesItsHeadings) {
  makeSmallest();
  grid().setCell(1, 1, "1.5");
  grid().setCell(1, 2, "2");
  pane.cmdCustomGrid3.click();
  EXPECT_EQ(fakes.clipboard.log, (Strings{"clear", "set \t11 in.\t12 in.\r\n0 in.\t1.5\t2"}));
  const Message box = theBox();
  EXPECT_EQ(box.title, "Ready to Paste");
  EXPECT_EQ(box.text, "Your grid has been copied to your clipboard and can now be pasted into Excel");
  EXPECT_EQ(box.icon, MessageIcon::exclamation);
  EXPECT_EQ(box.buttons, MessageButtons::ok);
}

TEST_F(CustomCropPaste, EveryKindOfLineEndEndsARow) {
  for (const char* text : {"1\t2\r\n3\t4\r\n", "1\t2\n3\t4\n", "1\t2\r3\t4", "1\t2\r\n3\t4\r\n\r\n"})
    EXPECT_EQ(pasted(text), (Strings{"1|2", "3|4"})) << text;
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_EQ(grid().row(), 1);
  EXPECT_EQ(grid().column(), 1);
}

TEST_F(CustomCropPaste, ValuesBeyondTheGridAreIgnored) {
  EXPECT_EQ(pasted("1\t2\t3\t4\n5\t6\t7\n8\t9\n"), (Strings{"1|2", "5|6"}));
  EXPECT_EQ(rowOf(0), (Strings{"", "11 in.", "12 in."}));
  EXPECT_EQ(grid().cell(1, 0), "0 in.");
  EXPECT_EQ(grid().rows(), 3);
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(CustomCropPaste, CellsBeyondTheTextKeepTheirContents) {
  pasted("1\t2\n3\t4");
  EXPECT_EQ(pasted("9\n"), (Strings{"9|2", "3|4"}));
  EXPECT_EQ(pasted("\t7\n"), (Strings{"|7", "3|4"}));
  EXPECT_EQ(pasted("1\n\n"), (Strings{"1|7", "|4"}));
  EXPECT_EQ(pasted("5\t"), (Strings{"5|", "|4"}));
  EXPECT_EQ(pasted("\n"), (Strings{"|", "|4"}));
}

TEST_F(CustomCropPaste, OtherCharactersAreRefused) {
  pasted("1\t2\n3\t4");
  for (const char* text : {"-1", "1,5", "1 2", "Corn", "1e3", "+1", "é", "🌽", "1\v2", "١٢", "\xff"}) {
    EXPECT_EQ(pasted(text), (Strings{"1|2", "3|4"})) << text;
    const Message box = theBox();
    EXPECT_EQ(box.title, "Try again");
    EXPECT_EQ(box.icon, MessageIcon::exclamation);
    EXPECT_EQ(box.text,
              "Non-numeric characters were detected in the data being pasted into the grid.  Please only "
              "copy numeric values from Excel, do not include header rows or any cells with non-numeric "
              "characters. Please try again.");
  }
  pasted(std::string("1\0002", 3));
  EXPECT_EQ(theBox().title, "Try again");
}

TEST_F(CustomCropPaste, AnEmptyClipboardIsReported) {
  EXPECT_EQ(pasted(""), (Strings{"|", "|"}));
  const Message box = theBox();
  EXPECT_EQ(box.title, "Copy from Excel");
  EXPECT_EQ(box.text, "Copy your selection from a Microsoft Excel worksheet first!");
  EXPECT_EQ(box.icon, MessageIcon::exclamation);
}

TEST_F(CustomCropPaste, NotifiesTheViewOnce) {
  int changes = 0;
  grid().onStateChange.connect([&] { ++changes; });
  pasted("1\t2\n3\t4");
  EXPECT_EQ(changes, 1);
}

// Ten megabytes of each kind of text that could make pasting slow.
TEST_F(CustomCropPaste, AHugeClipboardIsCutToTheGrid) {
  constexpr std::size_t size = 10U << 20U;
  const std::string digits(size, '7');
  EXPECT_EQ(pasted(digits), (Strings{digits + "|", "|"}));
  EXPECT_EQ(pasted(std::string(size, '\t')), (Strings{"|", "|"}));
  EXPECT_EQ(pasted("1" + std::string(size, '\n')), (Strings{"1|", "|"}));
  EXPECT_EQ(pasted("1" + std::string(size, '\r') + "2"), (Strings{"1|", "|"}));
  std::string table;
  while (table.size() < size)
    table += "1\t2\t3\r\n";
  EXPECT_EQ(pasted(table), (Strings{"1|2", "1|2"}));
  EXPECT_TRUE(fakes.messageBox.log.empty());
  pasted(digits + "x");
  EXPECT_EQ(theBox().title, "Try again");
}

struct DefaultRow {
  const char* crop;
  const char* lastRain;
  const char* maxIrrigation;
  const char* units;
  int rows;
  Strings first;
  Strings last;
};

const std::vector<DefaultRow>& defaultRows() {
  static const std::vector<DefaultRow> rows{
      {"Corn",
       "21",
       "24",
       "bushels/acre",
       25,
       {"0 in.", "0", "0", "0", "0", "0", "0", "0", "11.1", "25.6", "39.9", "54"},
       {"24 in.", "203.8", "205.4", "206.8", "208", "209.1", "210", "210.8", "211.5", "212.2", "212.7",
        "213.3"}},
      {"Alfalfa",
       "21",
       "22",
       "tons/acre",
       23,
       {"0 in.", "1.391", "1.616", "1.854", "2.105", "2.368", "2.643", "2.93", "3.227", "3.535", "3.853",
        "4.181"},
       {"22 in.", "8.677", "8.977", "9.229", "9.43", "9.585", "9.707", "9.804", "9.883", "9.95", "10.006",
        "10.055"}},
      {"Grain Sorghum",
       "21",
       "20",
       "bushels/acre",
       21,
       {"0 in.", "0", "0", "4.9", "13.5", "22.5", "31.7", "41", "50.2", "58.3", "68.1", "76.6"},
       {"20 in.", "150", "151.6", "152.9", "154.1", "155", "155.8", "156.5", "157.1", "157.6", "158.1",
        "158.5"}},
      {"Soybeans",
       "21",
       "22",
       "bushels/acre",
       23,
       {"0 in.", "0", "0", "0", "0", "1.69", "5.11", "8.63", "12.24", "15.92", "19.65", "23.41"},
       {"22 in.", "66.71", "67.32", "67.84", "68.28", "68.66", "68.98", "69.25", "69.48", "69.68", "69.86",
        "70.01"}},
      {"Sunflower",
       "21",
       "22",
       "pounds/acre",
       23,
       {"0 in.", "41", "176", "316", "461", "613", "770", "932", "1097", "1263", "1428", "1591"},
       {"22 in.", "3311", "3344", "3371", "3394", "3414", "3431", "3445", "3458", "3469", "3478", "3486"}},
      // The table is in bushels, but the unit is tons.
      {"Wheat",
       "21",
       "22",
       "tons/acre",
       23,
       {"0 in.", "0", "0", "0", "2.2", "7.6", "13", "18.4", "23.8", "29", "34.2", "39.2"},
       {"22 in.", "73.5", "74", "74.5", "74.9", "75.3", "75.6", "75.8", "76.1", "76.3", "76.5", "76.7"}},
  };
  return rows;
}

TEST_F(CustomCropGrid, LoadsTheDefaultTableOfEachStockCrop) {
  pane.open();
  for (std::size_t i = 0; i < defaultRows().size(); ++i) {
    const DefaultRow& row = defaultRows()[i];
    list(5).pick(static_cast<int>(i));
    EXPECT_EQ(list(5).text(), row.crop);
    EXPECT_EQ(list(1).text(), "11");
    EXPECT_EQ(list(1).index(), 2);
    EXPECT_EQ(list(2).text(), row.lastRain);
    EXPECT_EQ(list(3).text(), row.maxIrrigation);
    EXPECT_EQ(list(4).text(), row.units);
    EXPECT_EQ(grid().rows(), row.rows + 1);
    EXPECT_EQ(grid().columns(), 12);
    EXPECT_EQ(rowOf(0)[11], "21 in.");
    EXPECT_EQ(rowOf(1), row.first);
    EXPECT_EQ(rowOf(row.rows), row.last);
  }
  // The first one found an empty grid and asked nothing.
  EXPECT_EQ(fakes.messageBox.log.size(), defaultRows().size() - 1);
  EXPECT_FALSE(pane.customAltered);
}

TEST_F(CustomCropGrid, AsksBeforeDefaultsOverwriteTheGrid) {
  makeSmallest();
  for (const MessageAnswer given : {MessageAnswer::no, MessageAnswer::cancel}) {
    grid().setCell(1, 1, "5");
    answer(given);
    list(5).pick(0);
    const Message box = theBox();
    EXPECT_EQ(box.title, "Load defaults?");
    EXPECT_EQ(box.text,
              "Loading default crop values will overwrite any existing data you've entered for this custom "
              "crop.  Continue to load the default crop values?");
    EXPECT_EQ(box.icon, MessageIcon::question);
    EXPECT_EQ(box.buttons, MessageButtons::yesNo);
    EXPECT_EQ(list(5).text(), "Corn");
    EXPECT_EQ(rowOf(1), (Strings{"0 in.", "5", ""}));
  }
  answer(MessageAnswer::yes);
  list(5).pick(0);
  EXPECT_EQ(grid().rows(), 26);
}

TEST_F(CustomCropGrid, DefaultsAskOnlyIfTheFirstCellIsFilled) {
  makeSmallest();
  grid().setCell(1, 2, "5");
  list(5).pick(1);
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_EQ(grid().cell(1, 1), "1.391");
}

TEST(CustomGrid, FillsRowByRowAndIgnoresTheExcess) {
  Desk desk;
  Window window{desk, "w"};
  Grid grid{window, "g", 3, 3};
  fillCustomGrid(grid, Strings{"1", "2", "3", "4", "5"});
  EXPECT_EQ(customGridValues(grid), "1,2,3,4");
  fillCustomGrid(grid, Strings{"9"});
  EXPECT_EQ(customGridValues(grid), "9,2,3,4");
  Grid headsOnly{window, "h", 1, 1};
  fillCustomGrid(headsOnly, Strings{"1"});
  EXPECT_EQ(headsOnly.cell(0, 0), "");
  EXPECT_EQ(customGridValues(headsOnly), "");
}

TEST(CustomGrid, RefusesDescendingAndTooLongRanges) {
  Desk desk;
  Window window{desk, "w"};
  Grid grid{window, "g", 3, 3};
  EXPECT_THROW(sizeCustomGrid(grid, 12, 11, 0, 0), RunTimeError);
  EXPECT_THROW(sizeCustomGrid(grid, 9, 12, 0, -1), RunTimeError);
  EXPECT_THROW(sizeCustomGrid(grid, 0, 1000, 0, 0), RunTimeError);
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.columns(), 3);
}

}  // namespace
}  // namespace verdalis::testing
