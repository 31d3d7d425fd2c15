#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "screens/InputCostsPane.h"
#include "screens/InputCostsTable.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {

/// The production cost pane alone in a window, with crops to open it for.
class InputCostsFixture : public ::testing::Test {
 protected:
  InputCostsFixture() {
    listeners.push_back(pane.onApplied.connectScoped([this] { ++applied; }));
    listeners.push_back(pane.onBack.connectScoped([this] { ++backs; }));
    listeners.push_back(pane.onHelp.connectScoped([this](int index) { helped.push_back(index); }));
    window.open();
  }

  static std::shared_ptr<Crop> makeCrop(const std::string& name, const std::string& unit = "bu.",
                                        const std::string& units = "bushels") {
    auto crop = std::make_shared<Crop>();
    crop->cropType = name;
    crop->cropUnitsArray = {unit, units};
    return crop;
  }

  static std::shared_ptr<Crop> alfalfa() { return makeCrop("Alfalfa", "ton", "tons"); }

  TextBox& box(const std::string& name) {
    auto* found = dynamic_cast<TextBox*>(desk.find(name));
    if (found == nullptr) throw std::logic_error("no text box " + name);
    return *found;
  }

  std::string text(const std::string& name) { return box(name).text(); }

  /// The names of all text boxes of the pane.
  static std::vector<std::string> boxNames() {
    std::vector<std::string> names;
    for (const InputCostsField& field : InputCostsPane::fields())
      names.emplace_back(field.row.control);
    return names;
  }

  /// Fills every box with a text of its own, below every limit.
  std::map<std::string, std::string> fillAllBoxes() {
    std::map<std::string, std::string> texts;
    int value = 0;
    for (const std::string& name : boxNames()) {
      texts[name] = "0.0" + std::to_string(++value);
      box(name).setText(texts[name]);
    }
    return texts;
  }

  Desk desk;
  FakeServices fakes;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  TextBox elsewhere{window, "txtElsewhere"};
  InputCostsPane pane{window, fakes.services};
  std::vector<Connection> listeners;
  int applied = 0;
  int backs = 0;
  std::vector<int> helped;
};

}  // namespace verdalis::testing
