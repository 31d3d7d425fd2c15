#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "data/CustomCropFile.h"
#include "data/FileReader.h"
#include "tests/data/CropLibrary.h"
#include "tests/data/Failure.h"
#include "tests/data/PlainCropReader.h"
#include "tests/support/PosixFiles.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::CropLibrary;
using testing::failureOf;
using testing::hasPosixFiles;
using testing::smallCrop;
using Names = std::vector<std::string>;

TEST(FileReader, ReadsStockCropsThenFallowThenCustomCrops) {
  const CropLibrary library;
  library.stock("b.txt", smallCrop("Beans"));
  library.stock("a.txt", smallCrop("Alfalfa"));
  library.custom("a.txt", smallCrop("Mine"));
  library.custom("b.txt", smallCrop("Yours"));
  EXPECT_EQ(library.names(), (Names{"Alfalfa", "Beans", "Fallow", "Mine", "Yours"}));
}

TEST(FileReader, ReturnsTrueAndRecordsFoldersAndFiles) {
  const CropLibrary library;
  library.stock("b.txt", smallCrop("Beans"));
  library.stock("a", "no crop");
  library.custom("c.txt", smallCrop("Mine"));
  FileReader reader(library.home());
  EXPECT_TRUE(reader.Initialize());
  EXPECT_EQ(reader.fileDirectory, library.home() / "crops/custom");
  EXPECT_EQ(reader.fileCollection,
            (std::vector<fs::path>{library.home() / "crops/a", library.home() / "crops/b.txt",
                                   library.home() / "crops/custom/c.txt"}));
}

TEST(FileReader, SortsByNameIgnoringCase) {
  const CropLibrary library;
  for (const char* name : {"Zinnia", "alfa", "BEANS", "corn", "Corn2", "10", "9", "_x", "Aa"})
    library.stock(name, smallCrop(name));
  EXPECT_EQ(library.names(),
            (Names{"10", "9", "_x", "Aa", "alfa", "BEANS", "corn", "Corn2", "Zinnia", "Fallow"}));
}

TEST(FileReader, SortsAccentedLettersIgnoringCase) {
  const CropLibrary library;
  for (const char* name : {"\xC3\x89-1", "\xC3\xA9", "\xC3\x89-3", "\xC3\xA9-2"})  // É-1 é É-3 é-2
    library.stock(name, smallCrop(name));
  EXPECT_EQ(library.names(), (Names{"\xC3\xA9", "\xC3\x89-1", "\xC3\xA9-2", "\xC3\x89-3", "Fallow"}));
}

TEST(FileReader, PassesOverHiddenFiles) {
  const CropLibrary library;
  library.stock(".DS_Store", "x");
  library.stock(".hidden", smallCrop("Hidden"));
  library.stock(".saving-a1B2c3", smallCrop("Half written"));
  library.stock("corn.txt", smallCrop("Corn"));
  library.custom(".hidden.txt", smallCrop("Hidden too"));
  library.custom("mine.txt", smallCrop("Mine"));
  EXPECT_EQ(library.names(), (Names{"Corn", "Fallow", "Mine"})) << "and Fallow is where it was without them";
  EXPECT_EQ(library.read().fileCollection.size(), 2U);
}

TEST(FileReader, SkipsFolders) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  library.stock("archive/old.txt", smallCrop("Old"));
  library.soils("corn.txt", "");
  library.custom("archive/old.txt", smallCrop("Old"));
  if (hasPosixFiles) fs::create_directory_symlink("archive", library.home() / "crops/link");
  EXPECT_EQ(library.names(), (Names{"Corn", "Fallow"}));
}

TEST(FileReader, CreatesTheFolderOfCustomCrops) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  EXPECT_EQ(library.names(), (Names{"Corn", "Fallow"}));
  EXPECT_TRUE(fs::is_directory(library.home() / "crops/custom"));
  EXPECT_EQ(library.names(), (Names{"Corn", "Fallow"})) << "with an empty folder of custom crops";
}

// Fallow follows the last stock file, so there is none without stock files.
TEST(FileReader, HasNoFallowWithoutStockFiles) {
  const CropLibrary library;
  EXPECT_EQ(library.names(), Names{});
  library.custom("a.txt", smallCrop("Mine"));
  EXPECT_EQ(library.names(), Names{"Mine"});
}

TEST(FileReader, FallowHasNoUnitsAndNoTable) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  const auto reader = library.read();
  const Crop& fallow = *reader.cropCollection.Item(2);
  EXPECT_EQ(fallow.cropType, "Fallow");
  EXPECT_EQ(fallow.cropUnits, "");
  EXPECT_EQ(fallow.cropUnitsArray, (std::array<std::string, 2>{"", ""}));
  EXPECT_EQ(fallow.yieldTable, nullptr);
  EXPECT_FALSE(fallow.Custom);
}

TEST(FileReader, ABadFileMovesFallowBackByOne) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("A"));
  library.stock("b.txt", "no crop");
  library.stock("c.txt", smallCrop("C"));
  EXPECT_EQ(library.names(), (Names{"A", "C"})) << "and without one more there is no Fallow";
  library.custom("a.txt", smallCrop("Mine"));
  EXPECT_EQ(library.names(), (Names{"A", "C", "Mine", "Fallow"}));
  library.custom("b.txt", smallCrop("Yours"));
  EXPECT_EQ(library.names(), (Names{"A", "C", "Mine", "Fallow", "Yours"}));
}

TEST(FileReader, ABadLastStockFileMovesFallowBackByOne) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("A"));
  library.stock("z.txt", "no crop");
  EXPECT_EQ(library.names(), Names{"A"});
  library.custom("a.txt", smallCrop("Mine"));
  EXPECT_EQ(library.names(), (Names{"A", "Mine", "Fallow"}));
}

TEST(FileReader, TwoBadFilesMoveFallowBackByTwo) {
  const CropLibrary library;
  library.stock("a.txt", "");
  library.stock("b.txt", smallCrop("B"));
  library.stock("c.txt", "CROP=C\r\n");
  for (const char* name : {"1", "2", "3"})
    library.custom(name, smallCrop(name));
  EXPECT_EQ(library.names(), (Names{"B", "1", "2", "Fallow", "3"}));
}

TEST(FileReader, SkipsABadCustomFile) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("A"));
  library.custom("a.txt", "no crop");
  library.custom("b.txt", smallCrop("Mine"));
  EXPECT_EQ(library.names(), (Names{"A", "Fallow", "Mine"}));
}

TEST(FileReader, ListsTheSkippedFilesWithTheirReasons) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  library.stock("half.txt", "CROP=Half\r\n\r\nUNITS=");
  library.custom("no.txt", "no crop");
  FileReader reader = library.read();
  ASSERT_EQ(reader.skipped.size(), 2U);
  EXPECT_EQ(reader.skipped[0].path, library.home() / "crops/half.txt");
  EXPECT_EQ(reader.skipped[0].reason, "The file ends too early.");
  EXPECT_EQ(reader.skipped[1].path, library.home() / "crops/custom/no.txt");
  EXPECT_EQ(reader.skipped[1].reason, "A line of a crop file has no \"=\".");
  std::filesystem::remove(reader.skipped[0].path);
  std::filesystem::remove(reader.skipped[1].path);
  reader.Initialize();
  EXPECT_TRUE(reader.skipped.empty());
}

TEST(FileReader, SkipsACropWithALongNameOrLongUnits) {
  const std::string longest = std::string(253, 'n') + "\xC3\xA9" + "x";  // 255 characters
  const auto withUnits = [](const std::string& units) {
    return "CROP=Units\r\n\r\nUNITS=" + units +
           "\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0\r\n\r\nYIELD_VALUES=1,2\r\n";
  };
  const CropLibrary library;
  library.stock("a.txt", smallCrop(longest));
  library.stock("b.txt", smallCrop(longest + "x"));
  library.stock("c.txt", withUnits(longest));
  library.stock("d.txt", withUnits(longest + "x"));
  library.custom("e.txt", smallCrop(std::string(60U << 20U, 'n')));
  const FileReader reader = library.read();
  EXPECT_EQ(reader.cropCollection.Count(), 2) << "Fallow comes after four valid files";
  EXPECT_EQ(reader.cropCollection.Item(1)->cropType, longest);
  EXPECT_EQ(reader.cropCollection.Item(2)->cropUnits, longest);
  ASSERT_EQ(reader.skipped.size(), 3U);
  EXPECT_EQ(reader.skipped[0].reason, "The name of the crop has more than 255 characters.");
  EXPECT_EQ(reader.skipped[1].reason, "The text of the units has more than 255 characters.");
  EXPECT_EQ(reader.skipped[2].reason, "The name of the crop has more than 255 characters.");
}

TEST(FileReader, ReadsAtMost200FilesStockCropsFirst) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("A"));
  library.stock("b.txt", smallCrop("B"));
  for (int i = 1000; i < 1198; ++i)
    library.custom(std::to_string(i), smallCrop("C" + std::to_string(i)));
  FileReader reader = library.read();
  EXPECT_EQ(reader.leftOut, 0U);
  EXPECT_EQ(reader.cropCollection.Count(), 201) << "with Fallow";
  for (int i = 1198; i < 1210; ++i)
    library.custom(std::to_string(i), smallCrop("C" + std::to_string(i)));
  reader.Initialize();
  EXPECT_EQ(reader.leftOut, 12U);
  EXPECT_EQ(reader.cropCollection.Count(), 201);
  EXPECT_EQ(reader.cropCollection.Item(3)->cropType, "Fallow");
  EXPECT_EQ(reader.cropCollection.Item(201)->cropType, "C1197");
  EXPECT_EQ(findCustomCrops(library.home() / "crops/custom").size(), 200U);
}

// A crop is read into the object that a bad file has partly filled; nothing of the bad file may remain.
TEST(FileReader, ACropAfterABadFileKeepsNothingOfIt) {
  const std::string bad =
      "CROP=Bad\r\n\r\nUNITS=ton,tons,more\r\n\r\nANNUAL_RAIN=1,2\r\n\r\nEFF_IRRIG=0,1\r\n\r\nYIELD_VALUES=9,"
      "9,9,9\r\n";
  const std::string good = smallCrop("Good");
  const auto lines = testing::plainLines(bad);
  for (std::size_t kept = 0; kept < lines.size(); ++kept) {
    const CropLibrary library;
    std::string cut;
    for (std::size_t i = 0; i < kept; ++i)
      cut += lines[i] + "\r\n";
    library.stock("a.txt", cut);
    library.stock("b.txt", good);
    library.stock("c.txt", smallCrop("Other"));
    const auto reader = library.read();
    ASSERT_EQ(reader.cropCollection.Count(), 2) << kept << " lines";
    EXPECT_EQ(testing::plainCrop(*reader.cropCollection.Item(1)), testing::plainCrop(good))
        << kept << " lines";
  }
}

TEST(FileReader, ASingleUnitAfterABadFileDoesNotKeepItsPlural) {
  const CropLibrary library;
  library.stock("a.txt", "CROP=Bad\r\n\r\nUNITS=ton,tons\r\n");
  std::string single = smallCrop("Good");
  single.erase(single.find(",bushels"), 8);
  library.stock("b.txt", single);
  const auto reader = library.read();
  EXPECT_EQ(reader.cropCollection.Item(1)->cropUnitsArray, (std::array<std::string, 2>{"bu.", ""}));
}

TEST(FileReader, EveryCallReadsTheLibraryAgain) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  FileReader reader(library.home());
  reader.Initialize();
  const auto corn = reader.cropCollection.Item(1);
  corn->price = 5;
  library.custom("a.txt", smallCrop("Mine"));
  reader.Initialize();
  ASSERT_EQ(reader.cropCollection.Count(), 3);
  EXPECT_EQ(reader.fileCollection.size(), 2U);
  EXPECT_NE(reader.cropCollection.Item(1), corn);
  EXPECT_EQ(reader.cropCollection.Item(1)->price, 0);
}

TEST(FileReader, ReportsAMissingCropFolderWithItsPath) {
  const testing::TemporaryFolder home;
  FileReader reader(home.path());
  const auto text = failureOf(ErrorNumber::fileNotFound, [&] { reader.Initialize(); });
  EXPECT_NE(text.find((home / "crops").string()), std::string::npos) << text;
  EXPECT_EQ(reader.cropCollection.Count(), 0);
}

TEST(FileReader, ReportsAFileInPlaceOfTheCropFolder) {
  const testing::TemporaryFolder home;
  home.write("crops", smallCrop("Corn"));
  FileReader reader(home.path());
  const auto text = failureOf(ErrorNumber::fileNotFound, [&] { reader.Initialize(); });
  EXPECT_NE(text.find((home / "crops").string()), std::string::npos) << text;
}

TEST(FileReader, ClearsTheCropsIfTheFolderHasBeenRemoved) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  FileReader reader(library.home());
  reader.Initialize();
  fs::remove_all(library.home() / "crops");
  static_cast<void>(failureOf(ErrorNumber::fileNotFound, [&] { reader.Initialize(); }));
  EXPECT_EQ(reader.cropCollection.Count(), 0);
  EXPECT_TRUE(reader.fileCollection.empty());
}

}  // namespace
}  // namespace verdalis
