#pragma once

#include <string_view>

#include "data/FileReader.h"
#include "tests/data/PlainCropReader.h"

namespace verdalis::testing {

/// The yield table of three lists in a crop file.
inline PlainTable tableOf(std::string_view rainfall, std::string_view irrigation, std::string_view values) {
  return plainTable(FileReader::makeYieldArray(rainfall, irrigation, values));
}

}  // namespace verdalis::testing
