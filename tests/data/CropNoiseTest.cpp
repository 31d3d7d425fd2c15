#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "tests/data/CropLibrary.h"
#include "tests/data/Noise.h"
#include "tests/data/PlainCropReader.h"
#include "text/encoding.h"

// Truncated, oversized and corrupted crop files, soils files and libraries, compared with the simple reader.

namespace verdalis {
namespace {

using testing::CropLibrary;
using testing::damaged;
using testing::plainCrop;
using testing::plainTable;
using testing::smallCrop;

rc::Gen<std::string> values(int most) {
  const auto value = rc::gen::map(rc::gen::inRange(0, 3000), [](int n) { return std::to_string(n / 10); });
  return rc::gen::exec([=] {
    const int count = *rc::gen::inRange(0, most);
    std::string list;
    for (int i = 0; i < count; ++i)
      list += (i == 0 ? "" : ",") + *value;
    return list;
  });
}

std::string inches(int first, int last) {
  std::string list = std::to_string(first);
  for (int inch = first + 1; inch <= last; ++inch)
    list += "," + std::to_string(inch);
  return list;
}

rc::Gen<std::string> anyCropFile() {
  return rc::gen::exec([] {
    const int first = *rc::gen::inRange(0, 13);
    const int last = first + *rc::gen::inRange(0, 5);
    const int top = *rc::gen::inRange(0, 5);
    const int cells = (last - first + 1) * (top + 1);
    return "CROP=" + *rc::gen::element<std::string>("Corn", "Wheat", "Grain Sorghum", "Mine") +
           "\r\n\r\nUNITS=" + *rc::gen::element<std::string>("bu.,bushels", "ton,tons", "lb") +
           "\r\n\r\nANNUAL_RAIN=" + inches(first, last) + "\r\n\r\nEFF_IRRIG=" + inches(0, top) +
           "\r\n\r\nYIELD_VALUES=" + *values(cells + 2) + "\r\n";
  });
}

rc::Gen<std::string> anySoilsFile() {
  return rc::gen::exec([] {
    std::string bytes;
    const int records = *rc::gen::inRange(0, 5);
    for (int i = 0; i < records; ++i) {
      bytes += "SOIL=" + *rc::gen::element<std::string>("Ulysses", "valent", "VALENTINE", "Loam") +
               "\r\nRAIN=1,2\r\nIRRIGATION=0,1\r\nYIELD=" + *values(6) + "\r\nRELATIVE=" + *values(6) +
               "\r\n";
    }
    return bytes;
  });
}

void assertSame(const Crop& crop, const testing::PlainCrop& expected) {
  RC_ASSERT(plainCrop(crop) == expected);
}

RC_GTEST_PROP(CropNoise, FileGivesTheSameCropAsTheSimpleReader, ()) {
  const auto bytes = *rc::gen::oneOf(anyCropFile(), damaged(anyCropFile()), damaged(damaged(anyCropFile())),
                                     rc::gen::arbitrary<std::string>());
  const CropLibrary library;
  library.stock("a.txt", bytes);
  library.stock("b.txt", smallCrop("Last"));
  const auto reader = library.read();
  const auto expected = plainCrop(decodeText(bytes));
  RC_CLASSIFY(expected.has_value(), "a crop");
  RC_ASSERT(reader.cropCollection.Count() == (expected ? 3 : 1));
  if (expected) assertSame(*reader.cropCollection.Item(1), *expected);
  assertSame(*reader.cropCollection.Item(expected ? 2 : 1), *plainCrop(smallCrop("Last")));
}

RC_GTEST_PROP(CropNoise, SoilsFileGivesTheSameRecordsAsTheSimpleReader, ()) {
  const auto bytes =
      *rc::gen::oneOf(anySoilsFile(), damaged(anySoilsFile()), rc::gen::arbitrary<std::string>());
  const CropLibrary library;
  library.stock("a.txt", smallCrop("Corn"));
  library.soils("corn.txt", bytes);
  const auto reader = library.read();
  const Crop& crop = *reader.cropCollection.Item(1);
  RC_ASSERT(reader.cropCollection.Count() == 2);

  const std::array soils{std::pair{"ulysses", &crop.soil_ulysses}, std::pair{"valent", &crop.soil_valent},
                         std::pair{"valentine", &crop.soil_valentine}};
  for (const auto& [name, tables] : soils) {
    std::optional<testing::PlainSoil> last;
    for (const auto& record : testing::plainSoils(decodeText(bytes))) {
      if (record.name == name) last = record;
    }
    RC_ASSERT((*tables)->size() == (last ? 2U : 0U));
    if (last) {
      RC_ASSERT(plainTable(*(*tables)->at(0).second) == last->yield);
      RC_ASSERT(plainTable(*(*tables)->at(1).second) == last->relative);
    }
  }
}

/// The expected crop names of a library with these stock and custom files, in order.
std::vector<std::string> expectedNames(const std::vector<std::string>& stock,
                                       const std::vector<std::string>& custom) {
  std::vector<std::string> files = stock;
  files.insert(files.end(), custom.begin(), custom.end());
  std::vector<std::string> names;
  for (const auto& file : files) {
    if (const auto crop = plainCrop(decodeText(file))) names.push_back(crop->name);
  }
  // Fallow follows as many crops as there are stock files, if there are that many.
  if (!stock.empty() && names.size() >= stock.size()) {
    names.insert(names.begin() + static_cast<std::ptrdiff_t>(stock.size()), "Fallow");
  }
  return names;
}

RC_GTEST_PROP(CropNoise, LibraryHasItsValidFilesInOrderAndFallowInItsPlace, ()) {
  const auto file = rc::gen::weightedOneOf<std::string>(
      {{3, anyCropFile()}, {1, damaged(anyCropFile())}, {1, rc::gen::arbitrary<std::string>()}});
  const auto files = rc::gen::resize(6, rc::gen::container<std::vector<std::string>>(file));
  const auto stock = *files;
  const auto custom = *files;
  const CropLibrary library;
  for (std::size_t i = 0; i < stock.size(); ++i)
    library.stock(std::to_string(100 + i), stock[i]);
  for (std::size_t i = 0; i < custom.size(); ++i)
    library.custom(std::to_string(100 + i), custom[i]);
  RC_ASSERT(library.names() == expectedNames(stock, custom));
}

}  // namespace
}  // namespace verdalis
