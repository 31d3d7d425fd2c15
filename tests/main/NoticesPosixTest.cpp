#include <gmock/gmock.h>

#include <filesystem>

#include "tests/main/NoticesWindow.h"

// A notice with the words in which Debian refuses to delete a folder.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;

TEST_F(Notices, TellACustomCropThatCannotBeDeleted) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  fakes.messageBox.onShow = [this](const Message& box) {
    if (box.title != "Delete crop?") return;
    fs::remove(home() / "crops/custom/Oats.txt");
    folder.write("crops/custom/Oats.txt/inside", "");
  };
  press("cmdCustomGrid(6)");
  EXPECT_EQ(fakes.messageBox.log.back().title, "Crop deleted") << "the box stays as it is";
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats could not be deleted"), HasSubstr(customFile("Oats.txt")),
                             HasSubstr("not empty")));
  EXPECT_FALSE(bar().cmdNotice.visible());
}

}  // namespace
}  // namespace verdalis::testing
