#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tests/data/CropLibrary.h"
#include "tests/data/PlainCropReader.h"
#include "tests/fuzz/Fuzzing.h"
#include "text/encoding.h"

// The input up to the first "|" is a crop file, the rest is the soils file of another crop. The library of
// both must equal the result of the simple reader.

namespace verdalis {
namespace {

using fuzz::require;
using testing::CropLibrary;
using testing::plainCrop;
using testing::plainTable;
using testing::smallCrop;

void compareSoil(const char* name, const std::string& soilsFile, const FirstUse<SoilTables>& tables) {
  std::optional<testing::PlainSoil> last;
  for (const auto& record : testing::plainSoils(decodeText(soilsFile))) {
    if (record.name == name) last = record;
  }
  require(tables->size() == (last ? 2U : 0U), "a soil has two tables or none");
  if (!last) return;
  require(plainTable(*tables->at(0).second) == last->yield, "the yields of a soil");
  require(plainTable(*tables->at(1).second) == last->relative, "the fractions of a soil");
}

void check(const std::string& cropFile, const std::string& soilsFile) {
  static const CropLibrary library;
  library.stock("a.txt", cropFile);
  library.stock("b.txt", smallCrop("Second"));
  library.soils("second.txt", soilsFile);
  const auto reader = library.read();
  const auto expected = plainCrop(decodeText(cropFile));
  require(reader.cropCollection.Count() == (expected ? 3 : 1), "a bad file is no crop and keeps Fallow away");
  const long second = expected ? 2 : 1;
  if (expected) require(plainCrop(*reader.cropCollection.Item(1)) == *expected, "the crop of the file");
  const Crop& crop = *reader.cropCollection.Item(second);
  require(plainCrop(crop) == *plainCrop(smallCrop("Second")), "the crop behind it");
  compareSoil("ulysses", soilsFile, crop.soil_ulysses);
  compareSoil("valent", soilsFile, crop.soil_valent);
  compareSoil("valentine", soilsFile, crop.soil_valentine);
}

}  // namespace
}  // namespace verdalis

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  verdalis::fuzz::workInMemory();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const std::size_t bar = bytes.find('|');
  verdalis::check(bytes.substr(0, bar), bar == std::string::npos ? std::string() : bytes.substr(bar + 1));
  return 0;
}
