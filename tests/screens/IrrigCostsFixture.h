#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "screens/IrrigCostsPane.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {

/// The pane of the pumping plant alone in a window, for a farm of 100 acres.
class IrrigCosts : public ::testing::Test {
 protected:
  IrrigCosts() {
    pane.areaText = [this] { return area; };
    listeners.push_back(pane.onApplied.connectScoped([this] { ++applied; }));
    listeners.push_back(pane.onBack.connectScoped([this] { ++backs; }));
    listeners.push_back(pane.onHelp.connectScoped([this](int index) { helped.push_back(index); }));
    window.open();
  }

  void expectDefaults() const {
    EXPECT_EQ(pane.txtGPM.text(), "750");
    EXPECT_EQ(pane.txtEstHours.text(), "1800");
    EXPECT_EQ(pane.txtLift.text(), "120");
    EXPECT_EQ(pane.txtPSI.text(), "35");
    EXPECT_EQ(pane.txtRepairsPerAcre.text(), "0.33");
    EXPECT_EQ(pane.cboFuelType.text(), "Natural Gas");
    EXPECT_EQ(pane.cboFuelType.index(), 2);
    EXPECT_EQ(pane.txtCost.text(), "5.10");
    EXPECT_EQ(pane.txtLaborPerHour.text(), "10");
  }

  /// Types into a field, leaves it, and returns the message or an empty text.
  std::string messageFor(TextBox& box, const std::string& text) {
    box.setText("");
    box.type(text);
    box.leave();
    const std::vector<Message> messages = fakes.messageBox.take();
    EXPECT_LE(messages.size(), 1U);
    if (messages.empty()) return {};
    EXPECT_EQ(messages[0].title, "Input error");
    EXPECT_EQ(messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(desk.focus(), &box);
    return messages[0].text;
  }

  Desk desk;
  FakeServices fakes;
  std::shared_ptr<IrrigationCosts> plant = std::make_shared<IrrigationCosts>();
  Window window{desk, "frmMain", Frame::Scope::transparent};
  TextBox elsewhere{window, "txtElsewhere"};
  IrrigCostsPane pane{window, fakes.services, plant};
  std::vector<Connection> listeners;
  std::string area = "100";
  int applied = 0;
  int backs = 0;
  std::vector<int> helped;
};

}  // namespace verdalis::testing
