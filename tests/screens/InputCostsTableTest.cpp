#include <set>

#include "tests/screens/InputCostsFixture.h"

namespace verdalis {
namespace {

using InputCostsTable = ::verdalis::testing::InputCostsFixture;

/// Every text box on a frame and the frames in it.
void collectBoxes(const Frame& frame, std::set<std::string>& names) {
  for (const Control* control : frame.controls()) {
    if (control->kind() == ControlKind::TextBox) names.insert(control->name());
    if (const auto* inner = dynamic_cast<const Frame*>(control)) collectBoxes(*inner, names);
  }
}

TEST_F(InputCostsTable, ContainsEveryBoxOnce) {
  std::set<std::string> onPane;
  collectBoxes(pane, onPane);
  const std::vector<std::string> inTable = boxNames();
  EXPECT_EQ(onPane, std::set<std::string>(inTable.begin(), inTable.end()));
  EXPECT_EQ(onPane.size(), inTable.size());
  EXPECT_EQ(onPane.size(), 28U);
}

TEST_F(InputCostsTable, DescribesBoxesFramesUnitsAndHelp) {
  const auto groups = InputCostsPane::groups();
  for (const InputCostsField& field : InputCostsPane::fields()) {
    const FieldRow& row = field.row;
    const TextBox& member = pane.*field.box;
    EXPECT_EQ(member.name(), row.control);
    ASSERT_LT(static_cast<std::size_t>(row.group), groups.size());
    const auto& group = groups[static_cast<std::size_t>(row.group)];
    EXPECT_EQ(member.container()->name(), group.frame.empty() ? "pneInputCosts" : group.frame) << row.control;
    EXPECT_NE(row.label, "");
    if (field.unitControl != nullptr) {
      const Control* unit = &field.unitControl(pane);
      ASSERT_EQ(unit, desk.find(unit->name())) << unit->name();
      EXPECT_EQ(unit->kind(), ControlKind::Label);
      EXPECT_EQ(row.unit, "");
    }
    if (row.helpIndex >= 0) {
      EXPECT_NE(desk.find("cmdHelp(" + std::to_string(row.helpIndex) + ")"), nullptr);
    }
    EXPECT_EQ(row.limit.tests(), !row.testLabel.empty());
  }
  for (const auto& group : groups) {
    if (group.headingControl != nullptr) {
      EXPECT_NE(desk.find((pane.*group.headingControl).name()), nullptr);
    }
    if (group.resultControl != nullptr) {
      EXPECT_NE(desk.find((pane.*group.resultControl).name()), nullptr);
    }
  }
}

TEST_F(InputCostsTable, ContainsTheFixedTexts) {
  struct Expected {
    std::string label;
    std::string unit;
    std::string unitControl;
  };
  const std::map<std::string, Expected> expected{
      {"txtNitrogenApplied", {"Nitrogen", "lb / ac", ""}},
      {"txtNitrogenCost", {"Nitrogen", "/ lb", ""}},
      {"txtPApplied", {"Phosphorus", "lb / ac", ""}},
      {"txtPCost", {"Phosphorus", "/ lb", ""}},
      {"txtSeedRate", {"Seed", "", "lblSeedRate"}},
      {"txtSeedCost", {"Seed", "", "lblSeedUnits"}},
      {"txtHerbicide", {"Herbicide", "/ acre", ""}},
      {"txtInsecticide", {"Insecticide", "/ acre", ""}},
      {"txtTillage", {"Tillage Cost", "/ acre", ""}},
      {"txtPlanting", {"Planting Cost", "/ acre", ""}},
      {"txtFertilizerApplication", {"Fertilizer Application Cost", "/ acre", ""}},
      {"txtHerbicideApplication", {"Herbicide Application Cost", "/ acre", ""}},
      {"txtInsecticideApplication", {"Insecticide Application Cost", "/ acre", ""}},
      {"txtHarvestBase", {"Base charge:", "/ acre", ""}},
      {"txtExceed", {"Extra charge for yields exceeding", "", "lblUnits"}},
      {"txtExceedCost", {"Extra charge for yields exceeding", "", "lblperunits(0)"}},
      {"txtHaulingCost", {"Hauling:", "", "lblperunits(1)"}},
      {"txtFlatRate", {"Flat rate:", "", "lblperunits(2)"}},
      {"txtSwathing", {"Swathing:", "/ acre", ""}},
      {"txtSwathingNum", {"Swathing:", "", ""}},
      {"txtRaking", {"Sideraking:", "/ acre", ""}},
      {"txtRakingNum", {"Sideraking:", "", ""}},
      {"txtBaling", {"Baling:", "/ bale", ""}},
      {"txtBalingNum", {"Baling:", "bales / ac", ""}},
      {"txtAlfFlat", {"Flat rate:", "/ ton", ""}},
      {"txtStand", {"Life of Stand", "years", ""}},
      {"txtMiscCost", {"Misc Costs", "/ acre", ""}},
      {"txtReturns", {"Misc Returns", "/ acre", ""}},
  };
  for (const InputCostsField& field : InputCostsPane::fields()) {
    const Expected& row = expected.at(std::string(field.row.control));
    EXPECT_EQ(field.row.label, row.label) << field.row.control;
    EXPECT_EQ(field.row.unit, row.unit) << field.row.control;
    EXPECT_EQ(field.unitControl == nullptr ? "" : field.unitControl(pane).name(), row.unitControl)
        << field.row.control;
  }
}

TEST_F(InputCostsTable, TheControlsHaveTheirCaptions) {
  EXPECT_EQ(pane.name(), "pneInputCosts");
  EXPECT_EQ(pane.chkNOptimal.caption(), "Use optimal yield based nitrogen rate");
  EXPECT_EQ(pane.chkPOptimal.caption(), "Use optimal yield based phosphorus rate");
  EXPECT_EQ(pane.chkSeedOptimal.caption(), "Use optimal yield based seeding rate");
  EXPECT_EQ(pane.Command13.caption(), "Clear all values on this page");
  EXPECT_EQ(shownCaption(pane.Command6.caption()), "Apply Costs & Returns");
  EXPECT_EQ(pane.cmdCancel.caption(), "Cancel");
  EXPECT_EQ(pane.cmdCancel.name(), "cmdCancel(1)");
  EXPECT_EQ(pane.lblAnnualized.caption(),
            "Seed, tillage, and planting costs automatically annualized over the life of stand");
  EXPECT_FALSE(pane.frmICAlf.visible());
  EXPECT_FALSE(pane.frmICAlf2.visible());
  EXPECT_FALSE(pane.lblAnnualized.visible());
}

TEST_F(InputCostsTable, ContainsTheTextsOfTheGroups) {
  const auto groups = InputCostsPane::groups();
  EXPECT_EQ(groups[generalGroup].heading, "General Input Costs");
  EXPECT_EQ(groups[generalGroup].resultLabel, "General Input Costs Subtotal:");
  EXPECT_EQ(groups[generalGroup].note, "*subtotal does not include inputs using optimal rates");
  EXPECT_EQ(groups[operationGroup].resultLabel, "Operation Costs Subtotal:");
  EXPECT_EQ(groups[operationGroup].note, "*subtotal does not include harvesting costs");
  EXPECT_EQ(groups[harvestGroup].heading, "Harvesting Costs");
  EXPECT_EQ(groups[forageHarvestGroup].heading, "Harvesting Costs");
  EXPECT_EQ(groups[miscGroup].heading, "Miscellaneous Costs");
  EXPECT_EQ(groups[returnsGroup].heading, "Land Usage Returns");
}

TEST_F(InputCostsTable, ContainsTheHelpButtons) {
  const std::vector<int> indices{11, 12, 13, 14, 21, 22, 23, 24};
  for (const int index : indices) {
    auto* button = dynamic_cast<Button*>(desk.find("cmdHelp(" + std::to_string(index) + ")"));
    ASSERT_NE(button, nullptr);
    button->click();
  }
  EXPECT_EQ(helped, indices);
}

}  // namespace
}  // namespace verdalis
