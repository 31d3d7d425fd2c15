#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/FileReader.h"
#include "tests/data/CropLibrary.h"
#include "tests/data/OrdinaryUser.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::asOrdinaryUser;
using testing::CropLibrary;
using testing::smallCrop;
using Names = std::vector<std::string>;

TEST(FileReader, ReadsEveryFileThatIsNotHiddenWhateverItsName) {
  const CropLibrary library;
  library.stock("no extension", smallCrop("None"));
  library.stock("page.html", smallCrop("Page"));
  library.stock("Ma\xEFs.txt~", smallCrop("Backup"));
  library.custom("~mine", smallCrop("Mine"));
  EXPECT_EQ(library.names(), (Names{"Backup", "None", "Page", "Fallow", "Mine"}));
}

TEST(FileReader, ReadsLinkedFiles) {
  const CropLibrary library;
  library.folder().write("elsewhere.txt", smallCrop("Corn"));
  fs::create_symlink("../elsewhere.txt", library.home() / "crops/corn.txt");
  EXPECT_EQ(library.names(), (Names{"Corn", "Fallow"}));
}

TEST(FileReader, CountsABrokenLinkAsAnUnreadableFile) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  fs::create_symlink("nowhere", library.home() / "crops/link");
  EXPECT_EQ(library.names(), Names{"Corn"});
}

TEST(FileReader, DoesNotBlockOnAPipe) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("A"));
  library.custom("b.txt", smallCrop("B"));
  ASSERT_EQ(::mkfifo((library.home() / "crops/pipe").c_str(), 0600), 0);
  ASSERT_EQ(::mkfifo((library.home() / "crops/custom/pipe").c_str(), 0600), 0);
  fs::create_directory(library.home() / "crops/soils");
  ASSERT_EQ(::mkfifo((library.home() / "crops/soils/a.txt").c_str(), 0600), 0);
  EXPECT_EQ(library.names(), (Names{"A", "B", "Fallow"}));
}

TEST(FileReader, ReportsAnUnreadableCropFolder) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  openToAll(library.folder());
  fs::permissions(library.home() / "crops", fs::perms::none);
  const auto told = asOrdinaryUser([&] {
    try {
      static_cast<void>(library.read());
    } catch (const RunTimeError& error) {
      return error.number() == ErrorNumber::fileNotFound &&
             std::string(error.what()).find((library.home() / "crops").string()) != std::string::npos;
    }
    return false;
  });
  if (!told) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*told);
}

TEST(FileReader, SkipsAnUnreadableCropFile) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  library.stock("secret.txt", smallCrop("Secret"));
  library.custom("a.txt", smallCrop("Mine"));
  openToAll(library.folder());
  fs::permissions(library.home() / "crops/secret.txt", fs::perms::none);
  const auto passed = asOrdinaryUser([&] { return library.names() == Names{"Corn", "Mine", "Fallow"}; });
  if (!passed) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*passed);
}

TEST(FileReader, ReadsStockCropsFromAReadOnlyHomeFolder) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  openToAll(library.folder());
  fs::permissions(library.home() / "crops", static_cast<fs::perms>(0555));
  const auto there = asOrdinaryUser([&] { return library.names() == Names{"Corn", "Fallow"}; });
  if (!there) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*there);
  EXPECT_FALSE(fs::exists(library.home() / "crops/custom"));
}

TEST(FileReader, KeepsCropsWithTheSameName) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("Corn"));
  library.stock("A.txt", smallCrop("Corn"));
  library.custom("a.txt", smallCrop("Fallow"));
  EXPECT_EQ(library.names(), (Names{"Corn", "Corn", "Fallow", "Fallow"}));
}

}  // namespace
}  // namespace verdalis
