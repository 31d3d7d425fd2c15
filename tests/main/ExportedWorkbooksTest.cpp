// "Export..." on the pages: what is in the workbook.

#include <array>
#include <initializer_list>
#include <string>

#include "tests/main/Export.h"
#include "tests/xlsx/WorkbookFile.h"

namespace verdalis::testing {
namespace {

/// The workbook with this name.
WorkbookFile bookIn(const TemporaryFolder& folder, const std::string& name) {
  return WorkbookFile(folder.read(name));
}

TEST_F(Export, TheResultsBecomeAWorkbook) {
  frmMain& main = start();
  typeFarm();
  press("Command1");
  save("theResults.cmdExport");
  EXPECT_EQ(asked().suggestedName, "Evaluation.xlsx");
  EXPECT_TRUE(asked().folder.empty());
  const WorkbookFile file = bookIn(folder, "out.xlsx");
  ASSERT_TRUE(file.sound());
  EXPECT_EQ(file.sheets()[0], "Options");
  EXPECT_EQ(file.sheets()[1], "Fields");
  EXPECT_EQ(file.sheets().size(), 4U);
  const std::size_t head = file.rowOf(0, "Rank");
  ASSERT_GT(head, 0U);
  const auto first = file.row(0, head + 1, 6);
  EXPECT_EQ(first[0].number, 1);
  EXPECT_NEAR(first[5].number, main.theResults.getTotalProfit(1), 1e-9);
  EXPECT_EQ(notice(), "Saved out.xlsx.");
}

TEST_F(Export, EachAnswerIsASheetWithTheInputsBehindIt) {
  start();
  typeFarm();
  for (const auto& [entry, pane, sheet] :
       std::initializer_list<std::array<const char*, 3>>{{"mnuWater", "pneWater", "Value of water"},
                                                         {"mnuMixes", "pneMixes", "Mixes"},
                                                         {"mnuInputs", "pneInputs", "What matters"}}) {
    choose(entry);
    save(std::string(pane) + ".cmdExport", std::string(pane) + ".xlsx");
    const WorkbookFile file = bookIn(folder, std::string(pane) + ".xlsx");
    EXPECT_EQ(file.sheets()[0], sheet);
    EXPECT_TRUE(file.has("xl/charts/chart1.xml"));
    EXPECT_EQ(file.sheets().size(), 3U);
  }
}

TEST_F(Export, SavedOptionsAndTheirComparisonBecomeWorkbooks) {
  frmMain& main = start();
  typeFarm();
  EXPECT_FALSE(main.pneSummary.cmdWorkbook.visible());
  press("Command1");
  press("theResults.cmdSaveResult");
  press("theResults.cmdAdvance");
  press("theResults.cmdSaveResult");
  choose("mnuSummary");
  save("cmdWorkbook", "saved.xlsx");
  const WorkbookFile saved = bookIn(folder, "saved.xlsx");
  EXPECT_EQ(saved.sheets()[0], "Saved options");
  const std::size_t head = saved.rowOf(0, "Saved option");
  EXPECT_EQ(saved.row(0, head + 4, 2)[0].number, 2);
  press("cmdCompare");
  save("cmdExport", "compare.xlsx");
  const WorkbookFile compared = bookIn(folder, "compare.xlsx");
  EXPECT_EQ(compared.sheets()[0], "Comparison");
  const std::size_t row = compared.rowOf(0, "Net return of the farm ($)");
  ASSERT_GT(row, 0U);
  EXPECT_NEAR(compared.row(0, row, 2)[1].number, main.theResults.getTotalProfit(1), 1e-9);
}

}  // namespace
}  // namespace verdalis::testing
