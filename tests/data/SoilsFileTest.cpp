#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/data/CropLibrary.h"
#include "tests/data/PlainCropReader.h"
#include "tests/support/PosixFiles.h"

namespace verdalis {
namespace {

using testing::CropLibrary;
using testing::PlainTable;
using testing::plainTable;
using testing::smallCrop;

/// A record whose tables have one cell each.
std::string soil(const std::string& name, int yield, double relative) {
  return "SOIL=" + name + "\r\nANNUAL_RAIN=0\r\nEFF_IRRIG=0\r\nYIELD=" + std::to_string(yield) +
         "\r\nRELATIVE=" + std::to_string(relative) + "\r\n";
}

/// The crop "Grain Sorghum" with a soils file of these bytes.
std::shared_ptr<Crop> cropWith(std::string_view bytes) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("Grain Sorghum"));
  library.soils("grain sorghum.txt", bytes);
  const auto reader = library.read();
  EXPECT_EQ(reader.cropCollection.Count(), 2) << "a soils file never keeps the crop or Fallow away";
  return reader.cropCollection.Item(1);
}

/// The yield in a soil's only cell, -1 without tables.
double yieldOf(const FirstUse<SoilTables>& tables) {
  return tables->empty() ? -1 : tables->front().second->cell(0, 0);
}

TEST(SoilsFile, EachRecordSetsItsSoil) {
  const auto crop =
      cropWith(soil("Ulysses", 10, 0.5) + soil("Valent", 20, 0.25) + soil("Valentine", 30, 0.125));
  for (const auto& [tables, yield, relative] :
       {std::tuple{&crop->soil_ulysses, 10.0, 0.5}, std::tuple{&crop->soil_valent, 20.0, 0.25},
        std::tuple{&crop->soil_valentine, 30.0, 0.125}}) {
    ASSERT_EQ((*tables)->size(), 2U);
    EXPECT_EQ((*tables)->at(0).first, "yield");
    EXPECT_EQ((*tables)->at(1).first, "relative");
    EXPECT_EQ((*tables)->at(0).second->cell(0, 0), yield);
    EXPECT_EQ((*tables)->at(1).second->cell(0, 0), relative);
  }
}

TEST(SoilsFile, BothTablesHaveTheSameBounds) {
  const auto crop = cropWith("a=ulysses\nb=1,9,2\nc=0,1\nd=1,2,3,4\ne=.1,.2,,.4\n");
  ASSERT_EQ(crop->soil_ulysses->size(), 2U);
  EXPECT_EQ(plainTable(*crop->soil_ulysses->at(0).second), (PlainTable{1, {{0, 1, 2}, {0, 3, 4}}}));
  EXPECT_EQ(plainTable(*crop->soil_ulysses->at(1).second), (PlainTable{1, {{0, 0.1, 0.2}, {0, 0, 0.4}}}));
}

TEST(SoilsFile, LeavesTheCropsOwnTableUnchanged) {
  const auto crop = cropWith(soil("Ulysses", 10, 0.5));
  EXPECT_EQ(testing::plainCrop(*crop), testing::plainCrop(smallCrop("Grain Sorghum")));
}

TEST(SoilsFile, IsFoundByTheLowerCaseCropName) {
  for (const char* name : {"CORN", "Corn", "corn", "cORN"}) {
    const CropLibrary library;
    library.stock("a.txt", smallCrop(name));
    library.soils("corn.txt", soil("ulysses", 7, 1));
    EXPECT_EQ(yieldOf(library.read().cropCollection.Item(1)->soil_ulysses), 7) << name;
  }
}

TEST(SoilsFile, IsFoundByANameWithAccents) {
  for (const char* name : {"\xC3\x96L", "\xC3\xB6l", "\xD6L"}) {  // the last is ÖL in Windows-1252
    const CropLibrary library;
    library.stock("a.txt", smallCrop(name));
    library.soils("\xC3\xB6l.txt", soil("ulysses", 7, 1));
    EXPECT_EQ(yieldOf(library.read().cropCollection.Item(1)->soil_ulysses), 7) << name;
  }
}

TEST(SoilsFile, IsNotFoundByTheCropFileName) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Maize"));
  library.soils("corn.txt", soil("ulysses", 7, 1));
  if (testing::hasPosixFiles) library.soils("Maize.txt", soil("ulysses", 8, 1));
  EXPECT_TRUE(library.read().cropCollection.Item(1)->soil_ulysses->empty());
}

TEST(SoilsFile, IsUsedOnlyForItsCrop) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("Corn"));
  library.stock("b.txt", smallCrop("Wheat"));
  library.custom("c.txt", smallCrop("corn"));
  library.soils("corn.txt", soil("valent", 7, 1));
  const auto reader = library.read();
  EXPECT_EQ(yieldOf(reader.cropCollection.Item(1)->soil_valent), 7);
  EXPECT_TRUE(reader.cropCollection.Item(2)->soil_valent->empty());
  EXPECT_EQ(yieldOf(reader.cropCollection.Item(4)->soil_valent), 7) << "the custom crop of that name";
}

TEST(SoilsFile, IsInItsFolderWhateverTheNameOfTheCrop) {
  const CropLibrary library;
  library.folder().write("outside.txt", soil("ulysses", 7, 1));
  const std::string outside = (library.home() / "outside").string();
  library.stock("a.txt", smallCrop(outside));
  library.stock("b.txt", smallCrop("corn"));
  library.stock("c.txt", smallCrop(std::string(255, 'n')));
  library.soils("corn.txt", soil("ulysses", 8, 1));
  const auto reader = library.read();
  EXPECT_TRUE(reader.cropCollection.Item(1)->soil_ulysses->empty());
  EXPECT_EQ(yieldOf(reader.cropCollection.Item(2)->soil_ulysses), 8);
  EXPECT_TRUE(reader.cropCollection.Item(3)->soil_ulysses->empty());
}

TEST(SoilsFile, ANameDoesNotLeadOutOfItsFolder) {
  const CropLibrary library;
  library.folder().write("outside.txt", soil("ulysses", 7, 1));
  library.folder().write("crops/outside.txt", "no crop");
  library.soils("inner/corn.txt", soil("ulysses", 7, 1));
  library.soils("corn.txt", soil("ulysses", 8, 1));
  const std::vector<std::string> names{"../../outside", "inner/../../../outside",
                                       "../soils/corn", "inner/corn",
                                       "./corn",        (library.home() / "outside").string()};
  for (std::size_t i = 0; i < names.size(); ++i)
    library.stock("a" + std::to_string(i) + ".txt", smallCrop(names[i]));
  const auto reader = library.read();
  for (std::size_t i = 0; i < names.size(); ++i) {
    const Crop& crop = *reader.cropCollection.Item(static_cast<long>(i) + 1);
    ASSERT_EQ(crop.cropType, names[i]);
    EXPECT_TRUE(crop.soil_ulysses->empty()) << names[i];
  }
}

TEST(SoilsFile, IsNoHiddenFile) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop(""));
  library.stock("b.txt", smallCrop(".Corn"));
  library.soils(".txt", soil("ulysses", 7, 1));
  library.soils(".corn.txt", soil("ulysses", 8, 1));
  const auto reader = library.read();
  EXPECT_TRUE(reader.cropCollection.Item(1)->soil_ulysses->empty()) << "of a crop without a name";
  EXPECT_TRUE(reader.cropCollection.Item(2)->soil_ulysses->empty());
}

TEST(SoilsFile, MatchesSoilNamesExactlyInLowerCase) {
  const auto crop = cropWith(soil("uLYSSES", 1, 0) + soil("VALENT ", 2, 0) + soil(" valentine", 3, 0));
  EXPECT_EQ(yieldOf(crop->soil_ulysses), 1);
  EXPECT_TRUE(crop->soil_valent->empty());
  EXPECT_TRUE(crop->soil_valentine->empty());
}

TEST(SoilsFile, IgnoresRecordsOfOtherSoils) {
  const auto crop = cropWith(soil("Silt Loam", 1, 0) + soil("", 2, 0) + soil("Valent", 3, 0));
  EXPECT_TRUE(crop->soil_ulysses->empty());
  EXPECT_EQ(yieldOf(crop->soil_valent), 3);
}

TEST(SoilsFile, TheLastRecordOfASoilIsUsed) {
  EXPECT_EQ(yieldOf(cropWith(soil("valent", 1, 0) + soil("valent", 2, 0))->soil_valent), 2);
}

TEST(SoilsFile, CanHaveAnyNumberOfRecords) {
  std::string bytes;
  for (int i = 0; i < 2000; ++i)
    bytes += soil("dropped", i, 0);
  EXPECT_EQ(yieldOf(cropWith(bytes + soil("valentine", 5, 0))->soil_valentine), 5);
}

TEST(SoilsFile, IfEmptySetsNoSoils) {
  EXPECT_TRUE(cropWith("")->soil_ulysses->empty());
}

TEST(SoilsFile, KeepsTheRecordsBeforeABrokenOne) {
  const std::string good = soil("ulysses", 1, 0.5);
  for (const std::string& broken :
       {std::string("\r\n"), std::string("valent\r\n"), std::string("a=valent\r\n"),
        std::string("a=valent\nb=0\nc=0\nd=1\nno sign\n"), std::string("a=valent\nb=x\nc=0\nd=1\ne=1\n"),
        std::string("a=valent\nb=0\nc=\nd=1\ne=1\n"), std::string("a=valent\nb=0\nc=0\nd=1,2\ne=1\n"),
        std::string("a=valent\nb=0\nc=0\nd=1\ne=1,2\n"), std::string("a=valent\nb=0\nc=0\nd=1\ne=1e400\n"),
        std::string("a=valent\nb=0\nc=1000\nd=1\ne=1\n"), std::string("a=other\nb=0\nc=1000\nd=1\ne=1\n")}) {
    const auto crop = cropWith(good + broken + soil("valentine", 3, 0));
    EXPECT_EQ(yieldOf(crop->soil_ulysses), 1) << broken;
    EXPECT_TRUE(crop->soil_valent->empty()) << broken;
    EXPECT_TRUE(crop->soil_valentine->empty()) << "nothing behind it is read: " << broken;
  }
}

TEST(SoilsFile, ABrokenRecordKeepsEarlierTablesOfItsSoil) {
  EXPECT_EQ(yieldOf(cropWith(soil("valent", 1, 0) + "a=valent\nb=0\nc=0\nd=2\n")->soil_valent), 1);
}

TEST(SoilsFile, CutAnywhereGivesTheCompleteRecords) {
  const std::string whole = soil("ulysses", 1, 0.5) + soil("valent", 2, 0.5) + soil("valentine", 3, 0.5);
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const std::string cut = whole.substr(0, length);
    const auto crop = cropWith(cut);
    const auto soils = testing::plainSoils(cut);
    EXPECT_EQ(crop->soil_ulysses->empty(), soils.empty()) << length;
    EXPECT_EQ(crop->soil_valent->empty(), soils.size() < 2) << length;
    EXPECT_EQ(crop->soil_valentine->empty(), soils.size() < 3) << length;
  }
}

TEST(SoilsFile, WithManyLargeTablesDoesNotHang) {
  std::string bytes;
  for (int i = 0; i < 20'000; ++i)
    bytes += "=x\n=0,999\n=999\n=\n=\n";
  EXPECT_TRUE(cropWith(soil("valent", 1, 0) + bytes)->soil_ulysses->empty());
}

TEST(SoilsFile, IsNotReadForABadCropFile) {
  const CropLibrary library;
  library.stock("a.txt", "CROP=Corn\r\n");
  library.stock("b.txt", smallCrop("Wheat"));
  library.soils("corn.txt", soil("ulysses", 1, 0.5));
  EXPECT_TRUE(library.read().cropCollection.Item(1)->soil_ulysses->empty());
}

TEST(SoilsFile, IsIgnoredIfItIsAFolder) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("Corn"));
  std::filesystem::create_directories(library.home() / "crops/soils/corn.txt");
  EXPECT_EQ(library.names(), (std::vector<std::string>{"Corn", "Fallow"}));
}

}  // namespace
}  // namespace verdalis
