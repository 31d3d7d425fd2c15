#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/data/CropLibrary.h"
#include "tests/data/PlainCropReader.h"

// The format of a single crop file.

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::CropLibrary;
using testing::PlainTable;
using testing::plainTable;
using testing::smallCrop;

/// The crop from a file with these bytes; nothing if it is not a crop file.
std::shared_ptr<Crop> cropOf(std::string_view bytes) {
  const CropLibrary library;
  library.stock("a.txt", bytes);
  const auto reader = library.read();
  return reader.cropCollection.Count() == 0 ? nullptr : reader.cropCollection.Item(1);
}

/// A small crop file with one line replaced, counted from 1.
std::string withLine(std::size_t line, const std::string& text, const std::string& lineEnd = "\r\n") {
  auto lines = testing::plainLines(smallCrop("Corn"));
  lines.at(line - 1) = text;
  std::string bytes;
  for (const auto& each : lines)
    bytes += each + lineEnd;
  return bytes;
}

TEST(CropFile, EachLineSetsItsField) {
  const auto crop = cropOf(
      "CROP=Custom Crop 1\r\n\r\nUNITS=ton,tons\r\n\r\nANNUAL_RAIN=2,3,4\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
      "YIELD_VALUES=1,2.5,3,4,5,6\r\n");
  ASSERT_NE(crop, nullptr);
  EXPECT_EQ(crop->cropType, "Custom Crop 1");
  EXPECT_EQ(crop->cropUnits, "ton,tons");
  EXPECT_EQ(crop->cropUnitsArray, (std::array<std::string, 2>{"ton", "tons"}));
  EXPECT_TRUE(crop->isForage());
  ASSERT_NE(crop->yieldTable, nullptr);
  EXPECT_EQ(plainTable(*crop->yieldTable), (PlainTable{2, {{0, 0, 1, 2.5, 3}, {0, 0, 4, 5, 6}}}));
  EXPECT_EQ(crop->getMaxIrrigation(), 1);
  EXPECT_FALSE(crop->Custom);
  EXPECT_EQ(crop->price, 0);
  EXPECT_EQ(crop->maxYield, 0);
  EXPECT_TRUE(crop->soil_ulysses->empty());
  EXPECT_TRUE(crop->soil_valent->empty());
  EXPECT_TRUE(crop->soil_valentine->empty());
  EXPECT_EQ(crop->soilName, "");
}

TEST(CropFile, LineEndsDoNotMatter) {
  const auto expected = testing::plainCrop(*cropOf(smallCrop("Corn")));
  for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
    const auto crop = cropOf(withLine(1, "CROP=Corn", lineEnd));
    ASSERT_NE(crop, nullptr);
    EXPECT_EQ(testing::plainCrop(*crop), expected);
  }
}

TEST(CropFile, LastLineNeedsNoLineEnd) {
  std::string bytes = smallCrop("Corn");
  bytes.resize(bytes.size() - 2);
  const auto crop = cropOf(bytes);
  ASSERT_NE(crop, nullptr);
  EXPECT_EQ(crop->yieldTable->cell(0, 12), 2);
}

TEST(CropFile, TextBeforeTheEqualSignIsIgnored) {
  const auto crop = cropOf("=Corn\n\nx=bu.,bushels\n\nYIELD_VALUES=11,12\n\n =0\n\nCROP=1,2\n");
  ASSERT_NE(crop, nullptr);
  EXPECT_EQ(testing::plainCrop(*crop), testing::plainCrop(smallCrop("Corn")));
}

TEST(CropFile, EvenLinesAreIgnored) {
  for (const std::size_t line : {2U, 4U, 6U, 8U}) {
    for (const char* text : {"CROP=Wheat", "no sign", "=", "YIELD_VALUES=7,7,7,7,7", "\xC3\xA9"}) {
      const auto crop = cropOf(withLine(line, text));
      ASSERT_NE(crop, nullptr) << line << text;
      EXPECT_EQ(testing::plainCrop(*crop), testing::plainCrop(smallCrop("Corn"))) << line << text;
    }
  }
}

TEST(CropFile, LinesAfterTheNinthAreIgnored) {
  const auto crop = cropOf(smallCrop("Corn") + "CROP=Wheat\r\nno sign\r\n1e400\r\n");
  ASSERT_NE(crop, nullptr);
  EXPECT_EQ(testing::plainCrop(*crop), testing::plainCrop(smallCrop("Corn")));
}

TEST(CropFile, LinesAreSplitAtTheFirstEqualSign) {
  EXPECT_EQ(cropOf(withLine(1, "CROP=A=B"))->cropType, "A=B");
  EXPECT_EQ(cropOf(withLine(1, "CROP==A"))->cropType, "=A");
  EXPECT_EQ(cropOf(withLine(3, "UNITS=bu.=,bushels"))->cropUnitsArray[0], "bu.=");
}

TEST(CropFile, NameIsTakenUnchanged) {
  EXPECT_EQ(cropOf(withLine(1, "CROP= Corn, white "))->cropType, " Corn, white ");
  EXPECT_EQ(cropOf(withLine(1, "CROP="))->cropType, "");
  EXPECT_EQ(cropOf(withLine(1, "CROP=cOrN"))->cropType, "cOrN");
  EXPECT_EQ(cropOf(withLine(1, "CROP=" + std::string(255, 'n')))->cropType.size(), 255U);
}

TEST(CropFile, UnitsAreSplitAtTheComma) {
  using Units = std::array<std::string, 2>;
  const auto unitsOf = [](const std::string& text) {
    return cropOf(withLine(3, "UNITS=" + text))->cropUnitsArray;
  };
  EXPECT_EQ(unitsOf("bu.,bushels"), (Units{"bu.", "bushels"}));
  EXPECT_EQ(unitsOf("lb, pounds"), (Units{"lb", " pounds"}));
  EXPECT_EQ(unitsOf("bale"), (Units{"bale", ""}));
  EXPECT_EQ(unitsOf("bale,"), (Units{"bale", ""}));
  EXPECT_EQ(unitsOf(",bales"), (Units{"", "bales"}));
  EXPECT_EQ(unitsOf(""), (Units{"", ""}));
  EXPECT_EQ(unitsOf("a,b,c"), (Units{"a", "b"}));
  EXPECT_EQ(cropOf(withLine(3, "UNITS=a,b,c"))->cropUnits, "a,b,c");
}

TEST(CropFile, OnlyTheExactUnitTonMakesAForageCrop) {
  EXPECT_TRUE(cropOf(withLine(3, "UNITS=ton,tons"))->isForage());
  EXPECT_FALSE(cropOf(withLine(3, "UNITS=Ton,tons"))->isForage());
  EXPECT_FALSE(cropOf(withLine(3, "UNITS=tons,ton"))->isForage());
  EXPECT_FALSE(cropOf(withLine(3, "UNITS= ton,tons"))->isForage());
}

TEST(CropFile, MissingValuesLeaveCellsAt0) {
  const auto crop = cropOf(withLine(9, "YIELD_VALUES=7"));
  ASSERT_NE(crop, nullptr);
  EXPECT_EQ(crop->yieldTable->cell(0, 11), 7);
  EXPECT_EQ(crop->yieldTable->cell(0, 12), 0);
  EXPECT_NE(cropOf(withLine(9, "YIELD_VALUES=")), nullptr);
}

TEST(CropFile, BlankValuesAre0) {
  const auto crop = cropOf(withLine(9, "YIELD_VALUES= ,5"));
  ASSERT_NE(crop, nullptr);
  EXPECT_EQ(crop->yieldTable->cell(0, 11), 0);
  EXPECT_EQ(crop->yieldTable->cell(0, 12), 5);
}

TEST(CropFile, WithMoreValuesThanCellsIsInvalid) {
  EXPECT_EQ(cropOf(withLine(9, "YIELD_VALUES=1,2,3")), nullptr);
  EXPECT_EQ(cropOf(withLine(9, "YIELD_VALUES=1,2,")), nullptr);
}

TEST(CropFile, WithANumberThatIsTooLargeIsInvalid) {
  EXPECT_EQ(cropOf(withLine(9, "YIELD_VALUES=1,1e400")), nullptr);
  EXPECT_EQ(cropOf(withLine(5, "ANNUAL_RAIN=11,1e400")), nullptr);
  EXPECT_EQ(cropOf(withLine(7, "EFF_IRRIG=1e400")), nullptr);
}

TEST(CropFile, WithABoundThatIsNotANumberIsInvalid) {
  for (const char* list : {"", "x", "11,", ",12"})
    EXPECT_EQ(cropOf(withLine(5, std::string("ANNUAL_RAIN=") + list)), nullptr) << list;
  for (const char* list : {"", "x", "0,"})
    EXPECT_EQ(cropOf(withLine(7, std::string("EFF_IRRIG=") + list)), nullptr) << list;
}

TEST(CropFile, WithATableBeyondTheLimitIsInvalid) {
  EXPECT_EQ(cropOf(withLine(5, "ANNUAL_RAIN=11,1000")), nullptr);
  EXPECT_EQ(cropOf(withLine(7, "EFF_IRRIG=0,1000")), nullptr);
  EXPECT_NE(cropOf(withLine(5, "ANNUAL_RAIN=11,999")), nullptr);
  EXPECT_NE(cropOf(withLine(7, "EFF_IRRIG=0,999")), nullptr);
}

TEST(CropFile, WithoutAnEqualSignInAnOddLineIsInvalid) {
  for (const std::size_t line : {1U, 3U, 5U, 7U, 9U}) {
    EXPECT_EQ(cropOf(withLine(line, "")), nullptr) << line;
    EXPECT_EQ(cropOf(withLine(line, std::string(500'000, 'x'))), nullptr) << line;
  }
}

TEST(CropFile, WithFewerThanNineLinesIsInvalid) {
  const std::string whole = smallCrop("Corn");
  const std::size_t ninth = whole.find("YIELD_VALUES");
  const std::size_t sign = whole.find('=', ninth);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto crop = cropOf(whole.substr(0, length));
    EXPECT_EQ(crop != nullptr, length > sign) << "cut at byte " << length;
  }
}

TEST(CropFile, CanBeWindows1252OrUtf8) {
  EXPECT_EQ(cropOf(smallCrop("Ma\xEFs"))->cropType, "Ma\xC3\xAFs");
  EXPECT_EQ(cropOf(smallCrop("Ma\xC3\xAFs"))->cropType, "Ma\xC3\xAFs");
  EXPECT_EQ(cropOf("\xEF\xBB\xBF" + smallCrop("Ma\xC3\xAFs"))->cropType, "Ma\xC3\xAFs");
  EXPECT_EQ(cropOf("\xEF\xBB\xBF=Corn" + smallCrop("").substr(5))->cropType, "Corn");
}

TEST(CropFile, AboveTheMaximumSizeIsInvalid) {
  const CropLibrary library;
  library.stock("a.txt", smallCrop("A"));
  fs::resize_file(library.home() / "crops/a.txt",
                  std::uintmax_t{1} << 32U);  // a sparse file takes no disk space
  library.stock("b.txt", smallCrop("B"));
  EXPECT_EQ(library.names(), std::vector<std::string>{"B"});
}

TEST(CropFile, IsCustomIfItsAbsolutePathContainsCustom) {
  const CropLibrary library;
  library.stock("corn.txt", smallCrop("Corn"));
  library.stock("my customs.txt", smallCrop("Named"));
  library.stock("Custom.txt", smallCrop("Capital"));
  library.custom("a.txt", smallCrop("Mine"));
  const auto reader = library.read();
  for (const auto& crop : reader.cropCollection)
    EXPECT_EQ(crop->Custom, crop->cropType == "Named" || crop->cropType == "Mine") << crop->cropType;
  EXPECT_EQ(reader.cropCollection.Count(), 5);
}

TEST(CropFile, IsCustomIfTheHomeFolderContainsCustom) {
  const testing::TemporaryFolder folder;
  folder.write("our customers/crops/corn.txt", smallCrop("Corn"));
  FileReader reader(folder / "our customers");
  reader.Initialize();
  EXPECT_TRUE(reader.cropCollection.Item(1)->Custom);
  EXPECT_FALSE(reader.cropCollection.Item(2)->Custom) << "Fallow is of no file";
}

TEST(CropFile, IsCustomByTheAbsolutePathOfARelativeHomeFolder) {
  const testing::TemporaryFolder folder;
  folder.write("custom/crops/corn.txt", smallCrop("Corn"));
  const fs::path before = fs::current_path();
  fs::current_path(folder / "custom");
  FileReader reader(".");
  reader.Initialize();
  fs::current_path(before);
  ASSERT_EQ(reader.cropCollection.Count(), 2);
  EXPECT_TRUE(reader.cropCollection.Item(1)->Custom);
}

// The crop files that come with the program, read by the program.
TEST(CropFile, OfTheStockLibraryGivesTheExpectedCrop) {
  const CropLibrary library;
  const fs::path source = fs::path(VERDALIS_SOURCE_DIR) / "crops";
  fs::copy(source, library.home() / "crops", fs::copy_options::recursive);
  const auto reader = library.read();
  std::vector<std::string> names;
  for (const auto& crop : reader.cropCollection) {
    names.push_back(crop->cropType);
    EXPECT_FALSE(crop->Custom) << crop->cropType;
    if (crop->cropType == "Fallow") continue;
    const auto plain = testing::plainCrop(library.folder().read(reader.fileCollection.at(names.size() - 1)));
    ASSERT_TRUE(plain.has_value()) << crop->cropType;
    EXPECT_EQ(testing::plainCrop(*crop), *plain);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Alfalfa", "Corn", "Grain Sorghum", "Soybeans", "Sunflower",
                                             "Wheat", "Fallow"}));
}

}  // namespace
}  // namespace verdalis
