#include <rapidcheck.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "data/FileReader.h"
#include "data/readFile.h"
#include "tests/screens/CustomCropSave.h"

namespace verdalis::testing {
namespace {

TEST_F(CustomCropSave, ASavedCropCanBeLoadedAndIsInTheLibrary) {
  EXPECT_TRUE(rc::check("save, open, load", [this] {
    const int from = *rc::gen::inRange(0, 3);
    const int to = *rc::gen::inRange(0, 21);
    const int most = *rc::gen::inRange(0, 33);
    list(1).pick(from);
    list(2).pick(to);
    list(3).pick(most);
    pane.cmdCustomGrid0.click();
    Strings cells;
    for (int row = 1; row < grid().rows(); ++row) {
      for (int column = 1; column < grid().columns(); ++column) {
        const int n = *rc::gen::inRange(0, 1000);
        cells.push_back(row + column == 2 || n % 5 != 0 ? std::to_string(n) : std::string());
        grid().setCell(row, column, cells.back());
      }
    }
    pane.txtCustom.type("Oats");
    save();
    pane.open();
    list(0).pick(1);
    RC_ASSERT(list(1).index() == from);
    RC_ASSERT(list(2).index() == to);
    RC_ASSERT(list(3).index() == most);
    auto expected = cells.begin();
    for (int row = 1; row < grid().rows(); ++row) {
      for (int column = 1; column < grid().columns(); ++column)
        RC_ASSERT(grid().cell(row, column) == *expected++);
    }
    RC_ASSERT(expected == cells.end());

    const std::string bytes = readFile(folder() / "Oats.txt");
    RC_ASSERT(std::count(bytes.begin(), bytes.end(), '\n') == 9);
    const auto line = [&](const std::string& key) {
      const std::size_t begin = bytes.find(key) + key.size();
      return bytes.substr(begin, bytes.find("\r\n", begin) - begin);
    };
    const YieldTable table =
        FileReader::makeYieldArray(line("ANNUAL_RAIN="), line("EFF_IRRIG="), line("YIELD_VALUES="));
    RC_ASSERT(table.maxIrrigation() == most);
    RC_ASSERT(table.cell(0, 9 + from) == std::stod(cells[0]));
    std::filesystem::remove(folder() / "Oats.txt");
    pane.open();
  }));
}

}  // namespace
}  // namespace verdalis::testing
