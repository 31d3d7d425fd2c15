#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "data/FileReader.h"
#include "platform/paths.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// A crop file with two cells, 1 and 2: 11 and 12 inches of rain, no irrigation.
inline std::string smallCrop(const std::string& name) {
  return "CROP=" + name +
         "\r\n\r\nUNITS=bu.,bushels\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0\r\n\r\nYIELD_VALUES=1,2\r\n";
}

/// A home folder for tests, with an empty crop library.
class CropLibrary {
 public:
  CropLibrary() { std::filesystem::create_directories(folder_ / "crops"); }

  [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }
  [[nodiscard]] const std::filesystem::path& home() const { return folder_.path(); }

  void stock(const std::string& file, std::string_view bytes) const {
    folder_.write(pathOf("crops/" + file), bytes);
  }
  void custom(const std::string& file, std::string_view bytes) const {
    folder_.write(pathOf("crops/custom/" + file), bytes);
  }
  void soils(const std::string& file, std::string_view bytes) const {
    folder_.write(pathOf("crops/soils/" + file), bytes);
  }

  [[nodiscard]] FileReader read() const {
    FileReader reader(home());
    reader.Initialize();
    return reader;
  }

  /// The names of the crops in order.
  [[nodiscard]] std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& crop : read().cropCollection)
      names.push_back(crop->cropType);
    return names;
  }

 private:
  TemporaryFolder folder_{"library"};
};

}  // namespace verdalis::testing
