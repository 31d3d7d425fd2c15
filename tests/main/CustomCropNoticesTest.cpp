#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "data/SavedCropBlocks.h"
#include "tests/main/NoticesWindow.h"
#include "text/RunTimeError.h"

// The notices on custom crops that the editor replaces or deletes, and on names of crops.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using Strings = std::vector<std::string>;

TEST_F(Notices, AReplacedCropIsOfferedBack) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  saveCrop("Oats", "99");
  EXPECT_THAT(shown(),
              AllOf(HasSubstr("There was a custom crop Oats already"), HasSubstr(customFile("Oats.txt"))));
  EXPECT_NE(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_EQ(rowNamed("Oats").Crop->yieldTable->cell(0, 11), 99);
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_EQ(rowNamed("Oats").Crop->yieldTable->cell(0, 15), 1);
  EXPECT_EQ(control<ComboBox>("cboCustomGrid(0)").items(), (Strings{"Select...", "Oats"}));
  EXPECT_EQ(control<TextBox>("txtCustom(0)").text(), "Oats") << "what is typed stays";
  EXPECT_EQ(control<Grid>("dgCustom").cell(1, 1), "99");
  expectNone();
}

TEST_F(Notices, ACropReplacedUnderAnotherNameIsOfferedBack) {
  start();
  saveCrop("Oats/new");
  saveCrop("Oatsnew", "20");
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats/new has been replaced by Oatsnew"), HasSubstr("Oatsnew.txt")));
  press("cmdNotice");
  EXPECT_TRUE(folder.read("crops/custom/Oatsnew.txt").starts_with("CROP=Oats/new"));
  EXPECT_NO_THROW(rowNamed("Oats/new"));
}

TEST_F(Notices, ANewCropInTheFileOfTheSelectedOneOffersThatBack) {
  start();
  saveCrop("Oats");
  choose("mnuCustomCrop");
  select("Oats");
  control<TextBox>("txtCustom(0)").type("Oats?");
  fakes.messageBox.answers = {MessageAnswer::yes};
  press("cmdCustomGrid(2)");
  EXPECT_EQ(folder.names("crops/custom"), Strings{"Oats.txt"});
  EXPECT_THAT(shown(), HasSubstr("Oats has been replaced by Oats?"));
}

TEST_F(Notices, TheSelectedCropIsReplacedWithoutANotice) {
  start();
  saveCrop("Oats");
  choose("mnuCustomCrop");
  select("Oats");
  control<Grid>("dgCustom").setCell(1, 1, "77");
  press("cmdCustomGrid(2)");
  expectNone();
}

TEST_F(Notices, ADeletedCropIsOfferedBack) {
  folder.write("crops/custom/Oats.txt", oats);
  folder.write("crops/custom/Rye.txt", "CROP=Rye" + std::string(oats).substr(9));
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  EXPECT_EQ(folder.names("crops/custom"), Strings{"Rye.txt"});
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats has been deleted"), HasSubstr(customFile("Oats.txt"))));
  select("Rye");
  control<TextBox>("txtCustom(0)").type("Rye 2");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_EQ(control<ComboBox>("cboCustomGrid(0)").items(), (Strings{"Select...", "Oats", "Rye"}));
  EXPECT_EQ(control<ComboBox>("cboCustomGrid(0)").text(), "Rye") << "still selected";
  EXPECT_EQ(control<TextBox>("txtCustom(0)").text(), "Rye 2") << "what is typed stays";
  EXPECT_NO_THROW(rowNamed("Oats"));
  expectNone();
}

TEST_F(Notices, ADeletedCropComesBackOnTheMainPaneToo) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  backHome();
  EXPECT_THROW(rowNamed("Oats"), std::runtime_error);
  press("cmdNotice");
  EXPECT_NO_THROW(rowNamed("Oats"));
  EXPECT_EQ(program->main().panes.top().name(), "pneMain");
}

TEST_F(Notices, ARestoredCropThatReplacesANewOneOffersThatBack) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  saveCrop("Oats", "99");
  const std::string newer = folder.read("crops/custom/Oats.txt");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_THAT(shown(), HasSubstr("has been replaced"));
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), newer);
  expectNone();
}

TEST_F(Notices, ADeletedCropThatCannotBeWrittenStaysOnOffer) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  fs::create_directory(home() / "crops/custom/Oats.txt");
  fakes.messageBox.log.clear();
  press("cmdNotice");
  ASSERT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_THAT(fakes.messageBox.log[0].text, HasSubstr("Is a directory"));
  EXPECT_THAT(shown(), HasSubstr("Oats has been deleted"));
  fs::remove(home() / "crops/custom/Oats.txt");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
}

TEST_F(Notices, AFormerFileComesBackByteForByte) {
  const std::string bytes =
      "CROP=H\xE4"
      "fer\n\nUNITS=bu.,bushels\n\nANNUAL_RAIN=15,16\n\nEFF_IRRIG=0\n\n"
      "YIELD_VALUES=1,2";
  folder.write("crops/custom/h.txt", bytes);
  start();
  choose("mnuCustomCrop");
  select(
      "H\xC3\xA4"
      "fer");
  press("cmdCustomGrid(6)");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/h.txt"), bytes);
}

// Names that the saved inputs take for something else.

TEST_F(Notices, ANameIsJudgedWhileItIsTyped) {
  start();
  choose("mnuCustomCrop");
  auto& name = control<TextBox>("txtCustom(0)");
  for (const char* bad : {" Oats", "\tOats", "Fallow", "batch_enabled", "Oats, winter"}) {
    name.type(bad);
    EXPECT_FALSE(shown().empty()) << bad;
    EXPECT_EQ(bar().all().size(), 1U) << bad;
    name.type("Oats");
    expectNone();
  }
  name.type("Fallow");
  backHome();
  expectNone();
  EXPECT_TRUE(control<Label>("lblNotice").caption().empty());
}

}  // namespace
}  // namespace verdalis::testing
