#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "tests/data/OrdinaryUser.h"
#include "tests/screens/CustomCropSave.h"

namespace verdalis::testing {
namespace {

TEST_F(CustomCropSave, AFullDiskKeepsTheOldFile) {
  selectSaved();
  const std::string before = home.read("custom/oats.txt");
  grid().setCell(1, 1, "100");
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{10, limit.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
  save();
  ::setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(files(), Strings{"oats.txt"});
  EXPECT_EQ(home.read("custom/oats.txt"), before);
}

TEST_F(CustomCropSave, AReadOnlyFolderKeepsItsFiles) {
  selectSaved();
  const std::string before = home.read("custom/oats.txt");
  openToAll(home);
  std::filesystem::permissions(
      folder(), std::filesystem::perms::all &
                    ~(std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                      std::filesystem::perms::others_write));
  const auto kept = asOrdinaryUser([&] {
    grid().setCell(1, 1, "100");
    save();
    pane.cmdCustomGrid6.click();
    return titles() == Strings{"Saved", "Delete crop?", "Crop deleted"} && files() == Strings{"oats.txt"} &&
           home.read("custom/oats.txt") == before && list(0).items() == Strings{"Select...", "Oats"};
  });
  EXPECT_TRUE(kept.value_or(true));
}

TEST_F(CustomCropSave, DeletesAWriteProtectedFile) {
  selectSaved();
  std::filesystem::permissions(folder() / "oats.txt", std::filesystem::perms::owner_read);
  openToAll(home);
  std::filesystem::permissions(folder() / "oats.txt", std::filesystem::perms::owner_read);
  const auto gone = asOrdinaryUser([&] {
    pane.cmdCustomGrid6.click();
    return files().empty();
  });
  EXPECT_TRUE(gone.value_or(true));
}

}  // namespace
}  // namespace verdalis::testing
