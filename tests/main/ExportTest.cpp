// "Export..." on the pages: the workbook, its name, and what is told about it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/main/RunningProgram.h"
#include "tests/xlsx/WorkbookFile.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct Export : RunningProgram, ::testing::Test {
  /// Presses a button that exports to a file with this name.
  void save(const std::string& button, const std::string& name = "out.xlsx") {
    fakes.fileChooser.answers.emplace_back(folder / name);
    press(button);
  }

  [[nodiscard]] WorkbookFile book(const std::string& name = "out.xlsx") const {
    return WorkbookFile(folder.read(name));
  }

  [[nodiscard]] std::string notice() { return control<Label>("lblNotice").caption(); }
  [[nodiscard]] const FileQuestion& asked() const { return fakes.fileChooser.saveLog.back(); }
};

TEST_F(Export, TheResultsBecomeAWorkbook) {
  frmMain& main = start();
  typeFarm();
  press("Command1");
  save("theResults.cmdExport");
  EXPECT_EQ(asked().suggestedName, "Evaluation.xlsx");
  EXPECT_TRUE(asked().folder.empty());
  const WorkbookFile file = book();
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

TEST_F(Export, TheNoticeOpensTheFileOrItsFolder) {
  start();
  typeFarm();
  press("Command1");
  save("theResults.cmdExport");
  EXPECT_EQ(control<Button>("cmdNotice").caption(), "Open");
  EXPECT_EQ(control<Button>("cmdNotice2").caption(), "Open folder");
  press("cmdNotice2");
  EXPECT_FALSE(control<Button>("cmdNotice2").visible());
  save("theResults.cmdExport");
  press("cmdNotice");
  EXPECT_THAT(fakes.openFile.opened, ElementsAre(folder.path(), folder / "out.xlsx"));
}

TEST_F(Export, ACancelledChooserDoesNothing) {
  start();
  typeFarm();
  press("Command1");
  fakes.fileChooser.answers.emplace_back(std::nullopt);
  press("theResults.cmdExport");
  EXPECT_EQ(notice(), "");
}

TEST_F(Export, AFileThatCannotBeWrittenIsToldAndLosesNothing) {
  start();
  typeFarm();
  press("Command1");
  save("theResults.cmdExport", "missing/out.xlsx");
  EXPECT_THAT(notice(), HasSubstr((folder / "missing/out.xlsx").string()));
  EXPECT_THAT(notice(), HasSubstr("still on screen"));
  EXPECT_EQ(history().back(), "pneResults");
  EXPECT_FALSE(control<Button>("cmdNotice2").visible());
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
    const WorkbookFile file = book(std::string(pane) + ".xlsx");
    EXPECT_EQ(file.sheets()[0], sheet);
    EXPECT_TRUE(file.has("xl/charts/chart1.xml"));
    EXPECT_EQ(file.sheets().size(), 3U);
  }
}

TEST_F(Export, APageWithoutAnAnswerHasNothingToExport) {
  start();
  choose("mnuWater");
  EXPECT_FALSE(control<Button>("pneWater.cmdExport").enabled());
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
  const WorkbookFile saved = book("saved.xlsx");
  EXPECT_EQ(saved.sheets()[0], "Saved options");
  const std::size_t head = saved.rowOf(0, "Saved option");
  EXPECT_EQ(saved.row(0, head + 4, 2)[0].number, 2);
  press("cmdCompare");
  save("cmdExport", "compare.xlsx");
  const WorkbookFile compared = book("compare.xlsx");
  EXPECT_EQ(compared.sheets()[0], "Comparison");
  const std::size_t row = compared.rowOf(0, "Net return of the farm ($)");
  ASSERT_GT(row, 0U);
  EXPECT_NEAR(compared.row(0, row, 2)[1].number, main.theResults.getTotalProfit(1), 1e-9);
}

TEST_F(Export, FilesAreNamedAfterTheFarm) {
  frmMain& main = start();
  main.keeper.change([](FarmDocument& farm) { farm.name = "North/South: \"home\"?"; });
  EXPECT_EQ(main.farms.fileName("Map", ".xlsx"), "North South   home   - Map.xlsx");
  main.keeper.change([](FarmDocument& farm) { farm.name = "..hidden"; });
  EXPECT_EQ(main.farms.fileName("", ".verdalis"), "hidden.verdalis");
  main.keeper.change([](FarmDocument& farm) { farm.name = std::string(300, 'a') + "\u00E4"; });
  EXPECT_EQ(main.farms.fileName("", ".x").size(), 122U);
  fakes.fileChooser.answers.emplace_back(std::nullopt);
  main.keeper.change([](FarmDocument& farm) { farm.name = "Home"; });
  choose("mnuSaveAs");
  EXPECT_EQ(asked().suggestedName, "Home.verdalis");
}

}  // namespace
}  // namespace verdalis::testing
