#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "model/EfficiencyFraction.h"
#include "tests/screens/IrrigCostsFixture.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

TEST_F(IrrigCosts, StartsWithItsTextsAndStartValues) {
  EXPECT_EQ(pane.name(), "pneIrrigCosts");
  EXPECT_EQ(pane.caption(), "Irrigation Costs");
  EXPECT_EQ(pane.txtRepairsPerAcre.text(), "0.33");
  EXPECT_EQ(pane.txtGPM.text(), "");
  EXPECT_EQ(pane.cboFuelType.text(), "Select fuel type");
  EXPECT_EQ(pane.cboFuelType.index(), -1);
  EXPECT_EQ(pane.cboFuelType.items(),
            (std::vector<std::string>{"Diesel", "Propane", "Natural Gas", "Electricity"}));
  EXPECT_EQ(pane.Command4.caption(), "Clear all values on this page");
  EXPECT_EQ(pane.cmdDefaultIrrigCosts.caption(), "Load Default Values");
  EXPECT_EQ(pane.Command9.caption(), "Apply Costs");
  EXPECT_EQ(pane.cmdCancel.caption(), "Back");
  EXPECT_EQ(pane.cmdCancel.name(), "cmdCancel(0)");
  EXPECT_FALSE(plant->active);
}

TEST_F(IrrigCosts, EveryRowDescribesItsControl) {
  struct Expected {
    std::string control;
    std::string label;
    std::string unit;
    int help;
  };
  const std::vector<Expected> expected{
      {"txtGPM", "GPM - Discharge rate in gallons per minute", "GPM", 15},
      {"txtLift", "Pumping Water Lift", "feet", 7},
      {"txtPSI", "Irrigation system operating pressure (psi)", "psi", 17},
      {"cboFuelType", "Fuel Type", "", 18},
      {"txtCost", "Fuel Cost", "per fuel unit", 19},
      {"txtLaborPerHour", "Labor", "/ hour", 20},
      {"txtRepairsPerAcre", "Repairs and Maintenance", "", 8},
      {"txtEstHours", "Total Season Pumping Hours", "hours", 16},
  };
  const auto fields = IrrigCostsPane::fields();
  ASSERT_EQ(fields.size(), expected.size());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const FieldRow& row = fields[i].row;
    EXPECT_EQ(row.control, expected[i].control);
    EXPECT_EQ(row.label, expected[i].label);
    EXPECT_EQ(row.unit, expected[i].unit);
    EXPECT_EQ(row.helpIndex, expected[i].help);
    if (fields[i].box != nullptr) {
      EXPECT_EQ((pane.*fields[i].box).name(), row.control);
    } else {
      EXPECT_EQ((pane.*fields[i].list).name(), row.control);
    }
    EXPECT_EQ(desk.find(row.control)->container(), &pane);
  }
}

TEST_F(IrrigCosts, EveryGroupNamesItsControls) {
  const auto groups = IrrigCostsPane::groups();
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(groups[0].heading, "Variable Irrigation Costs");
  EXPECT_EQ(groups[0].resultLabel, "Irrigation Costs Subtotal:");
  EXPECT_EQ(groups[0].note, "*subtotal does not include labor costs");
  EXPECT_EQ(&(pane.*groups[0].resultControl), &pane.lblICosts);
  EXPECT_EQ(groups[1].heading, "How much are you pumping?");
  EXPECT_EQ(groups[1].note, "*this figure is for your information only");
  EXPECT_EQ(&(pane.*groups[1].resultControl), &pane.lblInchHint);
}

TEST_F(IrrigCosts, LimitsPassAndAnythingAboveFails) {
  struct Tested {
    TextBox* box;
    std::string label;
    std::string atLimit;
    std::string above;
    std::string told;
  };
  const std::vector<Tested> fields{
      {&pane.txtEstHours, "Total Season Pumping Hours", "8000", "8000.1", "8,000"},
      {&pane.txtLift, "Pumping Water Lift:", "999", "999.01", "999"},
      {&pane.txtPSI, "Well Head Operating Pressure", "200", "201", "200"},
      {&pane.txtLaborPerHour, "Labor", "100", "100.5", "100"},
      {&pane.txtRepairsPerAcre, "Repairs and Maintenance", "0.99", "1", "1"},
      {&pane.txtCost, "Fuel Cost", "100", "101", "100"},
  };
  for (const Tested& field : fields) {
    EXPECT_EQ(messageFor(*field.box, "0"), "");
    EXPECT_EQ(messageFor(*field.box, field.atLimit), "");
    EXPECT_EQ(messageFor(*field.box, field.above),
              field.label + ":  Please enter a value that's less than or equal to " + field.told);
    EXPECT_EQ(messageFor(*field.box, "-1"), field.label + ":  Please enter a value that's greater than 0");
    EXPECT_EQ(messageFor(*field.box, "1x"), field.label + ":  Please enter a numeric value!");
  }
}

TEST_F(IrrigCosts, TheDischargeIsNotTested) {
  EXPECT_EQ(messageFor(pane.txtGPM, "99999999"), "");
  EXPECT_EQ(messageFor(pane.txtGPM, "-4"), "");
  EXPECT_EQ(messageFor(pane.txtGPM, "words"), "");
}

TEST_F(IrrigCosts, TheFuelCostLimitDependsOnTheFuel) {
  struct Fuel {
    int index;
    std::string atLimit;
    std::string above;
    std::string told;
  };
  const std::string head = "Fuel Cost:  Please enter a value that's less than or equal to ";
  for (const Fuel& fuel : {Fuel{0, "10", "10.01", "10"}, Fuel{1, "10", "10.01", "10"},
                           Fuel{2, "25", "25.01", "25"}, Fuel{3, "0.4", "0.41", ""}}) {
    pane.cboFuelType.pick(fuel.index);
    EXPECT_EQ(messageFor(pane.txtCost, fuel.atLimit), "");
    EXPECT_EQ(messageFor(pane.txtCost, fuel.above), head + fuel.told);
  }
  pane.cboFuelType.type("Steam");
  EXPECT_EQ(messageFor(pane.txtCost, "100"), "");
  EXPECT_EQ(messageFor(pane.txtCost, "100.01"), head + "100");
}

TEST_F(IrrigCosts, ChangingTheFuelDoesNotRepeatTheTest) {
  pane.txtCost.type("25");
  pane.cboFuelType.pick(3);
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_EQ(pane.txtCost.text(), "25");
}

TEST_F(IrrigCosts, TheDefaultButtonFillsTheFields) {
  pane.cmdDefaultIrrigCosts.click();
  expectDefaults();
  // 750 * (35 * 2.31 + 120) / 3960 = 38.03977 hp over 61.7 for 0.6 hours at 5.10, and 0.33 for repairs.
  EXPECT_EQ(pane.lblICosts.caption(), "$2.22 / ac-in");
  EXPECT_EQ(pane.lblInchHint.caption(),
            "Based on 750 gpm, 100 acres, and 1800 hours of pumping, you would apply 29.8 inches of water "
            "in a season");
  pane.cmdCancel.click();
  EXPECT_EQ(backs, 1);
  EXPECT_EQ(applied, 0);
  EXPECT_EQ(plant->GPM, 0);
  EXPECT_FALSE(plant->active);
}

TEST_F(IrrigCosts, ShowDefaultsFillsTheFieldsLikeTheButton) {
  pane.cboFuelType.type("Steam");
  pane.showDefaults();
  expectDefaults();
  EXPECT_EQ(pane.lblICosts.caption(), "$2.22 / ac-in");
}

TEST_F(IrrigCosts, EveryFieldUpdatesTheSubtotal) {
  pane.showDefaults();
  std::set<std::string> captions{pane.lblICosts.caption()};
  for (TextBox* box : {&pane.txtGPM, &pane.txtLift, &pane.txtPSI, &pane.txtCost, &pane.txtRepairsPerAcre}) {
    const std::string before = box->text();
    box->type("99");
    // The flow does not affect the cost of an acre-inch: a higher flow pumps faster at more power.
    const bool expectChange = box != &pane.txtGPM;
    EXPECT_EQ(captions.insert(pane.lblICosts.caption()).second, expectChange) << box->name();
    box->type(before);
    EXPECT_EQ(pane.lblICosts.caption(), "$2.22 / ac-in");
  }
  for (TextBox* box : {&pane.txtGPM, &pane.txtLaborPerHour, &pane.txtEstHours}) {
    pane.lblICosts.setCaption("stale");
    box->type("98");
    EXPECT_EQ(pane.lblICosts.caption(), "$2.22 / ac-in") << box->name();
  }
}

TEST_F(IrrigCosts, TheSubtotalDependsOnTheFuel) {
  pane.showDefaults();
  const std::map<int, std::string> captions{
      {0, "$9.64 / ac-in"}, {1, "$17.22 / ac-in"}, {2, "$2.22 / ac-in"}, {3, "$131.86 / ac-in"}};
  for (const auto& [index, caption] : captions) {
    pane.cboFuelType.pick(index);
    EXPECT_EQ(pane.lblICosts.caption(), caption);
  }
  pane.cboFuelType.type("Steam");
  pane.txtLift.type("500");
  EXPECT_EQ(pane.lblICosts.caption(), "$131.86 / ac-in");
}

TEST_F(IrrigCosts, AnUnknownFuelKeepsTheSubtotal) {
  pane.lblICosts.setCaption("as it was");
  pane.txtGPM.type("750");
  pane.txtCost.type("3");
  EXPECT_EQ(pane.lblICosts.caption(), "as it was");
}

TEST_F(IrrigCosts, TermsThatCannotBeCalculatedCountAs0) {
  pane.showDefaults();
  pane.txtGPM.type("0");
  EXPECT_EQ(pane.lblICosts.caption(), "$0.33 / ac-in");
  pane.txtGPM.type("750");
  pane.txtCost.type("1e400");
  EXPECT_EQ(pane.lblICosts.caption(), "$0.33 / ac-in");
  pane.txtCost.type("5.10");
  pane.txtPSI.type("1e400");
  EXPECT_EQ(pane.lblICosts.caption(), "$0.33 / ac-in");
  pane.txtPSI.type("");
  EXPECT_EQ(pane.lblICosts.caption(), "$1.46 / ac-in");
  // Without the number of the last step there is no new caption.
  pane.txtRepairsPerAcre.type("1e400");
  EXPECT_EQ(pane.lblICosts.caption(), "$1.46 / ac-in");
  pane.txtRepairsPerAcre.type("-3");
  EXPECT_EQ(pane.lblICosts.caption(), "$-1.87 / ac-in");
}

TEST_F(IrrigCosts, TheHintDependsOnFlowAndHours) {
  const auto hint = [](const std::string& gpm, const std::string& acres, const std::string& hours,
                       const std::string& inches) {
    return "Based on " + gpm + " gpm, " + acres + " acres, and " + hours +
           " hours of pumping, you would apply " + inches + " inches of water in a season";
  };
  pane.txtGPM.type("800");
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "100", "0", "0.0"));
  pane.txtEstHours.type("1000.5");
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "100", "1001", "17.7"));
  area = "0.1";
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "100", "1001", "17.7"));
  pane.open();
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "0", "1001", "17,685.6"));
  area = "";
  pane.open();
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "0", "1001", "0.0"));
  area = "50 acres";
  pane.open();
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "50", "1001", "35.4"));
  pane.txtGPM.type("1e400");
  EXPECT_EQ(pane.lblInchHint.caption(), hint("800", "50", "1001", "35.4"));
  pane.txtGPM.type("1e308");
  EXPECT_NE(pane.lblInchHint.caption().find("you would apply 0.0 inches"), std::string::npos);
}

TEST_F(IrrigCosts, TheHintNeedsAnArea) {
  pane.areaText = nullptr;
  pane.open();
  EXPECT_EQ(
      pane.lblInchHint.caption(),
      "Based on 0 gpm, 0 acres, and 0 hours of pumping, you would apply 0.0 inches of water in a season");
}

TEST_F(IrrigCosts, OpeningEmptiesTheZerosOfTheWindow) {
  pane.txtLift.setText("0");
  pane.txtPSI.setText("0.0");
  pane.cboFuelType.setText("0");
  elsewhere.setText("0");
  pane.open();
  EXPECT_EQ(pane.txtLift.text(), "");
  EXPECT_EQ(pane.txtPSI.text(), "0.0");
  EXPECT_EQ(pane.cboFuelType.text(), "");
  EXPECT_EQ(elsewhere.text(), "");
  EXPECT_EQ(pane.txtRepairsPerAcre.text(), "0.33");
}

TEST_F(IrrigCosts, ApplyStoresEverything) {
  int value = 1;
  for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
    if (field.box != nullptr) (pane.*field.box).type(std::to_string(value++) + "x");
  }
  pane.cboFuelType.pick(1);
  pane.Command9.click();
  EXPECT_EQ(plant->GPM, 1);
  EXPECT_EQ(plant->Lift, 0);  // "2x" has failed its test and gone back
  EXPECT_EQ(fakes.messageBox.take().size(), 6U);
  EXPECT_EQ(applied, 1);

  pane.txtLift.type("2");
  pane.txtPSI.type("3");
  pane.txtCost.type("4");
  pane.txtLaborPerHour.type("5");
  pane.txtRepairsPerAcre.type("0.6");
  pane.txtEstHours.type("7");
  pane.Command9.click();
  EXPECT_EQ(plant->GPM, 1);
  EXPECT_EQ(plant->Lift, 2);
  EXPECT_EQ(plant->PSI, 3);
  EXPECT_EQ(plant->cost, 4);
  EXPECT_EQ(plant->LaborPerHour, 5);
  EXPECT_EQ(plant->RepairsPerAcreInch, 0.6);
  EXPECT_EQ(plant->dblEstHours, 7);
  EXPECT_EQ(plant->FuelType, "Propane");
  EXPECT_EQ(plant->NPC, 6.89);
  EXPECT_EQ(plant->FixedPerAcre, 0);
  EXPECT_TRUE(plant->active);
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(IrrigCosts, ApplySetsThePerformanceOfEachFuel) {
  const std::map<int, double> figures{{0, 12.5}, {1, 6.89}, {2, 61.7}, {3, 0.885}};
  for (const auto& [index, figure] : figures) {
    pane.cboFuelType.pick(index);
    pane.Command9.click();
    EXPECT_EQ(plant->NPC, figure);
  }
}

TEST_F(IrrigCosts, ApplyWithAnUnknownFuelKeepsThePerformance) {
  plant->NPC = 12.5;
  pane.Command9.click();
  EXPECT_EQ(plant->NPC, 12.5);
  EXPECT_EQ(plant->FuelType, "Select fuel type");
  EXPECT_EQ(applied, 1);
}

TEST_F(IrrigCosts, ApplyAfterClearStoresACostOf0) {
  pane.cmdDefaultIrrigCosts.click();
  pane.Command4.click();
  for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
    if (field.box != nullptr) {
      EXPECT_EQ((pane.*field.box).text(), "");
    }
  }
  EXPECT_EQ(pane.cboFuelType.text(), "");
  EXPECT_EQ(pane.cboFuelType.index(), -1);
  EXPECT_EQ(pane.lblICosts.caption(), "$0.00 / ac-in");
  pane.Command9.click();
  EXPECT_EQ(plant->GPM, 0);
  EXPECT_EQ(plant->dblEstHours, 0);
  EXPECT_EQ(plant->FuelType, "");
  EXPECT_TRUE(plant->active);
  EfficiencyFraction = 0.85;
  EXPECT_EQ(plant->getCosts(10, 100), 0);
}

TEST_F(IrrigCosts, ClearDoesNotTouchOtherPanes) {
  elsewhere.setText("5");
  pane.Command4.click();
  EXPECT_EQ(elsewhere.text(), "5");
}

TEST_F(IrrigCosts, ApplyReportsATooLargeNumberAndKeepsThePaneOpen) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  pane.txtGPM.type("1e400");
  EXPECT_TRUE(told.empty());
  pane.Command9.click();
  EXPECT_EQ(told.size(), 1U);
  EXPECT_EQ(applied, 0);
  EXPECT_FALSE(plant->active);
  EXPECT_EQ(pane.txtGPM.text(), "1e400");
}

TEST_F(IrrigCosts, HelpButtonsRaiseTheirIndex) {
  for (const int index : {7, 8, 15, 16, 17, 18, 19, 20}) {
    auto* button = dynamic_cast<Button*>(desk.find("cmdHelp(" + std::to_string(index) + ")"));
    ASSERT_NE(button, nullptr);
    button->click();
    EXPECT_EQ(helped.back(), index);
  }
  EXPECT_EQ(helped.size(), 8U);
}

TEST_F(IrrigCosts, TheButtonsNeedNoListeners) {
  listeners.clear();
  pane.Command9.click();
  pane.cmdCancel.click();
  pane.cmdHelp.buttons().front()->click();
  EXPECT_TRUE(plant->active);
}

}  // namespace
}  // namespace verdalis::testing
