// "Export..." on the pages: the name of the file, and what is told about it.

#include <gmock/gmock.h>

#include <optional>
#include <string>

#include "tests/main/Export.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

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

TEST_F(Export, APageWithoutAnAnswerHasNothingToExport) {
  start();
  choose("mnuWater");
  EXPECT_FALSE(control<Button>("pneWater.cmdExport").enabled());
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
