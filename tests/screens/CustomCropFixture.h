#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "screens/CustomCropPane.h"
#include "tests/support/FakeServices.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

/// The bytes of a crop file as the editor writes it.
inline std::string cropFileText(const std::string& name, const std::string& units, const std::string& rain,
                                const std::string& irrigation, const std::string& values) {
  return "CROP=" + name + "\r\n\r\nUNITS=" + units + "\r\n\r\nANNUAL_RAIN=" + rain +
         "\r\n\r\nEFF_IRRIG=" + irrigation + "\r\n\r\nYIELD_VALUES=" + values + "\r\n";
}

/// The editor in a window without other controls, with a temporary folder.
class CustomCropEditor : public ::testing::Test {
 protected:
  CustomCropEditor() {
    std::filesystem::create_directories(folder());
    pane.loadCropRows = [this] { ++reloads; };
    pane.onShowPane.connect([this] { ++shows; });
    pane.onBackHome.connect([this] { ++homes; });
    window.open();
    pane.fillLists();
  }

  [[nodiscard]] std::filesystem::path folder() const { return home.path() / "custom"; }

  /// A crop file for 9 to 12 inches of rain and up to 1 inch of irrigation.
  void writeCrop(const std::string& file, const std::string& name,
                 const std::string& values = "1,2,3,4,5,6,7,8") const {
    home.write("custom/" + file, cropFileText(name, "bu.,bushels", "9,10,11,12", "0,1", values));
  }

  ComboBox& list(std::size_t index) { return pane.cboCustomGrid.at(index); }
  Grid& grid() { return pane.dgCustom; }

  /// The texts of a row, including the heading.
  std::vector<std::string> rowOf(int row) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(grid().columns()));
    for (int column = 0; column < grid().columns(); ++column)
      texts.push_back(grid().cell(row, column));
    return texts;
  }

  /// The smallest grid: 11 and 12 inches of rain, no irrigation.
  void makeSmallest() {
    list(1).pick(2);
    list(2).pick(0);
    list(3).pick(0);
    pane.cmdCustomGrid0.click();
  }

  void answer(MessageAnswer given) { fakes.messageBox.answers.push_back(given); }

  /// The only message since the last call.
  Message theBox() {
    const std::vector<Message> boxes = fakes.messageBox.take();
    EXPECT_EQ(boxes.size(), 1U);
    return boxes.empty() ? Message{} : boxes[0];
  }

  /// The titles of the messages since the last call.
  std::vector<std::string> titles() {
    std::vector<std::string> found;
    for (const Message& box : fakes.messageBox.take())
      found.push_back(box.title);
    return found;
  }

  TemporaryFolder home;
  Desk desk;
  FakeServices fakes;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  CustomCropPane pane{window, fakes.services, folder()};
  int reloads = 0;
  int shows = 0;
  int homes = 0;
};

using Strings = std::vector<std::string>;

}  // namespace verdalis::testing
