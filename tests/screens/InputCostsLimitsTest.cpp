#include <array>
#include <optional>

#include "tests/screens/InputCostsFixture.h"

namespace verdalis {
namespace {

using Limited = std::optional<std::string>;  // the limit as it is typed; none: no test

class InputCostsLimits : public ::verdalis::testing::InputCostsFixture {
 protected:
  /// Types into a box that held a 0, leaves it, and returns the message or an empty text.
  std::string messageFor(const std::string& name, const std::string& typed) {
    TextBox& field = box(name);
    field.setText("0");
    field.type(typed);
    field.leave();
    const std::vector<Message> messages = fakes.messageBox.take();
    EXPECT_LE(messages.size(), 1U);
    if (messages.empty()) {
      EXPECT_EQ(field.text(), typed);
      return {};
    }
    EXPECT_EQ(messages[0].title, "Input error");
    EXPECT_EQ(messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(field.text(), "0");
    EXPECT_EQ(desk.focus(), &field);
    return messages[0].text;
  }

  void expectUntested(const std::string& name) {
    for (const char* typed : {"1e9", "-1", "words"})
      EXPECT_EQ(messageFor(name, typed), "") << name;
  }

  /// `told` is the limit as the message shows it.
  void expectLimit(const std::string& name, const std::string& label, const std::string& limit,
                   const std::string& told) {
    EXPECT_EQ(messageFor(name, "0"), "");
    EXPECT_EQ(messageFor(name, limit), "") << name;
    const std::string above = label + ":  Please enter a value that's less than or equal to " + told;
    EXPECT_EQ(messageFor(name, limit + (limit.find('.') == std::string::npos ? ".001" : "001")), above);
    EXPECT_EQ(messageFor(name, "1e9"), above);
    EXPECT_EQ(messageFor(name, "-1"), label + ":  Please enter a value that's greater than 0");
    EXPECT_EQ(messageFor(name, "5x"), label + ":  Please enter a numeric value!");
    EXPECT_EQ(messageFor(name, ""), "");
    EXPECT_EQ(messageFor(name, "-"), "");
    EXPECT_EQ(messageFor(name, "."), "");
  }

  static std::string told(const std::string& limit) {
    const std::map<std::string, std::string> others{
        {"0.99", "1"},       {"0.4", ""},           {"0.5", "1"},       {"1.5", "2"},
        {"99999", "99,999"}, {"500000", "500,000"}, {"60000", "60,000"}};
    const auto found = others.find(limit);
    return found == others.end() ? limit : found->second;
  }
};

TEST_F(InputCostsLimits, SomeLimitsAreTheSameForAllCrops) {
  const std::vector<std::array<std::string, 3>> rows{
      {"txtNitrogenCost", "Nitrogen Cost", "1.5"},
      {"txtPCost", "Phosphorus Cost", "1.5"},
      {"txtTillage", "Tillage Cost", "100"},
      {"txtPlanting", "Planting Cost", "50"},
      {"txtFertilizerApplication", "Fertilizer Application Cost", "50"},
      {"txtHerbicideApplication", "Herbicide Application Cost", "120"},
      {"txtInsecticideApplication", "Insecticide Application Cost", "120"},
      {"txtAlfFlat", "{crop} Harvest Flat Rate", "100"},
      {"txtSwathing", "Swathing Cost", "40"},
      {"txtSwathingNum", "Swathing Operations", "10"},
      {"txtRaking", "Side Raking cost", "12"},
      {"txtRakingNum", "Raking Operations", "10"},
      {"txtBaling", "Baling Cost", "60"},
      {"txtStand", "Life of {crop} Stand", "40"},
  };
  for (const std::string crop : {"Alfalfa", "Corn", "Fallow", "My Clover"}) {
    pane.open(makeCrop(crop, "ton", "tons"));
    for (const auto& [name, label, limit] : rows) {
      std::string expected = label;
      if (const std::size_t mark = label.find("{crop}"); mark != std::string::npos) {
        expected.replace(mark, 6, crop);
      }
      expectLimit(name, expected, limit, told(limit));
    }
  }
}

TEST_F(InputCostsLimits, SomeLimitsDependOnTheCrop) {
  const std::array<std::string, 6> crops{"Alfalfa",  "Corn",      "Grain Sorghum",
                                         "Soybeans", "Sunflower", "Wheat"};
  const Limited none;
  struct Row {
    std::string name;
    std::string head;
    std::array<Limited, 6> limits;
  };
  const std::vector<Row> rows{
      {"txtNitrogenApplied", "Nitrogen Rate - ", {"500", "675", "375", "350", "400", "350"}},
      {"txtPApplied", "Phosphorus Rate - ", {"298", "215", "132", "131", "144", "110"}},
      {"txtSeedRate", "Seed Rate - ", {"20", "99999", "30", "500000", "60000", "240"}},
      {"txtSeedCost", "Seed Cost - ", {"20", "10", "10", "0.99", "4", "0.4"}},
      {"txtHerbicide", "Herbicide Cost - ", {"199", "120", "120", "120", "120", "120"}},
      {"txtInsecticide", "Insecticide Cost - ", {"199", "120", "120", "120", "120", "120"}},
      {"txtHarvestBase", "Harvest Base Rate - ", {none, "80", "80", "80", "80", "80"}},
      {"txtExceedCost", "Extra Charge - ", {none, "0.5", "0.5", "0.5", "1", "0.5"}},
      {"txtHaulingCost", "Hauling Cost - ", {none, "0.5", "0.5", "0.5", "1", "0.5"}},
      {"txtFlatRate", "Harvesting Flat Rate - ", {none, "1", "1", "1", "2", "1"}},
  };
  for (std::size_t c = 0; c < crops.size(); ++c) {
    pane.open(makeCrop(crops.at(c)));
    for (const Row& row : rows) {
      if (const Limited& limit = row.limits.at(c)) {
        expectLimit(row.name, row.head + crops.at(c), *limit, told(*limit));
      } else {
        expectUntested(row.name);
      }
    }
  }
  for (const char* crop : {"My Beans", "Fallow", "corn", ""}) {
    pane.open(makeCrop(crop));
    for (const Row& row : rows)
      expectUntested(row.name);
  }
}

TEST_F(InputCostsLimits, SomeFieldsAreNotTested) {
  pane.open(makeCrop("Corn"));
  for (const char* name : {"txtBalingNum", "txtMiscCost", "txtExceed", "txtReturns"}) {
    expectUntested(name);
    EXPECT_FALSE(box(name).onLeave.isHeard());
    EXPECT_FALSE(box(name).onChange.isHeard());
  }
}

TEST_F(InputCostsLimits, AButtonIsPressedAfterTheMessage) {
  const auto crop = makeCrop("Corn");
  pane.open(crop);
  pane.txtTillage.type("40");
  pane.txtTillage.leave();
  pane.txtTillage.type("4000");
  pane.Command6.click();
  EXPECT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(applied, 1);
  EXPECT_EQ(crop->inputCosts.Tillage, 40);
}

TEST_F(InputCostsLimits, WithoutACropNoLimitOfACropApplies) {
  EXPECT_EQ(messageFor("txtSeedRate", "1e9"), "");
  EXPECT_EQ(messageFor("txtStand", "41"),
            "Life of  Stand:  Please enter a value that's less than or equal to 40");
}

}  // namespace
}  // namespace verdalis
